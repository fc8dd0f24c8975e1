// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "spieldaten/statistikdatei.h"

#include "board/zahlen.h"
#include "dateischicht/satzdatei.h"

namespace fuh {

namespace {

constexpr std::size_t kZaehler = Zaehlerstelle::anzahl;

void addiere(int16_t& z, int n) {
    z = sat16(z + n); // a long-used file must not wrap around to negative numbers
}

Statistik auslesen(const Bytes& b) {
    Statistik s;
    for (std::size_t i = 0; i < kZaehler; ++i)
        s.zaehler[i] = le16(b, 2 * i);
    return s;
}

// Lets `aendern` update the counters and writes them back over the first record.
template <class F> bool fortschreiben(const std::filesystem::path& ordner, F aendern) {
    return dateiFortschreiben(datenpfad(ordner, kStatistikdatei), 2 * kZaehler, [&](Bytes& inhalt) {
        Statistik s = auslesen(inhalt);
        aendern(s.zaehler);
        for (std::size_t i = 0; i < kZaehler; ++i)
            setzeLe16(inhalt, 2 * i, s.zaehler[i]);
        return true;
    });
}

} // namespace

Statistik statistikLesen(const std::filesystem::path& ordner) {
    const auto inhalt = dateiLesen(datenpfad(ordner, kStatistikdatei), 2 * kZaehler);
    return inhalt ? auslesen(*inhalt) : Statistik{};
}

bool statistik(const std::filesystem::path& ordner, int ergebnis, const Einstellungen& e, int16_t neueZuege) {
    return fortschreiben(ordner, [&](std::array<int16_t, kZaehler>& z) {
        addiere(z[Zaehlerstelle::beendet], 1);
        if (e.Lernmodus == 1) {
            addiere(z[Zaehlerstelle::imLernmodus], 1);
            addiere(z[Zaehlerstelle::gelernt], neueZuege);
            z[Zaehlerstelle::gelerntLetztes] = neueZuege;
        }
        // Settings come unchecked from QZ.INI; an unknown strength counts the game but no win.
        if (e.Staerke < 0 || e.Staerke > 2) return;
        const auto s = static_cast<std::size_t>(e.Staerke);
        if (ergebnis == 2 && (e.PC == 0 || e.PC == 2))
            addiere(z[Zaehlerstelle::pcSiegeFuchs + s], 1);
        else if (ergebnis == 1 && e.PC == 0)
            addiere(z[Zaehlerstelle::userSiegeHennen + s], 1);
        else if (ergebnis == 1 && (e.PC == 1 || e.PC == 2))
            addiere(z[Zaehlerstelle::pcSiegeHennen + s], 1);
        else if (ergebnis == 2 && e.PC == 1)
            addiere(z[Zaehlerstelle::userSiegeFuchs + s], 1);
    });
}

bool spielGestartet(const std::filesystem::path& ordner) {
    return fortschreiben(ordner,
                         [](std::array<int16_t, kZaehler>& z) { addiere(z[Zaehlerstelle::gestartet], 1); });
}

bool zweiSpielerBeendet(const std::filesystem::path& ordner) {
    return fortschreiben(ordner,
                         [](std::array<int16_t, kZaehler>& z) { addiere(z[Zaehlerstelle::beendet], 1); });
}

} // namespace fuh
