// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <random>

#include "dateischicht/dateizugriff.h"
#include "fremde_sperre.h"
#include "mensch.h"
#include "spiel_fixture.h"

namespace fuh {
namespace {

using test::SpielTest;

// The person plays the hens at strength 2 in single-move mode (no replies), one step before their win.
void hennenVorDemSieg(SpielTest& t, int16_t Lernmodus) {
    t.starten(0, 1, Lernmodus, 1);
    ASSERT_TRUE(test::hennenVorDemSieg(t.spiel));
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
    const auto vorher = test::dateien(ordner);
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
    EXPECT_EQ(test::dateien(ordner), vorher);
    // Free again: the next game is counted without a wait; the unsaved one stays uncounted.
    spiel.neuesSpiel();
    EXPECT_EQ(ansicht.wartezeiten, 1);
    EXPECT_EQ(statistik(14), 2); // games started
    EXPECT_EQ(statistik(0), 0);  // games finished
}

// After the hens' opening the person's fox steps back and forth in single-move mode.
TEST_F(SpielTest, ZugbegrenzungIstRemisOhneMeldung) {
    starten(1, 0, 1, 1); // learning mode on at strength 1: merged into "QZ3.DAT"
    for (int i = 0; i < 200 && spiel.ziehbar(); ++i)
        ziehe(2, 2 - i % 2, 2, 1 + i % 2); // (2, 2) to (2, 1) and back
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

// Whatever the files hold, a game can be started, played by the computer and filed.
TEST_F(SpielTest, BeliebigeDateiinhalteFuehrenNieZumAbsturz) {
    std::mt19937 zufallszahlen(42);
    auto muell = [&](std::size_t n) {
        std::vector<unsigned char> b(n);
        std::generate(b.begin(), b.end(), [&] { return static_cast<unsigned char>(zufallszahlen()); });
        return b;
    };
    const std::vector<std::array<int16_t, 4>> einstellungen = {
        {7, 0, 1, 0}, {0, -1, 1, 0}, {1, 300, 1, 0}, {2, -32768, 1, 1}, {2, 2, 1, 0}, {-1, 1, 1, 5}};
    for (const auto& e : einstellungen) {
        SCOPED_TRACE(e[0] * 1000 + e[1]);
        ini(e[0], e[1], e[2], e[3]);
        ordner.schreibe("QZ.sta", muell(17));
        ordner.schreibe("QZ3.DAT", muell(15 * 200 + 7));
        ordner.schreibe("QZ2.DAT", muell(4));
        spiel.programmStart(3);
        spiel.neuesSpiel();
        for (int t = 0; t < kFelder; ++t)
            for (int k = 0; k < kFiguren; ++k)
                spiel.abgelegt(t, k);
        spiel.sprungfolgeSchliessen();
        spiel.computerZieht();
        EXPECT_LE(spiel.spielzug(), kSituationen);
    }
    // A file that cannot be written is reported in German and the game goes on.
    std::filesystem::remove(ordner / "QZ.sta");
    std::filesystem::create_directory(ordner / "QZ.sta");
    ini(2, 0, 0, 0);
    ansicht.meldungen.clear();
    spiel.neuesSpiel();
    ASSERT_FALSE(ansicht.meldungen.empty());
    EXPECT_NE(ansicht.meldungen.front().find("QZ.sta"), std::string::npos);
    EXPECT_TRUE(spiel.endeGefunden());
}

} // namespace
} // namespace fuh
