// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdlib>
#include <functional>
#include <optional>
#include <string>

#include "game/partiedatei.h"
#include "mensch.h"
#include "spiel_fixture.h"

namespace fuh::test {
namespace {

namespace fs = std::filesystem;

// A game of human foxes some moves in, with a move taken back.
struct PartieTest : SpielTest {
    Sicherung mitten() {
        ini(1, 2, 1);
        spiel.neuesSpiel();
        Zufall mensch(3);
        for (int i = 0; i < 12 && !spiel.endeGefunden(); ++i) {
            menschZieht(spiel, mensch);
            spiel.computerZieht();
            if (i == 4) spiel.zuruecknehmen();
        }
        EXPECT_TRUE(spiel.laeuft());
        return spiel.sicherung();
    }
};

TEST_F(PartieTest, GespeichertUndGelesenIstEsDasselbeSpiel) {
    const Sicherung s = mitten();
    ASSERT_FALSE(s.verlauf.empty());
    EXPECT_TRUE(s.stand.zurueckgenommen);
    const fs::path datei = ordner / "state" / "fuchs-und-hennen" / "partie";
    ASSERT_TRUE(partieSpeichern(datei, s)); // the folder is created
    const Partieladung l = partieHolen(datei);
    EXPECT_FALSE(l.beschaedigt);
    ASSERT_TRUE(l.sicherung.has_value());
    EXPECT_TRUE(*l.sicherung == s);
    EXPECT_FALSE(fs::exists(datei)); // continued once, or not at all
    EXPECT_FALSE(partieHolen(datei).beschaedigt);

    // A fresh game taking it over is the same game, its take-backs included.
    TestAnsicht andereAnsicht;
    Zufall andererZufall;
    Spiel weiter(andereAnsicht, andererZufall, ordner.pfad());
    weiter.fortsetzen(*l.sicherung);
    EXPECT_TRUE(weiter.sicherung() == s);
    EXPECT_EQ(andereAnsicht.panels[3], s.stand.punkte);
    EXPECT_EQ(andereAnsicht.panels[4], "Zurückgenommen: keine Bestenliste");
    EXPECT_TRUE(weiter.zuruecknehmenMoeglich());
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
        {"request", [](Spielstand& z) { z.amZug = static_cast<Seite>(3); }},
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

TEST_F(PartieTest, EineFremdeDateiWirdEntferntUndNieVertraut) {
    const fs::path datei = ordner / "partie";
    const Bytes gut = partieKodieren(mitten());

    ordner.schreibe("partie", {'n', 'i', 'c', 'h', 't', 's'});
    Partieladung l = partieHolen(datei);
    EXPECT_TRUE(l.beschaedigt);
    EXPECT_FALSE(l.sicherung.has_value());
    EXPECT_FALSE(fs::exists(datei));

    // Oversized: a valid game followed by a megabyte is not read whole.
    std::vector<unsigned char> riesig(gut.begin(), gut.end());
    riesig.resize(riesig.size() + (1u << 20));
    ordner.schreibe("partie", riesig);
    EXPECT_TRUE(partieHolen(datei).beschaedigt);
    EXPECT_FALSE(fs::exists(datei));

    // A link goes, what it points to stays; a folder in its place stays.
    ordner.schreibe("brief", {'x'});
    fs::create_symlink(ordner / "brief", datei);
    EXPECT_TRUE(partieHolen(datei).beschaedigt);
    EXPECT_FALSE(fs::exists(fs::symlink_status(datei)));
    EXPECT_EQ(ordner.lies("brief"), std::vector<unsigned char>{'x'});
    fs::create_directory(datei);
    EXPECT_TRUE(partieHolen(datei).beschaedigt);
    EXPECT_TRUE(fs::is_directory(datei));

    // Nowhere to write: refused, and an older file is not touched.
    EXPECT_FALSE(partieSpeichern(ordner / "brief" / "partie", spiel.sicherung()));
    EXPECT_EQ(ordner.lies("brief"), std::vector<unsigned char>{'x'});
}

// Sets an environment variable for the life of the object.
class Umgebung {
  public:
    Umgebung(const char* name, const char* wert) : name_(name) {
        if (const char* alt = std::getenv(name)) alt_ = alt;
        setenv(name, wert, 1);
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
        EXPECT_EQ(partieDateiStandard(), fs::path("/zustand/fuchs-und-hennen/partie"));
    }
    Umgebung relativ("XDG_STATE_HOME", "relativ");
    EXPECT_EQ(partieDateiStandard(), fs::path("/heim/.local/state/fuchs-und-hennen/partie"));
}

} // namespace
} // namespace fuh::test
