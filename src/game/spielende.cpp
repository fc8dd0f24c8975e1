// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The end-of-move check: record the position, find an end of the game, show the points.
#include "board/gewichte.h"
#include "board/zahlen.h"
#include "game/spiel.h"
#include "spieldaten/bestenliste.h"

namespace fuh {

namespace {
constexpr int kHoechstpunkte = 640; // the foxes' points are this minus the hens' worth

// The message of each end; the move limit ends the game without one.
std::optional<Vorlage> meldung(Endegrund g) {
    switch (g) {
    case Endegrund::hennenImZiel:
        return Vorlage::hennenGewinnen;
    case Endegrund::zuWenigHennen:
        return Vorlage::fuchsGewinnt;
    case Endegrund::hennenOhneZug:
        return Vorlage::fuchsGewinntOhneZug;
    case Endegrund::fuchsOhneZug:
        return Vorlage::remisZiel;
    default:
        return std::nullopt;
    }
}
} // namespace

bool Spiel::endecheck(int16_t figur) {
    bool ergebnis = false;
    z_.partie.pstoSits(z_.stellung.Feld, z_.zugregister);
    if (spielende(figur).enthaelt(Endegrund::zugbegrenzung)) {
        z_.ergebnis = Ergebnis::remis;
        sperren(false); // no move may be recorded past the position table
        z_.mitschrift.ende = Endegrund::zugbegrenzung;
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
    punkteZeigen(punkte());
    if (z_.oeff.sw_spielende) beende();
    return ergebnis;
}

// Announces every end the rules find; the move limit is left to the caller, which announces it last.
Spielausgang Spiel::spielende(int16_t figur) {
    // A side that found no move leaves the destination at (0, 0), and so does the last fox's parking.
    const bool keinZug = z_.zugregister.nachX == 0 && z_.zugregister.nachY == 0;
    const Spielausgang ausgang = spielausgang(z_.stellung.Feld, figur, keinZug, z_.partie.spielzug);
    if (ausgang.anzahl > 0) ansicht_.spielEndet(ausgang);
    const std::optional<Seite> mensch = menschenseite();
    z_.ergebnis = Ergebnis::offen;
    for (const Endegrund g : ausgang) {
        const auto text = meldung(g);
        if (!text) continue;
        const Ergebnis e = ergebnisVon(g);
        z_.ergebnis = e;
        z_.mitschrift.ende = g;
        ansicht_.meldung(*text);
        sperren(false);
        const bool menschGewinnt = (e == Ergebnis::hennen && mensch == Seite::Hennen) ||
                                   (e == Ergebnis::fuchs && mensch == Seite::Fuchs);
        z_.oeff.u_is_sieger = siegFeld(menschGewinnt);
    }
    return ausgang;
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
