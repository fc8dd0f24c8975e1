// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// What a screen reader learns of the board: its 33 points as children, each named by its coordinate
// and what stands on it ("d4: Henne"), the keyboard cursor's point as the focused child.
#include <QString>

namespace fuh {

class BrettFlaeche;

// Makes Qt describe every board through the interface here; call before the first board is shown.
void zugangEinrichten();

// The coordinate of a square as players write it: columns a to g from the left, rows 1 to 7 from the
// bottom.
QString feldName(int feld);
// What a screen reader says for a point of the cross.
QString punktName(const BrettFlaeche& brett, int feld);

// Tell screen readers that the cursor went from `alt` to `feld`, or that what stands on `feld` changed.
void zugangFokus(BrettFlaeche* brett, int alt, int feld);
void zugangNameGeaendert(BrettFlaeche* brett, int feld);

} // namespace fuh
