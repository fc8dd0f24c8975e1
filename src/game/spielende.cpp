// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The end-of-move check: record the position, find an end of the game, show the points.
#include "board/gewichte.h"
#include "board/zahlen.h"
#include "game/spiel.h"
#include "game/texte.h"

namespace fuh {

namespace {
constexpr int kHoechstpunkte = 640; // the foxes' points are this minus the hens' worth
}

bool Spiel::endecheck(int16_t figur) {
    bool ergebnis = false;
    partie_.pstoSits(stellung_.Feld, zugregister_);
    spielende(figur);
    if (partie_.spielzug == kZugbegrenzung) {
        ergebnis_ = Ergebnis::remis;
        sperren(false); // no move may be recorded past the position table
        ansicht_.zugbegrenzungErreicht();
    }
    if (ergebnis_ != Ergebnis::offen) {
        oeff_.sw_spielende = true;
        ergebnis = true;
        endeGefunden_ = true;
        letztesErgebnis_ = ergebnis_;
        // A jump sequence cannot go on after the end; its prompt would only invite a reply.
        if (sprungfolge_.imSprung) {
            sprungfolge_.imSprung = false;
            ansicht_.hinweis(Hinweis::spr_msg, false);
        }
    }
    const auto p = punkte();
    ansicht_.status(Statusfeld::punkte, einsetzen(kPunkteText, {p ? std::to_string(*p) : std::string()}));
    if (oeff_.sw_spielende) beende();
    return ergebnis;
}

void Spiel::spielende(int16_t figur) {
    int n = 0, z = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (stellung_.Feld[x][y] == henne) {
                ++n;
                if (imZielfeld(x, y)) ++z;
            }
    const Computer PC = oeff_.einst.computer();
    ergebnis_ = Ergebnis::offen;
    auto ende = [&](Ergebnis e, const char* text, bool menschGewinnt) {
        ergebnis_ = e;
        ansicht_.meldung(text);
        sperren(false);
        oeff_.u_is_sieger = menschGewinnt ? kSiegJa : kSiegNein;
    };
    if (z == 9) ende(Ergebnis::hennen, kHennenGewinnen, PC == Computer::fuchs);
    if (n < 9) ende(Ergebnis::fuchs, kFuchsGewinnt, PC == Computer::hennen);
    if (zugregister_.nachX == 0 && zugregister_.nachY == 0) {
        // The side to move found no move (or the last fox would have been parked).
        if (figur == henne) ende(Ergebnis::fuchs, kFuchsGewinntOhneZug, PC == Computer::hennen);
        if (figur == fuchs) ende(Ergebnis::remis, kRemisZiel, false);
    }
}

std::optional<int16_t> Spiel::punkte() {
    const int s = hennenwert(stellung_.Feld);
    switch (oeff_.einst.computer()) {
    case Computer::fuchs:
        oeff_.score = wrap16(s);
        return oeff_.score;
    case Computer::hennen:
        oeff_.score = wrap16(kHoechstpunkte - s);
        return oeff_.score;
    default:
        return std::nullopt;
    }
}

} // namespace fuh
