// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "board/sprung.h"
#include "leeres_kreuz.h"

namespace fuh {
namespace {

Brettfeld leer7() {
    return test::leeresKreuz().Feld;
}

// A jump's value with its follow-up jumps; diagonals only from squares with x + y even; no landing on an
// occupied square or off the cross.
TEST(Sprung, WertMitFolgespruengen) {
    Brettfeld f = leer7();
    f[3][2] = fuchs;
    f[3][3] = henne;
    EXPECT_EQ(issprung(3, 2, 0, 1, f), 5); // 8 - 6 + 3
    f[2][4] = henne;
    f[4][4] = henne;
    const Brettfeld vorher = f;
    EXPECT_EQ(issprung(3, 2, 0, 1, f), 13); // plus 6 - 3 + 1 twice
    EXPECT_EQ(f, vorher);
    EXPECT_EQ(is2sprung(3, 2, 0, 1, f), 5);
    f[1][4] = henne; // a blocked follow-up counts nothing
    EXPECT_EQ(issprung(3, 2, 0, 1, f), 9);

    f = leer7();
    f[3][2] = fuchs;
    f[4][3] = henne;
    EXPECT_FALSE(isjump(f, 3, 2));
    EXPECT_EQ(issprung(3, 2, 1, 1, f), 0);
    f[2][2] = fuchs;
    f[3][3] = henne;
    EXPECT_TRUE(isjump(f, 2, 2));
    f[4][4] = henne;
    EXPECT_FALSE(isjump(f, 2, 2));

    f = leer7();
    f[2][1] = fuchs;
    f[1][1] = 0;
    f[2][0] = henne;
    EXPECT_EQ(issprung(2, 1, 0, -1, f), 0);
}

} // namespace
} // namespace fuh
