// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/ausgabe.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace fuh {

void standardkanaeleSichern() {
    for (int fd = 0; fd <= 2; ++fd) {
        if (::fcntl(fd, F_GETFD) != -1 || errno != EBADF) continue;
        const int neu = ::open("/dev/null", O_RDONLY);
        if (neu >= 0 && neu != fd) {
            ::dup2(neu, fd);
            ::close(neu);
        }
    }
}

int ausgabeAbschliessen(const std::string& programm, int status, std::ostream& aus, std::ostream& fehler) {
    errno = 0;
    aus.flush();
    int grund = aus ? 0 : (errno != 0 ? errno : EIO);
    // What went through C's stdio, and the descriptor itself: a write may fail only when it is closed.
    if (std::fflush(stdout) != 0 && grund == 0) grund = errno;
    if (std::ferror(stdout) && grund == 0) grund = EIO;
    if (std::fclose(stdout) != 0 && grund == 0) grund = errno;
    if (grund == 0) return status;
    fehler << programm << ": die Ausgabe konnte nicht geschrieben werden: " << std::strerror(grund) << '\n';
    fehler.flush();
    return status == 0 ? 1 : status;
}

} // namespace fuh
