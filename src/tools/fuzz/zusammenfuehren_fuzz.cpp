// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// A finished game merged into any QZ3.DAT. The input's first byte says how many positions the game
// recorded, 15 bytes each follow (a board laid out like its code, the fox and the hen value), and the
// rest is the file. Afterwards the file must be exactly what a plain record-by-record merge gives: the
// first record of each position (or its mirror form) updated, unknown positions appended up to 32767
// records, every other byte as it was; no appended position may be in the file twice, and a recall of
// every position of the game must find what the file holds.
// (The slow merge finds records through a sorted list: a plain scan per recall would make big inputs crawl.)
#include <fcntl.h>
#include <unistd.h>

#include <map>
#include <vector>

#include "board/zahlen.h"
#include "fuzz_lernen.h"
#include "fuzz_ordner.h"
#include "memory/satzdatei.h"

namespace {

using fuh::kLernsatz;

constexpr std::size_t kEigen = static_cast<std::size_t>(fuh::kHoechsteSaetze) * kLernsatz;

// The code of record `r`; bytes past the end of a last, partial record read as 0.
fuh::Code codeAn(const std::vector<uint8_t>& b, std::size_t r) {
    fuh::Code c{};
    const std::size_t pos = r * kLernsatz;
    std::copy_n(b.begin() + static_cast<long>(pos), std::min(c.size(), b.size() - pos), c.begin());
    return c;
}

int16_t le16(const std::vector<uint8_t>& b, std::size_t pos) {
    const unsigned lo = pos < b.size() ? b[pos] : 0u;
    const unsigned hi = pos + 1 < b.size() ? b[pos + 1] : 0u;
    return static_cast<int16_t>(lo | (hi << 8));
}

void addiere(std::vector<uint8_t>& b, std::size_t pos, int16_t wert) {
    const auto summe =
        static_cast<uint16_t>(fuh::sat16(static_cast<int16_t>(b[pos] | (b[pos + 1] << 8)) + wert));
    b[pos] = static_cast<uint8_t>(summe & 0xFF);
    b[pos + 1] = static_cast<uint8_t>(summe >> 8);
}

// Where each code stands in a file: its records sorted once by code and number, and records added since.
class Codeliste {
  public:
    Codeliste(const std::vector<uint8_t>& b, std::size_t saetze) {
        liste_.reserve(saetze);
        for (std::size_t r = 0; r < saetze; ++r)
            liste_.emplace_back(codeAn(b, r), r);
        std::sort(liste_.begin(), liste_.end());
    }
    void hinzufuegen(const fuh::Code& c, std::size_t r) { neu_.emplace(c, r); }
    // The first record holding `c` or its mirror form; SIZE_MAX when there is none.
    std::size_t erster(const fuh::Code& c) const {
        return std::min(ersterGenau(c), ersterGenau(fuh::spiegelcode(c)));
    }
    std::size_t anzahl(const fuh::Code& c) const {
        const auto [von, bis] = bereich(c);
        return static_cast<std::size_t>(bis - von) + neu_.count(c);
    }

  private:
    using Eintrag = std::pair<fuh::Code, std::size_t>;
    std::pair<std::vector<Eintrag>::const_iterator, std::vector<Eintrag>::const_iterator>
    bereich(const fuh::Code& c) const {
        return {std::lower_bound(liste_.begin(), liste_.end(), Eintrag{c, 0}),
                std::lower_bound(liste_.begin(), liste_.end(), Eintrag{c, SIZE_MAX})};
    }
    std::size_t ersterGenau(const fuh::Code& c) const {
        const auto [von, bis] = bereich(c);
        const auto n = neu_.find(c);
        return std::min(von != bis ? von->second : SIZE_MAX, n != neu_.end() ? n->second : SIZE_MAX);
    }
    std::vector<Eintrag> liste_;
    std::map<fuh::Code, std::size_t> neu_;
};

struct Erwartet {
    std::vector<uint8_t> datei;
    std::vector<std::size_t> angehaengt; // record numbers
    Codeliste codes;                     // of the file afterwards

    // What a recall of `p` must give: the value of the first record holding it in either form.
    int16_t wert(const fuh::Code& p, bool henne) const {
        const std::size_t r = codes.erster(p);
        return r == SIZE_MAX ? 0 : le16(datei, r * kLernsatz + (henne ? 13 : 11));
    }
};

// The merge done the slow, obvious way on a copy of the bytes.
Erwartet zusammenfuehren(const std::vector<uint8_t>& vorher, const fuh::Partie& partie) {
    std::size_t saetze = fuh::fuzz::satzzahl(std::min(vorher.size(), kEigen));
    std::vector<uint8_t> datei = vorher;
    datei.resize(std::max(vorher.size(), saetze * kLernsatz), 0);
    Codeliste codes(datei, saetze);
    Erwartet e{std::move(datei), {}, std::move(codes)};
    std::size_t ende = vorher.size();
    for (int k = 0; k < partie.spielzug; ++k) {
        const fuh::Situation& s = partie.sits[static_cast<std::size_t>(k)];
        std::size_t r = e.codes.erster(s.code);
        if (r == SIZE_MAX) {
            if (saetze == static_cast<std::size_t>(fuh::kHoechsteSaetze)) continue;
            r = saetze++;
            e.datei.resize(std::max(e.datei.size(), saetze * kLernsatz), 0);
            std::fill_n(e.datei.begin() + static_cast<long>(r * kLernsatz), kLernsatz, 0);
            std::copy(s.code.begin(), s.code.end(), e.datei.begin() + static_cast<long>(r * kLernsatz));
            e.codes.hinzufuegen(s.code, r);
            e.angehaengt.push_back(r);
        }
        addiere(e.datei, r * kLernsatz + 11, s.fuchswert);
        addiere(e.datei, r * kLernsatz + 13, s.hennenwert);
        ende = std::max(ende, (r + 1) * kLernsatz);
    }
    e.datei.resize(ende);
    return e;
}

std::vector<uint8_t> dateiInhalt() {
    const auto inhalt = fuh::dateiLesen(fuh::fuzz::ordner() / "QZ3.DAT");
    if (!inhalt) std::abort();
    return *inhalt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, std::size_t n) {
    static const fuh::Lerndatei lerndatei(fuh::fuzz::ordner());
    if (n == 0) return 0;
    const std::size_t positionen =
        std::min<std::size_t>(daten[0] % (fuh::kSituationen + 1), (n - 1) / kLernsatz);
    fuh::Partie partie;
    std::vector<fuh::Brettfeld> felder;
    for (std::size_t k = 0; k < positionen; ++k) {
        const uint8_t* d = daten + 1 + k * kLernsatz;
        felder.push_back(fuh::fuzz::feldAus(d, 11));
        fuh::Situation& s = partie.sits[k];
        s.code = fuh::positionscode(felder.back());
        s.fuchswert = static_cast<int16_t>(d[11] | (d[12] << 8));
        s.hennenwert = static_cast<int16_t>(d[13] | (d[14] << 8));
    }
    partie.spielzug = static_cast<int16_t>(positionen);
    const std::size_t kopf = 1 + positionen * kLernsatz;
    const std::vector<uint8_t> vorher(daten + kopf, daten + n);
    fuh::fuzz::alsDatei("QZ3.DAT", vorher.data(), vorher.size());

    const Erwartet erwartet = zusammenfuehren(vorher, partie);
    const fuh::Lerndatei::Merge m = lerndatei.speichern(partie, 2);
    const std::vector<uint8_t> nachher = dateiInhalt();
    if (!m.geschrieben || nachher != erwartet.datei ||
        m.neueZuege != static_cast<int16_t>(erwartet.angehaengt.size()))
        std::abort();
    // Whole records only, and never past the last record the file may hold.
    if (nachher.size() != vorher.size() && (nachher.size() % kLernsatz != 0 || nachher.size() > kEigen))
        std::abort();
    // An appended position is nowhere else in the file, in neither form.
    if (!erwartet.angehaengt.empty()) {
        const Codeliste codes(nachher, fuh::fuzz::satzzahl(std::min(nachher.size(), kEigen)));
        for (const std::size_t r : erwartet.angehaengt) {
            const fuh::Code c = codeAn(nachher, r);
            const fuh::Code s = fuh::spiegelcode(c);
            if (codes.anzahl(c) != 1 || (s != c && codes.anzahl(s) != 0)) std::abort();
        }
    }
    for (const fuh::Brettfeld& f : felder)
        for (const int16_t figur : {fuh::henne, fuh::fuchs})
            if (lerndatei.erinnern(f, figur, 2, fuh::Partie{}) !=
                erwartet.wert(fuh::positionscode(f), figur == fuh::henne))
                std::abort();
    return 0;
}
