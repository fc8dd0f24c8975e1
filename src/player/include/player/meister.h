// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// "Meister": the computer player that searches ahead. Alpha-beta with iterative deepening over the
// game's own rules, spending a time budget per move; both sides.
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

#include "board/stellung.h"
#include "board/zufall.h"
#include "player/endspieltafel.h"
#include "player/meister_bewertung.h"
#include "player/zugwahl.h"

namespace fuh {

// The budget per move is kept within these; the window gives 400 ms, the measuring tools more.
inline constexpr std::chrono::milliseconds kKuerzesteBedenkzeit{1};
inline constexpr std::chrono::milliseconds kLaengsteBedenkzeit{5000};

struct MeisterLage {
    const Brettfeld& Feld;
    int16_t seite = henne; // who moves: henne or fuchs
    int spielzug = 0;      // positions recorded so far; the game is drawn when a move makes it 149
    // The computer plays the hens: a fox that misses a jump is taken off (the last one: drawn) and comes
    // back after the foxes' next jump.
    bool strafregel = true;
    std::chrono::milliseconds bedenkzeit{400};
};

namespace meister {
class Suche;
}

class Meister {
  public:
    explicit Meister(uint32_t seed);
    ~Meister();
    Meister(const Meister&) = delete;
    Meister& operator=(const Meister&) = delete;

    // The move for the side to move; no move (anzahl 0) when it has none or the position is not one.
    Zugwahl berechne(const MeisterLage& lage);

    // Limits for tools and tests, which need a search that does not depend on the clock: a budget of
    // positions in place of the time (the same move on every machine), and a depth to stop at (0: none).
    void grenzen(uint64_t knoten, int tiefe);
    void gewichte(const meister::Gewichte& g);
    // Exact values inside the endgame class: where its table for the game's rules is given, the Meister
    // looks positions up instead of searching them, and plays the table's best move.
    void endspieltafeln(Endspieltafeln t) { tafeln_ = std::move(t); }

    struct Bericht {
        int tiefe = 0;       // the deepest search completed
        int wert = 0;        // its value for the side to move
        uint64_t knoten = 0; // positions visited
    };
    const Bericht& bericht() const { return bericht_; }

  private:
    std::unique_ptr<meister::Suche> suche_;
    Zufall zufall_;
    Bericht bericht_;
    uint64_t knotenGrenze_ = 0;
    int tiefenGrenze_ = 0;
    Endspieltafeln tafeln_;
    std::optional<bool> letzteSeite_; // the side the table was filled for: true the foxes
};

} // namespace fuh
