// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Building the endgame table backwards from the ends of the game, and checking a table.
#include <cstdint>
#include <functional>
#include <optional>

#include "player/endspieltafel.h"

namespace fuh {

// Called after each solved group of positions with the positions done so far and the total.
using Baufortschritt = std::function<void(uint64_t fertig, uint64_t gesamt)>;

// Solves the class layer by layer: fewer hens first, then hens further up first, since a capture or a
// hen's step up leads into a layer already solved; within a layer values spread back from the
// decided positions in the order of their distance. `faeden` threads generate the moves.
Endspieltafel tafelBauen(bool strafregel, int faeden, int zeilen = meister::kKlassenzeilen,
                         const Baufortschritt& fortschritt = {});

// Positions whose stored value is not the best value of their successors (0: the table is right).
uint64_t tafelFehler(const Endspieltafel& t, int faeden);

// The value of `b` found by searching every line to `tiefe` plies, when the game ends within them with
// perfect play; nullopt when it does not.
std::optional<uint8_t> entscheidungIn(const meister::Suchbrett& b, bool strafregel, int tiefe);

} // namespace fuh
