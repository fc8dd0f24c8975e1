// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// What a computer player may ask the learning memory: the learned value of a position, read only.
#include <cstdint>

#include "board/stellung.h"
#include "memory/lerndatei.h"
#include "memory/partie.h"

namespace fuh {

class Erinnerung {
  public:
    // Values from the learned-move file of `Staerke`, with the repetition guard over `partie`.
    Erinnerung(const Lerndatei& datei, int Staerke, const Partie& partie)
        : datei_(datei), Staerke_(Staerke), partie_(partie) {}

    int16_t operator()(const Brettfeld& Feld, int16_t figur) const {
        return datei_.erinnern(Feld, figur, Staerke_, partie_);
    }

  private:
    const Lerndatei& datei_;
    int Staerke_;
    const Partie& partie_;
};

} // namespace fuh
