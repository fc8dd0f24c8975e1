#include "memory/lerndatei.h"

#include <algorithm>

#include "board/zahlen.h"

namespace fuh {

namespace {
constexpr std::size_t kFuchswert = 11;
constexpr std::size_t kHennenwert = 13;
// The part of the file a merge can reach; records beyond it are never read.
constexpr std::size_t kDateiHoechstens = static_cast<std::size_t>(kHoechsteSaetze) * kLernsatz;

// Number of records: the length divided by 15, rounded to the nearest whole number.
int satzzahl(std::size_t laenge) {
    return static_cast<int>(std::min<std::size_t>((laenge + kLernsatz / 2) / kLernsatz, kHoechsteSaetze));
}

// The code of record r (from 0); bytes past the end of a partial record read as 0.
bool codePasst(const Bytes& b, int r, const Code& p, const Code& m) {
    Code c{};
    const std::size_t start = static_cast<std::size_t>(r) * kLernsatz;
    for (std::size_t i = 0; i < c.size(); ++i)
        c[i] = start + i < b.size() ? b[start + i] : 0;
    return c == p || c == m;
}

int findeSatz(const Bytes& b, int n, const Code& p, const Code& m) {
    for (int r = 0; r < n; ++r)
        if (codePasst(b, r, p, m)) return r;
    return -1;
}
} // namespace

const char* lerndateiName(int Staerke) {
    return Staerke == 1 ? "QZ2.DAT" : "QZ3.DAT";
}

Lerndatei::Merge Lerndatei::speichern(const Partie& partie, int Staerke) const {
    Merge ergebnis;
    const int saetze = std::clamp<int>(partie.spielzug, 0, kSituationen);
    ergebnis.geschrieben =
        dateiFortschreiben(datenpfad(ordner_, lerndateiName(Staerke)), kDateiHoechstens, [&](Bytes& b) {
            int n = satzzahl(b.size());
            for (int k = 0; k < saetze; ++k) {
                const Situation& sit = partie.sits[k];
                const int r = findeSatz(b, n, sit.code, spiegelcode(sit.code));
                const std::size_t pos = static_cast<std::size_t>(r < 0 ? n : r) * kLernsatz;
                if (r >= 0) {
                    setzeLe16(b, pos + kFuchswert, sat16(le16(b, pos + kFuchswert) + sit.fuchswert));
                    setzeLe16(b, pos + kHennenwert, sat16(le16(b, pos + kHennenwert) + sit.hennenwert));
                } else if (n < kHoechsteSaetze) {
                    setzeBytes(b, pos, sit.code.data(), sit.code.size());
                    setzeLe16(b, pos + kFuchswert, sit.fuchswert);
                    setzeLe16(b, pos + kHennenwert, sit.hennenwert);
                    ++n;
                    ++ergebnis.neueZuege;
                }
            }
            return saetze > 0;
        });
    if (!ergebnis.geschrieben) ergebnis.neueZuege = 0;
    return ergebnis;
}

int16_t Lerndatei::erinnern(const Brettfeld& Feld, int16_t figur, int Staerke, const Partie& partie) const {
    const Code p = positionscode(Feld);
    int16_t ergebnis = 0;
    if (Staerke >= 1) {
        const auto inhalt = dateiLesen(datenpfad(ordner_, lerndateiName(Staerke)), kDateiHoechstens);
        if (inhalt) {
            const int r = findeSatz(*inhalt, satzzahl(inhalt->size()), p, spiegelcode(p));
            if (r >= 0) {
                const std::size_t pos = static_cast<std::size_t>(r) * kLernsatz;
                ergebnis = le16(*inhalt, pos + (figur == henne ? kHennenwert : kFuchswert));
            }
        }
    }
    for (int k = 1; k <= kWiederholungsTiefe; ++k)
        if (partie.spielzug >= k && partie.spielzug - k < kSituationen &&
            partie.sits[partie.spielzug - k].code == p)
            ergebnis = kWiederholung;
    return ergebnis;
}

} // namespace fuh
