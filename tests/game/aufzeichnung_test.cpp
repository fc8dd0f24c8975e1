// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <fcntl.h>
#include <gtest/gtest.h>

#include <set>

#include "game/nachspielen.h"
#include "game/notation.h"
#include "game/partiedatei.h"
#include "mensch.h"
#include "spieldaten/statistikdatei.h"
#include "test_ansicht.h"

namespace fuh::test {
namespace {

// What a game showed that a replay must show again.
struct Mitschreiber : TestAnsicht {
    std::vector<std::string> zuege;
    void zugAusgefuehrt(int a, int b, int c, int d, bool normal) override {
        zuege.push_back(std::to_string(a) + std::to_string(b) + std::to_string(c) + std::to_string(d) +
                        (normal ? "" : "!"));
    }
};

// A played game, with what it showed.
struct Gespielt {
    Mitschreiber ansicht;
    Zufall zufall;
    Spiel spiel;
    Gespielt(const TempOrdner& o, uint32_t seed) : zufall(seed), spiel(ansicht, zufall, o.pfad()) {}
};

// Random people against the computer (or each other) until the end, or until `zuege` actions. Every
// state on the way, a chain of jumps held open too, is one a saved game may hold.
void spielen(Spiel& spiel, Zufall& mensch, int zuege) {
    spiel.neuesSpiel();
    for (int i = 0; i < zuege && !spiel.endeGefunden(); ++i) {
        if (!spiel.computerZieht()) {
            const auto liste = moeglicheAktionen(spiel);
            if (liste.empty()) break;
            ausfuehren(spiel,
                       liste[static_cast<std::size_t>(mensch.ziehe(static_cast<int>(liste.size())) - 1)]);
        }
        if (spiel.laeuft()) {
            ASSERT_TRUE(partieDekodieren(partieKodieren(spiel.sicherung()))) << i;
        }
    }
}

Spielstand ohneZufall(Spielstand z) {
    z.zufall = z.tippZufall = 0;
    z.neueZuege = 0; // a replay files nothing, so it learns no new moves
    return z;
}

// Two people teach nothing and enter no list: only the statistics count their game (started, and
// finished when it ended), and nobody scores.
void zweiSpielerOhneSpuren(Gespielt& g, const TempOrdner& ordner) {
    EXPECT_EQ(ordner.namen(), std::vector<std::string>{"QZ.sta"});
    Statistik erwartet;
    erwartet.zaehler[Zaehlerstelle::gestartet] = 1;
    erwartet.zaehler[Zaehlerstelle::beendet] = g.spiel.endeGefunden() ? 1 : 0;
    EXPECT_EQ(statistikLesen(ordner.pfad()).zaehler, erwartet.zaehler);
    EXPECT_TRUE(g.ansicht.fenster.empty());
    EXPECT_EQ(g.ansicht.panels[3], "Punkte: ");
}

// Games of every setting go through the file and back: the same text, the same state, and the same
// moves, messages and high-score lists shown. The runs reach chains, parkings, returns and every end.
TEST(Aufzeichnung, JedesSpielGehtDurchDieDateiUndZurueck) {
    std::set<std::string> gesehen;
    for (int16_t PC : {0, 1, 2, 3})
        for (int16_t Einzelzug : {0, 1})
            for (uint32_t seed = 1; seed <= 12; ++seed) {
                TempOrdner ordner, leer;
                Gespielt original(ordner, seed);
                Spielerwahl zwei;
                zwei.zweiSpieler = PC == 3;
                original.spiel.einstellungenFestlegen({static_cast<int16_t>(PC % 3), 1, 1, Einzelzug});
                original.spiel.spielerFestlegen(zwei);
                Zufall mensch(seed * 31);
                spielen(original.spiel, mensch, seed % 4 == 0 ? 9 + static_cast<int>(seed) : 400);
                if (PC == 3) zweiSpielerOhneSpuren(original, ordner);

                const std::string text = aufzeichnungText(aufzeichnen(original.spiel, "2026-11-26", seed));
                const Gelesen g = aufzeichnungLesen(text);
                ASSERT_TRUE(g.aufzeichnung) << deutsch(g.fehler) << "\n" << text;
                ASSERT_EQ(aufzeichnungText(*g.aufzeichnung), text);
                Gespielt nach(leer, 1);
                ASSERT_EQ(deutsch(nachspielen(nach.spiel, *g.aufzeichnung)), "") << text;
                Text fehler;
                const auto staende = nachspielStaende(*g.aufzeichnung, leer.pfad(), fehler);
                ASSERT_EQ(staende.size(), g.aufzeichnung->zuege.size() + 1);
                EXPECT_TRUE(ohneZufall(staende.back()) == ohneZufall(nach.spiel.zustand()));
                EXPECT_EQ(staende.front().mitschrift.zuege.size(), 0u);
                SCOPED_TRACE("PC " + std::to_string(PC) + " seed " + std::to_string(seed));
                EXPECT_TRUE(ohneZufall(nach.spiel.zustand()) == ohneZufall(original.spiel.zustand()));
                EXPECT_EQ(
                    std::tie(nach.ansicht.zuege, nach.ansicht.meldungen, nach.ansicht.fenster),
                    std::tie(original.ansicht.zuege, original.ansicht.meldungen, original.ansicht.fenster));
                EXPECT_TRUE(leer.namen().empty());

                for (const Partiezug& e : original.spiel.mitschrift().zuege) {
                    if (e.teile.size() > 1) gesehen.insert("Kette");
                    gesehen.insert("Strafe " + std::to_string(static_cast<int>(e.strafe)));
                }
                if (original.spiel.sprungfolge().imSprung) gesehen.insert("offene Kette");
                if (const auto ende = original.spiel.mitschrift().ende)
                    gesehen.insert("Ende " + std::to_string(static_cast<int>(*ende)));
            }
    EXPECT_EQ(gesehen,
              (std::set<std::string>{"Ende 0", "Ende 1", "Ende 2", "Ende 3", "Ende 4", "Kette", "Strafe 0",
                                     "Strafe 1", "Strafe 2", "Strafe 3", "offene Kette"}));
}

std::string ersetzt(std::string text, const std::string& alt, const std::string& neu) {
    const std::size_t i = text.find(alt);
    EXPECT_NE(i, std::string::npos) << alt;
    return i == std::string::npos ? text : text.replace(i, alt.size(), neu);
}

// Damaged, foreign and hand-edited files are refused, each with the line that is wrong.
TEST(Aufzeichnung, FehlerhafteDateienWerdenMitDerZeileAbgelehnt) {
    TempOrdner ordner;
    Gespielt g(ordner, 5);
    g.spiel.einstellungenFestlegen({0, 0, 0, 0}); // the computer's foxes win against random hens
    Zufall mensch(8);
    spielen(g.spiel, mensch, 400);
    ASSERT_EQ(g.spiel.letztesErgebnis(), Ergebnis::fuchs);
    const std::string gut = aufzeichnungText(aufzeichnen(g.spiel, "2026-11-26"));
    ASSERT_TRUE(gut.find("\n1. H ") != std::string::npos);
    const std::size_t zeilen = static_cast<std::size_t>(std::count(gut.begin(), gut.end(), '\n'));
    const auto zeile = [&](const std::string& anfang) {
        const std::size_t i = gut.find("\n" + anfang) + 1;
        return gut.substr(i, gut.find('\n', i) + 1 - i);
    };
    const std::string letzte = std::to_string(g.spiel.mitschrift().zuege.size() + 1) + ". H --\n";
    const std::pair<std::string, std::string> faelle[] = {
        {ersetzt(gut, zeile("1. H "), "1. H c4-c3\n"),
         "Zeile 11: Dieser Zug ist nach den Regeln nicht möglich."},
        {gut + letzte,
         "Zeile " + std::to_string(zeilen + 1) + ": Dieser Zug ist nach den Regeln nicht möglich."},
        {ersetzt(gut, "Ergebnis: Füchse", "Ergebnis: Hennen"),
         "Zeile 8: Das Ergebnis passt nicht zu den Zügen."},
        {ersetzt(gut, "\nDatum:", "\nFarbe: rot\nDatum:"), "Zeile 2: Unbekannte Angabe „Farbe“."},
        {ersetzt(gut, "Datum: 2026-11-26\n", ""), "Die Angabe „Datum“ fehlt."},
        {ersetzt(gut, "Hennen: Mensch", "Hennen: Computer, Stärke 1"), "Zeile 5 ist nicht lesbar."},
        {ersetzt(gut, "\n2. F", "\n3. F"), "Zeile 12 ist nicht lesbar."},
        {ersetzt(gut, zeile("2. F "), "2. F c5xc7\n"),
         "Zeile 12: Dieser Zug ist nach den Regeln nicht möglich."},
        {ersetzt(gut, zeile("2. F "), "2. F \xC3\x28\n"), "Zeile 12 ist nicht lesbar."},
        {gut.substr(0, gut.size() - 3), "Zeile " + std::to_string(zeilen) + " ist abgeschnitten."},
        {"PK\x03\x04" + gut, "Zeile 1: Das ist keine Partie von Fuchs und Hennen."},
        {"", "Zeile 1: Das ist keine Partie von Fuchs und Hennen."},
    };
    for (const auto& [text, meldung] : faelle) {
        Gelesen gelesen = aufzeichnungLesen(text);
        if (gelesen.aufzeichnung) {
            Gespielt nach(ordner, 1);
            gelesen.fehler = nachspielen(nach.spiel, *gelesen.aufzeichnung);
        }
        EXPECT_EQ(deutsch(gelesen.fehler), meldung);
    }
}

// Only a regular file is read, and no more of it than a game can need.
TEST(Aufzeichnung, DateiZuGrossOderKeineDatei) {
    TempOrdner ordner;
    ordner.schreibe("gross.fuh", std::vector<unsigned char>(kHoechstePartiegroesse + 1, '\n'));
    EXPECT_EQ(deutsch(aufzeichnungLaden(ordner / "gross.fuh").fehler),
              "Die Datei ist zu groß für eine Partie.");
    std::filesystem::create_directory(ordner / "ordner.fuh");
    EXPECT_EQ(deutsch(aufzeichnungLaden(ordner / "ordner.fuh").fehler),
              "Die Datei „ordner.fuh“ kann nicht gelesen werden.");
    Aufzeichnung a;
    ASSERT_TRUE(aufzeichnungSpeichern(ordner / "leer.fuh", a));
    const Gelesen g = aufzeichnungLaden(ordner / "leer.fuh");
    ASSERT_TRUE(g.aufzeichnung) << deutsch(g.fehler);
    EXPECT_TRUE(g.aufzeichnung->zuege.empty());
}

// The notation as a person writes it: columns from the left, rows from the bottom.
TEST(Aufzeichnung, Notation) {
    EXPECT_EQ(punktText(0, 6), "a1");
    EXPECT_EQ(punktText(3, 3), "d4");
    const auto kette = zugLesen(Seite::Fuchs, "e3-Park e5xe3xc3+");
    ASSERT_TRUE(kette);
    EXPECT_EQ(kette->zug.teile, (std::vector<Teilzug>{{4, 2, 4, 4}, {4, 4, 2, 4}}));
    EXPECT_EQ(kette->zug.strafzug, (Teilzug{4, 4, 0, 0}));
    EXPECT_TRUE(kette->offen);
    EXPECT_EQ(zugText(kette->zug, true), "e3-Park e5xe3xc3+");
    for (const char* falsch :
         {"d4-d6", "d4xd5", "d4-d5+", "h1-h2", "d4-d5 d5-d6", "e3-Park", "Park-d4 d4", ""})
        EXPECT_FALSE(zugLesen(Seite::Hennen, falsch)) << falsch;
}

} // namespace
} // namespace fuh::test
