// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The folder of its own that `selbstspiel --fortsetzen-pruefen` saves its game in, in the temporary
// folder ($TMPDIR, normally /tmp). It is locked (flock) while the run lives and removed at its end, also
// when a signal stops the run; a folder left by a run that was killed (SIGKILL) holds no lock, and the
// next run removes it.
#include <filesystem>
#include <signal.h>
#include <string>

#include "dateischicht/dateizugriff.h"

namespace fuh {

class Zwischenordner {
  public:
    // Throws std::runtime_error when no folder can be made.
    Zwischenordner();
    ~Zwischenordner();
    Zwischenordner(const Zwischenordner&) = delete;
    Zwischenordner& operator=(const Zwischenordner&) = delete;
    const std::filesystem::path& pfad() const { return pfad_; }

  private:
    std::filesystem::path pfad_;
    datei::Deskriptor sperre_;
};

// Removes the folders in `tmp` that earlier runs of this user left behind: named like ours and locked by
// nobody. Only the files such a run makes are removed from them; a folder holding anything else stays.
void zwischenordnerAufraeumen(const std::filesystem::path& tmp);

// SIGINT, SIGTERM, SIGHUP and SIGPIPE stay blocked while the object lives and are asked for between moves,
// so that a stopped run still cleans up; it then ends as the signal would have ended it.
class Signalsperre {
  public:
    Signalsperre();
    ~Signalsperre();
    Signalsperre(const Signalsperre&) = delete;
    Signalsperre& operator=(const Signalsperre&) = delete;
    // The pending signal, or 0.
    int angefordert() const;
    // Ends the process as the signal `s` would have (whatever is blocked then).
    [[noreturn]] static void weitergeben(int s);

  private:
    sigset_t signale_{}, vorher_{};
};

// Thrown between two moves when a signal came; the run unwinds (removing its folder) and the program then
// passes the signal on.
struct Signalabbruch {
    int signal;
};

} // namespace fuh
