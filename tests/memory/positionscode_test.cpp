// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "memory/partie.h"

namespace fuh {
namespace {

TEST(Positionscode, GrundstellungUndSpiegelcode) {
    Stellung s;
    s.grundstellung();
    const Code c = positionscode(s.Feld);
    EXPECT_EQ(c, (Code{0x58, 0x58, 0xB8, 0xB8, 0xB8, 0x58, 0x58, 0x42, 0x42, 0x44, 0x42}));
    EXPECT_EQ(spiegelcode(c), (Code{0x58, 0x58, 0xB8, 0xB8, 0xB8, 0x58, 0x58, 0x44, 0x42, 0x42, 0x42}));
}

TEST(Partie, SchreibtNieUeberDenLetztenSatz) {
    Stellung s;
    s.grundstellung();
    Partie p;
    for (int i = 0; i < 200; ++i)
        p.pstoSits(s.Feld, {});
    EXPECT_EQ(p.spielzug, kSituationen);
    p.sanktion(1, 1, 1);
    p.sanktion(1, 1, 0);
    EXPECT_EQ(p.sits[150].hennenwert, 2);
    for (int i = 0; i < 400; ++i) // bookings stop at the 16-bit limits
        p.sanktion(-100, 100, 1);
    EXPECT_EQ(p.sits[0].hennenwert, -32768);
    EXPECT_EQ(p.sits[0].fuchswert, 32767);
}

} // namespace
} // namespace fuh
