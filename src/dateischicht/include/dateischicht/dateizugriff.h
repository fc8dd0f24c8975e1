// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// POSIX building blocks of the file layer: descriptors that close themselves, opening nothing but regular
// files and never blocking, whole reads and writes, the data folder's lock, and replacing a file atomically
// while keeping its identity (symbolic link, mode, owner). Writes follow a symbolic link only where nobody
// else can have planted or changed it.
#include <sys/stat.h>
#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

namespace fuh {

using Bytes = std::vector<uint8_t>;

namespace datei {

class Deskriptor {
  public:
    Deskriptor() = default;
    explicit Deskriptor(int fd) : fd_(fd) {}
    ~Deskriptor();
    Deskriptor(Deskriptor&& o) noexcept : fd_(o.fd_) { o.fd_ = -1; }
    Deskriptor& operator=(Deskriptor&& o) noexcept;
    Deskriptor(const Deskriptor&) = delete;
    Deskriptor& operator=(const Deskriptor&) = delete;

    int fd() const { return fd_; }
    explicit operator bool() const { return fd_ >= 0; }

  private:
    int fd_ = -1;
};

// Opens `pfad` with `modus` (O_RDONLY, O_WRONLY or O_RDWR) without blocking: a FIFO, device, folder or
// socket in its place is refused. A missing file is created empty when `anlegen`. Reading follows any
// symbolic link; writing or creating only one `schreibziel` accepts. `st` receives the open file's
// status. Invalid when the file cannot be opened.
Deskriptor regulaerOeffnen(const char* pfad, int modus, bool anlegen, struct stat& st);

// Reads the file from its start, at most `hoechstens` bytes, into `b`. False on a read error.
bool lesen(int fd, Bytes& b, std::size_t hoechstens);
// Reads up to `n` bytes at `pos` into `ziel`; the count read, or -1 on an error.
long lesenAb(int fd, uint8_t* ziel, std::size_t n, off_t pos);
// Writes all `n` bytes at `pos`. False on an error.
bool schreiben(int fd, const uint8_t* daten, std::size_t n, off_t pos);

// The folder holding `pfad` ("." for a bare name).
std::filesystem::path ordnerVon(const std::filesystem::path& pfad);

// Where a write of `pfad` goes: `pfad` itself when it is no symbolic link, else the end of its chain of
// links, provided that nobody but the user (and root) can have planted or changed any of it: every link
// belongs to the user or root, and every folder holding a link or lying on the way to the final file
// belongs to the user or root and is writable by nobody else. A folder writable by others still counts
// when it is sticky and what it holds on the way belongs to the user or root (as /tmp); one writable by
// its group counts when that group is the user's own private group. nullopt when a link must not be
// followed (or the chain does not end).
std::optional<std::filesystem::path> schreibziel(const std::filesystem::path& pfad);
// Whether `pfad` is a symbolic link that writes do not follow.
bool linkVerweigert(const std::filesystem::path& pfad);

// The owner `besitzer` is the user or root.
bool vertraut(uid_t besitzer);
// Someone but the user and root may add, rename or remove entries of the folder `ordner`: it belongs to
// another user, or others (or a group that is not the user's own private group) may write it.
bool fremdBeschreibbar(const struct stat& ordner);
// Nobody but the user and root can change what the folder `ordner` holds under the name of `eintrag`
// (nullptr: nothing of that name yet): the folder is not writable by others, or it is sticky (as /tmp)
// and the entry belongs to the user or root.
bool sicher(const struct stat& ordner, const struct stat* eintrag);

// Why a folder cannot be used.
enum class Ordnergrund {
    keiner,
    fehlt,         // it does not exist (and was not to be created)
    keinOrdner,    // something else stands in its place
    fremderLink,   // a symbolic link another user may have planted or changed
    fremderOrdner, // a folder of another user, in a folder others can write
    offenerOrdner, // it lies in a folder that others can write and that is not sticky
    schleife,      // too many symbolic links
    systemfehler,  // the system refused (`fehlernummer`)
};

// A folder opened for use: its descriptor, or why not. `stelle` names the link or folder that was refused
// (or could not be opened).
struct Ordner {
    Deskriptor fd;
    Ordnergrund grund = Ordnergrund::keiner;
    std::filesystem::path stelle;
    int fehlernummer = 0;
    explicit operator bool() const { return static_cast<bool>(fd); }
};

// Opens the folder `pfad` by walking from the root with openat and O_NOFOLLOW, one name at a time, so that
// nothing is resolved twice. Every folder on the way must hold the next one where nobody but the user
// and root can have planted or changed it (`sicher`); a symbolic link on the way is followed only when it
// belongs to the user or root and lies in such a place. A relative `pfad` is taken below the current folder,
// which is walked from the root too. Missing folders are created (mode 0700) when `anlegen`. What was opened,
// read or created before a refusal stays as it was; nothing is created past it.
Ordner ordnerOeffnen(const std::filesystem::path& pfad, bool anlegen);

// Called again and again with false while a lock is waited for, then once with true when the wait ends.
using Wartehaken = std::function<void(bool fertig)>;

// The lock of one data folder: flock on the folder itself, so no lock file is left behind. Every
// read-modify-write of a data file holds it; it is released when the object goes (or the process dies).
// A lock taken while the same thread already locks the folder covers its writes without waiting: held
// when the outer one is, else one more try.
class Ordnersperre {
  public:
    explicit Ordnersperre(const std::filesystem::path& ordner, const Wartehaken& warten = {});
    ~Ordnersperre();
    Ordnersperre(const Ordnersperre&) = delete;
    Ordnersperre& operator=(const Ordnersperre&) = delete;
    bool gehalten() const { return gehalten_; }

  private:
    Deskriptor ordner_;
    dev_t dev_ = 0;
    ino_t ino_ = 0;
    bool gehalten_ = false;
    bool eigen_ = false;       // this object's descriptor holds the flock
    bool eingetragen_ = false; // counted in the process's list of locks
};

// How long a writer waits for the folder lock before it gives up and reports the file as not saved.
void sperrfristSetzen(std::chrono::milliseconds frist);

// Replaces the whole file `pfad` by `inhalt`: written to a temporary file in the folder of the link's
// target, synced, renamed over the target, and the folder synced, so that a crash or power cut leaves
// the old or the new file. Mode and (where permitted) owner of the existing file are kept. False when
// the file cannot be written (a read-only or non-regular file among them); the old file then stays.
bool ersetzen(const std::filesystem::path& pfad, const Bytes& inhalt);

// Writes `anfang` over the first bytes of the existing regular file `pfad` and syncs it.
bool ueberschreiben(const std::filesystem::path& pfad, const Bytes& anfang);

} // namespace datei
} // namespace fuh
