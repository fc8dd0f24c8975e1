// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Which moves exist: the geometry of a step or jump, and the judgement of a move the human proposes.
#include "board/stellung.h"

namespace fuh {

constexpr bool geradeZahl(int x) {
    return x % 2 == 0;
}

// True when the vector (a, b) may be taken from (x, y) and ends on the 7 x 7 grid.
// Diagonals only from squares whose column and row have the same parity. The cross is not tested.
constexpr bool korrekt(int x, int y, int a, int b) {
    return (a != 0 || b != 0) && x + a >= 0 && x + a <= 6 && y + b >= 0 && y + b <= 6 &&
           (a == 0 || b == 0 || geradeZahl(x) == geradeZahl(y));
}

// The game is drawn when a move records this many positions.
inline constexpr int kZugbegrenzung = 149;
// A parked fox returns to the first empty square from this row down, column by column.
inline constexpr int kRueckkehrAbZeile = 2;

// Which side the computer plays (the setting PC). Read from a file, so it may hold any other value too,
// which then matches none of these.
enum class Computer : int16_t { fuchs = 0, hennen = 1, beide = 2 };

// A person's fox's open jump sequence: after a jump only that fox may jump on, until the right button.
struct Sprungfolge {
    bool imSprung = false;
    int16_t sprungX = 0, sprungY = 0;
    friend bool operator==(const Sprungfolge&, const Sprungfolge&) = default;
};

// A hen on (x, y) may step to (x1, y1): one square along a line, never down, onto an empty square.
bool hennenzugErlaubt(const Brettfeld& Feld, int x, int y, int x1, int y1);

// A fox on (x, y) may step to (x1, y1) or jump there over a hen. While a jump sequence is open, only
// further jumps of the fox that opened it.
bool fuchszugErlaubt(const Brettfeld& Feld, const Sprungfolge& sprung, int x, int y, int x1, int y1);

// True when a person playing `seite` may move the piece on (x, y) to (x1, y1) now.
bool korrekterZug(const Brettfeld& Feld, Seite seite, const Sprungfolge& sprung, int x, int y, int x1,
                  int y1);

} // namespace fuh
