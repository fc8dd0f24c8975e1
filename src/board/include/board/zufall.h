// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
#include <cstdint>

namespace fuh {

// The game's one random source: a 24-bit linear congruential generator.
class Zufall {
  public:
    explicit Zufall(uint32_t start = 0) { setzen(start); }
    void setzen(uint64_t start) { x_ = static_cast<uint32_t>(start % kModul); }
    // The generator's state; setzen(zustand()) continues the same sequence.
    uint32_t zustand() const { return x_; }

    // Int(Rnd * n) + 1, where Rnd is x / 2^24 after one step; computed exactly in integers: 1..n.
    int ziehe(int n) {
        schritt();
        return static_cast<int>((static_cast<uint64_t>(x_) * static_cast<uint64_t>(n)) >> 24) + 1;
    }

  private:
    static constexpr uint64_t kModul = 1u << 24;
    void schritt() { x_ = static_cast<uint32_t>((x_ * 1140671485ull + 12820163ull) % kModul); }
    uint32_t x_ = 0;
};

} // namespace fuh
