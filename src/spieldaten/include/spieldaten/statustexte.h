// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The status bar texts for the side the computer plays and the strength.
#include <optional>
#include <string>

#include "board/text.h"

namespace fuh {

// Panel 1 for PC 0, 1, 2; nullopt for any other value (the panel keeps its text).
std::optional<std::string> pcStatustext(int PC);
// Panel 2 for Staerke 0, 1, 2 as the game's initialisation writes it: %1 is the strength, 1 to 3.
inline constexpr const char* kStaerkeStatustext = FUH_TR_NOOP("Kern", "Spielstärke %1");
std::optional<std::string> staerkeStatustext(int Staerke);
// Panel 2 as the settings dialog writes it on confirmation ("SPielstärke 3" for strength 3).
std::optional<std::string> staerkeStatustextDialog(int Staerke);

// Panel 1 while two people play each other: whose turn it is.
inline constexpr const char* kZweiSpielerFuchsAmZug = FUH_TR_NOOP("Kern", "Zwei Spieler: Füchse am Zug");
inline constexpr const char* kZweiSpielerHennenAmZug = FUH_TR_NOOP("Kern", "Zwei Spieler: Hennen am Zug");

// Panel 2 while the Meister plays; short enough for the narrowest window.
inline constexpr const char* kMeisterStatustext = FUH_TR_NOOP("Kern", "Meister");

} // namespace fuh
