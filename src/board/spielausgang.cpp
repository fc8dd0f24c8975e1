// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "board/spielausgang.h"

#include <algorithm>

#include "board/regeln.h"

namespace fuh {

bool Spielausgang::enthaelt(Endegrund g) const {
    return std::find(begin(), end(), g) != end();
}

Ergebnis ergebnisVon(Endegrund g) {
    switch (g) {
    case Endegrund::hennenImZiel:
        return Ergebnis::hennen;
    case Endegrund::zuWenigHennen:
    case Endegrund::hennenOhneZug:
        return Ergebnis::fuchs;
    default:
        return Ergebnis::remis;
    }
}

Spielausgang spielausgang(const Brettfeld& Feld, int16_t figur, bool keinZug, int spielzug) {
    int n = 0, z = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (Feld[x][y] == henne) {
                ++n;
                if (imZielfeld(x, y)) ++z;
            }
    Spielausgang a;
    auto grund = [&a](Endegrund g) {
        a.gruende[static_cast<std::size_t>(a.anzahl++)] = g;
        a.ergebnis = ergebnisVon(g);
    };
    if (z == kZielfelder) grund(Endegrund::hennenImZiel);
    if (n < kZielfelder) grund(Endegrund::zuWenigHennen);
    if (keinZug && figur == henne) grund(Endegrund::hennenOhneZug);
    if (keinZug && figur == fuchs) grund(Endegrund::fuchsOhneZug);
    if (spielzug == kZugbegrenzung) grund(Endegrund::zugbegrenzung);
    return a;
}

} // namespace fuh
