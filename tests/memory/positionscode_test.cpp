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

    s.Feld[1][0] = s.Feld[1][1] = s.Feld[1][5] = s.Feld[1][6] = henne; // a full column (not on the cross)
    s.Feld[1][2] = henne;
    s.Feld[6][3] = s.Feld[6][4] = leer;
    const Code d = positionscode(s.Feld);
    EXPECT_EQ(d[1], 191);
    EXPECT_EQ(d[6], 64);
    EXPECT_EQ(spiegelcode(d)[5], 191);
}

TEST(Positionscode, GeparkterFuchsKommtZuerst) {
    Stellung s;
    s.grundstellung();
    s.Feld[4][2] = leer;
    s.Feld[0][0] = fuchs;
    const Code c = positionscode(s.Feld);
    EXPECT_EQ(c[7], 64);
    EXPECT_EQ(c[8], 64);
    EXPECT_EQ(c[9], 66);
    EXPECT_EQ(c[10], 66);
    const Fuchsplaetze f = fuchsplaetze(c);
    EXPECT_EQ(f.x1, 0);
    EXPECT_EQ(f.y1, 0);
    EXPECT_EQ(f.x2, 2);
    EXPECT_EQ(f.y2, 2);
}

TEST(Partie, AufzeichnungUndBuchungen) {
    Stellung s;
    s.grundstellung();
    Partie p;
    s.vonX = 2, s.vonY = 2, s.nachX = 4, s.nachY = 4;
    p.pstoSits(s);
    EXPECT_EQ(p.sits[0].sprung, 1);
    s.vonX = 3, s.vonY = 3, s.nachX = 3, s.nachY = 2;
    for (int i = 1; i < 8; ++i)
        p.pstoSits(s);
    EXPECT_EQ(p.sits[1].sprung, 0);
    EXPECT_EQ(p.spielzug, 8);

    p.sanktion(1, -1, 0); // records 7 down to 3
    p.sanktion(-3, 3, 1); // every record
    EXPECT_EQ(p.sits[7].hennenwert, -2);
    EXPECT_EQ(p.sits[3].fuchswert, 2);
    EXPECT_EQ(p.sits[2].hennenwert, -3);
    EXPECT_EQ(p.sits[0].fuchswert, 3);

    Partie kurz;
    kurz.pstoSits(s);
    kurz.pstoSits(s);
    kurz.sanktion(1, -1, 0); // record 0 is never booked by a short booking
    EXPECT_EQ(kurz.sits[0].hennenwert, 0);
    EXPECT_EQ(kurz.sits[1].hennenwert, 1);
    for (int i = 0; i < 400; ++i)
        kurz.sanktion(-100, 100, 1);
    EXPECT_EQ(kurz.sits[1].hennenwert, -32768);
    EXPECT_EQ(kurz.sits[0].fuchswert, 32767);
}

TEST(Partie, SchreibtNieUeberDenLetztenSatz) {
    Stellung s;
    s.grundstellung();
    Partie p;
    for (int i = 0; i < 200; ++i)
        p.pstoSits(s);
    EXPECT_EQ(p.spielzug, kSituationen);
    p.sanktion(1, 1, 1);
    p.sanktion(1, 1, 0);
    EXPECT_EQ(p.sits[150].hennenwert, 2);
}

} // namespace
} // namespace fuh
