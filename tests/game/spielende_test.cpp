// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "spiel_fixture.h"

namespace fuh {
namespace {

using test::SpielTest;

// The human plays the hens; the foxes are moved aside by hand, then nine hens walk into the target area.
TEST_F(SpielTest, HennenGewinnenUndWerdenAbgelegt) {
    ini(0, 1, 0, 1); // strength 2, single-move mode: no replies
    spiel.Form_Load(1);
    spiel.Neu_Click();
    einstellen(2, 1, 1);
    ziehe(2, 2, 1, 2);
    ziehe(1, 2, 0, 2);
    ziehe(4, 2, 5, 2);
    ziehe(5, 2, 6, 2);
    einstellen(0, 1, 1);
    for (int x : {2, 3, 4})
        for (int start = 3; start <= 5; ++start)
            for (int y = start; y > start - 3; --y)
                ziehe(x, y, x, y - 1);
    EXPECT_EQ(ansicht.meldungen, std::vector<std::string>{"Die Hennen haben gewonnen!"});
    EXPECT_EQ(spiel.oeffentlich().u_is_sieger, "Ja");
    EXPECT_EQ(spiel.oeffentlich().score, 538 + 118);
    EXPECT_TRUE(spiel.oeffentlich().sw_spielende);
    EXPECT_EQ(ansicht.fenster, std::vector<Fenster>{Fenster::highh});
    EXPECT_EQ(ansicht.gezeigt.back(), Hinweis::speichern_msg);
    EXPECT_FALSE(ansicht.hinweise[Hinweis::speichern_msg]);
    EXPECT_EQ(statistik(12), 1); // user won with the hens at strength 2
}

TEST_F(SpielTest, ZugbegrenzungIstRemisOhneMeldung) {
    ini(0, 0, 1, 1); // learning mode on at strength 1: merged into "QZ3.DAT"
    spiel.Form_Load(1);
    spiel.Neu_Click();
    einstellen(2, 1, 0, 1);
    for (int i = 0; i < 200 && spiel.ziehbar(); ++i) {
        if (i % 2 == 0)
            ziehe(2, 2, 2, 1);
        else
            ziehe(2, 1, 2, 2);
    }
    EXPECT_EQ(spiel.spielzug(), 149);
    EXPECT_EQ(spiel.ergebnis(), Ergebnis::remis);
    EXPECT_EQ(ansicht.zugbegrenzungen, 1);
    EXPECT_TRUE(ansicht.meldungen.empty()) << ansicht.meldungen.front();
    EXPECT_FALSE(spiel.oeffentlich().sw_spielende);
    EXPECT_EQ(spiel.oeffentlich().u_is_sieger, "    ");
    EXPECT_TRUE(ansicht.fenster.empty()); // the computer plays both sides now
    EXPECT_EQ(ansicht.panels[3], "Punkte: ");
    // Two positions alternate: two records, only the values booked during the game (none).
    const auto lern = ordner.lies("QZ3.DAT");
    ASSERT_EQ(lern.size(), 30u);
    EXPECT_EQ(lern[11], 0);
    EXPECT_EQ(spiel.neueZuege(), 2);
    EXPECT_EQ(statistik(1), 1);
    EXPECT_EQ(statistik(15), 2);
    EXPECT_EQ(statistik(16), 2);
}

} // namespace
} // namespace fuh
