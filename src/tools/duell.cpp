// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/duell.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <vector>

#include "tools/auswertung.h"
#include "tools/fortschritt.h"
#include "tools/meisterquellen.h"
#include "tools/zeichen.h"

namespace fuh {

namespace {

constexpr int kUeberzugProzent = 110; // a move that takes longer than this share of its budget is counted

struct Bilanz {
    uint64_t siege = 0, niederlagen = 0;
    std::array<uint64_t, 3> remis{}; // at the move limit, last fox, the foxes without a move
    std::vector<double> paarpunkte;  // per seed, the mean of its two games
    std::vector<double> ms;
    uint64_t remisGesamt() const { return remis[0] + remis[1] + remis[2]; }
};

std::unique_ptr<Zugquelle> quelle(const Duellant& d, const Endspieltafeln& tafeln) {
    if (d.programm.empty()) return std::make_unique<MeisterQuelle>(d.bedenkzeit, tafeln);
    return std::make_unique<FremdeQuelle>(d.programm, d.bedenkzeit);
}

// Books one game for the player that had `seite`; returns its score.
double buchen(Bilanz& b, const Partiebericht& p, int16_t seite) {
    const std::vector<double>& ms = seite == henne ? p.msHennen : p.msFuchs;
    b.ms.insert(b.ms.end(), ms.begin(), ms.end());
    const double punkte = seite == henne ? hennenPunkte(p.ausgang) : 1 - hennenPunkte(p.ausgang);
    if (punkte == 1) ++b.siege;
    if (punkte == 0) ++b.niederlagen;
    if (p.ausgang == Ausgang::zugbegrenzung) ++b.remis[0];
    if (p.ausgang == Ausgang::letzterFuchs) ++b.remis[1];
    if (p.ausgang == Ausgang::fuchsOhneZug) ++b.remis[2];
    return punkte;
}

// A signal that arrived during a game; it ends the match before the next move.
struct Gestoppt {
    int signal;
};

// Looks for a signal before every move of the player it stands for, so that a stop does not wait for the
// end of a game of several minutes.
class Wachsam final : public Zugquelle {
  public:
    Wachsam(std::unique_ptr<Zugquelle> q, const Abbruch& a) : q_(std::move(q)), abbruch_(a) {}
    void neuePartie(uint32_t seed) override { q_->neuePartie(seed); }
    Zugwahl waehle(const Brettfeld& feld, int16_t seite, const Partie& partie) override {
        if (const int s = abbruch_.angefordert()) throw Gestoppt{s};
        return q_->waehle(feld, seite, partie);
    }

  private:
    std::unique_ptr<Zugquelle> q_;
    const Abbruch& abbruch_;
};

Partiebericht spielen(Zugquelle& hennen, Zugquelle& fuechse, uint32_t seed) {
    Partiebericht p = partieLeiten(hennen, fuechse, seed);
    if (p.ausgang == Ausgang::ungueltig)
        throw Gegnerfehler{"Startwert " + std::to_string(seed) + ": ein unerlaubter Zug der " +
                           (p.schuldig == henne ? "Hennen" : "Füchse")};
    return p;
}

std::string name(const Duellant& d) {
    return (d.programm.empty() ? std::string("dieser Meister") : d.programm) + ", " +
           std::to_string(d.bedenkzeit.count()) + " ms";
}

void zeile(std::ostream& aus, const char* wer, const Bilanz& b, std::chrono::milliseconds budget) {
    const Punktzahl p = punktzahl(b.paarpunkte);
    const double grenze = static_cast<double>(budget.count()) * kUeberzugProzent / 100;
    const auto ueber = std::count_if(b.ms.begin(), b.ms.end(), [grenze](double ms) { return ms > grenze; });
    char text[160];
    std::snprintf(
        text, sizeof text, "%-7s %6llu %12llu %6llu %6llu %6llu %6llu %7.3f ±%5.3f %10.1f %10.1f %8zu %6ld",
        wer, static_cast<unsigned long long>(b.siege), static_cast<unsigned long long>(b.niederlagen),
        static_cast<unsigned long long>(b.remisGesamt()), static_cast<unsigned long long>(b.remis[0]),
        static_cast<unsigned long long>(b.remis[1]), static_cast<unsigned long long>(b.remis[2]), p.wert,
        p.plusMinus, median(b.ms), hoechstwert(b.ms), b.ms.size(), static_cast<long>(ueber));
    aus << text << std::endl;
}

struct Stand {
    Bilanz f, h;
    std::array<uint64_t, 3> nachSeite{}; // the hens won, the foxes won, drawn
};

// Plays the pairs of seeds into `st`. Returns a signal that stopped it, or 0.
int paareSpielen(const DuellOptionen& o, const Abbruch& abbruch, Stand& st, Fortschritt& fortschritt) {
    Wachsam f(quelle(o.f, o.tafeln), abbruch), h(quelle(o.h, o.tafeln), abbruch);
    const auto start = std::chrono::steady_clock::now();
    for (uint64_t s = 1; s <= o.paare; ++s) {
        const auto seed = static_cast<uint32_t>(o.ab + s - 1);
        double pf = 0, ph = 0;
        for (const bool fFuchs : {true, false}) {
            Partiebericht p;
            try {
                p = fFuchs ? spielen(h, f, seed) : spielen(f, h, seed);
            } catch (const Gestoppt& g) {
                return g.signal;
            }
            pf += buchen(st.f, p, fFuchs ? fuchs : henne);
            ph += buchen(st.h, p, fFuchs ? henne : fuchs);
            const double hp = hennenPunkte(p.ausgang);
            ++st.nachSeite[hp == 1 ? 0 : hp == 0 ? 1 : 2];
        }
        st.f.paarpunkte.push_back(pf / 2);
        st.h.paarpunkte.push_back(ph / 2);
        fortschritt.melde(s, o.paare,
                          "F " + std::to_string(st.f.siege) + "  H " + std::to_string(st.h.siege) +
                              "  Remis " + std::to_string(st.f.remisGesamt()),
                          std::chrono::steady_clock::now() - start);
    }
    return 0;
}

void ergebnisZeigen(const DuellOptionen& o, const Stand& st, std::ostream& aus) {
    char kopf[160];
    std::snprintf(kopf, sizeof kopf, "%-7s %6s %12s %6s %6s %6s %6s %7s %6s %10s %10s %9s %6s", "Spieler",
                  "Siege", "Niederlagen", "Remis", "Grenze", "LFuchs", "KZug", "Punkte", "±95 %", "Median ms",
                  "Max ms", "Züge", "Über");
    aus << kopf << '\n';
    zeile(aus, "F", st.f, o.f.bedenkzeit);
    zeile(aus, "H", st.h, o.h.bedenkzeit);
    aus << "\nRemis: an der Zugbegrenzung (Grenze), letzter Fuchs ausgeschlossen (LFuchs), die Füchse ohne "
           "Zug (KZug).\nÜber: Züge mehr als "
        << kUeberzugProzent - 100
        << " % über der Bedenkzeit.\nPunkte: Sieg 1, Remis 0,5, je Startwert gemittelt; 95 %-Intervall über "
           "die Startwerte.\n"
        << "Nach Seiten: die Hennen gewinnen " << st.nachSeite[0] << ", die Füchse " << st.nachSeite[1]
        << ", Remis " << st.nachSeite[2] << std::endl;
}

} // namespace

int duell(const DuellOptionen& o, const Abbruch& abbruch, std::ostream& aus, std::ostream& fehler,
          std::size_t spalten) {
    aus << "Meister gegen Meister: Startwerte " << o.ab << ".." << o.ab + o.paare - 1
        << ", je zwei Partien mit getauschten Seiten\n"
        << tafelnText(o.tafeln) << '\n'
        << "F (zuerst die Füchse): " << name(o.f) << "\nH (zuerst die Hennen): " << name(o.h) << "\n\n";
    Stand st;
    Fortschritt fortschritt(fehler, spalten);
    if (const int signal = paareSpielen(o, abbruch, st, fortschritt)) return signal;
    fortschritt.beenden();
    ergebnisZeigen(o, st, aus);
    return 0;
}

} // namespace fuh
