// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// One step or one jump: where a piece comes from and where it goes. The game's move register holds one.
#include <cstdint>
#include <cstdlib>

namespace fuh {

struct Teilzug {
    int16_t vonX = 0, vonY = 0, nachX = 0, nachY = 0;

    // A move over a distance of two in a column or a row.
    bool sprung() const { return std::abs(vonX - nachX) == 2 || std::abs(vonY - nachY) == 2; }
    friend bool operator==(const Teilzug&, const Teilzug&) = default;
};

} // namespace fuh
