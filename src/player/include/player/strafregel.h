// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A fox that could have jumped but did not is taken off the board until the foxes next jump.
#include <cstdint>

#include "board/stellung.h"
#include "board/teilzug.h"
#include "memory/partie.h"

namespace fuh {

struct Strafe {
    enum class Art {
        keine,
        einsetzen,   // after a fox jump the parked fox returns: `zug` from the parking square
        parken,      // a fox that could have jumped goes to the parking square: `zug`
        letzterFuchs // that fox would be the last one on the board: the game is drawn instead
    };
    Art art = Art::keine;
    Teilzug zug{};
};

// The verdict on the foxes' last move, at the start of a computer hen turn: after a jump a parked fox
// returns; after any other move a fox that could have jumped is parked, or, when the other fox is parked
// already, the game ends drawn. Nothing in single-move mode or before two positions are recorded.
Strafe strafregel(const Brettfeld& Feld, const Partie& partie, int16_t Einzelzug);

} // namespace fuh
