// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The computer fox: jumps first, then approach moves guided by spreading potentials, then plain moves.
#include "board/stellung.h"
#include "board/zufall.h"
#include "player/erinnerung.h"
#include "player/zugwahl.h"

namespace fuh {

// The foxes' move on `Feld`: the best jump and, as long as the same fox can jump on, the chain after it;
// else an approach move; else a plain move. Every candidate worth at least 1 is first corrected by the
// learned value of the position it leads to. Ties are broken by `zufall`. No move: an empty choice.
Zugwahl berechneFuchs(const Brettfeld& Feld, const Erinnerung& erinnerung, Zufall& zufall);

// The foxes' reply as the hen player predicts it: the same choice without learned values, played on `Feld`.
void fuchsVorhersage(Brettfeld& Feld, Zufall& zufall);

} // namespace fuh
