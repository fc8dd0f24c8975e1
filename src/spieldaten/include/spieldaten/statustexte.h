// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The status bar texts for the side the computer plays and the strength.
#include <optional>

#include "board/text.h"

namespace fuh {

// Panel 1 for PC 0, 1, 2; nullopt for any other value (the panel keeps its text). While two people
// play each other, the panel says whose turn it is instead.
std::optional<Text> pcStatustext(int PC);
// Panel 2 for Staerke 0, 1, 2 as the game's initialisation writes it (while the Meister plays, the
// panel names it instead).
std::optional<Text> staerkeStatustext(int Staerke);
// Panel 2 as the settings dialog writes it on confirmation ("SPielstärke 3" for strength 3).
std::optional<Text> staerkeStatustextDialog(int Staerke);

} // namespace fuh
