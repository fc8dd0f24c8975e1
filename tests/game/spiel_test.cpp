// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "memory/partie.h"
#include "mensch.h"
#include "player/strafregel.h"
#include "spiel_fixture.h"

namespace fuh {
namespace {

using test::SpielTest;

// With the computer playing the hens, after their opening the hen on (2, 4) is moved by hand to (3, 3):
// the fox on (2, 2) can then jump (2, 3) and, from (2, 4), (1, 3).
struct FuchsSpieltTest : SpielTest {
    void SetUp() override {
        starten(1);
        versetzen(feldNummer(2, 4), feldNummer(3, 3));
    }
};

TEST_F(FuchsSpieltTest, NeuNachFangUndStrafeStelltAllesAuf) {
    ziehe(4, 2, 4, 1); // a step although both foxes could jump
    spiel.computerZieht();
    ASSERT_EQ(ansicht.meldungen, std::vector<std::string>{deutsch(Vorlage::fuchsAusgeschlossen)});
    ASSERT_TRUE(figur_index(spiel.stellung(), kParkfeld).has_value());
    ziehe(2, 2, 2, 4); // the remaining fox captures
    ASSERT_EQ(spiel.stellung().Feld[2][3], leer);

    // Every piece is back and shown, the captured hens and the parked fox too; then the hens open.
    spiel.neuesSpiel();
    Stellung erwartet;
    erwartet.grundstellung();
    erwartet.Feld[3][3] = leer;
    erwartet.Feld[3][2] = henne;
    EXPECT_EQ(spiel.stellung().Feld, erwartet.Feld);
    for (int k = 0; k < kFiguren; ++k)
        EXPECT_NE(spiel.stellung().figurplatz[k], kParkfeld) << k;
    EXPECT_EQ(spiel.spielzug(), 1);
    EXPECT_EQ(statistik(14), 2);
}

// Computer against computer, shown move by move or played at once: the same moves, messages and files.
TEST(Selbstspiel, SchrittweiseGleichtDemSpielInEinemZug) {
    struct Mitschrift : test::TestAnsicht {
        std::string zuege;
        void zugAusgefuehrt(int vx, int vy, int nx, int ny, bool normal) override {
            zuege += std::to_string(vx) + std::to_string(vy) + std::to_string(nx) + std::to_string(ny) +
                     (normal ? ' ' : '!');
        }
    };
    struct Lauf {
        test::TempOrdner ordner;
        Mitschrift ansicht;
        Zufall zufall{4242};
        Spiel spiel{ansicht, zufall, ordner.pfad()};
        explicit Lauf(bool schrittweise) {
            spiel.einstellungenFestlegen({2, 2, 1, 0});
            spiel.schrittweise(schrittweise);
            for (int n = 0; n < 3; ++n) {
                spiel.neuesSpiel();
                while (spiel.computerZieht()) {
                }
            }
        }
    };
    const Lauf ganz(false), schritte(true);
    EXPECT_FALSE(ganz.ansicht.zuege.empty());
    EXPECT_EQ(std::tie(ganz.ansicht.zuege, ganz.ansicht.meldungen),
              std::tie(schritte.ansicht.zuege, schritte.ansicht.meldungen));
    EXPECT_EQ(test::dateien(ganz.ordner), test::dateien(schritte.ordner));
}

// A game watched move by move and stopped by "Neu" is abandoned: started, never finished or learned.
TEST_F(SpielTest, AbgebrochenesSelbstspielWirdNichtAbgelegt) {
    ini(2, 2, 1);
    spiel.schrittweise(true);
    spiel.programmStart(1);
    spiel.neuesSpiel();
    for (int i = 0; i < 10; ++i)
        ASSERT_TRUE(spiel.computerZieht());
    spiel.neuesSpiel();
    EXPECT_FALSE(spiel.selbstspielLaeuft() && spiel.spielzug() != 0);
    EXPECT_EQ(statistik(14), 2); // started twice
    EXPECT_EQ(statistik(0), 0);  // finished never
    EXPECT_EQ(ordner.lies("QZ3.DAT").size(), 0u);
}

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
