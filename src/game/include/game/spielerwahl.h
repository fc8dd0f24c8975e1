// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Who plays each side. The settings say which side the computer plays; here a computer side may get its
// own strength (without one it plays at the strength of the settings), or two people share the board.
#include <chrono>
#include <cstdint>
#include <optional>

namespace fuh {

struct Spieler {
    int16_t Staerke = 0;  // 0, 1, 2 for strength 1, 2, 3: which learned-move file the side asks
    bool meister = false; // the searching player instead (it learns and counts as strength 3)
};

struct Spielerwahl {
    std::optional<Spieler> fuchs, hennen;
    bool zweiSpieler = false;                  // two people play each other; the computer plays neither side
    std::chrono::milliseconds bedenkzeit{400}; // the Meister's time per move
    uint32_t meisterSeed = 1;                  // its own random source, for ties only
};

} // namespace fuh
