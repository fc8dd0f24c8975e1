// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "memory/partie.h"
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
    // The last fox's draw at the move limit is followed by the hens' move of that turn: one record more.
    EXPECT_LT(spiel.spielzug(), kSituationen);
    // Filed once; twice where the penalty rule drew the game by the last fox and the hens' move that
    // follows it in the same turn then won.
    const Ergebnis e = spiel.letztesErgebnis();
    const int ablagen = spiel.oeffentlich().fuchs_null && e == Ergebnis::hennen ? 2 : 1;
    EXPECT_EQ(statistik(0), ablagen); // finished
    EXPECT_EQ(statistik(1), ablagen); // in learning mode
    // The computer's win at strength 3, whichever side won; a draw counts no win.
    EXPECT_EQ(statistik(5 + 2), e == Ergebnis::hennen ? 1 : 0);
    EXPECT_EQ(statistik(2 + 2), e == Ergebnis::fuchs ? 1 : 0);
    EXPECT_EQ(ordner.lies("QZ3.DAT").size() % 15, 0u);
    EXPECT_GT(ordner.lies("QZ3.DAT").size(), 0u);
}

} // namespace
} // namespace fuh
