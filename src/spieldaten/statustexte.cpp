// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "spieldaten/statustexte.h"

namespace fuh {

std::optional<Text> pcStatustext(int PC) {
    switch (PC) {
    case 0:
        return Vorlage::pcFuchs;
    case 1:
        return Vorlage::pcHennen;
    case 2:
        return Vorlage::pcBeide;
    default:
        return std::nullopt;
    }
}

std::optional<Text> staerkeStatustext(int Staerke) {
    if (Staerke < 0 || Staerke > 2) return std::nullopt;
    return Text(Vorlage::staerke, {Text::zahl(Staerke + 1)});
}

std::optional<Text> staerkeStatustextDialog(int Staerke) {
    // The dialog has always written this one with a capital P; players know the status bar that way.
    if (Staerke == 2) return Vorlage::staerkeDialog;
    return staerkeStatustext(Staerke);
}

} // namespace fuh
