// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/selbstspiel_lauf.h"

#include <vector>

#include "board/regeln.h"
#include "game/spiel.h"
#include "tools/protokoll_ansicht.h"

namespace fuh {

namespace {
// One thing the random human can do: drop piece k on square t, or press the right button (t < 0).
struct Kandidat {
    int k;
    int t;
};

std::vector<Kandidat> kandidaten(const Spiel& spiel) {
    std::vector<Kandidat> liste;
    const Stellung& s = spiel.stellung();
    const Computer PC = spiel.oeffentlich().einst.computer();
    for (int k = 0; k < kFiguren; ++k) {
        const int von = s.figurplatz[k];
        if (von == 0) continue;
        for (int t = 0; t < kFelder; ++t)
            if (korrekterZug(s.Feld, PC, spiel.sprungfolge(), feldX(von), feldY(von), feldX(t), feldY(t)))
                liste.push_back({k, t});
    }
    if (spiel.sprungfolge().imSprung) liste.push_back({0, -1});
    return liste;
}

// The human's turns and the timer's replies alternate until an end is announced. False: abandoned.
bool menschSpielt(Spiel& spiel, Zufall& zufall) {
    while (!spiel.endeGefunden()) {
        const auto liste = kandidaten(spiel);
        if (liste.empty()) return false;
        const Kandidat c = liste[static_cast<std::size_t>(zufall.ziehe(static_cast<int>(liste.size())) - 1)];
        if (c.t < 0)
            spiel.figur_MouseDown(c.k, Maustaste::rechts);
        else
            spiel.platz_DragDrop(c.t, c.k);
        if (!spiel.endeGefunden()) spiel.Timer1_Timer();
    }
    return true;
}
} // namespace

Summe selbstspiel(const Optionen& o, uint32_t seed, const std::filesystem::path& ordner, std::ostream& aus,
                  Beobachter* beobachter) {
    Summe summe;
    Zufall zufall(seed);
    const Oeffentlich* oeffentlich = nullptr;
    ProtokollAnsicht ansicht(oeffentlich, o.protokoll ? &aus : nullptr, [&](const std::string& text) {
        ++summe.nichtGespeichert;
        if (beobachter) beobachter->nichtGespeichert(text);
    });
    Spiel spiel(ansicht, zufall, ordner);
    oeffentlich = &spiel.oeffentlich();
    Einstellungen e;
    e.PC = static_cast<int16_t>(o.pc);
    e.Staerke = static_cast<int16_t>(o.staerke - 1);
    e.Lernmodus = o.lernen ? 1 : 0;
    spiel.einstellungenFestlegen(e);
    Spielerwahl spieler = o.spieler;
    spieler.meisterSeed = seed;
    spiel.spielerFestlegen(spieler);
    for (uint64_t n = 1; n <= o.spiele; ++n) {
        if (o.protokoll) aus << "spiel " << n << '\n';
        spiel.Neu_Click();
        bool beendet = spiel.endeGefunden();
        if (!beendet && o.pc != 2) beendet = menschSpielt(spiel, zufall);
        const int ergebnis = beendet ? static_cast<int>(spiel.letztesErgebnis()) : 0;
        if (o.protokoll) aus << "ende " << ergebnis << ' ' << spiel.spielzug() << '\n';
        ++summe.spiele;
        ++summe.nachErgebnis[ergebnis >= 0 && ergebnis <= 3 ? ergebnis : 0];
        if (beobachter) beobachter->partieGespielt(summe);
    }
    aus << "summe " << summe.spiele << ' ' << summe.nachErgebnis[1] << ' ' << summe.nachErgebnis[2] << ' '
        << summe.nachErgebnis[3] << ' ' << summe.nachErgebnis[0] << '\n';
    return summe;
}

} // namespace fuh
