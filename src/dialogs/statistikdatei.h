#pragma once
// "QZ.sta": one record of seventeen 16-bit counters of played games.
#include <array>
#include <cstdint>
#include <filesystem>

#include "dialogs/oeffentlich.h"

namespace fuh {

inline constexpr const char* kStatistikdatei = "QZ.sta";

struct Statistik {
    std::array<int16_t, 17> zaehler{}; // in file order, offsets 0, 2, ... 32

    int16_t beendet() const { return zaehler[0]; }
    int16_t imLernmodus() const { return zaehler[1]; }
    int16_t pcSiegeFuchs(int s) const { return zaehler[2 + s]; }
    int16_t pcSiegeHennen(int s) const { return zaehler[5 + s]; }
    int16_t userSiegeFuchs(int s) const { return zaehler[8 + s]; }
    int16_t userSiegeHennen(int s) const { return zaehler[11 + s]; }
    int16_t gestartet() const { return zaehler[14]; }
    int16_t gelernt() const { return zaehler[15]; }
    int16_t gelerntLetztes() const { return zaehler[16]; }
};

// Reads record 1 (creating an empty file when missing); missing bytes read as 0.
Statistik statistikLesen(const std::filesystem::path& ordner);

// Counts a finished game: result `ergebnis` (1 hens, 2 foxes, 3 draw) under the given settings and the
// records the last merge appended. Counters stop at 32767. False when the file cannot be written.
bool statistik(const std::filesystem::path& ordner, int ergebnis, const Einstellungen& e, int16_t neueZuege);

// Counts a started game. False when the file cannot be written.
bool spielGestartet(const std::filesystem::path& ordner);

} // namespace fuh
