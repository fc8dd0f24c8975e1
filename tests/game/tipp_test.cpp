// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "leeres_kreuz.h"
#include "mensch.h"
#include "player/hennenspieler.h"
#include "player/tafel_bau.h"
#include "spiel_fixture.h"

namespace fuh {
namespace {

// The human plays the hens against the foxes at strength 3 with learning. In one game the human asks
// for hints three times before every move and plays the first; the other game makes the same moves
// without asking. Both games, their messages and every file are the same.
TEST(Tipp, FragenAendertNichts) {
    struct Lauf {
        test::TempOrdner ordner;
        test::TestAnsicht ansicht;
        Zufall zufall{99};
        Spiel spiel{ansicht, zufall, ordner.pfad()};
        Lauf() {
            spiel.einstellungenFestlegen({0, 2, 1, 0});
            spiel.programmStart(5);
            spiel.neuesSpiel();
        }
        void zieh(const Teilzug& z) {
            spiel.abgelegt(feldNummer(z.nachX, z.nachY),
                           *figur_index(spiel.stellung(), feldNummer(z.vonX, z.vonY)));
            spiel.computerZieht();
        }
    };
    Lauf fragend, still;
    std::vector<Teilzug> zuege;
    while (fragend.spiel.tippMoeglich() && zuege.size() < 200) {
        const Zugwahl t = fragend.spiel.tipp();
        fragend.spiel.tipp();
        fragend.spiel.tipp();
        ASSERT_EQ(t.anzahl, 1);
        zuege.push_back(t.zuege[0]);
        fragend.zieh(t.zuege[0]);
    }
    ASSERT_TRUE(fragend.spiel.endeGefunden());
    for (const Teilzug& z : zuege)
        still.zieh(z);
    EXPECT_EQ(still.spiel.partie().spielzug, fragend.spiel.partie().spielzug);
    EXPECT_EQ(still.ansicht.meldungen, fragend.ansicht.meldungen);
    EXPECT_EQ(test::dateien(still.ordner), test::dateien(fragend.ordner));
}

// The hint is what the computer hen player chooses in that position, and there is none while the
// computer is to move, in computer-against-computer play, or before a game runs.
using test::SpielTest;

TEST_F(SpielTest, TippIstDerZugDesComputers) {
    ini(0);
    spiel.programmStart(17);
    EXPECT_FALSE(spiel.tippMoeglich());
    spiel.neuesSpiel();
    Zufall gleich{17};
    const Zugwahl erwartet = berechneHennen(spiel.stellung().Feld,
                                            Erinnerung(Lerndatei(ordner.pfad()), 0, spiel.partie()), gleich);
    EXPECT_EQ(spiel.tipp(), erwartet);
    ziehe(3, 3, 3, 2);
    EXPECT_FALSE(spiel.tippMoeglich()); // the fox replies first
    EXPECT_TRUE(spiel.tipp().keinZug());
    spiel.computerZieht();
    EXPECT_TRUE(spiel.tippMoeglich());
    einstellen(2, 0); // the computer takes both sides
    EXPECT_FALSE(spiel.tippMoeglich());
}

// In an endgame the table knows, the hint names its outcome with the move limit applied. The table is of
// the small class of hens in the upper three rows, for the rules of a person's hens (no penalty rule).
TEST_F(SpielTest, TippNenntImEndspielDenAusgang) {
    ini(0);
    spiel.programmStart(3);
    spiel.neuesSpiel();
    const auto tafel = std::make_shared<const Endspieltafel>(tafelBauen(false, 2, 3));
    spiel.endspieltafeln({tafel, nullptr}); // only for the penalty rule, which does not apply here
    Sicherung s = spiel.sicherung();
    EXPECT_EQ(deutsch(spiel.tippUrteil()), "");
    spiel.endspieltafeln({nullptr, tafel});
    EXPECT_EQ(deutsch(spiel.tippUrteil()), ""); // the opening is outside the class
    // Eight hens in the target, one on the left arm of row 2, the foxes far below: the hens win.
    Stellung& st = s.stand.stellung;
    st = test::leeresKreuz();
    int k = 0;
    auto setze = [&st, &k](int x, int y, int16_t code) {
        st.Feld[x][y] = code;
        st.figurplatz[k++] = static_cast<int16_t>(feldNummer(x, y));
    };
    setze(3, 5, fuchs);
    setze(3, 6, fuchs);
    for (const auto& [x, y] :
         {std::pair{2, 0}, {3, 0}, {4, 0}, {2, 1}, {3, 1}, {4, 1}, {3, 2}, {4, 2}, {0, 2}})
        setze(x, y, henne);
    for (const auto& [spielzug, urteil] :
         {std::pair{100, "Die Hennen gewinnen in 3 Zügen"}, {146, "Remis"}}) {
        s.stand.partie.spielzug = static_cast<int16_t>(spielzug);
        spiel.fortsetzen(s);
        EXPECT_EQ(deutsch(spiel.tippUrteil()), urteil) << spielzug;
    }
    st.Feld[0][2] = leer;
    st.Feld[1][2] = henne;
    st.figurplatz[k - 1] = static_cast<int16_t>(feldNummer(1, 2));
    s.stand.partie.spielzug = 147;
    spiel.fortsetzen(s);
    EXPECT_EQ(deutsch(spiel.tippUrteil()), "Die Hennen gewinnen mit diesem Zug");
}

} // namespace
} // namespace fuh
