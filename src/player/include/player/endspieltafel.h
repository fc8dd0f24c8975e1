// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The exact endgame table: for every position of the class its outcome with perfect play and the
// plies until the game ends, regardless of the move limit (which the reader applies). One byte each:
// 0 drawn, 1..127 the side to move wins in that many plies, 128..255 it loses in (value - 127) plies.
// The two largest distances stand for "this many or more".
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "board/spielausgang.h"
#include "player/tafel_index.h"

namespace fuh {

namespace tafelwert {
inline constexpr uint8_t kRemis = 0;
inline constexpr int kLaengsterGewinn = 127;
inline constexpr int kLaengsterVerlust = 128;
constexpr uint8_t gewinn(int plies) {
    return static_cast<uint8_t>(plies < kLaengsterGewinn ? plies : kLaengsterGewinn);
}
constexpr uint8_t verlust(int plies) {
    return static_cast<uint8_t>(kLaengsterGewinn + (plies < kLaengsterVerlust ? plies : kLaengsterVerlust));
}
constexpr bool gewonnen(uint8_t w) {
    return w != kRemis && w <= kLaengsterGewinn;
}
constexpr int plies(uint8_t w) {
    return w <= kLaengsterGewinn ? w : w - kLaengsterGewinn;
}
// The distance is exact, not capped.
constexpr bool genau(uint8_t w) {
    return w != kLaengsterGewinn && w != kLaengsterGewinn + kLaengsterVerlust;
}
} // namespace tafelwert

// A table's values are never changed once it is made; copies share them. A table read from its file maps
// the file instead of copying it, so that only the pages the search touches stay in memory, the kernel may
// drop them again, and two windows share them.
class Endspieltafel {
  public:
    Endspieltafel(bool strafregel, std::vector<uint8_t> werte, int zeilen = meister::kKlassenzeilen);
    // Values held by `halter` (a mapping, say), exactly one per position of the class.
    Endspieltafel(bool strafregel, std::shared_ptr<const void> halter, std::span<const uint8_t> werte,
                  int zeilen);

    const meister::TafelIndex& index() const { return index_; }
    bool strafregel() const { return index_.strafregel(); }
    std::span<const uint8_t> werte() const { return werte_; }
    // The stored value, nullopt outside the class.
    std::optional<uint8_t> wert(const meister::Suchbrett& b) const;

  private:
    meister::TafelIndex index_;
    std::shared_ptr<const void> halter_;
    std::span<const uint8_t> werte_;
};

// The outcome of the position for the game at `spielzug` positions recorded: who wins and after how many
// plies (0 for a draw), the move limit applied. nullopt outside the class or where the table cannot tell.
struct Endspielurteil {
    Ergebnis ergebnis = Ergebnis::remis;
    int plies = 0;
    friend bool operator==(const Endspielurteil&, const Endspielurteil&) = default;
};
std::optional<Endspielurteil> urteil(const Endspieltafel& t, const meister::Suchbrett& b, int spielzug);

// Both rule sets' tables: with the penalty rule (the computer plays the hens) and without.
struct Endspieltafeln {
    std::shared_ptr<const Endspieltafel> mitStrafregel, ohneStrafregel;
    const Endspieltafel* fuer(bool strafregel) const {
        return (strafregel ? mitStrafregel : ohneStrafregel).get();
    }
};

// The game's folder in the user's cache folder ($XDG_CACHE_HOME, else ~/.cache), nullopt without one.
std::optional<std::filesystem::path> tafelOrdner();
// The tables found sound in `ordner`; a missing or damaged one stays empty.
Endspieltafeln tafelnLaden(const std::filesystem::path& ordner);

// The table's file in the cache folder `ordner`, one per rule set.
std::filesystem::path tafelDatei(const std::filesystem::path& ordner, bool strafregel);
// Reads and checks a table (size, header, rule set, checksum); nullopt when it is missing, damaged,
// foreign or unreadable.
std::optional<Endspieltafel> tafelLaden(const std::filesystem::path& datei, bool strafregel,
                                        int zeilen = meister::kKlassenzeilen);
// Writes it atomically (temporary file, sync, rename), creating the folder. False when it cannot.
bool tafelSpeichern(const std::filesystem::path& datei, const Endspieltafel& t);

} // namespace fuh
