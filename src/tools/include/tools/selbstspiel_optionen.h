// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The command line of the headless driver.
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>

#include "game/spielerwahl.h"
#include "spieldaten/oeffentlich.h"
#include "tools/befehlszeile.h"

namespace fuh {

struct Optionen {
    uint64_t spiele = 1;
    int pc = 2;
    int staerke = 1; // 1..3 as the user counts
    bool lernen = false;
    std::optional<uint32_t> seed; // already reduced to 24 bits
    bool protokoll = false;
    bool fortsetzenPruefen = false; // save the game to a file and go on from it before every move
    bool dienen = false;            // play no game: answer move requests (match --gegner) instead
    Spielerwahl spieler;            // --fuchs, --hennen, --bedenkzeit: each side at its own strength
    bool menschFuchs = false, menschHennen = false;   // --fuchs mensch, --hennen mensch: a random person
    std::optional<std::filesystem::path> partien;     // a game file of each game goes here
    std::optional<std::filesystem::path> nachspielen; // play no new game: replay this game file
};

// The settings and players a run plays with: a side given to a person makes the other the computer's,
// exactly as --pc would, and at the strength given for it.
Einstellungen einstellungen(const Optionen& o);
Spielerwahl spielerwahl(const Optionen& o);
// The computer plays both sides: a new game is played through without a person.
bool computerAllein(const Optionen& o);

// --bedenkzeit: the Meister's time per move, for every program that lets it play.
Option bedenkzeitOption(std::chrono::milliseconds& ziel);

// selbstspiel's options, bound to `o`.
Programm selbstspielAufruf(Optionen& o);

} // namespace fuh
