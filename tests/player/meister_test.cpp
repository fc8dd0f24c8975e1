// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "board/regeln.h"
#include "leeres_kreuz.h"
#include "memory/lerndatei.h"
#include "player/erinnerung.h"
#include "player/fuchsspieler.h"
#include "player/meister.h"
#include "player/meister_brett.h"
#include "player/meister_suche.h"
#include "player/meister_zeit.h"
#include "player/strafregel.h"
#include "temp_ordner.h"

namespace fuh {
namespace {

struct Platz {
    int k, x, y; // piece k (0, 1 foxes, else hens) on (x, y)
};
constexpr auto kViel = std::chrono::milliseconds{450};

// Moves a piece on a board; a normal jump also takes the hen it passes over, a penalty move never does.
void ausfuehren(Brettfeld& Feld, const Teilzug& z, bool normal = true) {
    Feld[z.nachX][z.nachY] = Feld[z.vonX][z.vonY];
    Feld[z.vonX][z.vonY] = leer;
    if (normal && z.sprung()) Feld[z.vonX + (z.nachX - z.vonX) / 2][z.vonY + (z.nachY - z.vonY) / 2] = leer;
}

// Carries out the penalty rule's verdict as the game does; true when the game ends drawn.
bool strafeAusfuehren(Brettfeld& Feld, const Partie& partie) {
    const Strafe strafe = strafregel(Feld, partie, 0);
    if (strafe.art == Strafe::Art::parken || strafe.art == Strafe::Art::einsetzen)
        ausfuehren(Feld, strafe.zug, false);
    return strafe.art == Strafe::Art::letzterFuchs;
}

// Searches to a fixed depth, so that the result does not depend on the machine's speed.
Zugwahl suche(const Brettfeld& Feld, int16_t seite, int tiefe, int spielzug = 10, Meister* m = nullptr) {
    Meister eigener(7);
    Meister& meister = m ? *m : eigener;
    meister.grenzen(0, tiefe);
    return meister.berechne({Feld, seite, spielzug, true, kViel});
}

Brettfeld brett(std::initializer_list<Platz> figuren) {
    Brettfeld Feld = test::leeresKreuz().Feld;
    for (const Platz& p : figuren)
        Feld[p.x][p.y] = p.k < 2 ? fuchs : henne;
    return Feld;
}

int anzahl(const Brettfeld& Feld, int16_t code) {
    int n = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            n += Feld[x][y] == code;
    return n;
}

// Twelve hens; the fox on (4, 2) wins at once with four jumps down and round to (2, 4), while the jump
// over (3, 2) into the target area is worth more to a player that looks one move ahead.
const std::initializer_list<Platz> kViererkette = {{0, 4, 2},  {1, 0, 2},  {2, 2, 0},  {3, 3, 0}, {4, 4, 0},
                                                   {5, 2, 1},  {6, 3, 1},  {7, 4, 1},  {8, 3, 2}, {9, 4, 3},
                                                   {10, 4, 5}, {11, 3, 6}, {12, 2, 5}, {13, 0, 4}};

TEST(Meister, FuchsFindetDieKetteDieGewinnt) {
    const Zugwahl w = suche(brett(kViererkette), fuchs, 2);
    const std::array<Teilzug, 4> kette = {Teilzug{4, 2, 4, 4}, Teilzug{4, 4, 4, 6}, Teilzug{4, 6, 2, 6},
                                          Teilzug{2, 6, 2, 4}};
    ASSERT_EQ(w.anzahl, 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(w.zuege[i], kette[i]) << i;

    test::TempOrdner ordner; // the fox player takes the single jump instead
    const Lerndatei lerndatei(ordner.pfad());
    const Partie partie;
    Zufall zufall(1);
    const Zugwahl einfach = berechneFuchs(brett(kViererkette), Erinnerung(lerndatei, 0, partie), zufall);
    ASSERT_EQ(einfach.anzahl, 1);
    EXPECT_EQ(einfach.zuege[0], (Teilzug{4, 2, 2, 2}));
}

TEST(Meister, HennenSchliessenDieLuecke) {
    // Two foxes aim at (2, 2): over (2, 3) from below and over (3, 2) from the side. Most hen moves
    // leave a jump open; the hens must fill the landing square or move a threatened hen away.
    const std::initializer_list<Platz> figuren = {{0, 2, 4}, {1, 4, 2}, {2, 2, 3},  {3, 3, 2},
                                                  {4, 1, 2}, {5, 0, 3}, {6, 5, 4},  {7, 6, 4},
                                                  {8, 3, 5}, {9, 4, 6}, {10, 0, 4}, {11, 6, 3}};
    const Brettfeld Feld = brett(figuren);
    const Zugwahl w = suche(Feld, henne, 4);
    ASSERT_EQ(w.anzahl, 1);
    Brettfeld danach = Feld;
    const Teilzug z = w.zuege[0];
    ASSERT_TRUE(korrekterZug(danach, Seite::Hennen, {}, z.vonX, z.vonY, z.nachX, z.nachY));
    ausfuehren(danach, z);
    const auto b = meister::Suchbrett::aus(danach, true);
    EXPECT_FALSE(b.kannSpringen(b.fuchsFeld[0]) || b.kannSpringen(b.fuchsFeld[1]));
}

TEST(Meister, KeinZug) {
    // Hens boxed in under a full row; foxes with every neighbour taken; a side that is neither.
    const Brettfeld hennen = brett({{0, 3, 3}, {1, 3, 4}, {2, 2, 0}, {3, 3, 0}, {4, 4, 0}});
    EXPECT_EQ(suche(hennen, henne, 3).anzahl, 0);
    const Brettfeld fuechse =
        brett({{0, 2, 0}, {1, 4, 0}, {2, 3, 0}, {3, 2, 1}, {4, 4, 1}, {5, 3, 1}, {6, 2, 2}, {7, 4, 2}});
    EXPECT_EQ(suche(fuechse, fuchs, 3).anzahl, 0);
    EXPECT_EQ(suche(fuechse, leer, 3).anzahl, 0);
    EXPECT_EQ(suche(brett({{2, 3, 3}}), fuchs, 3).anzahl, 0); // no fox at all
}

TEST(Meister, ZugbegrenzungMachtDenSiegZumRemis) {
    // Eight hens in the target area and one below the empty (3, 2): one step wins, unless that step
    // records the 149th position.
    const std::initializer_list<Platz> figuren = {{0, 0, 2},  {1, 6, 2},  {2, 2, 0}, {3, 3, 0}, {4, 4, 0},
                                                  {5, 2, 1},  {6, 3, 1},  {7, 4, 1}, {8, 2, 2}, {9, 4, 2},
                                                  {10, 3, 3}, {11, 0, 4}, {12, 6, 4}};
    const Brettfeld Feld = brett(figuren);
    Meister m(3);
    EXPECT_EQ(suche(Feld, henne, 3, 147, &m).zuege[0], (Teilzug{3, 3, 3, 2}));
    EXPECT_GT(m.bericht().wert, meister::kEntschieden);
    suche(Feld, henne, 3, 148, &m);
    EXPECT_LT(m.bericht().wert, meister::kEntschieden);
}

// Plays the move as a human would have to: every part must pass the legality test first.
bool spiele(Brettfeld& Feld, Partie& partie, const Zugwahl& w, Seite seite) {
    Sprungfolge sprung;
    Teilzug letzter{};
    for (const Teilzug& z : w) {
        if (!korrekterZug(Feld, seite, sprung, z.vonX, z.vonY, z.nachX, z.nachY)) return false;
        ausfuehren(Feld, z);
        if (z.sprung()) sprung = {true, z.nachX, z.nachY};
        letzter = z;
    }
    partie.pstoSits(Feld, letzter);
    return true;
}

bool vorbei(const Brettfeld& Feld) {
    int imZiel = 0;
    for (int x = 2; x <= 4; ++x)
        for (int y = 0; y <= 2; ++y)
            imZiel += Feld[x][y] == henne;
    return imZiel == 9 || anzahl(Feld, henne) < 9;
}

TEST(Meister, GanzePartieNurMitErlaubtenZuegen) {
    // Meister against Meister under the penalty rule, with small searches: every move is legal, a fox
    // chain is played jump by jump, and the game ends by the move limit at the latest.
    Stellung s;
    s.grundstellung();
    Partie partie;
    Meister hennen(1), fuechse(2);
    hennen.grenzen(1500, 0);
    fuechse.grenzen(1500, 0);
    bool ende = false;
    while (!ende && partie.spielzug < kZugbegrenzung) {
        if (strafeAusfuehren(s.Feld, partie)) break;
        const Zugwahl h = hennen.berechne({s.Feld, henne, partie.spielzug, true, kViel});
        ASSERT_TRUE(spiele(s.Feld, partie, h, Seite::Hennen)) << partie.spielzug;
        ende = h.keinZug() || vorbei(s.Feld) || partie.spielzug == kZugbegrenzung;
        if (ende) break;
        const Zugwahl f = fuechse.berechne({s.Feld, fuchs, partie.spielzug, true, kViel});
        ASSERT_TRUE(spiele(s.Feld, partie, f, Seite::Fuchs)) << partie.spielzug;
        ende = f.keinZug() || vorbei(s.Feld);
    }
    EXPECT_LE(partie.spielzug, kZugbegrenzung);
}

TEST(Meister, LetzterFuchsVerpasstEinenSprung) {
    // The last fox on the cross that misses a jump draws the game, so it jumps.
    const std::initializer_list<Platz> figuren = {{0, 0, 0}, {1, 4, 2},  {3, 4, 3},  {4, 2, 0},
                                                  {5, 3, 0}, {6, 4, 0},  {7, 2, 1},  {8, 3, 1},
                                                  {9, 4, 1}, {10, 2, 2}, {11, 0, 3}, {12, 6, 3}};
    EXPECT_EQ(suche(brett(figuren), fuchs, 3).zuege[0], (Teilzug{4, 2, 4, 4}));
}

TEST(Meister, FuechseNehmenDasRemisHennenNicht) {
    // The last fox on the cross can jump the hen below it, after which sixteen hens still lead; missing the
    // jump on purpose draws the game. The foxes take the draw; the hens would not.
    const std::initializer_list<Platz> figuren = {{0, 0, 0},  {1, 3, 3},  {2, 3, 4},  {3, 2, 0},  {4, 3, 0},
                                                  {5, 4, 0},  {6, 2, 1},  {7, 3, 1},  {8, 4, 1},  {9, 2, 2},
                                                  {10, 4, 2}, {11, 0, 2}, {12, 6, 2}, {13, 1, 3}, {14, 5, 3},
                                                  {15, 2, 4}, {16, 4, 4}, {17, 0, 4}, {18, 6, 4}};
    Meister m(7);
    EXPECT_FALSE(suche(brett(figuren), fuchs, 3, 10, &m).zuege[0].sprung());
    EXPECT_EQ(m.bericht().wert, 0);
    // At the move limit every move draws: nothing lost for the foxes, a loss of value for the hens.
    suche(brett(figuren), henne, 3, kZugbegrenzung - 1, &m);
    EXPECT_LT(m.bericht().wert, 0);
}

using meister::Zeitplan;

TEST(MeisterZeit, NaechsteTiefeNachPrognose) {
    struct Fall {
        uint64_t verbraucht, letzte, vorletzte;
        bool erwartet;
    };
    // Budget 1000: below half a depth is always begun; above, only when it is predicted to fit.
    const Fall faelle[] = {
        {499, 400, 50, true},   // under half, however expensive
        {600, 100, 50, true},   // doubling: 600 + 200
        {600, 150, 50, false},  // tripling: 600 + 450
        {600, 140, 0, false},   // unknown growth counts as threefold: 600 + 420
        {600, 100, 0, true},    // 600 + 300
        {600, 50, 1, true},     // growth capped at eightfold: 600 + 400, not 600 + 2500
        {600, 60, 1, false},    // 600 + 480
        {900, 50, 100, true},   // a shrinking depth still counts as growing a little: 900 + 60
        {900, 100, 100, false}, // 900 + 120
        {1000, 0, 0, false},    // spent
    };
    for (const Fall& f : faelle)
        EXPECT_EQ(Zeitplan::lohnt(f.verbraucht, f.letzte, f.vorletzte, 1000), f.erwartet)
            << f.verbraucht << ' ' << f.letzte << ' ' << f.vorletzte;
}

TEST(MeisterZeit, KnotenbudgetOhneUhr) {
    // With a node budget the clock is never asked: the stop comes exactly at the budget, and the cost
    // of a depth is counted in positions.
    Zeitplan plan(std::chrono::steady_clock::time_point{}, std::chrono::microseconds{1}, 1000);
    EXPECT_FALSE(plan.um(999));
    EXPECT_TRUE(plan.um(1000));
    EXPECT_TRUE(plan.naechsteTiefe(100));  // 100 of 1000
    EXPECT_TRUE(plan.naechsteTiefe(400));  // 400: under half
    EXPECT_FALSE(plan.naechsteTiefe(700)); // 300 after 300, and a depth grows: 700 + 360
}

TEST(MeisterZeit, SuchtBisZumBudgetUndGleichAufJederMaschine) {
    // The crowded opening under a node budget: the search spends at least half of it and never more,
    // and two searches give the same legal move, depth and count.
    Stellung start;
    start.grundstellung();
    for (const uint64_t budget : {2000u, 60000u}) {
        Meister a(5), b(5);
        a.grenzen(budget, 0);
        b.grenzen(budget, 0);
        const MeisterLage lage{start.Feld, henne, 0, true, std::chrono::milliseconds{1}};
        const Zugwahl wa = a.berechne(lage), wb = b.berechne(lage);
        EXPECT_EQ(wa, wb);
        ASSERT_EQ(wa.anzahl, 1);
        const Teilzug& z = wa.zuege[0];
        EXPECT_TRUE(korrekterZug(start.Feld, Seite::Hennen, {}, z.vonX, z.vonY, z.nachX, z.nachY));
        EXPECT_EQ(a.bericht().knoten, b.bericht().knoten);
        EXPECT_EQ(a.bericht().tiefe, b.bericht().tiefe);
        EXPECT_GE(a.bericht().knoten, budget / 2) << budget;
        EXPECT_LE(a.bericht().knoten, budget) << budget;
    }
}

} // namespace
} // namespace fuh
