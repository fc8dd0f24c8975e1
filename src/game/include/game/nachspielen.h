// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Replaying a game file through the game itself: a new game with the file's players and settings, each
// move made as its player would make it (a person's by the drop, the computer's as its choice), and each
// checked by the rules before it is made. The game tells its view everything as it did when played.
#include <functional>
#include <string>
#include <vector>

#include "game/aufzeichnung.h"
#include "game/spiel.h"

namespace fuh {

// Plays `a` in `spiel`, which writes no file meanwhile. `nachZug(n)` is called once the first n moves
// are made, from 0 on. Returns the message naming the line of the first move the rules refuse, or of a
// result that does not follow from the moves; empty when the whole game was replayed.
Text nachspielen(Spiel& spiel, const Aufzeichnung& a, const std::function<void(std::size_t)>& nachZug = {});

// The whole game after each of its first n moves, from n = 0 on, for stepping through a game file; played
// in a game of its own that shows nothing and writes no file, in `ordner`. Empty, with the message in
// `fehler`, when the moves are refused.
std::vector<Spielstand> nachspielStaende(const Aufzeichnung& a, const std::filesystem::path& ordner,
                                         Text& fehler);

} // namespace fuh
