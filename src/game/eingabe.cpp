// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The human's moves: drops of a piece on a square, and the right mouse button closing a jump sequence.
#include "board/regeln.h"
#include "game/spiel.h"

namespace fuh {

void Spiel::platz_DragDrop(int t, int k) {
    if (!z_.bilder.ziehbar || t < 0 || t >= kFelder || k < 0 || k >= kFiguren) return;
    const int von = z_.stellung.figurplatz[k];
    Teilzug& r = z_.zugregister;
    const Teilzug vorher = r;
    r = {static_cast<int16_t>(feldX(von)), static_cast<int16_t>(feldY(von)), static_cast<int16_t>(feldX(t)),
         static_cast<int16_t>(feldY(t))};
    const Computer PC = z_.oeff.einst.computer();
    if (!korrekterZug(z_.stellung.Feld, PC, z_.sprungfolge, r.vonX, r.vonY, r.nachX, r.nachY)) return;
    // A jump that continues a sequence belongs to the move that began it.
    if (!z_.sprungfolge.imSprung) {
        verlauf_.push_back(zustand());
        verlauf_.back().zugregister = vorher;
    }
    zug(true);
    if (endecheck(z_.stellung.Feld[r.nachX][r.nachY])) return;
    if (z_.oeff.einst.Einzelzug != 0) return;
    if (r.nachX == r.vonX && r.nachY == r.vonY) return;
    if (PC == Computer::hennen && !z_.sprungfolge.imSprung)
        z_.pcZug = Anforderung::hennen;
    else if (PC == Computer::fuchs)
        z_.pcZug = Anforderung::fuchs;
}

void Spiel::figur_MouseDown(int /*k*/, Maustaste button) {
    if (button != Maustaste::rechts || !z_.sprungfolge.imSprung) return;
    z_.sprungfolge.imSprung = false;
    ansicht_.hinweis(Hinweis::spr_msg, false);
    z_.pcZug = Anforderung::hennen;
}

} // namespace fuh
