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

TEST_F(HennenTest, BedrohteFelderZaehlenNichtAlsRaum) {
    // One hen on (3, 4); the fox on (1, 3) threatens (2, 4) along the diagonal, (3, 5) behind it being empty.
    tisch.aufstellen({{0, 1, 3}, {1, 6, 4}, {2, 3, 4}});
    hennen.berechneHennen();
    // The hen can reach (3, 3), (2, 4) and (4, 4); only (3, 3) and (4, 4) are safe.
    const auto& b = hennen.bewertungen();
    EXPECT_EQ(b[0].lage, 9);
    EXPECT_EQ(b[0].raum, 20 + 9);
}

} // namespace
} // namespace fuh
