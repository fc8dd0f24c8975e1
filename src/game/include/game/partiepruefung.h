// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Whether a saved game read from a file is one the game itself can have reached. The file is untrusted:
// a right checksum proves nothing.
#include "game/spielstand.h"

namespace fuh {

// Every value in range; the positions recorded up to the move counter, the last of them the board; the
// flags telling one story; a running game (or, with `abzulegen`, a
// finished one) whose take-back states are earlier states of the same game.
bool sicherungGueltig(const Sicherung& s);

} // namespace fuh
