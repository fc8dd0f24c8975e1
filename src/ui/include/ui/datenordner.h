// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
#include <filesystem>

namespace fuh {

// The per-user data folder: $XDG_DATA_HOME/fuchs-und-hennen, or ~/.local/share/fuchs-und-hennen where
// XDG_DATA_HOME is unset, empty or relative. The environment's bytes are taken as they are: a folder
// whose name is not valid UTF-8 is still the folder the user named.
std::filesystem::path datenordner();

} // namespace fuh
