// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <sstream>

#include "board/regeln.h"
#include "tools/zugprotokoll.h"

namespace fuh {
namespace {

Brettfeld start() {
    Stellung s;
    s.grundstellung();
    return s.Feld;
}

TEST(Zugprotokoll, AnfrageHinUndZurueck) {
    Brettfeld Feld = start();
    Feld[0][0] = fuchs; // a parked fox
    Feld[2][2] = leer;
    const Zuganfrage a{Feld, fuchs, 148, false, std::chrono::milliseconds{5000}};
    const std::string zeile = anfrageZeile(a);
    EXPECT_EQ(zeile.substr(0, 20), "zug f 148 0 5000 301");
    const auto b = anfrageLesen(zeile);
    ASSERT_TRUE(b);
    EXPECT_EQ(b->Feld, Feld);
    EXPECT_EQ(b->seite, fuchs);
    EXPECT_EQ(b->spielzug, 148);
    EXPECT_FALSE(b->strafregel);
    EXPECT_EQ(b->bedenkzeit.count(), 5000);
}

TEST(Zugprotokoll, FalscheAnfragen) {
    const std::string feld = anfrageZeile({start(), henne, 0, true, std::chrono::milliseconds{1}}).substr(12);
    ASSERT_EQ(feld.size(), 49u);
    for (const std::string& zeile :
         {std::string(), std::string("zug"), "zug x 0 1 400 " + feld, "zug h 150 1 400 " + feld,
          "zug h -1 1 400 " + feld, "zug h 0 2 400 " + feld, "zug h 0 1 0 " + feld, "zug h 0 1 5001 " + feld,
          "zug h 0 1 400 " + feld.substr(1), "zug h 0 1 400 4" + feld.substr(1),
          "zug h 0 1 400 " + feld + " x", "neu h 0 1 400 " + feld})
        EXPECT_FALSE(anfrageLesen(zeile)) << zeile;
    EXPECT_TRUE(anfrageLesen("zug  h 0 1 400 " + feld));
}

TEST(Zugprotokoll, Antworten) {
    Zugwahl kette;
    kette.anhaengen({4, 2, 4, 4});
    kette.anhaengen({4, 4, 4, 6});
    kette.anhaengen({4, 6, 2, 6});
    EXPECT_EQ(antwortZeile(kette), "zug 4,2 4,4 4,6 2,6");
    EXPECT_EQ(antwortLesen("zug 4,2 4,4 4,6 2,6"), kette);
    EXPECT_EQ(antwortZeile(Zugwahl{}), "keinzug");
    EXPECT_EQ(antwortLesen("keinzug"), Zugwahl{});
    for (const char* falsch :
         {"", "zug", "zug 4,2", "zug 7,2 4,4", "zug 4,2 4,4x", "zug 42 44", "fehler x", "keinzug 1,1"})
        EXPECT_FALSE(antwortLesen(falsch)) << falsch;
}

TEST(Zugprotokoll, DienerAntwortetJederZeile) {
    // A new game, garbage, a move request: three answers, the last a move the hens may make.
    const Brettfeld Feld = start();
    std::istringstream ein("neu 3\nquatsch\n" +
                           anfrageZeile({Feld, henne, 0, true, std::chrono::milliseconds{5}}) + "\nneu x\n");
    std::ostringstream aus;
    dienen(ein, aus);
    std::istringstream zeilen(aus.str());
    std::string ok, fehler, zug, fehler2;
    std::getline(zeilen, ok);
    std::getline(zeilen, fehler);
    std::getline(zeilen, zug);
    std::getline(zeilen, fehler2);
    EXPECT_EQ(ok, "ok");
    EXPECT_EQ(fehler.substr(0, 7), "fehler ");
    EXPECT_EQ(fehler2.substr(0, 7), "fehler ");
    const auto w = antwortLesen(zug);
    ASSERT_TRUE(w && w->anzahl == 1) << zug;
    const Teilzug& z = w->zuege[0];
    EXPECT_TRUE(korrekterZug(Feld, Seite::Hennen, {}, z.vonX, z.vonY, z.nachX, z.nachY)) << zug;
}

} // namespace
} // namespace fuh
