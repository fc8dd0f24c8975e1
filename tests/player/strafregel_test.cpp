#include <gtest/gtest.h>

#include "player/strafregel.h"
#include "test_tisch.h"

namespace fuh {
namespace {

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
        t.aufstellen({{0, 2, 2}, {2, 2, 3}, {1, 4, f.fuchs1Y}, {3, 4, 3}});
        t.aufzeichnen();
        t.s.vonX = 2, t.s.vonY = 2;
        t.s.nachX = static_cast<int16_t>(f.nachX), t.s.nachY = static_cast<int16_t>(f.nachY);
        t.zug(true);
        t.partie.pstoSits(t.s);
        strafregel(t);
        EXPECT_EQ(t.s.figurplatz[f.entfernt], 0) << f.fuchs1Y << f.nachY;
        EXPECT_NE(t.s.figurplatz[1 - f.entfernt], 0);
        EXPECT_EQ(t.s.Feld[0][0], fuchs);
    }
}

} // namespace
} // namespace fuh
