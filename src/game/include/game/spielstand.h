// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Everything a running game is, as one value: a copy taken before the player's move is what taking the
// move back restores, and the same value is what a game saved on quitting continues from.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "board/regeln.h"
#include "board/spielausgang.h"
#include "board/stellung.h"
#include "board/teilzug.h"
#include "board/text.h"
#include "game/mitschrift.h"
#include "memory/partie.h"
#include "spieldaten/oeffentlich.h"

namespace fuh {

// The points panel: blank until the game checked its first move, then the points of a person playing the
// computer, or none.
struct Punktestand {
    bool gezeigt = false;
    std::optional<int16_t> zahl;
    friend bool operator==(const Punktestand&, const Punktestand&) = default;
};

inline Text punkteText(const Punktestand& p) {
    if (!p.gezeigt) return {};
    return Text(Vorlage::punkte, {p.zahl ? Text::zahl(*p.zahl) : Text::wort("")});
}

struct Spielstand {
    Stellung stellung;
    Teilzug zugregister;     // vonX, vonY, nachX, nachY: the move being made
    Sprungfolge sprungfolge; // a person's fox's open jump sequence
    bool ziehbar = false;    // the pieces may be dragged (automatic drag mode) or are locked
    Partie partie;
    Oeffentlich oeff;
    Seite amZug = Seite::Hennen; // the side to move
    Ergebnis ergebnis = Ergebnis::offen;
    int16_t neueZuege = 0;
    bool endeGefunden = false; // an end was announced in the current game
    Ergebnis letztesErgebnis = Ergebnis::offen;
    uint32_t zufall = 0;     // the game's random source
    uint32_t tippZufall = 0; // the hint's own one
    Punktestand punkte;
    bool zurueckgenommen = false; // a move was taken back: the game goes to no high-score list
    Mitschrift mitschrift;

    friend bool operator==(const Spielstand&, const Spielstand&) = default;
};

// A running game with the states its moves can be taken back to, oldest first; or, when `abzulegen`, a
// finished game that could not be filed yet (its end found, the filing still to do).
struct Sicherung {
    Spielstand stand;
    std::vector<Spielstand> verlauf;
    bool abzulegen = false;

    friend bool operator==(const Sicherung&, const Sicherung&) = default;
};

} // namespace fuh
