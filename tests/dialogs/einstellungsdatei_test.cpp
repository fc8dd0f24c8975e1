#include "dialogs/einstellungsdatei.h"

#include <gtest/gtest.h>

#include "dialogs/statustexte.h"
#include "testdateien.h"

namespace fuh {
namespace {

using test::TempOrdner;
using B = std::vector<uint8_t>;

std::tuple<int, int, int, int> werte(const Einstellungen& e) {
    return {e.PC, e.Staerke, e.Lernmodus, e.Einzelzug};
}

TEST(Einstellungsdatei, ErsterStartLegtLeereDateiAnUndBehaeltStaerke) {
    TempOrdner t;
    Einstellungen e{2, 1, 1, 1};
    einstellungenLesen(t.pfad(), e);
    EXPECT_EQ(werte(e), std::make_tuple(0, 1, 0, 0));
    EXPECT_EQ(t.namen(), std::vector<std::string>{"QZ.INI"});
    EXPECT_TRUE(t.lesen("QZ.INI").empty());
}

struct Lesefall {
    const char* name;
    B inhalt;
    std::tuple<int, int, int, int> erwartet; // read with Staerke preset to 1 and the rest to 1
};

class EinstellungenLesen : public ::testing::TestWithParam<Lesefall> {};

TEST_P(EinstellungenLesen, Inhalt) {
    TempOrdner t;
    t.schreiben("QZ.INI", GetParam().inhalt);
    Einstellungen e{1, 1, 1, 1};
    einstellungenLesen(t.pfad(), e);
    EXPECT_EQ(werte(e), GetParam().erwartet);
}

INSTANTIATE_TEST_SUITE_P(
    Faelle, EinstellungenLesen,
    ::testing::Values(Lesefall{"leer", {}, {0, 1, 0, 0}},
                      // Half a record rounds down to none.
                      Lesefall{"vierBytes", {2, 0, 2, 0}, {0, 1, 0, 0}},
                      Lesefall{"fuenfBytes", {2, 0, 2, 0, 1}, {2, 2, 1, 0}},
                      Lesefall{"achtBytes", {1, 0, 0, 0, 0, 0, 1, 0}, {1, 0, 0, 1}},
                      Lesefall{
                          "nurErsterSatz", {0, 0, 2, 0, 1, 0, 1, 0, 9, 9, 9, 9, 9, 9, 9, 9}, {0, 2, 1, 1}},
                      // Values outside the lists stay as they are; the windows guard their use.
                      Lesefall{"ohnePruefung", {0xFF, 0xFF, 7, 0, 0x00, 0x80, 2, 0}, {-1, 7, -32768, 2}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Einstellungsdatei, SchreibtGenauAchtBytes) {
    TempOrdner t;
    ASSERT_TRUE(einstellungenSchreiben(t.pfad(), Einstellungen{1, 2, 1, 0}));
    EXPECT_EQ(t.lesen("QZ.INI"), (B{0x01, 0x00, 0x02, 0x00, 0x01, 0x00, 0x00, 0x00}));
    EXPECT_EQ(t.namen(), std::vector<std::string>{"QZ.INI"});

    Einstellungen e;
    einstellungenLesen(t.pfad(), e);
    EXPECT_EQ(werte(e), std::make_tuple(1, 2, 1, 0));
}

TEST(Einstellungsdatei, SchreibenBehaeltFolgendeBytesUndErgaenztKurzeDatei) {
    TempOrdner t;
    t.schreiben("QZ.INI", {9, 9, 9, 9, 9, 9, 9, 9, 0xAA, 0xBB, 0xCC});
    ASSERT_TRUE(einstellungenSchreiben(t.pfad(), Einstellungen{-1, 0, 0, 1}));
    EXPECT_EQ(t.lesen("QZ.INI"), (B{0xFF, 0xFF, 0, 0, 0, 0, 1, 0, 0xAA, 0xBB, 0xCC}));

    t.schreiben("QZ.INI", {9, 9, 9});
    ASSERT_TRUE(einstellungenSchreiben(t.pfad(), Einstellungen{2, 1, 0, 0}));
    EXPECT_EQ(t.lesen("QZ.INI"), (B{2, 0, 1, 0, 0, 0, 0, 0}));
}

TEST(Einstellungsdatei, OrdnerUnbrauchbar) {
    TempOrdner t;
    t.schreiben("keinOrdner", {1, 2, 3});
    const auto ordner = t.pfad() / "keinOrdner";
    Einstellungen e{1, 2, 1, 1};
    einstellungenLesen(ordner, e); // no file can exist there: like a file without record
    EXPECT_EQ(werte(e), std::make_tuple(0, 2, 0, 0));
    EXPECT_FALSE(einstellungenSchreiben(ordner, Einstellungen{1, 1, 1, 1}));
    EXPECT_EQ(t.lesen("keinOrdner"), (B{1, 2, 3}));
}

TEST(Einstellungsdatei, DateiIstVerzeichnis) {
    TempOrdner t;
    std::filesystem::create_directory(t.pfad() / "QZ.INI");
    EXPECT_FALSE(einstellungenSchreiben(t.pfad(), Einstellungen{1, 1, 1, 1}));
    EXPECT_TRUE(std::filesystem::is_directory(t.pfad() / "QZ.INI"));
    EXPECT_EQ(t.namen(), std::vector<std::string>{"QZ.INI"});
}

TEST(Statustexte, JederWert) {
    struct Fall {
        int wert;
        std::optional<std::string> pc, staerke, dialog;
    };
    const Fall faelle[] = {
        {-1, std::nullopt, std::nullopt, std::nullopt},
        {0, "PC spielt Fuchs", "Spielstärke 1", "Spielstärke 1"},
        {1, "PC spielt Hennen", "Spielstärke 2", "Spielstärke 2"},
        {2, "PC spielt Fuchs und Hennen", "Spielstärke 3", "SPielstärke 3"},
        {3, std::nullopt, std::nullopt, std::nullopt},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.wert);
        EXPECT_EQ(pcStatustext(f.wert), f.pc);
        EXPECT_EQ(staerkeStatustext(f.wert), f.staerke);
        EXPECT_EQ(staerkeStatustextDialog(f.wert), f.dialog);
    }
}

} // namespace
} // namespace fuh
