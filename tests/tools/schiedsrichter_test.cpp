// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <sstream>

#include "board/regeln.h"
#include "board/zufall.h"
#include "game/spiel.h"
#include "memory/lerndatei.h"
#include "player/erinnerung.h"
#include "player/fuchsspieler.h"
#include "player/hennenspieler.h"
#include "temp_ordner.h"
#include "test_ansicht.h"
#include "tools/auswertung.h"
#include "tools/schiedsrichter.h"
#include "tools/zugprotokoll.h"

namespace fuh {
namespace {

// The classic players at strength 1, drawing from one random source as the game does.
struct Klassisch : Zugquelle {
    const Lerndatei& lerndatei;
    Zufall& zufall;
    Klassisch(const Lerndatei& l, Zufall& z) : lerndatei(l), zufall(z) {}
    void neuePartie(uint32_t) override {}
    Zugwahl waehle(const Brettfeld& Feld, int16_t seite, const Partie& partie) override {
        const Erinnerung e(lerndatei, 0, partie);
        return seite == henne ? berechneHennen(Feld, e, zufall) : berechneFuchs(Feld, e, zufall);
    }
};

// Replays fixed moves; nothing once they are used up.
struct Drehbuch : Zugquelle {
    std::vector<Zugwahl> zuege;
    std::vector<Brettfeld> gesehen; // the position of every call
    std::size_t naechster = 0;
    void neuePartie(uint32_t) override { naechster = 0; }
    Zugwahl waehle(const Brettfeld& Feld, int16_t, const Partie&) override {
        gesehen.push_back(Feld);
        return naechster < zuege.size() ? zuege[naechster++] : Zugwahl{};
    }
};

Zugwahl wahl(std::initializer_list<Teilzug> teile) {
    Zugwahl w;
    for (const Teilzug& t : teile)
        w.anhaengen(t);
    return w;
}

TEST(Schiedsrichter, UrteiltWieDasSpiel) {
    // The same players and random draws through the game and through the referee: every recorded
    // position, the number of them and the result agree.
    for (uint32_t seed = 1; seed <= 25; ++seed) {
        test::TempOrdner ordner;
        test::TestAnsicht ansicht;
        Zufall spielZufall(seed);
        Spiel spiel(ansicht, spielZufall, ordner.pfad());
        spiel.einstellungenFestlegen({2, 0, 0, 0});
        spiel.neuesSpiel();

        const Lerndatei lerndatei(ordner.pfad());
        Zufall zufall(seed);
        Klassisch spieler(lerndatei, zufall);
        const Partiebericht b = partieLeiten(spieler, spieler, seed);
        ASSERT_EQ(b.partie.spielzug, spiel.spielzug()) << seed;
        for (int i = 0; i < b.partie.spielzug; ++i) {
            EXPECT_EQ(b.partie.sits[i].code, spiel.partie().sits[i].code) << seed << ' ' << i;
            EXPECT_EQ(b.partie.sits[i].sprung, spiel.partie().sits[i].sprung) << seed << ' ' << i;
        }
        EXPECT_EQ(b.Feld, spiel.stellung().Feld) << seed;
        const Ergebnis e = spiel.letztesErgebnis();
        const double erwartet = e == Ergebnis::hennen ? 1 : e == Ergebnis::fuchs ? 0 : 0.5;
        EXPECT_EQ(hennenPunkte(b.ausgang), erwartet) << seed;
    }
}

TEST(Schiedsrichter, FalscheUndFehlendeZuege) {
    // From the start: hens on rows 3..6, foxes on (2, 2) and (4, 2). A wrong move stops the game and
    // names the side; no move loses for the hens and draws for the foxes.
    struct Fall {
        std::vector<Zugwahl> hennen, fuechse;
        Ausgang ausgang;
        int16_t schuldig;
    };
    const Zugwahl auf = wahl({{0, 3, 0, 2}});
    const std::vector<Fall> faelle = {
        {{wahl({{3, 4, 3, 5}})}, {}, Ausgang::ungueltig, henne},                  // onto a hen, downwards
        {{wahl({{0, 3, 0, 2}, {1, 3, 1, 2}})}, {}, Ausgang::ungueltig, henne},    // two hen steps
        {{wahl({{0, 0, 0, 1}})}, {}, Ausgang::ungueltig, henne},                  // nothing stands there
        {{auf}, {wahl({{2, 2, 2, 1}, {2, 1, 2, 0}})}, Ausgang::ungueltig, fuchs}, // two fox steps
        {{auf}, {wahl({{2, 2, 5, 5}})}, Ausgang::ungueltig, fuchs},               // not a line of the cross
        {{}, {}, Ausgang::hennenOhneZug, 0},
        {{auf}, {}, Ausgang::fuchsOhneZug, 0},
    };
    for (const Fall& f : faelle) {
        Drehbuch h, fu;
        h.zuege = f.hennen;
        fu.zuege = f.fuechse;
        const Partiebericht b = partieLeiten(h, fu, 1);
        EXPECT_EQ(b.ausgang, f.ausgang);
        EXPECT_EQ(b.schuldig, f.schuldig);
    }
}

TEST(Schiedsrichter, VerpassterSprungParktDenFuchs) {
    // The hen on (1, 2) can be jumped from (2, 2); the foxes step elsewhere, so before the hens' next
    // move that fox waits on the parking square.
    Drehbuch h, fu;
    h.zuege = {wahl({{1, 3, 1, 2}}), wahl({{5, 3, 5, 2}})};
    fu.zuege = {wahl({{4, 2, 4, 1}})};
    const Partiebericht b = partieLeiten(h, fu, 1);
    ASSERT_EQ(h.gesehen.size(), 2u);
    EXPECT_EQ(h.gesehen[1][feldX(kParkfeld)][feldY(kParkfeld)], fuchs);
    EXPECT_EQ(h.gesehen[1][2][2], leer);
    EXPECT_EQ(b.ausgang, Ausgang::fuchsOhneZug);
    EXPECT_EQ(b.partie.spielzug, 4);
}

TEST(Auswertung, PunkteMitIntervall) {
    const Punktzahl p = punktzahl({1, 0, 0.5, 0.5});
    EXPECT_DOUBLE_EQ(p.wert, 0.5);
    EXPECT_NEAR(p.plusMinus, 0.4001, 1e-4); // 95 % of the sample's spread
    EXPECT_EQ(punktzahl({1}).plusMinus, 0);
    EXPECT_EQ(punktzahl({}).wert, 0);
    EXPECT_EQ(median({5, 1, 3}), 3);
    EXPECT_EQ(hoechstwert({5, 1, 3}), 5);
}

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
