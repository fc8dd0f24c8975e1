// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "spieldaten/statustexte.h"

namespace fuh {

std::optional<std::string> pcStatustext(int PC) {
    switch (PC) {
    case 0:
        return FUH_TR_NOOP("Kern", "PC spielt Fuchs");
    case 1:
        return FUH_TR_NOOP("Kern", "PC spielt Hennen");
    case 2:
        return FUH_TR_NOOP("Kern", "PC spielt Fuchs und Hennen");
    default:
        return std::nullopt;
    }
}

std::optional<std::string> staerkeStatustext(int Staerke) {
    if (Staerke < 0 || Staerke > 2) return std::nullopt;
    return einsetzen(kStaerkeStatustext, {std::to_string(Staerke + 1)});
}

std::optional<std::string> staerkeStatustextDialog(int Staerke) {
    // The dialog has always written this one with a capital P; players know the status bar that way.
    if (Staerke == 2) return FUH_TR_NOOP("Kern", "SPielstärke 3");
    return staerkeStatustext(Staerke);
}

} // namespace fuh
