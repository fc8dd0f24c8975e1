// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The command line of the headless programs: a table of options read with getopt_long (GNU
// conventions: `--opt value`, `--opt=value`, `--` ends the options), with --help and --version built in.
#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace fuh {

// Takes an option's value (empty for a flag) into its target; false when the value is not acceptable.
using Setzer = std::function<bool(const std::string&)>;

struct Option {
    std::string lang;  // without the dashes
    char kurz = 0;     // 0: no short form
    std::string wert;  // the value's name in the usage ("N"); empty for a flag
    std::string hilfe; // one line for --help
    Setzer setzen;
};

struct Programm {
    std::string name;
    std::string zweck;    // what it does, for --help
    std::string nachwort; // after the options in --help
    std::vector<Option> optionen;
};

// Exit statuses of a command line that ends the program at once.
inline constexpr int kAufrufErledigt = 0; // --help or --version printed
inline constexpr int kAufruffehler = 2;

// Reads `args` (without the program's name) into the options' targets. Returns the exit status when the
// program has to end now: --help and --version print to `aus`; a wrong option or value prints one line
// naming it and the usage to `fehler`. Returns nullopt when the program should run.
std::optional<int> befehlszeileLesen(const Programm& p, const std::vector<std::string>& args,
                                     std::ostream& aus, std::ostream& fehler);

// A command line whose options do not fit together: one line naming why, and the usage. Returns the
// exit status.
int aufrufFehler(const Programm& p, const std::string& grund, std::ostream& fehler);

// A plain decimal number from `von` to `bis` (no sign, no blanks; any length is safe).
std::optional<uint64_t> zahlLesen(const std::string& s, uint64_t von, uint64_t bis);

Setzer schalter(bool& ziel);

template <typename T> Setzer zahl(T& ziel, uint64_t von, uint64_t bis) {
    return [&ziel, von, bis](const std::string& s) {
        const auto v = zahlLesen(s, von, bis);
        if (v) ziel = static_cast<T>(*v);
        return v.has_value();
    };
}

} // namespace fuh
