// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "board/bildlage.h"

namespace fuh {

namespace {
constexpr std::array<std::array<int, 7>, 7> kLinks = {{{165, 1005, 1860, 2730, 3560, 4420, 5280},
                                                       {165, 1000, 1860, 2730, 3560, 4420, 5280},
                                                       {170, 1000, 1860, 2730, 3560, 4420, 5280},
                                                       {170, 1000, 1860, 2730, 3560, 4440, 5280},
                                                       {170, 1000, 1860, 2730, 3560, 4420, 5280},
                                                       {170, 1005, 1860, 2730, 3555, 4425, 5280},
                                                       {165, 1005, 1860, 2730, 3560, 4440, 5280}}};
constexpr int kOben = 240;
constexpr int kZeilenabstand = 840;
} // namespace

int platzLeft(int s) {
    return kLinks[feldY(s)][feldX(s)];
}
int platzTop(int s) {
    return kOben + kZeilenabstand * feldY(s);
}

void Figurbilder::aufstellen(const Stellung& s) {
    for (int k = 0; k < kFiguren; ++k) {
        left[k] = platzLeft(s.figurplatz[k]);
        top[k] = platzTop(s.figurplatz[k]);
        sichtbar[k] = true;
    }
}

} // namespace fuh
