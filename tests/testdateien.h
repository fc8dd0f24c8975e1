// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The byte layouts of the game's data files, written out by hand, and a finished game to list.
#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "spieldaten/oeffentlich.h"
#include "temp_ordner.h"

namespace fuh::test {

inline void le(std::vector<uint8_t>& b, uint64_t wert, int laenge) {
    for (int k = 0; k < laenge; ++k)
        b.push_back(static_cast<uint8_t>(wert >> (8 * k)));
}

// The statistics record.
inline std::vector<uint8_t> zaehlerBytes(const std::array<int16_t, 17>& z) {
    std::vector<uint8_t> b;
    for (const int16_t w : z)
        le(b, static_cast<uint16_t>(w), 2);
    return b;
}

// One high-score record; name and result are blank padded.
inline std::vector<uint8_t> hsSatz(double datum, int16_t score, std::string name, std::string sieg) {
    std::vector<uint8_t> b;
    le(b, std::bit_cast<uint64_t>(datum), 8);
    le(b, static_cast<uint16_t>(score), 2);
    name.resize(15, ' ');
    sieg.resize(4, ' ');
    b.insert(b.end(), name.begin(), name.end());
    b.insert(b.end(), sieg.begin(), sieg.end());
    return b;
}

// A finished game as the high-score lists are handed it.
inline Oeffentlich spielende(int16_t score, const char* sieger = "Ja") {
    Oeffentlich spiel;
    spiel.score = score;
    spiel.u_is_sieger = sieger;
    spiel.sw_spielende = true;
    return spiel;
}

} // namespace fuh::test
