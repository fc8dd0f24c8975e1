// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The 11-byte code by which the learning memory recognises a position.
#include <array>
#include <cstdint>

#include "board/stellung.h"

namespace fuh {

// Bytes 0..6: 64 + the hen mask of columns 0..6 (bit y set for a hen on row y);
// bytes 7..10: 64 + x, 64 + y of the first and the second fox in column-by-column scan order.
using Code = std::array<uint8_t, 11>;

Code positionscode(const Brettfeld& Feld);

// Columns reversed and the two fox pairs swapped; the fox bytes keep their values.
Code spiegelcode(const Code& c);

struct Fuchsplaetze {
    int x1, y1, x2, y2;
};
// The two foxes' places stored in a code.
Fuchsplaetze fuchsplaetze(const Code& c);

} // namespace fuh
