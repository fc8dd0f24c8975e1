// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "partie_fixture.h"

namespace fuh::test {
namespace {

constexpr std::size_t kKopf = 10, kSumme = 4; // magic, version and length; the checksum

// Sets the length and the checksum of a game's bytes after they were changed.
void versiegeln(Bytes& b) {
    const uint32_t laenge = static_cast<uint32_t>(b.size() - kKopf - kSumme);
    uint32_t h = 2166136261u;
    for (std::size_t i = 0; i < 4; ++i)
        b[6 + i] = static_cast<uint8_t>(laenge >> (8 * i));
    for (std::size_t i = kKopf; i < b.size() - kSumme; ++i)
        h = (h ^ b[i]) * 16777619u;
    for (std::size_t i = 0; i < 4; ++i)
        b[b.size() - kSumme + i] = static_cast<uint8_t>(h >> (8 * i));
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

// The bytes an older program wrote for a game without take-back states: today's bytes with each piece's
// picture put back (its place in twips and whether it was shown) and, for version 2, without the record
// of the moves. `bild` gives piece k's picture.
struct AltesBild {
    int left, top;
    bool sichtbar;
};
Bytes alteFassung(const Sicherung& s, uint16_t version, const std::function<AltesBild(int)>& bild) {
    const Bytes neu = partieKodieren(s);
    constexpr std::size_t kVorBildern = 1 + 98 + 44 + 8 + 5, kLeereMitschrift = 5;
    Bytes inhalt(neu.begin() + kKopf, neu.end() - kSumme);
    Bytes bilder;
    for (int k = 0; k < kFiguren; ++k) {
        const AltesBild b = bild(k);
        for (const int v : {b.left, b.top})
            for (int i = 0; i < 4; ++i)
                bilder.push_back(static_cast<uint8_t>(static_cast<uint32_t>(v) >> (8 * i)));
        bilder.push_back(b.sichtbar ? 1 : 0);
    }
    inhalt.insert(inhalt.begin() + kVorBildern, bilder.begin(), bilder.end());
    if (version == 2) inhalt.erase(inhalt.end() - 2 - kLeereMitschrift, inhalt.end() - 2);
    Bytes alt(neu.begin(), neu.begin() + kKopf);
    alt[4] = static_cast<uint8_t>(version), alt[5] = 0;
    alt.insert(alt.end(), inhalt.begin(), inhalt.end());
    alt.resize(alt.size() + kSumme);
    versiegeln(alt);
    return alt;
}

// Games saved by earlier versions still continue, their pictures read, checked and dropped: version 3
// with its record, version 2 without one. A picture that contradicts the board still refuses the file.
TEST_F(PartieTest, AeltereFassungenWerdenGelesen) {
    Sicherung s = mitten();
    s.verlauf.clear();
    const auto& platz = s.stand.stellung.figurplatz;
    const auto wieGezeigt = [&](int k) {
        return AltesBild{165 + 7 * k, 240 + 840 * (k % 7), k < 2 || platz[k] != 0};
    };
    int geschlagen = 2;
    while (geschlagen < kFiguren && platz[geschlagen] != 0)
        ++geschlagen;
    ASSERT_LT(geschlagen, kFiguren) << "the game should have taken a hen";

    EXPECT_TRUE(partieDekodieren(alteFassung(s, 3, wieGezeigt)) == s);
    s.stand.mitschrift = {};
    EXPECT_TRUE(partieDekodieren(alteFassung(s, 2, wieGezeigt)) == s);

    const std::vector<std::pair<const char*, std::function<AltesBild(int)>>> falsch = {
        {"a taken hen shown",
         [&](int k) {
             return AltesBild{0, 0, k != geschlagen ? wieGezeigt(k).sichtbar : true};
         }},
        {"a picture past 16 bits",
         [&](int k) {
             return AltesBild{k == 5 ? 40000 : 0, 0, wieGezeigt(k).sichtbar};
         }},
    };
    for (const auto& [name, bild] : falsch)
        for (const uint16_t version : {2, 3})
            EXPECT_FALSE(partieDekodieren(alteFassung(s, version, bild))) << name << ", version " << version;
    Bytes zukunft = partieKodieren(s);
    zukunft[4] = 5; // a version yet to come is not guessed at
    EXPECT_FALSE(partieDekodieren(zukunft).has_value());
}

// The points panel is kept as the German text the game showed, and read back to its number; any other
// text in its place is refused.
TEST_F(PartieTest, PunkteAlsAngezeigterText) {
    Sicherung s = mitten();
    s.verlauf.clear();
    const std::pair<Punktestand, std::string> faelle[] = {
        {{true, 237}, "Punkte: 237"}, {{true, -12}, "Punkte: -12"}, {{true, std::nullopt}, "Punkte: "}};
    for (const auto& [punkte, text] : faelle) {
        s.stand.punkte = punkte;
        Bytes b = partieKodieren(s);
        const auto stelle = std::search(b.begin(), b.end(), text.begin(), text.end());
        ASSERT_NE(stelle, b.end()) << text;
        ASSERT_EQ(*(stelle - 1), text.size()) << text; // its length before it, nothing after it
        const auto gelesen = partieDekodieren(b);
        ASSERT_TRUE(gelesen.has_value()) << text;
        EXPECT_EQ(gelesen->stand.punkte, punkte) << text;
        *(stelle + static_cast<long>(text.size()) - 1) = 0x1b; // a control character in its place
        versiegeln(b);
        EXPECT_FALSE(partieDekodieren(b).has_value()) << text;
    }
}

using Fall = std::pair<const char*, std::function<void(Spielstand&)>>;

// Well-formed states with a right checksum that no running game can have: values out of range, and
// consistent-looking states the game cannot reach.
std::vector<Fall> unerreichbareFaelle() {
    auto hennenWeg = [](Spielstand& z) {
        for (int k = 2; k < kFiguren; ++k)
            if (const int p = z.stellung.figurplatz[k]; p != 0) {
                z.stellung.Feld[feldX(p)][feldY(p)] = leer;
                z.stellung.figurplatz[k] = 0;
            }
    };
    // An open chain of jumps on square p.
    auto sprungAuf = [](Spielstand& z, int p) {
        z.sprungfolge = {true, static_cast<int16_t>(feldX(p)), static_cast<int16_t>(feldY(p))};
    };
    return {
        {"piece off the board", [](Spielstand& z) { z.stellung.figurplatz[5] = 49; }},
        {"negative square", [](Spielstand& z) { z.stellung.figurplatz[5] = -1; }},
        {"unknown board code", [](Spielstand& z) { z.stellung.Feld[3][3] = 9; }},
        {"piece off the cross", [](Spielstand& z) { z.stellung.Feld[0][6] = henne; }},
        {"two pieces on one square",
         [](Spielstand& z) { z.stellung.figurplatz[3] = z.stellung.figurplatz[4]; }},
        {"hen on a fox's square", [](Spielstand& z) { z.stellung.figurplatz[7] = z.stellung.figurplatz[0]; }},
        {"register off the grid", [](Spielstand& z) { z.zugregister.nachX = 7; }},
        {"jump sequence off the grid", [](Spielstand& z) { z.sprungfolge.sprungY = -2; }},
        {"positions past the table", [](Spielstand& z) { z.partie.spielzug = kSituationen + 1; }},
        {"position code", [](Spielstand& z) { z.partie.sits[0].code[8] = 64 + 7; }},
        {"jump flag", [](Spielstand& z) { z.partie.sits[1].sprung = 2; }},
        {"winner", [](Spielstand& z) { z.oeff.u_is_sieger = "Vielleicht"; }},
        {"side to move", [](Spielstand& z) { z.amZug = static_cast<Seite>(3); }},
        {"result", [](Spielstand& z) { z.ergebnis = static_cast<Ergebnis>(-1); }},
        {"random source", [](Spielstand& z) { z.zufall = 1u << 24; }},
        {"move counter 150", [](Spielstand& z) { z.partie.spielzug = 150; }},
        {"move counter 151", [](Spielstand& z) { z.partie.spielzug = 151; }},
        {"move limit reached, still running", [](Spielstand& z) { z.partie.spielzug = kZugbegrenzung; }},
        {"counter past the positions recorded", [](Spielstand& z) { z.partie.spielzug += 1; }},
        {"counter short of the board", [](Spielstand& z) { z.partie.spielzug -= 1; }},
        {"no hens", hennenWeg},
        {"side setting 3", [](Spielstand& z) { z.oeff.einst.PC = 3; }},
        {"jump chain on the hens' turn",
         [=](Spielstand& z) { sprungAuf(z, z.stellung.figurplatz[0]), z.amZug = Seite::Hennen; }},
        {"jump chain of no fox",
         [=](Spielstand& z) {
             int p = 0;
             for (int k = 2; k < kFiguren && p == 0; ++k)
                 p = z.stellung.figurplatz[k]; // a hen's square
             sprungAuf(z, p), z.amZug = Seite::Fuchs;
         }},
        {"running but the end announced", [](Spielstand& z) { z.endeGefunden = true; }},
        {"running but pieces locked", [](Spielstand& z) { z.ziehbar = false; }},
        {"running with a winner", [](Spielstand& z) { z.oeff.u_is_sieger = "Ja"; }},
    };
}

TEST_F(PartieTest, UnerreichbareStaendeWerdenAbgelehnt) {
    const Sicherung gut = mitten();
    ASSERT_TRUE(partieDekodieren(partieKodieren(gut)));
    const std::vector<Fall> faelle = unerreichbareFaelle();
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

// A game the computer takes over from two people in its middle is accepted at every move. (Every state of
// whole games of each setting is checked where games are recorded.)
TEST_F(PartieTest, ErreichbareStaendeWerdenAngenommen) {
    ini(0);
    spiel.neuesSpiel();
    Spielerwahl zwei;
    zwei.zweiSpieler = true;
    spiel.spielerFestlegen(zwei);
    ziehe(3, 3, 3, 2);
    ziehe(2, 2, 1, 2);
    spiel.spielerFestlegen({});
    einstellen(2, 0);
    ASSERT_TRUE(spiel.selbstspielLaeuft());
    for (int i = 0; i < 40 && spiel.computerZieht(); ++i)
        ASSERT_TRUE(partieDekodieren(partieKodieren(spiel.sicherung()))) << "move " << i;
}

} // namespace
} // namespace fuh::test
