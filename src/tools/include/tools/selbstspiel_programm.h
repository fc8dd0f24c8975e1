// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The selbstspiel program as a function: command line, games, messages and exit status.
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

namespace fuh {

// Where the program writes, and which of its streams are terminals.
struct Konsole {
    std::ostream& aus;
    std::ostream& fehler;
    bool ausTerminal = false;
    std::size_t fehlerSpalten = 0; // the width of `fehler` when it is a terminal, else 0
};

// Exit status of a run in which a file could not be saved.
inline constexpr int kNichtGespeichert = 1;

// Plays in `ordner` as the arguments (without the program's name) ask. Each file message is named once
// on `fehler`; a long run shows its progress there when it is a terminal. Returns the exit status.
int selbstspielProgramm(const std::vector<std::string>& args, const std::filesystem::path& ordner, Konsole k);

} // namespace fuh
