// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The game's public variables: all that the other windows read and write of the running game.
#include <cstdint>
#include <string>

#include "board/regeln.h"
#include "board/text.h"

namespace fuh {

// The four settings; kept as read from the settings file, so any value must be handled safely.
struct Einstellungen {
    int16_t PC = 0;        // 0 the computer plays the foxes, 1 the hens, 2 both
    int16_t Staerke = 0;   // 0, 1, 2 for strength 1, 2, 3
    int16_t Lernmodus = 0; // 1 learning mode
    int16_t Einzelzug = 0; // 1 single-move mode

    Computer computer() const { return static_cast<Computer>(PC); }
    friend bool operator==(const Einstellungen&, const Einstellungen&) = default;
};

struct Oeffentlich {
    Einstellungen einst;
    int16_t score = 0;                // points of the human side
    std::string u_is_sieger = "    "; // "Ja", "Nein" (German in every language) or four blanks
    bool fuchs_null = false;          // the penalty rule would have parked the last fox
    bool sw_spielende = false;        // a finished game may still be entered in a high-score list
    friend bool operator==(const Oeffentlich&, const Oeffentlich&) = default;
};

} // namespace fuh
