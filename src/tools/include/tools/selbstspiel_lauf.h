// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Plays whole games without a window: the computer against itself or against a random human.
#include <array>
#include <cstdint>
#include <filesystem>
#include <ostream>
#include <string>

#include "tools/selbstspiel_optionen.h"

namespace fuh {

struct Summe {
    uint64_t spiele = 0;
    std::array<uint64_t, 4> nachErgebnis{}; // 0 abandoned, 1 hens, 2 foxes, 3 draw
    uint64_t nichtGespeichert = 0;          // messages about files that could not be saved
};

// What a run reports besides its log, as it happens.
class Beobachter {
  public:
    virtual ~Beobachter() = default;
    // The game's message naming the files that could not be saved just now.
    virtual void nichtGespeichert(const std::string& meldung) = 0;
    virtual void partieGespielt(const Summe& bisher) = 0;
};

// Runs the games in `ordner`; the log goes to `aus` when the options ask for it, the summary always.
// Throws std::runtime_error when --fortsetzen-pruefen cannot save the game or read it back.
Summe selbstspiel(const Optionen& o, uint32_t seed, const std::filesystem::path& ordner, std::ostream& aus,
                  Beobachter* beobachter = nullptr);

} // namespace fuh
