// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// "QZ.INI": one record of four 16-bit little-endian settings.
#include <filesystem>

#include "spieldaten/oeffentlich.h"

namespace fuh {

inline constexpr const char* kEinstellungsdatei = "QZ.INI";

// Reads the settings (creating an empty file when missing). A file without a record sets PC, Lernmodus
// and Einzelzug to 0 and keeps Staerke. Values are taken as they are.
void einstellungenLesen(const std::filesystem::path& ordner, Einstellungen& e);

// Writes record 1, keeping any bytes after it. False when the file cannot be written.
bool einstellungenSchreiben(const std::filesystem::path& ordner, const Einstellungen& e);

} // namespace fuh
