// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "board/regeln.h"
#include "board/sprung.h"
#include "leeres_kreuz.h"

namespace fuh {
namespace {

using test::leeresKreuz;

// Hens never move down and only along drawn lines; foxes step or jump straight; an open jump sequence
// allows only further jumps of the same fox.
TEST(Regeln, ZuegeAnDenKanten) {
    const Sprungfolge keine;
    Stellung s = leeresKreuz();
    s.Feld[3][3] = henne;
    std::vector<std::pair<int, int>> ziele;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (korrekterZug(s.Feld, Seite::Hennen, keine, 3, 3, x, y)) ziele.emplace_back(x, y);
    EXPECT_EQ(ziele, (std::vector<std::pair<int, int>>{{2, 2}, {2, 3}, {3, 2}, {4, 2}, {4, 3}}));
    EXPECT_FALSE(korrekterZug(s.Feld, Seite::Fuchs, keine, 3, 3, 3, 2)); // not a piece of the foxes

    Stellung t = leeresKreuz();
    t.Feld[3][2] = fuchs; // x + y odd: no diagonals
    t.Feld[4][3] = henne;
    t.Feld[2][2] = henne;
    EXPECT_FALSE(korrekterZug(t.Feld, Seite::Fuchs, keine, 3, 2, 5, 4));
    EXPECT_TRUE(korrekterZug(t.Feld, Seite::Fuchs, keine, 3, 2, 1, 2));   // straight jump
    EXPECT_FALSE(korrekterZug(t.Feld, Seite::Fuchs, keine, 3, 2, 2, 2));  // occupied
    EXPECT_FALSE(korrekterZug(t.Feld, Seite::Hennen, keine, 3, 2, 1, 2)); // not a piece of the hens

    t.Feld[5][2] = fuchs;
    t.Feld[5][3] = henne;
    const Sprungfolge offen{true, 3, 2};
    EXPECT_FALSE(korrekterZug(t.Feld, Seite::Fuchs, offen, 3, 2, 3, 1)); // no step after a jump
    EXPECT_FALSE(korrekterZug(t.Feld, Seite::Fuchs, offen, 5, 2, 6, 2)); // nor a step of the other fox
    EXPECT_FALSE(korrekterZug(t.Feld, Seite::Fuchs, offen, 5, 2, 5, 4)); // nor its jump
    EXPECT_TRUE(korrekterZug(t.Feld, Seite::Fuchs, keine, 5, 2, 5, 4));
    EXPECT_TRUE(korrekterZug(t.Feld, Seite::Fuchs, offen, 3, 2, 1, 2));
}

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
