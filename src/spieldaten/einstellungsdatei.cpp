// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "spieldaten/einstellungsdatei.h"

#include <array>

#include "dateischicht/satzdatei.h"

namespace fuh {

namespace {
// The four settings in file order, 16 bits each.
constexpr std::size_t kFelder = 4;
constexpr std::size_t kSatz = 2 * kFelder;

std::array<int16_t*, kFelder> felder(Einstellungen& e) {
    return {&e.PC, &e.Staerke, &e.Lernmodus, &e.Einzelzug};
}
} // namespace

void einstellungenLesen(const std::filesystem::path& ordner, Einstellungen& e) {
    const auto inhalt = dateiLesen(datenpfad(ordner, kEinstellungsdatei), kSatz);
    // The record count is the length divided by the record size, rounded half to even: up to four
    // bytes there is no record, from five bytes on the (partial) first record counts.
    if (!inhalt || inhalt->size() <= kSatz / 2) {
        e.PC = 0;
        e.Lernmodus = 0;
        e.Einzelzug = 0;
        return; // Staerke keeps the value the game started with
    }
    const auto f = felder(e);
    for (std::size_t i = 0; i < f.size(); ++i)
        *f[i] = le16(*inhalt, 2 * i);
}

bool einstellungenSchreiben(const std::filesystem::path& ordner, const Einstellungen& e) {
    return dateiFortschreiben(datenpfad(ordner, kEinstellungsdatei), kSatz, [&](Bytes& inhalt) {
        Einstellungen werte = e;
        const auto f = felder(werte);
        for (std::size_t i = 0; i < f.size(); ++i)
            setzeLe16(inhalt, 2 * i, *f[i]);
        return true;
    });
}

} // namespace fuh
