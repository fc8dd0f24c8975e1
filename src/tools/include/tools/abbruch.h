// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// SIGINT, SIGTERM and SIGHUP stay blocked and are asked for between moves, so that a stopped run still
// cleans up after itself.
#include <signal.h>

#include <cstdlib>

namespace fuh {

class Abbruch {
  public:
    Abbruch() {
        sigemptyset(&signale_);
        sigaddset(&signale_, SIGINT);
        sigaddset(&signale_, SIGTERM);
        sigaddset(&signale_, SIGHUP);
        sigprocmask(SIG_BLOCK, &signale_, &vorher_);
    }
    // The pending signal, or 0.
    int angefordert() const {
        const timespec sofort{};
        const int s = sigtimedwait(&signale_, nullptr, &sofort);
        return s > 0 ? s : 0;
    }
    // Ends the process as the signal would have.
    [[noreturn]] void weitergeben(int s) const {
        ::signal(s, SIG_DFL);
        sigprocmask(SIG_SETMASK, &vorher_, nullptr);
        raise(s);
        std::_Exit(128 + s);
    }

  private:
    sigset_t signale_{}, vorher_{};
};

} // namespace fuh
