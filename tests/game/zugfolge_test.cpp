// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Whose turn it is: a person moves only on that side's turn, a change of players during a game takes
// over at once, and two people alternate at one board (their whole games are played where games are
// recorded).
#include "spiel_fixture.h"

namespace fuh::test {
namespace {

TEST_F(SpielTest, ZweiSchnelleAblagenSindEinZug) {
    starten(0); // the computer plays the foxes
    ziehe(3, 3, 3, 2);
    ASSERT_EQ(spiel.spielzug(), 1);
    const Stellung nachErstem = spiel.stellung();
    ziehe(3, 4, 3, 3); // a second hen before the fox's reply
    EXPECT_EQ(spiel.stellung(), nachErstem);
    EXPECT_EQ(spiel.spielzug(), 1);
    ASSERT_TRUE(spiel.computerZieht());
    EXPECT_EQ(spiel.amZug(), Seite::Hennen);
    EXPECT_FALSE(spiel.computerZieht()); // the person's turn again
    ziehe(3, 4, 3, 3);
    EXPECT_EQ(spiel.stellung().Feld[3][3], henne);
}

// Switching to "the computer plays both" in the middle of a game: the computer takes the side to move
// at once and plays the game to its end; any drop of a person, on any square, changes nothing meanwhile.
TEST_F(SpielTest, WechselZuComputerGegenComputerSpieltWeiter) {
    ini(0);
    spiel.programmStart(1);
    spiel.schrittweise(true);
    spiel.neuesSpiel();
    ziehe(3, 3, 3, 2);
    einstellen(2, 0);
    EXPECT_TRUE(spiel.selbstspielLaeuft());
    int zuege = 0;
    while (spiel.computerZieht()) {
        ++zuege;
        const Spielstand vorher = spiel.zustand();
        for (int k = 0; k < kFiguren; ++k)
            for (int t = 0; t < kFelder; ++t)
                spiel.abgelegt(t, k);
        spiel.sprungfolgeSchliessen();
        ASSERT_TRUE(spiel.zustand() == vorher) << "after move " << zuege;
    }
    EXPECT_TRUE(spiel.endeGefunden());
    EXPECT_GT(zuege, 10);
    EXPECT_EQ(statistik(0), 1); // finished once
}

// Switching to two people while the computer's reply is due: the person at the board makes it.
TEST_F(SpielTest, WechselZuZweiSpielernUebergibtDenZug) {
    starten(0);
    ziehe(3, 3, 3, 2);
    ASSERT_TRUE(spiel.computerAmZug());
    Spielerwahl zwei;
    zwei.zweiSpieler = true;
    spiel.spielerFestlegen(zwei);
    EXPECT_FALSE(spiel.computerZieht());
    EXPECT_TRUE(spiel.menschAmZug());
    EXPECT_EQ(ansicht.panels[1], "Zwei Spieler: Füchse am Zug");
    ziehe(4, 2, 4, 1);
    EXPECT_EQ(spiel.stellung().Feld[4][1], fuchs);
    EXPECT_EQ(ansicht.panels[1], "Zwei Spieler: Hennen am Zug");
    EXPECT_TRUE(spiel.tippMoeglich());
    const Stellung vorher = spiel.stellung();
    ziehe(2, 3, 3, 3);
    EXPECT_EQ(spiel.stellung().Feld[3][3], henne);
    EXPECT_EQ(spiel.amZug(), Seite::Fuchs);
    // Take-back undoes one person's move at a time.
    spiel.zuruecknehmen();
    EXPECT_EQ(spiel.amZug(), Seite::Hennen);
    EXPECT_EQ(spiel.stellung(), vorher);
}

} // namespace
} // namespace fuh::test
