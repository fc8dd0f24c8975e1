// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "spieldaten/bestenliste.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

#include "testdateien.h"

namespace fuh {
namespace {

using test::TempOrdner;
using B = std::vector<uint8_t>;
using test::hsSatz;

constexpr double kHeute = 45000; // 15 March 2023

// A full list: row i holds score `scores[i]` and the name "Spieler<i>".
B liste(const std::vector<int16_t>& scores) {
    B b;
    for (std::size_t i = 0; i < scores.size(); ++i) {
        const B s = hsSatz(44000 + static_cast<double>(i), scores[i], "Spieler" + std::to_string(i), "Nein");
        b.insert(b.end(), s.begin(), s.end());
    }
    return b;
}

std::vector<int> scoresVon(const Bestenliste& l) {
    std::vector<int> v;
    for (const Eintrag& e : l.eintraege())
        v.push_back(e.score);
    return v;
}

std::string blank(std::string s) {
    s.resize(15, ' ');
    return s;
}

TEST(Bestenliste, ErsterEintragInLeereListe) {
    TempOrdner t;
    Bestenliste l(Seite::Hennen);
    l.laden(t.pfad());
    Oeffentlich spiel;
    spiel.score = 50;
    spiel.u_is_sieger = "Ja";
    spiel.sw_spielende = true;
    ASSERT_EQ(l.anzeigen(spiel, kHeute), 0);
    EXPECT_FALSE(spiel.sw_spielende);
    EXPECT_EQ(l.neuePos(), 0);
    l.nameSetzen("Jörg");
    ASSERT_TRUE(l.speichern(t.pfad()));

    // 45000.0, 50, "Jörg" in Windows-1252 and "Ja", blank padded; the untouched rows stay empty.
    B erwartet = {0x00, 0x00, 0x00, 0x00, 0x00, 0xF9, 0xE5, 0x40, 0x32, 0x00, 0x4A, 0xF6, 0x72, 0x67};
    erwartet.resize(25, ' ');
    erwartet.insert(erwartet.end(), {'J', 'a', ' ', ' '});
    erwartet.resize(290, 0);
    EXPECT_EQ(t.lies("QZH.sco"), erwartet);
    EXPECT_EQ(t.namen(), std::vector<std::string>{"QZH.sco"});
}

TEST(Bestenliste, ZweiWartendeListenVerlierenKeinenEintrag) {
    TempOrdner t;
    t.schreibe("QZH.sco", liste({90, 50}));
    Bestenliste erste(Seite::Hennen), zweite(Seite::Hennen);
    erste.laden(t.pfad());
    zweite.laden(t.pfad());
    ASSERT_EQ(erste.einfuegen(60, "Ja", kHeute), 1);
    ASSERT_EQ(zweite.einfuegen(95, "Ja", kHeute + 1), 0);
    erste.nameSetzen("Erste");
    zweite.nameSetzen("Zweite");
    ASSERT_TRUE(zweite.speichern(t.pfad()));
    ASSERT_TRUE(erste.speichern(t.pfad()));
    Bestenliste l(Seite::Hennen);
    l.laden(t.pfad());
    EXPECT_EQ(scoresVon(l), (std::vector<int>{95, 90, 60, 50, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(std::make_tuple(l.eintraege()[0].user, l.eintraege()[2].user, l.eintraege()[2].datum),
              std::make_tuple(blank("Zweite"), blank("Erste"), kHeute));
}

TEST(Bestenliste, UnterAllenEintraegenKeinPlatz) {
    TempOrdner t;
    const B vorher = liste({100, 90, 80, 70, 60, 50, 40, 30, 20, 10});
    t.schreibe("QZH.sco", vorher);
    Bestenliste l(Seite::Hennen);
    l.laden(t.pfad());
    EXPECT_EQ(l.einfuegen(9, "Ja", kHeute), 10);
    EXPECT_EQ(l.neuePos(), 10);
    l.nameSetzen("Niemand"); // no new row: nothing changes
    ASSERT_TRUE(l.speichern(t.pfad()));
    EXPECT_EQ(t.lies("QZH.sco"), vorher);
}

TEST(Bestenliste, WannEingetragenWird) {
    struct Fall {
        Seite seite;
        bool spielende;
        int16_t score;
        bool fuchsNull;
        int erwartet;
    };
    const Fall faelle[] = {
        {Seite::Hennen, true, 1, false, 0},   {Seite::Hennen, true, 0, false, 10},
        {Seite::Hennen, true, -5, false, 10}, {Seite::Hennen, false, 40, false, 10},
        {Seite::Hennen, true, 40, true, 0}, // the penalty rule only concerns the foxes
        {Seite::Fuchs, true, 40, false, 0},   {Seite::Fuchs, true, 40, true, 10},
        {Seite::Fuchs, true, -1, false, 10},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(testing::Message() << (f.seite == Seite::Fuchs ? "Fuchs " : "Hennen ") << f.spielende
                                        << ' ' << f.score << ' ' << f.fuchsNull);
        Bestenliste l(f.seite);
        Oeffentlich spiel;
        spiel.sw_spielende = f.spielende;
        spiel.score = f.score;
        spiel.fuchs_null = f.fuchsNull;
        EXPECT_EQ(l.anzeigen(spiel, kHeute), f.erwartet);
        EXPECT_EQ(l.neuePos(), f.erwartet);
        EXPECT_EQ(spiel.sw_spielende, f.spielende && f.erwartet == 10); // offered only when it qualified
        EXPECT_EQ(l.eintraege()[0].score, f.erwartet == 0 ? f.score : 0);
    }
}

TEST(Bestenliste, NamenUndSiegtextAufFesteBreite) {
    Bestenliste l(Seite::Hennen);
    ASSERT_EQ(l.einfuegen(7, "Neinnein", kHeute), 0);
    EXPECT_EQ(l.eintraege()[0].sieg, "Nein");
    ASSERT_EQ(l.einfuegen(8, "", kHeute), 0);
    EXPECT_EQ(l.eintraege()[0].sieg, "    ");
    // Cut after conversion: fifteen single-byte characters, umlauts included.
    const std::pair<std::string, std::string> namen[] = {
        {"Maximilian-Alexander", "Maximilian-Alex"},
        {"ÄÖÜäöüßÄÖÜäöüßÄÖÜ", "\xC4\xD6\xDC\xE4\xF6\xFC\xDF\xC4\xD6\xDC\xE4\xF6\xFC\xDF\xC4"},
        {"", std::string(15, ' ')}};
    for (const auto& [getippt, gespeichert] : namen) {
        l.nameSetzen(getippt);
        EXPECT_EQ(l.eintraege()[0].user, gespeichert);
    }
}

TEST(Windows1252, Umwandlung) {
    struct Fall {
        std::string utf8, bytes;
    };
    const Fall faelle[] = {
        {"Jörg", "\x4A\xF6\x72\x67"},
        {"€ ‚ ƒ „ … † ‡ ˆ ‰ Š ‹ Œ Ž", "\x80 \x82 \x83 \x84 \x85 \x86 \x87 \x88 \x89 \x8A \x8B \x8C \x8E"},
        {"‘’“”•–—˜™š›œžŸ", "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"},
        {"\u00A0¡ÿßé", "\xA0\xA1\xFF\xDF\xE9"},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.utf8);
        EXPECT_EQ(nachWindows1252(f.utf8), f.bytes);
        EXPECT_EQ(vonWindows1252(f.bytes), f.utf8);
    }
    // Characters outside the code page and broken UTF-8 (cut, overlong, at the end) become one '?'.
    EXPECT_EQ(nachWindows1252("a漢b😀c\xC3\x28\xC0\x80x\xC3"), "a?b?c?(??x?");

    // Every byte survives the way through UTF-8, the unassigned ones too.
    std::string alle(256, '\0');
    std::iota(alle.begin(), alle.end(), '\0');
    EXPECT_EQ(nachWindows1252(vonWindows1252(alle)), alle);
}

TEST(Bestenliste, BeschaedigteDateien) {
    TempOrdner t;
    // Short: a record and a half; the rest reads as zeros.
    B kurz = hsSatz(std::nan(""), 77, "Kurt", "Ja");
    kurz.insert(kurz.end(), {1, 2, 3, 4, 5, 6, 7, 8, 0x10, 0x00, 'A'});
    t.schreibe("QZH.sco", kurz);
    Bestenliste l(Seite::Hennen);
    l.laden(t.pfad());
    EXPECT_TRUE(std::isnan(l.eintraege()[0].datum));
    EXPECT_EQ(scoresVon(l), (std::vector<int>{77, 16, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(l.eintraege()[1].user, std::string("A") + std::string(14, '\0'));
    EXPECT_EQ(l.einfuegen(20, "Ja", kHeute), 1);
}

} // namespace
} // namespace fuh
