// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The computer hens: every hen move is tried against the fox player's predicted reply.
#include <cstdint>

#include "board/stellung.h"
#include "board/zufall.h"
#include "player/erinnerung.h"
#include "player/zugwahl.h"

namespace fuh {

inline constexpr int kHennenzuege = 100; // 20 hens with at most five directions each

// How the hens stand on a board after the foxes' reply.
struct Hstatus {
    int16_t lage = 0; // ten times the learned value plus the worth of all hens
    int16_t raum = 0; // ten times the learned value plus the worth of the safe squares hens can reach
};
Hstatus hstatusScan(const Brettfeld& psfig, const Erinnerung& erinnerung);

// The hens' move on `Feld` (after the penalty rule has been applied). The predictions draw from `zufall`
// too. No move: an empty choice.
Zugwahl berechneHennen(const Brettfeld& Feld, const Erinnerung& erinnerung, Zufall& zufall);

} // namespace fuh
