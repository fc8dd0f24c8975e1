// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The game's record of its moves: every turn in order, with the side that made it, and how the game
// ended. It travels with the game's state, so taking a move back takes its entry back too.
#include <optional>
#include <vector>

#include "board/spielausgang.h"
#include "board/stellung.h"
#include "board/teilzug.h"
#include "player/strafregel.h"

namespace fuh {

// One side's turn: before a computer hen move the penalty rule may park a fox, bring one back or find
// the last fox would be parked; then a step, a chain of jumps (each jump from where the one before
// landed, the hen in between taken), or nothing when the side found no move.
struct Partiezug {
    Seite seite = Seite::Hennen;
    Strafe::Art strafe = Strafe::Art::keine;
    Teilzug strafzug{};
    std::vector<Teilzug> teile;

    friend bool operator==(const Partiezug&, const Partiezug&) = default;
};

struct Mitschrift {
    std::vector<Partiezug> zuege;
    std::optional<Endegrund> ende; // the reason the game ended, the last one announced

    // A side's turn begins.
    void beginnen(Seite seite) {
        zuege.emplace_back();
        zuege.back().seite = seite;
    }

    friend bool operator==(const Mitschrift&, const Mitschrift&) = default;
};

} // namespace fuh
