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

bool Spiel::hennenZiehen() {
    ansicht_.hinweis(Hinweis::h_zug, true);
    strafeAnwenden(strafregel(stellung_.Feld, partie_, oeff_.einst.Einzelzug));
    const Zugwahl wahl = berechneHennen(stellung_.Feld, erinnerung(spielerwahl_.hennen), zufall_);
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
    for (const Teilzug& sprung : berechneFuchs(stellung_.Feld, erinnerung(spielerwahl_.fuchs), zufall_)) {
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
