// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The three square-value tables; constant for the life of the program.
#include "board/stellung.h"

namespace fuh {

extern const Brettfeld fangwert;       // worth of capturing a hen standing on a square
extern const Brettfeld fuchsfeldwert;  // worth of a fox standing on a square
extern const Brettfeld hennenfeldwert; // worth of a hen standing on a square

// The worth of all hens on the board.
int hennenwert(const Brettfeld& Feld);

} // namespace fuh
