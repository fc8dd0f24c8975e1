// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "player/meister.h"

#include <algorithm>

#include "player/meister_suche.h"

namespace fuh {

namespace {
Zugwahl alsZugwahl(const meister::Suchzug& z) {
    Zugwahl w;
    auto teil = [](int von, int nach) {
        return Teilzug{static_cast<int16_t>(von % 7), static_cast<int16_t>(von / 7),
                       static_cast<int16_t>(nach % 7), static_cast<int16_t>(nach / 7)};
    };
    if (z.spruenge == 0) {
        w.anhaengen(teil(z.von, z.nach[0]));
        return w;
    }
    int von = z.von;
    for (int i = 0; i < z.spruenge; ++i) {
        w.anhaengen(teil(von, z.nach[i]));
        von = z.nach[i];
    }
    return w;
}
} // namespace

Meister::Meister(uint32_t seed) : suche_(std::make_unique<meister::Suche>()), zufall_(seed) {}

Meister::~Meister() = default;

void Meister::grenzen(uint64_t knoten, int tiefe) {
    knotenGrenze_ = knoten;
    tiefenGrenze_ = std::max(0, tiefe);
}

void Meister::gewichte(const meister::Gewichte& g) {
    suche_->gewichte = g;
    suche_->vergessen();
}

Zugwahl Meister::berechne(const MeisterLage& lage) {
    const auto start = std::chrono::steady_clock::now();
    bericht_ = Bericht{};
    if (lage.seite != henne && lage.seite != fuchs) return Zugwahl{};
    const bool fuchsAmZug = lage.seite == fuchs;
    // Draws are valued for the side searched for, so the table is only good for that side.
    if (letzteSeite_ && *letzteSeite_ != fuchsAmZug) suche_->vergessen();
    letzteSeite_ = fuchsAmZug;

    meister::Auftrag a;
    a.brett = meister::Suchbrett::aus(lage.Feld, fuchsAmZug);
    a.spielzug = std::clamp(lage.spielzug, 0, meister::kZugbegrenzung);
    a.strafregel = lage.strafregel;
    a.start = start;
    a.budget = std::clamp(lage.bedenkzeit, kKuerzesteBedenkzeit, kLaengsteBedenkzeit);
    a.knotenGrenze = knotenGrenze_;
    a.tiefenGrenze = tiefenGrenze_;
    a.tafel = tafeln_.fuer(a.strafregel);

    const meister::Ergebnis e = suche_->wurzel(a, zufall_);
    bericht_ = Bericht{e.tiefe, e.wert, e.knoten};
    return e.gefunden ? alsZugwahl(e.zug) : Zugwahl{};
}

} // namespace fuh
