#include "player/hennenspieler.h"

#include "board/gewichte.h"
#include "board/regeln.h"
#include "board/zahlen.h"
#include "player/strafregel.h"

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

} // namespace

void Hennenspieler::psTopsfig() {
    psfig_ = tisch_.spielstellung().Feld;
}

bool Hennenspieler::hzugmoglich(int x, int y) const {
    for (int dx = -1; dx <= 1; ++dx)
        for (int dy = 0; dy <= 1; ++dy)
            if (korrekt(x, y, dx, dy) && psfig_[x + dx][y + dy] == henne) return true;
    return false;
}

bool Hennenspieler::hbedroht(int x, int y) const {
    for (int dx = -1; dx <= 1; ++dx)
        for (int dy = -1; dy <= 1; ++dy)
            if (korrekt(x, y, dx, dy) && psfig_[x + dx][y + dy] == fuchs && aufGitter(x - dx, y - dy) &&
                psfig_[x - dx][y - dy] == leer)
                return true;
    return false;
}

void Hennenspieler::hstatusScan(int k) {
    const int m = tisch_.erinnern(psfig_, henne);
    int s3 = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (psfig_[x][y] == leer && hzugmoglich(x, y) && !hbedroht(x, y)) s3 += hennenfeldwert[x][y];
    hstatus_[k].lage = wrap16(kLernfaktor * m + hennenwert(psfig_));
    hstatus_[k].raum = wrap16(kLernfaktor * m + s3);
}

bool Hennenspieler::hzugauswahl(int n) {
    // Stage 1: keep at least the present position's worth.
    Hoechstwert lage{hstatus_[0].lage};
    for (int j = 1; j < n; ++j)
        lage.pruefe(hstatus_[j].lage, j);
    int w = lage.zeile;
    // Stages 2 and 3: the most safe room, among the tied rows or, failing those, among all rows.
    if (lage.anzahl != 1) {
        const bool unterGleichen = lage.anzahl > 1;
        auto zaehlt = [&](int j) { return !unterGleichen || hstatus_[j].lage == lage.wert; };
        Hoechstwert raum{0};
        for (int j = 1; j < n; ++j)
            if (zaehlt(j)) raum.pruefe(hstatus_[j].raum, j);
        if (raum.anzahl > 0) w = raum.zeile;
        if (raum.anzahl > 1) {
            const int r = tisch_.ziehe(raum.anzahl);
            for (int j = 1, gezaehlt = 0; j < n; ++j)
                if (zaehlt(j) && hstatus_[j].raum == raum.wert && ++gezaehlt == r) {
                    w = j;
                    break;
                }
        }
    }
    Stellung& s = tisch_.spielstellung();
    s.vonX = hzuege_[w][0];
    s.vonY = hzuege_[w][1];
    s.nachX = hzuege_[w][2];
    s.nachY = hzuege_[w][3];
    return w != 0;
}

void Hennenspieler::berechneHennen() {
    tisch_.hinweis(Hinweis::h_zug, true);
    strafregel(tisch_);

    psTopsfig();
    hstatusScan(0);
    const Brettfeld& Feld = tisch_.spielstellung().Feld;
    int k = 1;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            for (int dx = -1; dx <= 1; ++dx)
                for (int dy = -1; dy <= 0; ++dy)
                    if (k <= kHennenzuege && korrekt(x, y, dx, dy) && Feld[x + dx][y + dy] == leer &&
                        Feld[x][y] == henne) {
                        psTopsfig();
                        psfig_[x][y] = leer;
                        psfig_[x + dx][y + dy] = henne;
                        fuchs_.berechneFuchs(true, psfig_);
                        hstatusScan(k);
                        hzuege_[k] = {static_cast<int16_t>(x), static_cast<int16_t>(y),
                                      static_cast<int16_t>(x + dx), static_cast<int16_t>(y + dy)};
                        ++k;
                    }
    if (hzugauswahl(k)) tisch_.zug(true);
    tisch_.hinweis(Hinweis::h_zug, false);
}

} // namespace fuh
