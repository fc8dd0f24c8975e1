// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The moves as a person reads and writes them: points as on the board ("d4": columns a to g from the
// left, rows 1 to 7 from the bottom), a step "d4-d5", a chain of jumps "e5xe3xc3", a fox parked by the
// penalty rule "e3-Park", its return "Park-a5", and "e3-Park=" when the last fox would be parked and the
// game is drawn instead. "--" is a side that found no move; a "+" after a chain says it is still open.
#include <optional>
#include <string>
#include <string_view>

#include "game/mitschrift.h"

namespace fuh {

std::string punktText(int x, int y);

// One turn without its number and side: the penalty's verdict, if any, then the move.
std::string zugText(const Partiezug& e, bool offen);

// Reads what zugText writes, for `seite`; nullopt when it is not notation. Only the form is checked
// here: whether the move was legal is for the game to find out.
struct GelesenerZug {
    Partiezug zug;
    bool offen = false;
};
std::optional<GelesenerZug> zugLesen(Seite seite, std::string_view text);

} // namespace fuh
