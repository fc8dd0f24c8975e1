// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A position set up by hand: a piece put from one square onto another without a move, through the
// same path as a continued game; and the hens one step before their win.
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

// The foxes put aside, then nine hens walked into the target area, all but the last step: (4, 3) to
// (4, 2) wins. False when a piece is not where it should be.
inline bool hennenVorDemSieg(Spiel& spiel) {
    if (!versetzen(spiel, feldNummer(2, 2), feldNummer(0, 2))) return false;
    if (!versetzen(spiel, feldNummer(4, 2), feldNummer(6, 2))) return false;
    for (int x : {2, 3, 4})
        for (int start = 3; start <= 5; ++start)
            for (int y = start; y > start - 3; --y) {
                const auto k = figur_index(spiel.stellung(), feldNummer(x, y));
                if (!k) return false;
                if (x != 4 || start != 5 || y != 3) spiel.abgelegt(feldNummer(x, y - 1), *k);
            }
    return true;
}

} // namespace fuh::test
