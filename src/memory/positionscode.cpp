// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "memory/positionscode.h"

namespace fuh {

namespace {
constexpr uint8_t kBasis = 64;
}

Code positionscode(const Brettfeld& Feld) {
    Code c{};
    int fx[2] = {0, 0}, fy[2] = {0, 0};
    bool ersterGefunden = false;
    for (int x = 0; x <= 6; ++x) {
        int maske = 0;
        for (int y = 0; y <= 6; ++y) {
            if (Feld[x][y] == henne) maske += 1 << y;
            if (Feld[x][y] == fuchs) {
                const int slot = ersterGefunden ? 1 : 0; // a later fox overwrites the second slot
                fx[slot] = x;
                fy[slot] = y;
                ersterGefunden = true;
            }
        }
        c[x] = static_cast<uint8_t>(kBasis + maske);
    }
    c[7] = static_cast<uint8_t>(kBasis + fx[0]);
    c[8] = static_cast<uint8_t>(kBasis + fy[0]);
    c[9] = static_cast<uint8_t>(kBasis + fx[1]);
    c[10] = static_cast<uint8_t>(kBasis + fy[1]);
    return c;
}

Code spiegelcode(const Code& c) {
    Code m{};
    for (int i = 0; i < 7; ++i)
        m[i] = c[6 - i];
    m[7] = c[9];
    m[8] = c[10];
    m[9] = c[7];
    m[10] = c[8];
    return m;
}

Fuchsplaetze fuchsplaetze(const Code& c) {
    return {c[7] - kBasis, c[8] - kBasis, c[9] - kBasis, c[10] - kBasis};
}

} // namespace fuh
