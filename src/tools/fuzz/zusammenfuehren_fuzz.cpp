// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// A finished game merged into any QZ3.DAT. The input's first byte says how many positions the game
// recorded, 15 bytes each follow (a board laid out like its code, the fox and the hen value), and the
// rest is the file. Afterwards the file must be exactly what a plain record-by-record merge gives: the
// first record of each position (or its mirror form) updated, unknown positions appended up to 32767
// records, every other byte as it was; no appended position may be in the file twice, and a recall of
// every position of the game must find what the file holds.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <unordered_map>
#include <vector>

#include "board/zahlen.h"
#include "fuzz_lernen.h"
#include "fuzz_ordner.h"

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

// Where the game's positions, in both forms, stand in a file: the first record holding each and how
// many do, found in one pass over the records (sorting every record's code would make big inputs crawl).
class Fundstellen {
  public:
    Fundstellen() = default;
    Fundstellen(const fuh::Partie& partie, const std::vector<uint8_t>& b, std::size_t saetze) {
        for (int k = 0; k < partie.spielzug; ++k) {
            const fuh::Code& c = partie.sits[static_cast<std::size_t>(k)].code;
            stellen_.try_emplace(c);
            stellen_.try_emplace(fuh::spiegelcode(c));
        }
        for (std::size_t r = 0; r < saetze; ++r)
            hinzufuegen(codeAn(b, r), r);
    }
    void hinzufuegen(const fuh::Code& c, std::size_t r) {
        const auto it = stellen_.find(c);
        if (it == stellen_.end()) return;
        it->second.erster = std::min(it->second.erster, r);
        ++it->second.anzahl;
    }
    // The first record holding `c` or its mirror form; SIZE_MAX when there is none.
    std::size_t erster(const fuh::Code& c) const {
        return std::min(stellen_.at(c).erster, stellen_.at(fuh::spiegelcode(c)).erster);
    }
    std::size_t anzahl(const fuh::Code& c) const { return stellen_.at(c).anzahl; }

  private:
    struct Stelle {
        std::size_t erster = SIZE_MAX;
        std::size_t anzahl = 0;
    };
    struct Streuung {
        std::size_t operator()(const fuh::Code& c) const noexcept {
            std::size_t h = 1469598103934665603u; // FNV-1a
            for (const uint8_t b : c)
                h = (h ^ b) * 1099511628211u;
            return h;
        }
    };
    std::unordered_map<fuh::Code, Stelle, Streuung> stellen_;
};

// What the merge must give; kept from input to input, so that big files are not allocated anew each time.
struct Erwartet {
    std::vector<uint8_t> datei;
    std::vector<std::size_t> angehaengt; // record numbers
    Fundstellen codes;                   // in the file afterwards

    // What a recall of `p` must give: the value of the first record holding it in either form.
    int16_t wert(const fuh::Code& p, bool henne) const {
        const std::size_t r = codes.erster(p);
        return r == SIZE_MAX ? 0 : le16(datei, r * kLernsatz + (henne ? 13 : 11));
    }
};

// The merge done the slow, obvious way on a copy of the bytes.
void zusammenfuehren(const uint8_t* vorher, std::size_t n, const fuh::Partie& partie, Erwartet& e) {
    std::size_t saetze = fuh::fuzz::satzzahl(std::min(n, kEigen));
    e.datei.assign(vorher, vorher + n);
    e.datei.resize(std::max(n, saetze * kLernsatz), 0);
    e.angehaengt.clear();
    e.codes = Fundstellen(partie, e.datei, saetze);
    std::size_t ende = n;
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
}

// The file as the merge left it, read into `puffer`.
void dateiInhalt(std::vector<uint8_t>& puffer) {
    const int fd = ::open((fuh::fuzz::ordner() / "QZ3.DAT").c_str(), O_RDONLY | O_CLOEXEC);
    struct stat st {};
    if (fd < 0 || ::fstat(fd, &st) != 0) std::abort();
    puffer.resize(static_cast<std::size_t>(st.st_size));
    if (::read(fd, puffer.data(), puffer.size()) != st.st_size) std::abort();
    ::close(fd);
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
    const uint8_t* vorher = daten + kopf;
    const std::size_t laenge = n - kopf;
    fuh::fuzz::alsDatei("QZ3.DAT", vorher, laenge);

    static Erwartet erwartet;
    zusammenfuehren(vorher, laenge, partie, erwartet);
    const fuh::Lerndatei::Merge m = lerndatei.speichern(partie, 2);
    static std::vector<uint8_t> nachher;
    dateiInhalt(nachher);
    if (!m.geschrieben || nachher != erwartet.datei ||
        m.neueZuege != static_cast<int16_t>(erwartet.angehaengt.size()))
        std::abort();
    // Whole records only, and never past the last record the file may hold.
    if (nachher.size() != laenge && (nachher.size() % kLernsatz != 0 || nachher.size() > kEigen))
        std::abort();
    // An appended position is nowhere else in the file, in neither form.
    if (!erwartet.angehaengt.empty()) {
        const Fundstellen codes(partie, nachher, fuh::fuzz::satzzahl(std::min(nachher.size(), kEigen)));
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
