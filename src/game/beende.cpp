// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Filing a finished game: final credits, the learned-move merge, the statistics, the high-score list.
#include "dialogs/statistikdatei.h"
#include "game/spiel.h"

namespace fuh {

void Spiel::beende() {
    if (ergebnis_ == Ergebnis::hennen) partie_.sanktion(3, -3, 1);
    if (ergebnis_ == Ergebnis::fuchs) partie_.sanktion(-3, 3, 1);
    if (ergebnis_ == Ergebnis::remis) oeff_.sw_spielende = false;
    ansicht_.hinweis(Hinweis::speichern_msg, true);
    std::vector<std::string> fehler;
    {
        // One lock for the whole filing: another program using the files is waited for once.
        const datei::Ordnersperre sperre = ordnerSperren();
        if (oeff_.einst.Lernmodus == 1) {
            const auto merge = lerndatei_.speichern(partie_, oeff_.einst.Staerke);
            neueZuege_ = merge.neueZuege;
            if (!merge.geschrieben) fehler.emplace_back(lerndateiName(oeff_.einst.Staerke));
        }
        if (!statistik(ordner_, static_cast<int>(ergebnis_), oeff_.einst, neueZuege_))
            fehler.emplace_back(kStatistikdatei);
    }
    meldeSchreibfehler(fehler);
    ansicht_.hinweis(Hinweis::speichern_msg, false);
    if (oeff_.einst.computer() == Computer::fuchs) ansicht_.oeffnen(Fenster::highh);
    if (oeff_.einst.computer() == Computer::hennen) ansicht_.oeffnen(Fenster::highf);
}

} // namespace fuh
