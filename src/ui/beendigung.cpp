// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/beendigung.h"

#include <QSocketNotifier>
#include <array>
#include <csignal>

#include <sys/socket.h>
#include <unistd.h>

namespace fuh {

namespace {

// A signal handler may do next to nothing: it writes one byte, and the event loop reads it. The socket
// is the handler's only way to the loop, so it lives in a variable of its own, as does what came.
int signalSocket = -1;
bool verlangt = false;

void signalMelden(int) {
    const char zeichen = 1;
    const ssize_t n = ::write(signalSocket, &zeichen, 1); // a full socket already holds a wake-up
    static_cast<void>(n);
}

} // namespace

void signaleBeendenLassen(QCoreApplication& app) {
    if (signalSocket >= 0) return;
    std::array<int, 2> paar{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, paar.data()) != 0) return;
    signalSocket = paar[0];
    auto* melder = new QSocketNotifier(paar[1], QSocketNotifier::Read, &app);
    QObject::connect(melder, &QSocketNotifier::activated, &app, [melder] {
        std::array<char, 16> puffer{};
        while (::read(static_cast<int>(melder->socket()), puffer.data(), puffer.size()) > 0) {
        }
        verlangt = true;
        QCoreApplication::exit(0); // also a dialog's loop, and before the main loop runs
    });
    struct sigaction aktion {};
    aktion.sa_handler = signalMelden;
    sigemptyset(&aktion.sa_mask);
    aktion.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGHUP, SIGINT})
        ::sigaction(signal, &aktion, nullptr);
}

bool beendenVerlangt() {
    return verlangt;
}

} // namespace fuh
