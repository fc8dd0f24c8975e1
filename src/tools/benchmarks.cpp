// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Benchmarks of whole games, of a computer hen move and of filing a game, with empty and full learned-move
// files, on the same core as the game, and of the Meister's search. The ratios between the rows are what
// matters.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "board/regeln.h"
#include "board/zugliste.h"
#include "game/spiel.h"
#include "memory/lerndatei.h"
#include "player/meister.h"
#include "spieldaten/statistikdatei.h"
#include "tools/protokoll_ansicht.h"
#include "tools/selbstspiel_lauf.h"

namespace {

namespace fs = std::filesystem;

struct Ordner {
    static inline int zaehler = 0;
    fs::path pfad = fs::temp_directory_path() /
                    ("fuh-bench-" + std::to_string(::getpid()) + "-" + std::to_string(++zaehler));
    Ordner() {
        fs::remove_all(pfad);
        fs::create_directories(pfad);
    }
    ~Ordner() { fs::remove_all(pfad); }
    fs::path lerndatei() const { return pfad / fuh::lerndateiName(2); }
};

std::string lies(const fs::path& p) {
    std::ifstream ein(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
}

// The records one learning game at strength 3 leaves in an empty folder.
std::string lernsaetzeEinesSpiels() {
    Ordner o;
    fuh::Optionen opt;
    opt.spiele = 1;
    opt.staerke = 3;
    opt.lernen = true;
    std::ostringstream log;
    fuh::selbstspiel(opt, 1, o.pfad, log);
    return lies(o.lerndatei());
}

// A full learned-move file: the records of one game first, then distinct positions no game reaches.
void vollerLerndatei(const fs::path& datei) {
    std::string b = lernsaetzeEinesSpiels();
    std::mt19937 zufall(7);
    while (b.size() < static_cast<std::size_t>(fuh::kHoechsteSaetze) * fuh::kLernsatz) {
        for (int i = 0; i < 11; ++i)
            b += static_cast<char>(64 + zufall() % 64);
        b.append(4, '\0');
    }
    std::ofstream(datei, std::ios::binary) << b;
}

// The game's positions as a finished game holds them, taken from the records of one game.
fuh::Partie partieEinesSpiels() {
    const std::string b = lernsaetzeEinesSpiels();
    fuh::Partie p;
    for (std::size_t pos = 0; pos + 15 <= b.size() && p.spielzug < fuh::kSituationen; pos += 15) {
        fuh::Situation& s = p.sits[static_cast<std::size_t>(p.spielzug++)];
        std::copy(b.begin() + static_cast<long>(pos), b.begin() + static_cast<long>(pos) + 11,
                  s.code.begin());
        s.fuchswert = 3;
        s.hennenwert = -3;
    }
    return p;
}

// Args: strength (1 or 3) and records in the learned-move file at the start of each game (0 or 32767).
// One computer-against-computer game per iteration; the learning game files itself (merge, statistics).
void BM_Partie(benchmark::State& state) {
    Ordner ordner;
    const bool voll = state.range(1) > 0;
    if (voll) vollerLerndatei(ordner.lerndatei());
    fuh::Optionen o;
    o.spiele = 1;
    o.staerke = static_cast<int>(state.range(0));
    o.lernen = o.staerke > 1;
    for (auto _ : state) {
        if (!voll) {
            state.PauseTiming();
            fs::remove(ordner.lerndatei());
            state.ResumeTiming();
        }
        std::ostringstream log;
        fuh::selbstspiel(o, 1, ordner.pfad, log);
    }
}
BENCHMARK(BM_Partie)->Args({1, 0})->Args({3, 0})->Args({3, 32767})->Unit(benchmark::kMillisecond);

// Filing one finished game: the learned-move merge and the statistics update, fsync included.
void BM_Ablegen(benchmark::State& state) {
    Ordner ordner;
    const bool voll = state.range(0) > 0;
    if (voll) vollerLerndatei(ordner.lerndatei());
    const fuh::Partie partie = partieEinesSpiels();
    const fuh::Lerndatei lerndatei(ordner.pfad);
    const fuh::Einstellungen e{2, 2, 1, 0};
    for (auto _ : state) {
        if (!voll) {
            state.PauseTiming();
            fs::remove(ordner.lerndatei());
            state.ResumeTiming();
        }
        const auto merge = lerndatei.speichern(partie, 2);
        benchmark::DoNotOptimize(fuh::statistik(ordner.pfad, 1, e, merge.neueZuege));
    }
}
BENCHMARK(BM_Ablegen)->Arg(0)->Arg(32767)->Unit(benchmark::kMicrosecond);

// The first fox move a person could make in the running game: piece and square.
std::pair<int, int> fuchszug(const fuh::Spiel& spiel) {
    const fuh::Stellung& s = spiel.stellung();
    for (int k = 0; k < fuh::kFiguren; ++k) {
        const int von = s.figurplatz[k];
        for (int t = 0; von != 0 && t < fuh::kFelder; ++t)
            if (fuh::korrekterZug(s.Feld, fuh::Seite::Fuchs, spiel.sprungfolge(), fuh::feldX(von),
                                  fuh::feldY(von), fuh::feldX(t), fuh::feldY(t)))
                return {k, t};
    }
    return {-1, -1};
}

// Args: strength and records. The computer hens answer a human fox's first move (only the answer is timed).
void BM_Hennenzug(benchmark::State& state) {
    Ordner ordner;
    if (state.range(1) > 0) vollerLerndatei(ordner.lerndatei());
    // No statistics: counting each new game would sync a file in the untimed part of every iteration.
    fs::create_directory(ordner.pfad / fuh::kStatistikdatei);
    const fuh::Oeffentlich* oeffentlich = nullptr;
    fuh::ProtokollAnsicht ansicht(oeffentlich, nullptr); // logs nothing
    fuh::Zufall zufall(1);
    fuh::Spiel spiel(ansicht, zufall, ordner.pfad);
    oeffentlich = &spiel.oeffentlich();
    spiel.einstellungenFestlegen({1, static_cast<int16_t>(state.range(0) - 1), 0, 0});
    for (auto _ : state) {
        state.PauseTiming();
        spiel.neuesSpiel();
        const auto [k, t] = fuchszug(spiel);
        spiel.abgelegt(t, k);
        state.ResumeTiming();
        spiel.computerZieht();
    }
}
BENCHMARK(BM_Hennenzug)->Args({1, 0})->Args({3, 0})->Args({3, 32767})->Unit(benchmark::kMicrosecond);

// The position after the Meister has played `plies` half-moves against itself from the start, each
// searched to a small budget of positions, so that it is the same on every machine.
fuh::Brettfeld meisterStellung(int plies) {
    fuh::Stellung s;
    s.grundstellung();
    fuh::Brettfeld feld = s.Feld;
    fuh::Meister m(1);
    m.grenzen(2000, 0);
    for (int ply = 0; ply < plies; ++ply) {
        const int16_t seite = ply % 2 == 0 ? fuh::henne : fuh::fuchs;
        for (const fuh::Teilzug& z : m.berechne({feld, seite, ply, false}))
            fuh::teilzugAusfuehren(feld, z);
    }
    return feld;
}

// Args: half-moves played before (an even number: the hens move) and the budget of positions. One search
// per iteration; the rate of positions is the figure to compare.
void BM_Meister(benchmark::State& state) {
    const int plies = static_cast<int>(state.range(0));
    const fuh::Brettfeld feld = meisterStellung(plies);
    uint64_t knoten = 0;
    for (auto _ : state) {
        state.PauseTiming(); // a fresh table of positions, as a new game has
        fuh::Meister m(1);
        m.grenzen(static_cast<uint64_t>(state.range(1)), 0);
        state.ResumeTiming();
        benchmark::DoNotOptimize(m.berechne({feld, fuh::henne, plies, false}));
        knoten += m.bericht().knoten;
    }
    state.counters["Stellungen/s"] =
        benchmark::Counter(static_cast<double>(knoten), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_Meister)->Args({0, 200000})->Args({40, 200000})->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
