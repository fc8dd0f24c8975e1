#pragma once
// A fox that could have jumped but did not is taken off the board until the foxes next jump.
#include "board/stellung.h"
#include "player/spieltisch.h"

namespace fuh {

inline constexpr const char* kFuchsAusgeschlossen =
    "Der Fuchs hätte springen können. Bis zum nächsten Sprung wird er vom Feld genommen.";
inline constexpr const char* kFuchsEingesetzt = "Der ausgeschlossene Fuchs wird wieder eingesetzt";

// Applies the rule to the foxes' last move, at the start of a computer hen turn: after a jump a parked
// fox returns; after any other move a fox that could have jumped is parked, or, when the other fox is
// parked already, the game ends drawn.
void strafregel(Spieltisch& tisch);

} // namespace fuh
