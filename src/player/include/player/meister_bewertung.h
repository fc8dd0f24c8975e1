// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The search's judgement of a quiet position, in points for the hens (the foxes read it negated).

#include "player/meister_brett.h"

namespace fuh::meister {

struct Gewichte {
    int henne = 100;        // every hen up to `satt`
    int satt = 11;          // hens beyond this many are a reserve the hens may give up for progress
    int reserve = 40;       // every hen beyond `satt`
    int hennenMitte = 17;   // where the material term is zero, so that the opening is about even
    int eile = 300;         // percent more worth of progress at the move limit than at the start
    int platz = 100;        // percent of the square table below
    int beweglich = 3;      // every step a fox has
    int fuchsImZiel = 25;   // a fox blocking a square of the target area
    int geparkt = 120;      // a fox taken off by the penalty rule
    int drohung = 30;       // the hens to move face a jump
    int doppeldrohung = 80; // every further hen that can be jumped
    int luecke = 12;        // an empty target square with no hen next to it from below
};

// `spielzug`: positions recorded so far; progress counts for more as the move limit nears.
int bewerte(const Suchbrett& b, const Gewichte& g, int spielzug);

} // namespace fuh::meister
