#include <gtest/gtest.h>

#include "player/fuchsspieler.h"
#include "test_tisch.h"

namespace fuh {
namespace {

struct FuchsTest : ::testing::Test {
    test::TestTisch tisch;
    Fuchsspieler spieler{tisch};
};

TEST_F(FuchsTest, FangbonusImZielfeldEntscheidet) {
    // Fox 0 jumps the hen on (2, 1): 11 - 8 + 4 = 7, plus 40 in the target area.
    // Fox 1 jumps (5, 4) and then (4, 3): 9 + 11 = 20 without a bonus.
    tisch.aufstellen({{0, 2, 2}, {2, 2, 1}, {1, 6, 4}, {3, 5, 4}, {4, 4, 3}});
    tisch.PC = 0;
    spieler.berechneFuchs(false, tisch.s.Feld);
    EXPECT_EQ(tisch.s.Feld[2][0], fuchs);
    EXPECT_EQ(tisch.s.Feld[2][1], leer);
    EXPECT_EQ(tisch.s.Feld[5][4], henne); // the other fox does not move in that turn
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

} // namespace
} // namespace fuh
