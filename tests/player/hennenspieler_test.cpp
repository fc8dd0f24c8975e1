// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>

#include "player/fuchsspieler.h"
#include "player/hennenspieler.h"

#include "spieler_fixture.h"

namespace fuh {
namespace {

using Hennentest = test::SpielerTest;

TEST_F(Hennentest, BedrohteFelderZaehlenNichtAlsRaum) {
    // One hen on (3, 4); the fox on (1, 3) threatens (2, 4) along the diagonal, (3, 5) behind it being empty.
    aufstellen({{fuchs, 1, 3}, {fuchs, 6, 4}, {henne, 3, 4}});
    // The hen can reach (3, 3), (2, 4) and (4, 4); only (3, 3) and (4, 4) are safe.
    const Hstatus h = hstatusScan(s.Feld, erinnerung());
    EXPECT_EQ(h.lage, 9);
    EXPECT_EQ(h.raum, 20 + 9);
}

TEST_F(Hennentest, SchliesstDieLueckeStattEineHenneZuVerlieren) {
    // The fox on (3, 1) could jump the hen on (3, 2) once (3, 3) is left empty; the hens keep it covered
    // and never step out of (3, 3), whatever else they do.
    aufstellen({{fuchs, 3, 0},
                {fuchs, 0, 0},
                {henne, 2, 2},
                {henne, 4, 2},
                {henne, 2, 3},
                {henne, 4, 3},
                {henne, 3, 4}});
    for (uint32_t seed = 1; seed <= 10; ++seed) {
        Zufall z{seed};
        const Zugwahl wahl = berechneHennen(s.Feld, erinnerung(), z);
        ASSERT_EQ(wahl.anzahl, 1);
        Brettfeld danach = s.Feld;
        danach[wahl.zuege[0].vonX][wahl.zuege[0].vonY] = leer;
        danach[wahl.zuege[0].nachX][wahl.zuege[0].nachY] = henne;
        Brettfeld antwort = danach;
        fuchsVorhersage(antwort, z);
        auto hennen = [](const Brettfeld& Feld) {
            int n = 0;
            for (const auto& spalte : Feld)
                n += static_cast<int>(std::count(spalte.begin(), spalte.end(), henne));
            return n;
        };
        EXPECT_EQ(hennen(danach), hennen(antwort)) << "seed " << seed;
    }
}

TEST_F(Hennentest, OhneZugKeineWahl) {
    // A single hen on the top row boxed in by foxes: it cannot move sideways or up.
    aufstellen({{henne, 3, 0}, {fuchs, 2, 0}, {fuchs, 4, 0}});
    EXPECT_TRUE(berechneHennen(s.Feld, erinnerung(), zufall).keinZug());
}

} // namespace
} // namespace fuh
