// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The words of the game file, shared by its writer and its reader. They are the file's, not the
// screen's: a file reads the same in every language.
#include <array>
#include <string>
#include <string_view>

#include "board/spielausgang.h"
#include "game/aufzeichnung.h"

namespace fuh::aufzeichnungsnamen {

inline constexpr std::string_view kKennung = "FuH-Partie 1";
inline constexpr std::string_view kDatum = "Datum";
inline constexpr std::string_view kSpiel = "Spiel";
inline constexpr std::string_view kFuechse = "Füchse";
inline constexpr std::string_view kHennen = "Hennen";
inline constexpr std::string_view kEinstellungen = "Einstellungen";
inline constexpr std::string_view kZurueckgenommen = "Zurückgenommen";
inline constexpr std::string_view kErgebnis = "Ergebnis";
inline constexpr std::string_view kEnde = "Ende";
inline constexpr std::array<std::string_view, 8> kAngaben = {
    kDatum, kSpiel, kFuechse, kHennen, kEinstellungen, kZurueckgenommen, kErgebnis, kEnde};

inline constexpr std::string_view kMensch = "Mensch";
inline constexpr std::string_view kNiemand = "niemand";
inline constexpr std::string_view kComputerStaerke = "Computer, Stärke ";
inline constexpr std::string_view kComputerMeister = "Computer, Meister";
inline constexpr std::string_view kJa = "ja";
inline constexpr std::string_view kNein = "nein";

// By Ergebnis (offen, hennen, fuchs, remis) and by Endegrund; "-" while the game runs.
inline constexpr std::array<std::string_view, 4> kErgebnisse = {"offen", "Hennen gewinnen", "Füchse gewinnen",
                                                                "Remis"};
inline constexpr std::array<std::string_view, 5> kEndegruende = {
    "Hennen im Ziel", "zu wenige Hennen", "Hennen ohne Zug", "Füchse ohne Zug", "Zugbegrenzung"};
inline constexpr std::string_view kKeinEnde = "-";

inline constexpr char kHennenZeichen = 'H';
inline constexpr char kFuchsZeichen = 'F';

// "Computer, Stärke 2", "Computer, Meister", "Mensch" or "niemand", as the settings and players say.
std::string spielerText(const Aufzeichnung& a, Seite seite);
// "PC 2, Stärke 1, Lernmodus 0, Einzelzug 0", the strength as the user counts it.
std::string einstellungenText(const Einstellungen& e);

} // namespace fuh::aufzeichnungsnamen
