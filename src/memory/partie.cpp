#include "memory/partie.h"

#include <algorithm>
#include <cstdlib>

#include "board/zahlen.h"

namespace fuh {

void Partie::pstoSits(const Stellung& s) {
    if (spielzug < 0 || spielzug >= kSituationen) return;
    Situation& neu = sits[spielzug];
    neu.code = positionscode(s.Feld);
    neu.fuchswert = 0;
    neu.hennenwert = 0;
    neu.sprung = (std::abs(s.vonX - s.nachX) == 2 || std::abs(s.vonY - s.nachY) == 2) ? 1 : 0;
    ++spielzug;
}

void Partie::sanktion(int16_t H, int16_t F, int16_t q) {
    auto buche = [&](int i) {
        sits[i].hennenwert = sat16(sits[i].hennenwert + H);
        sits[i].fuchswert = sat16(sits[i].fuchswert + F);
    };
    const int letzter = std::min<int>(spielzug, kSituationen) - 1;
    if (q == 1) {
        for (int i = letzter; i >= 0; --i)
            buche(i);
        return;
    }
    for (int i = letzter; i >= 1 && i >= spielzug - 5; --i)
        buche(i);
}

} // namespace fuh
