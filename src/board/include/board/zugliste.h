// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Every move the rules allow a side, found by asking the legality test about every piece and target.
#include <array>
#include <vector>

#include "board/regeln.h"
#include "board/stellung.h"
#include "board/teilzug.h"

namespace fuh {

// A hen step, a fox step, or a fox's chain of jumps (each jump from where the one before landed),
// with the board it leaves.
struct Regelzug {
    std::array<Teilzug, kLaengsteKette> teile{};
    int anzahl = 0;
    Brettfeld nachher{};

    const Teilzug* begin() const { return teile.data(); }
    const Teilzug* end() const { return teile.data() + anzahl; }
};

// Carries out one step or jump on a board: a jump takes the hen it passes over.
void teilzugAusfuehren(Brettfeld& Feld, const Teilzug& t);

// The legal moves of `seite` (henne or fuchs). A fox may end its chain after any jump, so every chain
// is a move of its own, once for each position it can leave: two routes that take the same hens to the
// same square are one move. While `sprung` is open, only the further chains of the fox that opened it.
std::vector<Regelzug> erlaubteZuege(const Brettfeld& Feld, int16_t seite, const Sprungfolge& sprung = {});

} // namespace fuh
