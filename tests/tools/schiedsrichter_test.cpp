// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <cmath>

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
    EXPECT_NEAR(p.plusMinus, 1.96 * std::sqrt(0.5 / 3 / 4), 1e-12);
    EXPECT_EQ(punktzahl({1}).plusMinus, 0);
    EXPECT_EQ(punktzahl({}).wert, 0);
    EXPECT_EQ(median({5, 1, 3}), 3);
    EXPECT_EQ(hoechstwert({5, 1, 3}), 5);
}

} // namespace
} // namespace fuh
