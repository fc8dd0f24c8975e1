// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The positions recorded in the running game, with the values booked on them.
#include <array>
#include <cstdint>

#include "board/stellung.h"
#include "board/teilzug.h"
#include "memory/positionscode.h"

namespace fuh {

struct Situation {
    Code code{};
    int16_t fuchswert = 0;
    int16_t hennenwert = 0;
    int16_t sprung = 0; // 1 when the move that produced the position was a jump
    friend bool operator==(const Situation&, const Situation&) = default;
};

inline constexpr int kSituationen = 151; // records 0..150; a game ends at the move limit before that

struct Partie {
    std::array<Situation, kSituationen> sits{};
    int16_t spielzug = 0; // positions recorded so far; the index of the next free record

    // Records the position after the move in the register; never writes past the last record.
    void pstoSits(const Brettfeld& Feld, const Teilzug& zug);
    // Adds H to the hen values and F to the fox values: q = 1 every record, otherwise the last five
    // (record 0 excepted). Sums stop at the 16-bit limits.
    void sanktion(int16_t H, int16_t F, int16_t q);
    friend bool operator==(const Partie&, const Partie&) = default;
};

} // namespace fuh
