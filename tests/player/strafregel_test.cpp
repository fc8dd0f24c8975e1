#include <gtest/gtest.h>

#include "player/strafregel.h"
#include "test_tisch.h"

namespace fuh {
namespace {

// Fox 0 could jump the hen on (2, 3) onto the empty (2, 4) but stepped to (2, 1) instead.
struct StrafTest : ::testing::Test {
    test::TestTisch tisch;
    Brettfeld psfig{};

    void SetUp() override {
        tisch.s.Feld[2][4] = leer;
        tisch.s.figurplatz[11] = 0;
        tisch.aufzeichnen();
        fuchsZieht(2, 2, 2, 1);
    }
    void fuchsZieht(int vx, int vy, int nx, int ny) {
        tisch.s.vonX = static_cast<int16_t>(vx);
        tisch.s.vonY = static_cast<int16_t>(vy);
        tisch.s.nachX = static_cast<int16_t>(nx);
        tisch.s.nachY = static_cast<int16_t>(ny);
        tisch.zug(true);
        tisch.partie.pstoSits(tisch.s);
    }
};

TEST_F(StrafTest, VersaeumterSprungParktDenFuchs) {
    strafregel(tisch, psfig);
    EXPECT_EQ(tisch.ansicht.meldungen, std::vector<std::string>{kFuchsAusgeschlossen});
    EXPECT_EQ(tisch.s.Feld[0][0], fuchs);
    EXPECT_EQ(tisch.s.Feld[2][1], leer);
    EXPECT_EQ(tisch.s.figurplatz[0], 0);
    EXPECT_FALSE(tisch.fuchsNull);
    EXPECT_TRUE(tisch.endechecks.empty());
}

TEST_F(StrafTest, NichtImEinzelzugmodusUndNichtZuFrueh) {
    tisch.einzel = 1;
    strafregel(tisch, psfig);
    EXPECT_TRUE(tisch.ansicht.meldungen.empty());
    tisch.einzel = 0;
    tisch.partie.spielzug = 1;
    strafregel(tisch, psfig);
    EXPECT_TRUE(tisch.ansicht.meldungen.empty());
    EXPECT_EQ(tisch.s.Feld[2][1], fuchs);
}

TEST_F(StrafTest, LetzterFuchsBeendetDasSpiel) {
    strafregel(tisch, psfig); // fox 0 parked
    // Fox 1 on (4, 2) could jump (4, 3) onto an emptied (4, 4) and steps instead.
    tisch.s.Feld[4][4] = leer;
    tisch.s.figurplatz[13] = 0;
    tisch.partie.pstoSits(tisch.s);
    fuchsZieht(4, 2, 5, 2);
    tisch.ansicht.meldungen.clear();
    strafregel(tisch, psfig);
    EXPECT_EQ(tisch.ansicht.meldungen, std::vector<std::string>{kFuchsAusgeschlossen});
    EXPECT_TRUE(tisch.fuchsNull);
    EXPECT_EQ(tisch.endechecks, std::vector<int16_t>{fuchs});
    EXPECT_EQ(tisch.s.Feld[5][2], fuchs); // it stays where it is
    EXPECT_EQ(tisch.s.nachX, 0);
    EXPECT_EQ(tisch.s.nachY, 0);
}

TEST_F(StrafTest, NachEinemSprungKehrtDerGeparkteFuchsZurueck) {
    strafregel(tisch, psfig);
    tisch.s.Feld[4][4] = leer;
    tisch.s.figurplatz[13] = 0;
    fuchsZieht(4, 2, 4, 4); // fox 1 jumps the hen on (4, 3)
    ASSERT_EQ(tisch.partie.sits[tisch.partie.spielzug - 1].sprung, 1);
    tisch.ansicht.meldungen.clear();
    strafregel(tisch, psfig);
    EXPECT_EQ(tisch.ansicht.meldungen, std::vector<std::string>{kFuchsEingesetzt});
    EXPECT_EQ(tisch.s.Feld[0][0], leer);
    EXPECT_EQ(tisch.s.Feld[0][2], fuchs); // first empty square of rows 2..6, column 0 first
    EXPECT_EQ(tisch.s.figurplatz[0], feldNummer(0, 2));
}

TEST(Strafregel, BeideKonntenSpringenDerHoeherStehendeGeht) {
    // Both foxes had a jump before fox 0 stepped; the fox standing higher now is removed, the first
    // one on equal rows. Foxes are matched by their place in the scan order.
    struct Fall {
        int fuchs1Y;      // fox 1 on (4, y) with a hen below it
        int nachX, nachY; // fox 0 steps from (2, 2) to here
        int entfernt;     // piece that is parked
    };
    for (const Fall f : {Fall{4, 1, 2, 0}, Fall{2, 1, 3, 1}, Fall{2, 1, 2, 0}}) {
        test::TestTisch t;
        Brettfeld psfig{};
        t.aufstellen({{0, 2, 2}, {2, 2, 3}, {1, 4, f.fuchs1Y}, {3, 4, 3}});
        t.aufzeichnen();
        t.s.vonX = 2, t.s.vonY = 2;
        t.s.nachX = static_cast<int16_t>(f.nachX), t.s.nachY = static_cast<int16_t>(f.nachY);
        t.zug(true);
        t.partie.pstoSits(t.s);
        strafregel(t, psfig);
        EXPECT_EQ(t.s.figurplatz[f.entfernt], 0) << f.fuchs1Y << f.nachY;
        EXPECT_NE(t.s.figurplatz[1 - f.entfernt], 0);
        EXPECT_EQ(t.s.Feld[0][0], fuchs);
    }
}

} // namespace
} // namespace fuh
