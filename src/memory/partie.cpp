// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "memory/partie.h"

#include <algorithm>
#include <cstdlib>

#include "board/zahlen.h"

namespace fuh {

void Partie::pstoSits(const Brettfeld& Feld, const Teilzug& zug) {
    if (spielzug < 0 || spielzug >= kSituationen) return;
    Situation& neu = sits[spielzug];
    neu.code = positionscode(Feld);
    neu.fuchswert = 0;
    neu.hennenwert = 0;
    neu.sprung = zug.sprung() ? 1 : 0;
    ++spielzug;
}

void Partie::sanktion(int16_t H, int16_t F, int16_t q) {
    // All records, or the last five without record 0.
    const int letzter = std::min<int>(spielzug, kSituationen) - 1;
    const int erster = q == 1 ? 0 : std::max(1, spielzug - 5);
    for (int i = letzter; i >= erster; --i) {
        sits[i].hennenwert = sat16(sits[i].hennenwert + H);
        sits[i].fuchswert = sat16(sits[i].fuchswert + F);
    }
}

} // namespace fuh
