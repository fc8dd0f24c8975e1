// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The game's arithmetic is 16-bit: some values wrap, others saturate.
#include <algorithm>
#include <cstdint>

namespace fuh {

// Wraps like the game's 16-bit integers (modular since C++20).
constexpr int16_t wrap16(int v) {
    return static_cast<int16_t>(v);
}

// Bookings, merge sums and counters stop at the 16-bit limits instead of wrapping.
constexpr int16_t sat16(int v) {
    return static_cast<int16_t>(std::clamp(v, -32768, 32767));
}

} // namespace fuh
