// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Whether a write may follow a symbolic link. In a folder others can write, a link named like a data file
// could lead anywhere the user can write; the game must not overwrite that file for them.
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <string>
#include <vector>

#include "dateischicht/dateizugriff.h"

namespace fuh::datei {

namespace fs = std::filesystem;

namespace {

constexpr int kHoechsteLinks = 40; // as the kernel: a longer chain is a loop

// A group named like the user, which is their primary group and lists no other member.
bool eigeneGruppe(gid_t gid) {
    const passwd* pw = ::getpwuid(::geteuid());
    if (!pw || pw->pw_gid != gid) return false;
    const std::string name = pw->pw_name;
    const group* gr = ::getgrgid(gid);
    return gr && name == gr->gr_name && (gr->gr_mem == nullptr || gr->gr_mem[0] == nullptr);
}

// Every folder from the root down to the one holding `datei`, and `datei`'s own place in it.
bool wegSicher(const fs::path& datei) {
    std::error_code ec;
    const fs::path ordner = fs::canonical(ordnerVon(datei), ec);
    if (ec) return false;
    const fs::path relativ = ordner.relative_path();
    std::vector<fs::path> teile(relativ.begin(), relativ.end());
    teile.push_back(datei.filename());
    fs::path weg = ordner.root_path();
    for (const fs::path& teil : teile) {
        struct stat o {};
        struct stat e {};
        if (::stat(weg.c_str(), &o) != 0) return false;
        weg /= teil;
        if (!sicher(o, ::lstat(weg.c_str(), &e) == 0 ? &e : nullptr)) return false;
    }
    return true;
}

} // namespace

bool vertraut(uid_t besitzer) {
    return besitzer == ::geteuid() || besitzer == 0;
}

bool fremdBeschreibbar(const struct stat& ordner) {
    return !vertraut(ordner.st_uid) || (ordner.st_mode & S_IWOTH) != 0 ||
           ((ordner.st_mode & S_IWGRP) != 0 && !eigeneGruppe(ordner.st_gid));
}

bool sicher(const struct stat& ordner, const struct stat* eintrag) {
    if (!vertraut(ordner.st_uid)) return false;
    if (!fremdBeschreibbar(ordner)) return true;
    // Sticky: others may add names, but cannot rename or remove what is not theirs.
    return (ordner.st_mode & S_ISVTX) != 0 && (eintrag == nullptr || vertraut(eintrag->st_uid));
}

fs::path ordnerVon(const fs::path& pfad) {
    const fs::path o = pfad.parent_path();
    return o.empty() ? fs::path(".") : o;
}

std::optional<fs::path> schreibziel(const fs::path& pfad) {
    fs::path p = pfad;
    for (int links = 0; links <= kHoechsteLinks; ++links) {
        struct stat st {};
        if (::lstat(p.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) {
            if (links == 0) return p;
            if (!wegSicher(p)) return std::nullopt;
            return p;
        }
        struct stat ordner {};
        if (!vertraut(st.st_uid) || ::stat(ordnerVon(p).c_str(), &ordner) != 0 || !sicher(ordner, &st))
            return std::nullopt;
        std::error_code ec;
        const fs::path ziel = fs::read_symlink(p, ec);
        if (ec) return std::nullopt;
        p = ziel.is_absolute() ? ziel : ordnerVon(p) / ziel;
    }
    return std::nullopt;
}

bool linkVerweigert(const fs::path& pfad) {
    std::error_code ec;
    return fs::is_symlink(pfad, ec) && !schreibziel(pfad);
}

} // namespace fuh::datei
