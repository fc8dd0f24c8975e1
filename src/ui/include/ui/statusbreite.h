// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// How wide the status bar must be so that its fields for the side, the strength, the points and a
// take-back show the longest texts the game puts there, in the language in use.
#include <array>

class QLabel;
class QStatusBar;

namespace fuh {

// The width `leiste` needs, laid out in its window as it is now, for `felder` (side, strength, points,
// take-back) to show their longest texts in full, all at once. The fields keep their texts and whether
// they are shown.
int statusleistenBreite(QStatusBar& leiste, const std::array<QLabel*, 4>& felder);

} // namespace fuh
