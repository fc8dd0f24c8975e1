#include <gtest/gtest.h>

#include "board/gewichte.h"
#include "board/regeln.h"
#include "leeres_kreuz.h"

namespace fuh {
namespace {

using test::leeresKreuz;

TEST(Regeln, KorrektPrueftVektorGitterUndDiagonalen) {
    EXPECT_FALSE(korrekt(3, 3, 0, 0));
    EXPECT_FALSE(korrekt(6, 3, 1, 0));
    EXPECT_FALSE(korrekt(3, 4, 1, -1));
    EXPECT_TRUE(korrekt(2, 2, 2, 2));
    EXPECT_TRUE(korrekt(0, 2, 0, -1)); // the cross is not tested here
    EXPECT_FALSE(korrekt(0, 0, -1, 0));
    for (int x : {0, 2, 4, 6})
        EXPECT_TRUE(geradeZahl(x));
    for (int x : {1, 3, 5})
        EXPECT_FALSE(geradeZahl(x));
}

TEST(Regeln, HenneZiehtNurNachObenOderSeitwaerts) {
    Stellung s = leeresKreuz();
    s.Feld[3][3] = henne;
    std::vector<std::pair<int, int>> ziele;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (korrekterZug(s, 0, 3, 3, x, y)) ziele.emplace_back(x, y);
    EXPECT_EQ(ziele, (std::vector<std::pair<int, int>>{{2, 2}, {2, 3}, {3, 2}, {4, 2}, {4, 3}}));

    Stellung t = leeresKreuz();
    t.Feld[3][4] = henne; // x + y odd: no diagonals
    EXPECT_TRUE(korrekterZug(t, 0, 3, 4, 3, 3));
    EXPECT_TRUE(korrekterZug(t, 0, 3, 4, 2, 4));
    EXPECT_FALSE(korrekterZug(t, 0, 3, 4, 2, 3));
    EXPECT_FALSE(korrekterZug(t, 0, 3, 4, 3, 5));

    Stellung u = leeresKreuz();
    u.Feld[2][2] = henne;
    EXPECT_FALSE(korrekterZug(u, 0, 2, 2, 1, 1)); // off the cross
    EXPECT_TRUE(korrekterZug(u, 0, 2, 2, 3, 1));
    u.Feld[3][0] = henne;
    EXPECT_TRUE(korrekterZug(u, 0, 3, 0, 2, 0));
    EXPECT_FALSE(korrekterZug(u, 1, 3, 0, 2, 0)); // the computer plays the hens
}

TEST(Regeln, FuchsSchrittUndSprung) {
    Stellung s = leeresKreuz();
    s.Feld[2][2] = fuchs;
    s.Feld[3][3] = henne;
    EXPECT_TRUE(korrekterZug(s, 1, 2, 2, 4, 4));
    EXPECT_TRUE(korrekterZug(s, 2, 2, 2, 4, 4));
    EXPECT_FALSE(korrekterZug(s, 0, 2, 2, 4, 4));
    EXPECT_FALSE(korrekterZug(s, 1, 2, 2, 4, 3)); // bent
    EXPECT_FALSE(korrekterZug(s, 1, 2, 2, 5, 2)); // three squares
    EXPECT_TRUE(korrekterZug(s, 1, 2, 2, 2, 3));
    EXPECT_FALSE(korrekterZug(s, 1, 2, 2, 3, 3)); // occupied

    Stellung t = leeresKreuz();
    t.Feld[3][2] = fuchs;
    t.Feld[4][3] = henne;
    EXPECT_FALSE(korrekterZug(t, 1, 3, 2, 5, 4)); // diagonal from an odd square
}

TEST(Regeln, OffeneSprungfolgeErlaubtNurWeitereSpruengeDesSelbenFuchses) {
    Stellung s = leeresKreuz();
    s.Feld[4][4] = fuchs;
    s.Feld[4][3] = henne;
    s.Feld[2][2] = fuchs;
    s.Feld[2][3] = henne;
    s.imSprung = true;
    s.sprungX = 4;
    s.sprungY = 4;
    EXPECT_TRUE(korrekterZug(s, 1, 4, 4, 4, 2));
    EXPECT_FALSE(korrekterZug(s, 1, 4, 4, 5, 4));
    EXPECT_FALSE(korrekterZug(s, 1, 2, 2, 2, 4));
    EXPECT_FALSE(korrekterZug(s, 1, 2, 2, 1, 2));
}

TEST(Stellung, GrundstellungUndFigurIndex) {
    Stellung s;
    s.grundstellung();
    int summe = 0, ziel = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y) {
            if (s.Feld[x][y] == henne) summe += hennenfeldwert[x][y];
            if (imZielfeld(x, y)) ziel += hennenfeldwert[x][y];
        }
    EXPECT_EQ(summe, 217);
    EXPECT_EQ(ziel, 538);
    EXPECT_EQ(s.Feld[6][6], 0);

    EXPECT_FALSE(figur_index(s, 17).has_value());
    EXPECT_FALSE(figur_index(s, 0).has_value());
    s.figurplatz[5] = 0;
    s.figurplatz[9] = 0;
    EXPECT_EQ(figur_index(s, 0), 5);
    s.figurplatz[1] = 0; // a parked fox comes before captured hens
    EXPECT_EQ(figur_index(s, 0), 1);
}

} // namespace
} // namespace fuh
