// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "memory/lernindex.h"

#include <algorithm>
#include <cstring>

#include "board/zahlen.h"
#include "dateischicht/dateizugriff.h"

namespace fuh {

namespace {
constexpr std::size_t kWenigsteSlots = 1024;
constexpr std::size_t kPuffer = Lernindex::kHoechstens + kLernsatz; // room for a partial last record

int16_t lies16(const uint8_t* b) {
    return static_cast<int16_t>(static_cast<uint16_t>(b[0] | (b[1] << 8)));
}

void schreibe16(uint8_t* b, int16_t wert) {
    const auto u = static_cast<uint16_t>(wert);
    b[0] = static_cast<uint8_t>(u & 0xFF);
    b[1] = static_cast<uint8_t>(u >> 8);
}

// Number of records: the length divided by 15, rounded to the nearest whole number.
int satzzahl(std::size_t laenge) {
    return static_cast<int>(std::min<std::size_t>((laenge + kLernsatz / 2) / kLernsatz, kHoechsteSaetze));
}
} // namespace

uint64_t Lernindex::streuwert(const uint8_t* code) {
    uint64_t a = 0;
    std::memcpy(&a, code, 8);
    const uint64_t b = code[8] | (code[9] << 8) | (static_cast<uint32_t>(code[10]) << 16);
    // Every byte of the code must reach the slot bits: a full 64-bit mix (MurmurHash3's finaliser).
    uint64_t h = a ^ (b * 0x9E3779B97F4A7C15ull);
    h ^= h >> 33;
    h *= 0xFF51AFD7ED558CCDull;
    h ^= h >> 33;
    h *= 0xC4CEB9FE1A85EC53ull;
    h ^= h >> 33;
    return h;
}

// A slot holds the record number + 1 (0: empty) under 16 bits of the hash, so that most slots of other
// codes are passed over without touching the records.
int Lernindex::suche(const uint8_t* code, uint64_t h, uint32_t& platz) const {
    const uint32_t marke = static_cast<uint32_t>(h >> 48) << 16;
    for (platz = static_cast<uint32_t>(h) & maske_;; platz = (platz + 1) & maske_) {
        const uint32_t s = tabelle_[platz];
        if (s == 0) return -1;
        const int r = static_cast<int>(s & 0xFFFFu) - 1;
        if ((s & 0xFFFF0000u) == marke &&
            std::memcmp(inhalt_.data() + static_cast<std::size_t>(r) * kLernsatz, code, 11) == 0)
            return r;
    }
}

bool Lernindex::eintragen(int r) {
    const uint8_t* code = inhalt_.data() + static_cast<std::size_t>(r) * kLernsatz;
    const uint64_t h = streuwert(code);
    uint32_t platz = 0;
    if (suche(code, h, platz) >= 0) return false;
    tabelle_[platz] = (static_cast<uint32_t>(h >> 48) << 16) | static_cast<uint32_t>(r + 1);
    return true;
}

void Lernindex::aufbauen() {
    // At least twice as many slots as records keeps the probe chains short.
    std::size_t slots = kWenigsteSlots;
    while (slots < 2 * static_cast<std::size_t>(n_))
        slots *= 2;
    tabelle_.assign(slots, 0);
    maske_ = static_cast<uint32_t>(slots - 1);
    for (int r = 0; r < n_; ++r)
        eintragen(r); // a repeated code keeps its first record
}

void Lernindex::puffernAnlegen() {
    if (!inhalt_.empty()) return;
    inhalt_.assign(kPuffer, 0);
    frisch_.assign(kPuffer, 0);
    ausdehnung_ = frischAusdehnung_ = 0;
    gueltig_ = false;
}

bool Lernindex::laden(int fd, const struct stat& st) {
    puffernAnlegen();
    const auto groesse = static_cast<std::size_t>(std::max<off_t>(st.st_size, 0));
    const long n = datei::lesenAb(fd, frisch_.data(), std::min(groesse, kHoechstens), 0);
    if (n < 0) return false;
    const auto gelesen = static_cast<std::size_t>(n);
    if (frischAusdehnung_ > gelesen)
        std::fill(frisch_.begin() + static_cast<long>(gelesen),
                  frisch_.begin() + static_cast<long>(frischAusdehnung_), 0);
    frischAusdehnung_ = gelesen;
    const auto bis = static_cast<long>(std::max(gelesen, ausdehnung_));
    if (!gueltig_ || gelesen != laenge_ ||
        !std::equal(frisch_.begin(), frisch_.begin() + bis, inhalt_.begin())) {
        inhalt_.swap(frisch_);
        std::swap(ausdehnung_, frischAusdehnung_);
        laenge_ = gelesen;
        n_ = satzzahl(gelesen);
        aufbauen();
    }
    standSetzen(st);
    return true;
}

void Lernindex::leeren(const struct stat& st) {
    puffernAnlegen();
    std::fill(inhalt_.begin(), inhalt_.begin() + static_cast<long>(ausdehnung_), 0);
    ausdehnung_ = 0;
    laenge_ = 0;
    n_ = 0;
    aufbauen();
    standSetzen(st);
}

void Lernindex::standSetzen(const struct stat& st) {
    dev_ = st.st_dev;
    ino_ = st.st_ino;
    groesse_ = st.st_size;
    mtime_ = st.st_mtim;
    gueltig_ = true;
}

bool Lernindex::aktuell(const struct stat& st) const {
    return gueltig_ && st.st_ino == ino_ && st.st_dev == dev_ && st.st_size == groesse_ &&
           st.st_mtim.tv_sec == mtime_.tv_sec && st.st_mtim.tv_nsec == mtime_.tv_nsec;
}

int Lernindex::finde(const Code& p, const Code& m) const {
    uint32_t platz = 0;
    const int rp = suche(p.data(), streuwert(p.data()), platz);
    const int rm = suche(m.data(), streuwert(m.data()), platz);
    return rp < 0 ? rm : rm < 0 ? rp : std::min(rp, rm);
}

int16_t Lernindex::wert(int r, std::size_t feld) const {
    return lies16(inhalt_.data() + static_cast<std::size_t>(r) * kLernsatz + feld);
}

void Lernindex::addieren(int r, int16_t fuchswert, int16_t hennenwert) {
    uint8_t* satz = inhalt_.data() + static_cast<std::size_t>(r) * kLernsatz;
    ausdehnung_ = std::max(ausdehnung_, static_cast<std::size_t>(r + 1) * kLernsatz);
    schreibe16(satz + kFuchswert, sat16(lies16(satz + kFuchswert) + fuchswert));
    schreibe16(satz + kHennenwert, sat16(lies16(satz + kHennenwert) + hennenwert));
}

void Lernindex::anhaengen(const Code& c, int16_t fuchswert, int16_t hennenwert) {
    uint8_t* satz = inhalt_.data() + static_cast<std::size_t>(n_) * kLernsatz;
    std::copy(c.begin(), c.end(), satz);
    schreibe16(satz + kFuchswert, fuchswert);
    schreibe16(satz + kHennenwert, hennenwert);
    ausdehnung_ = std::max(ausdehnung_, static_cast<std::size_t>(n_ + 1) * kLernsatz);
    if (2 * ++n_ > static_cast<int>(tabelle_.size()))
        aufbauen(); // grows the table
    else
        eintragen(n_ - 1);
}

std::size_t Lernindex::laengeNach(int letzterSatz) const {
    return std::max(laenge_, static_cast<std::size_t>(letzterSatz + 1) * kLernsatz);
}

} // namespace fuh
