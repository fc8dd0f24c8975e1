// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/datenordner.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace fuh {

namespace {
constexpr const char* kUnterordner = "fuchs-und-hennen";

// A variable's value as bytes, or nullptr when it is unset or empty.
const char* umgebung(const char* name) {
    const char* wert = std::getenv(name);
    return wert && *wert ? wert : nullptr;
}
} // namespace

std::filesystem::path datenordner() {
    if (const char* xdg = umgebung("XDG_DATA_HOME"); xdg && *xdg == '/')
        return std::filesystem::path(xdg) / kUnterordner;
    const char* heim = umgebung("HOME");
    if (!heim)
        if (const passwd* pw = ::getpwuid(::getuid())) heim = pw->pw_dir;
    if (!heim) return std::filesystem::current_path(); // nowhere else to go: play where started
    return std::filesystem::path(heim) / ".local" / "share" / kUnterordner;
}

} // namespace fuh
