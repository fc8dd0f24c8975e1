// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dateischicht/dateizugriff.h"
#include "fremde_sperre.h"
#include "spiel_fixture.h"

namespace fuh {
namespace {

using test::SpielTest;

// The person plays the hens at strength 2 in single-move mode (no replies); the foxes are put aside by
// hand, then nine hens walk into the target area, all but the last step: (4, 3) to (4, 2).
void hennenVorDemSieg(SpielTest& t, int16_t Lernmodus) {
    t.ini(0, 1, Lernmodus, 1);
    t.spiel.programmStart(1);
    t.spiel.neuesSpiel();
    t.versetzen(feldNummer(2, 2), feldNummer(0, 2));
    t.versetzen(feldNummer(4, 2), feldNummer(6, 2));
    for (int x : {2, 3, 4})
        for (int start = 3; start <= 5; ++start)
            for (int y = start; y > start - 3; --y)
                if (x != 4 || start != 5 || y != 3) t.ziehe(x, y, x, y - 1);
}

TEST_F(SpielTest, HennenGewinnenUndWerdenAbgelegt) {
    hennenVorDemSieg(*this, 0);
    ziehe(4, 3, 4, 2);
    EXPECT_EQ(ansicht.meldungen, std::vector<std::string>{"Die Hennen haben gewonnen!"});
    EXPECT_EQ(spiel.oeffentlich().u_is_sieger, "Ja");
    EXPECT_EQ(spiel.oeffentlich().score, 538 + 118);
    EXPECT_TRUE(spiel.oeffentlich().sw_spielende);
    EXPECT_EQ(ansicht.fenster, std::vector<Fenster>{Fenster::highh});
    EXPECT_EQ(ansicht.gezeigt.back(), Hinweis::speichern_msg);
    EXPECT_FALSE(ansicht.hinweise[Hinweis::speichern_msg]);
    EXPECT_EQ(statistik(12), 1); // user won with the hens at strength 2
}

// Another program holds the data folder while the game is filed: the game waits once, not once per file,
// tells the view while it waits, and names both files in one message; neither file changes.
TEST_F(SpielTest, AblegenWartetEinmalAufEinAnderesProgramm) {
    hennenVorDemSieg(*this, 1);
    const auto lern = ordner.lies("QZ2.DAT");
    const auto sta = ordner.lies("QZ.sta");
    datei::sperrfristSetzen(std::chrono::milliseconds(300));
    {
        const test::FremdeSperre fremd(ordner.pfad());
        ASSERT_TRUE(fremd.gehalten());
        ziehe(4, 3, 4, 2);
    }
    datei::sperrfristSetzen(std::chrono::seconds(5));
    EXPECT_EQ(ansicht.wartezeiten, 1);
    EXPECT_GT(ansicht.warteschritte, 0);
    EXPECT_EQ(ansicht.meldungen, (std::vector<std::string>{
                                     "Die Hennen haben gewonnen!",
                                     "Die Dateien „QZ2.DAT“ und „QZ.sta“ konnten nicht gespeichert werden. "
                                     "Das Spiel geht ohne diese Daten weiter."}));
    EXPECT_EQ(ordner.lies("QZ2.DAT"), lern);
    EXPECT_EQ(ordner.lies("QZ.sta"), sta);
    // Free again: the next game is counted without a wait; the unsaved one stays uncounted.
    spiel.neuesSpiel();
    EXPECT_EQ(ansicht.wartezeiten, 1);
    EXPECT_EQ(statistik(14), 2); // games started
    EXPECT_EQ(statistik(0), 0);  // games finished
}

// After the hens' opening the person's fox steps back and forth in single-move mode.
TEST_F(SpielTest, ZugbegrenzungIstRemisOhneMeldung) {
    ini(1, 0, 1, 1); // learning mode on at strength 1: merged into "QZ3.DAT"
    spiel.programmStart(1);
    spiel.neuesSpiel();
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
    EXPECT_EQ(ansicht.fenster, std::vector<Fenster>{Fenster::highf}); // shown, but nothing to enter
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
