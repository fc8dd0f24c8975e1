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
        // The computer plays itself until an end is announced, also one announced inside the hens'
        // turn by the penalty rule; the move limit always supplies one.
        while (partie_.spielzug < kZugbegrenzung) {
            if (hennenZiehen() || endeGefunden_ || fuechseZiehen()) break;
        }
        break;
    default:
        break; // the human's hens move first
    }
}

} // namespace fuh
