// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// What both learned-file targets need: a board from fuzzed bytes, and a plain scan of a file's bytes
// that finds a position the way the game's rules say, without the index.
#include <algorithm>
#include <cstdint>
#include <cstring>

#include "memory/lerndatei.h"
#include "memory/positionscode.h"

namespace fuh::fuzz {

// Records a file of `n` bytes holds: a last record of at least 8 bytes counts, zeros filling it.
inline std::size_t satzzahl(std::size_t n) {
    return std::min<std::size_t>((n + 7) / kLernsatz, kHoechsteSaetze);
}

// The hen or fox value of the first record holding `p` or its mirror form, 0 when there is none.
inline int16_t gescannt(const uint8_t* d, std::size_t n, const Code& p, bool henne) {
    const Code m = spiegelcode(p);
    for (std::size_t r = 0; r < satzzahl(n); ++r) {
        uint8_t satz[kLernsatz] = {};
        std::memcpy(satz, d + kLernsatz * r, std::min<std::size_t>(kLernsatz, n - kLernsatz * r));
        if (std::equal(p.begin(), p.end(), satz) || std::equal(m.begin(), m.end(), satz))
            return static_cast<int16_t>(henne ? satz[13] | (satz[14] << 8) : satz[11] | (satz[12] << 8));
    }
    return 0;
}

// A board from 11 bytes laid out like a position code: hen columns, then up to two foxes.
inline Brettfeld feldAus(const uint8_t* d, std::size_t n) {
    Brettfeld f{};
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y) {
            const std::size_t i = static_cast<std::size_t>(x);
            const bool henne = i < n && (d[i] - 64) >= 0 && ((d[i] - 64) >> y & 1);
            f[x][y] = henne ? fuh::henne : leer;
        }
    for (std::size_t i = 7; i + 1 < std::min<std::size_t>(n, 11); i += 2)
        if (d[i] >= 64 && d[i] <= 70 && d[i + 1] >= 64 && d[i + 1] <= 70) f[d[i] - 64][d[i + 1] - 64] = fuchs;
    return f;
}

} // namespace fuh::fuzz
