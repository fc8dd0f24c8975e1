// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Valuation of fox jumps. Nothing here changes a board.
#include "board/stellung.h"

namespace fuh {

// True when a fox on (x, y) could jump the hen on (x + a, y + b) onto the empty square behind it.
bool sprungMoeglich(int x, int y, int a, int b, const Brettfeld& Feld);

// True when the fox on (x, y) of `psfig` has at least one jump.
bool isjump(const Brettfeld& psfig, int x, int y);

// The jump from (x, y) in direction (a, b) with the follow-up jumps from its landing square; 0 if impossible.
int16_t issprung(int x, int y, int a, int b, const Brettfeld& Feld);

// The single jump from (x, y) in direction (a, b); 0 if impossible.
int16_t is2sprung(int x, int y, int a, int b, const Brettfeld& Feld);

} // namespace fuh
