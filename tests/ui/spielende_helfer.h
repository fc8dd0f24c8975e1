// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A finished game as the high-score windows are handed it.
#include <cstdint>

#include "spieldaten/oeffentlich.h"

namespace fuh::test {

inline Oeffentlich spielende(int16_t score, const char* sieger = "Ja") {
    Oeffentlich spiel;
    spiel.score = score;
    spiel.u_is_sieger = sieger;
    spiel.sw_spielende = true;
    return spiel;
}

} // namespace fuh::test
