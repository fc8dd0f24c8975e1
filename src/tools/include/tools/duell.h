// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The Meister against the Meister: for every seed two games with the sides swapped, so that neither
// player profits from the side it drew. The players are named by the side they take in a pair's
// first game: F plays the foxes first, H the hens.
#include <chrono>
#include <cstdint>
#include <ostream>
#include <string>

#include "game/spielerwahl.h"
#include "player/endspieltafel.h"
#include "tools/abbruch.h"

namespace fuh {

struct Duellant {
    std::chrono::milliseconds bedenkzeit = Spielerwahl{}.bedenkzeit;
    std::string programm; // another build's selbstspiel, served through --dienen; empty: this build
};

struct DuellOptionen {
    uint64_t ab = 1;      // the first seed
    uint64_t paare = 100; // seeds ab..ab+paare-1
    Duellant f, h;
    Endspieltafeln tafeln; // for this build's Meister
};

// Plays the match and prints one result line per player. Returns a signal that stopped it, or 0; throws
// Gegnerfehler when a player fails or moves against the rules.
int duell(const DuellOptionen& o, const Abbruch& abbruch, std::ostream& aus, std::ostream& fehler,
          std::size_t spalten);

} // namespace fuh
