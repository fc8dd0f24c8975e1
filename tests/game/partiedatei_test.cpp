// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <unistd.h>

#include <algorithm>
#include <string>

#include "dateischicht/prozess.h"
#include "partie_fixture.h"

namespace fuh::test {
namespace {

namespace fs = std::filesystem;

TEST_F(PartieTest, GespeichertUndGelesenIstEsDasselbeSpiel) {
    const Sicherung s = mitten();
    ASSERT_FALSE(s.verlauf.empty());
    EXPECT_TRUE(s.stand.zurueckgenommen);
    {
        Partieablage ende(zustand());
        ASSERT_TRUE(ende.sichern(s)); // the folder is created
    }
    Partieablage start(zustand());
    const Partieablage::Angebot a = start.holen(keine);
    ASSERT_TRUE(a.sicherung == s);
    EXPECT_TRUE(a.beschaedigt == 0 && !a.kennung.empty());
    // Read, not removed: the file stays until the question about it has been answered, whatever the
    // window does meanwhile.
    EXPECT_TRUE(start.verwerfen());
    EXPECT_TRUE(fs::exists(zustand() / "partie"));
    EXPECT_TRUE(start.erledigt());
    EXPECT_FALSE(fs::exists(zustand() / "partie"));
    EXPECT_FALSE(Partieablage(zustand()).holen(keine).sicherung);

    // A fresh game taking it over is the same game, its take-backs included.
    TestAnsicht andereAnsicht;
    Zufall andererZufall;
    Spiel weiter(andereAnsicht, andererZufall, ordner.pfad());
    weiter.fortsetzen(*a.sicherung);
    EXPECT_TRUE(weiter.sicherung() == s);
    EXPECT_EQ(andereAnsicht.panels[3], deutsch(punkteText(s.stand.punkte)));
    EXPECT_EQ(andereAnsicht.panels[4], "Zurückgenommen: keine Bestenliste");
    EXPECT_TRUE(weiter.zuruecknehmenMoeglich());
}

// Window C is open without a game, A and B with running games. The second of A and B to quit keeps
// both games, and C quitting after them removes neither.
TEST_F(PartieTest, LaufendeSpieleBleibenAlle) {
    const Sicherung erste = mitten(3);
    const Sicherung zweite = mitten(5);
    ASSERT_FALSE(erste == zweite);
    Partieablage leer(zustand());
    EXPECT_FALSE(leer.holen(keine).sicherung);
    {
        Partieablage a(zustand());
        Partieablage b(zustand());
        ASSERT_TRUE(a.sichern(erste));
        ASSERT_TRUE(b.sichern(zweite));
        ASSERT_TRUE(a.sichern(erste)); // saving again replaces A's own file only
        EXPECT_TRUE(b.haelt());
    }
    EXPECT_TRUE(leer.verwerfen());
    EXPECT_FALSE(leer.haelt());
    std::vector<std::string> namen;
    for (const auto& e : fs::directory_iterator(zustand()))
        namen.push_back(e.path().filename().string());
    std::sort(namen.begin(), namen.end());
    EXPECT_EQ(namen, (std::vector<std::string>{"partie", "partie-2"}));
    // The next two starts offer one game each; one that is being asked about is not offered twice.
    Partieablage c(zustand());
    Partieablage d(zustand());
    const auto ac = c.holen(keine);
    const auto ad = d.holen(keine);
    EXPECT_TRUE(ac.sicherung == erste && ad.sicherung == zweite);
    EXPECT_FALSE(Partieablage(zustand()).holen(keine).sicherung);
    // A window asking about a game that ends without an answer leaves it for the next start.
    c.freigeben();
    EXPECT_TRUE(Partieablage(zustand()).holen(keine).sicherung == erste);
}

// Killed (SIGKILL) while the question is open, the game stays as it was.
TEST_F(PartieTest, GetoetetWaehrendDerFrageBleibtDieDatei) {
    const Sicherung s = mitten();
    ASSERT_TRUE(Partieablage(zustand()).sichern(s));
    const auto vorher = ordner.lies("zustand/partie");
    int fertig[2];
    ASSERT_EQ(::pipe(fertig), 0);
    const pid_t kind = kindStarten([&] {
        Partieablage start(zustand());
        const bool angeboten = start.holen(keine).sicherung.has_value();
        const char c = angeboten ? 'j' : 'n';
        static_cast<void>(::write(fertig[1], &c, 1));
        ::pause(); // the question waits for an answer
    });
    ::close(fertig[1]);
    char c = 0;
    ASSERT_EQ(::read(fertig[0], &c, 1), 1);
    ::close(fertig[0]);
    EXPECT_EQ(c, 'j');
    ::kill(kind, SIGKILL);
    ::waitpid(kind, nullptr, 0);
    EXPECT_EQ(ordner.lies("zustand/partie"), vorher);
    EXPECT_TRUE(Partieablage(zustand()).holen(keine).sicherung == s);
}

// Bad things in the saved game's place. A damaged, oversized or linked file is removed, never trusted; so is
// a temporary file a writer killed while writing left. A folder there stays, unreported, and the game goes
// to the next name.
TEST_F(PartieTest, EineFremdeDateiWirdEntferntUndNieVertraut) {
    const Sicherung gut = mitten();
    const Bytes gutBytes = partieKodieren(gut);
    fs::create_directories(zustand());
    ordner.schreibe("zustand/partie", {'n', 'i', 'c', 'h', 't', 's'});
    std::ofstream(zustand() / ".partie-99999-0.tmp") << "halb";
    const Partieablage::Angebot a = Partieablage(zustand()).holen(keine);
    EXPECT_TRUE(a.beschaedigt == 1 && !a.sicherung);
    EXPECT_TRUE(fs::is_empty(zustand()));

    // Oversized: a valid game followed by a megabyte is not read whole.
    std::vector<unsigned char> riesig(gutBytes.begin(), gutBytes.end());
    riesig.resize(riesig.size() + (1u << 20));
    ordner.schreibe("zustand/partie", riesig);
    EXPECT_EQ(Partieablage(zustand()).holen(keine).beschaedigt, 1);
    EXPECT_FALSE(fs::exists(zustand() / "partie"));

    // A link goes, what it points to stays.
    ordner.schreibe("brief", {'x'});
    fs::create_symlink(ordner / "brief", zustand() / "partie");
    EXPECT_EQ(Partieablage(zustand()).holen(keine).beschaedigt, 1);
    EXPECT_FALSE(fs::exists(fs::symlink_status(zustand() / "partie")));
    EXPECT_EQ(ordner.lies("brief"), std::vector<unsigned char>{'x'});

    // Nowhere to write: refused, and the file in the way is not touched.
    Partieablage nirgends(ordner / "brief");
    EXPECT_FALSE(nirgends.sichern(gut));
    EXPECT_EQ(nirgends.fehler(), ENOTDIR);
    EXPECT_EQ(ordner.lies("brief"), std::vector<unsigned char>{'x'});

    fs::create_directories(zustand() / "partie");
    Partieablage neben(zustand());
    EXPECT_EQ(neben.holen(keine).beschaedigt, 0);
    ASSERT_TRUE(neben.sichern(gut));
    EXPECT_TRUE(fs::is_directory(zustand() / "partie"));
    neben.freigeben();
    EXPECT_TRUE(Partieablage(zustand()).holen(keine).sicherung == gut);
}

} // namespace
} // namespace fuh::test
