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
    z_.mitschrift.zuege.back().strafe = strafe.art;
    z_.mitschrift.zuege.back().strafzug = strafe.zug;
    z_.zugregister = strafe.zug;
    ansicht_.meldung(strafe.art == Strafe::Art::einsetzen ? Vorlage::fuchsEingesetzt
                                                          : Vorlage::fuchsAusgeschlossen);
    if (strafe.art != Strafe::Art::letzterFuchs) {
        zug(false);
        return;
    }
    // The last fox would leave the board: no fox moves, and the check finds the game drawn.
    z_.oeff.fuchs_null = true;
    endecheck(fuchs);
}

Meister* Spiel::meister(const std::optional<Spieler>& seite, std::unique_ptr<Meister>& instanz) {
    // A replayed game's choices are given: no search is set up for them.
    if (vorgabe_ || !seite || !seite->meister) return nullptr;
    if (!instanz) {
        instanz = std::make_unique<Meister>(spielerwahl_.meisterSeed);
        instanz->endspieltafeln(tafeln_);
    }
    return instanz.get();
}

// The searching player knows the penalty rule: the game applies it to the foxes whenever the computer
// plays the hens, except in single-move mode.
Zugwahl Spiel::hennenWahl(const Erinnerung& erinnerung, Zufall& zufall, Meister* meister) {
    if (vorgabe_) return vorgabe_->wahl(Seite::Hennen);
    if (meister)
        return meister->berechne({z_.stellung.Feld, henne, z_.partie.spielzug, z_.oeff.einst.Einzelzug == 0,
                                  spielerwahl_.bedenkzeit});
    return berechneHennen(z_.stellung.Feld, erinnerung, zufall);
}

Zugwahl Spiel::fuchsWahl(const Erinnerung& erinnerung, Zufall& zufall, Meister* meister) {
    if (vorgabe_) return vorgabe_->wahl(Seite::Fuchs);
    if (meister)
        return meister->berechne(
            {z_.stellung.Feld, fuchs, z_.partie.spielzug, strafregelGilt(), spielerwahl_.bedenkzeit});
    return berechneFuchs(z_.stellung.Feld, erinnerung, zufall);
}

bool Spiel::strafregelGilt() const {
    return computerSpielt(Seite::Hennen) && z_.oeff.einst.Einzelzug == 0;
}

void Spiel::hennenZiehen() {
    ansicht_.hinweis(Hinweis::h_zug, true);
    z_.mitschrift.beginnen(Seite::Hennen);
    strafeAnwenden(strafregel(z_.stellung.Feld, z_.partie, z_.oeff.einst.Einzelzug));
    const Zugwahl wahl =
        hennenWahl(erinnerung(spielerwahl_.hennen), zufall_, meister(spielerwahl_.hennen, meisterHennen_));
    z_.zugregister = wahl.keinZug() ? Teilzug{} : *wahl.begin();
    if (!wahl.keinZug()) {
        z_.mitschrift.zuege.back().teile.push_back(z_.zugregister);
        zug(true);
    }
    ansicht_.hinweis(Hinweis::h_zug, false);
    endecheck(henne);
}

void Spiel::fuechseZiehen() {
    ansicht_.hinweis(Hinweis::f_zug, true);
    // Without a move the target stays (0, 0), which the end-of-move check reads as "no move".
    z_.zugregister.nachX = 0;
    z_.zugregister.nachY = 0;
    z_.mitschrift.beginnen(Seite::Fuchs);
    const Zugwahl wahl =
        fuchsWahl(erinnerung(spielerwahl_.fuchs), zufall_, meister(spielerwahl_.fuchs, meisterFuchs_));
    for (const Teilzug& sprung : wahl) {
        z_.zugregister = sprung;
        z_.mitschrift.zuege.back().teile.push_back(sprung);
        zug(true);
        ansicht_.hinweis(Hinweis::f_zug, false);
    }
    endecheck(fuchs);
}

bool Spiel::computerZieht() {
    // The move limit always ends a game before its positions run out.
    if (!computerAmZug() || z_.partie.spielzug >= kZugbegrenzung) return false;
    if (vorgabe_ && !vorgabe_->bereit(z_.amZug)) return false;
    const Seite seite = z_.amZug;
    if (seite == Seite::Hennen)
        hennenZiehen();
    else
        fuechseZiehen();
    zugBeendet(seite);
    return true;
}

void Spiel::zugBeendet(Seite seite) {
    // With single-move mode a person moves again instead of the computer; a closed chain of jumps, the
    // hens' opening move and a game of the computer alone still bring the computer's moves.
    if (menschSpielt(seite) && computerSpielt(gegner(seite)) && z_.oeff.einst.Einzelzug != 0) return;
    amZugSetzen(gegner(seite));
}

void Spiel::amZugSetzen(Seite seite) {
    z_.amZug = seite;
    if (spielerwahl_.zweiSpieler) statusTexte(); // two people read whose turn it is there
}

void Spiel::spielBeginnen() {
    amZugSetzen(Seite::Hennen);
    if (selbstspielLaeuft()) {
        if (!schrittweise_)
            while (computerZieht()) {
            }
        return;
    }
    computerZieht(); // computer hens open at once; a person's hens move first
}

} // namespace fuh
