// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "player/meister.h"
#include "player/meister_zeit.h"

namespace fuh {
namespace {

using meister::Zeitplan;

TEST(MeisterZeit, NaechsteTiefeNachPrognose) {
    struct Fall {
        uint64_t verbraucht, letzte, vorletzte;
        bool erwartet;
    };
    // Budget 1000: below half a depth is always begun; above, only when it is predicted to fit.
    const Fall faelle[] = {
        {499, 400, 50, true},   // under half, however expensive
        {600, 100, 50, true},   // doubling: 600 + 200
        {600, 150, 50, false},  // tripling: 600 + 450
        {600, 140, 0, false},   // unknown growth counts as threefold: 600 + 420
        {600, 100, 0, true},    // 600 + 300
        {600, 10, 1, true},     // growth capped at eightfold: 600 + 80
        {600, 60, 1, false},    // 600 + 480
        {900, 50, 100, true},   // a shrinking depth still counts as growing a little: 900 + 60
        {900, 100, 100, false}, // 900 + 120
        {1000, 0, 0, false},    // spent
    };
    for (const Fall& f : faelle)
        EXPECT_EQ(Zeitplan::lohnt(f.verbraucht, f.letzte, f.vorletzte, 1000), f.erwartet)
            << f.verbraucht << ' ' << f.letzte << ' ' << f.vorletzte;
}

TEST(MeisterZeit, KnotenbudgetOhneUhr) {
    // With a node budget the clock is never asked: the stop comes exactly at the budget, and the cost
    // of a depth is counted in positions.
    Zeitplan plan(std::chrono::steady_clock::time_point{}, std::chrono::microseconds{1}, 1000);
    EXPECT_FALSE(plan.um(999));
    EXPECT_TRUE(plan.um(1000));
    EXPECT_TRUE(plan.naechsteTiefe(100));  // 100 of 1000
    EXPECT_TRUE(plan.naechsteTiefe(400));  // 400: under half
    EXPECT_FALSE(plan.naechsteTiefe(700)); // 300 after 300, and a depth grows: 700 + 360
}

TEST(MeisterZeit, SuchtBisZumBudgetUndGleichAufJederMaschine) {
    // The crowded opening under a node budget: the search spends at least half of it and never more,
    // and two searches give the same move, depth and count.
    Stellung start;
    start.grundstellung();
    for (const uint64_t budget : {2000u, 60000u}) {
        Meister a(5), b(5);
        a.grenzen(budget, 0);
        b.grenzen(budget, 0);
        const MeisterLage lage{start.Feld, henne, 0, true, std::chrono::milliseconds{1}};
        const Zugwahl wa = a.berechne(lage), wb = b.berechne(lage);
        EXPECT_EQ(wa, wb);
        EXPECT_EQ(a.bericht().knoten, b.bericht().knoten);
        EXPECT_EQ(a.bericht().tiefe, b.bericht().tiefe);
        EXPECT_GE(a.bericht().knoten, budget / 2) << budget;
        EXPECT_LE(a.bericht().knoten, budget) << budget;
    }
}

} // namespace
} // namespace fuh
