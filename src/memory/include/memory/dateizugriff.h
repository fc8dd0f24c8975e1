// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// POSIX building blocks of the file layer: descriptors that close themselves, opening nothing but regular
// files and never blocking, whole reads and writes, the data folder's lock, and replacing a file atomically
// while keeping its identity (symbolic link, mode, owner).
#include <sys/stat.h>
#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
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

// Opens `pfad` (through a symbolic link) with `modus` (O_RDONLY, O_WRONLY or O_RDWR) without blocking:
// a FIFO, device, folder or socket in its place is refused. A missing file is created empty when
// `anlegen`. `st` receives the open file's status. Invalid when the file cannot be opened.
Deskriptor regulaerOeffnen(const char* pfad, int modus, bool anlegen, struct stat& st);

// Reads the file from its start, at most `hoechstens` bytes, into `b`. False on a read error.
bool lesen(int fd, Bytes& b, std::size_t hoechstens);
// Reads up to `n` bytes at `pos` into `ziel`; the count read, or -1 on an error.
long lesenAb(int fd, uint8_t* ziel, std::size_t n, off_t pos);
// Writes all `n` bytes at `pos`. False on an error.
bool schreiben(int fd, const uint8_t* daten, std::size_t n, off_t pos);

// The lock of one data folder: flock on the folder itself, so no lock file is left behind. Every
// read-modify-write of a data file holds it; it is released when the object goes (or the process dies).
class Ordnersperre {
  public:
    explicit Ordnersperre(const std::filesystem::path& ordner);
    bool gehalten() const { return gehalten_; }

  private:
    Deskriptor ordner_;
    bool gehalten_ = false;
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
