// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The running game kept over the end of the program: a small versioned file of our own, outside the
// data folder. Written whole and safely; read as untrusted input, every value checked before use.
#include <filesystem>
#include <optional>

#include "board/text.h"
#include "game/spielstand.h"
#include "memory/dateizugriff.h"

namespace fuh {

inline constexpr const char* kPartieBeschaedigt =
    FUH_TR_NOOP("Kern", "Die gespeicherte Partie ist beschädigt und wurde verworfen.");

// The file's bytes: magic, version, length, the game with its take-back states, a checksum.
Bytes partieKodieren(const Sicherung& s);
// The game in `b`, or nullopt when anything in it is damaged, foreign or out of range.
std::optional<Sicherung> partieDekodieren(const Bytes& b);

// $XDG_STATE_HOME/fuchs-und-hennen/partie, by default ~/.local/state/fuchs-und-hennen/partie.
std::filesystem::path partieDateiStandard();

// Writes the game to `datei` (creating its folder). False when it cannot be written; an old file stays.
bool partieSpeichern(const std::filesystem::path& datei, const Sicherung& s);

struct Partieladung {
    std::optional<Sicherung> sicherung;
    bool beschaedigt = false; // a file was there but could not be used
};
// Reads the game saved in `datei` and removes the file, whatever it held: a saved game is continued
// once or not at all. No file: nothing, and nothing damaged.
Partieladung partieHolen(const std::filesystem::path& datei);

// Removes a saved game; nothing when there is none.
void partieVerwerfen(const std::filesystem::path& datei);

} // namespace fuh
