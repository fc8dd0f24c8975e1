// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The Meister searches on a board of its own. On a million positions of random games it must agree with
// the game's rules: the moves and chains, the penalty rule's verdict, the end of the game and its result.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <tuple>
#include <vector>

#include "board/spielausgang.h"
#include "board/zufall.h"
#include "board/zugliste.h"
#include "player/meister.h"
#include "player/meister_brett.h"
#include "player/meister_suche.h"
#include "player/strafregel.h"

namespace fuh {
namespace {

#ifdef FUH_MIT_SANITIZERN
constexpr long kStellungen = 100'000; // the sanitizers make every position some ten times dearer
#else
constexpr long kStellungen = 1'000'000;
#endif
constexpr int kSucheJede = 64; // one position in this many also goes through a real search

// A move by its piece and the board it leaves: (square moved from, hens, foxes).
using Zugbild = std::tuple<int, uint64_t, uint64_t>;

Zugbild bild(int von, const Brettfeld& Feld) {
    uint64_t h = 0, f = 0;
    for (int s = 0; s < kFelder; ++s) {
        h |= uint64_t{Feld[feldX(s)][feldY(s)] == henne} << s;
        f |= uint64_t{Feld[feldX(s)][feldY(s)] == fuchs} << s;
    }
    return {von, h, f};
}

std::vector<Zugbild> regelzuege(const Brettfeld& Feld, int16_t seite, const Sprungfolge& sprung = {}) {
    std::vector<Zugbild> aus;
    for (const Regelzug& z : erlaubteZuege(Feld, seite, sprung))
        aus.push_back(bild(feldNummer(z.teile[0].vonX, z.teile[0].vonY), z.nachher));
    std::sort(aus.begin(), aus.end());
    return aus;
}

// The Meister lists each chain once too: two routes to the same end would be searched twice.
std::vector<Zugbild> meisterzuege(std::vector<meister::Suchzug>& z, const Brettfeld& Feld, int16_t seite,
                                  int nurKetteVon = -1) {
    const auto b = meister::Suchbrett::aus(Feld, seite == fuchs);
    z.resize(meister::kHoechstZuege);
    const int n = seite == henne ? b.hennenzuege(z.data()) : b.fuchszuege(z.data(), nurKetteVon >= 0);
    std::vector<Zugbild> aus;
    for (int i = 0; i < n; ++i) {
        if (nurKetteVon >= 0 && z[i].von != nurKetteVon) continue;
        auto kind = b;
        kind.ziehe(z[i], false);
        aus.push_back(bild(z[i].von, kind.feld()));
    }
    std::sort(aus.begin(), aus.end());
    return aus;
}

meister::Suchzug alsSuchzug(const Regelzug& z) {
    meister::Suchzug s;
    s.von = static_cast<int8_t>(feldNummer(z.teile[0].vonX, z.teile[0].vonY));
    s.spruenge = static_cast<int8_t>(z.teile[0].sprung() ? z.anzahl : 0);
    for (int i = 0; i < z.anzahl; ++i)
        s.nach[i] = static_cast<int8_t>(feldNummer(z.teile[i].nachX, z.teile[i].nachY));
    return s;
}

// The verdict of the Meister's board in the game's terms.
Strafe::Art alsStrafe(meister::Folge f) {
    using A = Strafe::Art;
    constexpr A art[] = {A::keine, A::parken, A::einsetzen, A::letzterFuchs}; // in the order of Folge
    return art[static_cast<std::size_t>(f)];
}

// What the search's end check reads off its board after a move: the move limit and the last fox's
// parking draw, then a full target area wins for the hens and too few hens for the foxes.
Ergebnis meisterEnde(const meister::Suchbrett& b, meister::Folge folge, int spielzug, int16_t mover) {
    if (spielzug >= kZugbegrenzung || folge == meister::Folge::letzterFuchs) return Ergebnis::remis;
    if (mover == henne && b.imZiel == kZielfelder) return Ergebnis::hennen;
    if (mover == fuchs && b.hennen < kZielfelder) return Ergebnis::fuchs;
    return Ergebnis::offen;
}

std::string zeige(const Brettfeld& Feld, int16_t seite, int spielzug, bool mitStrafe) {
    std::ostringstream o;
    o << (seite == henne ? "Hennen" : "Fuechse") << " am Zug, Stellung " << spielzug
      << (mitStrafe ? ", Strafregel\n" : "\n");
    for (int y = 0; y <= 6; ++y) {
        for (int x = 0; x <= 6; ++x)
            o << ".-HF"[Feld[x][y]];
        o << '\n';
    }
    return o.str();
}

struct Spielfolge {
    Ergebnis ende = Ergebnis::offen;
    bool verdikt = false; // the game went on, so the penalty rule judged the move
    Strafe strafe;
};

// The game's side of a move: the board, the record, the end check and, when the game goes on, the
// penalty rule at the start of the hens' turn. Every reason for an end found goes to `gruende`.
Spielfolge imSpiel(Brettfeld& Feld, Partie& partie, const Regelzug& z, int16_t seite, bool mitStrafe,
                   std::set<Endegrund>& gruende) {
    Feld = z.nachher;
    partie.pstoSits(Feld, z.teile[static_cast<std::size_t>(z.anzahl - 1)]);
    Spielfolge f;
    const Spielausgang a = spielausgang(Feld, seite, false, partie.spielzug);
    gruende.insert(a.begin(), a.end());
    f.ende = a.ergebnis;
    f.verdikt = f.ende == Ergebnis::offen;
    if (!f.verdikt || seite != fuchs || !mitStrafe) return f;
    f.strafe = strafregel(Feld, partie, 0);
    const Teilzug& t = f.strafe.zug;
    if (f.strafe.art == Strafe::Art::parken || f.strafe.art == Strafe::Art::einsetzen) {
        Feld[t.nachX][t.nachY] = Feld[t.vonX][t.vonY]; // a penalty move captures nothing
        Feld[t.vonX][t.vonY] = leer;
    } else if (f.strafe.art == Strafe::Art::letzterFuchs) {
        partie.pstoSits(Feld, {t.vonX, t.vonY, 0, 0}); // the check records the position once more
        f.ende = spielausgang(Feld, fuchs, true, partie.spielzug).ergebnis;
        gruende.insert(Endegrund::fuchsOhneZug);
    }
    return f;
}

struct Lauf {
    Zufall zufall{20260601};
    Meister meister{5};
    long stellungen = 0;
    std::vector<meister::Suchzug> puffer;
    long nahAmEnde = 0, geparkt = 0, offeneKetten = 0, letzterFuchs = 0;
    std::set<Endegrund> gruende;
    bool eilig = false; // the hens move up whenever they can, so that they also fill the target or get stuck

    void partie(bool mitStrafe);
    const Regelzug& waehle(const std::vector<Regelzug>& zuege, int16_t seite);
    bool zug(Brettfeld& Feld, Partie& partie, int16_t seite, bool mitStrafe);
    void suche(const Brettfeld& Feld, int16_t seite, int spielzug, bool mitStrafe,
               const std::vector<Regelzug>& zuege);
    void offeneKette(const Brettfeld& vorher, const Teilzug& erster);
};

void Lauf::partie(bool mitStrafe) {
    Stellung s;
    s.grundstellung();
    Partie partie;
    int16_t seite = henne;
    while (!::testing::Test::HasFatalFailure() && stellungen < kStellungen &&
           zug(s.Feld, partie, seite, mitStrafe))
        seite = seite == henne ? fuchs : henne;
}

const Regelzug& Lauf::waehle(const std::vector<Regelzug>& zuege, int16_t seite) {
    std::vector<const Regelzug*> wahl;
    for (const Regelzug& z : zuege)
        if (!eilig || seite != henne || z.teile[0].nachY < z.teile[0].vonY) wahl.push_back(&z);
    if (wahl.empty())
        return zuege[static_cast<std::size_t>(zufall.ziehe(static_cast<int>(zuege.size())) - 1)];
    return *wahl[static_cast<std::size_t>(zufall.ziehe(static_cast<int>(wahl.size())) - 1)];
}

// Checks the position and plays a random move in it; false when the game is over.
bool Lauf::zug(Brettfeld& Feld, Partie& partie, int16_t seite, bool mitStrafe) {
    ++stellungen;
    nahAmEnde += partie.spielzug >= kZugbegrenzung - 4;
    geparkt += Feld[feldX(kParkfeld)][feldY(kParkfeld)] == fuchs;
    const Brettfeld vorher = Feld;
    const int spielzug = partie.spielzug;
    const auto wo = [&] { return zeige(vorher, seite, spielzug, mitStrafe); };
    const std::vector<Regelzug> zuege = erlaubteZuege(Feld, seite);
    EXPECT_EQ(regelzuege(Feld, seite), meisterzuege(puffer, Feld, seite)) << wo();
    suche(Feld, seite, spielzug, mitStrafe, zuege);
    if (zuege.empty()) {
        // The side found no move: the game records the position once more and ends. The search counts
        // that record too: the hens lose, the foxes draw, and either draws at the move limit.
        const Spielausgang a = spielausgang(Feld, seite, true, spielzug + 1);
        gruende.insert(a.begin(), a.end());
        const bool remis = seite == fuchs || spielzug + 1 >= kZugbegrenzung;
        EXPECT_EQ(a.ergebnis, remis ? Ergebnis::remis : Ergebnis::fuchs) << wo();
        return false;
    }
    const Regelzug& z = waehle(zuege, seite);
    if (z.teile[0].sprung()) offeneKette(Feld, z.teile[0]);

    auto brett = meister::Suchbrett::aus(Feld, seite == fuchs);
    const meister::Folge folge = brett.ziehe(alsSuchzug(z), mitStrafe);
    const Spielfolge f = imSpiel(Feld, partie, z, seite, mitStrafe, gruende);
    letzterFuchs += f.strafe.art == Strafe::Art::letzterFuchs;
    if (f.verdikt) {
        EXPECT_EQ(alsStrafe(folge), f.strafe.art) << wo();
        // The empty parking square may read 0 on the Meister's board: only the pieces count.
        EXPECT_EQ(bild(0, brett.feld()), bild(0, Feld)) << wo();
        // What the board keeps up to date move by move is what a board set up afresh has.
        const auto frisch = meister::Suchbrett::aus(Feld, brett.fuchsAmZug);
        EXPECT_EQ(std::tie(brett.hennenMaske, brett.hennen, brett.imZiel, brett.schluessel),
                  std::tie(frisch.hennenMaske, frisch.hennen, frisch.imZiel, frisch.schluessel))
            << wo();
    }
    EXPECT_EQ(meisterEnde(brett, folge, spielzug + 1, seite), f.ende) << wo();
    return f.ende == Ergebnis::offen && !::testing::Test::HasFailure();
}

// After the first jump only that fox may jump on, and its chains are the Meister's chains from there.
void Lauf::offeneKette(const Brettfeld& vorher, const Teilzug& erster) {
    Brettfeld Feld = vorher;
    teilzugAusfuehren(Feld, erster);
    const auto weiter = regelzuege(Feld, fuchs, {true, erster.nachX, erster.nachY});
    offeneKetten += !weiter.empty();
    EXPECT_EQ(weiter, meisterzuege(puffer, Feld, fuchs, feldNummer(erster.nachX, erster.nachY)))
        << zeige(vorher, fuchs, 0, false) << "erster Sprung nach " << erster.nachX << erster.nachY;
}

void Lauf::suche(const Brettfeld& Feld, int16_t seite, int spielzug, bool mitStrafe,
                 const std::vector<Regelzug>& zuege) {
    if (zuege.size() < 2) return; // a single move is played without a search
    const Ergebnis sieg = seite == henne ? Ergebnis::hennen : Ergebnis::fuchs;
    const bool sofort = std::any_of(zuege.begin(), zuege.end(), [&](const Regelzug& z) {
        return spielausgang(z.nachher, seite, false, spielzug + 1).ergebnis == sieg;
    });
    if (!sofort && spielzug < kZugbegrenzung - 2 && stellungen % kSucheJede != 0) return;
    meister.grenzen(0, 1);
    meister.berechne({Feld, seite, spielzug, mitStrafe, std::chrono::milliseconds{400}});
    EXPECT_EQ(meister.bericht().wert > meister::kEntschieden, sofort)
        << zeige(Feld, seite, spielzug, mitStrafe);
}

TEST(Regelvergleich, MeisterbrettUndSpielregelnStimmenUeberein) {
    Lauf lauf;
    for (int n = 0; lauf.stellungen < kStellungen && !HasFailure(); ++n) {
        lauf.eilig = n % 4 >= 2;
        lauf.partie(n % 2 == 0);
    }
    EXPECT_EQ(lauf.stellungen, kStellungen);
    // The random games reach what the comparison is about.
    EXPECT_GT(lauf.nahAmEnde, 0);
    EXPECT_GT(lauf.geparkt, 0);
    EXPECT_GT(lauf.offeneKetten, 0);
    EXPECT_GT(lauf.letzterFuchs, 0);
    std::string gruende;
    for (const Endegrund g : lauf.gruende)
        gruende += std::to_string(static_cast<int>(g));
    EXPECT_EQ(gruende, "01234"); // every reason for an end
}

} // namespace
} // namespace fuh
