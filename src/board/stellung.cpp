// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "board/stellung.h"

namespace fuh {

namespace {
constexpr std::array<int16_t, kFiguren> kStartplaetze = {16, 18, 21, 22, 23, 24, 25, 26, 27, 28, 29,
                                                         30, 31, 32, 33, 34, 37, 38, 39, 44, 45, 46};
}

void Stellung::grundstellung() {
    Feld = {};
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (aufKreuz(x, y)) Feld[x][y] = y >= 3 ? henne : leer;
    Feld[2][2] = fuchs;
    Feld[4][2] = fuchs;
    figurplatz.fill(0);
    for (int k = 0; k < kFiguren; ++k)
        figurplatz[k] = kStartplaetze[k];
}

std::optional<int> figur_index(const Stellung& s, int wert) {
    for (int k = 0; k < kFiguren; ++k)
        if (s.figurplatz[k] == wert) return k;
    return std::nullopt;
}

} // namespace fuh
