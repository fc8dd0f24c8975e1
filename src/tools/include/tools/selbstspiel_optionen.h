// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The command line of the headless driver.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "game/spielerwahl.h"

namespace fuh {

struct Optionen {
    uint64_t spiele = 1;
    int pc = 2;
    int staerke = 1; // 1..3 as the user counts
    bool lernen = false;
    std::optional<uint32_t> seed; // already reduced to 24 bits
    bool protokoll = false;
    bool fortsetzenPruefen = false; // save the game to a file and go on from it before every move
    Spielerwahl spieler;            // --fuchs, --hennen, --bedenkzeit: each side at its own strength
};

// Parses the arguments (without the program name). On a bad argument returns nullopt and sets `fehler`.
std::optional<Optionen> optionenLesen(const std::vector<std::string>& args, std::string& fehler);

} // namespace fuh
