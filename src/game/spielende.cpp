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
    z_.partie.pstoSits(z_.stellung.Feld, z_.zugregister);
    spielende(figur);
    if (z_.partie.spielzug == kZugbegrenzung) {
        z_.ergebnis = Ergebnis::remis;
        sperren(false); // no move may be recorded past the position table
        ansicht_.zugbegrenzungErreicht();
    }
    if (z_.ergebnis != Ergebnis::offen) {
        z_.oeff.sw_spielende = true;
        ergebnis = true;
        z_.endeGefunden = true;
        z_.letztesErgebnis = z_.ergebnis;
        // A jump sequence cannot go on after the end; its prompt would only invite a reply.
        if (z_.sprungfolge.imSprung) {
            z_.sprungfolge.imSprung = false;
            ansicht_.hinweis(Hinweis::spr_msg, false);
        }
    }
    const auto p = punkte();
    punkteZeigen(einsetzen(kPunkteText, {p ? std::to_string(*p) : std::string()}));
    if (z_.oeff.sw_spielende) beende();
    return ergebnis;
}

void Spiel::spielende(int16_t figur) {
    int n = 0, z = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (z_.stellung.Feld[x][y] == henne) {
                ++n;
                if (imZielfeld(x, y)) ++z;
            }
    const std::optional<Seite> mensch = menschenseite();
    z_.ergebnis = Ergebnis::offen;
    auto ende = [&](Ergebnis e, const char* text, bool menschGewinnt) {
        z_.ergebnis = e;
        ansicht_.meldung(text);
        sperren(false);
        z_.oeff.u_is_sieger = menschGewinnt ? kSiegJa : kSiegNein;
    };
    if (z == 9) ende(Ergebnis::hennen, kHennenGewinnen, mensch == Seite::Hennen);
    if (n < 9) ende(Ergebnis::fuchs, kFuchsGewinnt, mensch == Seite::Fuchs);
    if (z_.zugregister.nachX == 0 && z_.zugregister.nachY == 0) {
        // The side to move found no move (or the last fox would have been parked).
        if (figur == henne) ende(Ergebnis::fuchs, kFuchsGewinntOhneZug, mensch == Seite::Fuchs);
        if (figur == fuchs) ende(Ergebnis::remis, kRemisZiel, false);
    }
}

std::optional<int16_t> Spiel::punkte() {
    const int s = hennenwert(z_.stellung.Feld);
    // Only a person playing against the computer scores.
    const std::optional<Seite> mensch = menschenseite();
    if (!mensch) return std::nullopt;
    z_.oeff.score = wrap16(*mensch == Seite::Hennen ? s : kHoechstpunkte - s);
    return z_.oeff.score;
}

} // namespace fuh
