#include "player/strafregel.h"

#include "board/sprung.h"
#include "memory/positionscode.h"

namespace fuh {

namespace {
bool geparkt(int x, int y) {
    return x == feldX(kParkfeld) && y == feldY(kParkfeld);
}

// After a fox jump: a parked fox returns to the first empty square of rows 2..6, column 0 first.
void rueckkehr(Spieltisch& tisch) {
    const Partie& partie = tisch.partieDaten();
    const Fuchsplaetze f = fuchsplaetze(partie.sits[partie.spielzug - 1].code);
    if (!geparkt(f.x1, f.y1) && !geparkt(f.x2, f.y2)) return;
    Stellung& s = tisch.spielstellung();
    for (int x = 0; x <= 6; ++x)
        for (int y = 2; y <= 6; ++y)
            if (s.Feld[x][y] == leer) {
                s.vonX = 0;
                s.vonY = 0;
                s.nachX = static_cast<int16_t>(x);
                s.nachY = static_cast<int16_t>(y);
                tisch.meldung(kFuchsEingesetzt);
                tisch.zug(false);
                return;
            }
}

// Rebuilds the position before the foxes' last move and parks a fox that could have jumped there.
void sitsTopsfig(Spieltisch& tisch) {
    const Partie& partie = tisch.partieDaten();
    Brettfeld psfig{};
    Stellung& s = tisch.spielstellung();
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            psfig[x][y] = s.Feld[x][y] == fuchs ? leer : s.Feld[x][y];

    // The foxes where they stood before their last move, the hens as they stand now.
    const Fuchsplaetze vorher = fuchsplaetze(partie.sits[partie.spielzug - 2].code);
    if (!aufGitter(vorher.x1, vorher.y1) || !aufGitter(vorher.x2, vorher.y2)) return;
    const bool letzterFuchs = geparkt(vorher.x1, vorher.y1) || geparkt(vorher.x2, vorher.y2);
    psfig[vorher.x1][vorher.y1] = fuchs;
    psfig[vorher.x2][vorher.y2] = fuchs;
    const bool A = isjump(psfig, vorher.x1, vorher.y1);
    const bool B = isjump(psfig, vorher.x2, vorher.y2);
    if (!A && !B) return;

    // The foxes are matched by their place in the code, not by which one moved.
    const Fuchsplaetze jetzt = fuchsplaetze(partie.sits[partie.spielzug - 1].code);
    const bool zweiter = !A || (B && jetzt.y2 < jetzt.y1);
    s.vonX = static_cast<int16_t>(zweiter ? jetzt.x2 : jetzt.x1);
    s.vonY = static_cast<int16_t>(zweiter ? jetzt.y2 : jetzt.y1);
    s.nachX = 0;
    s.nachY = 0;
    tisch.meldung(kFuchsAusgeschlossen);
    if (!letzterFuchs) {
        tisch.zug(false);
        return;
    }
    tisch.letzterFuchsAusgeschlossen();
    tisch.endecheck(fuchs);
}
} // namespace

void strafregel(Spieltisch& tisch) {
    const Partie& partie = tisch.partieDaten();
    if (partie.spielzug < 2 || partie.spielzug > kSituationen || tisch.einzelzug() != 0) return;
    if (partie.sits[partie.spielzug - 1].sprung == 1)
        rueckkehr(tisch);
    else
        sitsTopsfig(tisch);
}

} // namespace fuh
