// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Several processes on one data folder: copies playing side by side lose nothing, and a process killed
// at any moment of filing leaves every file whole.
#include <random>
#include <set>
#include <sstream>

#include "memory/lerndatei.h"
#include "prozess.h"
#include "spieldaten/bestenliste.h"
#include "spieldaten/einstellungsdatei.h"
#include "spieldaten/statistikdatei.h"
#include "testdateien.h"
#include "tools/selbstspiel_lauf.h"

namespace fuh {
namespace {

namespace fs = std::filesystem;
using test::TempOrdner;
using B = std::vector<uint8_t>;

// The number of records of a learned-move file; every record whole, with a code as positions have
// them, and no position stored twice (up to the mirror form).
std::size_t pruefeLerndatei(const B& b) {
    EXPECT_EQ(b.size() % kLernsatz, 0u);
    std::set<Code> gesehen;
    for (std::size_t pos = 0; pos + kLernsatz <= b.size(); pos += kLernsatz) {
        Code c;
        std::copy(b.begin() + static_cast<long>(pos), b.begin() + static_cast<long>(pos) + 11, c.begin());
        for (const uint8_t z : c)
            EXPECT_TRUE(z >= 64 && z < 192) << "record " << pos / kLernsatz;
        EXPECT_FALSE(gesehen.count(c) || gesehen.count(spiegelcode(c))) << "record " << pos / kLernsatz;
        gesehen.insert(c);
    }
    return gesehen.size();
}

TEST(Mehrprozess, ZweiSelbstspieleImSelbenOrdnerVerlierenNichts) {
    TempOrdner t;
    constexpr int kSpiele = 6;
    std::vector<pid_t> kinder;
    for (uint32_t seed : {11u, 12u}) {
        kinder.push_back(test::kindStarten([&] {
            Optionen o;
            o.spiele = kSpiele;
            o.staerke = 3;
            o.lernen = true;
            std::ostringstream log;
            selbstspiel(o, seed, t.pfad(), log);
        }));
    }
    for (const pid_t k : kinder)
        EXPECT_TRUE(test::kindAbwarten(k, std::chrono::seconds(60)));
    const Statistik s = statistikLesen(t.pfad());
    EXPECT_EQ(std::tuple(s.gestartet(), s.beendet(), s.imLernmodus()),
              std::tuple(2 * kSpiele, 2 * kSpiele, 2 * kSpiele));
    // Every record a merge counted is in the file, and only once.
    EXPECT_EQ(pruefeLerndatei(t.lies("QZ3.DAT")), static_cast<std::size_t>(s.gelernt()));
}

// A game's positions: some from a small pool (so merges update records), some new.
Partie partie(std::mt19937& zufall) {
    Partie p;
    p.spielzug = static_cast<int16_t>(20 + zufall() % 100);
    for (int k = 0; k < p.spielzug; ++k) {
        Situation& s = p.sits[static_cast<std::size_t>(k)];
        std::mt19937 code(zufall() % 2 ? zufall() % 50 : zufall());
        for (auto& z : s.code)
            z = static_cast<uint8_t>(64 + code() % 64);
        s.fuchswert = static_cast<int16_t>(zufall() % 7) - 3;
        s.hennenwert = -s.fuchswert;
    }
    return p;
}

// Files one game after another, forever, until killed.
[[noreturn]] void ablegenBisZumTod(const fs::path& ordner, uint32_t seed) {
    std::mt19937 zufall(seed);
    const Lerndatei lerndatei(ordner);
    for (int16_t i = 0;; ++i) {
        const auto merge = lerndatei.speichern(partie(zufall), 2);
        statistik(ordner, 1, {0, 2, 1, 0}, merge.neueZuege);
        einstellungenSchreiben(ordner, {i, i, i, i});
        Bestenliste liste(Seite::Hennen);
        liste.einfuegen(static_cast<int16_t>(zufall() % 1000), "Ja", 45000 + i);
        liste.nameSetzen("Spieler");
        liste.speichern(ordner);
    }
}

void pruefeKleineDateien(const TempOrdner& t) {
    const B ini = t.lies("QZ.INI");
    EXPECT_TRUE(ini.empty() ||
                (ini.size() == 8u && ini[0] == ini[2] && ini[2] == ini[4] && ini[4] == ini[6]));
    ASSERT_TRUE(t.lies("QZ.sta").empty() || t.lies("QZ.sta").size() == 34u);
    const Statistik s = statistikLesen(t.pfad());
    EXPECT_LE(s.gelernt(), static_cast<int>(t.lies("QZ3.DAT").size() / kLernsatz)); // counted ones are there
    ASSERT_TRUE(t.lies("QZH.sco").empty() || t.lies("QZH.sco").size() == 290u);
    Bestenliste l(Seite::Hennen);
    l.laden(t.pfad());
    for (int z = 1; z < kListenzeilen; ++z)
        EXPECT_GE(l.eintraege()[z - 1].score, l.eintraege()[z].score);
}

TEST(Mehrprozess, KillWaehrendDesAblegensLaesstJedeDateiGanz) {
    TempOrdner t;
    std::mt19937 zufall(3);
    for (int runde = 0; runde < 40; ++runde) {
        const pid_t kind = test::kindStarten([&] { ablegenBisZumTod(t.pfad(), zufall()); });
        std::this_thread::sleep_for(std::chrono::microseconds(500 + zufall() % 20000));
        ::kill(kind, SIGKILL);
        ::waitpid(kind, nullptr, 0);
        SCOPED_TRACE(runde);
        pruefeLerndatei(t.lies("QZ3.DAT"));
        pruefeKleineDateien(t);
        for (const std::string& n : t.namen()) // a killed writer's temporary file, at most
            EXPECT_TRUE(n.starts_with("QZ") && (n.size() <= 7 || n.ends_with(".tmp"))) << n;
    }
    // The next write of each file removes what a killed writer left.
    ASSERT_TRUE(einstellungenSchreiben(t.pfad(), {1, 1, 1, 1}) && spielGestartet(t.pfad()));
    Bestenliste liste(Seite::Hennen);
    liste.laden(t.pfad());
    ASSERT_TRUE(liste.speichern(t.pfad()));
    EXPECT_EQ(t.namen(), (std::vector<std::string>{"QZ.INI", "QZ.sta", "QZ3.DAT", "QZH.sco"}));
}

} // namespace
} // namespace fuh
