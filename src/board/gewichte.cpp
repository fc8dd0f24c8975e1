// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "board/gewichte.h"

namespace fuh {

namespace {
using Zeilen = std::array<std::array<int16_t, 7>, 7>; // written row by row, as on the board

constexpr Brettfeld nachSpalten(const Zeilen& z) {
    Brettfeld b{};
    for (int y = 0; y < 7; ++y)
        for (int x = 0; x < 7; ++x)
            b[x][y] = z[y][x];
    return b;
}
} // namespace

const Brettfeld fangwert = nachSpalten({{{0, 0, 12, 12, 12, 0, 0},
                                         {0, 0, 11, 11, 11, 0, 0},
                                         {6, 8, 10, 10, 10, 8, 6},
                                         {6, 8, 8, 8, 8, 8, 6},
                                         {6, 6, 6, 6, 6, 6, 6},
                                         {0, 0, 4, 4, 4, 0, 0},
                                         {0, 0, 2, 2, 2, 0, 0}}});

const Brettfeld fuchsfeldwert = nachSpalten({{{0, 0, 4, 2, 4, 0, 0},
                                              {0, 0, 4, 9, 4, 0, 0},
                                              {4, 4, 8, 6, 8, 4, 4},
                                              {2, 5, 6, 6, 6, 5, 2},
                                              {2, 1, 5, 3, 5, 1, 2},
                                              {0, 0, 1, 2, 1, 0, 0},
                                              {0, 0, 2, 0, 2, 0, 0}}});

const Brettfeld hennenfeldwert = nachSpalten({{{0, 0, 80, 78, 80, 0, 0},
                                               {0, 0, 60, 60, 60, 0, 0},
                                               {33, 36, 40, 40, 40, 36, 33},
                                               {18, 20, 20, 20, 20, 20, 18},
                                               {9, 9, 9, 9, 9, 9, 9},
                                               {0, 0, 4, 4, 4, 0, 0},
                                               {0, 0, 2, 2, 2, 0, 0}}});

int hennenwert(const Brettfeld& Feld) {
    int s = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (Feld[x][y] == henne) s += hennenfeldwert[x][y];
    return s;
}

} // namespace fuh
