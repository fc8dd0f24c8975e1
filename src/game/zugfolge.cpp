// Who moves when: the timer serves a requested computer reply; a new game starts play.
#include "game/spiel.h"

namespace fuh {

void Spiel::Timer1_Timer() {
    if (pcZug_ == 1) {
        pcZug_ = 0;
        hennenspieler_.berechneHennen();
        endecheck(henne);
    } else if (pcZug_ == 2) {
        pcZug_ = 0;
        fuchsspieler_.berechneFuchs(false, stellung_.Feld);
        endecheck(fuchs);
    }
}

void Spiel::spielBeginnen() {
    switch (oeff_.einst.PC) {
    case 1:
        hennenspieler_.berechneHennen();
        endecheck(henne);
        break;
    case 2:
        // The computer plays itself until an end is announced, also one announced inside the hens'
        // turn by the penalty rule; the move limit always supplies one.
        while (partie_.spielzug < kZugbegrenzung) {
            hennenspieler_.berechneHennen();
            if (endecheck(henne) || endeGefunden_) break;
            fuchsspieler_.berechneFuchs(false, stellung_.Feld);
            if (endecheck(fuchs)) break;
        }
        break;
    default:
        break; // the human's hens move first
    }
}

} // namespace fuh
