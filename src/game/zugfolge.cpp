// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Who moves when: the timer serves a requested computer reply; a new game starts play. A computer side
// chooses its move, and the game carries the choice out here.
#include "game/spiel.h"
#include "player/fuchsspieler.h"
#include "player/hennenspieler.h"

namespace fuh {

void Spiel::strafeAnwenden(const Strafe& strafe) {
    if (strafe.art == Strafe::Art::keine) return;
    z_.zugregister = strafe.zug;
    ansicht_.meldung(strafe.art == Strafe::Art::einsetzen ? kFuchsEingesetzt : kFuchsAusgeschlossen);
    if (strafe.art != Strafe::Art::letzterFuchs) {
        zug(false);
        return;
    }
    // The last fox would leave the board: no fox moves, and the check finds the game drawn.
    z_.oeff.fuchs_null = true;
    endecheck(fuchs);
}

Meister* Spiel::meister(const std::optional<Spieler>& seite, std::unique_ptr<Meister>& instanz) {
    if (!seite || !seite->meister) return nullptr;
    if (!instanz) instanz = std::make_unique<Meister>(spielerwahl_.meisterSeed);
    return instanz.get();
}

// The searching player knows the penalty rule: the game applies it to the foxes whenever the computer
// plays the hens, except in single-move mode.
Zugwahl Spiel::hennenWahl(const Erinnerung& erinnerung, Zufall& zufall, Meister* meister) {
    if (meister)
        return meister->berechne({z_.stellung.Feld, henne, z_.partie.spielzug, z_.oeff.einst.Einzelzug == 0,
                                  spielerwahl_.bedenkzeit});
    return berechneHennen(z_.stellung.Feld, erinnerung, zufall);
}

Zugwahl Spiel::fuchsWahl(const Erinnerung& erinnerung, Zufall& zufall, Meister* meister) {
    const Computer PC = z_.oeff.einst.computer();
    const bool strafe = (PC == Computer::hennen || PC == Computer::beide) && z_.oeff.einst.Einzelzug == 0;
    if (meister)
        return meister->berechne(
            {z_.stellung.Feld, fuchs, z_.partie.spielzug, strafe, spielerwahl_.bedenkzeit});
    return berechneFuchs(z_.stellung.Feld, erinnerung, zufall);
}

bool Spiel::hennenZiehen() {
    ansicht_.hinweis(Hinweis::h_zug, true);
    strafeAnwenden(strafregel(z_.stellung.Feld, z_.partie, z_.oeff.einst.Einzelzug));
    const Zugwahl wahl =
        hennenWahl(erinnerung(spielerwahl_.hennen), zufall_, meister(spielerwahl_.hennen, meisterHennen_));
    z_.zugregister = wahl.keinZug() ? Teilzug{} : *wahl.begin();
    if (!wahl.keinZug()) zug(true);
    ansicht_.hinweis(Hinweis::h_zug, false);
    return endecheck(henne);
}

bool Spiel::fuechseZiehen() {
    ansicht_.hinweis(Hinweis::f_zug, true);
    // Without a move the target stays (0, 0), which the end-of-move check reads as "no move".
    z_.zugregister.nachX = 0;
    z_.zugregister.nachY = 0;
    const Zugwahl wahl =
        fuchsWahl(erinnerung(spielerwahl_.fuchs), zufall_, meister(spielerwahl_.fuchs, meisterFuchs_));
    for (const Teilzug& sprung : wahl) {
        z_.zugregister = sprung;
        zug(true);
        ansicht_.hinweis(Hinweis::f_zug, false);
    }
    return endecheck(fuchs);
}

void Spiel::Timer1_Timer() {
    const Anforderung a = z_.pcZug;
    z_.pcZug = Anforderung::keine;
    if (a == Anforderung::hennen) hennenZiehen();
    if (a == Anforderung::fuchs) fuechseZiehen();
}

void Spiel::spielBeginnen() {
    switch (z_.oeff.einst.computer()) {
    case Computer::hennen:
        hennenZiehen();
        break;
    case Computer::beide:
        z_.selbstspielLaeuft = true;
        z_.hennenAmZug = true;
        if (!schrittweise_)
            while (selbstspielZug()) {
            }
        break;
    default:
        break; // the human's hens move first
    }
}

bool Spiel::selbstspielZug() {
    if (!z_.selbstspielLaeuft) return false;
    // The computer plays itself until an end is announced, also one announced inside the hens' turn by
    // the penalty rule; the move limit always supplies one.
    const bool ende = z_.hennenAmZug
                          ? z_.partie.spielzug >= kZugbegrenzung || hennenZiehen() || z_.endeGefunden
                          : fuechseZiehen();
    z_.hennenAmZug = !z_.hennenAmZug;
    if (ende) z_.selbstspielLaeuft = false;
    return z_.selbstspielLaeuft;
}

} // namespace fuh
