// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/schiedsrichter.h"

#include <chrono>
#include <cstdlib>
#include <optional>

#include "board/regeln.h"
#include "board/zugliste.h"
#include "memory/partie.h"
#include "player/strafregel.h"

namespace fuh {

namespace {

class Partieleitung {
  public:
    Partieleitung() {
        Stellung s;
        s.grundstellung();
        Feld_ = s.Feld;
    }
    // One turn of each side; an outcome once the game has ended.
    std::optional<Ausgang> hennenZug(Zugquelle& q, std::vector<double>& ms);
    std::optional<Ausgang> fuchsZug(Zugquelle& q, std::vector<double>& ms);
    const Brettfeld& Feld() const { return Feld_; }
    const Partie& partie() const { return partie_; }

  private:
    Zugwahl fragen(Zugquelle& q, int16_t seite, std::vector<double>& ms) const;
    std::optional<Ausgang> aufzeichnen(const Teilzug& letzter, std::optional<Ausgang> ohneZug);

    Brettfeld Feld_{};
    Partie partie_;
};

Zugwahl Partieleitung::fragen(Zugquelle& q, int16_t seite, std::vector<double>& ms) const {
    const auto start = std::chrono::steady_clock::now();
    const Zugwahl w = q.waehle(Feld_, seite, partie_);
    ms.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    return w;
}

// Records the position as the end-of-move check does and finds the end; the move limit overrides any
// other end, as in the game.
std::optional<Ausgang> Partieleitung::aufzeichnen(const Teilzug& letzter, std::optional<Ausgang> ohneZug) {
    partie_.pstoSits(Feld_, letzter);
    int n = 0, imZiel = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (Feld_[x][y] == henne) {
                ++n;
                imZiel += imZielfeld(x, y);
            }
    std::optional<Ausgang> ende = ohneZug;
    if (imZiel == 9) ende = Ausgang::hennen;
    if (n < 9) ende = Ausgang::fuchs;
    if (partie_.spielzug == kZugbegrenzung) ende = Ausgang::zugbegrenzung;
    return ende;
}

std::optional<Ausgang> Partieleitung::hennenZug(Zugquelle& q, std::vector<double>& ms) {
    if (partie_.spielzug >= kZugbegrenzung) return Ausgang::zugbegrenzung;
    const Strafe strafe = strafregel(Feld_, partie_, 0);
    if (strafe.art == Strafe::Art::letzterFuchs) return aufzeichnen(Teilzug{}, Ausgang::letzterFuchs);
    if (strafe.art != Strafe::Art::keine) {
        const Teilzug& z = strafe.zug;
        Feld_[z.nachX][z.nachY] = Feld_[z.vonX][z.vonY];
        Feld_[z.vonX][z.vonY] = leer;
    }
    const Zugwahl w = fragen(q, henne, ms);
    if (w.keinZug()) return aufzeichnen(Teilzug{}, Ausgang::hennenOhneZug);
    const Teilzug z = *w.begin();
    if (w.anzahl != 1 || !korrekterZug(Feld_, Seite::Hennen, {}, z.vonX, z.vonY, z.nachX, z.nachY))
        return Ausgang::ungueltig;
    teilzugAusfuehren(Feld_, z);
    return aufzeichnen(z, std::nullopt);
}

std::optional<Ausgang> Partieleitung::fuchsZug(Zugquelle& q, std::vector<double>& ms) {
    const Zugwahl w = fragen(q, fuchs, ms);
    if (w.keinZug()) return aufzeichnen(Teilzug{}, Ausgang::fuchsOhneZug);
    Sprungfolge sprung;
    for (const Teilzug& z : w) {
        if (!korrekterZug(Feld_, Seite::Fuchs, sprung, z.vonX, z.vonY, z.nachX, z.nachY))
            return Ausgang::ungueltig;
        const bool springt = z.sprung();
        if (!springt && w.anzahl > 1) return Ausgang::ungueltig; // a step ends the turn alone
        teilzugAusfuehren(Feld_, z);
        sprung = {springt, z.nachX, z.nachY};
    }
    return aufzeichnen(*(w.end() - 1), std::nullopt);
}

} // namespace

Partiebericht partieLeiten(Zugquelle& hennen, Zugquelle& fuechse, uint32_t seed) {
    hennen.neuePartie(seed);
    if (&fuechse != &hennen) fuechse.neuePartie(seed);
    Partieleitung leitung;
    Partiebericht b;
    std::optional<Ausgang> ende;
    for (bool hennenAmZug = true; !ende; hennenAmZug = !hennenAmZug) {
        ende = hennenAmZug ? leitung.hennenZug(hennen, b.msHennen) : leitung.fuchsZug(fuechse, b.msFuchs);
        if (ende == Ausgang::ungueltig) b.schuldig = hennenAmZug ? henne : fuchs;
    }
    b.ausgang = *ende;
    b.partie = leitung.partie();
    b.Feld = leitung.Feld();
    return b;
}

double hennenPunkte(Ausgang a) {
    switch (a) {
    case Ausgang::hennen:
        return 1;
    case Ausgang::fuchs:
    case Ausgang::hennenOhneZug:
        return 0;
    default:
        return 0.5;
    }
}

} // namespace fuh
