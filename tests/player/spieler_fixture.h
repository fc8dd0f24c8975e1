// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Hand-built positions for the computer players, with an empty data folder to learn from.
#include <gtest/gtest.h>

#include <initializer_list>

#include "board/zufall.h"
#include "leeres_kreuz.h"
#include "memory/lerndatei.h"
#include "memory/partie.h"
#include "player/erinnerung.h"
#include "temp_ordner.h"

namespace fuh::test {

struct SpielerTest : ::testing::Test {
    TempOrdner ordner;
    Lerndatei lerndatei{ordner.pfad()};
    Partie partie;
    Stellung s = leeresKreuz();
    Zufall zufall{12345};

    struct Platz {
        int16_t figur; // fuchs or henne
        int x, y;
    };
    // An otherwise empty cross with just these pieces.
    void aufstellen(std::initializer_list<Platz> figuren) {
        s = leeresKreuz();
        for (const Platz& p : figuren)
            s.Feld[p.x][p.y] = p.figur;
    }
    Erinnerung erinnerung(int Staerke = 0) const { return {lerndatei, Staerke, partie}; }
};

} // namespace fuh::test
