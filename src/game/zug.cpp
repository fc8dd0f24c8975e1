// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "game/zug.h"

#include <cstdlib>

#include "board/zahlen.h"

namespace fuh {

namespace {
constexpr int kGleitschritte = 100;
}

void gleiten(Figurbilder& bilder, Ansicht& ansicht, int k, int zielLeft, int zielTop) {
    int16_t L0 = wrap16(bilder.left[k]);
    int16_t T0 = wrap16(bilder.top[k]);
    const int16_t dL = wrap16(rundeGerade(wrap16(zielLeft) - L0, kGleitschritte));
    const int16_t dT = wrap16(rundeGerade(wrap16(zielTop) - T0, kGleitschritte));
    for (int i = 1; i <= kGleitschritte; ++i) {
        L0 = wrap16(L0 + dL);
        T0 = wrap16(T0 + dT);
        bilder.left[k] = L0;
        bilder.top[k] = T0;
        ansicht.figurGleitet(k, L0, T0);
    }
}

void zug(Zugumgebung& u, bool normal) {
    Stellung& s = u.stellung;
    const Teilzug& r = u.zugregister;
    auto& Feld = s.Feld;
    if (!aufGitter(r.vonX, r.vonY) || !aufGitter(r.nachX, r.nachY)) return;
    const int von = feldNummer(r.vonX, r.vonY);
    const int k = figur_index(s, von).value_or(0);
    const int t = feldNummer(r.nachX, r.nachY);

    // A person's own pieces snap into place; the computer's slide.
    const int16_t figur = Feld[r.vonX][r.vonY];
    const bool sofort = (figur == fuchs && u.menschFuchs) || (figur == henne && u.menschHennen);
    if (sofort) {
        u.bilder.left[k] = platzLeft(t);
        u.bilder.top[k] = platzTop(t);
        u.ansicht.figurBewegt(k, u.bilder.left[k], u.bilder.top[k]);
    } else {
        gleiten(u.bilder, u.ansicht, k, platzLeft(t), platzTop(t));
    }
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
        u.bilder.sichtbar[*h] = false;
        u.ansicht.figurSichtbar(*h, false);
        s.figurplatz[*h] = 0;
    }
    u.partie.sanktion(-1, 1, 0);
}

} // namespace fuh
