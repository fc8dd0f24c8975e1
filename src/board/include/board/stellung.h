// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The position: board codes, the board array and where each piece stands. A plain value.
#include <array>
#include <cstdint>
#include <optional>

namespace fuh {

// Board arrays are indexed [x][y], x the column 0..6 from the left, y the row 0..6 from the top.
// Index 7 exists but is never read or written.
using Brettfeld = std::array<std::array<int16_t, 8>, 8>;

inline constexpr int16_t leer = 1;
inline constexpr int16_t henne = 2;
inline constexpr int16_t fuchs = 3;

// The two sides of the game. The hens begin.
enum class Seite : int16_t { Fuchs, Hennen };
constexpr Seite gegner(Seite s) {
    return s == Seite::Fuchs ? Seite::Hennen : Seite::Fuchs;
}

inline constexpr int kAnzahlFuechse = 2;
inline constexpr int kAnzahlHennen = 20;
inline constexpr int kFiguren = kAnzahlFuechse + kAnzahlHennen; // 0 and 1 foxes, 2..21 hens
inline constexpr int kFelder = 49;                              // 7 x 7 squares, each with a drop target
inline constexpr int kParkfeld = 0;                             // where a penalised fox waits, off the cross
inline constexpr int kLaengsteKette = kAnzahlHennen;            // a chain of jumps can take at most every hen

constexpr int feldX(int s) {
    return s % 7;
}
constexpr int feldY(int s) {
    return s / 7;
}
constexpr int feldNummer(int x, int y) {
    return y * 7 + x;
}
constexpr bool aufGitter(int x, int y) {
    return x >= 0 && x <= 6 && y >= 0 && y <= 6;
}
constexpr bool imZielfeld(int x, int y) {
    return x >= 2 && x <= 4 && y >= 0 && y <= 2;
}
constexpr bool aufKreuz(int x, int y) {
    return aufGitter(x, y) && ((x >= 2 && x <= 4) || (y >= 2 && y <= 4));
}

// The hens win when every square of the target area holds one, so with fewer hens left they have lost.
inline constexpr int kZielfelder = [] {
    int n = 0;
    for (int s = 0; s < kFelder; ++s)
        n += imZielfeld(feldX(s), feldY(s));
    return n;
}();

struct Stellung {
    Brettfeld Feld{};
    std::array<int16_t, kFiguren + 1> figurplatz{}; // element 22 is never used; 0 for a piece off the board

    // Starting position: foxes on (2, 2) and (4, 2), hens on rows 3 to 6.
    void grundstellung();
    friend bool operator==(const Stellung&, const Stellung&) = default;
};

// The first piece whose square is `wert`; foxes come first, so square 0 yields a parked fox.
std::optional<int> figur_index(const Stellung& s, int wert);

} // namespace fuh
