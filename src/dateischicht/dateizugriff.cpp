// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dateischicht/dateizugriff.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>

namespace fuh::datei {

namespace fs = std::filesystem;

Deskriptor::~Deskriptor() {
    if (fd_ >= 0) ::close(fd_);
}

Deskriptor& Deskriptor::operator=(Deskriptor&& o) noexcept {
    if (this != &o) {
        if (fd_ >= 0) ::close(fd_);
        fd_ = o.fd_;
        o.fd_ = -1;
    }
    return *this;
}

Deskriptor regulaerOeffnen(const char* pfad, int modus, bool anlegen, struct stat& st) {
    // O_NONBLOCK: opening a FIFO must not wait for a writer; fstat then refuses it.
    int flags = modus | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    Deskriptor d;
    std::optional<fs::path> ziel;
    if (modus == O_RDONLY) d = Deskriptor(::open(pfad, flags));
    if (!d && (modus != O_RDONLY || (errno == ENOENT && anlegen))) {
        // Writing or creating: only where it is safe, and nothing swapped in meanwhile is followed.
        ziel = schreibziel(pfad);
        if (!ziel) return Deskriptor();
        flags |= O_NOFOLLOW;
        d = Deskriptor(::open(ziel->c_str(), flags));
        if (!d && errno == ENOENT && anlegen) d = Deskriptor(::open(ziel->c_str(), flags | O_CREAT, 0666));
    }
    if (!d || ::fstat(d.fd(), &st) != 0 || !S_ISREG(st.st_mode)) return Deskriptor();
    return d;
}

long lesenAb(int fd, uint8_t* ziel, std::size_t n, off_t pos) {
    std::size_t gelesen = 0;
    while (gelesen < n) {
        const ssize_t r = ::pread(fd, ziel + gelesen, n - gelesen, pos + static_cast<off_t>(gelesen));
        if (r < 0 && errno == EINTR) continue;
        if (r < 0) return -1;
        if (r == 0) break;
        gelesen += static_cast<std::size_t>(r);
    }
    return static_cast<long>(gelesen);
}

bool lesen(int fd, Bytes& b, std::size_t hoechstens) {
    struct stat st {};
    if (::fstat(fd, &st) != 0) return false;
    b.resize(std::min<std::size_t>(static_cast<std::size_t>(st.st_size), hoechstens));
    const long n = lesenAb(fd, b.data(), b.size(), 0);
    if (n < 0) return false;
    b.resize(static_cast<std::size_t>(n));
    return true;
}

bool schreiben(int fd, const uint8_t* daten, std::size_t n, off_t pos) {
    std::size_t geschrieben = 0;
    while (geschrieben < n) {
        const ssize_t r =
            ::pwrite(fd, daten + geschrieben, n - geschrieben, pos + static_cast<off_t>(geschrieben));
        if (r < 0 && errno == EINTR) continue;
        if (r <= 0) return false;
        geschrieben += static_cast<std::size_t>(r);
    }
    return true;
}

namespace {

// A new, still unnamed file in the folder (O_TMPFILE), or where the file system cannot do that, one
// named `name`. A leftover of an earlier, killed writer under that name is removed first: every writer
// holds the folder lock, so nobody else is using it.
Deskriptor tempAnlegen(int ordner, const std::string& name, bool& unbenannt) {
    // Naming an unnamed file goes through /proc; without it, the file is named from the start.
    static const bool proc = ::access("/proc/self/fd", X_OK) == 0;
    Deskriptor d(proc ? ::openat(ordner, ".", O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666) : -1);
    unbenannt = static_cast<bool>(d);
    if (unbenannt) return d;
    ::unlinkat(ordner, name.c_str(), 0);
    return Deskriptor(::openat(ordner, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
}

// Gives the unnamed file its temporary name, so that rename can put it in place.
bool benennen(int ordner, int fd, const std::string& name) {
    ::unlinkat(ordner, name.c_str(), 0);
    const std::string proc = "/proc/self/fd/" + std::to_string(fd);
    return ::linkat(AT_FDCWD, proc.c_str(), ordner, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

// Mode and owner of the file being replaced go to its successor.
void identitaetUebernehmen(int fd, const struct stat& alt) {
    if (alt.st_uid != ::geteuid() || alt.st_gid != ::getegid()) {
        const int ergebnis = ::fchown(fd, alt.st_uid, alt.st_gid); // fails where not permitted: then ours
        static_cast<void>(ergebnis);
    }
    ::fchmod(fd, alt.st_mode & 07777); // after fchown, which may clear set-id bits
}

} // namespace

bool ersetzen(const fs::path& pfad, const Bytes& inhalt) {
    // A symbolic link's target is replaced, so the link stays a link.
    const std::optional<fs::path> schreibpfad = schreibziel(pfad);
    if (!schreibpfad) return false;
    const fs::path& ziel = *schreibpfad;
    struct stat alt {};
    const bool gibt = ::lstat(ziel.c_str(), &alt) == 0;
    if (gibt && (!S_ISREG(alt.st_mode) || ::access(ziel.c_str(), W_OK) != 0)) return false;
    const Deskriptor ordner(::open(ordnerVon(ziel).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!ordner) return false;
    const std::string name = ziel.filename().string();
    const std::string temp = name + ".tmp";
    bool unbenannt = false;
    const Deskriptor d = tempAnlegen(ordner.fd(), temp, unbenannt);
    if (!d) return false;
    if (gibt) identitaetUebernehmen(d.fd(), alt);
    const bool ok = schreiben(d.fd(), inhalt.data(), inhalt.size(), 0) && ::fsync(d.fd()) == 0 &&
                    (!unbenannt || benennen(ordner.fd(), d.fd(), temp)) &&
                    ::renameat(ordner.fd(), temp.c_str(), ordner.fd(), name.c_str()) == 0;
    if (!ok) {
        ::unlinkat(ordner.fd(), temp.c_str(), 0);
        return false;
    }
    return ::fsync(ordner.fd()) == 0;
}

bool ueberschreiben(const fs::path& pfad, const Bytes& anfang) {
    struct stat st {};
    const Deskriptor d = regulaerOeffnen(pfad.c_str(), O_WRONLY, false, st);
    return d && schreiben(d.fd(), anfang.data(), anfang.size(), 0) && ::fsync(d.fd()) == 0;
}

} // namespace fuh::datei
