#include <gtest/gtest.h>

#include "player/fuchsspieler.h"
#include "test_tisch.h"

namespace fuh {
namespace {

struct FuchsTest : ::testing::Test {
    test::TestTisch tisch;
    Fuchsspieler spieler{tisch};
    void zugIst(int vx, int vy, int nx, int ny) {
        EXPECT_EQ(tisch.s.vonX, vx);
        EXPECT_EQ(tisch.s.vonY, vy);
        EXPECT_EQ(tisch.s.nachX, nx);
        EXPECT_EQ(tisch.s.nachY, ny);
    }
};

TEST_F(FuchsTest, GrundstellungZiehtEinenFuchsNachDreiEinsPerLos) {
    for (uint32_t seed : {1u, 2u, 3u, 4u}) {
        test::TestTisch t;
        Fuchsspieler f{t};
        t.zufall.setzen(seed);
        Zufall vorschau = t.zufall;
        const int r = vorschau.ziehe(2); // two plain moves worth 9 - 8 + 10 = 11
        f.berechneFuchs(false, t.s.Feld);
        EXPECT_EQ(t.s.Feld[3][1], fuchs);
        EXPECT_EQ(t.s.vonX, r == 1 ? 2 : 4) << "seed " << seed;
        EXPECT_EQ(t.zufall.zustand(), vorschau.zustand()); // exactly one draw
        EXPECT_FALSE(t.ansicht.hinweise[Hinweis::f_zug]);
        EXPECT_EQ(t.ansicht.gezeigt, std::vector<Hinweis>{Hinweis::f_zug});
    }
}

TEST_F(FuchsTest, FangbonusImZielfeldEntscheidet) {
    // Fox 0 jumps the hen on (2, 1): 11 - 8 + 4 = 7, plus 40 in the target area.
    // Fox 1 jumps (5, 4) and then (4, 3): 9 + 11 = 20 without a bonus.
    tisch.aufstellen({{0, 2, 2}, {2, 2, 1}, {1, 6, 4}, {3, 5, 4}, {4, 4, 3}});
    tisch.PC = 0;
    spieler.berechneFuchs(false, tisch.s.Feld);
    zugIst(2, 2, 2, 0);
    EXPECT_EQ(tisch.s.Feld[2][1], leer);
    EXPECT_EQ(tisch.s.Feld[5][4], henne); // the other fox does not move in that turn
}

TEST_F(FuchsTest, SprungketteNurMitDemSpringendenFuchs) {
    tisch.aufstellen({{0, 2, 6}, {2, 2, 5}, {3, 2, 3}, {1, 4, 2}, {4, 4, 3}});
    Brettfeld arbeit = tisch.s.Feld;
    const Brettfeld vorher = tisch.s.Feld;
    spieler.berechneFuchs(true, arbeit); // a prediction: the whole chain on the working board only
    EXPECT_EQ(tisch.s.Feld, vorher);
    EXPECT_EQ(arbeit[2][2], fuchs);
    EXPECT_EQ(arbeit[2][5], leer);
    EXPECT_EQ(arbeit[2][3], leer);
    EXPECT_EQ(arbeit[4][3], henne);
    EXPECT_EQ(tisch.erinnerungen, 0);
    EXPECT_TRUE(tisch.ansicht.gezeigt.empty());

    tisch.PC = 0;
    spieler.berechneFuchs(false, tisch.s.Feld); // for real: two calls of zug, two captures
    EXPECT_EQ(tisch.s.Feld, arbeit);
    EXPECT_EQ(tisch.s.figurplatz[0], feldNummer(2, 2));
    EXPECT_EQ(tisch.s.figurplatz[2], 0);
    EXPECT_EQ(tisch.s.figurplatz[3], 0);
}

TEST_F(FuchsTest, VorhersageLiestKeineLerndatei) {
    tisch.Staerke = 2;
    Brettfeld arbeit = tisch.s.Feld;
    spieler.berechneFuchs(true, arbeit);
    EXPECT_FALSE(tisch.ordner.gibt("QZ3.DAT"));
    spieler.berechneFuchs(false, tisch.s.Feld);
    EXPECT_TRUE(tisch.ordner.gibt("QZ3.DAT")); // real play consults it, creating it empty
    EXPECT_EQ(tisch.erinnerungen, 8);          // once for every plain move worth at least 1
}

TEST_F(FuchsTest, WiederholungWirdGemieden) {
    // A parked fox and fox 0 on (3, 1): its best plain moves, to (2, 2) and (4, 2), are worth 9 each.
    tisch.aufstellen({{0, 3, 1}, {2, 6, 2}});
    tisch.s.Feld[0][0] = fuchs;
    tisch.PC = 0;
    // The position after the move to (2, 2) is a recent one: worth 1 now, so (4, 2) wins without a draw.
    Stellung danach = tisch.s;
    danach.Feld[3][1] = leer;
    danach.Feld[2][2] = fuchs;
    tisch.partie.pstoSits(danach);
    const uint32_t zustand = tisch.zufall.zustand();
    spieler.berechneFuchs(false, tisch.s.Feld);
    zugIst(3, 1, 4, 2);
    EXPECT_EQ(tisch.zufall.zustand(), zustand);
}

TEST_F(FuchsTest, OhneZugBleibtZielNullNull) {
    tisch.aufstellen({{0, 2, 0}, {1, 4, 0}, {2, 3, 0}, {3, 2, 1}, {4, 3, 1}, {5, 4, 1}, {6, 3, 2}});
    tisch.s.Feld[2][2] = henne; // no piece image needed for a blocked square
    tisch.s.Feld[4][2] = henne;
    spieler.berechneFuchs(false, tisch.s.Feld);
    EXPECT_EQ(tisch.s.nachX, 0);
    EXPECT_EQ(tisch.s.nachY, 0);
    EXPECT_TRUE(tisch.ansicht.hinweise[Hinweis::f_zug]); // stays visible; the end check judges
}

} // namespace
} // namespace fuh
