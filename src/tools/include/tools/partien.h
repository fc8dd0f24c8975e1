// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// selbstspiel's game files: each game played written as a file, and a file played through again.
#include <cstdint>
#include <filesystem>
#include <optional>
#include <ostream>
#include <string>

namespace fuh {

class Spiel;

// Writes the game as "spiel-N.fuh" in `ordner`; the file's name when it could not be written.
std::optional<std::string> partieAblegen(const std::filesystem::path& ordner, const Spiel& spiel, uint64_t n);

// Replays the game file `datei` and writes that game's log lines (spiel, zug, meldung, liste, ende) to
// `aus`; nothing is written to `ordner`. The reason on `fehler` and false when the file is refused.
bool partieNachspielen(const std::filesystem::path& datei, const std::filesystem::path& ordner,
                       std::ostream& aus, std::ostream& fehler);

} // namespace fuh
