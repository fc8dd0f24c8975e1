// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <random>

#include "spiel_fixture.h"

namespace fuh {
namespace {

using test::SpielTest;

// Whatever the files hold, a game can be started, played by the computer and filed.
TEST_F(SpielTest, BeliebigeDateiinhalteFuehrenNieZumAbsturz) {
    std::mt19937 zufallszahlen(42);
    auto muell = [&](std::size_t n) {
        std::vector<unsigned char> b(n);
        for (auto& c : b)
            c = static_cast<unsigned char>(zufallszahlen());
        return b;
    };
    const std::vector<std::array<int16_t, 4>> einstellungen = {
        {7, 0, 1, 0}, {0, -1, 1, 0}, {1, 300, 1, 0}, {2, -32768, 1, 1}, {2, 2, 1, 0}, {-1, 1, 1, 5}};
    for (const auto& e : einstellungen) {
        SCOPED_TRACE(e[0] * 1000 + e[1]);
        ini(e[0], e[1], e[2], e[3]);
        ordner.schreibe("QZ.sta", muell(17));
        ordner.schreibe("QZ3.DAT", muell(15 * 200 + 7));
        ordner.schreibe("QZ2.DAT", muell(4));
        spiel.programmStart(3);
        spiel.neuesSpiel();
        for (int t = 0; t < kFelder; ++t)
            for (int k = 0; k < kFiguren; ++k)
                spiel.abgelegt(t, k);
        spiel.sprungfolgeSchliessen();
        spiel.computerZieht();
        EXPECT_LE(spiel.spielzug(), kSituationen);
    }
    // A file that cannot be written is reported in German and the game goes on.
    std::filesystem::remove(ordner / "QZ.sta");
    std::filesystem::create_directory(ordner / "QZ.sta");
    ini(2, 0, 0, 0);
    ansicht.meldungen.clear();
    spiel.neuesSpiel();
    ASSERT_FALSE(ansicht.meldungen.empty());
    EXPECT_NE(ansicht.meldungen.front().find("QZ.sta"), std::string::npos);
    EXPECT_TRUE(spiel.endeGefunden());

    // Everything that failed when the game was filed is named in one message.
    std::filesystem::remove(ordner / "QZ3.DAT");
    std::filesystem::create_directory(ordner / "QZ3.DAT");
    ini(2, 2, 1, 0);
    ansicht.meldungen.clear();
    spiel.neuesSpiel();
    ASSERT_TRUE(spiel.endeGefunden());
    EXPECT_EQ(ansicht.meldungen.back(),
              "Die Dateien „QZ3.DAT“ und „QZ.sta“ konnten nicht gespeichert werden. "
              "Das Spiel geht ohne diese Daten weiter.");
}

} // namespace
} // namespace fuh
