// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The Meister as a move source for the referee: this build's, in the same process, or another build's,
// served by its `selbstspiel --dienen` through the line protocol.
#include <sys/types.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <string>

#include "player/meister.h"
#include "tools/schiedsrichter.h"

namespace fuh {

class MeisterQuelle : public Zugquelle {
  public:
    MeisterQuelle(std::chrono::milliseconds bedenkzeit, Endspieltafeln tafeln)
        : bedenkzeit_(bedenkzeit), tafeln_(std::move(tafeln)) {}
    void neuePartie(uint32_t seed) override {
        meister_ = std::make_unique<Meister>(seed);
        meister_->endspieltafeln(tafeln_);
    }
    Zugwahl waehle(const Brettfeld& Feld, int16_t seite, const Partie& partie) override;

  private:
    std::chrono::milliseconds bedenkzeit_;
    Endspieltafeln tafeln_;
    std::unique_ptr<Meister> meister_;
};

// Which endgame tables this build's Meister has, as a line of the match's header.
std::string tafelnText(const Endspieltafeln& t);

// A failure of the other program: it could not be started, ended, or answered out of protocol.
struct Gegnerfehler {
    std::string was;
};

class FremdeQuelle : public Zugquelle {
  public:
    // Starts `programm --dienen`; throws Gegnerfehler when it cannot.
    FremdeQuelle(const std::string& programm, std::chrono::milliseconds bedenkzeit);
    ~FremdeQuelle() override;
    FremdeQuelle(const FremdeQuelle&) = delete;
    FremdeQuelle& operator=(const FremdeQuelle&) = delete;

    void neuePartie(uint32_t seed) override;
    Zugwahl waehle(const Brettfeld& Feld, int16_t seite, const Partie& partie) override;

  private:
    std::string frage(const std::string& zeile);
    void schliessen();

    std::string programm_;
    std::chrono::milliseconds bedenkzeit_;
    pid_t pid_ = -1;
    std::FILE* zu_ = nullptr;  // its standard input
    std::FILE* von_ = nullptr; // its standard output
};

} // namespace fuh
