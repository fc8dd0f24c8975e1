// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// When the Meister begins another depth and when it stops: it spends its budget and never overruns it.
// Costs are microseconds since the start, or positions visited when the search has a node budget, so
// that such a search does not depend on the machine.
#include <chrono>
#include <cstdint>

namespace fuh::meister {

class Zeitplan {
  public:
    Zeitplan() = default;
    // `knotenGrenze` 0: the clock decides.
    Zeitplan(std::chrono::steady_clock::time_point start, std::chrono::microseconds budget,
             uint64_t knotenGrenze);

    // The hard stop, asked at every position; the clock is read only every few hundred of them.
    bool um(uint64_t knoten);
    // After a completed depth: whether the next one is worth beginning.
    bool naechsteTiefe(uint64_t knoten);

    // The rule behind it: a depth is begun while less than a share of the budget is spent (even cut
    // short, it searches the best move so far first), or while the next depth is predicted to fit, the
    // last one's cost grown as it grew from the one before.
    static bool lohnt(uint64_t verbraucht, uint64_t letzte, uint64_t vorletzte, uint64_t budget);

  private:
    uint64_t verbraucht(uint64_t knoten) const;

    std::chrono::steady_clock::time_point start_{};
    uint64_t budget_ = 0;
    uint64_t hart_ = 0;
    bool knotenZaehlen_ = false;
    uint64_t naechsterBlick_ = 0;
    uint64_t bisher_ = 0, letzte_ = 0,
             vorletzte_ = 0; // spent at the last depth's end; its cost and the one before
};

} // namespace fuh::meister
