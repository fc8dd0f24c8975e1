// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The human's moves: drops of a piece on a square, and the right mouse button closing a jump sequence.
#include "board/regeln.h"
#include "game/spiel.h"

namespace fuh {

void Spiel::platz_DragDrop(int t, int k) {
    if (!bilder_.ziehbar || t < 0 || t >= kFelder || k < 0 || k >= kFiguren) return;
    const int von = stellung_.figurplatz[k];
    Teilzug& r = zugregister_;
    r = {static_cast<int16_t>(feldX(von)), static_cast<int16_t>(feldY(von)), static_cast<int16_t>(feldX(t)),
         static_cast<int16_t>(feldY(t))};
    const Computer PC = oeff_.einst.computer();
    if (!korrekterZug(stellung_.Feld, PC, sprungfolge_, r.vonX, r.vonY, r.nachX, r.nachY)) return;
    zug(true);
    if (endecheck(stellung_.Feld[r.nachX][r.nachY])) return;
    if (oeff_.einst.Einzelzug != 0) return;
    if (r.nachX == r.vonX && r.nachY == r.vonY) return;
    if (PC == Computer::hennen && !sprungfolge_.imSprung)
        pcZug_ = Anforderung::hennen;
    else if (PC == Computer::fuchs)
        pcZug_ = Anforderung::fuchs;
}

void Spiel::figur_MouseDown(int /*k*/, Maustaste button) {
    if (button != Maustaste::rechts || !sprungfolge_.imSprung) return;
    sprungfolge_.imSprung = false;
    ansicht_.hinweis(Hinweis::spr_msg, false);
    pcZug_ = Anforderung::hennen;
}

} // namespace fuh
