// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The high-score lists "QZF.sco" (foxes) and "QZH.sco" (hens): ten 29-byte records each.
#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "spieldaten/oeffentlich.h"

namespace fuh {

inline constexpr int kListenzeilen = 10; // rows of a list; as a row index: none
inline constexpr int kNamenlaenge = 15;  // bytes of a name in the file

const char* bestenlistendatei(Seite s); // "QZF.sco" or "QZH.sco"

struct Eintrag {
    double datum = 0; // OLE Automation date: days since 30 December 1899
    int16_t score = 0;
    std::string user; // exactly 15 bytes, Windows-1252, padded with blanks (or zeros in an empty row)
    std::string sieg; // exactly 4 bytes, "Ja  " or "Nein" (or zeros in an empty row)
};

// Whether the player won, as the list stores it, in the word `u_is_sieger` holds.
std::string siegFeld(bool gewonnen);
// The column "won" of a row, its blanks removed, as a text: the words the game stores as their template,
// anything else as it is.
Text siegText(const std::string& feld);

class Bestenliste {
  public:
    explicit Bestenliste(Seite s) : seite_(s) {}

    void laden(const std::filesystem::path& ordner); // a missing or short file gives empty rows
    // Writes the list with its new row; false when it cannot be written.
    bool speichern(const std::filesystem::path& ordner) const;

    // Inserts the finished game when it is due (sw_spielende, score >= 1, and for the foxes no
    // fuchs_null) and then clears sw_spielende. Returns the new row, or 10 when nothing was inserted.
    int anzeigen(Oeffentlich& spiel, double heute);
    // Inserts `score` above the first row it reaches or ties; returns the row or 10.
    int einfuegen(int16_t score, const std::string& u_is_sieger, double heute);
    // The name typed into the new row, as UTF-8; stored cut or padded to 15 Windows-1252 bytes.
    void nameSetzen(const std::string& utf8);

    const std::array<Eintrag, kListenzeilen>& eintraege() const { return tabelle_; }
    int neuePos() const { return neuePos_; }
    bool hatNeueZeile() const { return neuePos_ >= 0 && neuePos_ < kListenzeilen; }
    Seite seite() const { return seite_; }

  private:
    void ausBytes(const std::vector<uint8_t>& b); // the ten rows from the file's bytes
    void inBytes(std::vector<uint8_t>& b) const;  // the ten rows over the file's first records

    Seite seite_;
    std::array<Eintrag, kListenzeilen> tabelle_{};
    int neuePos_ = kListenzeilen;
};

// Text conversions between the files' Windows-1252 and UTF-8 (unmappable characters become '?').
std::string nachWindows1252(const std::string& utf8);
std::string vonWindows1252(const std::string& bytes);

} // namespace fuh
