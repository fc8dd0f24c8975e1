// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The data folder's lock. A lock taken for a whole task (filing a game) covers the writes inside it, so
// the task waits for another program once at most.
#include <fcntl.h>
#include <sys/file.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <mutex>
#include <thread>
#include <vector>

#include "dateischicht/dateizugriff.h"

namespace fuh::datei {

namespace {

std::atomic<long> sperrfristMs{5000};

// The folders this process is locking, per thread. flock conflicts between two descriptors of the same
// process as well, so a nested lock must know that an outer one already holds the folder.
struct Sperrstand {
    dev_t dev;
    ino_t ino;
    std::thread::id faden;
    int anzahl;    // live Ordnersperre objects on this folder and thread
    bool gehalten; // one of them holds the flock
};

struct Sperrliste {
    std::mutex mutex;
    std::vector<Sperrstand> staende;

    std::vector<Sperrstand>::iterator finde(dev_t dev, ino_t ino) {
        const auto faden = std::this_thread::get_id();
        return std::find_if(staende.begin(), staende.end(), [&](const Sperrstand& s) {
            return s.dev == dev && s.ino == ino && s.faden == faden;
        });
    }
};

Sperrliste& sperrliste() {
    static Sperrliste liste; // the process's locks, as the kernel sees them
    return liste;
}

// Polling instead of a blocking flock: the wait must end after the time limit, without signals.
bool nehmen(int fd, std::chrono::milliseconds frist, const Wartehaken& warten) {
    const auto ende = std::chrono::steady_clock::now() + frist;
    auto pause = std::chrono::microseconds(200);
    bool gewartet = false;
    bool ok = false;
    for (;;) {
        if (::flock(fd, LOCK_EX | LOCK_NB) == 0) {
            ok = true;
            break;
        }
        if ((errno != EWOULDBLOCK && errno != EINTR) || std::chrono::steady_clock::now() >= ende) break;
        if (warten) warten(false);
        gewartet = true;
        std::this_thread::sleep_for(pause);
        pause = std::min(pause * 2, std::chrono::microseconds(5000));
    }
    if (gewartet && warten) warten(true);
    return ok;
}

} // namespace

void sperrfristSetzen(std::chrono::milliseconds frist) {
    sperrfristMs = static_cast<long>(frist.count());
}

Ordnersperre::Ordnersperre(const std::filesystem::path& ordner, const Wartehaken& warten)
    : ordner_(::open(ordner.empty() ? "." : ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    struct stat st {};
    if (!ordner_ || ::fstat(ordner_.fd(), &st) != 0) return;
    dev_ = st.st_dev;
    ino_ = st.st_ino;
    auto frist = std::chrono::milliseconds(sperrfristMs.load());
    {
        Sperrliste& liste = sperrliste();
        const std::lock_guard<std::mutex> g(liste.mutex);
        eingetragen_ = true;
        const auto s = liste.finde(dev_, ino_);
        if (s == liste.staende.end()) {
            liste.staende.push_back({dev_, ino_, std::this_thread::get_id(), 1, false});
        } else {
            ++s->anzahl;
            if (s->gehalten) {
                gehalten_ = true;
                return;
            }
            frist = std::chrono::milliseconds(0); // the outer lock has waited already: one try
        }
    }
    eigen_ = gehalten_ = nehmen(ordner_.fd(), frist, warten);
    if (eigen_) {
        Sperrliste& liste = sperrliste();
        const std::lock_guard<std::mutex> g(liste.mutex);
        liste.finde(dev_, ino_)->gehalten = true;
    }
}

Ordnersperre::~Ordnersperre() {
    if (!eingetragen_) return;
    Sperrliste& liste = sperrliste();
    const std::lock_guard<std::mutex> g(liste.mutex);
    const auto s = liste.finde(dev_, ino_);
    if (eigen_) s->gehalten = false; // the flock goes with the descriptor, right after this
    if (--s->anzahl == 0) liste.staende.erase(s);
}

} // namespace fuh::datei
