// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Counts of legal move sequences to depth 4, as chess engines count theirs: the rules' move list
// against a plain second count that tries every pair of points with the legality test.
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "board/zugliste.h"
#include "leeres_kreuz.h"

namespace fuh {
namespace {

constexpr int kTiefe = 4;

int16_t gegner(int16_t seite) {
    return seite == henne ? fuchs : henne;
}

uint64_t zaehleRegeln(const Brettfeld& Feld, int16_t seite, const Sprungfolge& sprung, int tiefe) {
    if (tiefe == 0) return 1;
    uint64_t n = 0;
    for (const Regelzug& z : erlaubteZuege(Feld, seite, sprung))
        n += zaehleRegeln(z.nachher, gegner(seite), {}, tiefe - 1);
    return n;
}

// The second count: each pair of points the legality test accepts is a move; after a jump the same
// fox may go on while the sequence is open. Moves are told apart by their piece and the board they leave.
using Ende = std::pair<int, Brettfeld>;

void sammle(int von, const Brettfeld& Feld, int16_t seite, const Sprungfolge& sprung,
            std::map<Ende, int>& enden) {
    const Seite PC = seite == henne ? Seite::Hennen : Seite::Fuchs;
    for (int a = 0; a < kFelder; ++a)
        for (int b = 0; b < kFelder; ++b) {
            const int x = feldX(a), y = feldY(a), x1 = feldX(b), y1 = feldY(b);
            if (!korrekterZug(Feld, PC, sprung, x, y, x1, y1)) continue;
            Brettfeld danach = Feld;
            danach[x1][y1] = danach[x][y];
            danach[x][y] = leer;
            const bool sprungzug = std::abs(x1 - x) == 2 || std::abs(y1 - y) == 2;
            if (sprungzug) danach[(x + x1) / 2][(y + y1) / 2] = leer;
            const int start = von < 0 ? a : von;
            if (!enden.emplace(Ende{start, danach}, 0).second) continue;
            if (sprungzug) sammle(start, danach, seite, {true, int16_t(x1), int16_t(y1)}, enden);
        }
}

uint64_t zaehleEinfach(const Brettfeld& Feld, int16_t seite, const Sprungfolge& sprung, int tiefe) {
    if (tiefe == 0) return 1;
    std::map<Ende, int> enden;
    sammle(-1, Feld, seite, sprung, enden);
    uint64_t n = 0;
    for (const auto& e : enden)
        n += zaehleEinfach(e.first.second, gegner(seite), {}, tiefe - 1);
    return n;
}

struct Lage {
    std::string name;
    std::vector<std::pair<int, int>> fuechse, hennen;
    int16_t seite;
    Sprungfolge sprung{};
};

Brettfeld aufbauen(const Lage& l) {
    Brettfeld Feld = test::leeresKreuz().Feld;
    for (const auto& [x, y] : l.fuechse)
        Feld[x][y] = fuchs;
    for (const auto& [x, y] : l.hennen)
        Feld[x][y] = henne;
    return Feld;
}

// Foxes, hens, side to move. Four hens round (3, 3) let the fox on (2, 2) jump a ring either way: one
// move per distinct end, not one per route.
const std::vector<Lage> kLagen = {
    {"ring", {{2, 2}, {3, 0}}, {{3, 2}, {4, 3}, {3, 4}, {2, 3}, {0, 4}, {6, 4}, {3, 6}}, fuchs},
    // The same ring after the first jump to (4, 2), with the other fox able to jump too.
    {"offene Kette",
     {{4, 2}, {0, 2}},
     {{1, 2}, {4, 3}, {3, 4}, {2, 3}, {0, 4}, {6, 4}, {3, 6}},
     fuchs,
     {true, 4, 2}},
    {"Viererkette",
     {{4, 2}, {0, 2}},
     {{2, 0}, {3, 0}, {4, 0}, {2, 1}, {3, 1}, {4, 1}, {3, 2}, {4, 3}, {4, 5}, {3, 6}, {2, 5}, {0, 4}},
     fuchs},
    {"geparkt", {{0, 0}, {3, 3}}, {{3, 4}, {2, 3}, {4, 4}, {2, 4}, {4, 3}, {3, 5}, {1, 3}}, fuchs},
    {"geparkt, Hennen", {{0, 0}, {3, 3}}, {{3, 4}, {2, 3}, {4, 4}, {2, 4}, {4, 3}, {3, 5}, {1, 3}}, henne},
    {"vor dem Ziel",
     {{0, 2}, {6, 2}},
     {{2, 0}, {3, 0}, {4, 0}, {2, 1}, {3, 1}, {4, 1}, {2, 2}, {4, 2}, {3, 3}, {0, 4}, {6, 4}},
     henne},
    {"oben nur seitwaerts", {{3, 2}, {6, 3}}, {{2, 0}, {4, 0}, {3, 1}, {2, 2}, {4, 3}}, henne},
    {"Diagonalen", {{2, 2}, {3, 2}}, {{3, 3}, {4, 3}, {1, 3}, {2, 4}, {6, 4}}, fuchs},
    {"Landung neben dem Kreuz", {{3, 1}, {2, 4}}, {{2, 1}, {4, 1}, {3, 0}, {1, 4}, {5, 3}}, fuchs},
    {"Fuechse eingesperrt",
     {{2, 0}, {4, 0}},
     {{3, 0}, {2, 1}, {4, 1}, {3, 1}, {2, 2}, {4, 2}, {3, 3}},
     fuchs},
    {"Hennen eingesperrt", {{3, 3}, {3, 4}}, {{2, 0}, {3, 0}, {4, 0}}, henne},
    {"Mitte", {{3, 2}, {5, 4}}, {{2, 2}, {2, 3}, {3, 3}, {4, 4}, {0, 3}, {6, 2}, {3, 5}, {2, 6}}, henne},
};

TEST(Zugzahl, RegelnUndEinfacheZaehlungStimmenUeberein) {
    for (const Lage& l : kLagen) {
        const Brettfeld Feld = aufbauen(l);
        for (int t = 1; t <= kTiefe; ++t)
            ASSERT_EQ(zaehleRegeln(Feld, l.seite, l.sprung, t), zaehleEinfach(Feld, l.seite, l.sprung, t))
                << l.name << ", Tiefe " << t;
    }
}

TEST(Zugzahl, Grundstellung) {
    Stellung s;
    s.grundstellung();
    const std::array<uint64_t, kTiefe + 1> erwartet = {1, 7, 60, 708, 5592};
    for (int t = 0; t <= kTiefe; ++t) {
        EXPECT_EQ(zaehleRegeln(s.Feld, henne, {}, t), erwartet[t]) << t;
    }
}

} // namespace
} // namespace fuh
