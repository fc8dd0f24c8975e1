#pragma once
// The computer hens: every hen move is tried against the fox player's predicted reply.
#include <array>
#include <cstdint>

#include "player/fuchsspieler.h"
#include "player/spieltisch.h"

namespace fuh {

inline constexpr int kHennenzuege = 100; // 20 hens with at most five directions each

struct Hstatus {
    int16_t lage = 0; // ten times the learned value plus the worth of all hens
    int16_t raum = 0; // ten times the learned value plus the worth of the safe squares hens can reach
};

class Hennenspieler {
  public:
    Hennenspieler(Spieltisch& tisch, Fuchsspieler& fuchs) : tisch_(tisch), fuchs_(fuchs) {}

    // The penalty rule on the foxes' last move, then the hens' move on the real board.
    void berechneHennen();

    const std::array<Hstatus, kHennenzuege + 1>& bewertungen() const { return hstatus_; }

  private:
    void psTopsfig();
    void hstatusScan(int k);
    bool hzugmoglich(int x, int y) const; // a hen could move onto (x, y)
    bool hbedroht(int x, int y) const;    // a fox could jump a hen standing on (x, y)
    bool hzugauswahl(int n);              // true when a candidate was chosen

    Spieltisch& tisch_;
    Fuchsspieler& fuchs_;
    Brettfeld psfig_{};
    std::array<std::array<int16_t, 4>, kHennenzuege + 1> hzuege_{};
    std::array<Hstatus, kHennenzuege + 1> hstatus_{};
};

} // namespace fuh
