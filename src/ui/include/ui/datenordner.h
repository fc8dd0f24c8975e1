// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The player's folders: data, saved game (memory/benutzerordner.h, game/partiedatei.h) and the window's
// own settings, each checked before anything is read or written in it (datei::ordnerOeffnen).
#include <QString>
#include <QStringList>
#include <filesystem>

#include "dateischicht/dateizugriff.h"

namespace fuh {

// The per-user data folder: $XDG_DATA_HOME/fuchs-und-hennen, or ~/.local/share/fuchs-und-hennen where
// XDG_DATA_HOME is unset, empty or relative; the current folder when there is no home folder at all. The
// environment's bytes are taken as they are: a folder whose name is not valid UTF-8 is still the folder
// the user named.
std::filesystem::path datenordner();

// Why the folder `o` cannot be used, in the player's language (a phrase without a full stop).
QString ordnerGrund(const datei::Ordner& o);

// Where fenster.conf lives: $XDG_CONFIG_HOME/fuchs-und-hennen (by default ~/.config/fuchs-und-hennen),
// checked like the data folder and created when missing. Where that folder cannot be used, or there is
// no home folder, the window's settings last only while the program runs; a fenster.conf of more than
// 16 KiB is never read but removed, and one that is no regular file is neither read nor written.
// Call once before the first window; returns the warnings to show the player (none when all is well).
QStringList fensterEinstellungenEinrichten();

// The largest fenster.conf that is read.
inline constexpr long long kFensterEinstellungenHoechstens = 16 * 1024;

} // namespace fuh
