// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Opening a folder the game creates or writes in. A folder name in a place others can write (a state or
// data folder set to a shared folder) could be a link or a folder planted there by another user; the game
// must then neither read nor write anything through it.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "dateischicht/dateizugriff.h"

namespace fuh::datei {

namespace fs = std::filesystem;

namespace {

constexpr int kHoechsteLinks = 40; // as the kernel: a longer chain is a loop

// One folder on the way: its descriptor and status, and how it was reached (for messages).
struct Stufe {
    Deskriptor fd;
    struct stat st {};
    fs::path weg;
};

Ordner abgelehnt(Ordnergrund grund, fs::path stelle, int fehlernummer = 0) {
    Ordner o;
    o.grund = grund;
    o.stelle = std::move(stelle);
    o.fehlernummer = fehlernummer;
    return o;
}

std::deque<std::string> namen(const fs::path& p) {
    std::deque<std::string> n;
    for (const fs::path& teil : p.relative_path())
        if (!teil.empty() && teil != ".") n.push_back(teil.string());
    return n;
}

bool wurzel(std::vector<Stufe>& weg) {
    weg.clear();
    Stufe w{Deskriptor(::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC)), {}, "/"};
    if (!w.fd || ::fstat(w.fd.fd(), &w.st) != 0) return false;
    weg.push_back(std::move(w));
    return true;
}

// The status of `name` in the folder `hier` into `e`, made a folder first when it is missing and
// `anlegen`; or why not.
std::optional<Ordner> eintrag(const Stufe& hier, const std::string& name, bool anlegen, struct stat& e) {
    const fs::path stelle = hier.weg / name;
    if (::fstatat(hier.fd.fd(), name.c_str(), &e, AT_SYMLINK_NOFOLLOW) == 0) return std::nullopt;
    if (errno != ENOENT) return abgelehnt(Ordnergrund::systemfehler, stelle, errno);
    if (!anlegen) return abgelehnt(Ordnergrund::fehlt, stelle, ENOENT);
    // Nothing is created where another user could take it over at once.
    if (!sicher(hier.st, nullptr)) return abgelehnt(Ordnergrund::offenerOrdner, hier.weg);
    if (::mkdirat(hier.fd.fd(), name.c_str(), 0700) != 0 && errno != EEXIST)
        return abgelehnt(Ordnergrund::systemfehler, stelle, errno);
    if (::fstatat(hier.fd.fd(), name.c_str(), &e, AT_SYMLINK_NOFOLLOW) != 0)
        return abgelehnt(Ordnergrund::systemfehler, stelle, errno);
    return std::nullopt;
}

// Puts what the link `name` in the folder reached last points to in front of the names still to walk;
// an absolute target starts again at the root. 0, or errno.
int linkFolgen(std::vector<Stufe>& weg, const std::string& name, const struct stat& e,
               std::deque<std::string>& offen) {
    std::string ziel(static_cast<std::size_t>(e.st_size > 0 ? e.st_size : 255) + 1, '\0');
    const ssize_t n = ::readlinkat(weg.back().fd.fd(), name.c_str(), ziel.data(), ziel.size());
    if (n < 0) return errno;
    if (static_cast<std::size_t>(n) >= ziel.size()) return ENAMETOOLONG;
    ziel.resize(static_cast<std::size_t>(n));
    const fs::path zielpfad(ziel);
    const std::deque<std::string> vorne = namen(zielpfad);
    offen.insert(offen.begin(), vorne.begin(), vorne.end());
    if (zielpfad.is_absolute() && !wurzel(weg)) return errno;
    return 0;
}

} // namespace

Ordner ordnerOeffnen(const fs::path& pfad, bool anlegen) {
    std::error_code ec;
    const fs::path absolut = pfad.is_absolute() ? pfad : fs::current_path(ec) / pfad;
    if (ec) return abgelehnt(Ordnergrund::systemfehler, pfad, ec.value());
    std::vector<Stufe> weg; // from the root down to the folder reached so far
    if (!wurzel(weg)) return abgelehnt(Ordnergrund::systemfehler, "/", errno);
    std::deque<std::string> offen = namen(absolut);
    int links = 0;
    while (!offen.empty()) {
        const std::string name = offen.front();
        offen.pop_front();
        if (name == "..") {
            if (weg.size() > 1) weg.pop_back(); // the parent of the folder reached, as the kernel has it
            continue;
        }
        const Stufe& hier = weg.back();
        const fs::path stelle = hier.weg / name;
        struct stat e {};
        if (std::optional<Ordner> nein = eintrag(hier, name, anlegen, e)) return std::move(*nein);
        if (S_ISLNK(e.st_mode)) {
            if (!vertraut(e.st_uid) || !sicher(hier.st, &e))
                return abgelehnt(Ordnergrund::fremderLink, stelle);
            if (++links > kHoechsteLinks) return abgelehnt(Ordnergrund::schleife, stelle, ELOOP);
            if (const int fehler = linkFolgen(weg, name, e, offen))
                return abgelehnt(Ordnergrund::systemfehler, stelle, fehler);
            continue;
        }
        if (!S_ISDIR(e.st_mode)) return abgelehnt(Ordnergrund::keinOrdner, stelle, ENOTDIR);
        if (!sicher(hier.st, &e))
            return abgelehnt(vertraut(e.st_uid) ? Ordnergrund::offenerOrdner : Ordnergrund::fremderOrdner,
                             vertraut(e.st_uid) ? hier.weg : stelle);
        Stufe naechste{
            Deskriptor(::openat(hier.fd.fd(), name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)),
            {},
            stelle};
        if (!naechste.fd) return abgelehnt(Ordnergrund::systemfehler, stelle, errno);
        // What was opened is what was checked: nothing swapped in meanwhile.
        if (::fstat(naechste.fd.fd(), &naechste.st) != 0 || naechste.st.st_dev != e.st_dev ||
            naechste.st.st_ino != e.st_ino)
            return abgelehnt(Ordnergrund::fremderOrdner, stelle);
        weg.push_back(std::move(naechste));
    }
    Ordner o;
    o.fd = std::move(weg.back().fd);
    o.stelle = weg.back().weg;
    return o;
}

} // namespace fuh::datei
