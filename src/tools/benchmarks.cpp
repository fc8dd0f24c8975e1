// Benchmarks of the computer players and of whole games, on the same core as the game.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "game/spiel.h"
#include "memory/lerndatei.h"
#include "tools/protokoll_ansicht.h"
#include "tools/selbstspiel_lauf.h"

namespace {

namespace fs = std::filesystem;

struct Ordner {
    fs::path pfad = fs::temp_directory_path() / ("fuh-bench-" + std::to_string(::getpid()));
    Ordner() { fs::create_directories(pfad); }
    ~Ordner() { fs::remove_all(pfad); }
};

// A learned-move file of n records that never match, so every recall reads all of them.
void lerndateiFuellen(const fs::path& ordner, int n) {
    std::ofstream aus(ordner / fuh::lerndateiName(2), std::ios::binary);
    const std::string satz(fuh::kLernsatz, '\x41');
    for (int i = 0; i < n; ++i)
        aus << satz;
}

// The computer hens' opening: 20 candidate moves, each against a predicted fox reply.
void BM_Hennenzug(benchmark::State& state) {
    Ordner ordner;
    lerndateiFuellen(ordner.pfad, static_cast<int>(state.range(0)));
    const fuh::Oeffentlich* oeffentlich = nullptr;
    fuh::ProtokollAnsicht ansicht(oeffentlich, nullptr); // logs nothing
    fuh::Zufall zufall(1);
    fuh::Spiel spiel(ansicht, zufall, ordner.pfad);
    spiel.einstellungenFestlegen({1, static_cast<int16_t>(state.range(0) > 0 ? 2 : 0), 0, 0});
    for (auto _ : state)
        spiel.Neu_Click();
}
BENCHMARK(BM_Hennenzug)->Arg(0)->Arg(1000)->Arg(32767)->Unit(benchmark::kMillisecond);

// Whole computer-against-computer games, learning into a growing file.
void BM_Selbstspiel(benchmark::State& state) {
    Ordner ordner;
    fuh::Optionen o;
    o.spiele = 10;
    o.staerke = static_cast<int>(state.range(0));
    o.lernen = o.staerke > 1;
    for (auto _ : state) {
        std::ostringstream log;
        fuh::selbstspiel(o, 1, ordner.pfad, log);
    }
}
BENCHMARK(BM_Selbstspiel)->Arg(1)->Arg(3)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
