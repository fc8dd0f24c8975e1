// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A line protocol through which one build's Meister plays against another's: one position in, one move
// out. Requests:
//   neu SEED                                   a new game: a fresh Meister drawing from SEED; answer "ok"
//   zug h|f SPIELZUG STRAFREGEL MS FELD        the move for the hens (h) or the foxes (f)
// FELD is 49 digits, the square codes row by row from the top (0 off the cross, 1 empty, 2 hen, 3 fox);
// STRAFREGEL 1 when a fox that misses a jump is taken off; MS the budget. The answer to "zug" is
// "zug X,Y X,Y ..." (the piece's square, then where it steps or each landing of a chain) or "keinzug".
// Anything else is answered "fehler" and a reason; the server goes on with the next line.
#include <chrono>
#include <cstdint>
#include <istream>
#include <optional>
#include <ostream>
#include <string>

#include "board/stellung.h"
#include "player/zugwahl.h"

namespace fuh {

struct Zuganfrage {
    Brettfeld Feld{};
    int16_t seite = henne;
    int spielzug = 0;
    bool strafregel = true;
    std::chrono::milliseconds bedenkzeit{400};
};

std::string anfrageZeile(const Zuganfrage& a);
std::optional<Zuganfrage> anfrageLesen(const std::string& zeile);

std::string antwortZeile(const Zugwahl& w);
// The move of an answer line, or nothing when the line is not one.
std::optional<Zugwahl> antwortLesen(const std::string& zeile);

// Serves requests from `ein` until its end, answering each line on `aus` at once.
void dienen(std::istream& ein, std::ostream& aus);

} // namespace fuh
