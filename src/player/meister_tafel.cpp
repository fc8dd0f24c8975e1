// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The search inside the endgame class: the table's exact values instead of a search.
#include "player/meister_suche.h"

namespace fuh::meister {

// The value of the table's verdict, as the search values an end `plies` ahead.
bool Suche::tafelWert(const Suchbrett& b, int ply, int spielzug, int& wert) const {
    const auto u = urteil(*auftrag_.tafel, b, spielzug);
    if (!u) return false;
    if (u->ergebnis == fuh::Ergebnis::remis) {
        wert = remis(b.fuchsAmZug);
    } else {
        const int matt = kMatt - ply - u->plies;
        wert = (u->ergebnis == fuh::Ergebnis::fuchs) == b.fuchsAmZug ? matt : -matt;
    }
    return true;
}

// Every move from the root into the class or to an end: the one the table values best (the quickest
// win, else a draw, else the slowest loss), the first of equals in the random order. False when a move
// leads outside the class, where the search decides.
bool Suche::tafelzug(int n, Ergebnis& erg) {
    int best = -kMatt - 1, besterIndex = 0;
    const int sz = auftrag_.spielzug + 1;
    for (int i = 0; i < n; ++i) {
        Suchbrett kind = auftrag_.brett;
        const Folge folge = kind.ziehe(zuege_[0][i], auftrag_.strafregel);
        int wert = 0;
        if (!nachZug(kind, folge, sz, 0, wert)) {
            if (!tafelWert(kind, 1, sz, wert)) return false;
            wert = -wert;
        }
        if (wert > best) {
            best = wert;
            besterIndex = i;
        }
    }
    erg.zug = zuege_[0][besterIndex];
    erg.wert = best;
    erg.tiefe = 1;
    erg.knoten = static_cast<uint64_t>(n);
    return true;
}

} // namespace fuh::meister
