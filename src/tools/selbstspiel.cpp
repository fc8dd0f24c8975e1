// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// selbstspiel: the game without a window, for tests, learning runs and benchmarks.
#include <unistd.h>

#include <filesystem>
#include <iostream>

#include "tools/ausgabe.h"
#include "tools/fortschritt.h"
#include "tools/selbstspiel_programm.h"

int main(int argc, char** argv) {
    fuh::standardkanaeleSichern();
    std::ios::sync_with_stdio(false);
    const int status = fuh::selbstspielProgramm(
        std::vector<std::string>(argv + 1, argv + argc), std::filesystem::current_path(),
        {std::cout, std::cerr, isatty(1) == 1, fuh::terminalSpalten(2)});
    return fuh::ausgabeAbschliessen("selbstspiel", status, std::cout, std::cerr);
}
