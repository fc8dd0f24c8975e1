// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A view that remembers what the game showed, for tests.
#include <map>
#include <string>
#include <vector>

#include "game/ansicht.h"

namespace fuh::test {

struct TestAnsicht : Ansicht {
    std::vector<std::string> meldungen;
    std::map<int, std::string> panels;
    std::map<Hinweis, bool> hinweise;
    std::vector<Hinweis> gezeigt; // every label that was shown, in order
    std::vector<Fenster> fenster;

    void figurenZiehbar(bool) override {}
    void hinweis(Hinweis h, bool s) override {
        hinweise[h] = s;
        if (s) gezeigt.push_back(h);
    }
    // Kept in German, as the logs and files have them.
    void status(Statusfeld feld, const Text& text) override {
        panels[static_cast<int>(feld)] = deutsch(text);
    }
    void meldung(const Text& text) override { meldungen.push_back(deutsch(text)); }
    int zugbegrenzungen = 0;
    void zugbegrenzungErreicht() override { ++zugbegrenzungen; }
    void oeffnen(Fenster f) override { fenster.push_back(f); }
    int warteschritte = 0; // calls while waiting for the data folder's lock
    int wartezeiten = 0;   // waits that ended
    void wartetAufDateien(bool fertig) override { ++(fertig ? wartezeiten : warteschritte); }
};

} // namespace fuh::test
