// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The game's own messages and the templates of its built texts.
#include "board/text.h"

namespace fuh {

inline constexpr const char* kHennenGewinnen = FUH_TR_NOOP("Kern", "Die Hennen haben gewonnen!");
inline constexpr const char* kFuchsGewinnt = FUH_TR_NOOP("Kern", "Der Fuchs hat gewonnen!");
// The hens cannot move: the foxes win, said without the exclamation mark.
inline constexpr const char* kFuchsGewinntOhneZug = FUH_TR_NOOP("Kern", "Der Fuchs hat gewonnen");
inline constexpr const char* kRemisZiel =
    FUH_TR_NOOP("Kern", "Remis: Die Hennen können ihr Ziel nicht erreichen.");

// The hint's exact verdict in an endgame the table knows; %1 is the number of moves of both sides
// until the game ends.
inline constexpr const char* kTippHennenGewinnen = FUH_TR_NOOP("Kern", "Die Hennen gewinnen in %1 Zügen");
inline constexpr const char* kTippFuechseGewinnen = FUH_TR_NOOP("Kern", "Die Füchse gewinnen in %1 Zügen");
inline constexpr const char* kTippHennenGewinnenJetzt =
    FUH_TR_NOOP("Kern", "Die Hennen gewinnen mit diesem Zug");
inline constexpr const char* kTippFuechseGewinnenJetzt =
    FUH_TR_NOOP("Kern", "Die Füchse gewinnen mit diesem Zug");
inline constexpr const char* kTippRemis = FUH_TR_NOOP("Kern", "Remis");

// Panel 3; %1 is the number of points, empty while there are none.
inline constexpr const char* kPunkteText = FUH_TR_NOOP("Kern", "Punkte: %1");

// Several files that could not be written, in one message: %1 is their list.
inline constexpr const char* kSchreibfehlerMehrere = FUH_TR_NOOP(
    "Kern", "Die Dateien %1 konnten nicht gespeichert werden. Das Spiel geht ohne diese Daten weiter.");
// The list: each name quoted, joined by commas, the last one by "und".
inline constexpr const char* kDateiname = FUH_TR_NOOP("Kern", "„%1“");
inline constexpr const char* kAufzaehlung = FUH_TR_NOOP("Kern", "%1, %2");
inline constexpr const char* kAufzaehlungEnde = FUH_TR_NOOP("Kern", "%1 und %2");

} // namespace fuh
