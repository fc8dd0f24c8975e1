// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The endgame table on the smaller closed class of hens in the upper three rows, built here; the index
// on the whole class.
#include <gtest/gtest.h>

#include <random>

#include "player/meister.h"
#include "player/tafel_bau.h"
#include "temp_ordner.h"

namespace fuh {
namespace {

using meister::Suchbrett;
using meister::Suchzug;

constexpr int kZeilen = 3;
constexpr int kKreuzfelderFrei = meister::kKreuzfelder - kZielfelder; // empty squares beside nine hens

class Endspieltafel3 : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        for (const bool strafregel : {true, false})
            tafel(strafregel) = std::make_shared<const Endspieltafel>(tafelBauen(strafregel, 2, kZeilen));
    }
    static std::shared_ptr<const Endspieltafel>& tafel(bool strafregel) {
        static std::array<std::shared_ptr<const Endspieltafel>, 2> t;
        return t[strafregel ? 1 : 0];
    }
};

// The move of the search board that the choice names.
Suchbrett ziehen(Suchbrett b, const Zugwahl& w, bool strafregel) {
    std::vector<Suchzug> zuege(meister::kHoechstZuege);
    const int n = b.fuchsAmZug ? b.fuchszuege(zuege.data()) : b.hennenzuege(zuege.data());
    const Teilzug& erster = *w.begin();
    const Teilzug& letzter = *(w.end() - 1);
    for (int i = 0; i < n; ++i) {
        const Suchzug& z = zuege[static_cast<std::size_t>(i)];
        if (z.von == feldNummer(erster.vonX, erster.vonY) &&
            z.ende() == feldNummer(letzter.nachX, letzter.nachY) &&
            z.spruenge == (erster.sprung() ? w.anzahl : 0)) {
            b.ziehe(z, strafregel);
            return b;
        }
    }
    ADD_FAILURE() << "the Meister chose a move the board does not have";
    return b;
}

TEST(TafelIndex, NumbersEveryPositionOfTheClassOnceAndNothingElse) {
    std::mt19937_64 zufall(3);
    for (const bool strafregel : {true, false}) {
        const meister::TafelIndex ix(strafregel);
        for (uint64_t i : {uint64_t{0}, ix.groesse() - 1})
            EXPECT_EQ(ix.index(ix.stellung(i)), i);
        for (int n = 0; n < 20000; ++n) {
            const uint64_t i = std::uniform_int_distribution<uint64_t>(0, ix.groesse() - 1)(zufall);
            const Suchbrett b = ix.stellung(i);
            ASSERT_EQ(ix.index(b), i);
            Brettfeld Feld = b.feld();
            // A hen below the class puts the position outside it.
            int unten = 28;
            while (Feld[unten % 7][unten / 7] != leer)
                ++unten;
            Feld[unten % 7][unten / 7] = henne;
            EXPECT_FALSE(ix.index(Suchbrett::aus(Feld, b.fuchsAmZug)));
        }
        EXPECT_EQ(ix.groesse() % 2, 0u);
    }
    // Without the penalty rule no fox is ever parked.
    const meister::TafelIndex mit(true);
    const Suchbrett geparkt = mit.stellung(mit.nummer(0x1FF, meister::binom(kKreuzfelderFrei, 2), false));
    ASSERT_TRUE(geparkt.geparkt());
    EXPECT_EQ(mit.index(geparkt), mit.nummer(0x1FF, meister::binom(kKreuzfelderFrei, 2), false));
    EXPECT_FALSE(meister::TafelIndex(false).index(geparkt));
}

TEST_F(Endspieltafel3, EveryValueIsTheBestOfItsSuccessorsAndAWrongOneIsFound) {
    for (const bool strafregel : {true, false}) {
        const Endspieltafel& t = *tafel(strafregel);
        EXPECT_EQ(tafelFehler(t, 2), 0u);
        std::vector<uint8_t> werte(t.werte().begin(), t.werte().end());
        const auto falsch =
            std::find_if(werte.begin(), werte.end(), [](uint8_t w) { return w == tafelwert::gewinn(3); });
        ASSERT_NE(falsch, werte.end());
        *falsch = tafelwert::gewinn(5);
        EXPECT_GE(tafelFehler(Endspieltafel(strafregel, std::move(werte), kZeilen), 2), 1u);
    }
}

// Both sides play the table's moves: the game ends as the table said, after exactly its plies, and a
// win the move limit cuts off is a draw.
TEST_F(Endspieltafel3, TheMeisterPlaysTheTablesMovesToTheEnd) {
    std::mt19937_64 zufall(5);
    for (const bool strafregel : {true, false}) {
        const Endspieltafel& t = *tafel(strafregel);
        Meister m(1);
        m.grenzen(100000, 0); // only where the table cannot tell would it search
        m.endspieltafeln(
            Endspieltafeln{strafregel ? tafel(true) : nullptr, strafregel ? nullptr : tafel(false)});
        int gespielt = 0;
        while (gespielt < 12) {
            const uint64_t i = std::uniform_int_distribution<uint64_t>(0, t.werte().size() - 1)(zufall);
            const uint8_t w = t.werte()[i];
            if (w == tafelwert::kRemis || tafelwert::plies(w) < 3 || tafelwert::plies(w) > 25) continue;
            ++gespielt;
            const int spielzug = 60;
            Suchbrett b = t.index().stellung(i);
            const auto erwartet = urteil(t, b, spielzug);
            ASSERT_TRUE(erwartet && erwartet->ergebnis != Ergebnis::remis);
            EXPECT_EQ(urteil(t, b, kZugbegrenzung - erwartet->plies)->ergebnis, Ergebnis::remis);
            EXPECT_NE(urteil(t, b, kZugbegrenzung - erwartet->plies - 1)->ergebnis, Ergebnis::remis);
            Ergebnis ende = Ergebnis::offen;
            int plies = 0;
            while (ende == Ergebnis::offen && plies <= erwartet->plies) {
                const Zugwahl wahl =
                    m.berechne({b.feld(), b.fuchsAmZug ? fuchs : henne, spielzug + plies, strafregel});
                ++plies;
                if (wahl.keinZug()) {
                    ende = b.fuchsAmZug ? Ergebnis::remis : Ergebnis::fuchs;
                    break;
                }
                const bool fuchsZog = b.fuchsAmZug;
                b = ziehen(b, wahl, strafregel);
                if (!fuchsZog && b.imZiel == kZielfelder) ende = Ergebnis::hennen;
                if (fuchsZog && b.hennen < kZielfelder) ende = Ergebnis::fuchs;
            }
            EXPECT_EQ(ende, erwartet->ergebnis) << i;
            EXPECT_EQ(plies, erwartet->plies) << i;
        }
    }
}

// A table file cut, lengthened or of another class is not used; a table written anew while one is in use
// replaces the file, and the one in use keeps its values. (A flipped byte and a failed write are checked
// on the table program.)
TEST_F(Endspieltafel3, AFileCutLongOrForeignIsNotUsed) {
    const test::TempOrdner ordner;
    const Endspieltafel& t = *tafel(true);
    const auto pfad = tafelDatei(ordner.pfad() / "cache", true);
    ASSERT_TRUE(tafelSpeichern(pfad, t));
    const auto geladen = tafelLaden(pfad, true, kZeilen);
    ASSERT_TRUE(geladen);
    EXPECT_TRUE(std::ranges::equal(geladen->werte(), t.werte()));
    ASSERT_TRUE(tafelSpeichern(pfad, Endspieltafel(true, std::vector<uint8_t>{}, kZeilen)));
    EXPECT_TRUE(std::ranges::equal(geladen->werte(), t.werte()));
    ASSERT_TRUE(tafelSpeichern(pfad, t));
    EXPECT_FALSE(tafelLaden(pfad, false, kZeilen)); // the other rules
    EXPECT_FALSE(tafelLaden(pfad, true));           // another class
    const auto gut = ordner.lies("cache/endspiel-strafregel.tafel");
    ordner.schreibe("cache/endspiel-strafregel.tafel", {gut.begin(), gut.end() - 1});
    EXPECT_FALSE(tafelLaden(pfad, true, kZeilen));
    auto lang = gut;
    lang.push_back(0);
    ordner.schreibe("cache/endspiel-strafregel.tafel", lang);
    EXPECT_FALSE(tafelLaden(pfad, true, kZeilen));
    EXPECT_TRUE(tafelnLaden(ordner.pfad() / "cache").mitStrafregel == nullptr);
}

} // namespace
} // namespace fuh
