#include <gtest/gtest.h>

#include "board/zug.h"
#include "test_ansicht.h"

namespace fuh {
namespace {

struct Buchungen : Gutschrift {
    std::vector<std::array<int, 3>> liste;
    void sanktion(int16_t H, int16_t F, int16_t q) override { liste.push_back({H, F, q}); }
};

struct ZugTest : ::testing::Test {
    Stellung s;
    Figurbilder bilder;
    test::TestAnsicht ansicht;
    Buchungen buchungen;
    Zugumgebung u{s, bilder, ansicht, buchungen};

    void SetUp() override {
        s.grundstellung();
        bilder.aufstellen(s);
    }
    void ziehe(int vx, int vy, int nx, int ny, int PC, bool normal = true) {
        s.vonX = static_cast<int16_t>(vx);
        s.vonY = static_cast<int16_t>(vy);
        s.nachX = static_cast<int16_t>(nx);
        s.nachY = static_cast<int16_t>(ny);
        zug(u, PC, normal);
    }
    // Fox 0 on (2, 4) next to the hen on (3, 4), with (4, 4) emptied.
    void sprungVorbereiten() {
        s.Feld[2][2] = leer;
        s.Feld[2][4] = fuchs;
        s.figurplatz[11] = 0; // the hen that stood on (2, 4)
        s.figurplatz[0] = feldNummer(2, 4);
        s.Feld[4][4] = leer;
        s.figurplatz[13] = 0;
        bilder.aufstellen(s);
    }
};

TEST_F(ZugTest, MenschlicherFuchsSpringtUndOeffnetSprungfolge) {
    sprungVorbereiten();
    ziehe(2, 4, 4, 4, 1);
    EXPECT_EQ(s.Feld[3][4], leer);
    EXPECT_EQ(s.Feld[4][4], fuchs);
    EXPECT_EQ(s.Feld[2][4], leer);
    EXPECT_FALSE(bilder.sichtbar[12]);
    EXPECT_EQ(s.figurplatz[12], 0);
    EXPECT_EQ(s.figurplatz[0], feldNummer(4, 4));
    EXPECT_TRUE(s.imSprung);
    EXPECT_EQ(s.sprungX, 4);
    EXPECT_EQ(s.sprungY, 4);
    EXPECT_TRUE(ansicht.hinweise[Hinweis::spr_msg]);
    EXPECT_EQ(buchungen.liste, (std::vector<std::array<int, 3>>{{-1, 1, 0}}));
    EXPECT_EQ(bilder.left[0], platzLeft(feldNummer(4, 4))); // the human's piece snaps
    EXPECT_EQ(ansicht.bewegungen, 1);
}

TEST_F(ZugTest, GleitenEndetNebenDemFeld) {
    bilder.left[0] = 1860;
    bilder.top[0] = platzTop(feldNummer(0, 3));
    gleiten(bilder, ansicht, 0, 2730, platzTop(feldNummer(0, 2)));
    EXPECT_EQ(bilder.left[0], 2760);                            // 870 / 100 rounds to 9 per step
    EXPECT_EQ(bilder.top[0], platzTop(feldNummer(0, 3)) - 800); // one row of 840 moves 800
    bilder.left[1] = 0;
    gleiten(bilder, ansicht, 1, 250, 0); // 2.5 per step rounds to the even 2
    EXPECT_EQ(bilder.left[1], 200);
    bilder.left[1] = 0;
    gleiten(bilder, ansicht, 1, 350, 0); // 3.5 rounds to 4
    EXPECT_EQ(bilder.left[1], 400);
}

} // namespace
} // namespace fuh
