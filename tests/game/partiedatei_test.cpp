// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>
#include <functional>
#include <optional>
#include <string>

#include "dialogs/statistikdatei.h"
#include "fremde_sperre.h"
#include "game/partiedatei.h"
#include "memory/benutzerordner.h"
#include "memory/prozess.h"
#include "memory/satzdatei.h"
#include "mensch.h"
#include "spiel_fixture.h"

namespace fuh::test {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> keine;

// A game of human foxes some moves in, with a move taken back.
struct PartieTest : SpielTest {
    // A penalty can end a game of random foxes early: then the next seed plays.
    Sicherung mitten(uint32_t seed = 3) {
        ini(1, 2, 1);
        for (int versuch = 0; versuch < 20; ++versuch, seed += 1000) {
            spiel.Neu_Click();
            Zufall mensch(seed);
            for (int i = 0; i < 12 && !spiel.endeGefunden(); ++i) {
                menschZieht(spiel, mensch);
                spiel.Timer1_Timer();
                if (i == 4) spiel.zuruecknehmen();
            }
            if (spiel.laeuft()) return spiel.sicherung();
        }
        ADD_FAILURE() << "no running game";
        return spiel.sicherung();
    }
    fs::path zustand() const { return ordner / "zustand"; }
    std::vector<unsigned char> lies(const fs::path& p) const {
        std::ifstream ein(p, std::ios::binary);
        return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
    }
};

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
    EXPECT_EQ(a.beschaedigt, 0);
    ASSERT_TRUE(a.sicherung.has_value());
    EXPECT_TRUE(*a.sicherung == s);
    EXPECT_FALSE(a.kennung.empty());
    // Read, not removed: the file stays until the question about it has been answered.
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
    EXPECT_EQ(andereAnsicht.panels[3], s.stand.punkte);
    EXPECT_EQ(andereAnsicht.panels[4], "Zurückgenommen: keine Bestenliste");
    EXPECT_TRUE(weiter.zuruecknehmenMoeglich());
}

// Case 1 of issue 24: window A is open without a game, window B saves its game and goes, then A goes.
TEST_F(PartieTest, EinLeeresFensterLoeschtNichtDasSpielEinesAnderen) {
    const Sicherung s = mitten();
    Partieablage a(zustand());
    EXPECT_FALSE(a.holen(keine).sicherung);
    {
        Partieablage b(zustand());
        EXPECT_FALSE(b.holen(keine).sicherung);
        ASSERT_TRUE(b.sichern(s));
    }
    const auto gespeichert = lies(zustand() / "partie");
    EXPECT_TRUE(a.verwerfen()); // A quits without a running game
    EXPECT_EQ(lies(zustand() / "partie"), gespeichert);
    EXPECT_FALSE(a.haelt());
}

// Two windows with running games: the second to quit keeps both.
TEST_F(PartieTest, ZweiLaufendeSpieleBleibenBeide) {
    const Sicherung erste = mitten(3);
    const Sicherung zweite = mitten(5);
    ASSERT_FALSE(erste == zweite);
    {
        Partieablage a(zustand());
        Partieablage b(zustand());
        ASSERT_TRUE(a.sichern(erste));
        ASSERT_TRUE(b.sichern(zweite));
        ASSERT_TRUE(a.sichern(erste)); // saving again replaces A's own file only
        EXPECT_TRUE(b.haelt());
    }
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
    ASSERT_TRUE(ac.sicherung && ad.sicherung);
    EXPECT_TRUE(*ac.sicherung == erste);
    EXPECT_TRUE(*ad.sicherung == zweite);
    EXPECT_FALSE(Partieablage(zustand()).holen(keine).sicherung);
    // A window asking about a game that ends without an answer leaves it for the next start.
    c.freigeben();
    EXPECT_TRUE(*Partieablage(zustand()).holen(keine).sicherung == erste);
}

// Case 2: killed (SIGKILL) while the question is open, the game stays as it was.
TEST_F(PartieTest, GetoetetWaehrendDerFrageBleibtDieDatei) {
    const Sicherung s = mitten();
    ASSERT_TRUE(Partieablage(zustand()).sichern(s));
    const auto vorher = lies(zustand() / "partie");
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
    EXPECT_EQ(lies(zustand() / "partie"), vorher);
    EXPECT_TRUE(*Partieablage(zustand()).holen(keine).sicherung == s);
}

// Case 2: a state folder that cannot be written. Taken over once, the game is marked and not offered
// again, so it cannot be finished and filed twice; the mark goes when its file does.
TEST_F(PartieTest, NichtEntfernbarWirdNichtNochEinmalAngeboten) {
    const Sicherung s = mitten();
    // Root may remove anything: the folder is made for `nobody`, who then plays.
    fs::create_directories(zustand());
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(zustand().c_str(), 65534, 65534), 0);
    }
    const pid_t kind = kindStarten([&] {
        if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) ::_exit(3);
        ASSERT_TRUE(Partieablage(zustand()).sichern(s));
        fs::permissions(zustand(), fs::perms::owner_read | fs::perms::owner_exec);
        std::vector<std::string> uebernommen;
        std::string kennung;
        {
            Partieablage start(zustand());
            const auto a = start.holen(uebernommen);
            ASSERT_TRUE(a.sicherung.has_value());
            EXPECT_FALSE(start.erledigt()); // "Ja", but the file cannot go
            EXPECT_EQ(start.fehler(), EACCES);
            uebernommen.push_back(a.kennung);
            kennung = a.kennung;
        }
        for (int start = 0; start < 3; ++start) {
            Partieablage p(zustand());
            EXPECT_FALSE(p.holen(uebernommen).sicherung);
            EXPECT_EQ(uebernommen, std::vector<std::string>{kennung}); // still there: still marked
        }
        // Writable again: the marked file goes at the next start, and with it the mark.
        fs::permissions(zustand(), fs::perms::owner_all);
        EXPECT_FALSE(Partieablage(zustand()).holen(uebernommen).sicherung);
        EXPECT_TRUE(uebernommen.empty());
        EXPECT_FALSE(fs::exists(zustand() / "partie"));
    });
    EXPECT_TRUE(kindAbwarten(kind, std::chrono::seconds(10)));
}

// Case 5: a folder where the saved game should be stays, unreported; the game goes to the next name.
TEST_F(PartieTest, EinOrdnerAnSeinerStelleBleibtUnberuehrt) {
    const Sicherung s = mitten();
    fs::create_directories(zustand() / "partie");
    Partieablage a(zustand());
    const auto angebot = a.holen(keine);
    EXPECT_FALSE(angebot.sicherung);
    EXPECT_EQ(angebot.beschaedigt, 0);
    ASSERT_TRUE(a.sichern(s));
    EXPECT_TRUE(fs::is_directory(zustand() / "partie"));
    EXPECT_TRUE(fs::is_regular_file(zustand() / "partie-2"));
    a.freigeben();
    EXPECT_TRUE(*Partieablage(zustand()).holen(keine).sicherung == s);
}

TEST_F(PartieTest, EineFremdeDateiWirdEntferntUndNieVertraut) {
    const Sicherung gut = mitten();
    const Bytes gutBytes = partieKodieren(gut);
    fs::create_directories(zustand());
    auto schreibe = [&](const std::vector<unsigned char>& b) {
        std::ofstream(zustand() / "partie", std::ios::binary)
            .write(reinterpret_cast<const char*>(b.data()), static_cast<std::streamsize>(b.size()));
    };

    schreibe({'n', 'i', 'c', 'h', 't', 's'});
    Partieablage::Angebot a = Partieablage(zustand()).holen(keine);
    EXPECT_EQ(a.beschaedigt, 1);
    EXPECT_FALSE(a.sicherung.has_value());
    EXPECT_FALSE(fs::exists(zustand() / "partie"));

    // Oversized: a valid game followed by a megabyte is not read whole.
    std::vector<unsigned char> riesig(gutBytes.begin(), gutBytes.end());
    riesig.resize(riesig.size() + (1u << 20));
    schreibe(riesig);
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
}

// A writer killed while writing leaves only a temporary file, which the next start removes.
TEST_F(PartieTest, VerwaisteTemporaereDateienGehen) {
    fs::create_directories(zustand());
    std::ofstream(zustand() / ".partie-99999-0.tmp") << "halb";
    EXPECT_FALSE(Partieablage(zustand()).holen(keine).sicherung);
    EXPECT_TRUE(fs::is_empty(zustand()));
}

TEST_F(PartieTest, BeschaedigteBytesWerdenAbgelehnt) {
    const Bytes gut = partieKodieren(mitten());
    ASSERT_TRUE(partieDekodieren(gut).has_value());
    EXPECT_FALSE(partieDekodieren({}).has_value());
    for (std::size_t n = 0; n < gut.size(); ++n)
        ASSERT_FALSE(partieDekodieren(Bytes(gut.begin(), gut.begin() + static_cast<long>(n)))) << n;
    Bytes laenger = gut;
    laenger.push_back(0);
    EXPECT_FALSE(partieDekodieren(laenger).has_value());
    for (std::size_t i = 0; i < gut.size(); i += i < 16 ? 1 : 13) {
        Bytes b = gut;
        b[i] ^= 0x10;
        ASSERT_FALSE(partieDekodieren(b)) << "byte " << i;
    }
}

// Well-formed files whose values no running game can have: never trusted, whatever the checksum says.
TEST_F(PartieTest, WerteAusserhalbWerdenAbgelehnt) {
    const Sicherung gut = mitten();
    const std::vector<std::pair<const char*, std::function<void(Spielstand&)>>> faelle = {
        {"piece off the board", [](Spielstand& z) { z.stellung.figurplatz[5] = 49; }},
        {"negative square", [](Spielstand& z) { z.stellung.figurplatz[5] = -1; }},
        {"unknown board code", [](Spielstand& z) { z.stellung.Feld[3][3] = 9; }},
        {"piece off the cross", [](Spielstand& z) { z.stellung.Feld[0][6] = henne; }},
        {"two pieces on one square",
         [](Spielstand& z) { z.stellung.figurplatz[3] = z.stellung.figurplatz[4]; }},
        {"hen on a fox's square", [](Spielstand& z) { z.stellung.figurplatz[7] = z.stellung.figurplatz[0]; }},
        {"register off the grid", [](Spielstand& z) { z.zugregister.nachX = 7; }},
        {"jump sequence off the grid", [](Spielstand& z) { z.sprungfolge.sprungY = -2; }},
        {"image far away", [](Spielstand& z) { z.bilder.left[2] = 40000; }},
        {"positions past the table", [](Spielstand& z) { z.partie.spielzug = kSituationen + 1; }},
        {"position code", [](Spielstand& z) { z.partie.sits[0].code[8] = 64 + 7; }},
        {"jump flag", [](Spielstand& z) { z.partie.sits[1].sprung = 2; }},
        {"winner", [](Spielstand& z) { z.oeff.u_is_sieger = "Vielleicht"; }},
        {"request", [](Spielstand& z) { z.pcZug = static_cast<Anforderung>(3); }},
        {"result", [](Spielstand& z) { z.ergebnis = static_cast<Ergebnis>(-1); }},
        {"random source", [](Spielstand& z) { z.zufall = 1u << 24; }},
        {"points text", [](Spielstand& z) { z.punkte = "Punkte: \x1b[2J"; }},
    };
    for (const auto& [name, aendern] : faelle) {
        Sicherung s = gut;
        aendern(s.stand);
        EXPECT_FALSE(partieDekodieren(partieKodieren(s))) << name;
        s = gut;
        aendern(s.verlauf.front());
        EXPECT_FALSE(partieDekodieren(partieKodieren(s))) << name << " in a take-back state";
    }
}

// Case 6 of issue 24: consistent-looking states, with a right checksum, that the game cannot reach.
TEST_F(PartieTest, UnerreichbareStaendeWerdenAbgelehnt) {
    const Sicherung gut = mitten();
    ASSERT_TRUE(partieDekodieren(partieKodieren(gut)));
    auto hennenWeg = [](Spielstand& z) {
        for (int k = 2; k < kFiguren; ++k)
            if (const int p = z.stellung.figurplatz[k]; p != 0) {
                z.stellung.Feld[feldX(p)][feldY(p)] = leer;
                z.stellung.figurplatz[k] = 0;
            }
    };
    auto fuchsFeld = [](const Spielstand& z) { return z.stellung.figurplatz[0]; };
    const std::vector<std::pair<const char*, std::function<void(Spielstand&)>>> faelle = {
        {"move counter 150", [](Spielstand& z) { z.partie.spielzug = 150; }},
        {"move counter 151", [](Spielstand& z) { z.partie.spielzug = 151; }},
        {"move limit reached, still running", [](Spielstand& z) { z.partie.spielzug = kZugbegrenzung; }},
        {"counter past the positions recorded", [](Spielstand& z) { z.partie.spielzug += 1; }},
        {"counter short of the board", [](Spielstand& z) { z.partie.spielzug -= 1; }},
        {"no hens, twenty pictures", hennenWeg},
        {"no hens, no pictures",
         [&](Spielstand& z) {
             hennenWeg(z);
             for (int k = 2; k < kFiguren; ++k)
                 z.bilder.sichtbar[k] = false;
         }},
        {"a hen's picture hidden", [](Spielstand& z) { z.bilder.sichtbar[20] = !z.bilder.sichtbar[20]; }},
        {"a picture off its square", [](Spielstand& z) { z.bilder.top[0] += 400; }},
        {"computer plays both, nobody moves",
         [](Spielstand& z) {
             z.oeff.einst.PC = 2;
             z.oeff.einst.Einzelzug = 0;
             z.selbstspielLaeuft = false;
             z.pcZug = Anforderung::keine;
         }},
        {"computer plays itself for one side", [](Spielstand& z) { z.selbstspielLaeuft = true; }},
        {"side setting 3", [](Spielstand& z) { z.oeff.einst.PC = 3; }},
        {"jump chain on the hens' turn",
         [&](Spielstand& z) {
             z.sprungfolge = {true, static_cast<int16_t>(feldX(fuchsFeld(z))),
                              static_cast<int16_t>(feldY(fuchsFeld(z)))};
             z.pcZug = Anforderung::hennen;
         }},
        {"jump chain of no fox",
         [](Spielstand& z) {
             int p = 0;
             for (int k = 2; k < kFiguren && p == 0; ++k)
                 p = z.stellung.figurplatz[k]; // a hen's square
             z.sprungfolge = {true, static_cast<int16_t>(feldX(p)), static_cast<int16_t>(feldY(p))};
             z.pcZug = Anforderung::keine;
         }},
        {"running but the end announced", [](Spielstand& z) { z.endeGefunden = true; }},
        {"running but pieces locked", [](Spielstand& z) { z.bilder.ziehbar = false; }},
        {"running with a winner", [](Spielstand& z) { z.oeff.u_is_sieger = "Ja"; }},
    };
    for (const auto& [name, aendern] : faelle) {
        Sicherung s = gut;
        aendern(s.stand);
        EXPECT_FALSE(partieDekodieren(partieKodieren(s))) << name;
        s = gut;
        aendern(s.verlauf.back());
        EXPECT_FALSE(partieDekodieren(partieKodieren(s))) << name << " in a take-back state";
    }
    // Take-back states are earlier states of the same game.
    Sicherung s = gut;
    std::swap(s.verlauf.front(), s.verlauf.back());
    if (s.verlauf.size() > 1) {
        EXPECT_FALSE(partieDekodieren(partieKodieren(s))) << "take-backs out of order";
    }
    s = gut;
    s.verlauf.push_back(mitten(9).stand);
    EXPECT_FALSE(partieDekodieren(partieKodieren(s))) << "a take-back state of another game";
}

// Every state a real game passes through is accepted: the player moving both sides in single-move mode,
// a fox chain held open, a change of side.
TEST_F(PartieTest, ErreichbareStaendeWerdenAngenommen) {
    ini(0, 0, 0, 1);
    spiel.Neu_Click();
    einstellen(2, 1); // the player moves both sides
    ziehe(3, 3, 3, 2);
    ASSERT_TRUE(partieDekodieren(partieKodieren(spiel.sicherung())));
    ziehe(2, 2, 1, 2);
    ASSERT_TRUE(partieDekodieren(partieKodieren(spiel.sicherung())));
    // The computer to play both sides of the running game takes effect with the next game only.
    einstellen(2, 0);
    EXPECT_EQ(spiel.oeffentlich().einst.computer(), Computer::beide);
    EXPECT_EQ(spiel.oeffentlich().einst.Einzelzug, 1);
    ASSERT_TRUE(partieDekodieren(partieKodieren(spiel.sicherung())));
    ini(2, 0, 0, 0);
    Spiel gezeigt(ansicht, zufall, ordner.pfad());
    gezeigt.schrittweise(true);
    gezeigt.Form_Load(100);
    gezeigt.Neu_Click();
    ASSERT_TRUE(gezeigt.selbstspielLaeuft());
    for (int i = 0; i < 40 && gezeigt.selbstspielZug(); ++i)
        ASSERT_TRUE(partieDekodieren(partieKodieren(gezeigt.sicherung()))) << "move " << i;

    // Human foxes with a chain of jumps held open, then a change of side.
    TempOrdner anderer;
    TestAnsicht a;
    Zufall z(11);
    Spiel fuechse(a, z, anderer.pfad());
    fuechse.einstellungenFestlegen({1, 0, 0, 0});
    fuechse.Form_Load(5);
    fuechse.Neu_Click();
    Zufall mensch(4);
    bool sprung = false;
    for (int i = 0; i < 200 && fuechse.laeuft(); ++i) {
        auto liste = moeglicheAktionen(fuechse);
        if (liste.empty()) break;
        // Foxes that jump where they can, so that no penalty ends the game and chains open.
        std::vector<Aktion> spruenge;
        for (const Aktion& x : liste) {
            const int von = fuechse.stellung().figurplatz[x.k];
            if (x.t >= 0 && (std::abs(feldX(x.t) - feldX(von)) == 2 || std::abs(feldY(x.t) - feldY(von)) == 2))
                spruenge.push_back(x);
        }
        if (!spruenge.empty()) liste = spruenge;
        ausfuehren(fuechse, liste[static_cast<std::size_t>(mensch.ziehe(static_cast<int>(liste.size())) - 1)]);
        if (fuechse.laeuft()) {
            ASSERT_TRUE(partieDekodieren(partieKodieren(fuechse.sicherung()))) << i;
        }
        sprung |= fuechse.sprungfolge().imSprung;
        if (!fuechse.sprungfolge().imSprung) fuechse.Timer1_Timer();
        if (fuechse.laeuft()) {
            ASSERT_TRUE(partieDekodieren(partieKodieren(fuechse.sicherung()))) << i;
        }
    }
    EXPECT_TRUE(sprung);
}

// Case 5: the data folder stays locked past the time limit when the game ends. Nothing of the game is
// written then; kept with `abzulegen`, it is filed at the next start, once.
TEST_F(PartieTest, EinNichtAbgelegtesSpielWirdSpaeterAbgelegt) {
    ini(0, 0, 0, 0);
    spiel.Neu_Click();
    const int16_t gestartet = statistikLesen(ordner.pfad()).gestartet();
    datei::sperrfristSetzen(std::chrono::milliseconds(50));
    std::optional<Sicherung> offen;
    {
        const FremdeSperre fremd(ordner.pfad());
        ASSERT_TRUE(fremd.gehalten());
        Zufall mensch(8);
        for (int i = 0; i < 300 && spiel.laeuft(); ++i) {
            menschZieht(spiel, mensch);
            spiel.Timer1_Timer();
        }
        ASSERT_TRUE(spiel.endeGefunden());
        offen = spiel.offeneAblage();
    }
    datei::sperrfristSetzen(std::chrono::milliseconds(5000));
    ASSERT_TRUE(offen.has_value());
    EXPECT_TRUE(offen->abzulegen);
    EXPECT_EQ(statistikLesen(ordner.pfad()).beendet(), 0);
    EXPECT_EQ(statistikLesen(ordner.pfad()).gestartet(), gestartet);
    {
        Partieablage ende(zustand());
        ASSERT_TRUE(ende.sichern(*offen));
    }
    Partieablage start(zustand());
    const auto a = start.holen(keine);
    ASSERT_TRUE(a.sicherung && a.sicherung->abzulegen);
    TestAnsicht neueAnsicht;
    Zufall neuerZufall;
    Spiel neu(neueAnsicht, neuerZufall, ordner.pfad());
    neu.Form_Load(1);
    neu.ablegen(*a.sicherung);
    EXPECT_FALSE(neu.offeneAblage());
    EXPECT_TRUE(start.erledigt());
    const Statistik st = statistikLesen(ordner.pfad());
    EXPECT_EQ(st.beendet(), 1);
    EXPECT_EQ(st.gestartet(), gestartet);
    EXPECT_FALSE(Partieablage(zustand()).holen(keine).sicherung);
}

// Case 3 of issue 24: a folder link planted by another user in a folder everyone can write (1777) leads
// to the victim's files. It is refused: nothing there is read, removed or written.
struct FremderOrdnerTest : PartieTest {
    static constexpr uid_t kFremd = 4242;
    fs::path geteilt() const { return ordner / "geteilt"; }
    fs::path opfer() const { return ordner / "opfer"; }
    void SetUp() override {
        if (::geteuid() != 0) GTEST_SKIP() << "planting another user's link needs root";
        fs::create_directories(geteilt());
        ::chmod(geteilt().c_str(), 01777);
        fs::create_directories(opfer());
        ASSERT_TRUE(Partieablage(opfer()).sichern(mitten()));
        ordner.schreibe("opfer/QZ.sta", std::vector<unsigned char>(34, 7));
    }
    // Every entry of the victim's folder with its bytes and modification time.
    std::map<std::string, std::pair<std::vector<unsigned char>, int64_t>> stand() const {
        std::map<std::string, std::pair<std::vector<unsigned char>, int64_t>> m;
        for (const auto& e : fs::directory_iterator(opfer())) {
            struct stat st {};
            ::lstat(e.path().c_str(), &st);
            m[e.path().filename().string()] = {lies(e.path()), st.st_mtim.tv_sec * 1000000000ll + st.st_mtim.tv_nsec};
        }
        return m;
    }
    void nichtsBeruehrt(const fs::path& unterwegs, datei::Ordnergrund grund) {
        const auto vorher = stand();
        Partieablage p(unterwegs);
        const auto a = p.holen(keine);
        EXPECT_FALSE(a.sicherung);
        EXPECT_EQ(a.beschaedigt, 0);
        EXPECT_FALSE(p.sichern(mitten(5)));
        EXPECT_EQ(p.ordnerZustand().grund, grund);
        EXPECT_TRUE(p.verwerfen());
        const datei::Ordner o = datei::ordnerOeffnen(unterwegs / "neu", true);
        EXPECT_FALSE(o);
        EXPECT_EQ(o.grund, grund);
        EXPECT_EQ(stand(), vorher);
    }
};

TEST_F(FremderOrdnerTest, EinFremderLinkWirdAbgelehnt) {
    const fs::path link = geteilt() / kProgrammordner;
    fs::create_directory_symlink(opfer(), link);
    ASSERT_EQ(::lchown(link.c_str(), kFremd, kFremd), 0);
    nichtsBeruehrt(link, datei::Ordnergrund::fremderLink);
    EXPECT_EQ(datei::ordnerOeffnen(link, false).stelle, link);
    // The same link of the user's own in that folder is followed.
    ASSERT_EQ(::lchown(link.c_str(), 0, 0), 0);
    EXPECT_TRUE(Partieablage(link).holen(keine).sicherung);
}

TEST_F(FremderOrdnerTest, EinFremderOrdnerWirdAbgelehnt) {
    const fs::path fremd = geteilt() / kProgrammordner;
    fs::create_directory(fremd);
    ASSERT_TRUE(Partieablage(fremd).sichern(mitten()));
    ASSERT_EQ(::chown(fremd.c_str(), kFremd, kFremd), 0);
    const auto vorher = lies(fremd / "partie");
    Partieablage p(fremd);
    EXPECT_FALSE(p.holen(keine).sicherung);
    EXPECT_EQ(p.ordnerZustand().grund, datei::Ordnergrund::fremderOrdner);
    EXPECT_FALSE(p.sichern(mitten(5)));
    EXPECT_EQ(lies(fremd / "partie"), vorher);
    // Further down, and through a link higher up: refused just the same.
    EXPECT_EQ(datei::ordnerOeffnen(fremd / "tief", true).grund, datei::Ordnergrund::fremderOrdner);
    EXPECT_FALSE(fs::exists(fremd / "tief"));
    fs::create_directory_symlink(geteilt(), ordner / "weg");
    EXPECT_EQ(datei::ordnerOeffnen(ordner / "weg" / kProgrammordner, false).grund,
              datei::Ordnergrund::fremderOrdner);
}

TEST_F(FremderOrdnerTest, EinOffenerOrdnerOhneStickyBitWirdAbgelehnt) {
    ::chmod(geteilt().c_str(), 0777);
    nichtsBeruehrt(geteilt() / kProgrammordner, datei::Ordnergrund::offenerOrdner);
    EXPECT_FALSE(fs::exists(geteilt() / kProgrammordner));
    // Sticky, the user's own folder there is fine.
    ::chmod(geteilt().c_str(), 01777);
    const datei::Ordner o = datei::ordnerOeffnen(geteilt() / kProgrammordner / "zustand", true);
    EXPECT_TRUE(o);
    EXPECT_TRUE(fs::is_directory(geteilt() / kProgrammordner / "zustand"));
    EXPECT_EQ(fs::status(geteilt() / kProgrammordner).permissions() & fs::perms::all, fs::perms::owner_all);
}

TEST(Ordneroeffnen, FolgtEigenenLinksUndMeldetDenRest) {
    TempOrdner t;
    fs::create_directories(t / "echt" / "tief");
    fs::create_directory_symlink("echt", t / "kurz");
    fs::create_directory_symlink(t / "kurz" / "..", t / "zurueck");
    EXPECT_TRUE(datei::ordnerOeffnen(t / "kurz" / "tief", false));
    EXPECT_TRUE(datei::ordnerOeffnen(t / "zurueck" / "echt" / "tief", false));
    EXPECT_EQ(datei::ordnerOeffnen(t / "fehlt", false).grund, datei::Ordnergrund::fehlt);
    t.schreibe("datei", {'x'});
    EXPECT_EQ(datei::ordnerOeffnen(t / "datei" / "x", true).grund, datei::Ordnergrund::keinOrdner);
    fs::create_directory_symlink("schleife", t / "schleife");
    EXPECT_EQ(datei::ordnerOeffnen(t / "schleife", false).grund, datei::Ordnergrund::schleife);
    // What it opened is the folder: a file made through it lands there.
    const datei::Ordner o = datei::ordnerOeffnen(t / "kurz" / "neu" / "tiefer", true);
    ASSERT_TRUE(o);
    EXPECT_TRUE(fs::is_directory(t / "echt" / "neu" / "tiefer"));
}

// Sets an environment variable for the life of the object (nullptr: unset).
class Umgebung {
  public:
    Umgebung(const char* name, const char* wert) : name_(name) {
        if (const char* alt = std::getenv(name)) alt_ = alt;
        if (wert)
            setenv(name, wert, 1);
        else
            unsetenv(name);
    }
    ~Umgebung() {
        if (alt_)
            setenv(name_, alt_->c_str(), 1);
        else
            unsetenv(name_);
    }

  private:
    const char* name_;
    std::optional<std::string> alt_;
};

TEST(Partiedatei, LiegtImZustandsordner) {
    Umgebung heim("HOME", "/heim");
    {
        Umgebung zustand("XDG_STATE_HOME", "/zustand");
        EXPECT_EQ(partieOrdnerStandard(), fs::path("/zustand/fuchs-und-hennen"));
    }
    Umgebung relativ("XDG_STATE_HOME", "relativ");
    EXPECT_EQ(partieOrdnerStandard(), fs::path("/heim/.local/state/fuchs-und-hennen"));
}

// The fixed rule for unusual environments: relative or empty values count as unset; without HOME the
// user database names the home folder.
TEST(Benutzerordner, RelativeUndLeereWerteZaehlenNicht) {
    Umgebung xdg("XDG_CONFIG_HOME", "");
    Umgebung heim("HOME", "/heim");
    EXPECT_EQ(xdgOrdner("XDG_CONFIG_HOME", ".config"), fs::path("/heim/.config"));
    Umgebung relativ("XDG_CONFIG_HOME", "konfig");
    EXPECT_EQ(xdgOrdner("XDG_CONFIG_HOME", ".config"), fs::path("/heim/.config"));
    Umgebung absolut("XDG_CONFIG_HOME", "/konfig");
    EXPECT_EQ(xdgOrdner("XDG_CONFIG_HOME", ".config"), fs::path("/konfig"));
    const passwd* pw = ::getpwuid(::geteuid());
    ASSERT_NE(pw, nullptr);
    for (const char* wert : {static_cast<const char*>(nullptr), "", "heim", "./heim"}) {
        Umgebung h("HOME", wert);
        EXPECT_EQ(heimordner(), fs::path(pw->pw_dir)) << (wert ? wert : "unset");
    }
}

} // namespace
} // namespace fuh::test
