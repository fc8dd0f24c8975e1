// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/meisterquellen.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "tools/zugprotokoll.h"

extern char** environ;

namespace fuh {

std::string tafelnText(const Endspieltafeln& t) {
    auto ja = [](const auto& tafel) { return tafel ? std::string("ja") : std::string("nein"); };
    return "Endspieltafeln dieses Meisters: mit Strafregel " + ja(t.mitStrafregel) + ", ohne " +
           ja(t.ohneStrafregel);
}

Zugwahl MeisterQuelle::waehle(const Brettfeld& Feld, int16_t seite, const Partie& partie) {
    if (!meister_) neuePartie(1);
    // The computer plays both sides, so the penalty rule holds.
    return meister_->berechne({Feld, seite, partie.spielzug, true, bedenkzeit_});
}

FremdeQuelle::FremdeQuelle(const std::string& programm, std::chrono::milliseconds bedenkzeit)
    : programm_(programm), bedenkzeit_(bedenkzeit) {
    int zu[2], von[2];
    if (pipe(zu) != 0) throw Gegnerfehler{std::strerror(errno)};
    if (pipe(von) != 0) {
        for (int fd : zu)
            close(fd);
        throw Gegnerfehler{std::strerror(errno)};
    }
    posix_spawn_file_actions_t aktionen;
    posix_spawn_file_actions_init(&aktionen);
    posix_spawn_file_actions_adddup2(&aktionen, zu[0], 0);
    posix_spawn_file_actions_adddup2(&aktionen, von[1], 1);
    for (int fd : {zu[0], zu[1], von[0], von[1]})
        posix_spawn_file_actions_addclose(&aktionen, fd);
    std::string name = programm, schalter = "--dienen";
    char* argv[] = {name.data(), schalter.data(), nullptr};
    const int fehler = posix_spawn(&pid_, programm.c_str(), &aktionen, nullptr, argv, environ);
    posix_spawn_file_actions_destroy(&aktionen);
    close(zu[0]);
    close(von[1]);
    zu_ = fdopen(zu[1], "w");
    von_ = fdopen(von[0], "r");
    if (fehler != 0 || !zu_ || !von_) {
        if (fehler != 0) pid_ = -1;
        schliessen();
        throw Gegnerfehler{programm + ": " + std::strerror(fehler != 0 ? fehler : errno)};
    }
}

FremdeQuelle::~FremdeQuelle() {
    schliessen();
}

void FremdeQuelle::schliessen() {
    if (zu_) std::fclose(zu_); // its input ends, and so does it
    if (von_) std::fclose(von_);
    zu_ = von_ = nullptr;
    if (pid_ > 0) waitpid(pid_, nullptr, 0);
    pid_ = -1;
}

std::string FremdeQuelle::frage(const std::string& zeile) {
    // A program that has gone must not end the match through SIGPIPE.
    const sighandler_t vorher = ::signal(SIGPIPE, SIG_IGN);
    const bool geschrieben = std::fprintf(zu_, "%s\n", zeile.c_str()) > 0 && std::fflush(zu_) == 0;
    ::signal(SIGPIPE, vorher);
    std::string antwort;
    for (int c; geschrieben && (c = std::fgetc(von_)) != EOF && c != '\n';)
        antwort += static_cast<char>(c);
    if (!geschrieben || std::feof(von_)) throw Gegnerfehler{programm_ + ": keine Antwort"};
    return antwort;
}

void FremdeQuelle::neuePartie(uint32_t seed) {
    const std::string antwort = frage("neu " + std::to_string(seed));
    if (antwort != "ok") throw Gegnerfehler{programm_ + ": " + antwort};
}

Zugwahl FremdeQuelle::waehle(const Brettfeld& Feld, int16_t seite, const Partie& partie) {
    const std::string antwort = frage(anfrageZeile({Feld, seite, partie.spielzug, true, bedenkzeit_}));
    const auto w = antwortLesen(antwort);
    if (!w) throw Gegnerfehler{programm_ + ": " + antwort};
    return *w;
}

} // namespace fuh
