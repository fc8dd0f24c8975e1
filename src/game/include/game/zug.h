// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The one procedure that changes the real board.
#include "board/regeln.h"
#include "board/stellung.h"
#include "board/teilzug.h"
#include "game/ansicht.h"
#include "memory/partie.h"

namespace fuh {

// What a move changes: the position, the open jump sequence, and the credits it earns; the view hears of it.
struct Zugumgebung {
    Stellung& stellung;
    const Teilzug& zugregister;
    Sprungfolge& sprungfolge;
    Ansicht& ansicht;
    Partie& partie;
    bool menschFuchs, menschHennen; // a person's pieces snap into place, the computer's glide
};

// Executes the move in the move register. `normal` false: a penalty move, without jump handling.
void zug(Zugumgebung& u, bool normal);

} // namespace fuh
