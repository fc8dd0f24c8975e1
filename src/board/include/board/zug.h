#pragma once
// The one procedure that changes the real board.
#include <cstdint>

#include "board/ansicht.h"
#include "board/bildlage.h"
#include "board/stellung.h"

namespace fuh {

// Receives the learning credits that moves earn (hen value H, fox value F, range q).
class Gutschrift {
  public:
    virtual ~Gutschrift() = default;
    virtual void sanktion(int16_t H, int16_t F, int16_t q) = 0;
};

struct Zugumgebung {
    Stellung& stellung;
    Figurbilder& bilder;
    Ansicht& ansicht;
    Gutschrift& gutschrift;
};

// Executes the move in the move register. `normal` false: a penalty move, without jump handling.
// `PC` decides which side's pieces slide (the computer's) and which snap (the human's).
void zug(Zugumgebung& u, int PC, bool normal);

// One slide in 100 equal steps, each reported to the view; ends where the rounding puts it.
void gleiten(Figurbilder& bilder, Ansicht& ansicht, int k, int zielLeft, int zielTop);

} // namespace fuh
