// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// selbstspiel: the game without a window, for tests, learning runs and benchmarks.
#include <ctime>
#include <exception>
#include <filesystem>
#include <iostream>

#include "tools/selbstspiel_lauf.h"

namespace {
uint32_t sekundenSeitMitternacht() {
    const std::time_t jetzt = std::time(nullptr);
    std::tm lokal{};
    localtime_r(&jetzt, &lokal);
    return static_cast<uint32_t>(lokal.tm_hour * 3600 + lokal.tm_min * 60 + lokal.tm_sec);
}
} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    std::string fehler;
    const auto optionen = fuh::optionenLesen(std::vector<std::string>(argv + 1, argv + argc), fehler);
    if (!optionen) {
        std::cerr << "selbstspiel: " << fehler << '\n';
        return 2;
    }
    try {
        fuh::selbstspiel(*optionen, optionen->seed.value_or(sekundenSeitMitternacht()),
                         std::filesystem::current_path(), std::cout);
    } catch (const std::exception& e) {
        std::cout.flush();
        std::cerr << "selbstspiel: " << e.what() << '\n';
        return 1;
    }
    std::cout.flush();
    return 0;
}
