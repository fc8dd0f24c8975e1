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
    zugregister_ = strafe.zug;
    ansicht_.meldung(strafe.art == Strafe::Art::einsetzen ? kFuchsEingesetzt : kFuchsAusgeschlossen);
    if (strafe.art != Strafe::Art::letzterFuchs) {
        zug(false);
        return;
    }
    // The last fox would leave the board: no fox moves, and the check finds the game drawn.
    oeff_.fuchs_null = true;
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
        return meister->berechne(
            {stellung_.Feld, henne, partie_.spielzug, oeff_.einst.Einzelzug == 0, spielerwahl_.bedenkzeit});
    return berechneHennen(stellung_.Feld, erinnerung, zufall);
}

Zugwahl Spiel::fuchsWahl(const Erinnerung& erinnerung, Zufall& zufall, Meister* meister) {
    const Computer PC = oeff_.einst.computer();
    const bool strafe = (PC == Computer::hennen || PC == Computer::beide) && oeff_.einst.Einzelzug == 0;
    if (meister)
        return meister->berechne({stellung_.Feld, fuchs, partie_.spielzug, strafe, spielerwahl_.bedenkzeit});
    return berechneFuchs(stellung_.Feld, erinnerung, zufall);
}

bool Spiel::hennenZiehen() {
    ansicht_.hinweis(Hinweis::h_zug, true);
    strafeAnwenden(strafregel(stellung_.Feld, partie_, oeff_.einst.Einzelzug));
    const Zugwahl wahl =
        hennenWahl(erinnerung(spielerwahl_.hennen), zufall_, meister(spielerwahl_.hennen, meisterHennen_));
    zugregister_ = wahl.keinZug() ? Teilzug{} : *wahl.begin();
    if (!wahl.keinZug()) zug(true);
    ansicht_.hinweis(Hinweis::h_zug, false);
    return endecheck(henne);
}

bool Spiel::fuechseZiehen() {
    ansicht_.hinweis(Hinweis::f_zug, true);
    // Without a move the target stays (0, 0), which the end-of-move check reads as "no move".
    zugregister_.nachX = 0;
    zugregister_.nachY = 0;
    const Zugwahl wahl =
        fuchsWahl(erinnerung(spielerwahl_.fuchs), zufall_, meister(spielerwahl_.fuchs, meisterFuchs_));
    for (const Teilzug& sprung : wahl) {
        zugregister_ = sprung;
        zug(true);
        ansicht_.hinweis(Hinweis::f_zug, false);
    }
    return endecheck(fuchs);
}

void Spiel::Timer1_Timer() {
    const Anforderung a = pcZug_;
    pcZug_ = Anforderung::keine;
    if (a == Anforderung::hennen) hennenZiehen();
    if (a == Anforderung::fuchs) fuechseZiehen();
}

void Spiel::spielBeginnen() {
    switch (oeff_.einst.computer()) {
    case Computer::hennen:
        hennenZiehen();
        break;
    case Computer::beide:
        selbstspielLaeuft_ = true;
        hennenAmZug_ = true;
        if (!schrittweise_)
            while (selbstspielZug()) {
            }
        break;
    default:
        break; // the human's hens move first
    }
}

bool Spiel::selbstspielZug() {
    if (!selbstspielLaeuft_) return false;
    // The computer plays itself until an end is announced, also one announced inside the hens' turn by
    // the penalty rule; the move limit always supplies one.
    const bool ende = hennenAmZug_ ? partie_.spielzug >= kZugbegrenzung || hennenZiehen() || endeGefunden_
                                   : fuechseZiehen();
    hennenAmZug_ = !hennenAmZug_;
    if (ende) selbstspielLaeuft_ = false;
    return selbstspielLaeuft_;
}

} // namespace fuh
