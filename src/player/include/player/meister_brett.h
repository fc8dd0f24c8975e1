// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The search's own board: the 49 squares in one row (square y * 7 + x), the pieces counted, the foxes'
// squares and a hash kept up to date, so that a move is a copy and a few writes.
#include <array>
#include <cstdint>

#include "board/regeln.h"
#include "board/stellung.h"

namespace fuh::meister {

inline constexpr int kQuadrate = kFelder;
inline constexpr int kKeiner = -1;
inline constexpr int kHoechstZuege = 2048; // moves of one side; a fox amid hens can have 1600 chains

// Lines of the cross for every square, directions dx -1..1 outer, dy -1..1 inner, without the null one:
// the neighbour, and the middle and landing square of a jump; kKeiner where no line leads.
struct Linien {
    std::array<std::array<int8_t, 8>, kQuadrate> schritt{};
    std::array<std::array<int8_t, 8>, kQuadrate> mitte{};
    std::array<std::array<int8_t, 8>, kQuadrate> sprung{};
    std::array<std::array<int8_t, 5>, kQuadrate> hennenschritt{}; // up or sideways, kKeiner filled
    std::array<uint64_t, kQuadrate> nachbarn{};                   // the squares of `schritt`, one bit each
    std::array<uint64_t, kQuadrate> sprungMitten{};               // the squares of `mitte`, one bit each
    std::array<uint64_t, kQuadrate> herkunft{}; // the neighbours a hen can step onto this square from
    std::array<bool, kQuadrate> kreuz{};
    std::array<bool, kQuadrate> ziel{};
    uint64_t kreuzMaske = 0; // the cross, one bit a square
    uint64_t zielMaske = 0;  // the target area
};
const Linien& linien();

// A hen step, a fox step (spruenge 0, target nach[0]) or a fox's chain of jumps (landing squares).
struct Suchzug {
    int8_t von = 0;
    int8_t spruenge = 0;
    std::array<int8_t, kLaengsteKette> nach{};
    int8_t ende() const { return nach[spruenge > 0 ? spruenge - 1 : 0]; }
    bool gleich(const Suchzug& z) const;
    uint64_t geschlagen() const; // the squares of the hens a chain takes, one bit each
};

// True when a chain among aus[erster..n) takes the same hens to the same square as `z`.
bool schonGelistet(const Suchzug* aus, int erster, int n, const Suchzug& z);

// What a move did beyond moving pieces.
enum class Folge : uint8_t {
    nichts,
    geparkt,      // a fox that missed a jump was taken off
    zurueck,      // a parked fox came back after a jump
    letzterFuchs, // the last fox on the cross missed a jump: the game is drawn
};

struct Suchbrett {
    std::array<int8_t, kQuadrate> f{}; // codes as in Brettfeld
    std::array<int8_t, 2> fuchsFeld{kKeiner, kKeiner};
    uint64_t hennenMaske = 0; // the hens' squares, one bit each
    int8_t hennen = 0;
    int8_t imZiel = 0;
    bool fuchsAmZug = false;
    uint64_t schluessel = 0;

    static Suchbrett aus(const Brettfeld& Feld, bool fuchsAmZug);
    Brettfeld feld() const;
    bool geparkt() const { return fuchsFeld[0] == kParkfeld || fuchsFeld[1] == kParkfeld; }
    uint64_t leereFelder() const; // the empty squares of the cross, one bit each

    int hennenzuege(Suchzug* aus) const;
    int fuchszuege(Suchzug* aus, bool nurSpruenge = false) const; // chains first, then steps
    uint64_t springbar(int feld) const; // the hens a fox on `feld` can jump at once, one bit each
    bool kannSpringen(int feld) const { return springbar(feld) != 0; }
    // Plays the move and hands the turn over; with `strafregel` a fox that missed a jump is parked and a
    // parked fox returns after a jump, as the game does at the start of the hens' next turn.
    Folge ziehe(const Suchzug& z, bool strafregel);

  private:
    void setze(int feld, int8_t code);
    void fuchsSpringt(const Suchzug& z);
    Folge strafe(const std::array<int8_t, 2>& vorher, bool a, bool b);
    void kette(int pos, Suchzug& z, Suchzug* aus, int& n, int erster);
};

uint64_t seitenschluessel();

} // namespace fuh::meister
