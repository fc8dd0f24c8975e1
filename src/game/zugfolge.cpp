// Who moves when: the timer serves a requested computer reply; a new game starts play.
#include "game/spiel.h"

namespace fuh {

bool Spiel::hennenZiehen() {
    hennenspieler_.berechneHennen();
    return endecheck(henne);
}

bool Spiel::fuechseZiehen() {
    fuchsspieler_.berechneFuchs(false, stellung_.Feld);
    return endecheck(fuchs);
}

void Spiel::Timer1_Timer() {
    if (pcZug_ == 1) {
        pcZug_ = 0;
        hennenZiehen();
    } else if (pcZug_ == 2) {
        pcZug_ = 0;
        fuechseZiehen();
    }
}

void Spiel::spielBeginnen() {
    switch (oeff_.einst.PC) {
    case 1:
        hennenZiehen();
        break;
    case 2:
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
