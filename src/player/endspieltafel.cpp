// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "player/endspieltafel.h"

#include <fcntl.h>
#include <sys/mman.h>

#include <algorithm>
#include <string_view>

#include "board/regeln.h"
#include "dateischicht/benutzerordner.h"
#include "dateischicht/dateizugriff.h"

namespace fuh {

namespace {

constexpr std::string_view kKennung = "FUHTAFEL";
constexpr uint32_t kFormat = 1;
constexpr std::size_t kKopf = 32; // identifier, format, rule set, count, checksum

// A fast 64-bit checksum over whole words, so that a damaged table is found in a fraction of a second.
uint64_t pruefsumme(const uint8_t* d, std::size_t n) {
    uint64_t h = 0x6A09E667F3BCC908ull ^ n;
    std::size_t i = 0;
    for (; i + 8 <= n; i += 8) {
        uint64_t w = 0;
        for (int b = 0; b < 8; ++b)
            w |= uint64_t{d[i + b]} << (8 * b);
        h = (h ^ w) * 0x9E3779B97F4A7C15ull;
        h ^= h >> 29;
    }
    for (; i < n; ++i)
        h = (h ^ d[i]) * 0x100000001B3ull;
    return h ^ (h >> 32);
}

void legen(Bytes& b, std::size_t pos, uint64_t v, int laenge) {
    for (int i = 0; i < laenge; ++i)
        b[pos + static_cast<std::size_t>(i)] = static_cast<uint8_t>(v >> (8 * i));
}

Bytes kopf(const meister::TafelIndex& index, uint64_t summe) {
    Bytes k(kKopf);
    std::copy(kKennung.begin(), kKennung.end(), k.begin());
    legen(k, 8, kFormat, 4);
    legen(k, 12, (index.strafregel() ? 1u : 0u) | static_cast<uint32_t>(index.zeilen()) << 8, 4);
    legen(k, 16, index.groesse(), 8);
    legen(k, 24, summe, 8);
    return k;
}

// The whole file mapped read-only, released with the last table that uses it.
std::shared_ptr<const void> abbilden(int fd, std::size_t laenge) {
    void* p = mmap(nullptr, laenge, PROT_READ, MAP_SHARED, fd, 0);
    if (p == MAP_FAILED) return nullptr;
    return std::shared_ptr<const void>(p, [laenge](const void* q) { munmap(const_cast<void*>(q), laenge); });
}

} // namespace

Endspieltafel::Endspieltafel(bool strafregel, std::vector<uint8_t> werte, int zeilen)
    : index_(strafregel, zeilen) {
    werte.resize(index_.groesse(), tafelwert::kRemis);
    auto eigen = std::make_shared<const std::vector<uint8_t>>(std::move(werte));
    werte_ = *eigen;
    halter_ = std::move(eigen);
}

Endspieltafel::Endspieltafel(bool strafregel, std::shared_ptr<const void> halter,
                             std::span<const uint8_t> werte, int zeilen)
    : index_(strafregel, zeilen), halter_(std::move(halter)), werte_(werte.first(index_.groesse())) {}

std::optional<uint8_t> Endspieltafel::wert(const meister::Suchbrett& b) const {
    const auto i = index_.index(b);
    if (!i) return std::nullopt;
    return werte_[*i];
}

std::optional<Endspielurteil> urteil(const Endspieltafel& t, const meister::Suchbrett& b, int spielzug) {
    const auto w = t.wert(b);
    if (!w || !tafelwert::genau(*w)) return std::nullopt;
    // The game is drawn when its end would come with the move limit or later.
    if (*w == tafelwert::kRemis || spielzug + tafelwert::plies(*w) >= kZugbegrenzung) return Endspielurteil{};
    const bool hennenGewinnen = tafelwert::gewonnen(*w) != b.fuchsAmZug;
    return Endspielurteil{hennenGewinnen ? Ergebnis::hennen : Ergebnis::fuchs, tafelwert::plies(*w)};
}

std::filesystem::path tafelDatei(const std::filesystem::path& ordner, bool strafregel) {
    return ordner / (strafregel ? "endspiel-strafregel.tafel" : "endspiel.tafel");
}

std::optional<std::filesystem::path> tafelOrdner() {
    const auto basis = xdgOrdner("XDG_CACHE_HOME", ".cache");
    if (!basis) return std::nullopt;
    return *basis / kProgrammordner;
}

Endspieltafeln tafelnLaden(const std::filesystem::path& ordner) {
    Endspieltafeln t;
    for (const bool strafregel : {true, false})
        if (auto geladen = tafelLaden(tafelDatei(ordner, strafregel), strafregel))
            (strafregel ? t.mitStrafregel : t.ohneStrafregel) =
                std::make_shared<const Endspieltafel>(std::move(*geladen));
    return t;
}

std::optional<Endspieltafel> tafelLaden(const std::filesystem::path& datei, bool strafregel, int zeilen) {
    const meister::TafelIndex index(strafregel, zeilen);
    struct stat st {};
    const datei::Deskriptor fd = datei::regulaerOeffnen(datei.c_str(), O_RDONLY, false, st);
    const uint64_t laenge = kKopf + index.groesse();
    // The size is checked first, so that a foreign file of any size is never read.
    if (!fd || static_cast<uint64_t>(st.st_size) != laenge) return std::nullopt;
    auto halter = abbilden(fd.fd(), laenge);
    if (!halter) return std::nullopt;
    const auto* b = static_cast<const uint8_t*>(halter.get());
    madvise(const_cast<uint8_t*>(b), laenge, MADV_SEQUENTIAL); // the checksum reads it once, in order
    const Bytes erwartet = kopf(index, pruefsumme(b + kKopf, laenge - kKopf));
    if (!std::equal(erwartet.begin(), erwartet.end(), b)) return std::nullopt;
    madvise(const_cast<uint8_t*>(b), laenge, MADV_RANDOM); // the search probes it here and there
    return Endspieltafel(strafregel, std::move(halter), {b + kKopf, laenge - kKopf}, zeilen);
}

bool tafelSpeichern(const std::filesystem::path& datei, const Endspieltafel& t) {
    const auto& w = t.werte();
    if (!datei::ordnerOeffnen(datei::ordnerVon(datei), true)) return false;
    Bytes inhalt = kopf(t.index(), pruefsumme(w.data(), w.size()));
    inhalt.insert(inhalt.end(), w.begin(), w.end());
    return datei::ersetzen(datei, inhalt);
}

} // namespace fuh
