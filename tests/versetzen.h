// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A position set up by hand: a piece put from one square onto another without a move, through the
// same path as a continued game.
#include "game/spiel.h"

namespace fuh::test {

// False when no piece stands on `von`.
inline bool versetzen(Spiel& spiel, int von, int nach) {
    Spielstand z = spiel.zustand();
    const auto k = figur_index(z.stellung, von);
    if (!k) return false;
    auto& Feld = z.stellung.Feld;
    Feld[feldX(nach)][feldY(nach)] = Feld[feldX(von)][feldY(von)];
    Feld[feldX(von)][feldY(von)] = leer;
    z.stellung.figurplatz[*k] = static_cast<int16_t>(nach);
    spiel.fortsetzen({z, {}});
    return true;
}

} // namespace fuh::test
