// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A game of the player's foxes some moves in, for the tests of the saved game.
#include <string>
#include <vector>

#include "game/partiedatei.h"
#include "mensch.h"
#include "spiel_fixture.h"

namespace fuh::test {

// A game of human foxes some moves in, with a move taken back.
struct PartieTest : SpielTest {
    std::vector<std::string> keine; // no game marked as taken over

    // A penalty can end a game of random foxes early: then the next seed plays.
    Sicherung mitten(uint32_t seed = 3) {
        ini(1, 2, 1);
        for (int versuch = 0; versuch < 20; ++versuch, seed += 1000) {
            spiel.neuesSpiel();
            Zufall mensch(seed);
            for (int i = 0; i < 12 && !spiel.endeGefunden(); ++i) {
                menschZieht(spiel, mensch);
                spiel.computerZieht();
                if (i == 4) spiel.zuruecknehmen();
            }
            if (spiel.laeuft()) return spiel.sicherung();
        }
        ADD_FAILURE() << "no running game";
        return spiel.sicherung();
    }
    std::filesystem::path zustand() const { return ordner / "zustand"; }
};

} // namespace fuh::test
