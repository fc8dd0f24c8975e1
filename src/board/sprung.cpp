// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "board/sprung.h"

#include "board/gewichte.h"
#include "board/regeln.h"
#include "board/zahlen.h"

namespace fuh {

bool sprungMoeglich(int x, int y, int a, int b, const Brettfeld& Feld) {
    return korrekt(x, y, 2 * a, 2 * b) && Feld[x + 2 * a][y + 2 * b] == leer && Feld[x + a][y + b] == henne;
}

namespace {
// The captured hen's worth plus the fox's gain in position.
int16_t sprungwert(int x, int y, int a, int b) {
    return wrap16(fangwert[x + a][y + b] - fuchsfeldwert[x][y] + fuchsfeldwert[x + 2 * a][y + 2 * b]);
}
} // namespace

bool isjump(const Brettfeld& psfig, int x, int y) {
    for (int a = -1; a <= 1; ++a)
        for (int b = -1; b <= 1; ++b)
            if (sprungMoeglich(x, y, a, b, psfig)) return true;
    return false;
}

int16_t is2sprung(int x, int y, int a, int b, const Brettfeld& Feld) {
    return sprungMoeglich(x, y, a, b, Feld) ? sprungwert(x, y, a, b) : int16_t{0};
}

int16_t issprung(int x, int y, int a, int b, const Brettfeld& Feld) {
    if (!sprungMoeglich(x, y, a, b, Feld)) return 0;
    int16_t v = sprungwert(x, y, a, b);
    Brettfeld kopie = Feld;
    kopie[x + a][y + b] = leer; // the fox itself stays on (x, y) of the copy
    for (int k = -1; k <= 1; ++k)
        for (int l = -1; l <= 1; ++l)
            v = wrap16(v + is2sprung(x + 2 * a, y + 2 * b, k, l, kopie));
    return v;
}

} // namespace fuh
