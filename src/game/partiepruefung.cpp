// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "game/partiepruefung.h"

#include <algorithm>
#include <bitset>

#include "memory/positionscode.h"
#include "spieldaten/bestenliste.h"

namespace fuh {

namespace {

bool codeGueltig(const Code& c) {
    if (std::all_of(c.begin(), c.end(), [](uint8_t v) { return v == 0; })) return true; // never recorded
    for (std::size_t i = 0; i < 7; ++i)
        if (c[i] < 64 || c[i] >= 64 + 128) return false;
    for (std::size_t i = 7; i < c.size(); ++i)
        if (c[i] < 64 || c[i] > 64 + 6) return false;
    return true;
}

// The board and the pieces agree: every piece stands on its own kind of square, no two on one, and
// the board holds no piece that none stands for. A fox waits on the parking square only while parked.
bool stellungGueltig(const Stellung& s) {
    int hennenFeld = 0, fuechseFeld = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y) {
            const int16_t v = s.Feld[x][y];
            const bool park = feldNummer(x, y) == kParkfeld;
            // The parking square is left empty (leer) when the parked fox returns.
            if (aufKreuz(x, y) ? (v != leer && v != henne && v != fuchs)
                               : (v != 0 && !(park && (v == fuchs || v == leer))))
                return false;
            hennenFeld += v == henne;
            fuechseFeld += v == fuchs && !park;
        }
    std::bitset<kFelder> belegt;
    int hennen = 0, fuechse = 0, geparkt = 0;
    for (int k = 0; k < kFiguren; ++k) {
        const int p = s.figurplatz[k];
        const int16_t art = k < 2 ? fuchs : henne;
        if (p < 0 || p >= kFelder) return false;
        if (p == kParkfeld) {
            geparkt += k < 2;
            continue;
        }
        if (belegt[p] || s.Feld[feldX(p)][feldY(p)] != art) return false;
        belegt[p] = true;
        (k < 2 ? fuechse : hennen) += 1;
    }
    const bool parkfeldBesetzt = s.Feld[0][0] == fuchs;
    return hennen == hennenFeld && fuechse == fuechseFeld && geparkt <= 1 &&
           (geparkt == 1) == parkfeldBesetzt;
}

bool imBereich(int v, int von, int bis) {
    return v >= von && v <= bis;
}

bool aufgezeichnet(const Code& c) {
    return std::any_of(c.begin(), c.end(), [](uint8_t v) { return v != 0; });
}

// What the game itself can have reached: the positions recorded up to the move counter, the last of them
// the board; the flags telling one story.
bool erreichbar(const Spielstand& z, bool laufend) {
    const int16_t zug = z.partie.spielzug;
    if (zug > kZugbegrenzung || (laufend && zug == kZugbegrenzung)) return false;
    for (int i = 0; i < zug; ++i)
        if (!aufgezeichnet(z.partie.sits[static_cast<std::size_t>(i)].code)) return false;
    if (zug > 0 && z.partie.sits[static_cast<std::size_t>(zug - 1)].code != positionscode(z.stellung.Feld))
        return false;
    if (!imBereich(z.oeff.einst.PC, 0, 2)) return false;
    const Sprungfolge& sprung = z.sprungfolge;
    // A chain of jumps is a person's fox's, open on the foxes' turn, with that fox standing where it landed.
    if (sprung.imSprung &&
        (z.amZug != Seite::Fuchs || z.stellung.Feld[sprung.sprungX][sprung.sprungY] != fuchs))
        return false;
    if (!laufend) return z.endeGefunden && z.ergebnis != Ergebnis::offen && !sprung.imSprung;
    int hennen = 0, imZiel = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (z.stellung.Feld[x][y] == henne) {
                ++hennen;
                imZiel += imZielfeld(x, y);
            }
    // Running: no end is due and nothing of an end is set; whoever plays the side to move moves.
    return z.ziehbar && !z.endeGefunden && !z.oeff.sw_spielende && !z.oeff.fuchs_null &&
           z.oeff.u_is_sieger == "    " && hennen >= 9 && imZiel < 9;
}

bool teilzugGueltig(const Teilzug& t) {
    return aufGitter(t.vonX, t.vonY) && aufGitter(t.nachX, t.nachY);
}

// The record names sides, verdicts, squares and reasons that exist. That its moves were legal is what
// replaying it proves; a saved running game is the game's own, and its state is checked above.
bool mitschriftGueltig(const Mitschrift& m) {
    for (const Partiezug& e : m.zuege) {
        if ((e.seite != Seite::Fuchs && e.seite != Seite::Hennen) ||
            !imBereich(static_cast<int>(e.strafe), 0, static_cast<int>(Strafe::Art::letzterFuchs)) ||
            !teilzugGueltig(e.strafzug) || !std::all_of(e.teile.begin(), e.teile.end(), teilzugGueltig))
            return false;
    }
    return !m.ende || imBereich(static_cast<int>(*m.ende), 0, static_cast<int>(Endegrund::zugbegrenzung));
}

// The take-back states lie on the way to the game: earlier, with the same positions recorded so far and
// the same moves.
bool aufDemWeg(const Spielstand& frueher, const Spielstand& spaeter) {
    const auto& a = frueher.mitschrift.zuege;
    const auto& b = spaeter.mitschrift.zuege;
    if (a.size() > b.size() || !std::equal(a.begin(), a.end(), b.begin())) return false;
    if (frueher.partie.spielzug > spaeter.partie.spielzug) return false;
    for (int i = 0; i < frueher.partie.spielzug; ++i)
        if (frueher.partie.sits[static_cast<std::size_t>(i)].code !=
            spaeter.partie.sits[static_cast<std::size_t>(i)].code)
            return false;
    return true;
}

bool gueltig(const Spielstand& z) {
    const Teilzug& r = z.zugregister;
    if (!stellungGueltig(z.stellung) || !aufGitter(r.vonX, r.vonY) || !aufGitter(r.nachX, r.nachY) ||
        !aufGitter(z.sprungfolge.sprungX, z.sprungfolge.sprungY))
        return false;
    if (!imBereich(z.partie.spielzug, 0, kSituationen)) return false;
    for (const Situation& s : z.partie.sits)
        if (!codeGueltig(s.code) || !imBereich(s.sprung, 0, 1)) return false;
    const std::string& sieger = z.oeff.u_is_sieger;
    if (sieger != siegFeld(true) && sieger != siegFeld(false) && sieger != "    ") return false;
    return (z.amZug == Seite::Fuchs || z.amZug == Seite::Hennen) &&
           imBereich(static_cast<int>(z.ergebnis), 0, 3) &&
           imBereich(static_cast<int>(z.letztesErgebnis), 0, 3) && z.zufall < (1u << 24) &&
           z.tippZufall < (1u << 24);
}

} // namespace

bool sicherungGueltig(const Sicherung& s) {
    if (!gueltig(s.stand) || !mitschriftGueltig(s.stand.mitschrift) || !erreichbar(s.stand, !s.abzulegen))
        return false;
    for (std::size_t i = 0; i < s.verlauf.size(); ++i) {
        const Spielstand& z = s.verlauf[i];
        const Spielstand& danach = i + 1 < s.verlauf.size() ? s.verlauf[i + 1] : s.stand;
        if (!gueltig(z) || !mitschriftGueltig(z.mitschrift) || !erreichbar(z, true) || !aufDemWeg(z, danach))
            return false;
    }
    return true;
}

} // namespace fuh
