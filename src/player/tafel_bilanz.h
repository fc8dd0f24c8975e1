// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// What the table's builder and its checker share: a position's value from its successors' values.
#include <algorithm>

#include "player/endspieltafel.h"

namespace fuh::meister {

struct Bilanz {
    int gewinn = 0;  // plies of the quickest win found, 0 for none
    int verlust = 0; // plies of the slowest loss found
    bool remis = false;

    // A successor's value, seen from the side that moves there.
    void kind(uint8_t w) {
        if (w == tafelwert::kRemis)
            remis = true;
        else if (tafelwert::gewonnen(w))
            verlust = std::max(verlust, std::min(tafelwert::plies(w) + 1, tafelwert::kLaengsterVerlust));
        else
            sieg(tafelwert::plies(w) + 1);
    }
    void sieg(int plies) { gewinn = gewinn == 0 ? plies : std::min(gewinn, plies); }
    // Winning is best, a draw next; a loss is put off as long as possible.
    uint8_t wert() const {
        if (gewinn != 0) return tafelwert::gewinn(gewinn);
        return remis ? tafelwert::kRemis : tafelwert::verlust(verlust);
    }
};

// Books every move of `b` that ends the game into `bilanz` and hands each other successor to `weiter`.
// The ends are the game's: the hens fill the target, too few hens are left, the last fox on the cross
// would be taken off (a draw), and a side without a move (the hens lose, the foxes draw; the hens'
// check counts as a ply).
template <class Weiter>
void nachfolger(const Suchbrett& b, bool strafregel, Suchzug* zuege, Bilanz& bilanz, Weiter&& weiter) {
    const int n = b.fuchsAmZug ? b.fuchszuege(zuege) : b.hennenzuege(zuege);
    if (n == 0) {
        if (b.fuchsAmZug)
            bilanz.remis = true;
        else
            bilanz.verlust = 1;
        return;
    }
    for (int i = 0; i < n; ++i) {
        Suchbrett kind = b;
        const Folge folge = kind.ziehe(zuege[i], strafregel);
        if (folge == Folge::letzterFuchs)
            bilanz.remis = true;
        else if (b.fuchsAmZug ? kind.hennen < kZielfelder : kind.imZiel == kZielfelder)
            bilanz.sieg(1);
        else
            weiter(kind);
    }
}

} // namespace fuh::meister
