// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A progress line for long runs on a terminal, and the messages that must not collide with it.
#include <chrono>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

#include "tools/zeichen.h"

namespace fuh {

// "120/1000 Partien  Hennen 70  Füchse 40  Remis 10  85,3/s  noch 0:10": `stand` holds the results so far.
std::string fortschrittZeile(uint64_t gespielt, uint64_t gesamt, const std::string& stand,
                             std::chrono::duration<double> dauer);

// The columns of the terminal on file descriptor `fd`; 0 when it is none (a pipe, a file).
std::size_t terminalSpalten(int fd);

// Writes messages to `fehler`. On a terminal of `spalten` columns (0: none) it also keeps one progress line
// there, cut to fit: shown once a run has taken a few seconds, redrawn at most a few times a second,
// cleared before each message and at the end.
class Fortschritt {
  public:
    using Dauer = std::chrono::steady_clock::duration;

    Fortschritt(std::ostream& fehler, std::size_t spalten) : fehler_(fehler), spalten_(spalten) {}
    ~Fortschritt() { beenden(); }
    Fortschritt(const Fortschritt&) = delete;
    Fortschritt& operator=(const Fortschritt&) = delete;

    // After each game, with the time since the start. The last game clears the line.
    void melde(uint64_t gespielt, uint64_t gesamt, const std::string& stand, Dauer seitStart);
    // A line of its own.
    void meldung(const std::string& text);
    // Clears the progress line.
    void beenden();

  private:
    std::ostream& fehler_;
    std::size_t spalten_;
    std::size_t breite_ = 0; // characters of the line on screen, 0 when none is
    std::optional<Dauer> gezeigt_;
};

} // namespace fuh
