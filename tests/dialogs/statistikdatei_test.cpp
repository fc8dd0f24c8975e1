#include "dialogs/statistikdatei.h"

#include <gtest/gtest.h>

#include "testdateien.h"

namespace fuh {
namespace {

using test::TempOrdner;
using B = std::vector<uint8_t>;
using Zaehler = std::array<int16_t, 17>;
const auto bytes = test::zaehlerBytes;

struct Siegfall {
    int ergebnis, pc, staerke;
    int zaehler; // the win counter expected to move, or -1
};

class StatistikSiege : public ::testing::TestWithParam<Siegfall> {};

TEST_P(StatistikSiege, ZaehltSpielUndRichtigenSieg) {
    const Siegfall f = GetParam();
    TempOrdner t;
    ASSERT_TRUE(statistik(t.pfad(), f.ergebnis,
                          Einstellungen{static_cast<int16_t>(f.pc), static_cast<int16_t>(f.staerke), 0, 0},
                          5));
    Zaehler z{};
    z[0] = 1;
    if (f.zaehler >= 0) z[static_cast<std::size_t>(f.zaehler)] = 1;
    EXPECT_EQ(t.lesen("QZ.sta"), bytes(z));
    EXPECT_EQ(statistikLesen(t.pfad()).zaehler, z);
}

INSTANTIATE_TEST_SUITE_P(Faelle, StatistikSiege,
                         ::testing::Values(Siegfall{2, 0, 0, 2}, Siegfall{2, 0, 2, 4},
                                           Siegfall{2, 2, 1, 3},                         // computer foxes
                                           Siegfall{1, 1, 0, 5}, Siegfall{1, 2, 2, 7},   // computer hens
                                           Siegfall{2, 1, 1, 9},                         // user foxes
                                           Siegfall{1, 0, 2, 13}, Siegfall{1, 0, 0, 11}, // user hens
                                           Siegfall{3, 0, 1, -1}, Siegfall{3, 2, 2, -1}, // draws
                                           // Unchecked settings from the file count the game but no win.
                                           Siegfall{2, 0, -1, -1}, Siegfall{1, 1, 3, -1},
                                           Siegfall{2, 0, 32767, -1}, Siegfall{1, 7, 1, -1}));

TEST(Statistik, Lernmodus) {
    TempOrdner t;
    ASSERT_TRUE(statistik(t.pfad(), 3, Einstellungen{0, 1, 1, 0}, 5));
    ASSERT_TRUE(statistik(t.pfad(), 3, Einstellungen{0, 1, 1, 0}, 7));
    Statistik s = statistikLesen(t.pfad());
    EXPECT_EQ(s.beendet(), 2);
    EXPECT_EQ(s.imLernmodus(), 2);
    EXPECT_EQ(s.gelernt(), 12);
    EXPECT_EQ(s.gelerntLetztes(), 7);

    // Outside learning mode the learned counters stay, the last game's count included.
    ASSERT_TRUE(statistik(t.pfad(), 3, Einstellungen{0, 1, 0, 0}, 4));
    ASSERT_TRUE(statistik(t.pfad(), 3, Einstellungen{0, 1, 2, 0}, 4));
    s = statistikLesen(t.pfad());
    EXPECT_EQ(s.beendet(), 4);
    EXPECT_EQ(s.imLernmodus(), 2);
    EXPECT_EQ(s.gelernt(), 12);
    EXPECT_EQ(s.gelerntLetztes(), 7);
}

TEST(Statistik, GestarteteSpiele) {
    TempOrdner t;
    ASSERT_TRUE(spielGestartet(t.pfad()));
    ASSERT_TRUE(spielGestartet(t.pfad()));
    Zaehler z{};
    z[14] = 2;
    EXPECT_EQ(t.lesen("QZ.sta"), bytes(z));
    EXPECT_EQ(t.namen(), std::vector<std::string>{"QZ.sta"});
}

TEST(Statistik, KurzeDateiUndFolgendeBytes) {
    TempOrdner t;
    t.schreiben("QZ.sta", {3, 0, 1, 0, 9});
    Statistik s = statistikLesen(t.pfad());
    EXPECT_EQ(s.beendet(), 3);
    EXPECT_EQ(s.imLernmodus(), 1);
    EXPECT_EQ(s.pcSiegeFuchs(0), 9);
    EXPECT_EQ(s.gestartet(), 0);
    ASSERT_TRUE(spielGestartet(t.pfad()));
    Zaehler z{};
    z[0] = 3;
    z[1] = 1;
    z[2] = 9;
    z[14] = 1;
    EXPECT_EQ(t.lesen("QZ.sta"), bytes(z));

    B lang = bytes(z);
    lang.insert(lang.end(), {0xDE, 0xAD, 0xBE, 0xEF});
    t.schreiben("QZ.sta", lang);
    EXPECT_EQ(statistikLesen(t.pfad()).zaehler, z);
    ASSERT_TRUE(statistik(t.pfad(), 2, Einstellungen{1, 0, 0, 0}, 0));
    z[0] = 4;
    z[8] = 1;
    B erwartet = bytes(z);
    erwartet.insert(erwartet.end(), {0xDE, 0xAD, 0xBE, 0xEF});
    EXPECT_EQ(t.lesen("QZ.sta"), erwartet);
}

TEST(Statistik, VorhandeneDateiAndererSchreibweise) {
    TempOrdner t;
    t.schreiben("QZ.STA", {1, 0});
    ASSERT_TRUE(spielGestartet(t.pfad()));
    EXPECT_EQ(t.namen(), std::vector<std::string>{"QZ.STA"});
    EXPECT_EQ(statistikLesen(t.pfad()).beendet(), 1);
    EXPECT_EQ(statistikLesen(t.pfad()).gestartet(), 1);
}

TEST(Statistik, ZaehlerBleibenImBereich) {
    TempOrdner t;
    Zaehler z{};
    z[0] = 32767;
    z[1] = 32767;
    z[2] = 32767;
    z[14] = 32767;
    z[15] = 32760;
    t.schreiben("QZ.sta", bytes(z));
    ASSERT_TRUE(statistik(t.pfad(), 2, Einstellungen{0, 0, 1, 0}, 100));
    ASSERT_TRUE(spielGestartet(t.pfad()));
    Statistik s = statistikLesen(t.pfad());
    EXPECT_EQ(s.beendet(), 32767);
    EXPECT_EQ(s.imLernmodus(), 32767);
    EXPECT_EQ(s.pcSiegeFuchs(0), 32767);
    EXPECT_EQ(s.gestartet(), 32767);
    EXPECT_EQ(s.gelernt(), 32767);
    EXPECT_EQ(s.gelerntLetztes(), 100);

    z = {};
    z[15] = -32700;
    t.schreiben("QZ.sta", bytes(z));
    ASSERT_TRUE(statistik(t.pfad(), 3, Einstellungen{0, 0, 1, 0}, -100));
    EXPECT_EQ(statistikLesen(t.pfad()).gelernt(), -32768);
}

TEST(Statistik, NichtSchreibbar) {
    TempOrdner t;
    t.schreiben("datei", {});
    EXPECT_FALSE(statistik(t.pfad() / "datei", 1, Einstellungen{}, 0));
    EXPECT_FALSE(spielGestartet(t.pfad() / "datei"));
    EXPECT_EQ(statistikLesen(t.pfad() / "datei").zaehler, Zaehler{});
}

} // namespace
} // namespace fuh
