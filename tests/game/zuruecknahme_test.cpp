// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <sstream>

#include "mensch.h"
#include "spiel_fixture.h"
#include "spieldaten/statistikdatei.h"

namespace fuh::test {
namespace {

// What the game tells its view about the pieces is all a screen knows of them: this view keeps a board
// of its own from those reports alone, which must be the game's board after every step.
// Keeps the squares of the pieces from the reports and notes every report that could not have happened:
// a piece moved from where it does not stand, a hen taken twice, a fox returned that was never parked.
struct Nachbau : TestAnsicht {
    const Spiel* spiel = nullptr;
    std::array<int, kFiguren> platz{};
    int bewegungen = 0, gefangen = 0, geparkt = 0, zurueck = 0, aufstellungen = 0, enden = 0;
    int ausgefuehrt = 0;
    std::ostringstream fehler;

    void pruefen(bool ok, const char* was, int k) {
        if (!ok) fehler << was << " (piece " << k << ", move " << spiel->spielzug() << ")\n";
    }
    // The computer's pieces glide, a person's are set down.
    void bewegt(int k, int von, int nach, bool gleitet) {
        pruefen(platz[k] == von, "moved from a square it is not on", k);
        pruefen(gleitet == spiel->computerSpielt(k < kAnzahlFuechse ? Seite::Fuchs : Seite::Hennen),
                "glides for a person or snaps for the computer", k);
        pruefen(ausgefuehrt == bewegungen++, "a second report for one move", k);
        platz[k] = nach;
    }
    void figurGezogen(int k, int von, int nach, bool gleitet) override {
        pruefen(von != kParkfeld && nach != kParkfeld, "the parking square as a plain move", k);
        bewegt(k, von, nach, gleitet);
    }
    void henneGeschlagen(int k, int feld) override {
        pruefen(k >= kAnzahlFuechse && feld != kParkfeld && platz[k] == feld, "taken where no hen stands", k);
        platz[k] = kParkfeld;
        ++gefangen;
    }
    void fuchsGeparkt(int k, int von, bool gleitet) override {
        pruefen(k < kAnzahlFuechse && von != kParkfeld, "parked from off the cross", k);
        bewegt(k, von, kParkfeld, gleitet);
        ++geparkt;
    }
    void fuchsZurueck(int k, int nach, bool gleitet) override {
        pruefen(k < kAnzahlFuechse, "a hen returned", k);
        bewegt(k, kParkfeld, nach, gleitet);
        ++zurueck;
    }
    void aufgestellt(const Stellung& s) override {
        std::copy_n(s.figurplatz.begin(), kFiguren, platz.begin());
        ++aufstellungen;
    }
    void zugAusgefuehrt(int, int, int, int, bool) override {
        pruefen(++ausgefuehrt == bewegungen, "a move without its report", -1);
    }
    void spielEndet(const Spielausgang&) override { ++enden; }

    bool wieDasSpiel() const {
        return std::equal(platz.begin(), platz.end(), spiel->stellung().figurplatz.begin());
    }
};

// What the runs reached: moves taken back, chains of jumps among them, hens taken, foxes
// parked by the penalty rule and brought back.
struct Erreicht {
    int zuruecknahmen = 0, ketten = 0, gefangen = 0, geparkt = 0, zurueck = 0;
};

Spielstand zurueckgenommen(Spielstand z) {
    z.zurueckgenommen = true;
    return z;
}

// One game of a random player against the computer; every move is taken back, redone, taken back and
// made anew (see below).
void partieMitZuruecknahmen(int16_t PC, int16_t Staerke, uint32_t seed, Erreicht& erreicht) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    TempOrdner ordner;
    Nachbau ansicht;
    Zufall zufall(seed), mensch(seed * 7);
    Spiel spiel(ansicht, zufall, ordner.pfad());
    ansicht.spiel = &spiel;
    spiel.einstellungenFestlegen({PC, Staerke, 1, 0});
    spiel.neuesSpiel();
    while (!spiel.endeGefunden()) {
        const Spielstand vorher = spiel.zustand();
        const std::vector<Aktion> zug = menschZieht(spiel, mensch);
        if (zug.empty() || spiel.endeGefunden()) break;
        spiel.computerZieht(); // a wrong report of either move stays on the view's board
        ASSERT_TRUE(ansicht.wieDasSpiel()) << "move " << spiel.spielzug();
        if (spiel.endeGefunden()) break;
        const Spielstand nachher = spiel.zustand();
        const auto bytes = dateien(ordner);

        ASSERT_TRUE(spiel.zuruecknehmenMoeglich());
        spiel.zuruecknehmen();
        ASSERT_TRUE(spiel.zustand() == zurueckgenommen(vorher)) << "position " << vorher.partie.spielzug;
        ASSERT_EQ(dateien(ordner), bytes);
        ASSERT_TRUE(ansicht.wieDasSpiel()) << "after a take-back";

        // Redo brings the move and the reply back exactly; then take them back again.
        const Spielstand erwartet = zurueckgenommen(nachher);
        ASSERT_TRUE(spiel.wiederholenMoeglich());
        spiel.wiederholen();
        ASSERT_TRUE(spiel.zustand() == erwartet && ansicht.wieDasSpiel()) << "after a redo";
        ASSERT_FALSE(spiel.wiederholenMoeglich());
        spiel.zuruecknehmen();

        for (const Aktion& a : zug)
            ausfuehren(spiel, a);
        spiel.computerZieht();
        ASSERT_FALSE(spiel.wiederholenMoeglich()); // a move made anew: nothing to redo
        ASSERT_TRUE(spiel.zustand() == erwartet) << "position " << vorher.partie.spielzug;
        ASSERT_EQ(ansicht.fehler.str(), "");
        ++erreicht.zuruecknahmen;
        erreicht.ketten += zug.size() >= 2; // jumps closed by the right button
    }
    EXPECT_EQ(ansicht.enden, spiel.endeGefunden() ? 1 : 0);
    erreicht.gefangen += ansicht.gefangen;
    erreicht.geparkt += ansicht.geparkt;
    erreicht.zurueck += ansicht.zurueck;
}

// A random player against the computer on either side, learning at every strength: before each of its
// moves the whole game is copied. The move (a fox's whole chain of jumps) and the computer's reply are
// taken back, which must give that copy again and write no file; making the same move again must give
// the same game as the first time, random draws included, and so must redoing it. Each step, the
// penalty's parkings and returns, take-backs and the end reach the view exactly once.
TEST(Zuruecknahme, StelltDenGanzenStandHerUndDieselbenZuegeFolgen) {
    Erreicht erreicht;
    for (int16_t PC : {0, 1})
        for (int16_t Staerke : {0, 2})
            for (uint32_t seed : {11u, 12u, 13u, 14u})
                ASSERT_NO_FATAL_FAILURE(partieMitZuruecknahmen(PC, Staerke, seed, erreicht));
    // The runs reach what the test is about.
    EXPECT_GT(erreicht.zuruecknahmen, 200);
    EXPECT_GT(erreicht.ketten, 0);
    EXPECT_GT(erreicht.gefangen, 10);
    EXPECT_GT(erreicht.geparkt, 2);
    EXPECT_GT(erreicht.zurueck, 0);
}

// A chain of two jumps and the computer's reply are one move: taking it back restores the game as it
// was before the first jump.
TEST_F(SpielTest, ZuruecknahmeEinerKetteAusZweiSpruengen) {
    starten(1); // the hens open
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
    EXPECT_TRUE(spiel.zustand() == zurueckgenommen(vorher));
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
