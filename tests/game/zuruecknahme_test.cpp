// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mensch.h"
#include "spiel_fixture.h"
#include "spieldaten/statistikdatei.h"

namespace fuh::test {
namespace {

bool geparkt(const Spielstand& z) {
    return z.stellung.Feld[0][0] == fuchs;
}

// What the runs reached: moves taken back, chains of jumps among them, penalties.
struct Erreicht {
    int zuruecknahmen = 0, ketten = 0, strafen = 0;
};

// One game of a random player against the computer; every move is taken back, redone, taken back and
// made anew (see below).
void partieMitZuruecknahmen(int16_t PC, int16_t Staerke, uint32_t seed, Erreicht& erreicht) {
    TempOrdner ordner;
    TestAnsicht ansicht;
    Zufall zufall(seed), mensch(seed * 7);
    Spiel spiel(ansicht, zufall, ordner.pfad());
    spiel.einstellungenFestlegen({PC, Staerke, 1, 0});
    spiel.neuesSpiel();
    while (!spiel.endeGefunden()) {
        const Spielstand vorher = spiel.zustand();
        const std::vector<Aktion> zug = menschZieht(spiel, mensch);
        if (zug.empty() || spiel.endeGefunden()) break;
        spiel.computerZieht();
        if (spiel.endeGefunden()) break;
        const Spielstand nachher = spiel.zustand();
        const auto bytes = dateien(ordner);

        ASSERT_TRUE(spiel.zuruecknehmenMoeglich());
        spiel.zuruecknehmen();
        Spielstand erwartet = vorher;
        erwartet.zurueckgenommen = true;
        ASSERT_TRUE(spiel.zustand() == erwartet)
            << "seed " << seed << ", position " << vorher.partie.spielzug;
        ASSERT_EQ(dateien(ordner), bytes);

        // Redo brings the move and the reply back exactly; then take them back again.
        erwartet = nachher;
        erwartet.zurueckgenommen = true;
        ASSERT_TRUE(spiel.wiederholenMoeglich());
        spiel.wiederholen();
        ASSERT_TRUE(spiel.zustand() == erwartet);
        ASSERT_FALSE(spiel.wiederholenMoeglich());
        spiel.zuruecknehmen();

        for (const Aktion& a : zug)
            ausfuehren(spiel, a);
        spiel.computerZieht();
        ASSERT_FALSE(spiel.wiederholenMoeglich()); // a move made anew: nothing to redo
        ASSERT_TRUE(spiel.zustand() == erwartet)
            << "seed " << seed << ", position " << vorher.partie.spielzug;
        ++erreicht.zuruecknahmen;
        erreicht.ketten += zug.size() >= 2; // jumps closed by the right button
        erreicht.strafen += geparkt(vorher) != geparkt(nachher);
    }
}

// A random player against the computer on either side, learning at every strength: before each of its
// moves the whole game is copied. The move (a fox's whole chain of jumps) and the computer's reply are
// taken back, which must give that copy again and write no file; making the same move again must give
// the same game as the first time, random draws included, and so must redoing it.
TEST(Zuruecknahme, StelltDenGanzenStandHerUndDieselbenZuegeFolgen) {
    Erreicht erreicht;
    for (int16_t PC : {0, 1})
        for (int16_t Staerke : {0, 2})
            for (uint32_t seed : {11u, 12u, 13u, 14u})
                ASSERT_NO_FATAL_FAILURE(partieMitZuruecknahmen(PC, Staerke, seed, erreicht));
    // The runs reach what the test is about.
    EXPECT_GT(erreicht.zuruecknahmen, 200);
    EXPECT_GT(erreicht.ketten, 0);
    EXPECT_GT(erreicht.strafen, 2);
}

// A chain of two jumps and the computer's reply are one move: taking it back restores the game as it
// was before the first jump.
TEST_F(SpielTest, ZuruecknahmeEinerKetteAusZweiSpruengen) {
    ini(1);
    spiel.programmStart(1);
    spiel.neuesSpiel(); // the hens open
    versetzen(feldNummer(2, 4), feldNummer(0, 2));
    versetzen(feldNummer(2, 6), feldNummer(1, 2));
    const Spielstand vorher = spiel.zustand();
    ziehe(2, 2, 2, 4);
    ziehe(2, 4, 2, 6);
    ASSERT_EQ(spiel.stellung().Feld[2][5], leer);
    ASSERT_TRUE(spiel.sprungfolge().imSprung);
    spiel.sprungfolgeSchliessen();
    ASSERT_TRUE(spiel.computerZieht());
    spiel.zuruecknehmen();
    Spielstand erwartet = vorher;
    erwartet.zurueckgenommen = true;
    EXPECT_TRUE(spiel.zustand() == erwartet);
    EXPECT_FALSE(spiel.zuruecknehmenMoeglich()); // nothing before it
}

TEST_F(SpielTest, ZuruecknahmeNurImLaufendenSpielGegenDenComputer) {
    spiel.programmStart(0);
    EXPECT_FALSE(spiel.zuruecknehmenMoeglich());
    ini(0);
    spiel.neuesSpiel();
    EXPECT_FALSE(spiel.zuruecknehmenMoeglich()); // nothing moved yet
    const Spielstand anfang = spiel.zustand();
    ziehe(3, 3, 3, 2);
    ASSERT_TRUE(spiel.zuruecknehmenMoeglich()); // also before the computer's reply
    spiel.zuruecknehmen();
    EXPECT_EQ(spiel.stellung(), anfang.stellung);
    EXPECT_FALSE(spiel.zuruecknehmenMoeglich()); // back at the start
    spiel.zuruecknehmen();
    EXPECT_EQ(spiel.stellung(), anfang.stellung);

    // Changed settings would come back with the moves made under them: those moves stay.
    ziehe(3, 3, 3, 2);
    einstellen(0, 1);
    EXPECT_FALSE(spiel.zuruecknehmenMoeglich());

    // The computer against itself: the game is over when "Neu" returns.
    ini(2);
    spiel.neuesSpiel();
    EXPECT_TRUE(spiel.endeGefunden());
    EXPECT_FALSE(spiel.zuruecknehmenMoeglich());
}

TEST_F(SpielTest, NachDerZuruecknahmeKeineBestenliste) {
    ini(0, 2, 1);
    spiel.neuesSpiel();
    ziehe(3, 3, 3, 2);
    spiel.computerZieht();
    spiel.zuruecknehmen();
    EXPECT_EQ(ansicht.panels[4], "Zurückgenommen: keine Bestenliste");
    Zufall mensch(5);
    while (!spiel.endeGefunden()) {
        ASSERT_FALSE(menschZieht(spiel, mensch).empty());
        if (!spiel.endeGefunden()) spiel.computerZieht();
    }
    // Filed, counted and learned from as any game, but offered to no list.
    EXPECT_FALSE(spiel.zuruecknehmenMoeglich());
    EXPECT_TRUE(ansicht.fenster.empty());
    EXPECT_FALSE(spiel.oeffentlich().sw_spielende);
    EXPECT_EQ(statistikLesen(ordner.pfad()).beendet(), 1);
    EXPECT_FALSE(ordner.lies("QZ3.DAT").empty());
    spiel.neuesSpiel();
    EXPECT_EQ(ansicht.panels[4], "");
}

} // namespace
} // namespace fuh::test
