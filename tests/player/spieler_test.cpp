// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The players of strengths 1 to 3 where they have no move or only one, and the penalty rule on hand-built
// positions. What they choose in play is checked move by move by the recorded whole games.
#include <gtest/gtest.h>

#include <initializer_list>

#include "board/zufall.h"
#include "leeres_kreuz.h"
#include "memory/lerndatei.h"
#include "memory/partie.h"
#include "player/erinnerung.h"
#include "player/fuchsspieler.h"
#include "player/hennenspieler.h"
#include "player/strafregel.h"
#include "temp_ordner.h"

namespace fuh {
namespace {

// Hand-built positions for the computer players, with an empty data folder to learn from.
struct SpielerTest : ::testing::Test {
    test::TempOrdner ordner;
    Lerndatei lerndatei{ordner.pfad()};
    Partie partie;
    Stellung s = test::leeresKreuz();
    Zufall zufall{12345};

    struct Platz {
        int16_t figur; // fuchs or henne
        int x, y;
    };
    // An otherwise empty cross with just these pieces.
    void aufstellen(std::initializer_list<Platz> figuren) {
        s = test::leeresKreuz();
        for (const Platz& p : figuren)
            s.Feld[p.x][p.y] = p.figur;
    }
    Erinnerung erinnerung(int Staerke = 0) const { return {lerndatei, Staerke, partie}; }
};

TEST_F(SpielerTest, KeinZugUndEinzigerZug) {
    // A fox in the corner of the lower arm, walled in by hens it cannot jump: no move at all.
    const std::initializer_list<Platz> figuren = {{fuchs, 2, 6}, {henne, 2, 5}, {henne, 3, 5}, {henne, 3, 6},
                                                  {henne, 2, 4}, {henne, 4, 4}, {henne, 4, 6}, {fuchs, 0, 0}};
    aufstellen(figuren);
    EXPECT_TRUE(berechneFuchs(s.Feld, erinnerung(), zufall).keinZug());
    // Open one square: that is the only move.
    s.Feld[3][5] = leer;
    const Zugwahl wahl = berechneFuchs(s.Feld, erinnerung(), zufall);
    ASSERT_EQ(wahl.anzahl, 1);
    EXPECT_EQ(wahl.zuege[0], (Teilzug{2, 6, 3, 5}));
    // A single hen on the top row boxed in by foxes: it cannot move sideways or up.
    aufstellen({{henne, 3, 0}, {fuchs, 2, 0}, {fuchs, 4, 0}});
    EXPECT_TRUE(berechneHennen(s.Feld, erinnerung(), zufall).keinZug());
}

using Strafregeltest = SpielerTest;

// Records the present board, then moves the fox from (vx, vy) to (nx, ny) and records that move.
void fuchsZieht(Partie& partie, Brettfeld& Feld, int16_t vx, int16_t vy, int16_t nx, int16_t ny) {
    partie.pstoSits(Feld, {0, 0, 1, 1});
    Feld[vx][vy] = leer;
    Feld[nx][ny] = fuchs;
    partie.pstoSits(Feld, {vx, vy, nx, ny});
}

TEST_F(Strafregeltest, BeideKonntenSpringenDerHoeherStehendeGeht) {
    // Both foxes had a jump before fox 0 stepped from (2, 2); the fox standing higher now is parked,
    // the first one on equal rows. Foxes are matched by their place in the scan order.
    struct Fall {
        int fuchs1Y;          // the other fox on (4, y) with a hen below it
        int16_t nachX, nachY; // the fox on (2, 2) steps to here
        Teilzug geparkt;
    };
    for (const Fall f :
         {Fall{4, 1, 2, {1, 2, 0, 0}}, Fall{2, 1, 3, {4, 2, 0, 0}}, Fall{2, 1, 2, {1, 2, 0, 0}}}) {
        Partie p;
        aufstellen({{fuchs, 2, 2}, {henne, 2, 3}, {fuchs, 4, f.fuchs1Y}, {henne, 4, f.fuchs1Y + 1}});
        fuchsZieht(p, s.Feld, 2, 2, f.nachX, f.nachY);
        const Strafe strafe = strafregel(s.Feld, p, 0);
        EXPECT_EQ(strafe.art, Strafe::Art::parken);
        EXPECT_EQ(strafe.zug, f.geparkt) << f.fuchs1Y << f.nachY;
        EXPECT_EQ(strafregel(s.Feld, p, 1).art, Strafe::Art::keine); // single-move mode
    }
}

TEST_F(Strafregeltest, LetzterFuchsUndRueckkehr) {
    // One fox already parked; the other steps away from a jump: the game must end drawn.
    Partie p;
    aufstellen({{fuchs, 0, 0}, {fuchs, 3, 2}, {henne, 3, 3}});
    fuchsZieht(p, s.Feld, 3, 2, 2, 2);
    EXPECT_EQ(strafregel(s.Feld, p, 0).art, Strafe::Art::letzterFuchs);

    // After a fox jump the parked fox returns to the first empty square of rows 2..6, column 0 first:
    // with (0, 2) taken, that is (0, 3), not (1, 2).
    s.Feld[0][2] = henne;
    p.pstoSits(s.Feld, {2, 2, 4, 4});
    const Strafe zurueck = strafregel(s.Feld, p, 0);
    EXPECT_EQ(zurueck.art, Strafe::Art::einsetzen);
    EXPECT_EQ(zurueck.zug, (Teilzug{0, 0, 0, 3}));
}

} // namespace
} // namespace fuh
