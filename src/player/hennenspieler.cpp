// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "player/hennenspieler.h"

#include <array>

#include "board/gewichte.h"
#include "board/regeln.h"
#include "board/zahlen.h"
#include "player/fuchsspieler.h"

namespace fuh {

namespace {

constexpr int kLernfaktor = 10;

// A running maximum over the rows: how many rows reach it, and the last of them.
struct Hoechstwert {
    int wert;
    int anzahl = 0;
    int zeile = 0;
    void pruefe(int v, int j) {
        if (v == wert) {
            ++anzahl;
            zeile = j;
        }
        if (v > wert) {
            wert = v;
            anzahl = 1;
            zeile = j;
        }
    }
};

// A hen could move onto (x, y).
bool hzugmoglich(const Brettfeld& psfig, int x, int y) {
    for (int dx = -1; dx <= 1; ++dx)
        for (int dy = 0; dy <= 1; ++dy)
            if (korrekt(x, y, dx, dy) && psfig[x + dx][y + dy] == henne) return true;
    return false;
}

// A fox could jump a hen standing on (x, y).
bool hbedroht(const Brettfeld& psfig, int x, int y) {
    for (int dx = -1; dx <= 1; ++dx)
        for (int dy = -1; dy <= 1; ++dy)
            if (korrekt(x, y, dx, dy) && psfig[x + dx][y + dy] == fuchs && aufGitter(x - dx, y - dy) &&
                psfig[x - dx][y - dy] == leer)
                return true;
    return false;
}

// Row 0 is the position as it stands; rows 1.. the hen moves, each after the predicted fox reply.
struct Kandidaten {
    std::array<Teilzug, kHennenzuege + 1> hzuege{};
    std::array<Hstatus, kHennenzuege + 1> hstatus{};
    int n = 1;
};

// The row to play: the best position, then the most safe room among the tied rows (or among all rows
// when none beats the present position), then chance. Row 0: no move.
int hzugauswahl(const Kandidaten& k, Zufall& zufall) {
    const auto& hstatus = k.hstatus;
    Hoechstwert lage{hstatus[0].lage};
    for (int j = 1; j < k.n; ++j)
        lage.pruefe(hstatus[j].lage, j);
    int w = lage.zeile;
    if (lage.anzahl != 1) {
        const bool unterGleichen = lage.anzahl > 1;
        auto zaehlt = [&](int j) { return !unterGleichen || hstatus[j].lage == lage.wert; };
        Hoechstwert raum{0};
        for (int j = 1; j < k.n; ++j)
            if (zaehlt(j)) raum.pruefe(hstatus[j].raum, j);
        if (raum.anzahl > 0) w = raum.zeile;
        if (raum.anzahl > 1) {
            const int r = zufall.ziehe(raum.anzahl);
            for (int j = 1, gezaehlt = 0; j < k.n; ++j)
                if (zaehlt(j) && hstatus[j].raum == raum.wert && ++gezaehlt == r) {
                    w = j;
                    break;
                }
        }
    }
    return w;
}

} // namespace

Hstatus hstatusScan(const Brettfeld& psfig, const Erinnerung& erinnerung) {
    const int m = erinnerung(psfig, henne);
    int s3 = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (psfig[x][y] == leer && hzugmoglich(psfig, x, y) && !hbedroht(psfig, x, y))
                s3 += hennenfeldwert[x][y];
    return {wrap16(kLernfaktor * m + hennenwert(psfig)), wrap16(kLernfaktor * m + s3)};
}

Zugwahl berechneHennen(const Brettfeld& Feld, const Erinnerung& erinnerung, Zufall& zufall) {
    Kandidaten k;
    k.hstatus[0] = hstatusScan(Feld, erinnerung);
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            for (int dx = -1; dx <= 1; ++dx)
                for (int dy = -1; dy <= 0; ++dy)
                    if (k.n <= kHennenzuege && korrekt(x, y, dx, dy) && Feld[x + dx][y + dy] == leer &&
                        Feld[x][y] == henne) {
                        Brettfeld psfig = Feld;
                        psfig[x][y] = leer;
                        psfig[x + dx][y + dy] = henne;
                        fuchsVorhersage(psfig, zufall);
                        k.hstatus[k.n] = hstatusScan(psfig, erinnerung);
                        k.hzuege[k.n] = {static_cast<int16_t>(x), static_cast<int16_t>(y),
                                         static_cast<int16_t>(x + dx), static_cast<int16_t>(y + dy)};
                        ++k.n;
                    }
    Zugwahl wahl;
    if (const int w = hzugauswahl(k, zufall); w != 0) wahl.anhaengen(k.hzuege[static_cast<std::size_t>(w)]);
    return wahl;
}

} // namespace fuh
