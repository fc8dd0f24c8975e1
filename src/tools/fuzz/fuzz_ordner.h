// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The one data folder of a fuzz run: created once, removed at exit; each input becomes a file in it.
#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace fuh::fuzz {

inline const std::filesystem::path& ordner() {
    static const std::filesystem::path pfad = [] {
        std::string vorlage = (std::filesystem::temp_directory_path() / "fuh-fuzz-XXXXXX").string();
        if (::mkdtemp(vorlage.data()) == nullptr) std::abort();
        return std::filesystem::path(vorlage);
    }();
    static const struct Aufraeumen {
        ~Aufraeumen() {
            std::error_code ec;
            std::filesystem::remove_all(pfad, ec);
        }
    } aufraeumen;
    return pfad;
}

// Replaces the file `name` by the input, in place, as another program writing the file would.
inline void alsDatei(const char* name, const uint8_t* daten, std::size_t n) {
    const int fd = ::open((ordner() / name).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) std::abort();
    if (n > 0 && ::write(fd, daten, n) != static_cast<ssize_t>(n)) std::abort();
    ::close(fd);
}

} // namespace fuh::fuzz
