// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "player/fuchsspieler.h"
#include <set>

#include "spieler_fixture.h"

namespace fuh {
namespace {

using Fuchstest = test::SpielerTest;

TEST_F(Fuchstest, SprungketteMitFangbonusImZielfeld) {
    // The fox on (2, 2) jumps the hen on (2, 1): 11 - 8 + 4 = 7, plus 40 in the target area. The other
    // fox's double jump (5, 4) then (4, 3) is worth 20 without a bonus, and is not played in that turn.
    aufstellen({{fuchs, 2, 2}, {henne, 2, 1}, {fuchs, 6, 4}, {henne, 5, 4}, {henne, 4, 3}});
    const Zugwahl wahl = berechneFuchs(s.Feld, erinnerung(), zufall);
    ASSERT_EQ(wahl.anzahl, 1);
    EXPECT_EQ(wahl.zuege[0], (Teilzug{2, 2, 2, 0}));

    // Alone, the second fox jumps its whole chain, each jump from where the last one landed.
    aufstellen({{fuchs, 0, 0}, {fuchs, 6, 4}, {henne, 5, 4}, {henne, 3, 3}});
    const Zugwahl kette = berechneFuchs(s.Feld, erinnerung(), zufall);
    ASSERT_EQ(kette.anzahl, 2);
    EXPECT_EQ(kette.zuege[0], (Teilzug{6, 4, 4, 4}));
    EXPECT_EQ(kette.zuege[1], (Teilzug{4, 4, 2, 2}));
}

TEST_F(Fuchstest, EingesperrtKeinZugEinzigerZugErzwungen) {
    // A fox in the corner of the lower arm, walled in by hens it cannot jump: no move at all.
    aufstellen({{fuchs, 2, 6},
                {henne, 2, 5},
                {henne, 3, 5},
                {henne, 3, 6},
                {henne, 2, 4},
                {henne, 4, 4},
                {henne, 4, 6},
                {fuchs, 0, 0}});
    EXPECT_TRUE(berechneFuchs(s.Feld, erinnerung(), zufall).keinZug());
    // Open one square: that is the only move.
    s.Feld[3][5] = leer;
    const Zugwahl wahl = berechneFuchs(s.Feld, erinnerung(), zufall);
    ASSERT_EQ(wahl.anzahl, 1);
    EXPECT_EQ(wahl.zuege[0], (Teilzug{2, 6, 3, 5}));
}

TEST_F(Fuchstest, GleichstandEntscheidetDerZufall) {
    // A lone fox in the middle of an empty cross: the plain moves tie, and the random source decides.
    aufstellen({{fuchs, 0, 0}, {fuchs, 3, 3}});
    std::set<std::pair<int, int>> ziele;
    for (uint32_t seed = 1; seed <= 40; ++seed) {
        Zufall z{seed};
        Zufall gleich{seed};
        const Zugwahl a = berechneFuchs(s.Feld, erinnerung(), z);
        EXPECT_EQ(a, berechneFuchs(s.Feld, erinnerung(), gleich));
        ziele.insert({a.zuege[0].nachX, a.zuege[0].nachY});
    }
    EXPECT_GT(ziele.size(), 1u);
}

TEST_F(Fuchstest, NurDasEchteSpielFragtDieLerndatei) {
    Stellung start;
    start.grundstellung();
    Brettfeld arbeit = start.Feld;
    fuchsVorhersage(arbeit, zufall);
    EXPECT_NE(arbeit, start.Feld); // the prediction is played on the board it was given
    EXPECT_FALSE(ordner.gibt("QZ3.DAT"));
    berechneFuchs(start.Feld, erinnerung(2), zufall);
    EXPECT_TRUE(ordner.gibt("QZ3.DAT")); // real play consults it, creating it empty
}

} // namespace
} // namespace fuh
