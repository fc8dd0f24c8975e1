// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
#include <gtest/gtest.h>

#include "game/spiel.h"
#include "temp_ordner.h"
#include "test_ansicht.h"
#include "versetzen.h"

namespace fuh::test {

struct SpielTest : ::testing::Test {
    TempOrdner ordner;
    TestAnsicht ansicht;
    Zufall zufall{777};
    Spiel spiel{ansicht, zufall, ordner.pfad()};

    // The settings file as the settings dialog writes it.
    void ini(int16_t PC, int16_t Staerke = 0, int16_t Lernmodus = 0, int16_t Einzelzug = 0) {
        std::vector<unsigned char> b;
        for (int16_t v : {PC, Staerke, Lernmodus, Einzelzug}) {
            b.push_back(static_cast<unsigned char>(v & 0xFF));
            b.push_back(static_cast<unsigned char>((v >> 8) & 0xFF));
        }
        ordner.schreibe("QZ.INI", b);
    }
    // These settings, the program started and a game begun.
    void starten(int16_t PC, int16_t Staerke = 0, int16_t Lernmodus = 0, int16_t Einzelzug = 0) {
        ini(PC, Staerke, Lernmodus, Einzelzug);
        spiel.programmStart(1);
        spiel.neuesSpiel();
    }
    // Changes the settings of the running game, as the dialog does.
    void einstellen(int16_t PC, int16_t Einzelzug, int16_t Staerke = 0, int16_t Lernmodus = 0) {
        spiel.einstellungenUebernehmen(Einstellungen{PC, Staerke, Lernmodus, Einzelzug});
    }
    // Drags the piece standing on square `von` onto square `nach`.
    void ziehe(int von, int nach) {
        const auto k = figur_index(spiel.stellung(), von);
        ASSERT_TRUE(k.has_value()) << "no piece on " << von;
        spiel.abgelegt(nach, *k);
    }
    void ziehe(int vx, int vy, int nx, int ny) { ziehe(feldNummer(vx, vy), feldNummer(nx, ny)); }
    void versetzen(int von, int nach) { ASSERT_TRUE(test::versetzen(spiel, von, nach)) << von; }
    int16_t statistik(int i) {
        const auto b = ordner.lies("QZ.sta");
        return static_cast<int16_t>(b.at(2 * i) | (b.at(2 * i + 1) << 8));
    }
};

} // namespace fuh::test
