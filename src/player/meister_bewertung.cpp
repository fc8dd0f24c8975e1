// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "player/meister_bewertung.h"

#include <algorithm>
#include <bit>

namespace fuh::meister {

namespace {

constexpr int kZugende = kZugbegrenzung; // the hens hurry more as the move limit nears

// Row by row from the top; squares off the cross hold 0. The target area is worth most, the upper
// rows most of all because they are filled last and can only be reached through the lower ones.
constexpr std::array<int, kQuadrate> kPlatz = {
    0,  0,  62, 60, 62, 0,  0,  //
    0,  0,  55, 55, 55, 0,  0,  //
    14, 20, 46, 46, 46, 20, 14, //
    8,  12, 22, 24, 22, 12, 8,  //
    3,  5,  9,  10, 9,  5,  3,  //
    0,  0,  3,  3,  3,  0,  0,  //
    0,  0,  0,  0,  0,  0,  0,  //
};

struct Fuchslage {
    int bedroht = 0;  // hens a fox can jump
    int schritte = 0; // steps the foxes have, a square counted once for each fox
};

Fuchslage fuchslage(const Suchbrett& b) {
    const Linien& l = linien();
    const uint64_t leer = b.leereFelder();
    Fuchslage lage;
    uint64_t gesehen = 0;
    for (int8_t s : b.fuchsFeld) {
        if (s < 0 || !l.kreuz[s]) continue;
        lage.schritte += std::popcount(l.nachbarn[s] & leer);
        gesehen |= b.springbar(s);
    }
    lage.bedroht = std::popcount(gesehen);
    return lage;
}

} // namespace

int bewerte(const Suchbrett& b, const Gewichte& g, int spielzug) {
    const Linien& l = linien();
    int platz = 0;
    for (uint64_t m = b.hennenMaske; m != 0; m &= m - 1)
        platz += kPlatz[std::countr_zero(m)];
    const int kern = std::min<int>(b.hennen, g.satt), reserve = std::max(0, b.hennen - g.satt);
    const int eile = 100 + g.eile * std::clamp(spielzug, 0, kZugende) / kZugende;
    int wert = (kern - g.hennenMitte) * g.henne + reserve * g.reserve + platz * g.platz / 100 * eile / 100;
    // Target squares that no hen can step onto next are the ones the foxes keep open.
    for (uint64_t m = l.zielMaske & ~b.hennenMaske; m != 0; m &= m - 1) {
        const int s = std::countr_zero(m);
        if (b.f[s] == fuchs) wert -= g.fuchsImZiel;
        if ((l.herkunft[s] & b.hennenMaske) == 0) wert -= g.luecke;
    }
    if (b.geparkt()) wert += g.geparkt;
    const Fuchslage fl = fuchslage(b);
    wert -= fl.schritte * g.beweglich;
    if (!b.fuchsAmZug && fl.bedroht > 0) wert -= g.drohung + (fl.bedroht - 1) * g.doppeldrohung;
    return wert;
}

} // namespace fuh::meister
