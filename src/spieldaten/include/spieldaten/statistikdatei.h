// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// "QZ.sta": one record of seventeen 16-bit counters of played games.
#include <array>
#include <cstdint>
#include <filesystem>

#include "spieldaten/oeffentlich.h"

namespace fuh {

inline constexpr const char* kStatistikdatei = "QZ.sta";

// Where each counter stands in the record (counter i at byte 2 i); the wins are three counters each,
// one per strength.
struct Zaehlerstelle {
    static constexpr std::size_t beendet = 0, imLernmodus = 1, pcSiegeFuchs = 2, pcSiegeHennen = 5,
                                 userSiegeFuchs = 8, userSiegeHennen = 11, gestartet = 14, gelernt = 15,
                                 gelerntLetztes = 16, anzahl = 17;
};

struct Statistik {
    std::array<int16_t, Zaehlerstelle::anzahl> zaehler{}; // in file order

    int16_t beendet() const { return zaehler[Zaehlerstelle::beendet]; }
    int16_t imLernmodus() const { return zaehler[Zaehlerstelle::imLernmodus]; }
    int16_t pcSiegeFuchs(int s) const { return zaehler[Zaehlerstelle::pcSiegeFuchs + s]; }
    int16_t pcSiegeHennen(int s) const { return zaehler[Zaehlerstelle::pcSiegeHennen + s]; }
    int16_t userSiegeFuchs(int s) const { return zaehler[Zaehlerstelle::userSiegeFuchs + s]; }
    int16_t userSiegeHennen(int s) const { return zaehler[Zaehlerstelle::userSiegeHennen + s]; }
    int16_t gestartet() const { return zaehler[Zaehlerstelle::gestartet]; }
    int16_t gelernt() const { return zaehler[Zaehlerstelle::gelernt]; }
    int16_t gelerntLetztes() const { return zaehler[Zaehlerstelle::gelerntLetztes]; }
};

// Reads record 1 (creating an empty file when missing); missing bytes read as 0.
Statistik statistikLesen(const std::filesystem::path& ordner);

// Counts a finished game: result `ergebnis` (1 hens, 2 foxes, 3 draw) under the given settings and the
// records the last merge appended. Counters stop at 32767. False when the file cannot be written.
bool statistik(const std::filesystem::path& ordner, int ergebnis, const Einstellungen& e, int16_t neueZuege);

// Counts a started game. False when the file cannot be written.
bool spielGestartet(const std::filesystem::path& ordner);
// Counts a finished game of two people: no win or learning counter fits it.
bool zweiSpielerBeendet(const std::filesystem::path& ordner);

} // namespace fuh
