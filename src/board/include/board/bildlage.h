// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Where the drop targets and piece images stand, in twips (1/15 of a logical pixel).
#include <array>

#include "board/stellung.h"

namespace fuh {

inline constexpr int kTwipsProPixel = 15;
inline constexpr int kBildgroesse = 480; // every drop target and piece image is 480 x 480 twips

int platzLeft(int s);
int platzTop(int s);

// The piece images as the screen shows them; the position never depends on these.
struct Figurbilder {
    std::array<int, kFiguren> left{};
    std::array<int, kFiguren> top{};
    std::array<bool, kFiguren> sichtbar{};
    bool ziehbar = false; // drag mode automatic (true) or manual (false)

    // Every image on the drop target of its square, visible.
    void aufstellen(const Stellung& s);
    friend bool operator==(const Figurbilder&, const Figurbilder&) = default;
};

} // namespace fuh
