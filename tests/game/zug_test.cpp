// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "game/zug.h"
#include "test_ansicht.h"

namespace fuh {
namespace {

// A computer piece slides in 100 rounded steps and so ends a few twips beside its square.
TEST(Zug, GleitenEndetNebenDemFeld) {
    Figurbilder bilder;
    test::TestAnsicht ansicht;
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
