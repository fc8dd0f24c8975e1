// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "player/fuchsspieler.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

#include "board/gewichte.h"
#include "board/regeln.h"
#include "board/sprung.h"
#include "board/zahlen.h"
#include "board/zugliste.h"

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

// One turn of the fox player. It plays its choice on `Feld`, its own board: the live board's copy in
// real play, the hen player's working board in a prediction (where `erinnerung` is null).
class Fuchsrechnung {
  public:
    Fuchsrechnung(Brettfeld& Feld, const Erinnerung* erinnerung, Zufall& zufall)
        : Feld_(Feld), erinnerung_(erinnerung), zufall_(zufall) {}

    Zugwahl berechneFuchs();

  private:
    void scanfuchs();
    void initzugwert() { zugwert_.fill(0); }
    void scan(int x, int y, int i);
    int scanpots(int stufe);
    bool zugDa(int x, int y, int i);
    void zugLeer(int x, int y, int i);
    std::optional<Teilzug> zugAuswahl();
    void psffigzug(int i);
    void eintrag(int i, int wert, int x, int y, int nx, int ny);
    Teilzug eintragZug(int i) const {
        return {zugwert_[5 * i + 1], zugwert_[5 * i + 2], zugwert_[5 * i + 3], zugwert_[5 * i + 4]};
    }
    bool spiele(std::optional<Teilzug> z, Zugwahl& wahl);

    Brettfeld& Feld_;
    const Erinnerung* erinnerung_;
    Zufall& zufall_;
    // Candidate list: 16 entries of value, from x, from y, to x, to y; 0..7 the first fox, 8..15 the second.
    std::array<int16_t, 81> zugwert_{};
    std::array<int16_t, 4> fuchspos_{};
    Brettfeld pots_{};
};

void Fuchsrechnung::eintrag(int i, int wert, int x, int y, int nx, int ny) {
    zugwert_[5 * i] = wrap16(wert);
    zugwert_[5 * i + 1] = static_cast<int16_t>(x);
    zugwert_[5 * i + 2] = static_cast<int16_t>(y);
    zugwert_[5 * i + 3] = static_cast<int16_t>(nx);
    zugwert_[5 * i + 4] = static_cast<int16_t>(ny);
}

void Fuchsrechnung::scanfuchs() {
    int gefunden = 0;
    for (int x = 0; x <= 6 && gefunden < 2; ++x)
        for (int y = 0; y <= 6 && gefunden < 2; ++y)
            if (Feld_[x][y] == fuchs) {
                fuchspos_[2 * gefunden] = static_cast<int16_t>(x);
                fuchspos_[2 * gefunden + 1] = static_cast<int16_t>(y);
                ++gefunden;
            }
}

void Fuchsrechnung::scan(int x, int y, int i) {
    for (int dx = -1; dx <= 1; ++dx)
        for (int dy = -1; dy <= 1; ++dy) {
            if (dx == 0 && dy == 0) continue;
            eintrag(i, issprung(x, y, dx, dy, Feld_), x, y, x + 2 * dx, y + 2 * dy);
            if (zugwert_[5 * i] > 0) zugwert_[5 * i] = wrap16(zugwert_[5 * i] + fangbonus(x + dx, y + dy));
            ++i;
        }
}

int Fuchsrechnung::scanpots(int stufe) {
    int ergebnis = 0;
    if (stufe == 0) {
        for (auto& spalte : pots_)
            spalte.fill(0);
        for (int x = 0; x <= 6; ++x)
            for (int y = 0; y <= 6; ++y) {
                if (Feld_[x][y] != leer) continue;
                for (int dx = -1; dx <= 1; ++dx)
                    for (int dy = -1; dy <= 1; ++dy)
                        if (sprungMoeglich(x, y, dx, dy, Feld_)) {
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
                    if (korrekt(x, y, dx, dy) && Feld_[x + dx][y + dy] == leer) {
                        neu[x + dx][y + dy] = wrap16(neu[x + dx][y + dy] + pots_[x][y]);
                        ergebnis = 1;
                    }
        }
    pots_ = neu;
    return ergebnis;
}

bool Fuchsrechnung::zugDa(int x, int y, int i) {
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

void Fuchsrechnung::zugLeer(int x, int y, int i) {
    for (int dx = -1; dx <= 1; ++dx)
        for (int dy = -1; dy <= 1; ++dy) {
            if (korrekt(x, y, dx, dy) && Feld_[x + dx][y + dy] == leer)
                eintrag(i, fuchsfeldwert[x + dx][y + dy] - fuchsfeldwert[x][y] + kLeerzugBonus, x, y, x + dx,
                        y + dy);
            if (dx != 0 || dy != 0) ++i;
        }
}

// Corrects candidate i by the learned value of the position it leads to (on the trial board psffig).
void Fuchsrechnung::psffigzug(int i) {
    const int v = zugwert_[5 * i];
    Brettfeld psffig = Feld_;
    teilzugAusfuehren(psffig, eintragZug(i));
    const int r = (*erinnerung_)(psffig, fuchs);
    zugwert_[5 * i] = static_cast<int16_t>(std::clamp(v + r, 1, 32767));
}

std::optional<Teilzug> Fuchsrechnung::zugAuswahl() {
    int best = 0, anzahl = 0, gewaehlt = 0;
    for (int k = 0; k < kEintraege; ++k) {
        if (zugwert_[5 * k] >= 1 && erinnerung_) psffigzug(k);
        const int v = zugwert_[5 * k];
        if (v == best && v > 0) ++anzahl;
        if (v > best) {
            best = v;
            anzahl = 1;
            gewaehlt = k;
        }
    }
    if (best <= 0) return std::nullopt;
    if (anzahl > 1) {
        const int r = zufall_.ziehe(anzahl);
        for (int k = 0, n = 0; k < kEintraege; ++k)
            if (zugwert_[5 * k] == best && ++n == r) {
                gewaehlt = k;
                break;
            }
    }
    return eintragZug(gewaehlt);
}

// Plays a chosen move on the board and notes it in the choice; false when nothing was chosen.
bool Fuchsrechnung::spiele(std::optional<Teilzug> z, Zugwahl& wahl) {
    if (!z) return false;
    teilzugAusfuehren(Feld_, *z);
    wahl.anhaengen(*z);
    return true;
}

Zugwahl Fuchsrechnung::berechneFuchs() {
    Zugwahl wahl;
    scanfuchs();
    initzugwert();

    // Jumps: the best one, then further jumps of the same fox as long as it has one.
    scan(fuchspos_[0], fuchspos_[1], 0);
    scan(fuchspos_[2], fuchspos_[3], 8);
    if (spiele(zugAuswahl(), wahl)) {
        do {
            initzugwert();
            const Teilzug& letzter = wahl.zuege[static_cast<std::size_t>(wahl.anzahl - 1)];
            fuchspos_ = {letzter.nachX, letzter.nachY, 0, 0};
            scan(fuchspos_[0], fuchspos_[1], 0);
        } while (spiele(zugAuswahl(), wahl));
        return wahl;
    }

    // Approach: move next to a square from which a hen could be jumped, spreading the potential
    // outwards while no fox stands next to it.
    if (scanpots(0) == 1) {
        for (int durchgang = 1; durchgang <= kPotentialSchritte; ++durchgang) {
            initzugwert();
            const bool erster = zugDa(fuchspos_[0], fuchspos_[1], 0);
            const bool zweiter = zugDa(fuchspos_[2], fuchspos_[3], 8);
            if (erster || zweiter) {
                if (spiele(zugAuswahl(), wahl)) return wahl;
            } else {
                scanpots(1);
            }
        }
    }

    // Plain moves.
    initzugwert();
    zugLeer(fuchspos_[0], fuchspos_[1], 0);
    zugLeer(fuchspos_[2], fuchspos_[3], 8);
    spiele(zugAuswahl(), wahl);
    return wahl;
}
} // namespace

Zugwahl berechneFuchs(const Brettfeld& Feld, const Erinnerung& erinnerung, Zufall& zufall) {
    Brettfeld arbeit = Feld;
    return Fuchsrechnung(arbeit, &erinnerung, zufall).berechneFuchs();
}

void fuchsVorhersage(Brettfeld& Feld, Zufall& zufall) {
    Fuchsrechnung(Feld, nullptr, zufall).berechneFuchs();
}

} // namespace fuh
