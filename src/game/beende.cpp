// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Filing a finished game: final credits, the learned-move merge, the statistics, the high-score list.
#include "game/spiel.h"
#include "spieldaten/statistikdatei.h"

namespace fuh {

void Spiel::beende() {
    // The game as it ended, to be filed later should the data folder stay locked.
    Sicherung ende{zustand(), {}, true};
    if (z_.ergebnis == Ergebnis::hennen) z_.partie.sanktion(3, -3, 1);
    if (z_.ergebnis == Ergebnis::fuchs) z_.partie.sanktion(-3, 3, 1);
    if (z_.ergebnis == Ergebnis::remis) z_.oeff.sw_spielende = false;
    if (!ohneDateien_) {
        ansicht_.hinweis(Hinweis::speichern_msg, true);
        meldeSchreibfehler(dateienSchreiben(std::move(ende)));
        ansicht_.hinweis(Hinweis::speichern_msg, false);
    }
    // Taking moves back could improve any score: such a game is filed and learned from, but not listed.
    if (z_.zurueckgenommen) {
        z_.oeff.sw_spielende = false;
        return;
    }
    const std::optional<Seite> mensch = menschenseite();
    if (mensch == Seite::Hennen) ansicht_.oeffnen(Fenster::highh);
    if (mensch == Seite::Fuchs) ansicht_.oeffnen(Fenster::highf);
}

std::vector<std::string> Spiel::dateienSchreiben(Sicherung ende) {
    std::vector<std::string> fehler;
    // One lock for the whole filing: another program using the files is waited for once.
    const datei::Ordnersperre sperre = ordnerSperren();
    if (!sperre.gehalten()) {
        // Nothing is written, so that the whole game can be filed later.
        if (z_.oeff.einst.Lernmodus == 1 && !spielerwahl_.zweiSpieler)
            fehler.emplace_back(lerndateiName(z_.oeff.einst.Staerke));
        fehler.emplace_back(kStatistikdatei);
        offeneAblage_ = std::move(ende);
        return fehler;
    }
    if (spielerwahl_.zweiSpieler) {
        // Two people teach the learned memory nothing, and only that their game was finished is counted.
        if (!zweiSpielerBeendet(ordner_)) fehler.emplace_back(kStatistikdatei);
        return fehler;
    }
    if (z_.oeff.einst.Lernmodus == 1) {
        const auto merge = lerndatei_.speichern(z_.partie, z_.oeff.einst.Staerke);
        z_.neueZuege = merge.neueZuege;
        if (!merge.geschrieben) fehler.emplace_back(lerndateiName(z_.oeff.einst.Staerke));
    }
    if (!statistik(ordner_, static_cast<int>(z_.ergebnis), z_.oeff.einst, z_.neueZuege))
        fehler.emplace_back(kStatistikdatei);
    return fehler;
}

void Spiel::ablegen(const Sicherung& s) {
    verlauf_.clear();
    offeneAblage_.reset();
    zustandSetzen(s.stand);
    beende();
}

} // namespace fuh
