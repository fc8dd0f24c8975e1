#include <gtest/gtest.h>

#include "player/hennenspieler.h"
#include "test_tisch.h"

namespace fuh {
namespace {

struct HennenTest : ::testing::Test {
    test::TestTisch tisch;
    Fuchsspieler fuchsspieler{tisch};
    Hennenspieler hennen{tisch, fuchsspieler};
};

TEST_F(HennenTest, EroeffnungZiehtDieMittlereHenneHoch) {
    for (int staerke : {0, 1}) {
        test::TestTisch t;
        Fuchsspieler f{t};
        Hennenspieler h{t, f};
        t.Staerke = staerke; // an empty learned-move file changes nothing
        h.berechneHennen();
        EXPECT_EQ(t.s.vonX, 3);
        EXPECT_EQ(t.s.vonY, 3);
        EXPECT_EQ(t.s.nachX, 3);
        EXPECT_EQ(t.s.nachY, 2);
        EXPECT_EQ(t.s.Feld[3][2], henne);
        EXPECT_EQ(h.bewertungen()[0].lage, 217);
        EXPECT_FALSE(t.ansicht.hinweise[Hinweis::h_zug]);
    }
}

TEST_F(HennenTest, KandidatenInSchachtelungsreihenfolge) {
    tisch.aufstellen({{0, 0, 2}, {1, 6, 2}, {2, 3, 3}});
    hennen.berechneHennen();
    const auto& k = hennen.kandidaten();
    // x outermost, then y, then dx, then dy: (2, 2), (2, 3), (3, 2), (4, 2), (4, 3).
    const std::vector<std::array<int16_t, 4>> erwartet = {
        {3, 3, 2, 2}, {3, 3, 2, 3}, {3, 3, 3, 2}, {3, 3, 4, 2}, {3, 3, 4, 3}};
    for (std::size_t i = 0; i < erwartet.size(); ++i)
        EXPECT_EQ(k[i + 1], erwartet[i]) << i;
}

TEST_F(HennenTest, BedrohteFelderZaehlenNichtAlsRaum) {
    // One hen on (3, 4); the fox on (1, 3) threatens (2, 4) along the diagonal, (3, 5) behind it being empty.
    tisch.aufstellen({{0, 1, 3}, {1, 6, 4}, {2, 3, 4}});
    hennen.berechneHennen();
    // The hen can reach (3, 3), (2, 4) and (4, 4); only (3, 3) and (4, 4) are safe.
    const auto& b = hennen.bewertungen();
    EXPECT_EQ(b[0].lage, 9);
    EXPECT_EQ(b[0].raum, 20 + 9);
}

TEST_F(HennenTest, OhneKandidatKeinZug) {
    // Three hens side by side on the top row cannot move at all.
    tisch.aufstellen({{0, 3, 3}, {1, 4, 4}, {2, 2, 0}, {3, 3, 0}, {4, 4, 0}});
    const Brettfeld vorher = tisch.s.Feld;
    hennen.berechneHennen();
    EXPECT_EQ(tisch.s.vonX, 0);
    EXPECT_EQ(tisch.s.vonY, 0);
    EXPECT_EQ(tisch.s.nachX, 0);
    EXPECT_EQ(tisch.s.nachY, 0);
    EXPECT_EQ(tisch.s.Feld, vorher);
}

} // namespace
} // namespace fuh
