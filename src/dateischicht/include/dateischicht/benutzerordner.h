// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The user's folders, after the XDG Base Directory rules with one fixed reading of unusual environments:
// a variable that is unset, empty or not an absolute path is ignored (the XDG rules say to ignore
// relative values), and so is a relative HOME. The environment's bytes are taken as they are: a folder
// whose name is not valid UTF-8 is still the folder the user named.
#include <filesystem>
#include <optional>

namespace fuh {

// The subfolder of each base folder that the game uses.
inline constexpr const char* kProgrammordner = "fuchs-und-hennen";

// HOME when it is an absolute path, else the user database's home folder for the user when that is one;
// nullopt when neither is.
std::optional<std::filesystem::path> heimordner();

// The base folder named by `variable` (XDG_DATA_HOME, XDG_STATE_HOME, XDG_CONFIG_HOME) when it is an
// absolute path, else `unterHeim` (".local/share", ".local/state", ".config") below the home folder;
// nullopt when there is neither.
std::optional<std::filesystem::path> xdgOrdner(const char* variable, const char* unterHeim);

} // namespace fuh
