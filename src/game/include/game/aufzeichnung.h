// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A game file: UTF-8 text, a first line naming the format, a few header lines ("Name: value"), an empty
// line, and then one numbered line per turn in the notation ("12. F e5xe3xc3"). Reading it trusts
// nothing: the form is checked here, and the moves by replaying them (game/nachspielen.h).
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "board/text.h"
#include "game/mitschrift.h"
#include "game/spielerwahl.h"
#include "spieldaten/oeffentlich.h"

namespace fuh {

class Spiel;

// Larger than any game the move limit allows.
inline constexpr std::size_t kHoechstePartiegroesse = 64 * 1024;

struct Aufzeichnung {
    std::string datum;
    uint64_t nummer = 1; // the game's number in the run that played it
    Spielerwahl spieler; // who played each side, at what strength
    Einstellungen einst;
    bool zurueckgenommen = false; // a move was taken back: the game goes to no high-score list
    Ergebnis ergebnis = Ergebnis::offen;
    std::optional<Endegrund> ende;
    std::vector<Partiezug> zuege;
    bool offen = false; // the last move is a person's chain of jumps, not yet closed
    // The lines of a file read: each move's, and the result's (0 when not read from a file).
    std::vector<int> zeilen;
    int ergebnisZeile = 0;
};

// The game as it stands, for a file.
Aufzeichnung aufzeichnen(const Spiel& spiel, std::string datum, uint64_t nummer = 1);

std::string aufzeichnungText(const Aufzeichnung& a);

// What was read, or the message that says why not, naming the line.
struct Gelesen {
    std::optional<Aufzeichnung> aufzeichnung;
    Text fehler;
};
Gelesen aufzeichnungLesen(std::string_view text);

// The files themselves: only a regular file is read, and no more than a game can need; a write
// replaces the file whole or leaves it as it was.
Gelesen aufzeichnungLaden(const std::filesystem::path& pfad);
bool aufzeichnungSpeichern(const std::filesystem::path& pfad, const Aufzeichnung& a);

} // namespace fuh
