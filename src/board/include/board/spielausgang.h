// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// When a game is over and who has won: the rule the end-of-move check applies after every move.
#include <array>
#include <cstdint>

#include "board/stellung.h"

namespace fuh {

// How the game ended (ergebnis); `offen` while it runs.
enum class Ergebnis : int16_t { offen = 0, hennen = 1, fuchs = 2, remis = 3 };

// The reasons for an end, in the order the check looks for them.
enum class Endegrund : uint8_t {
    hennenImZiel,  // every square of the target area holds a hen
    zuWenigHennen, // fewer hens than target squares are left
    hennenOhneZug, // the hens to move found no move
    fuchsOhneZug,  // the foxes found no move, or the last fox on the cross would have been parked
    zugbegrenzung, // the move limit
};

struct Spielausgang {
    std::array<Endegrund, 4> gruende{}; // every reason that holds; a later one overrides the result
    int anzahl = 0;
    Ergebnis ergebnis = Ergebnis::offen;

    const Endegrund* begin() const { return gruende.data(); }
    const Endegrund* end() const { return gruende.data() + anzahl; }
    bool enthaelt(Endegrund g) const;
};

Ergebnis ergebnisVon(Endegrund g);

// The end after `figur` (henne or fuchs) has moved, or was to move and made no move (`keinZug`), with
// `spielzug` positions recorded including the one after this move.
Spielausgang spielausgang(const Brettfeld& Feld, int16_t figur, bool keinZug, int spielzug);

} // namespace fuh
