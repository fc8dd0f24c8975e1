// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "spieldaten/bestenliste.h"

#include <bit>

#include "dateischicht/satzdatei.h"

namespace fuh {

namespace {

constexpr std::size_t kSatz = 29;
constexpr std::size_t kZeilen = kListenzeilen;
constexpr std::size_t kDatei = kSatz * kZeilen;
// Fields of a record: date, score, name and win text.
constexpr std::size_t kDatum = 8;
constexpr std::size_t kScoreAb = kDatum;
constexpr std::size_t kNameAb = 10;
constexpr std::size_t kName = kNamenlaenge;
constexpr std::size_t kSiegAb = 25;
constexpr std::size_t kSieg = 4;

// Code points of the bytes 0x80..0x9F. The five bytes Windows-1252 leaves unassigned map to the C1
// control of the same value, so every byte survives a round trip.
constexpr char32_t kObereSteuerzone[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                           0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

int byteFuer(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<int>(c);
    for (int i = 0; i < 32; ++i)
        if (kObereSteuerzone[i] == c) return 0x80 + i;
    return -1;
}

void utf8Anhaengen(std::string& s, char32_t c) {
    if (c < 0x80) {
        s += static_cast<char>(c);
    } else if (c < 0x800) {
        s += static_cast<char>(0xC0 | (c >> 6));
        s += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        s += static_cast<char>(0xE0 | (c >> 12));
        s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Next code point of `s` from `i`; a malformed sequence yields one replacement and skips one byte.
char32_t naechstes(const std::string& s, std::size_t& i) {
    const auto b0 = static_cast<unsigned char>(s[i]);
    int laenge = 0;
    char32_t c = 0;
    if (b0 < 0x80) {
        ++i;
        return b0;
    } else if ((b0 & 0xE0) == 0xC0) {
        laenge = 2;
        c = b0 & 0x1F;
    } else if ((b0 & 0xF0) == 0xE0) {
        laenge = 3;
        c = b0 & 0x0F;
    } else if ((b0 & 0xF8) == 0xF0) {
        laenge = 4;
        c = b0 & 0x07;
    } else {
        ++i;
        return 0xFFFD;
    }
    if (i + static_cast<std::size_t>(laenge) > s.size()) {
        ++i;
        return 0xFFFD;
    }
    for (int k = 1; k < laenge; ++k) {
        const auto b = static_cast<unsigned char>(s[i + static_cast<std::size_t>(k)]);
        if ((b & 0xC0) != 0x80) {
            ++i;
            return 0xFFFD;
        }
        c = (c << 6) | (b & 0x3F);
    }
    static constexpr char32_t kKleinste[5] = {0, 0, 0x80, 0x800, 0x10000};
    if (c < kKleinste[laenge] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
        ++i;
        return 0xFFFD;
    }
    i += static_cast<std::size_t>(laenge);
    return c;
}

std::string feld(const Bytes& b, std::size_t pos, std::size_t n) {
    std::string s(n, '\0');
    for (std::size_t k = 0; k < n && pos + k < b.size(); ++k)
        s[k] = static_cast<char>(b[pos + k]);
    return s;
}

// `s` cut or padded with blanks to `n` bytes.
std::string aufLaenge(std::string s, std::size_t n) {
    s.resize(n, ' ');
    return s;
}

} // namespace

const char* bestenlistendatei(Seite s) {
    return s == Seite::Fuchs ? "QZF.sco" : "QZH.sco";
}

std::string nachWindows1252(const std::string& utf8) {
    std::string aus;
    for (std::size_t i = 0; i < utf8.size();) {
        const int b = byteFuer(naechstes(utf8, i));
        aus += b < 0 ? '?' : static_cast<char>(b);
    }
    return aus;
}

std::string siegFeld(bool gewonnen) {
    return deutsch(gewonnen ? Vorlage::siegJa : Vorlage::siegNein);
}

Text siegText(const std::string& feld) {
    for (const Vorlage v : {Vorlage::siegJa, Vorlage::siegNein})
        if (feld == vorlage(v)) return v;
    return Text::wort(feld);
}

std::string vonWindows1252(const std::string& bytes) {
    std::string aus;
    for (const char ch : bytes) {
        const auto b = static_cast<unsigned char>(ch);
        utf8Anhaengen(aus, b >= 0x80 && b < 0xA0 ? kObereSteuerzone[b - 0x80] : char32_t{b});
    }
    return aus;
}

void Bestenliste::laden(const std::filesystem::path& ordner) {
    const auto inhalt = dateiLesen(datenpfad(ordner, bestenlistendatei(seite_)), kDatei);
    ausBytes(inhalt ? *inhalt : Bytes{});
}

void Bestenliste::ausBytes(const Bytes& b) {
    for (std::size_t z = 0; z < kZeilen; ++z) {
        const std::size_t p = z * kSatz;
        uint64_t roh = 0;
        for (std::size_t k = 0; k < kDatum; ++k)
            roh |= static_cast<uint64_t>(p + k < b.size() ? b[p + k] : 0) << (8 * k);
        Eintrag& e = tabelle_[z];
        e.datum = std::bit_cast<double>(roh);
        e.score = le16(b, p + kScoreAb);
        e.user = feld(b, p + kNameAb, kName);
        e.sieg = feld(b, p + kSiegAb, kSieg);
    }
    neuePos_ = static_cast<int>(kZeilen);
}

void Bestenliste::inBytes(Bytes& b) const {
    for (std::size_t z = 0; z < kZeilen; ++z) {
        const std::size_t p = z * kSatz;
        const Eintrag& e = tabelle_[z];
        const auto roh = std::bit_cast<uint64_t>(e.datum);
        uint8_t datum[kDatum];
        for (std::size_t k = 0; k < kDatum; ++k)
            datum[k] = static_cast<uint8_t>(roh >> (8 * k));
        setzeBytes(b, p, datum, kDatum);
        setzeLe16(b, p + kScoreAb, e.score);
        // Fields are fixed width; an empty row keeps its zeros.
        std::string user = e.user;
        user.resize(kName, '\0');
        std::string sieg = e.sieg;
        sieg.resize(kSieg, '\0');
        setzeBytes(b, p + kNameAb, reinterpret_cast<const uint8_t*>(user.data()), kName);
        setzeBytes(b, p + kSiegAb, reinterpret_cast<const uint8_t*>(sieg.data()), kSieg);
    }
}

bool Bestenliste::speichern(const std::filesystem::path& ordner) const {
    // Another list of the same side may have been confirmed since this one was read: the new row goes
    // into what the file holds now, under the folder lock, so that neither entry is lost. Bytes after
    // the ten records belong to nobody we know; they stay where they are.
    return dateiFortschreiben(datenpfad(ordner, bestenlistendatei(seite_)), kDatei, [this](Bytes& b) {
        Bestenliste jetzt(seite_);
        jetzt.ausBytes(b);
        if (hatNeueZeile()) {
            const Eintrag& neu = tabelle_[static_cast<std::size_t>(neuePos_)];
            jetzt.einfuegen(neu.score, neu.sieg, neu.datum);
            if (jetzt.hatNeueZeile())
                jetzt.tabelle_[static_cast<std::size_t>(jetzt.neuePos_)].user = neu.user;
        }
        jetzt.inBytes(b);
        return true;
    });
}

int Bestenliste::anzeigen(Oeffentlich& spiel, double heute) {
    neuePos_ = static_cast<int>(kZeilen);
    // A fox game the penalty rule decided says nothing about the player's skill.
    if (spiel.sw_spielende && spiel.score >= 1 && (seite_ == Seite::Hennen || !spiel.fuchs_null)) {
        einfuegen(spiel.score, spiel.u_is_sieger, heute);
        spiel.sw_spielende = false; // offered once, even when it made no row
    }
    return neuePos_;
}

int Bestenliste::einfuegen(int16_t score, const std::string& u_is_sieger, double heute) {
    neuePos_ = static_cast<int>(kZeilen);
    for (std::size_t i = 0; i < kZeilen; ++i) {
        if (score < tabelle_[i].score) continue;
        for (std::size_t k = kZeilen - 1; k > i; --k)
            tabelle_[k] = tabelle_[k - 1];
        // The name stays until the player types one; only date, score and result are new.
        tabelle_[i].datum = heute;
        tabelle_[i].score = score;
        tabelle_[i].sieg = aufLaenge(u_is_sieger, kSieg);
        neuePos_ = static_cast<int>(i);
        break;
    }
    return neuePos_;
}

void Bestenliste::nameSetzen(const std::string& utf8) {
    if (!hatNeueZeile()) return;
    tabelle_[static_cast<std::size_t>(neuePos_)].user = aufLaenge(nachWindows1252(utf8), kName);
}

} // namespace fuh
