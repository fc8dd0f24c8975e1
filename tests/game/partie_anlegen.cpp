// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// partie_anlegen FOLDER: saves a running game (the player's hens, three moves in) into FOLDER, as the
// window does when the program ends; for the tests of the real program.
#include "game/partiedatei.h"
#include "mensch.h"
#include "temp_ordner.h"
#include "test_ansicht.h"

int main(int argc, char** argv) {
    using namespace fuh;
    if (argc != 2) return 2;
    test::TempOrdner daten;
    test::TestAnsicht ansicht;
    Zufall zufall(7);
    Spiel spiel(ansicht, zufall, daten.pfad());
    spiel.einstellungenFestlegen({0, 0, 0, 0});
    spiel.programmStart(1);
    spiel.neuesSpiel();
    Zufall mensch(3);
    for (int i = 0; i < 3; ++i) {
        test::menschZieht(spiel, mensch);
        spiel.computerZieht();
    }
    return spiel.laeuft() && Partieablage(argv[1]).sichern(spiel.sicherung()) ? 0 : 1;
}
