// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Another program holding a data folder's lock: a child process that takes the flock and keeps it until
// the object goes.
#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace fuh::test {

class FremdeSperre {
  public:
    explicit FremdeSperre(const std::filesystem::path& ordner) {
        int bereit[2];
        if (::pipe(bereit) != 0 || ::pipe(freigabe_) != 0) std::abort();
        kind_ = ::fork();
        if (kind_ == 0) {
            const int fd = ::open(ordner.c_str(), O_RDONLY | O_DIRECTORY);
            char c = fd >= 0 && ::flock(fd, LOCK_EX) == 0 ? 'j' : 'n';
            static_cast<void>(::write(bereit[1], &c, 1));
            ::close(freigabe_[1]);
            static_cast<void>(::read(freigabe_[0], &c, 1)); // returns when the parent lets go
            ::_exit(0);
        }
        ::close(bereit[1]);
        ::close(freigabe_[0]);
        char c = 'n';
        gehalten_ = ::read(bereit[0], &c, 1) == 1 && c == 'j';
        ::close(bereit[0]);
    }
    ~FremdeSperre() {
        ::close(freigabe_[1]);
        int status = 0;
        ::waitpid(kind_, &status, 0);
    }
    FremdeSperre(const FremdeSperre&) = delete;
    FremdeSperre& operator=(const FremdeSperre&) = delete;
    bool gehalten() const { return gehalten_; }

  private:
    pid_t kind_ = -1;
    int freigabe_[2] = {-1, -1};
    bool gehalten_ = false;
};

} // namespace fuh::test
