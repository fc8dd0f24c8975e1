// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// match: the Meister against strength 3, on each side, over games with fixed seeds. Prints the
// Meister's wins, losses and draws and its time per move (median and maximum).
//
//   match [--spiele N] [--bedenkzeit MS]
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "game/spiel.h"
#include "tools/protokoll_ansicht.h"

namespace {

namespace fs = std::filesystem;
using fuh::Ergebnis;

struct Bilanz {
    int siege = 0, niederlagen = 0, remis = 0;
    std::vector<double> zeiten; // ms per Meister move
};

// One game in a fresh state of `ordner`: the Meister plays `meisterHennen` ? the hens : the foxes.
void partie(bool meisterHennen, uint32_t seed, std::chrono::milliseconds bedenkzeit, const fs::path& ordner,
            Bilanz& b) {
    const fuh::Oeffentlich* oeffentlich = nullptr;
    fuh::ProtokollAnsicht ansicht(oeffentlich, nullptr);
    fuh::Zufall zufall(seed);
    fuh::Spiel spiel(ansicht, zufall, ordner);
    oeffentlich = &spiel.oeffentlich();
    spiel.einstellungenFestlegen({2, 2, 0, 0}); // both sides, strength 3, no learning
    fuh::Spielerwahl wahl;
    (meisterHennen ? wahl.hennen : wahl.fuchs) = fuh::Spieler{2, true};
    wahl.bedenkzeit = bedenkzeit;
    wahl.meisterSeed = seed;
    spiel.spielerFestlegen(wahl);
    spiel.schrittweise(true);
    spiel.Neu_Click();
    for (bool weiter = true; weiter;) {
        const bool meisterZieht = spiel.selbstspielHennenAmZug() == meisterHennen;
        const auto start = std::chrono::steady_clock::now();
        weiter = spiel.selbstspielZug();
        const std::chrono::duration<double, std::milli> dauer = std::chrono::steady_clock::now() - start;
        if (meisterZieht) b.zeiten.push_back(dauer.count());
    }
    const Ergebnis gewonnen = meisterHennen ? Ergebnis::hennen : Ergebnis::fuchs;
    const Ergebnis e = spiel.letztesErgebnis();
    if (e == gewonnen)
        ++b.siege;
    else if (e == Ergebnis::remis)
        ++b.remis;
    else
        ++b.niederlagen;
}

// Left-aligned in `breite` characters (not bytes: the names have umlauts).
std::string links(const std::string& text, std::size_t breite) {
    std::size_t zeichen = 0;
    for (unsigned char c : text)
        zeichen += (c & 0xC0) != 0x80;
    return text + std::string(breite > zeichen ? breite - zeichen : 0, ' ');
}

double median(std::vector<double> v) {
    if (v.empty()) return 0;
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
    int spiele = 200;
    long bedenkzeit = 400;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string a = argv[i];
        if (a == "--spiele") spiele = std::max(1, std::stoi(argv[i + 1]));
        if (a == "--bedenkzeit") bedenkzeit = std::clamp(std::stol(argv[i + 1]), 1L, 500L);
    }
    const fs::path ordner = fs::temp_directory_path() / ("fuh-match-" + std::to_string(::getpid()));
    fs::create_directories(ordner);
    std::printf("Meister gegen Stärke 3: %d Partien je Seite, Bedenkzeit %ld ms, Startwerte 1..%d\n\n",
                spiele, bedenkzeit, spiele);
    std::printf("%s %6s %12s %6s %10s %10s %8s\n", links("Meister spielt", 16).c_str(), "Siege",
                "Niederlagen", "Remis", "Median ms", "Max ms", "Züge");
    for (const bool hennen : {true, false}) {
        Bilanz b;
        for (int s = 1; s <= spiele; ++s)
            partie(hennen, static_cast<uint32_t>(s), std::chrono::milliseconds(bedenkzeit), ordner, b);
        const double hoechst = b.zeiten.empty() ? 0 : *std::max_element(b.zeiten.begin(), b.zeiten.end());
        std::printf("%s %6d %12d %6d %10.1f %10.1f %8zu\n",
                    links(hennen ? "die Hennen" : "die Füchse", 16).c_str(), b.siege, b.niederlagen, b.remis,
                    median(b.zeiten), hoechst, b.zeiten.size());
        std::fflush(stdout);
    }
    fs::remove_all(ordner);
    return 0;
}
