// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "player/strafregel.h"

#include "board/regeln.h"
#include "board/sprung.h"
#include "memory/positionscode.h"

namespace fuh {

namespace {
bool geparkt(int x, int y) {
    return x == feldX(kParkfeld) && y == feldY(kParkfeld);
}

// After a fox jump: a parked fox returns to the first empty square of rows 2..6, column 0 first.
Strafe rueckkehr(const Brettfeld& Feld, const Partie& partie) {
    const Fuchsplaetze f = fuchsplaetze(partie.sits[partie.spielzug - 1].code);
    if (!geparkt(f.x1, f.y1) && !geparkt(f.x2, f.y2)) return {};
    for (int x = 0; x <= 6; ++x)
        for (int y = kRueckkehrAbZeile; y <= 6; ++y)
            if (Feld[x][y] == leer)
                return {Strafe::Art::einsetzen, {0, 0, static_cast<int16_t>(x), static_cast<int16_t>(y)}};
    return {};
}

// Rebuilds the position before the foxes' last move and parks a fox that could have jumped there.
Strafe sitsTopsfig(const Brettfeld& Feld, const Partie& partie) {
    Brettfeld psfig{};
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            psfig[x][y] = Feld[x][y] == fuchs ? leer : Feld[x][y];

    // The foxes where they stood before their last move, the hens as they stand now.
    const Fuchsplaetze vorher = fuchsplaetze(partie.sits[partie.spielzug - 2].code);
    if (!aufGitter(vorher.x1, vorher.y1) || !aufGitter(vorher.x2, vorher.y2)) return {};
    const bool letzterFuchs = geparkt(vorher.x1, vorher.y1) || geparkt(vorher.x2, vorher.y2);
    psfig[vorher.x1][vorher.y1] = fuchs;
    psfig[vorher.x2][vorher.y2] = fuchs;
    const bool A = isjump(psfig, vorher.x1, vorher.y1);
    const bool B = isjump(psfig, vorher.x2, vorher.y2);
    if (!A && !B) return {};

    // The foxes are matched by their place in the code, not by which one moved.
    const Fuchsplaetze jetzt = fuchsplaetze(partie.sits[partie.spielzug - 1].code);
    const bool zweiter = !A || (B && jetzt.y2 < jetzt.y1);
    const Teilzug zumParkfeld{static_cast<int16_t>(zweiter ? jetzt.x2 : jetzt.x1),
                              static_cast<int16_t>(zweiter ? jetzt.y2 : jetzt.y1), 0, 0};
    return {letzterFuchs ? Strafe::Art::letzterFuchs : Strafe::Art::parken, zumParkfeld};
}
} // namespace

Strafe strafregel(const Brettfeld& Feld, const Partie& partie, int16_t Einzelzug) {
    if (partie.spielzug < 2 || partie.spielzug > kSituationen || Einzelzug != 0) return {};
    if (partie.sits[partie.spielzug - 1].sprung == 1) return rueckkehr(Feld, partie);
    return sitsTopsfig(Feld, partie);
}

} // namespace fuh
