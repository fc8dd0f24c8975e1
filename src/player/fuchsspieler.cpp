#include "player/fuchsspieler.h"

#include <algorithm>
#include <cstdlib>

#include "board/gewichte.h"
#include "board/regeln.h"
#include "board/sprung.h"
#include "board/zahlen.h"

namespace fuh {

namespace {
constexpr int kEintraege = 16;
constexpr int kPotentialSchritte = 6;
constexpr int kLeerzugBonus = 10;
constexpr int kFangVorHennenreihe = 8; // launch squares above a hen are worth more

// Extra worth of capturing a hen in the target area, by its row.
int fangbonus(int x, int y) {
    if (x < 2 || x > 4) return 0;
    switch (y) {
    case 0:
        return 60;
    case 1:
        return 40;
    case 2:
        return 10;
    default:
        return 0;
    }
}
// Moves the fox on a board; a jump also takes the hen it passes over.
void fuchsZiehen(Brettfeld& Feld, int vx, int vy, int nx, int ny) {
    Feld[vx][vy] = leer;
    Feld[nx][ny] = fuchs;
    if (std::abs(nx - vx) == 2 || std::abs(ny - vy) == 2) Feld[vx + (nx - vx) / 2][vy + (ny - vy) / 2] = leer;
}
} // namespace

void Fuchsspieler::eintrag(int i, int wert, int x, int y, int nx, int ny) {
    zugwert_[5 * i] = wrap16(wert);
    zugwert_[5 * i + 1] = static_cast<int16_t>(x);
    zugwert_[5 * i + 2] = static_cast<int16_t>(y);
    zugwert_[5 * i + 3] = static_cast<int16_t>(nx);
    zugwert_[5 * i + 4] = static_cast<int16_t>(ny);
}

void Fuchsspieler::scanfuchs(const Brettfeld& Feld) {
    int gefunden = 0;
    for (int x = 0; x <= 6 && gefunden < 2; ++x)
        for (int y = 0; y <= 6 && gefunden < 2; ++y)
            if (Feld[x][y] == fuchs) {
                fuchspos_[2 * gefunden] = static_cast<int16_t>(x);
                fuchspos_[2 * gefunden + 1] = static_cast<int16_t>(y);
                ++gefunden;
            }
}

void Fuchsspieler::scan(int x, int y, const Brettfeld& Feld, int i) {
    for (int dx = -1; dx <= 1; ++dx)
        for (int dy = -1; dy <= 1; ++dy) {
            if (dx == 0 && dy == 0) continue;
            int wert = issprung(x, y, dx, dy, Feld);
            eintrag(i, wert, x, y, x + 2 * dx, y + 2 * dy);
            if (zugwert_[5 * i] > 0) zugwert_[5 * i] = wrap16(zugwert_[5 * i] + fangbonus(x + dx, y + dy));
            ++i;
        }
}

int Fuchsspieler::scanpots(int stufe, const Brettfeld& Feld) {
    int ergebnis = 0;
    if (stufe == 0) {
        for (auto& spalte : pots_)
            spalte.fill(0);
        for (int x = 0; x <= 6; ++x)
            for (int y = 0; y <= 6; ++y) {
                if (Feld[x][y] != leer) continue;
                for (int dx = -1; dx <= 1; ++dx)
                    for (int dy = -1; dy <= 1; ++dy)
                        if (sprungMoeglich(x, y, dx, dy, Feld)) {
                            pots_[x][y] = wrap16(pots_[x][y] + fangwert[x + dx][y + dy]);
                            ergebnis = 1;
                            if (dy == 1) pots_[x][y] = wrap16(pots_[x][y] + kFangVorHennenreihe);
                        }
            }
        return ergebnis;
    }
    // One spreading step: each square passes its potential on to its empty neighbours and keeps none.
    Brettfeld neu{};
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y) {
            if (pots_[x][y] <= 0) continue;
            for (int dx = -1; dx <= 1; ++dx)
                for (int dy = -1; dy <= 1; ++dy)
                    if (korrekt(x, y, dx, dy) && Feld[x + dx][y + dy] == leer) {
                        neu[x + dx][y + dy] = wrap16(neu[x + dx][y + dy] + pots_[x][y]);
                        ergebnis = 1;
                    }
        }
    pots_ = neu;
    return ergebnis;
}

bool Fuchsspieler::zugDa(int x, int y, int i) {
    bool ergebnis = false;
    for (int dx = -1; dx <= 1; ++dx)
        for (int dy = -1; dy <= 1; ++dy) {
            if (korrekt(x, y, dx, dy) && pots_[x + dx][y + dy] > 0) {
                eintrag(i, fuchsfeldwert[x + dx][y + dy] - fuchsfeldwert[x][y] + pots_[x + dx][y + dy], x, y,
                        x + dx, y + dy);
                ergebnis = true;
            }
            if (dx != 0 || dy != 0) ++i;
        }
    return ergebnis;
}

void Fuchsspieler::zugLeer(int x, int y, int i, const Brettfeld& Feld) {
    for (int dx = -1; dx <= 1; ++dx)
        for (int dy = -1; dy <= 1; ++dy) {
            if (korrekt(x, y, dx, dy) && Feld[x + dx][y + dy] == leer)
                eintrag(i, fuchsfeldwert[x + dx][y + dy] - fuchsfeldwert[x][y] + kLeerzugBonus, x, y, x + dx,
                        y + dy);
            if (dx != 0 || dy != 0) ++i;
        }
}

Brettfeld Fuchsspieler::trans() const {
    return tisch_.spielstellung().Feld;
}

void Fuchsspieler::psffigzug(int i) {
    const int v = zugwert_[5 * i];
    const int fx = zugwert_[5 * i + 1], fy = zugwert_[5 * i + 2];
    const int tx = zugwert_[5 * i + 3], ty = zugwert_[5 * i + 4];
    Brettfeld psffig = trans();
    fuchsZiehen(psffig, fx, fy, tx, ty);
    const int r = tisch_.erinnern(psffig, fuchs);
    zugwert_[5 * i] = static_cast<int16_t>(std::clamp(v + r, 1, 32767));
}

bool Fuchsspieler::zugAuswahl(bool fiktiv) {
    int best = 0, anzahl = 0, gewaehlt = 0;
    for (int k = 0; k < kEintraege; ++k) {
        if (zugwert_[5 * k] >= 1 && !fiktiv) psffigzug(k);
        const int v = zugwert_[5 * k];
        if (v == best && v > 0) ++anzahl;
        if (v > best) {
            best = v;
            anzahl = 1;
            gewaehlt = k;
        }
    }
    if (best <= 0) return false;
    if (anzahl > 1) {
        const int r = tisch_.ziehe(anzahl);
        for (int k = 0, n = 0; k < kEintraege; ++k)
            if (zugwert_[5 * k] == best && ++n == r) {
                gewaehlt = k;
                break;
            }
    }
    Stellung& s = tisch_.spielstellung();
    s.vonX = zugwert_[5 * gewaehlt + 1];
    s.vonY = zugwert_[5 * gewaehlt + 2];
    s.nachX = zugwert_[5 * gewaehlt + 3];
    s.nachY = zugwert_[5 * gewaehlt + 4];
    return true;
}

// Plays the move in the register: for real through zug, in a prediction on the working board.
void Fuchsspieler::spiele(bool fiktiv, Brettfeld& Feld) {
    const Stellung& s = tisch_.spielstellung();
    if (!fiktiv) {
        tisch_.zug(true);
        tisch_.hinweis(Hinweis::f_zug, false);
        return;
    }
    fuchsZiehen(Feld, s.vonX, s.vonY, s.nachX, s.nachY);
}

void Fuchsspieler::berechneFuchs(bool fiktiv, Brettfeld& Feld) {
    if (!fiktiv) tisch_.hinweis(Hinweis::f_zug, true);
    Stellung& s = tisch_.spielstellung();
    s.nachX = 0;
    s.nachY = 0;
    scanfuchs(Feld);
    initzugwert();

    // Jumps: the best one, then further jumps of the same fox as long as it has one.
    scan(fuchspos_[0], fuchspos_[1], Feld, 0);
    scan(fuchspos_[2], fuchspos_[3], Feld, 8);
    if (zugAuswahl(fiktiv)) {
        do {
            spiele(fiktiv, Feld);
            initzugwert();
            fuchspos_ = {s.nachX, s.nachY, 0, 0};
            scan(fuchspos_[0], fuchspos_[1], Feld, 0);
        } while (zugAuswahl(fiktiv));
        return;
    }

    // Approach: move next to a square from which a hen could be jumped, spreading the potential
    // outwards while no fox stands next to it.
    if (scanpots(0, Feld) == 1) {
        for (int durchgang = 1; durchgang <= kPotentialSchritte; ++durchgang) {
            initzugwert();
            const bool erster = zugDa(fuchspos_[0], fuchspos_[1], 0);
            const bool zweiter = zugDa(fuchspos_[2], fuchspos_[3], 8);
            if (erster || zweiter) {
                if (zugAuswahl(fiktiv)) {
                    spiele(fiktiv, Feld);
                    return;
                }
            } else {
                scanpots(1, Feld);
            }
        }
    }

    // Plain moves.
    initzugwert();
    zugLeer(fuchspos_[0], fuchspos_[1], 0, Feld);
    zugLeer(fuchspos_[2], fuchspos_[3], 8, Feld);
    if (zugAuswahl(fiktiv)) spiele(fiktiv, Feld);
}

} // namespace fuh
