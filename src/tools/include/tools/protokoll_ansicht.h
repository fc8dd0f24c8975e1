// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A view without a window: it writes the game's events to a log.
#include <functional>
#include <ostream>
#include <utility>

#include "game/ansicht.h"
#include "spieldaten/oeffentlich.h"

namespace fuh {

class ProtokollAnsicht : public Ansicht {
  public:
    using Speicherfehler = std::function<void(const std::string&)>;

    // `spiel` is read when a high-score list would open; `aus` is null when nothing is logged. Files that
    // could not be saved are logged as messages and also handed to `beiSpeicherfehler`.
    ProtokollAnsicht(const Oeffentlich*& spiel, std::ostream* aus, Speicherfehler beiSpeicherfehler = {})
        : spiel_(spiel), aus_(aus), beiSpeicherfehler_(std::move(beiSpeicherfehler)) {}

    void figurenZiehbar(bool) override {}
    void hinweis(Hinweis, bool) override {}
    void status(Statusfeld, const Text&) override {}
    // Messages are logged in German, whatever language a window would speak.
    void meldung(const Text& text) override;
    void speicherfehler(const Text& text) override;
    void oeffnen(Fenster f) override;
    void zugAusgefuehrt(int vonX, int vonY, int nachX, int nachY, bool normal) override;

  private:
    const Oeffentlich*& spiel_;
    std::ostream* aus_;
    Speicherfehler beiSpeicherfehler_;
};

} // namespace fuh
