// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The positions of the endgame class: every hen in the upper rows of the cross, which hens never leave
// since they do not move down. Each position (hens, foxes, side to move) has one number below `groesse`:
// the hens ranked among the subsets of their count, the foxes among the pairs of empty squares, and
// with the penalty rule one fox parked beside the other on an empty square.
#include <array>
#include <cstdint>
#include <optional>

#include "player/meister_brett.h"

namespace fuh::meister {

inline constexpr int kKlassenzeilen = 4; // rows 0..3; fewer rows make a smaller class that is closed too
// The cross squares below row `zeilen`: in square order they come first.
constexpr int kreuzfelderBis(int zeilen) {
    int n = 0;
    for (int s = 0; s < feldNummer(0, zeilen); ++s)
        n += aufKreuz(feldX(s), feldY(s));
    return n;
}
inline constexpr int kKlassenfelder = kreuzfelderBis(kKlassenzeilen);
inline constexpr int kKreuzfelder = kreuzfelderBis(7);

// Hens of the class: bit i stands for the i-th cross square in square order.
using Hennenmaske = uint32_t;

class TafelIndex {
  public:
    explicit TafelIndex(bool strafregel, int zeilen = kKlassenzeilen);

    uint64_t groesse() const { return 2 * anfang_[kAnzahlHennen + 1]; }
    bool strafregel() const { return strafregel_; }
    int zeilen() const { return zeilen_; }
    int felder() const { return felder_; } // the cross squares of the class's rows

    // Fox placements for `hennen` hens: pairs of empty squares, and with the penalty rule one parked fox
    // beside each empty square.
    uint64_t fuchslagen(int hennen) const;
    // The number of the position, nullopt outside the class (a hen below it, fewer hens than the target
    // needs, a fox missing, or a parked fox without the penalty rule).
    std::optional<uint64_t> index(const Suchbrett& b) const;
    // The hens and the number of the fox placement, nullopt outside the class.
    struct Lage {
        Hennenmaske hennen = 0;
        uint64_t fuechse = 0;
    };
    std::optional<Lage> zerlege(const Suchbrett& b) const;
    // The position of a number below `groesse`.
    Suchbrett stellung(uint64_t i) const;

    // The parts of a number, for walking through the class in order.
    uint64_t nummer(Hennenmaske hennen, uint64_t fuchslage, bool fuchsAmZug) const;
    static uint64_t rang(Hennenmaske hennen);
    Hennenmaske maske(const Suchbrett& b) const;
    static int kreuzFeld(int nummer);

  private:
    bool strafregel_;
    int zeilen_;
    int felder_;
    std::array<uint64_t, kAnzahlHennen + 2> anfang_{}; // first position (per side) of each hen count
};

// The count of k-subsets of n.
uint64_t binom(int n, int k);

} // namespace fuh::meister
