// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "board/regeln.h"

#include <cstdlib>

namespace fuh {

namespace {
// Both squares on the grid (never index off the board) and the destination empty.
bool aufLeeresFeld(const Brettfeld& Feld, int x, int y, int x1, int y1) {
    return aufGitter(x, y) && aufGitter(x1, y1) && Feld[x1][y1] == leer;
}
} // namespace

bool hennenzugErlaubt(const Brettfeld& Feld, int x, int y, int x1, int y1) {
    if (!aufLeeresFeld(Feld, x, y, x1, y1) || Feld[x][y] != henne) return false;
    const int dx = x1 - x;
    const int dy = y1 - y;
    return std::abs(dx) <= 1 && std::abs(dy) <= 1 && y1 <= y && korrekt(x, y, dx, dy);
}

bool fuchszugErlaubt(const Brettfeld& Feld, const Sprungfolge& s, int x, int y, int x1, int y1) {
    if (!aufLeeresFeld(Feld, x, y, x1, y1) || Feld[x][y] != fuchs) return false;
    const int dx = x1 - x;
    const int dy = y1 - y;
    const bool sprungweite = (std::abs(dx) == 2 || dx == 0) && (std::abs(dy) == 2 || dy == 0);
    if (sprungweite && Feld[x + dx / 2][y + dy / 2] == henne)
        return (!s.imSprung || (x == s.sprungX && y == s.sprungY)) && korrekt(x, y, dx, dy);
    return std::abs(dx) <= 1 && std::abs(dy) <= 1 && !s.imSprung && korrekt(x, y, dx, dy);
}

bool korrekterZug(const Brettfeld& Feld, Seite seite, const Sprungfolge& s, int x, int y, int x1, int y1) {
    return seite == Seite::Hennen ? hennenzugErlaubt(Feld, x, y, x1, y1)
                                  : fuchszugErlaubt(Feld, s, x, y, x1, y1);
}

} // namespace fuh
