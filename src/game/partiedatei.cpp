// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "game/partiedatei.h"

#include <fcntl.h>

#include <cstdlib>
#include <system_error>

#include "memory/satzdatei.h"

namespace fuh {

namespace {
// Far above any real game (its take-back states included); a larger file is not ours.
constexpr std::size_t kHoechstgroesse = 1u << 20;

std::filesystem::path umgebung(const char* name) {
    const char* wert = std::getenv(name);
    return wert ? std::filesystem::path(wert) : std::filesystem::path();
}
} // namespace

std::filesystem::path partieDateiStandard() {
    std::filesystem::path basis = umgebung("XDG_STATE_HOME");
    // Relative values are to be ignored, as the XDG rules say.
    if (!basis.is_absolute()) basis = umgebung("HOME") / ".local" / "state";
    return basis / "fuchs-und-hennen" / "partie";
}

bool partieSpeichern(const std::filesystem::path& datei, const Sicherung& s) {
    std::error_code fehler;
    std::filesystem::create_directories(datei.parent_path(), fehler);
    return dateiSchreiben(datei, partieKodieren(s));
}

Partieladung partieHolen(const std::filesystem::path& datei) {
    std::error_code fehler;
    if (!std::filesystem::exists(std::filesystem::symlink_status(datei, fehler))) return {};
    Partieladung ladung;
    struct stat st {};
    Bytes b;
    // One byte more than allowed tells an oversized file from one of the largest size.
    if (const auto d = datei::regulaerOeffnen(datei.c_str(), O_RDONLY, false, st);
        d && datei::lesen(d.fd(), b, kHoechstgroesse + 1) && b.size() <= kHoechstgroesse)
        ladung.sicherung = partieDekodieren(b);
    ladung.beschaedigt = !ladung.sicherung;
    partieVerwerfen(datei);
    return ladung;
}

void partieVerwerfen(const std::filesystem::path& datei) {
    std::error_code fehler;
    // A symbolic link in its place goes, never what it points to; a folder in its place stays.
    if (!std::filesystem::is_directory(std::filesystem::symlink_status(datei, fehler)))
        std::filesystem::remove(datei, fehler);
}

} // namespace fuh
