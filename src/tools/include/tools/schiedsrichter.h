// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// One game between two move sources, judged by the game's own rules as when the computer plays both
// sides: the penalty for a missed fox jump, the move limit and the end-of-move checks. Every move a
// source returns is checked as a human's would be, so a source in another process cannot cheat.
#include <cstdint>
#include <vector>

#include "board/stellung.h"
#include "memory/partie.h"
#include "player/zugwahl.h"

namespace fuh {

class Zugquelle {
  public:
    virtual ~Zugquelle() = default;
    // A new game; `seed` feeds the source's own random choices.
    virtual void neuePartie(uint32_t seed) = 0;
    // The move for `seite` (henne or fuchs), with the positions recorded so far.
    virtual Zugwahl waehle(const Brettfeld& Feld, int16_t seite, const Partie& partie) = 0;
};

enum class Ausgang : uint8_t {
    hennen,        // nine hens in the target area
    fuchs,         // fewer than nine hens left
    hennenOhneZug, // the hens found no move: the foxes win
    zugbegrenzung, // drawn at the move limit
    letzterFuchs,  // drawn: the last fox on the cross would have been taken off
    fuchsOhneZug,  // drawn: the foxes found no move
    ungueltig,     // a source returned a move the rules do not allow; the game was stopped
};

struct Partiebericht {
    Ausgang ausgang = Ausgang::zugbegrenzung;
    int16_t schuldig = 0;                  // with `ungueltig`: the side that moved wrongly
    Partie partie;                         // the positions recorded
    Brettfeld Feld{};                      // the final position
    std::vector<double> msHennen, msFuchs; // the sources' time per move
};

Partiebericht partieLeiten(Zugquelle& hennen, Zugquelle& fuechse, uint32_t seed);

// 1 the hens won, 0 the foxes, 0.5 a draw; nothing for a stopped game.
double hennenPunkte(Ausgang a);

} // namespace fuh
