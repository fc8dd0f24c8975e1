// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dateischicht/benutzerordner.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace fuh {

namespace {
// A variable's value when it is an absolute path.
std::optional<std::filesystem::path> absolut(const char* wert) {
    if (!wert || *wert != '/') return std::nullopt;
    return std::filesystem::path(wert);
}
} // namespace

std::optional<std::filesystem::path> heimordner() {
    if (auto heim = absolut(std::getenv("HOME"))) return heim;
    const passwd* pw = ::getpwuid(::geteuid());
    return absolut(pw ? pw->pw_dir : nullptr);
}

std::optional<std::filesystem::path> xdgOrdner(const char* variable, const char* unterHeim) {
    if (auto ordner = absolut(std::getenv(variable))) return ordner;
    if (auto heim = heimordner()) return *heim / unterHeim;
    return std::nullopt;
}

} // namespace fuh
