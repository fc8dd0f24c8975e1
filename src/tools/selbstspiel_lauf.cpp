// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/selbstspiel_lauf.h"

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "board/regeln.h"
#include "dateischicht/satzdatei.h"
#include "game/partiedatei.h"
#include "game/spiel.h"
#include "tools/partien.h"
#include "tools/protokoll_ansicht.h"
#include "tools/zwischenordner.h"

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
    if (!spiel.menschAmZug()) return liste;
    for (int k = 0; k < kFiguren; ++k) {
        const int von = s.figurplatz[k];
        if (von == 0) continue;
        for (int t = 0; t < kFelder; ++t)
            if (korrekterZug(s.Feld, spiel.amZug(), spiel.sprungfolge(), feldX(von), feldY(von), feldX(t),
                             feldY(t)))
                liste.push_back({k, t});
    }
    if (spiel.sprungfolge().imSprung) liste.push_back({0, -1});
    return liste;
}

// The games of one run. With --fortsetzen-pruefen the game is saved to a file before every move and
// continued from that file in a fresh game object, as the window does across the end of the program;
// nothing else may change.
class Lauf {
  public:
    Lauf(const Optionen& o, uint32_t seed, const std::filesystem::path& ordner, std::ostream& aus,
         ProtokollAnsicht::Speicherfehler beiSpeicherfehler)
        : o_(o), seed_(seed), ordner_(ordner), zufall_(seed),
          ansicht_(oeffentlich_, o.protokoll ? &aus : nullptr, std::move(beiSpeicherfehler)),
          spiel_(neuesSpiel()) {
        if (!o.fortsetzenPruefen) return;
        signale_ = std::make_unique<Signalsperre>();
        zwischenordner_ = std::make_unique<Zwischenordner>();
    }
    Lauf(const Lauf&) = delete;
    Lauf& operator=(const Lauf&) = delete;

    Spiel& spiel() { return *spiel_; }
    Zufall& zufall() { return zufall_; }

    // The game, about to make its next move. With --fortsetzen-pruefen it is kept as the window keeps it
    // when the program ends, and continued as the next start continues it.
    Spiel& vorZug() {
        if (!zwischenordner_) return *spiel_;
        if (const int s = signale_->angefordert()) throw Signalabbruch{s};
        {
            Partieablage ende(zwischenordner_->pfad());
            if (!ende.sichern(spiel_->sicherung()))
                throw std::runtime_error("die Partie konnte nicht gespeichert werden");
        }
        Partieablage start(zwischenordner_->pfad());
        std::vector<std::string> uebernommen;
        const Partieablage::Angebot angebot = start.holen(uebernommen);
        if (!angebot.sicherung) throw std::runtime_error("die gespeicherte Partie ist nicht lesbar");
        spiel_ = neuesSpiel();
        spiel_->fortsetzen(*angebot.sicherung);
        if (!start.erledigt()) throw std::runtime_error("die gespeicherte Partie ließ sich nicht entfernen");
        return *spiel_;
    }

  private:
    std::unique_ptr<Spiel> neuesSpiel() {
        auto spiel = std::make_unique<Spiel>(ansicht_, zufall_, ordner_);
        oeffentlich_ = &spiel->oeffentlich();
        spiel->einstellungenFestlegen(einstellungen(o_));
        Spielerwahl spieler = spielerwahl(o_);
        spieler.meisterSeed = seed_;
        spiel->spielerFestlegen(spieler);
        // A saved game the computer plays itself goes on move by move.
        spiel->schrittweise(o_.fortsetzenPruefen);
        return spiel;
    }

    const Optionen& o_;
    uint32_t seed_;
    std::filesystem::path ordner_;
    Zufall zufall_;
    const Oeffentlich* oeffentlich_ = nullptr;
    ProtokollAnsicht ansicht_;
    std::unique_ptr<Spiel> spiel_;
    std::unique_ptr<Signalsperre> signale_; // released last: a signal after the clean-up acts at once
    std::unique_ptr<Zwischenordner> zwischenordner_;
};

// A person's turns and the computer's replies alternate until an end is announced. False: abandoned.
bool menschSpielt(Lauf& lauf) {
    while (!lauf.spiel().endeGefunden()) {
        Spiel& spiel = lauf.vorZug();
        const auto liste = kandidaten(spiel);
        if (liste.empty()) return false;
        const int i = lauf.zufall().ziehe(static_cast<int>(liste.size())) - 1;
        const Kandidat c = liste[static_cast<std::size_t>(i)];
        if (c.t < 0)
            spiel.sprungfolgeSchliessen();
        else
            spiel.abgelegt(c.t, c.k);
        if (!spiel.endeGefunden()) lauf.vorZug().computerZieht();
    }
    return true;
}
} // namespace

Summe selbstspiel(const Optionen& o, uint32_t seed, const std::filesystem::path& ordner, std::ostream& aus,
                  Beobachter* beobachter) {
    Summe summe;
    Lauf lauf(o, seed, ordner, aus, [&](const std::string& text) {
        ++summe.nichtGespeichert;
        if (beobachter) beobachter->nichtGespeichert(text);
    });
    for (uint64_t n = 1; n <= o.spiele; ++n) {
        if (o.protokoll) aus << "spiel " << n << '\n';
        lauf.spiel().neuesSpiel();
        if (o.fortsetzenPruefen && computerAllein(o))
            while (lauf.spiel().computerAmZug())
                lauf.vorZug().computerZieht();
        bool beendet = lauf.spiel().endeGefunden();
        if (!beendet && !computerAllein(o)) beendet = menschSpielt(lauf);
        const int ergebnis = beendet ? static_cast<int>(lauf.spiel().letztesErgebnis()) : 0;
        if (o.protokoll) aus << "ende " << ergebnis << ' ' << lauf.spiel().spielzug() << '\n';
        if (o.partien)
            if (const auto name = partieAblegen(*o.partien, lauf.spiel(), n)) {
                ++summe.nichtGespeichert;
                if (beobachter) beobachter->nichtGespeichert(deutsch(schreibfehler(*name)));
            }
        ++summe.spiele;
        ++summe.nachErgebnis[ergebnis >= 0 && ergebnis <= 3 ? ergebnis : 0];
        if (beobachter) beobachter->partieGespielt(summe);
    }
    aus << "summe " << summe.spiele << ' ' << summe.nachErgebnis[1] << ' ' << summe.nachErgebnis[2] << ' '
        << summe.nachErgebnis[3] << ' ' << summe.nachErgebnis[0] << '\n';
    return summe;
}

} // namespace fuh
