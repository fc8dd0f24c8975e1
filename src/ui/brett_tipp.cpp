// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The hint and the choice of the Meister in the main window.
#include <vector>

#include "game/spiel.h"
#include "ui/ansage.h"
#include "ui/brett_fenster.h"
#include "ui/brett_flaeche.h"

namespace fuh {

namespace {
constexpr int kTippDauer = 3000; // ms a hint stays marked, unless the player moves first
}

void BrettFenster::spielerSetzen(const Spielerauswahl& auswahl) {
    auswahl_ = auswahl;
    fensterEinstellungen().setValue(QStringLiteral("meister"), auswahl.meister);
    fensterEinstellungen().setValue(QStringLiteral("zweiSpieler"), auswahl.zweiSpieler);
    spielerAnwenden();
}

void BrettFenster::spielerAnwenden() {
    Spielerwahl wahl;
    wahl.zweiSpieler = auswahl_.zweiSpieler;
    if (auswahl_.meister) {
        wahl.fuchs = wahl.hennen = Spieler{2, true}; // learns and counts as strength 3
        wahl.meisterSeed = startzeit_;
    }
    spiel_->spielerFestlegen(wahl);
}

void BrettFenster::tippZeigen() {
    if (beschaeftigt() || !spiel_->tippMoeglich()) return;
    const Zugwahl wahl = spiel_->tipp();
    if (wahl.keinZug()) return;
    std::vector<int> felder{feldNummer(wahl.begin()->vonX, wahl.begin()->vonY)};
    for (const Teilzug& z : wahl)
        felder.push_back(feldNummer(z.nachX, z.nachY));
    ansage_->tipp(felder, spiel_->tippUrteil());
    brett_->tippZeigen(std::move(felder));
    tippUhr_.start(kTippDauer);
}

} // namespace fuh
