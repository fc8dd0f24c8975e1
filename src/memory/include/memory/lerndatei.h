// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The learned-move files "QZ2.DAT" and "QZ3.DAT": 15-byte records of a position code and two values.
#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "dateischicht/satzdatei.h"
#include "memory/partie.h"

namespace fuh {

inline constexpr int kLernsatz = 15;           // bytes per record
inline constexpr int kHoechsteSaetze = 32767;  // the merge counts records in 16 bits
inline constexpr int16_t kWiederholung = -500; // learned value of a position that repeats a recent one
inline constexpr int kWiederholungsTiefe = 6;  // how many recent positions count as a repetition

// Staerke 1 learns into "QZ2.DAT", every other value into "QZ3.DAT".
const char* lerndateiName(int Staerke);

class Lernindex;

// Both files are read through an in-memory index that is checked against the file on disk (inode, size,
// modification time) before every recall and merge, so a change made behind the game's back is seen.
class Lerndatei {
  public:
    explicit Lerndatei(std::filesystem::path ordner);

    struct Merge {
        int16_t neueZuege = 0; // records appended
        bool geschrieben = true;
    };
    // Merges the game's records into the file of the strength: the first record matching the code or
    // its spiegelcode is updated in place, an unknown position is appended; under the folder lock, and
    // synced. `geschrieben` is false (and nothing appended) when the file cannot be read or written.
    Merge speichern(const Partie& partie, int Staerke) const;

    // The learned value of the position for the side `figur` (0 when unknown; no file at strength 1),
    // or -500 when it repeats one of the last six recorded positions.
    int16_t erinnern(const Brettfeld& Feld, int16_t figur, int Staerke, const Partie& partie) const;

  private:
    // What is known of one of the two files: its names and its index.
    struct Speicher {
        std::string exakt;    // the file under its own name
        std::string gefunden; // the name it was found under, perhaps in another case
        std::shared_ptr<Lernindex> index;
    };
    Speicher& speicher(int Staerke) const;
    const Lernindex* aktuellerIndex(int Staerke) const; // nullptr when the file cannot be read
    Merge zusammenfuehren(Speicher& s, const char* name, const Partie& partie, int saetze) const;

    std::filesystem::path ordner_;
    mutable std::shared_ptr<std::array<Speicher, 2>> speicher_; // shared by copies: it only caches
};

} // namespace fuh
