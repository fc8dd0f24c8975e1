// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// What the game tells its view about the pieces is all a screen knows of them: a view that keeps a board
// of its own from those reports alone must have the game's board after every step.
#include <array>
#include <sstream>

#include "mensch.h"
#include "spiel_fixture.h"

namespace fuh::test {
namespace {

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

struct Erreicht {
    int gefangen = 0, geparkt = 0, zurueck = 0, zuruecknahmen = 0;
};

// A random person against the computer; every fourth move of the person is taken back once, as a
// take-back shows it: the pieces set up anew.
void partie(int16_t PC, uint32_t seed, Erreicht& erreicht) {
    TempOrdner ordner;
    Nachbau n;
    Zufall zufall(seed), mensch(seed * 5);
    Spiel spiel(n, zufall, ordner.pfad());
    n.spiel = &spiel;
    spiel.einstellungenFestlegen({PC, 0, 0, 0});
    spiel.neuesSpiel();
    ASSERT_EQ(n.aufstellungen, 1);
    for (int zug = 1; !spiel.endeGefunden(); ++zug) {
        if (zug % 4 == 0 && spiel.zuruecknehmenMoeglich()) {
            const int vorher = n.aufstellungen;
            spiel.zuruecknehmen();
            ASSERT_EQ(n.aufstellungen, vorher + 1) << "seed " << seed;
            ASSERT_TRUE(n.wieDasSpiel()) << "after a take-back, seed " << seed;
            ++erreicht.zuruecknahmen;
        }
        if (menschZieht(spiel, mensch).empty()) break;
        ASSERT_TRUE(n.wieDasSpiel()) << "seed " << seed << ", move " << spiel.spielzug();
        spiel.computerZieht();
        ASSERT_TRUE(n.wieDasSpiel()) << "seed " << seed << ", move " << spiel.spielzug();
        ASSERT_EQ(n.fehler.str(), "") << "seed " << seed;
    }
    ASSERT_EQ(n.fehler.str(), "") << "seed " << seed;
    EXPECT_EQ(n.ausgefuehrt, n.bewegungen);
    EXPECT_EQ(n.enden, spiel.endeGefunden() ? 1 : 0) << "seed " << seed;
    erreicht.gefangen += n.gefangen;
    erreicht.geparkt += n.geparkt;
    erreicht.zurueck += n.zurueck;
}

// Whole games with the person on either side: plain moves, chains of jumps taking hens, foxes parked by
// the penalty rule and brought back, take-backs and the end each reach the view exactly once.
TEST(Ereignisse, JedeAenderungErreichtDieAnsichtGenauEinmal) {
    Erreicht erreicht;
    for (int16_t PC : {0, 1})
        for (uint32_t seed : {21u, 22u, 23u, 24u})
            ASSERT_NO_FATAL_FAILURE(partie(PC, seed, erreicht));
    // The games reach what the test is about.
    EXPECT_GT(erreicht.gefangen, 10);
    EXPECT_GT(erreicht.geparkt, 0);
    EXPECT_GT(erreicht.zurueck, 0);
    EXPECT_GT(erreicht.zuruecknahmen, 10);
}

} // namespace
} // namespace fuh::test
