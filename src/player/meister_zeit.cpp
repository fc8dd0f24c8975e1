// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "player/meister_zeit.h"

#include <algorithm>

namespace fuh::meister {

namespace {
// A depth begun before this share (percent) of the budget is spent may run into the hard stop; the
// best move of the depth before is searched first, so what it finishes is still worth having.
constexpr uint64_t kFreierAnteil = 50;
// A depth costs this many times the one before (in tenths) when the last two do not tell.
constexpr uint64_t kWachstumVorgabe = 30, kWachstumMin = 12, kWachstumMax = 80;
// The stop comes this share (per mille) before the budget, for the way back out of the search.
constexpr uint64_t kReservePromille = 15;
// About a quarter of a millisecond of search between two looks at the clock.
constexpr uint64_t kBlickAbstand = 256;
} // namespace

Zeitplan::Zeitplan(std::chrono::steady_clock::time_point start, std::chrono::microseconds budget,
                   uint64_t knotenGrenze)
    : start_(start), knotenZaehlen_(knotenGrenze != 0) {
    budget_ = knotenZaehlen_ ? knotenGrenze : static_cast<uint64_t>(std::max<int64_t>(budget.count(), 1));
    hart_ = knotenZaehlen_ ? budget_ : budget_ - budget_ * kReservePromille / 1000;
}

uint64_t Zeitplan::verbraucht(uint64_t knoten) const {
    if (knotenZaehlen_) return knoten;
    const auto us =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start_);
    return static_cast<uint64_t>(std::max<int64_t>(us.count(), 0));
}

bool Zeitplan::um(uint64_t knoten) {
    if (knotenZaehlen_) return knoten >= hart_;
    if (knoten < naechsterBlick_) return false;
    naechsterBlick_ = knoten + kBlickAbstand;
    return verbraucht(knoten) >= hart_;
}

bool Zeitplan::naechsteTiefe(uint64_t knoten) {
    const uint64_t jetzt = verbraucht(knoten);
    vorletzte_ = letzte_;
    letzte_ = jetzt - std::min(jetzt, bisher_);
    bisher_ = jetzt;
    return lohnt(jetzt, letzte_, vorletzte_, budget_);
}

bool Zeitplan::lohnt(uint64_t verbraucht, uint64_t letzte, uint64_t vorletzte, uint64_t budget) {
    if (verbraucht >= budget) return false;
    if (verbraucht * 100 < budget * kFreierAnteil) return true;
    const uint64_t wachstum = vorletzte == 0
                                  ? kWachstumVorgabe
                                  : std::clamp<uint64_t>(letzte * 10 / vorletzte, kWachstumMin, kWachstumMax);
    return verbraucht + letzte * wachstum / 10 <= budget;
}

} // namespace fuh::meister
