// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "board/regeln.h"

#include <cstdlib>

namespace fuh {

bool korrekterZug(const Brettfeld& Feld, Seite seite, const Sprungfolge& s, int x, int y, int x1, int y1) {
    if (!aufGitter(x, y) || !aufGitter(x1, y1)) return false; // never index off the board
    const int dx = x1 - x;
    const int dy = y1 - y;
    if (Feld[x1][y1] != leer) return false;

    if (Feld[x][y] == henne && seite == Seite::Hennen && std::abs(dx) <= 1 && std::abs(dy) <= 1 && y1 <= y)
        return korrekt(x, y, dx, dy);

    if (Feld[x][y] == fuchs && seite == Seite::Fuchs) {
        const bool sprungweite = (std::abs(dx) == 2 || dx == 0) && (std::abs(dy) == 2 || dy == 0);
        if (sprungweite && Feld[x + dx / 2][y + dy / 2] == henne) {
            if (!s.imSprung || (x == s.sprungX && y == s.sprungY)) return korrekt(x, y, dx, dy);
            return false;
        }
        if (std::abs(dx) <= 1 && std::abs(dy) <= 1 && !s.imSprung) return korrekt(x, y, dx, dy);
    }
    return false;
}

} // namespace fuh
