// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "spieldaten/einstellungsdatei.h"

#include <gtest/gtest.h>

#include "spieldaten/bestenliste.h"
#include "spieldaten/statistikdatei.h"

#include "testdateien.h"

namespace fuh {
namespace {

using test::TempOrdner;
using B = std::vector<uint8_t>;

std::tuple<int, int, int, int> werte(const Einstellungen& e) {
    return {e.PC, e.Staerke, e.Lernmodus, e.Einzelzug};
}

TEST(Einstellungsdatei, Lesen) {
    struct Fall {
        B inhalt;
        std::tuple<int, int, int, int> erwartet; // read with every value preset to 1
    };
    const Fall faelle[] = {
        {{2, 0, 2, 0}, {0, 1, 0, 0}}, // half a record rounds down to none: Staerke stays
        {{2, 0, 2, 0, 1}, {2, 2, 1, 0}},
        {{0, 0, 2, 0, 1, 0, 1, 0, 9, 9, 9, 9, 9, 9, 9, 9}, {0, 2, 1, 1}}, // only the first record
        // Values outside the lists stay as they are; the windows guard their use.
        {{0xFF, 0xFF, 7, 0, 0x00, 0x80, 2, 0}, {-1, 7, -32768, 2}},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.inhalt.size());
        TempOrdner t;
        t.schreibe("QZ.INI", f.inhalt);
        Einstellungen e{1, 1, 1, 1};
        einstellungenLesen(t.pfad(), e);
        EXPECT_EQ(werte(e), f.erwartet);
    }
}

TEST(Einstellungsdatei, SchreibenErsetztNurDieErstenAchtBytes) {
    TempOrdner t;
    t.schreibe("QZ.INI", {9, 9, 9, 9, 9, 9, 9, 9, 0xAA, 0xBB, 0xCC});
    ASSERT_TRUE(einstellungenSchreiben(t.pfad(), Einstellungen{-1, 0, 0, 1}));
    EXPECT_EQ(t.lies("QZ.INI"), (B{0xFF, 0xFF, 0, 0, 0, 0, 1, 0, 0xAA, 0xBB, 0xCC}));

    t.schreibe("QZ.INI", {9, 9, 9});
    ASSERT_TRUE(einstellungenSchreiben(t.pfad(), Einstellungen{2, 1, 0, 0}));
    EXPECT_EQ(t.lies("QZ.INI"), (B{2, 0, 1, 0, 0, 0, 0, 0}));
}

using Zaehler = std::array<int16_t, 17>;
const auto bytes = test::zaehlerBytes;

TEST(Statistik, ZaehltSpielUndRichtigenSieg) {
    struct Fall {
        int16_t ergebnis, pc, staerke;
        int zaehler; // the win counter expected to move, or -1
    };
    // Computer foxes, computer hens, user foxes, user hens, draws; then unchecked settings from the
    // file, which count the game but no win.
    const Fall faelle[] = {{2, 0, 0, 2},  {2, 2, 1, 3},   {1, 1, 0, 5},  {1, 2, 2, 7},
                           {2, 1, 1, 9},  {1, 0, 2, 13},  {1, 0, 0, 11}, {3, 0, 1, -1},
                           {3, 2, 2, -1}, {2, 0, -1, -1}, {1, 1, 3, -1}, {1, 7, 1, -1}};
    for (const Fall& f : faelle) {
        SCOPED_TRACE(testing::Message() << f.ergebnis << ' ' << f.pc << ' ' << f.staerke);
        TempOrdner t;
        ASSERT_TRUE(statistik(t.pfad(), f.ergebnis, Einstellungen{f.pc, f.staerke, 0, 0}, 5));
        Zaehler z{};
        z[0] = 1;
        if (f.zaehler >= 0) z[static_cast<std::size_t>(f.zaehler)] = 1;
        EXPECT_EQ(t.lies("QZ.sta"), bytes(z));
    }
}

TEST(Statistik, ZaehlerBleibenImBereich) {
    TempOrdner t;
    t.schreibe("QZ.sta", bytes({32767, 32767, 32767, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 32767, 32760, 0}));
    ASSERT_TRUE(statistik(t.pfad(), 2, Einstellungen{0, 0, 1, 0}, 100));
    ASSERT_TRUE(spielGestartet(t.pfad()));
    EXPECT_EQ(statistikLesen(t.pfad()).zaehler,
              (Zaehler{32767, 32767, 32767, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 32767, 32767, 100}));
}

} // namespace
} // namespace fuh
