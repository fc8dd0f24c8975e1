// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The saved game's bytes. One list of fields serves writing and reading, so the two cannot drift apart;
// what was read is then checked as a whole before anyone uses it.
#include <algorithm>
#include <bitset>
#include <cstdlib>
#include <cstring>

#include "game/partiedatei.h"
#include "memory/positionscode.h"

namespace fuh {

namespace {

constexpr char kMagie[4] = {'F', 'u', 'H', 'P'};
// 1: a running game; 2 adds whether the game is a finished one still to be filed.
constexpr uint16_t kVersion = 2;
constexpr std::size_t kKopf = sizeof kMagie + 2 + 4; // magic, version, length of what follows
constexpr std::size_t kPruefsumme = 4;
constexpr std::size_t kHoechstVerlauf = kSituationen; // a player cannot make more moves than positions

uint32_t fnv1a(const uint8_t* p, std::size_t n) {
    uint32_t h = 2166136261u;
    for (std::size_t i = 0; i < n; ++i)
        h = (h ^ p[i]) * 16777619u;
    return h;
}

class Schreiber {
  public:
    Bytes b;
    void u8(uint8_t v) { b.push_back(v); }
    void u16(uint16_t v) { u8(static_cast<uint8_t>(v & 0xFF)), u8(static_cast<uint8_t>(v >> 8)); }
    void u32(uint32_t v) { u16(static_cast<uint16_t>(v & 0xFFFF)), u16(static_cast<uint16_t>(v >> 16)); }
    void i16(int16_t v) { u16(static_cast<uint16_t>(v)); }
    void i32(int v) { u32(static_cast<uint32_t>(v)); }
    void ja(bool v) { u8(v ? 1 : 0); }
    template <class E> void art(E v) { i16(static_cast<int16_t>(v)); }
    void roh(const uint8_t* p, std::size_t n) { b.insert(b.end(), p, p + n); }
    void text(const std::string& s) {
        const std::size_t n = std::min<std::size_t>(s.size(), 255);
        u8(static_cast<uint8_t>(n));
        roh(reinterpret_cast<const uint8_t*>(s.data()), n);
    }
};

// Reads until the data end; after that everything reads as zero and `kaputt` stays set.
class Leser {
  public:
    Leser(const uint8_t* p, std::size_t n) : p_(p), n_(n) {}
    bool kaputt = false;
    bool amEnde() const { return pos_ == n_; }
    void u8(uint8_t& v) { v = weiter(1) ? p_[pos_ - 1] : 0; }
    void u16(uint16_t& v) {
        uint8_t a = 0, b = 0;
        u8(a), u8(b);
        v = static_cast<uint16_t>(a | (b << 8));
    }
    void u32(uint32_t& v) {
        uint16_t a = 0, b = 0;
        u16(a), u16(b);
        v = a | (static_cast<uint32_t>(b) << 16);
    }
    void i16(int16_t& v) {
        uint16_t u = 0;
        u16(u);
        v = static_cast<int16_t>(u);
    }
    void i32(int& v) {
        uint32_t u = 0;
        u32(u);
        v = static_cast<int32_t>(u);
    }
    void ja(bool& v) {
        uint8_t u = 0;
        u8(u);
        kaputt |= u > 1;
        v = u == 1;
    }
    template <class E> void art(E& v) {
        int16_t i = 0;
        i16(i);
        v = static_cast<E>(i);
    }
    void roh(uint8_t* p, std::size_t n) {
        if (weiter(n)) std::memcpy(p, p_ + pos_ - n, n);
    }
    void text(std::string& s) {
        uint8_t n = 0;
        u8(n);
        s.assign(n, ' ');
        roh(reinterpret_cast<uint8_t*>(s.data()), n);
    }

  private:
    bool weiter(std::size_t n) {
        if (kaputt || n > n_ - pos_) {
            kaputt = true;
            return false;
        }
        pos_ += n;
        return true;
    }
    const uint8_t* p_;
    std::size_t n_;
    std::size_t pos_ = 0;
};

// Every field of a game, in file order. Z is Spielstand or const Spielstand.
template <class A, class Z> void felder(A& a, Z& z) {
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            a.i16(z.stellung.Feld[x][y]);
    for (int k = 0; k < kFiguren; ++k)
        a.i16(z.stellung.figurplatz[k]);
    a.i16(z.zugregister.vonX), a.i16(z.zugregister.vonY), a.i16(z.zugregister.nachX),
        a.i16(z.zugregister.nachY);
    a.ja(z.sprungfolge.imSprung), a.i16(z.sprungfolge.sprungX), a.i16(z.sprungfolge.sprungY);
    for (int k = 0; k < kFiguren; ++k)
        a.i32(z.bilder.left[k]), a.i32(z.bilder.top[k]), a.ja(z.bilder.sichtbar[k]);
    a.ja(z.bilder.ziehbar);
    for (auto& s : z.partie.sits) {
        a.roh(s.code.data(), s.code.size());
        a.i16(s.fuchswert), a.i16(s.hennenwert), a.i16(s.sprung);
    }
    a.i16(z.partie.spielzug);
    a.i16(z.oeff.einst.PC), a.i16(z.oeff.einst.Staerke), a.i16(z.oeff.einst.Lernmodus);
    a.i16(z.oeff.einst.Einzelzug);
    a.i16(z.oeff.score), a.text(z.oeff.u_is_sieger), a.ja(z.oeff.fuchs_null), a.ja(z.oeff.sw_spielende);
    a.art(z.pcZug), a.art(z.ergebnis), a.i16(z.neueZuege), a.ja(z.endeGefunden), a.art(z.letztesErgebnis);
    a.ja(z.selbstspielLaeuft), a.ja(z.hennenAmZug);
    a.u32(z.zufall), a.u32(z.tippZufall);
    a.text(z.punkte), a.ja(z.zurueckgenommen);
}

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

// Every piece's picture shows where the board has it: a hen's only while it is on the board, a fox's
// always (a parked fox waits beside the cross). A computer piece glides there in a hundred rounded steps,
// so its picture may stand up to 50 twips off its place.
bool bilderPassen(const Spielstand& z) {
    for (int k = 0; k < kFiguren; ++k) {
        const int p = z.stellung.figurplatz[k];
        const bool sichtbar = k < 2 || p != 0;
        if (z.bilder.sichtbar[k] != sichtbar) return false;
        if (sichtbar && (std::abs(z.bilder.left[k] - platzLeft(p)) > 50 || std::abs(z.bilder.top[k] - platzTop(p)) > 50))
            return false;
    }
    return true;
}

// What the game itself can have reached: the positions recorded up to the move counter, the last of them
// the board; every picture where its piece stands; the flags telling one story.
bool erreichbar(const Spielstand& z, bool laufend) {
    const int16_t zug = z.partie.spielzug;
    if (zug > kZugbegrenzung || (laufend && zug == kZugbegrenzung)) return false;
    for (int i = 0; i < zug; ++i)
        if (!aufgezeichnet(z.partie.sits[static_cast<std::size_t>(i)].code)) return false;
    if (zug > 0 && z.partie.sits[static_cast<std::size_t>(zug - 1)].code != positionscode(z.stellung.Feld))
        return false;
    if (!bilderPassen(z)) return false;
    const Computer PC = z.oeff.einst.computer();
    if (!imBereich(z.oeff.einst.PC, 0, 2)) return false;
    const Sprungfolge& sprung = z.sprungfolge;
    // A chain of jumps is a human fox's, open on the foxes' turn, with that fox standing where it landed.
    if (sprung.imSprung && (z.selbstspielLaeuft || z.pcZug == Anforderung::hennen ||
                            z.stellung.Feld[sprung.sprungX][sprung.sprungY] != fuchs))
        return false;
    // The computer against itself: only with that setting, and then it is always the one to move.
    if (z.selbstspielLaeuft && (PC != Computer::beide || z.pcZug != Anforderung::keine)) return false;
    if (!laufend) return z.endeGefunden && z.ergebnis != Ergebnis::offen && !z.selbstspielLaeuft && !sprung.imSprung;
    int hennen = 0, imZiel = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (z.stellung.Feld[x][y] == henne) {
                ++hennen;
                imZiel += imZielfeld(x, y);
            }
    // Running: no end is due, nothing of an end is set, and someone is to move.
    return z.bilder.ziehbar && !z.endeGefunden && !z.oeff.sw_spielende && !z.oeff.fuchs_null &&
           z.oeff.u_is_sieger == "    " && hennen >= 9 && imZiel < 9 &&
           (PC != Computer::beide || z.selbstspielLaeuft || z.oeff.einst.Einzelzug != 0);
}

// The take-back states lie on the way to the game: earlier, with the same positions recorded so far.
bool aufDemWeg(const Spielstand& frueher, const Spielstand& spaeter) {
    if (frueher.partie.spielzug > spaeter.partie.spielzug) return false;
    for (int i = 0; i < frueher.partie.spielzug; ++i)
        if (frueher.partie.sits[static_cast<std::size_t>(i)].code != spaeter.partie.sits[static_cast<std::size_t>(i)].code)
            return false;
    return true;
}

bool gueltig(const Spielstand& z) {
    const Teilzug& r = z.zugregister;
    if (!stellungGueltig(z.stellung) || !aufGitter(r.vonX, r.vonY) || !aufGitter(r.nachX, r.nachY) ||
        !aufGitter(z.sprungfolge.sprungX, z.sprungfolge.sprungY))
        return false;
    for (int k = 0; k < kFiguren; ++k)
        if (!imBereich(z.bilder.left[k], INT16_MIN, INT16_MAX) ||
            !imBereich(z.bilder.top[k], INT16_MIN, INT16_MAX))
            return false;
    if (!imBereich(z.partie.spielzug, 0, kSituationen)) return false;
    for (const Situation& s : z.partie.sits)
        if (!codeGueltig(s.code) || !imBereich(s.sprung, 0, 1)) return false;
    const std::string& sieger = z.oeff.u_is_sieger;
    if (sieger != "Ja" && sieger != "Nein" && sieger != "    ") return false;
    if (z.punkte.size() > 32 ||
        !std::all_of(z.punkte.begin(), z.punkte.end(), [](char c) { return c >= ' ' && c <= '~'; }))
        return false;
    return imBereich(static_cast<int>(z.pcZug), 0, 2) && imBereich(static_cast<int>(z.ergebnis), 0, 3) &&
           imBereich(static_cast<int>(z.letztesErgebnis), 0, 3) && z.zufall < (1u << 24) &&
           z.tippZufall < (1u << 24);
}

} // namespace

Bytes partieKodieren(const Sicherung& s) {
    Schreiber inhalt;
    inhalt.ja(s.abzulegen);
    felder(inhalt, s.stand);
    const std::size_t n = std::min(s.verlauf.size(), kHoechstVerlauf);
    inhalt.u16(static_cast<uint16_t>(n));
    for (std::size_t i = s.verlauf.size() - n; i < s.verlauf.size(); ++i)
        felder(inhalt, s.verlauf[i]);
    Schreiber datei;
    datei.roh(reinterpret_cast<const uint8_t*>(kMagie), sizeof kMagie);
    datei.u16(kVersion);
    datei.u32(static_cast<uint32_t>(inhalt.b.size()));
    datei.roh(inhalt.b.data(), inhalt.b.size());
    datei.u32(fnv1a(inhalt.b.data(), inhalt.b.size()));
    return datei.b;
}

std::optional<Sicherung> partieDekodieren(const Bytes& b) {
    if (b.size() < kKopf + kPruefsumme || std::memcmp(b.data(), kMagie, sizeof kMagie) != 0)
        return std::nullopt;
    Leser kopf(b.data() + sizeof kMagie, kKopf - sizeof kMagie);
    uint16_t version = 0;
    uint32_t laenge = 0;
    kopf.u16(version), kopf.u32(laenge);
    if ((version != 1 && version != kVersion) || laenge != b.size() - kKopf - kPruefsumme) return std::nullopt;
    const uint8_t* inhalt = b.data() + kKopf;
    Leser summe(inhalt + laenge, kPruefsumme);
    uint32_t pruefsumme = 0;
    summe.u32(pruefsumme);
    if (pruefsumme != fnv1a(inhalt, laenge)) return std::nullopt;

    Leser l(inhalt, laenge);
    Sicherung s;
    if (version >= 2) l.ja(s.abzulegen);
    felder(l, s.stand);
    uint16_t n = 0;
    l.u16(n);
    if (n > kHoechstVerlauf) return std::nullopt;
    s.verlauf.resize(n);
    for (Spielstand& z : s.verlauf)
        felder(l, z);
    if (l.kaputt || !l.amEnde() || !gueltig(s.stand) || !erreichbar(s.stand, !s.abzulegen)) return std::nullopt;
    for (std::size_t i = 0; i < s.verlauf.size(); ++i) {
        const Spielstand& z = s.verlauf[i];
        const Spielstand& danach = i + 1 < s.verlauf.size() ? s.verlauf[i + 1] : s.stand;
        if (!gueltig(z) || !erreichbar(z, true) || !aufDemWeg(z, danach)) return std::nullopt;
    }
    return s;
}

} // namespace fuh
