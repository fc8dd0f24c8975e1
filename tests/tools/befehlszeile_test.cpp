// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <sstream>

#include "tools/fortschritt.h"
#include "tools/selbstspiel_optionen.h"
#include "tools/zeichen.h"

namespace fuh {
namespace {

struct Gelesen {
    std::optional<int> status;
    std::string aus, fehler;
    Optionen o;
};

Gelesen lesen(const std::vector<std::string>& args) {
    Gelesen g;
    std::ostringstream aus, fehler;
    g.status = befehlszeileLesen(selbstspielAufruf(g.o), args, aus, fehler);
    g.aus = aus.str();
    g.fehler = fehler.str();
    return g;
}

std::string ersteZeile(const std::string& text) {
    return text.substr(0, text.find('\n'));
}

TEST(Befehlszeile, GnuFormen) {
    EXPECT_EQ(lesen({"--spiele=5"}).o.spiele, 5u);
    EXPECT_EQ(lesen({"--spiele", "5"}).o.spiele, 5u);
    EXPECT_EQ(lesen({"-n5"}).o.spiele, 5u);
    EXPECT_EQ(lesen({"--spi", "5"}).o.spiele, 5u); // an unambiguous prefix
    EXPECT_EQ(lesen({"--spiele", "4294967295"}).o.spiele, 4294967295u);
    const Gelesen g = lesen({"-lp", "--pc", "0", "--pc=1", "--seed", "16777217", "--staerke", "3", "--"});
    EXPECT_EQ(g.status, std::nullopt);
    EXPECT_TRUE(g.o.lernen && g.o.protokoll);
    EXPECT_EQ(g.o.pc, 1); // the last one counts
    EXPECT_EQ(g.o.seed, 1u);
    EXPECT_EQ(g.o.staerke, 3);
    EXPECT_EQ(lesen({"--seed", "99999999999999999999999"}).o.seed, 8388607u); // any length, modulo 2^24
    const Optionen seiten = lesen({"--fuchs", "1", "--hennen=meister", "--bedenkzeit", "250"}).o;
    ASSERT_TRUE(seiten.spieler.fuchs && seiten.spieler.hennen);
    EXPECT_EQ(seiten.spieler.fuchs->Staerke, 0);
    EXPECT_FALSE(seiten.spieler.fuchs->meister);
    EXPECT_TRUE(seiten.spieler.hennen->meister);
    EXPECT_EQ(seiten.spieler.bedenkzeit.count(), 250);
}

// Every mistake: one line naming it, the usage, status 2, nothing on standard output. Read one after the
// other, so a reading never continues where the one before stopped.
TEST(Befehlszeile, FehlerNennenUrsacheUndAufruf) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> faelle = {
        {{"--spiele", "x"}, "ungültiger Wert für --spiele: x"},
        {{"--spiele=4294967296"}, "ungültiger Wert für --spiele: 4294967296"},
        {{"--spiele="}, "ungültiger Wert für --spiele: "},
        {{"--pc", "3"}, "ungültiger Wert für --pc: 3"},
        {{"--pc", "+1"}, "ungültiger Wert für --pc: +1"},
        {{"--pc", " 1"}, "ungültiger Wert für --pc:  1"},
        {{"--seed", "-5"}, "ungültiger Wert für --seed: -5"},
        {{"--hennen", "Meister"}, "ungültiger Wert für --hennen: Meister"},
        {{"--bedenkzeit", "501"}, "ungültiger Wert für --bedenkzeit: 501"},
        {{"--spiele"}, "fehlender Wert nach --spiele"},
        {{"--lernen", "-n"}, "fehlender Wert nach --spiele"},
        {{"--unbekannt=3"}, "unbekannte Option: --unbekannt"},
        {{"-x"}, "unbekannte Option: -x"},
        {{"--h"}, "mehrdeutige Option: --h (--hennen, --help)"},
        {{"--lernen=1"}, "--lernen nimmt keinen Wert an"},
        {{"--lernen", "extra"}, "überzähliges Argument: extra"},
        {{"--", "--spiele", "3"}, "überzähliges Argument: --spiele"},
    };
    for (const auto& [args, grund] : faelle) {
        const Gelesen g = lesen(args);
        EXPECT_EQ(g.status, kAufruffehler) << grund;
        EXPECT_EQ(ersteZeile(g.fehler), "selbstspiel: " + grund);
        EXPECT_EQ(
            ersteZeile(g.fehler.substr(g.fehler.find('\n') + 1)).rfind("Aufruf: selbstspiel [--spiele N]", 0),
            0u)
            << g.fehler;
        EXPECT_EQ(g.aus, "");
        std::istringstream zeilen(g.fehler.substr(g.fehler.find('\n') + 1));
        for (std::string zeile; std::getline(zeilen, zeile);)
            EXPECT_LE(zeichen(zeile), 80u) << zeile; // the usage fits a terminal
    }
}

TEST(Befehlszeile, HilfeEndetDasLesen) {
    const Gelesen g = lesen({"--spiele", "3", "--help", "--unbekannt"}); // ends at --help
    EXPECT_EQ(g.status, kAufrufErledigt);
    EXPECT_EQ(g.fehler, "");
    EXPECT_NE(g.aus.find("  -n, --spiele N"), std::string::npos);
    EXPECT_NE(g.aus.find("  -V, --version"), std::string::npos);
    EXPECT_EQ(lesen({"-h"}).aus, g.aus);
    std::istringstream zeilen(g.aus);
    for (std::string zeile; std::getline(zeilen, zeile);)
        EXPECT_LE(zeichen(zeile), 80u) << zeile;
}

TEST(Befehlszeile, VersionUndLizenz) {
    const Gelesen g = lesen({"--version"});
    EXPECT_EQ(g.status, kAufrufErledigt);
    EXPECT_EQ(ersteZeile(g.aus), std::string("selbstspiel (Fuchs und Hennen) ") + FUH_VERSION);
    EXPECT_NE(g.aus.find("GPL-3.0-or-later"), std::string::npos);
    EXPECT_EQ(lesen({"-V"}).aus, g.aus);
}

using namespace std::chrono_literals;

TEST(Fortschritt, Zeile) {
    const std::string stand = "Hennen 70  Füchse 40  Remis 10";
    EXPECT_EQ(fortschrittZeile(120, 1000, stand, 10s), "120/1000 Partien  " + stand + "  12,0/s  noch 1:13");
    EXPECT_EQ(fortschrittZeile(3, 10, "Siege 3", 60s), "3/10 Partien  Siege 3  20,0 s/Partie  noch 2:20");
    EXPECT_EQ(fortschrittZeile(1, 10000, "", 1s), "1/10000 Partien    1,0/s  noch 2:46:39");
    EXPECT_EQ(fortschrittZeile(0, 5, "Siege 0", 3s), "0/5 Partien  Siege 0"); // no rate yet
    EXPECT_EQ(zeichen("Füchse"), 6u);
}

// The line appears after two seconds, is redrawn at most every quarter second, gives way to a message and
// is cleared by the last game; a longer line is blanked out by the shorter one after it.
TEST(Fortschritt, AufDemTerminal) {
    std::ostringstream aus;
    {
        Fortschritt f(aus, 100);
        f.melde(100, 1000, "Hennen 60", 1999ms);
        EXPECT_EQ(aus.str(), "");
        f.melde(100, 1000, "Hennen 60", 2s);
        const std::string erste = fortschrittZeile(100, 1000, "Hennen 60", 2s);
        EXPECT_EQ(aus.str(), "\r" + erste);
        f.melde(101, 1000, "a", 2249ms);
        EXPECT_EQ(aus.str(), "\r" + erste);
        aus.str("");
        f.melde(101, 1000, "a", 2250ms);
        const std::string zweite = fortschrittZeile(101, 1000, "a", 2250ms);
        ASSERT_LT(zweite.size(), erste.size());
        EXPECT_EQ(aus.str(), "\r" + zweite + std::string(erste.size() - zweite.size(), ' '));
        aus.str("");
        f.meldung("selbstspiel: Fehler");
        const std::string weg = "\r" + std::string(zweite.size(), ' ') + "\r";
        EXPECT_EQ(aus.str(), weg + "selbstspiel: Fehler\n");
        aus.str("");
        f.melde(102, 1000, "a", 3s);
        const std::string dritte = fortschrittZeile(102, 1000, "a", 3s);
        EXPECT_EQ(aus.str(), "\r" + dritte);
        aus.str("");
        f.melde(1000, 1000, "a", 4s); // the end: the program's result follows on a clean line
        EXPECT_EQ(aus.str(), "\r" + std::string(zeichen(dritte), ' ') + "\r");
        aus.str("");
    }
    EXPECT_EQ(aus.str(), "");
}

// On a narrow terminal the line is cut one column short of the width (characters, not bytes).
TEST(Fortschritt, SchmalesTerminal) {
    std::ostringstream aus;
    Fortschritt f(aus, 16);
    f.melde(1, 2, "Füchse 1", 2s);
    EXPECT_EQ(aus.str(), "\r1/2 Partien  Fü");
    EXPECT_EQ(vorne("Füchse", 2), "Fü");
}

TEST(Fortschritt, OhneTerminalNurMeldungen) {
    std::ostringstream aus;
    {
        Fortschritt f(aus, 0);
        f.melde(1, 2, "a", 10s);
        f.meldung("x");
        f.melde(2, 2, "a", 20s);
    }
    EXPECT_EQ(aus.str(), "x\n");
}

} // namespace
} // namespace fuh
