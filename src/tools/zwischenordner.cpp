// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/zwischenordner.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <vector>

namespace fuh {

namespace fs = std::filesystem;

namespace {

constexpr const char* kAnfang = "selbstspiel-";
constexpr const char* kNeu = "selbstspiel-neu-"; // still being set up: not yet locked
constexpr std::size_t kZufallsteil = 6;          // mkdtemp's XXXXXX
// A folder still being set up belongs to a run that lives, unless it is older than this.
constexpr auto kEinrichtzeit = std::chrono::minutes(1);

// The names of the files in the folder `fd`, and whether it holds anything but what a run makes (the
// saved game and its temporary files).
bool nurEigenes(int fd, std::vector<std::string>& namen) {
    const int kopie = ::dup(fd);
    DIR* d = kopie >= 0 ? ::fdopendir(kopie) : nullptr;
    if (!d) {
        if (kopie >= 0) ::close(kopie);
        return false;
    }
    bool eigen = true;
    while (const dirent* e = ::readdir(d)) {
        const std::string n = e->d_name;
        if (n == "." || n == "..") continue;
        struct stat st {};
        const bool datei = ::fstatat(fd, n.c_str(), &st, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(st.st_mode);
        if (datei && (n.rfind("partie", 0) == 0 || n.rfind(".partie-", 0) == 0))
            namen.push_back(n);
        else
            eigen = false;
    }
    ::closedir(d);
    return eigen;
}

// Removes the folder `name` in `tmp` (descriptor `tmpFd`) when nobody holds its lock.
void verwaistEntfernen(int tmpFd, const std::string& name, bool neu) {
    struct stat st {};
    if (::fstatat(tmpFd, name.c_str(), &st, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISDIR(st.st_mode) ||
        st.st_uid != ::geteuid())
        return;
    if (neu) {
        const auto alter =
            std::chrono::system_clock::now() - std::chrono::system_clock::from_time_t(st.st_mtim.tv_sec);
        if (alter < kEinrichtzeit) return;
    }
    const datei::Deskriptor d(::openat(tmpFd, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!d || ::flock(d.fd(), LOCK_EX | LOCK_NB) != 0) return; // a run still lives
    std::vector<std::string> namen;
    if (!nurEigenes(d.fd(), namen)) return;
    for (const std::string& n : namen)
        ::unlinkat(d.fd(), n.c_str(), 0);
    ::unlinkat(tmpFd, name.c_str(), AT_REMOVEDIR);
}

} // namespace

void zwischenordnerAufraeumen(const fs::path& tmp) {
    const datei::Deskriptor t(::open(tmp.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!t) return;
    const int kopie = ::dup(t.fd());
    DIR* d = kopie >= 0 ? ::fdopendir(kopie) : nullptr;
    if (!d) {
        if (kopie >= 0) ::close(kopie);
        return;
    }
    std::vector<std::pair<std::string, bool>> kandidaten;
    const std::string anfang = kAnfang, neu = kNeu;
    while (const dirent* e = ::readdir(d)) {
        const std::string n = e->d_name;
        if (n.rfind(neu, 0) == 0 && n.size() == neu.size() + kZufallsteil)
            kandidaten.emplace_back(n, true);
        else if (n.rfind(anfang, 0) == 0 && n.size() == anfang.size() + kZufallsteil)
            kandidaten.emplace_back(n, false);
    }
    ::closedir(d);
    for (const auto& [name, istNeu] : kandidaten)
        verwaistEntfernen(t.fd(), name, istNeu);
}

Zwischenordner::Zwischenordner() {
    std::error_code ec;
    const fs::path tmp = fs::temp_directory_path(ec);
    if (ec) throw std::runtime_error("kein temporärer Ordner für die Partie: " + ec.message());
    zwischenordnerAufraeumen(tmp);
    // Made under a name the clean-up leaves alone, locked, and only then given its name.
    std::string neu = (tmp / (std::string(kNeu) + "XXXXXX")).string();
    if (!::mkdtemp(neu.data()))
        throw std::runtime_error(std::string("kein temporärer Ordner für die Partie: ") +
                                 std::strerror(errno));
    sperre_ = datei::Deskriptor(::open(neu.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    std::string name = (tmp / kAnfang).string() + neu.substr(neu.size() - kZufallsteil);
    if (!sperre_ || ::flock(sperre_.fd(), LOCK_EX | LOCK_NB) != 0 ||
        ::renameat2(AT_FDCWD, neu.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) != 0) {
        const int fehler = errno;
        ::rmdir(neu.c_str());
        throw std::runtime_error(std::string("kein temporärer Ordner für die Partie: ") +
                                 std::strerror(fehler));
    }
    pfad_ = name;
}

Zwischenordner::~Zwischenordner() {
    std::vector<std::string> namen;
    nurEigenes(sperre_.fd(), namen);
    for (const std::string& n : namen)
        ::unlinkat(sperre_.fd(), n.c_str(), 0);
    ::rmdir(pfad_.c_str());
}

Signalsperre::Signalsperre() {
    sigemptyset(&signale_);
    for (const int s : {SIGINT, SIGTERM, SIGHUP, SIGPIPE})
        sigaddset(&signale_, s);
    sigprocmask(SIG_BLOCK, &signale_, &vorher_);
}

Signalsperre::~Signalsperre() {
    // Signals that came after the last question go on as they would have.
    sigprocmask(SIG_SETMASK, &vorher_, nullptr);
}

int Signalsperre::angefordert() const {
    const timespec sofort{};
    const int s = sigtimedwait(&signale_, nullptr, &sofort);
    return s > 0 ? s : 0;
}

void Signalsperre::weitergeben(int s) {
    ::signal(s, SIG_DFL);
    sigset_t nur;
    sigemptyset(&nur);
    sigaddset(&nur, s);
    sigprocmask(SIG_UNBLOCK, &nur, nullptr);
    ::raise(s);
    std::_Exit(128 + s);
}

} // namespace fuh
