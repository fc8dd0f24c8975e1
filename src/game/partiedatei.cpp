// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "game/partiedatei.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <functional>
#include <set>
#include <string_view>

#include "dateischicht/benutzerordner.h"

namespace fuh {

namespace {

// Far above any real game (its take-back states included); a larger file is not ours.
constexpr std::size_t kHoechstgroesse = 1u << 20;
// "partie", then "partie-2" ... for the games of windows that quit while another one's game was kept.
constexpr int kSchlitze = 32;
constexpr const char* kName = "partie";
constexpr const char* kTempAnfang = ".partie-";
constexpr const char* kTempEnde = ".tmp";

std::string schlitz(int i) {
    return i == 0 ? std::string(kName) : std::string(kName) + "-" + std::to_string(i + 1);
}

std::string kennungVon(const Bytes& b) {
    const std::size_t h =
        std::hash<std::string_view>{}(std::string_view(reinterpret_cast<const char*>(b.data()), b.size()));
    char text[2 * sizeof h + 1];
    std::snprintf(text, sizeof text, "%0*zx", static_cast<int>(2 * sizeof h), h);
    return text;
}

bool gleich(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// `name` in the folder still names the open file `fd`.
bool nennt(int ordner, const std::string& name, int fd) {
    struct stat n {};
    struct stat f {};
    return ::fstatat(ordner, name.c_str(), &n, AT_SYMLINK_NOFOLLOW) == 0 && ::fstat(fd, &f) == 0 &&
           gleich(n, f);
}

// A file name of our own for a file being written: unique within the process and among processes.
std::string tempName() {
    static std::atomic<unsigned> zaehler{0};
    return kTempAnfang + std::to_string(::getpid()) + "-" + std::to_string(zaehler++) + kTempEnde;
}

// Puts the finished file `temp` in place under `ziel`, never over an existing file. False with errno
// EEXIST when `ziel` is taken.
bool einsetzenOhneErsetzen(int ordner, const std::string& temp, const std::string& ziel) {
    if (::renameat2(ordner, temp.c_str(), ordner, ziel.c_str(), RENAME_NOREPLACE) == 0) return true;
    if (errno != EINVAL && errno != ENOSYS) return false;
    // A file system without that flag: a second name, then the first goes.
    if (::linkat(ordner, temp.c_str(), ordner, ziel.c_str(), 0) != 0) return false;
    ::unlinkat(ordner, temp.c_str(), 0);
    return true;
}

} // namespace

std::optional<std::filesystem::path> partieOrdnerStandard() {
    const auto basis = xdgOrdner("XDG_STATE_HOME", ".local/state");
    if (!basis) return std::nullopt;
    return *basis / kProgrammordner;
}

Partieablage::Partieablage(std::filesystem::path ordner) : ordner_(std::move(ordner)) {}

Partieablage::~Partieablage() = default;

bool Partieablage::ordnerOeffnen(bool anlegen) {
    if (ordnerZustand_) return true;
    // A folder refused once stays refused for this object: nothing is read or written through it.
    const datei::Ordnergrund g = ordnerZustand_.grund;
    if (g != datei::Ordnergrund::keiner && g != datei::Ordnergrund::fehlt &&
        g != datei::Ordnergrund::systemfehler)
        return false;
    ordnerZustand_ = datei::ordnerOeffnen(ordner_, anlegen);
    if (!ordnerZustand_) fehler_ = ordnerZustand_.fehlernummer != 0 ? ordnerZustand_.fehlernummer : EPERM;
    return static_cast<bool>(ordnerZustand_);
}

bool Partieablage::meinName() const {
    return gehalten_ && ordnerZustand_ && nennt(ordnerZustand_.fd.fd(), name_, gehalten_.fd());
}

void Partieablage::staleTempsEntfernen() {
    const int kopie = ::dup(ordnerZustand_.fd.fd());
    if (kopie < 0) return;
    DIR* d = ::fdopendir(kopie);
    if (!d) {
        ::close(kopie);
        return;
    }
    std::vector<std::string> alt;
    while (const dirent* e = ::readdir(d)) {
        const std::string n = e->d_name;
        if (n.rfind(kTempAnfang, 0) == 0 && n.size() > std::string(kTempEnde).size() &&
            n.compare(n.size() - 4, 4, kTempEnde) == 0)
            alt.push_back(n);
    }
    ::closedir(d);
    const int ordner = ordnerZustand_.fd.fd();
    for (const std::string& n : alt) {
        // A writer holds a lock on its file while writing: a file nobody locks was left by a killed one.
        const datei::Deskriptor f(
            ::openat(ordner, n.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (f && ::flock(f.fd(), LOCK_EX | LOCK_NB) == 0 && nennt(ordner, n, f.fd()))
            ::unlinkat(ordner, n.c_str(), 0);
    }
}

Partieablage::Angebot Partieablage::holen(std::vector<std::string>& uebernommen) {
    Angebot angebot;
    if (!ordnerOeffnen(false)) {
        // No folder: no saved game either, and nothing left to mark.
        if (ordnerZustand_.grund == datei::Ordnergrund::fehlt) uebernommen.clear();
        return angebot;
    }
    staleTempsEntfernen();
    const int ordner = ordnerZustand_.fd.fd();
    std::set<std::string> vorhanden;
    for (int i = 0; i < kSchlitze; ++i) {
        const std::string name = schlitz(i);
        datei::Deskriptor f(
            ::openat(ordner, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
        if (!f) {
            // A symbolic link in a saved game's place goes, never what it points to.
            if (errno == ELOOP && ::unlinkat(ordner, name.c_str(), 0) == 0) ++angebot.beschaedigt;
            continue;
        }
        struct stat st {};
        if (::fstat(f.fd(), &st) != 0 || !S_ISREG(st.st_mode)) continue; // a folder there stays
        Bytes b;
        const bool gelesen = datei::lesen(f.fd(), b, kHoechstgroesse + 1);
        const std::string kennung = kennungVon(b);
        vorhanden.insert(kennung);
        if (angebot.sicherung || gehalten_) continue; // only looking for what is still there
        // Held by another window (its own game, or one it is asking about): not ours to offer or remove.
        if (::flock(f.fd(), LOCK_EX | LOCK_NB) != 0 || !nennt(ordner, name, f.fd())) continue;
        std::optional<Sicherung> s;
        if (gelesen && b.size() <= kHoechstgroesse) s = partieDekodieren(b);
        if (!s || std::find(uebernommen.begin(), uebernommen.end(), kennung) != uebernommen.end()) {
            // Damaged, or taken over already: removed where that is possible now.
            const bool entfernt = ::unlinkat(ordner, name.c_str(), 0) == 0;
            if (entfernt) vorhanden.erase(kennung);
            if (!s) ++angebot.beschaedigt;
            continue;
        }
        angebot.sicherung = std::move(s);
        angebot.kennung = kennung;
        gehalten_ = std::move(f);
        name_ = name;
        angeboten_ = true;
    }
    std::erase_if(uebernommen, [&](const std::string& k) { return !vorhanden.count(k); });
    return angebot;
}

bool Partieablage::erledigt() {
    angeboten_ = false; // answered: from now on the file is this window's
    return verwerfen();
}

bool Partieablage::verwerfen() {
    if (!gehalten_ || angeboten_) return true;
    if (meinName() && ::unlinkat(ordnerZustand_.fd.fd(), name_.c_str(), 0) != 0) {
        fehler_ = errno;
        return false;
    }
    ::fsync(ordnerZustand_.fd.fd());
    freigeben();
    return true;
}

void Partieablage::freigeben() {
    gehalten_ = datei::Deskriptor();
    name_.clear();
    angeboten_ = false;
}

bool Partieablage::sichern(const Sicherung& s) {
    if (!ordnerOeffnen(true)) return false;
    const int ordner = ordnerZustand_.fd.fd();
    const Bytes b = partieKodieren(s);
    const std::string temp = tempName();
    datei::Deskriptor f(
        ::openat(ordner, temp.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!f) {
        fehler_ = errno;
        return false;
    }
    // Locked before it has a name a reader could find: the file is held from its first moment.
    bool ok = ::flock(f.fd(), LOCK_EX | LOCK_NB) == 0 && datei::schreiben(f.fd(), b.data(), b.size(), 0) &&
              ::fsync(f.fd()) == 0;
    std::string name;
    if (ok && meinName() && !angeboten_) {
        ok = ::renameat(ordner, temp.c_str(), ordner, name_.c_str()) == 0;
        name = name_;
    } else if (ok) {
        ok = false;
        for (int i = 0; i < kSchlitze && !ok; ++i) {
            name = schlitz(i);
            ok = einsetzenOhneErsetzen(ordner, temp, name);
            if (!ok && errno != EEXIST) break;
        }
    }
    if (!ok) {
        fehler_ = errno;
        ::unlinkat(ordner, temp.c_str(), 0);
        return false;
    }
    ::fsync(ordner);
    gehalten_ = std::move(f);
    name_ = name;
    angeboten_ = false;
    return true;
}

} // namespace fuh
