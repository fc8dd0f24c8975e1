// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A player who picks one of its legal actions at random, for tests that play whole games.
#include <map>
#include <string>
#include <vector>

#include "game/spiel.h"
#include "temp_ordner.h"

namespace fuh::test {

// Drop piece k on square t, or press the right button (t < 0) to end a jump sequence.
struct Aktion {
    int k;
    int t;
};

inline std::vector<Aktion> moeglicheAktionen(const Spiel& spiel) {
    std::vector<Aktion> liste;
    const Stellung& s = spiel.stellung();
    if (!spiel.menschAmZug()) return liste;
    for (int k = 0; k < kFiguren; ++k) {
        const int von = s.figurplatz[k];
        for (int t = 0; von != 0 && t < kFelder; ++t)
            if (korrekterZug(s.Feld, spiel.amZug(), spiel.sprungfolge(), feldX(von), feldY(von), feldX(t),
                             feldY(t)))
                liste.push_back({k, t});
    }
    if (spiel.sprungfolge().imSprung) liste.push_back({0, -1});
    return liste;
}

inline void ausfuehren(Spiel& spiel, Aktion a) {
    if (a.t < 0)
        spiel.sprungfolgeSchliessen();
    else
        spiel.abgelegt(a.t, a.k);
}

// The player's whole move: one action, or a fox's jumps until the sequence is closed. Empty when the
// player has nothing to do.
inline std::vector<Aktion> menschZieht(Spiel& spiel, Zufall& zufall) {
    std::vector<Aktion> zug;
    do {
        const auto liste = moeglicheAktionen(spiel);
        if (liste.empty()) break;
        zug.push_back(liste[static_cast<std::size_t>(zufall.ziehe(static_cast<int>(liste.size())) - 1)]);
        ausfuehren(spiel, zug.back());
    } while (spiel.sprungfolge().imSprung && !spiel.endeGefunden());
    return zug;
}

// Every file of a folder with its bytes.
inline std::map<std::string, std::vector<unsigned char>> dateien(const TempOrdner& ordner) {
    std::map<std::string, std::vector<unsigned char>> inhalt;
    for (const auto& name : ordner.namen())
        inhalt[name] = ordner.lies(name);
    return inhalt;
}

} // namespace fuh::test
