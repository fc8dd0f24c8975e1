// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "game/zug.h"

#include <cstdlib>

namespace fuh {

namespace {

// Tells the view where piece k went: a fox to or from the parking square is parked or brought back.
void melden(Ansicht& ansicht, int k, int von, int nach, bool gleitet) {
    if (nach == kParkfeld)
        ansicht.fuchsGeparkt(k, von, gleitet);
    else if (von == kParkfeld)
        ansicht.fuchsZurueck(k, nach, gleitet);
    else
        ansicht.figurGezogen(k, von, nach, gleitet);
}

} // namespace

void zug(Zugumgebung& u, bool normal) {
    Stellung& s = u.stellung;
    const Teilzug& r = u.zugregister;
    auto& Feld = s.Feld;
    if (!aufGitter(r.vonX, r.vonY) || !aufGitter(r.nachX, r.nachY)) return;
    const int von = feldNummer(r.vonX, r.vonY);
    const int k = figur_index(s, von).value_or(0);
    const int t = feldNummer(r.nachX, r.nachY);

    // A person's own pieces snap into place; the computer's glide.
    const int16_t figur = Feld[r.vonX][r.vonY];
    const bool sofort = (figur == fuchs && u.menschFuchs) || (figur == henne && u.menschHennen);
    melden(u.ansicht, k, von, t, !sofort);
    s.figurplatz[k] = static_cast<int16_t>(t);
    Feld[r.nachX][r.nachY] = figur;
    Feld[r.vonX][r.vonY] = leer;
    u.ansicht.zugAusgefuehrt(r.vonX, r.vonY, r.nachX, r.nachY, normal);

    if (figur == henne && imZielfeld(r.nachX, r.nachY)) u.partie.sanktion(1, -1, 0);
    if (!normal) return;

    const int dx = r.nachX - r.vonX;
    const int dy = r.nachY - r.vonY;
    if (std::abs(dx) != 2 && std::abs(dy) != 2) {
        u.sprungfolge.imSprung = false;
        return;
    }
    if (u.menschFuchs) {
        u.sprungfolge = {true, r.nachX, r.nachY};
        u.ansicht.hinweis(Hinweis::spr_msg, true);
    }
    const int mx = r.vonX + dx / 2;
    const int my = r.vonY + dy / 2;
    Feld[mx][my] = leer;
    if (const auto h = figur_index(s, feldNummer(mx, my))) {
        s.figurplatz[*h] = 0;
        u.ansicht.henneGeschlagen(*h, feldNummer(mx, my));
    }
    u.partie.sanktion(-1, 1, 0);
}

} // namespace fuh
