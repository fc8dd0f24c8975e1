// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// A person's moves: drops of a piece on a square, and the right mouse button closing a jump sequence.
#include "board/regeln.h"
#include "game/spiel.h"

namespace fuh {

void Spiel::abgelegt(int t, int k) {
    if (!menschAmZug() || t < 0 || t >= kFelder || k < 0 || k >= kFiguren) return;
    const int von = z_.stellung.figurplatz[k];
    Teilzug& r = z_.zugregister;
    const Teilzug vorher = r;
    r = {static_cast<int16_t>(feldX(von)), static_cast<int16_t>(feldY(von)), static_cast<int16_t>(feldX(t)),
         static_cast<int16_t>(feldY(t))};
    // Every drop, a refused one too, stays in the move register (a fox without a move reads its origin).
    if (!korrekterZug(z_.stellung.Feld, z_.amZug, z_.sprungfolge, r.vonX, r.vonY, r.nachX, r.nachY)) return;
    // A jump that continues a sequence belongs to the move that began it.
    if (!z_.sprungfolge.imSprung) {
        verlauf_.push_back(zustand());
        verlauf_.back().zugregister = vorher;
        wiederholbar_.clear(); // a different move: what was taken back cannot come back
        z_.mitschrift.beginnen(z_.amZug);
    }
    z_.mitschrift.zuege.back().teile.push_back(r);
    zug(true);
    if (endecheck(z_.stellung.Feld[r.nachX][r.nachY])) return;
    // A fox's chain of jumps stays open until the person closes it.
    if (!z_.sprungfolge.imSprung) zugBeendet(z_.amZug);
}

std::vector<int> Spiel::ziele(int von) const {
    std::vector<int> frei;
    if (!menschAmZug() || von <= 0 || von >= kFelder) return frei;
    const int x = feldX(von), y = feldY(von);
    for (int t = 0; t < kFelder; ++t)
        if (korrekterZug(z_.stellung.Feld, z_.amZug, z_.sprungfolge, x, y, feldX(t), feldY(t)))
            frei.push_back(t);
    return frei;
}

void Spiel::sprungfolgeSchliessen() {
    if (!menschAmZug() || !z_.sprungfolge.imSprung) return;
    z_.sprungfolge.imSprung = false;
    ansicht_.hinweis(Hinweis::spr_msg, false);
    amZugSetzen(Seite::Hennen); // also in single-move mode: closing a chain asks for the hens' reply
}

} // namespace fuh
