// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// What a computer player returns: the move it chose, which the game then carries out.
#include <array>

#include "board/stellung.h"
#include "board/teilzug.h"

namespace fuh {

// A hen step, a fox step, or a fox's chain of jumps (each jump from where the one before landed).
// No moves at all: the side to move found none.
struct Zugwahl {
    std::array<Teilzug, kLaengsteKette> zuege{};
    int anzahl = 0;

    bool keinZug() const { return anzahl == 0; }
    void anhaengen(const Teilzug& z) {
        if (anzahl < kLaengsteKette) zuege[static_cast<std::size_t>(anzahl++)] = z;
    }
    const Teilzug* begin() const { return zuege.data(); }
    const Teilzug* end() const { return zuege.data() + anzahl; }
    friend bool operator==(const Zugwahl& a, const Zugwahl& b) {
        if (a.anzahl != b.anzahl) return false;
        for (int i = 0; i < a.anzahl; ++i)
            if (!(a.zuege[static_cast<std::size_t>(i)] == b.zuege[static_cast<std::size_t>(i)])) return false;
        return true;
    }
};

} // namespace fuh
