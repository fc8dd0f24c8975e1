// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A position with every square of the cross empty and no piece anywhere.
#include "board/stellung.h"

namespace fuh::test {

inline Stellung leeresKreuz() {
    Stellung s;
    s.grundstellung();
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (s.Feld[x][y] != 0) s.Feld[x][y] = leer;
    s.figurplatz.fill(0);
    return s;
}

} // namespace fuh::test
