// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "player/meister_suche.h"

#include <algorithm>
#include <utility>

namespace fuh::meister {

namespace {
constexpr int kUnendlich = kMatt + 1;
constexpr int kTtZug = 1 << 30, kKiller1 = 1 << 28, kKiller2 = (1 << 28) - 1, kSprungnote = 1 << 29;

int zumSpeichern(int wert, int ply) {
    return wert > kEntschieden ? wert + ply : wert < -kEntschieden ? wert - ply : wert;
}
int ausDemSpeicher(int wert, int ply) {
    return wert > kEntschieden ? wert - ply : wert < -kEntschieden ? wert + ply : wert;
}
// The stored value settles the node: exact, or a bound beyond the window.
bool entscheidet(const Eintrag& e, int alpha, int beta, int ply) {
    const int w = ausDemSpeicher(e.wert, ply);
    return e.art == Grenze::genau || (e.art == Grenze::unten && w >= beta) ||
           (e.art == Grenze::oben && w <= alpha);
}
bool passt(const Eintrag& e, const Suchzug& z) {
    return e.von == z.von && e.spruenge == z.spruenge && e.nach == z.ende();
}
} // namespace

bool Suche::zeitUm() {
    if (!halt_ && zeit_.um(knoten_)) halt_ = true;
    return halt_;
}

int Suche::statisch(const Suchbrett& b, int spielzug) const {
    const int w = bewerte(b, gewichte, spielzug);
    return b.fuchsAmZug ? -w : w;
}

// The game's checks after a move, from the mover's side: true and `wert` when the game has ended.
bool Suche::nachZug(const Suchbrett& kind, Folge folge, int spielzug, int ply, int& wert) const {
    const bool henneZog = kind.fuchsAmZug;
    if (spielzug >= kZugbegrenzung || folge == Folge::letzterFuchs) {
        wert = remis(!kind.fuchsAmZug);
        return true;
    }
    if ((henneZog && kind.imZiel == 9) || (!henneZog && kind.hennen < 9)) {
        wert = kMatt - ply - 1;
        return true;
    }
    return false;
}

// Fox jumps only, so that the horizon does not hide a capture; the hens' side is judged as it stands.
int Suche::ruhe(const Suchbrett& b, int alpha, int beta, int ply, int spielzug) {
    ++knoten_;
    if (zeitUm()) return 0;
    const int stehen = statisch(b, spielzug);
    if (!b.fuchsAmZug || ply >= kPlies - 1) return stehen;
    Suchzug* zuege = zuege_[ply].data();
    const int n = b.fuchszuege(zuege, true);
    if (n == 0) return stehen;
    // Passing up a jump costs the fox under the penalty rule, so standing pat is no option there.
    int best = auftrag_.strafregel ? -kUnendlich : stehen;
    if (best >= beta) return best;
    alpha = std::max(alpha, best);
    for (int i = 0; i < n; ++i) {
        Suchbrett kind = b;
        const Folge folge = kind.ziehe(zuege[i], auftrag_.strafregel);
        int wert = 0;
        if (!nachZug(kind, folge, spielzug + 1, ply, wert)) wert = -statisch(kind, spielzug + 1);
        if (wert > best) best = wert;
        if (best > alpha) alpha = best;
        if (alpha >= beta) break;
    }
    return best;
}

void Suche::ordne(const Suchbrett& b, int ply, int n, const Eintrag* e) {
    const int seite = b.fuchsAmZug ? 1 : 0;
    for (int i = 0; i < n; ++i) {
        const Suchzug& z = zuege_[ply][i];
        int note = historie_[seite][z.von][z.ende()];
        if (e && passt(*e, z))
            note = kTtZug;
        else if (z.spruenge > 0)
            note = kSprungnote + z.spruenge;
        else if (z.gleich(killer_[ply][0]))
            note = kKiller1;
        else if (z.gleich(killer_[ply][1]))
            note = kKiller2;
        noten_[ply][i] = note;
    }
}

// Brings the best-rated of the moves from `von` on to place `von`.
int Suche::waehle(int ply, int von, int n) {
    int beste = von;
    for (int i = von + 1; i < n; ++i)
        if (noten_[ply][i] > noten_[ply][beste]) beste = i;
    std::swap(zuege_[ply][von], zuege_[ply][beste]);
    std::swap(noten_[ply][von], noten_[ply][beste]);
    return von;
}

void Suche::merke(const Suchbrett& b, int ply, const Suchzug& z, int tiefe) {
    if (z.spruenge > 0) return;
    if (!z.gleich(killer_[ply][0])) {
        killer_[ply][1] = killer_[ply][0];
        killer_[ply][0] = z;
    }
    int& h = historie_[b.fuchsAmZug ? 1 : 0][z.von][z.ende()];
    h = std::min(h + tiefe * tiefe, 1 << 20);
}

void Suche::speichere(const Suchbrett& b, const Suchzug& z, int wert, Grenze art, int tiefe, int ply,
                      int rest) {
    Eintrag neu;
    neu.schluessel = b.schluessel;
    neu.wert = static_cast<int16_t>(zumSpeichern(wert, ply));
    neu.tiefe = static_cast<int8_t>(tiefe);
    neu.art = art;
    neu.von = z.von;
    neu.nach = z.ende();
    neu.spruenge = z.spruenge;
    neu.rest = static_cast<uint8_t>(std::clamp(rest, 0, 255));
    tt_.speichere(neu);
}

int Suche::ab(const Suchbrett& b, int tiefe, int alpha, int beta, int ply, int spielzug) {
    if (int wert = 0; auftrag_.tafel && tafelWert(b, ply, spielzug, wert)) {
        ++knoten_;
        return wert;
    }
    if (tiefe <= 0 || ply >= kPlies - 1) return ruhe(b, alpha, beta, ply, spielzug);
    ++knoten_;
    if (zeitUm()) return 0;
    const int rest = kZugbegrenzung - spielzug;
    const Eintrag* e = tt_.finde(b.schluessel, rest);
    if (e && e->tiefe >= tiefe && entscheidet(*e, alpha, beta, ply)) return ausDemSpeicher(e->wert, ply);
    const int n = b.fuchsAmZug ? b.fuchszuege(zuege_[ply].data()) : b.hennenzuege(zuege_[ply].data());
    if (n == 0) {
        // No move: the hens lose, the foxes draw; the check still counts towards the move limit.
        if (spielzug + 1 >= kZugbegrenzung || b.fuchsAmZug) return remis(b.fuchsAmZug);
        return -(kMatt - ply);
    }
    ordne(b, ply, n, e);
    const int alphaAnfang = alpha;
    int best = -kUnendlich, besterIndex = 0;
    for (int i = 0; i < n; ++i) {
        waehle(ply, i, n);
        const Suchzug z = zuege_[ply][i];
        Suchbrett kind = b;
        const Folge folge = kind.ziehe(z, auftrag_.strafregel);
        int wert = 0;
        if (!nachZug(kind, folge, spielzug + 1, ply, wert)) {
            if (i == 0) {
                wert = -ab(kind, tiefe - 1, -beta, -alpha, ply + 1, spielzug + 1);
            } else {
                wert = -ab(kind, tiefe - 1, -alpha - 1, -alpha, ply + 1, spielzug + 1);
                if (wert > alpha && wert < beta && !halt_)
                    wert = -ab(kind, tiefe - 1, -beta, -alpha, ply + 1, spielzug + 1);
            }
        }
        if (halt_) return 0;
        if (wert > best) {
            best = wert;
            besterIndex = i;
        }
        if (best > alpha) alpha = best;
        if (alpha >= beta) {
            merke(b, ply, z, tiefe);
            break;
        }
    }
    const Grenze art = best <= alphaAnfang ? Grenze::oben : best >= beta ? Grenze::unten : Grenze::genau;
    speichere(b, zuege_[ply][besterIndex], best, art, tiefe, ply, rest);
    return best;
}

// One pass over the root moves at the given depth; the best move found is put first. Returns its value,
// or -kUnendlich when the clock stopped the pass before any move was searched to the end.
int Suche::iteration(int tiefe, int n, int alpha, int beta) {
    int best = -kUnendlich, besterIndex = -1;
    for (int i = 0; i < n; ++i) {
        Suchbrett kind = auftrag_.brett;
        const Folge folge = kind.ziehe(zuege_[0][i], auftrag_.strafregel);
        int wert = 0;
        const int sz = auftrag_.spielzug + 1;
        if (!nachZug(kind, folge, sz, 0, wert)) {
            if (i == 0) {
                wert = -ab(kind, tiefe - 1, -beta, -alpha, 1, sz);
            } else {
                wert = -ab(kind, tiefe - 1, -alpha - 1, -alpha, 1, sz);
                if (wert > alpha && wert < beta && !halt_) wert = -ab(kind, tiefe - 1, -beta, -alpha, 1, sz);
            }
        }
        if (halt_) break;
        if (wert > best) {
            best = wert;
            besterIndex = i;
            alpha = std::max(alpha, best);
        }
    }
    if (besterIndex > 0)
        std::rotate(zuege_[0].begin(), zuege_[0].begin() + besterIndex, zuege_[0].begin() + besterIndex + 1);
    return best;
}

Ergebnis Suche::wurzel(const Auftrag& a, Zufall& zufall) {
    auftrag_ = a;
    wurzelFuchs_ = a.brett.fuchsAmZug;
    zeit_ = Zeitplan(a.start, a.budget, a.knotenGrenze);
    halt_ = false;
    knoten_ = 0;
    killer_ = {};
    for (auto& seite : historie_)
        for (auto& zeile : seite)
            for (int& h : zeile)
                h /= 8;
    Ergebnis erg;
    const Suchbrett& b = a.brett;
    const int n = b.fuchsAmZug ? b.fuchszuege(zuege_[0].data()) : b.hennenzuege(zuege_[0].data());
    if (n == 0) return erg;
    // Equal moves are taken in a random order, so that ties are broken at random.
    for (int i = n - 1; i > 0; --i)
        std::swap(zuege_[0][i], zuege_[0][zufall.ziehe(i + 1) - 1]);
    erg.gefunden = true;
    erg.zug = zuege_[0][0];
    if (n == 1) return erg;
    if (auftrag_.tafel && tafelzug(n, erg)) return erg;
    for (int tiefe = 1; tiefe < kPlies - 1; ++tiefe) {
        const int wert = iteration(tiefe, n, -kUnendlich, kUnendlich);
        if (wert > -kUnendlich) {
            erg.zug = zuege_[0][0];
            erg.wert = wert;
        }
        if (halt_) break;
        erg.tiefe = tiefe;
        const bool entschieden = wert > kEntschieden || wert < -kEntschieden;
        const bool tiefGenug = a.tiefenGrenze != 0 && tiefe >= a.tiefenGrenze;
        if (entschieden || tiefGenug || !zeit_.naechsteTiefe(knoten_)) break;
    }
    erg.knoten = knoten_;
    return erg;
}

} // namespace fuh::meister
