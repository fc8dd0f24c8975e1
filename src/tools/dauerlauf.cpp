// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// dauerlauf: many learning games at strength 3 in one folder, then checks that the files still hold
// what they must. Prints time, records and resident memory after every block of games.
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>
#include <string>

#include "memory/lerndatei.h"
#include "memory/positionscode.h"
#include "spieldaten/statistikdatei.h"
#include "tools/befehlszeile.h"
#include "tools/selbstspiel_lauf.h"

namespace {

namespace fs = std::filesystem;

long residentKiB() {
    std::ifstream ein("/proc/self/statm");
    long gesamt = 0, resident = 0;
    ein >> gesamt >> resident;
    return resident * (::sysconf(_SC_PAGESIZE) / 1024);
}

// Records of the learned-move file, or -1 when it is not 15 x N bytes with N <= 32767 and no position
// stored twice (up to the mirror form).
long gueltigeSaetze(const fs::path& datei) {
    std::ifstream ein(datei, std::ios::binary);
    const std::string b{std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
    if (b.size() % fuh::kLernsatz != 0 || b.size() / fuh::kLernsatz > fuh::kHoechsteSaetze) return -1;
    std::set<fuh::Code> gesehen;
    for (std::size_t pos = 0; pos < b.size(); pos += fuh::kLernsatz) {
        fuh::Code c;
        std::copy(b.begin() + static_cast<long>(pos), b.begin() + static_cast<long>(pos) + 11, c.begin());
        if (gesehen.count(c) || gesehen.count(fuh::spiegelcode(c))) return -1;
        gesehen.insert(c);
    }
    return static_cast<long>(gesehen.size());
}

} // namespace

int main(int argc, char** argv) {
    const auto anzahl = argc > 1 ? fuh::zahlLesen(argv[1], 1, 100000000) : std::optional<uint64_t>{10000};
    if (argc > 2 || !anzahl) {
        std::fprintf(
            stderr, "dauerlauf: die Zahl der Spiele muss 1 bis 100000000 sein\nAufruf: dauerlauf [SPIELE]\n");
        return fuh::kAufruffehler;
    }
    const long spiele = static_cast<long>(*anzahl);
    const fs::path ordner = fs::temp_directory_path() / ("fuh-dauerlauf-" + std::to_string(::getpid()));
    fs::create_directories(ordner);
    fuh::Optionen o;
    o.staerke = 3;
    o.lernen = true;
    const long block = 1000;
    const auto start = std::chrono::steady_clock::now();
    long gespielt = 0, speicherStart = 0, speicherEnde = 0;
    std::printf("%8s %9s %8s %12s\n", "Spiele", "Sekunden", "Saetze", "Resident/KiB");
    while (gespielt < spiele) {
        o.spiele = static_cast<uint64_t>(std::min(block, spiele - gespielt));
        std::ostringstream log;
        fuh::selbstspiel(o, static_cast<uint32_t>(gespielt + 1), ordner, log);
        gespielt += static_cast<long>(o.spiele);
        speicherEnde = residentKiB();
        if (speicherStart == 0) speicherStart = speicherEnde;
        const double s = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        const auto n = fs::file_size(ordner / "QZ3.DAT") / fuh::kLernsatz;
        std::printf("%8ld %9.1f %8ju %12ld\n", gespielt, s, static_cast<uintmax_t>(n), speicherEnde);
        std::fflush(stdout);
    }
    const long saetze = gueltigeSaetze(ordner / "QZ3.DAT");
    const fuh::Statistik st = fuh::statistikLesen(ordner);
    const long erwartet = std::min<long>(spiele, 32767);
    bool gut = true;
    auto pruefe = [&](bool ok, const char* was) {
        std::printf("%-58s %s\n", was, ok ? "ok" : "FEHLER");
        gut = gut && ok;
    };
    pruefe(saetze >= 0, "Lerndatei: 15 x N Bytes, N <= 32767, keine Stellung doppelt");
    pruefe(st.gestartet() == erwartet && st.beendet() == erwartet && st.imLernmodus() == erwartet,
           "Statistik: jedes Spiel gestartet, beendet, im Lernmodus");
    pruefe(st.gelernt() == saetze, "Statistik: gelernte Saetze = Saetze der Lerndatei");
    pruefe(speicherEnde - speicherStart < 4096, "Resident bleibt flach (weniger als 4 MiB Zuwachs)");
    fs::remove_all(ordner);
    return gut ? 0 : 1;
}
