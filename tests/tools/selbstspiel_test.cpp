// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "dateischicht/satzdatei.h"
#include "temp_ordner.h"
#include "tools/selbstspiel_lauf.h"
#include "tools/selbstspiel_programm.h"

namespace fuh {
namespace {

namespace fs = std::filesystem;

std::string lies(const fs::path& p) {
    std::ifstream ein(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
}

std::vector<std::string> worte(const std::string& text) {
    std::istringstream ein(text);
    std::vector<std::string> w;
    for (std::string s; ein >> s;)
        w.push_back(s);
    return w;
}

Optionen optionen(const std::string& text) {
    Optionen o;
    std::ostringstream aus, fehler;
    EXPECT_EQ(befehlszeileLesen(selbstspielAufruf(o), worte(text), aus, fehler), std::nullopt)
        << fehler.str();
    return o;
}

// Every file of a folder with its bytes.
std::map<std::string, std::string> dateien(const fs::path& ordner) {
    std::map<std::string, std::string> inhalt;
    for (const auto& e : fs::directory_iterator(ordner))
        inhalt[e.path().filename().string()] = lies(e.path());
    return inhalt;
}

// Games recorded by an independent implementation of the same rules: log and files, byte for byte,
// also when the game is saved and continued from its file before every move.
class Aufnahme : public ::testing::TestWithParam<std::tuple<std::string, bool>> {};

TEST_P(Aufnahme, LogUndDateienStimmenUeberein) {
    const fs::path fall = fs::path(AUFNAHMEN) / std::get<0>(GetParam());
    Optionen o = optionen(lies(fall / "args"));
    o.protokoll = true;
    o.fortsetzenPruefen = std::get<1>(GetParam());
    test::TempOrdner ordner;
    std::ostringstream log;
    selbstspiel(o, *o.seed, ordner.pfad(), log);
    EXPECT_EQ(log.str(), lies(fall / "log.txt"));
    EXPECT_EQ(dateien(ordner.pfad()), dateien(fall / "files"));
}

INSTANTIATE_TEST_SUITE_P(Selbstspiel, Aufnahme,
                         ::testing::Combine(::testing::Values("a", "b", "c", "d", "e", "f"),
                                            ::testing::Bool()));

// Every game of every recorded run, written as a game file and replayed, prints the recorded run's lines
// for that game, byte for byte, and writes nothing where it is replayed.
TEST(Selbstspiel, NachgespieltePartienGebenDieselbenZeilen) {
    for (const char* fall : {"a", "b", "c", "d", "e", "f"}) {
        Optionen o = optionen(lies(fs::path(AUFNAHMEN) / fall / "args"));
        test::TempOrdner ordner, partien, leer;
        o.partien = partien.pfad();
        std::ostringstream log;
        selbstspiel(o, *o.seed, ordner.pfad(), log);
        std::map<std::string, std::string> erwartet; // the recorded log's lines, by game
        std::istringstream aufnahme(lies(fs::path(AUFNAHMEN) / fall / "log.txt"));
        std::string spiel;
        for (std::string zeile; std::getline(aufnahme, zeile);) {
            if (zeile.starts_with("spiel ")) spiel = zeile.substr(6);
            if (!zeile.starts_with("summe ")) erwartet[spiel] += zeile + "\n";
        }
        ASSERT_EQ(dateien(partien.pfad()).size(), o.spiele) << fall;
        for (const auto& [n, zeilen] : erwartet) {
            std::ostringstream aus, fehler;
            const auto datei = partien.pfad() / ("spiel-" + n + ".fuh");
            EXPECT_EQ(selbstspielProgramm({"--nachspielen", datei.string()}, leer.pfad(), {aus, fehler}), 0)
                << fehler.str();
            EXPECT_EQ(aus.str(), zeilen) << fall << " game " << n;
        }
        EXPECT_TRUE(dateien(leer.pfad()).empty()) << fall;
    }
}

// A side given to a person is the same game as --pc with that side's strength, and a side given the
// settings' strength is the same as none given: log and files alike, also through the saved game. A
// side of its own strength plays another game. Two people play whole games and teach nothing.
TEST(Selbstspiel, SeitenformGleichtDerPcForm) {
    auto lauf = [](const std::string& args) {
        test::TempOrdner ordner;
        std::ostringstream log;
        selbstspiel(optionen("--spiele 4 --lernen --protokoll " + args), 31, ordner.pfad(), log);
        return std::make_pair(log.str(), dateien(ordner.pfad()));
    };
    const std::vector<std::pair<std::string, std::string>> gleich = {
        {"--pc 1 --staerke 3", "--fuchs mensch --hennen 3"},
        {"--pc 0 --staerke 2", "--hennen mensch --fuchs 2"},
        {"--pc 1 --staerke 2", "--staerke 2 --fuchs mensch"},
        {"--pc 0 --staerke 3", "--fuchs 3 --hennen mensch --fortsetzen-pruefen"},
        {"--pc 2 --staerke 3", "--staerke 3 --fuchs 3 --hennen 3"},
    };
    for (const auto& [pc, seiten] : gleich)
        EXPECT_TRUE(lauf(pc) == lauf(seiten)) << pc << " / " << seiten;
    EXPECT_FALSE(lauf("--pc 0 --staerke 3") == lauf("--hennen mensch --fuchs 2"));
    EXPECT_FALSE(lauf("--pc 2 --staerke 3") == lauf("--pc 2 --staerke 3 --fuchs 1"));

    const auto [log, dateienZwei] = lauf("--fuchs mensch --hennen mensch --staerke 3");
    EXPECT_NE(log.find("\nsumme 4 "), std::string::npos);
    EXPECT_EQ(dateienZwei.count("QZ3.DAT"), 0u);
    EXPECT_EQ(lauf("--fuchs mensch --hennen mensch --fortsetzen-pruefen").first,
              lauf("--fuchs mensch --hennen mensch").first);
}

TEST(Selbstspiel, NullSpieleBeruehrenKeineDatei) {
    test::TempOrdner ordner;
    std::ostringstream log;
    selbstspiel(optionen("--spiele 0 --lernen --protokoll"), 1, ordner.pfad(), log);
    EXPECT_EQ(log.str(), "summe 0 0 0 0 0\n");
    EXPECT_TRUE(fs::is_empty(ordner.pfad()));
}

// A statistics file that cannot be written (a folder in its place): every game is still played, the
// game's message names the file once on standard error, and the exit status says that data was lost.
TEST(Selbstspiel, NichtGespeichertGibtStatusEins) {
    auto lauf = [](const test::TempOrdner& ordner, const std::string& args, std::string& fehler) {
        std::ostringstream aus, err;
        const int status = selbstspielProgramm(worte(args), ordner.pfad(), {aus, err, false, false});
        fehler = err.str();
        return std::to_string(status) + "\n" + aus.str();
    };
    test::TempOrdner gut, schlecht;
    fs::create_directory(schlecht / "QZ.sta");
    std::string fehler;
    EXPECT_EQ(lauf(gut, "--spiele 3 --seed 7", fehler), "0\nsumme 3 0 3 0 0\n");
    EXPECT_EQ(fehler, "");
    EXPECT_EQ(lauf(schlecht, "--spiele 3 --seed 7", fehler), "1\nsumme 3 0 3 0 0\n");
    EXPECT_EQ(fehler, "selbstspiel: " + deutsch(schreibfehler("QZ.sta")) + "\n");
    EXPECT_TRUE(fs::is_directory(schlecht / "QZ.sta"));
    // The log keeps the message where the window would show it.
    const std::string log = lauf(schlecht, "--spiele 1 --seed 7 --protokoll", fehler);
    EXPECT_NE(log.find("\nmeldung " + deutsch(schreibfehler("QZ.sta")) + "\n"), std::string::npos);
    EXPECT_EQ(log.substr(0, 2), "1\n");
    // A game file that cannot be written is named once, and the run goes on.
    const std::string partien = (gut / "fehlt").string();
    EXPECT_EQ(lauf(gut, "--spiele 2 --seed 7 --partien " + partien, fehler), "1\nsumme 2 0 2 0 0\n");
    EXPECT_EQ(fehler, "selbstspiel: " + deutsch(schreibfehler(partien + "/spiel-1.fuh")) + "\n" +
                          "selbstspiel: " + deutsch(schreibfehler(partien + "/spiel-2.fuh")) + "\n");
}

} // namespace
} // namespace fuh
