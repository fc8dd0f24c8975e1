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

} // namespace

Fuchslage fuchslage(const Suchbrett& b) {
    const Linien& l = linien();
    Fuchslage lage;
    uint64_t gesehen = 0;
    for (int8_t s : b.fuchsFeld) {
        if (s < 0 || !l.kreuz[s]) continue;
        for (int r = 0; r < 8; ++r) {
            const int8_t t = l.schritt[s][r];
            if (t == kKeiner) continue;
            if (b.f[t] == leer) ++lage.schritte;
            const int8_t ziel = l.sprung[s][r];
            if (ziel != kKeiner && b.f[t] == henne && b.f[ziel] == leer) gesehen |= uint64_t{1} << t;
        }
    }
    lage.bedroht = std::popcount(gesehen);
    return lage;
}

int bewerte(const Suchbrett& b, const Gewichte& g, int spielzug) {
    const Linien& l = linien();
    int platz = 0;
    for (int s = 0; s < kQuadrate; ++s)
        if (b.f[s] == henne) platz += kPlatz[s];
    const int kern = std::min<int>(b.hennen, g.satt), reserve = std::max(0, b.hennen - g.satt);
    const int eile = 100 + g.eile * std::clamp(spielzug, 0, kZugende) / kZugende;
    int wert = (kern - g.hennenMitte) * g.henne + reserve * g.reserve + platz * g.platz / 100 * eile / 100;
    // Target squares that no hen can step onto next are the ones the foxes keep open.
    for (int s = 0; s < kQuadrate; ++s) {
        if (!l.ziel[s] || b.f[s] == henne) continue;
        if (b.f[s] == fuchs) wert -= g.fuchsImZiel;
        bool erreichbar = false;
        for (int r = 0; r < 8 && !erreichbar; ++r) {
            const int8_t t = l.schritt[s][r];
            erreichbar = t != kKeiner && t / 7 >= s / 7 && b.f[t] == henne;
        }
        if (!erreichbar) wert -= g.luecke;
    }
    if (b.geparkt()) wert += g.geparkt;
    const Fuchslage fl = fuchslage(b);
    wert -= fl.schritte * g.beweglich;
    if (!b.fuchsAmZug && fl.bedroht > 0) wert -= g.drohung + (fl.bedroht - 1) * g.doppeldrohung;
    return wert;
}

} // namespace fuh::meister
