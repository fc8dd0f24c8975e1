// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The saved game's bytes. One list of fields serves writing and reading, so the two cannot drift apart;
// what was read is then checked as a whole before anyone uses it.
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>

#include "game/partiedatei.h"
#include "game/partiepruefung.h"

namespace fuh {

namespace {

constexpr char kMagie[4] = {'F', 'u', 'H', 'P'};
// 1: a running game, with the computer's pending reply instead of the side to move; 2: the side to move,
// and whether the game is a finished one still to be filed; 3: the record of the moves; 4: no screen
// positions of the pieces (where a piece stands follows from the position).
constexpr uint16_t kVersion = 4;
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
    // The file keeps the panel's German text.
    void punkte(const Punktestand& p) { text(deutsch(punkteText(p))); }
};

// The points panel from its German text, as the game writes it; nothing for any other text.
std::optional<Punktestand> punkteLesen(const std::string& s) {
    if (s.empty()) return Punktestand{};
    const std::string kopf = deutsch(Text(Vorlage::punkte, {Text::wort("")}));
    if (s.compare(0, kopf.size(), kopf) != 0) return std::nullopt;
    if (s.size() == kopf.size()) return Punktestand{true, std::nullopt};
    int16_t zahl = 0;
    const char* ende = s.data() + s.size();
    const auto [bis, fehler] = std::from_chars(s.data() + kopf.size(), ende, zahl);
    if (fehler != std::errc() || bis != ende) return std::nullopt;
    return Punktestand{true, zahl};
}

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
    void punkte(Punktestand& p) {
        std::string s;
        text(s);
        const auto gelesen = punkteLesen(s);
        kaputt |= !gelesen;
        if (gelesen) p = *gelesen;
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

// Version 1 named the side to move only through the computer's pending reply (where the side to move
// stands now) or, in a game of the computer alone, through two flags after the result.
struct AltesAmZug {
    int16_t antwort = 0;
};

void amZug(Schreiber& a, const Spielstand& z, uint16_t, AltesAmZug&) {
    a.art(z.amZug);
}
void amZugNachtragen(Schreiber&, const Spielstand&, uint16_t, const AltesAmZug&) {}

void amZug(Leser& a, Spielstand& z, uint16_t version, AltesAmZug& alt) {
    if (version >= 2)
        a.art(z.amZug);
    else
        a.i16(alt.antwort);
}

void amZugNachtragen(Leser& a, Spielstand& z, uint16_t version, const AltesAmZug& alt) {
    if (version >= 2) return;
    bool selbstspiel = false, hennenAmZug = false;
    a.ja(selbstspiel), a.ja(hennenAmZug);
    a.kaputt |= alt.antwort < 0 || alt.antwort > 2;
    if (alt.antwort != 0)
        z.amZug = alt.antwort == 1 ? Seite::Hennen : Seite::Fuchs;
    else if (selbstspiel)
        z.amZug = hennenAmZug ? Seite::Hennen : Seite::Fuchs;
    else // a person's turn: the person plays the foxes when the computer plays the hens
        z.amZug = z.oeff.einst.computer() == Computer::hennen ? Seite::Fuchs : Seite::Hennen;
}

// Up to version 3 each piece's picture followed the position: its place on the old board in twips and
// whether it was shown. They are read and checked, then dropped: the screen derives them itself now.
void alteBilder(Schreiber&, const Spielstand&, uint16_t) {}

void alteBilder(Leser& a, const Spielstand& z, uint16_t version) {
    if (version >= 4) return;
    for (int k = 0; k < kFiguren; ++k) {
        int left = 0, top = 0;
        bool sichtbar = false;
        a.i32(left), a.i32(top), a.ja(sichtbar);
        // A hen's picture is shown while she is on the board, a fox's always (a parked fox waits beside it).
        const bool aufDemBrett = k < kAnzahlFuechse || z.stellung.figurplatz[k] != 0;
        a.kaputt |= sichtbar != aufDemBrett || left < INT16_MIN || left > INT16_MAX || top < INT16_MIN ||
                    top > INT16_MAX;
    }
}

void teilzug(Schreiber& a, const Teilzug& t) {
    a.i16(t.vonX), a.i16(t.vonY), a.i16(t.nachX), a.i16(t.nachY);
}
void teilzug(Leser& a, Teilzug& t) {
    a.i16(t.vonX), a.i16(t.vonY), a.i16(t.nachX), a.i16(t.nachY);
}

void mitschrift(Schreiber& a, const Mitschrift& m) {
    a.u16(static_cast<uint16_t>(m.zuege.size()));
    for (const Partiezug& e : m.zuege) {
        a.art(e.seite), a.art(e.strafe), teilzug(a, e.strafzug);
        a.u8(static_cast<uint8_t>(e.teile.size()));
        for (const Teilzug& t : e.teile)
            teilzug(a, t);
    }
    a.ja(m.ende.has_value()), a.art(m.ende.value_or(Endegrund{}));
}

// Counts are bounded before anything is allocated; the values are checked with the whole game.
void mitschrift(Leser& a, Mitschrift& m) {
    uint16_t n = 0;
    a.u16(n);
    a.kaputt |= n > 2 * kSituationen;
    m.zuege.resize(a.kaputt ? 0 : n);
    for (Partiezug& e : m.zuege) {
        uint8_t teile = 0;
        a.art(e.seite), a.art(e.strafe), teilzug(a, e.strafzug), a.u8(teile);
        a.kaputt |= teile > kLaengsteKette;
        e.teile.resize(a.kaputt ? 0 : teile);
        for (Teilzug& t : e.teile)
            teilzug(a, t);
    }
    bool ende = false;
    Endegrund g{};
    a.ja(ende), a.art(g);
    if (ende) m.ende = g;
}

// Every field of a game, in file order. Z is Spielstand or const Spielstand.
template <class A, class Z> void felder(A& a, Z& z, uint16_t version = kVersion) {
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            a.i16(z.stellung.Feld[x][y]);
    for (int k = 0; k < kFiguren; ++k)
        a.i16(z.stellung.figurplatz[k]);
    a.i16(z.zugregister.vonX), a.i16(z.zugregister.vonY), a.i16(z.zugregister.nachX),
        a.i16(z.zugregister.nachY);
    a.ja(z.sprungfolge.imSprung), a.i16(z.sprungfolge.sprungX), a.i16(z.sprungfolge.sprungY);
    alteBilder(a, z, version);
    a.ja(z.ziehbar);
    for (auto& s : z.partie.sits) {
        a.roh(s.code.data(), s.code.size());
        a.i16(s.fuchswert), a.i16(s.hennenwert), a.i16(s.sprung);
    }
    a.i16(z.partie.spielzug);
    a.i16(z.oeff.einst.PC), a.i16(z.oeff.einst.Staerke), a.i16(z.oeff.einst.Lernmodus);
    a.i16(z.oeff.einst.Einzelzug);
    a.i16(z.oeff.score), a.text(z.oeff.u_is_sieger), a.ja(z.oeff.fuchs_null), a.ja(z.oeff.sw_spielende);
    AltesAmZug alt;
    amZug(a, z, version, alt);
    a.art(z.ergebnis), a.i16(z.neueZuege), a.ja(z.endeGefunden), a.art(z.letztesErgebnis);
    amZugNachtragen(a, z, version, alt);
    a.u32(z.zufall), a.u32(z.tippZufall);
    a.punkte(z.punkte), a.ja(z.zurueckgenommen);
    if (version >= 3) mitschrift(a, z.mitschrift);
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
    if (version < 1 || version > kVersion || laenge != b.size() - kKopf - kPruefsumme) return std::nullopt;
    const uint8_t* inhalt = b.data() + kKopf;
    Leser summe(inhalt + laenge, kPruefsumme);
    uint32_t pruefsumme = 0;
    summe.u32(pruefsumme);
    if (pruefsumme != fnv1a(inhalt, laenge)) return std::nullopt;

    Leser l(inhalt, laenge);
    Sicherung s;
    if (version >= 2) l.ja(s.abzulegen);
    felder(l, s.stand, version);
    uint16_t n = 0;
    l.u16(n);
    if (n > kHoechstVerlauf) return std::nullopt;
    s.verlauf.resize(n);
    for (Spielstand& z : s.verlauf)
        felder(l, z, version);
    if (l.kaputt || !l.amEnde() || !sicherungGueltig(s)) return std::nullopt;
    return s;
}

} // namespace fuh
