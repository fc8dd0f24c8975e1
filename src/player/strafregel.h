#pragma once
// A fox that could have jumped but did not is taken off the board until the foxes next jump.
#include "board/stellung.h"
#include "player/spieltisch.h"

namespace fuh {

inline constexpr const char* kFuchsAusgeschlossen =
    "Der Fuchs hätte springen können. Bis zum nächsten Sprung wird er vom Feld genommen.";
inline constexpr const char* kFuchsEingesetzt = "Der ausgeschlossene Fuchs wird wieder eingesetzt";

// Applies the rule to the foxes' last move, at the start of a computer hen turn: after a jump a parked
// fox returns, after any other move sitsTopsfig judges it. `psfig` is the working board it may fill.
void strafregel(Spieltisch& tisch, Brettfeld& psfig);

// After a fox jump: a parked fox returns to the first empty square of rows 2..6, column 0 first.
void rueckkehr(Spieltisch& tisch);

// Rebuilds the position before the foxes' last move and parks a fox that could have jumped there.
// With one fox already parked, the game ends drawn instead.
void sitsTopsfig(Spieltisch& tisch, Brettfeld& psfig);

} // namespace fuh
