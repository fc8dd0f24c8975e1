// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/fortschritt.h"

#include <gtest/gtest.h>

#include <sstream>

namespace fuh {
namespace {

using namespace std::chrono_literals;

TEST(Fortschritt, Zeile) {
    const std::string stand = "Hennen 70  Füchse 40  Remis 10";
    EXPECT_EQ(fortschrittZeile(120, 1000, stand, 10s), "120/1000 Partien  " + stand + "  12,0/s  noch 1:13");
    EXPECT_EQ(fortschrittZeile(3, 10, "Siege 3", 60s), "3/10 Partien  Siege 3  20,0 s/Partie  noch 2:20");
    EXPECT_EQ(fortschrittZeile(1, 10000, "", 1s), "1/10000 Partien    1,0/s  noch 2:46:39");
    EXPECT_EQ(fortschrittZeile(0, 5, "Siege 0", 3s), "0/5 Partien  Siege 0"); // no rate yet
    EXPECT_EQ(fortschrittZeile(5, 5, "Siege 5", 5s), "5/5 Partien  Siege 5  1,0/s  noch 0:00");
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
