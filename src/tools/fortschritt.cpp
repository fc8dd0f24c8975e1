// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/fortschritt.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>

namespace fuh {

namespace {
using namespace std::chrono_literals;
constexpr auto kErstNach = 2s;      // short runs stay silent
constexpr auto kHoechstens = 250ms; // between two redraws

// One decimal, German style: "85,3".
std::string dezimal(double wert) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", wert);
    std::string s = text;
    for (char& c : s)
        if (c == '.') c = ',';
    return s;
}

// "0:07", "12:34", "1:02:03".
std::string uhrzeit(uint64_t sekunden) {
    char text[48];
    const auto h = sekunden / 3600, m = sekunden / 60 % 60, s = sekunden % 60;
    if (h > 0)
        std::snprintf(text, sizeof text, "%llu:%02llu:%02llu", static_cast<unsigned long long>(h),
                      static_cast<unsigned long long>(m), static_cast<unsigned long long>(s));
    else
        std::snprintf(text, sizeof text, "%llu:%02llu", static_cast<unsigned long long>(m),
                      static_cast<unsigned long long>(s));
    return text;
}
} // namespace

std::string fortschrittZeile(uint64_t gespielt, uint64_t gesamt, const std::string& stand,
                             std::chrono::duration<double> dauer) {
    std::string zeile = std::to_string(gespielt) + "/" + std::to_string(gesamt) + " Partien  " + stand;
    if (gespielt == 0 || dauer.count() <= 0) return zeile;
    const double jeSekunde = static_cast<double>(gespielt) / dauer.count();
    zeile += jeSekunde >= 1 ? "  " + dezimal(jeSekunde) + "/s" : "  " + dezimal(1 / jeSekunde) + " s/Partie";
    const double rest = static_cast<double>(gesamt > gespielt ? gesamt - gespielt : 0) / jeSekunde;
    return zeile + "  noch " + uhrzeit(static_cast<uint64_t>(std::llround(rest)));
}

std::size_t terminalSpalten(int fd) {
    if (isatty(fd) != 1) return 0;
    winsize w{};
    return ioctl(fd, TIOCGWINSZ, &w) == 0 && w.ws_col > 0 ? w.ws_col : 80; // 80 when it does not say
}

void Fortschritt::melde(uint64_t gespielt, uint64_t gesamt, const std::string& stand, Dauer seitStart) {
    if (gespielt >= gesamt) return beenden(); // gone before the program prints its result
    if (spalten_ == 0 || seitStart < kErstNach || (gezeigt_ && seitStart - *gezeigt_ < kHoechstens)) return;
    gezeigt_ = seitStart;
    // One column short of the width: a full row would wrap, and '\r' only returns within a row.
    const std::string zeile = vorne(fortschrittZeile(gespielt, gesamt, stand, seitStart), spalten_ - 1);
    const std::size_t breite = zeichen(zeile);
    fehler_ << '\r' << zeile << std::string(breite_ > breite ? breite_ - breite : 0, ' ') << std::flush;
    breite_ = breite;
}

void Fortschritt::meldung(const std::string& text) {
    beenden();
    fehler_ << text << '\n' << std::flush;
}

void Fortschritt::beenden() {
    if (breite_ == 0) return;
    fehler_ << '\r' << std::string(breite_, ' ') << '\r' << std::flush;
    breite_ = 0;
}

} // namespace fuh
