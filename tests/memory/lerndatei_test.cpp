// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "memory/lerndatei.h"
#include "memory/partie.h"
#include "temp_ordner.h"

namespace fuh {
namespace {

using Bytes = std::vector<unsigned char>;

struct LerndateiTest : ::testing::Test {
    test::TempOrdner ordner;
    Lerndatei datei{ordner.pfad()};
    Stellung s;
    Partie partie;

    void SetUp() override { s.grundstellung(); }
    void nehmeAuf(int16_t fw, int16_t hw) {
        partie.pstoSits(s.Feld, {});
        partie.sits[partie.spielzug - 1].fuchswert = fw;
        partie.sits[partie.spielzug - 1].hennenwert = hw;
    }
    static Bytes satz(const Code& c, int16_t fw, int16_t hw) {
        Bytes b(c.begin(), c.end());
        for (int16_t v : {fw, hw}) {
            b.push_back(static_cast<unsigned char>(v & 0xFF));
            b.push_back(static_cast<unsigned char>((static_cast<uint16_t>(v) >> 8) & 0xFF));
        }
        return b;
    }
};

TEST_F(LerndateiTest, SpiegelcodeTrifftDenGespeichertenSatz) {
    s.Feld[2][2] = leer;
    s.Feld[1][2] = fuchs; // an asymmetric position
    const Code c = positionscode(s.Feld);
    ordner.schreibe("QZ3.DAT", satz(spiegelcode(c), 7, 9));
    EXPECT_EQ(datei.erinnern(s.Feld, fuchs, 2, partie), 7);
    EXPECT_EQ(datei.erinnern(s.Feld, henne, 2, partie), 9);
    nehmeAuf(1, 1);
    partie.spielzug = 1;
    EXPECT_EQ(datei.speichern(partie, 2).neueZuege, 0);
    EXPECT_EQ(ordner.lies("QZ3.DAT"), satz(spiegelcode(c), 8, 10)); // stored code unchanged
}

TEST_F(LerndateiTest, WiederholungSchlaegtGelerntenWert) {
    ordner.schreibe("QZ2.DAT", satz(positionscode(s.Feld), 1000, 1000));
    nehmeAuf(0, 0);
    s.Feld[3][3] = leer;
    s.Feld[3][2] = henne;
    for (int i = 0; i < 5; ++i)
        nehmeAuf(0, 0);
    s.Feld[3][3] = henne;
    s.Feld[3][2] = leer;
    EXPECT_EQ(datei.erinnern(s.Feld, henne, 1, partie), kWiederholung); // six back
    s.Feld[3][3] = leer;
    s.Feld[3][2] = henne;
    nehmeAuf(0, 0);
    s.Feld[3][3] = henne;
    s.Feld[3][2] = leer;
    EXPECT_EQ(datei.erinnern(s.Feld, henne, 1, partie), 1000); // seven back
}

TEST_F(LerndateiTest, UnvollstaendigeDateiUndGrenzen) {
    Bytes b = satz(positionscode(s.Feld), 32760, -32760);
    b.resize(8); // 8 of 15 bytes: counts as one record whose values read as 0
    ordner.schreibe("QZ3.DAT", b);
    Bytes kurz(b.begin(), b.begin() + 8);
    nehmeAuf(100, -100);
    EXPECT_EQ(datei.erinnern(s.Feld, fuchs, 2, partie), kWiederholung);
    Partie nurEine = partie;
    EXPECT_EQ(datei.speichern(nurEine, 2).neueZuege, 1); // 8 bytes of the code do not match
    const Bytes nachher = ordner.lies("QZ3.DAT");
    ASSERT_EQ(nachher.size(), 30u);
    EXPECT_TRUE(std::equal(kurz.begin(), kurz.end(), nachher.begin()));
    EXPECT_EQ(nachher[8], 0);
    EXPECT_EQ(nachher[15], 0x58);

    // Sums stop at the 16-bit limits.
    ordner.schreibe("QZ3.DAT", satz(positionscode(s.Feld), 32760, -32760));
    datei.speichern(partie, 2);
    EXPECT_EQ(ordner.lies("QZ3.DAT"), satz(positionscode(s.Feld), 32767, -32768));
}

TEST_F(LerndateiTest, VolleDateiNimmtNichtsMehrAuf) {
    Bytes voll(static_cast<std::size_t>(kHoechsteSaetze) * kLernsatz, 0x41);
    ordner.schreibe("QZ3.DAT", voll);
    nehmeAuf(1, 1);
    const auto m = datei.speichern(partie, 2);
    EXPECT_EQ(m.neueZuege, 0);
    EXPECT_EQ(ordner.lies("QZ3.DAT").size(), voll.size());
}

TEST_F(LerndateiTest, DoppelteCodesZaehltNurDerErste) {
    const Code c = positionscode(s.Feld);
    Bytes b = satz(c, 1, 2);
    const Bytes zweiter = satz(c, 5, 6);
    b.insert(b.end(), zweiter.begin(), zweiter.end());
    ordner.schreibe("QZ3.DAT", b);
    EXPECT_EQ(datei.erinnern(s.Feld, henne, 2, Partie{}), 2);
    nehmeAuf(10, 20);
    EXPECT_EQ(datei.speichern(partie, 2).neueZuege, 0);
    Bytes erwartet = satz(c, 11, 22);
    erwartet.insert(erwartet.end(), zweiter.begin(), zweiter.end());
    EXPECT_EQ(ordner.lies("QZ3.DAT"), erwartet);
}

TEST_F(LerndateiTest, AenderungVonAussenZwischenZweiAbrufen) {
    // A missing file is created empty by a recall at strength 2 or 3, never at strength 1.
    EXPECT_EQ(datei.erinnern(s.Feld, fuchs, 0, Partie{}), 0);
    EXPECT_FALSE(ordner.gibt("QZ3.DAT"));
    EXPECT_EQ(datei.erinnern(s.Feld, fuchs, 2, Partie{}), 0);
    EXPECT_EQ(ordner.lies("QZ3.DAT"), Bytes{});
    const Code c = positionscode(s.Feld);
    int16_t wert = 0;
    // Written in place at the same length, replaced by a new file, grown, renamed to another case.
    for (int fall = 0; fall < 4; ++fall) {
        SCOPED_TRACE(fall);
        ++wert;
        if (fall == 0) ordner.schreibe("QZ3.DAT", satz(c, wert, 0));
        if (fall == 1) {
            ordner.schreibe("neu", satz(c, wert, 0));
            std::filesystem::rename(ordner / "neu", ordner / "QZ3.DAT");
        }
        if (fall == 2) {
            Bytes b = satz(spiegelcode(c), 0, 0);
            const Bytes r = satz(c, wert, 0);
            b.insert(b.begin(), r.begin(), r.end());
            ordner.schreibe("QZ3.DAT", b);
        }
        if (fall == 3) {
            ordner.schreibe("QZ3.DAT", satz(c, wert, 0));
            std::filesystem::rename(ordner / "QZ3.DAT", ordner / "qz3.dat");
        }
        EXPECT_EQ(datei.erinnern(s.Feld, fuchs, 2, Partie{}), wert);
    }
    EXPECT_EQ(ordner.namen(), std::vector<std::string>{"qz3.dat"});
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
