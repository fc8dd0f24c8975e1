// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "spiel_fixture.h"

namespace fuh {
namespace {

using test::SpielTest;

// The Meister against itself with a short budget: the game ends, never records past the position table,
// learns like strength 3 and counts as strength 3 in the statistics.
TEST_F(SpielTest, MeisterGegenMeisterWirdAbgelegtWieStaerkeDrei) {
    ini(2, 2, 1);
    spiel.programmStart(3);
    Spielerwahl wahl;
    wahl.hennen = wahl.fuchs = Spieler{2, true};
    wahl.bedenkzeit = std::chrono::milliseconds(5);
    spiel.spielerFestlegen(wahl);
    spiel.neuesSpiel();
    ASSERT_TRUE(spiel.endeGefunden());
    EXPECT_LE(spiel.spielzug(), kZugbegrenzung);
    EXPECT_EQ(statistik(0), 1); // finished
    EXPECT_EQ(statistik(1), 1); // in learning mode
    // The computer's win at strength 3, whichever side won; a draw counts no win.
    const Ergebnis e = spiel.letztesErgebnis();
    EXPECT_EQ(statistik(5 + 2), e == Ergebnis::hennen ? 1 : 0);
    EXPECT_EQ(statistik(2 + 2), e == Ergebnis::fuchs ? 1 : 0);
    EXPECT_EQ(ordner.lies("QZ3.DAT").size() % 15, 0u);
    EXPECT_GT(ordner.lies("QZ3.DAT").size(), 0u);
}

} // namespace
} // namespace fuh
