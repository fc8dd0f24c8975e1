// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// match: the Meister against strength 3, on each side, over games with fixed seeds, or against the
// Meister (of this build, or of another one). Prints wins, losses and draws and the time per move
// (median and maximum). A developer's tool for measuring the Meister; it is not installed.
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "game/spiel.h"
#include "tools/abbruch.h"
#include "tools/ausgabe.h"
#include "tools/auswertung.h"
#include "tools/duell.h"
#include "tools/fortschritt.h"
#include "tools/meisterquellen.h"
#include "tools/protokoll_ansicht.h"
#include "tools/selbstspiel_optionen.h"
#include "tools/zeichen.h"

namespace {

namespace fs = std::filesystem;
using fuh::Abbruch;
using fuh::Ergebnis;

struct MatchOptionen {
    uint64_t spiele = 200;
    uint64_t ab = 1; // the first seed
    std::chrono::milliseconds bedenkzeit = fuh::Spielerwahl{}.bedenkzeit;
    bool fuchsMeister = false, hennenMeister = false; // both: the Meister against the Meister
    bool duellZeit = false;                           // a duel's option was given
    fuh::DuellOptionen duell;
};

// The only player `--fuchs` and `--hennen` know so far.
fuh::Setzer meisterWahl(bool& ziel) {
    return [&ziel](const std::string& s) { return ziel = s == "meister"; };
}

std::string duellBereich() {
    return ", " + std::to_string(fuh::kKuerzesteBedenkzeit.count()) + " bis " +
           std::to_string(fuh::kLaengsteBedenkzeit.count()) + " (Vorgabe " +
           std::to_string(fuh::Duellant{}.bedenkzeit.count()) + ")";
}

fuh::Setzer duellBedenkzeit(MatchOptionen& o, std::chrono::milliseconds& ziel) {
    return [&o, &ziel](const std::string& s) {
        const auto v = fuh::zahlLesen(s, static_cast<uint64_t>(fuh::kKuerzesteBedenkzeit.count()),
                                      static_cast<uint64_t>(fuh::kLaengsteBedenkzeit.count()));
        if (v) ziel = std::chrono::milliseconds(*v);
        o.duellZeit = true;
        return v.has_value();
    };
}

fuh::Programm matchAufruf(MatchOptionen& o) {
    return {
        "match",
        "Der Meister gegen Stärke 3 auf jeder Seite, in Partien mit den Startwerten 1 bis N\n"
        "(oder ab --ab): seine Siege, Niederlagen und Remis und seine Zeit je Zug. Mit\n"
        "--fuchs meister --hennen meister der Meister gegen den Meister: je Startwert\n"
        "zwei Partien mit getauschten Seiten; F beginnt mit den Füchsen, H mit den\n"
        "Hennen. Der Meister dieses Builds nutzt die Endspieltafeln im Cache-Ordner.\n"
        "Ein Werkzeug für die Entwicklung; es wird nicht installiert.",
        "Rückgabewert: 0 fertig, 1 kein Arbeitsordner oder ein Gegner versagt, 2 falscher\n"
        "Aufruf. Der Arbeitsordner im temporären Ordner wird am Ende entfernt, auch nach\n"
        "SIGINT, SIGTERM oder SIGHUP.",
        {
            {"spiele", 'n', "N",
             "Partien je Seite, im Duell Startwerte (Vorgabe " + std::to_string(MatchOptionen{}.spiele) + ")",
             fuh::zahl(o.spiele, 1, std::numeric_limits<uint32_t>::max())},
            {"ab", 0, "N", "der erste Startwert (Vorgabe 1), so teilen sich Läufe die Startwerte",
             fuh::zahl(o.ab, 1, std::numeric_limits<uint32_t>::max())},
            fuh::bedenkzeitOption(o.bedenkzeit),
            {"fuchs", 0, "meister", "F ist der Meister (mit --hennen meister)", meisterWahl(o.fuchsMeister)},
            {"hennen", 0, "meister", "H ist der Meister (mit --fuchs meister)", meisterWahl(o.hennenMeister)},
            {"bedenkzeit-fuchs", 0, "MS", "die Bedenkzeit von F" + duellBereich(),
             duellBedenkzeit(o, o.duell.f.bedenkzeit)},
            {"bedenkzeit-hennen", 0, "MS", "die Bedenkzeit von H" + duellBereich(),
             duellBedenkzeit(o, o.duell.h.bedenkzeit)},
            {"gegner", 0, "PROGRAMM",
             "H ist der Meister eines anderen Builds: dessen selbstspiel, über --dienen befragt",
             [&o](const std::string& s) {
                 o.duell.h.programm = s;
                 o.duellZeit = true;
                 return !s.empty();
             }},
        }};
}

// A fresh folder of its own in the temporary folder, removed with everything in it. On failure the path
// is empty and `fehler` says why.
class Arbeitsordner {
  public:
    Arbeitsordner() {
        std::error_code ec;
        const fs::path tmp = fs::temp_directory_path(ec);
        std::string muster = (tmp / "fuh-match-XXXXXX").string();
        if (ec)
            fehler_ = ec.message();
        else if (!mkdtemp(muster.data()))
            fehler_ = std::strerror(errno);
        else
            pfad_ = muster;
    }
    ~Arbeitsordner() {
        std::error_code ec;
        if (!pfad_.empty()) fs::remove_all(pfad_, ec);
    }
    Arbeitsordner(const Arbeitsordner&) = delete;
    Arbeitsordner& operator=(const Arbeitsordner&) = delete;
    const fs::path& pfad() const { return pfad_; }
    const std::string& fehler() const { return fehler_; }

  private:
    fs::path pfad_;
    std::string fehler_;
};

struct Bilanz {
    uint64_t siege = 0, niederlagen = 0, remis = 0;
    std::vector<double> zeiten; // ms per Meister move
};

// One game in `ordner`: the Meister plays `meisterHennen` ? the hens : the foxes. Returns a signal that
// stopped it, or 0.
int partie(bool meisterHennen, uint32_t seed, const MatchOptionen& o, const fs::path& ordner,
           const Abbruch& abbruch, Bilanz& b) {
    const fuh::Oeffentlich* oeffentlich = nullptr;
    fuh::ProtokollAnsicht ansicht(oeffentlich, nullptr);
    fuh::Zufall zufall(seed);
    fuh::Spiel spiel(ansicht, zufall, ordner);
    oeffentlich = &spiel.oeffentlich();
    spiel.einstellungenFestlegen({2, 2, 0, 0}); // both sides, strength 3, no learning
    fuh::Spielerwahl wahl;
    (meisterHennen ? wahl.hennen : wahl.fuchs) = fuh::Spieler{2, true};
    wahl.bedenkzeit = o.bedenkzeit;
    wahl.meisterSeed = seed;
    spiel.spielerFestlegen(wahl);
    spiel.endspieltafeln(o.duell.tafeln);
    spiel.schrittweise(true);
    spiel.neuesSpiel();
    while (spiel.computerAmZug()) {
        if (const int s = abbruch.angefordert()) return s;
        const bool meisterZieht = (spiel.amZug() == fuh::Seite::Hennen) == meisterHennen;
        const auto start = std::chrono::steady_clock::now();
        spiel.computerZieht();
        const std::chrono::duration<double, std::milli> dauer = std::chrono::steady_clock::now() - start;
        if (meisterZieht) b.zeiten.push_back(dauer.count());
    }
    const Ergebnis gewonnen = meisterHennen ? Ergebnis::hennen : Ergebnis::fuchs;
    const Ergebnis e = spiel.letztesErgebnis();
    if (e == gewonnen)
        ++b.siege;
    else if (e == Ergebnis::remis)
        ++b.remis;
    else
        ++b.niederlagen;
    return 0;
}

// Left-aligned in `breite` characters (not bytes: the names have umlauts).
std::string links(const std::string& text, std::size_t breite) {
    const std::size_t n = fuh::zeichen(text);
    return text + std::string(breite > n ? breite - n : 0, ' ');
}

// Both sides, one result line each. Returns a signal that stopped the match, or 0.
int spielen(const MatchOptionen& o, const fs::path& ordner, const Abbruch& abbruch) {
    const auto spiele = static_cast<unsigned long long>(o.spiele);
    std::printf("Meister gegen Stärke 3: %llu Partien je Seite, Bedenkzeit %lld ms, Startwerte %llu..%llu\n",
                spiele, static_cast<long long>(o.bedenkzeit.count()), static_cast<unsigned long long>(o.ab),
                static_cast<unsigned long long>(o.ab) + spiele - 1);
    std::printf("%s\n\n", fuh::tafelnText(o.duell.tafeln).c_str());
    std::printf("%s %6s %12s %6s %10s %10s %8s\n", links("Meister spielt", 16).c_str(), "Siege",
                "Niederlagen", "Remis", "Median ms", "Max ms", "Züge");
    for (const bool hennen : {true, false}) {
        Bilanz b;
        fuh::Fortschritt fortschritt(std::cerr, fuh::terminalSpalten(2));
        const auto start = std::chrono::steady_clock::now();
        for (uint64_t s = 1; s <= o.spiele; ++s) {
            const auto seed = static_cast<uint32_t>(o.ab + s - 1);
            if (const int signal = partie(hennen, seed, o, ordner, abbruch, b)) return signal;
            fortschritt.melde(s, o.spiele,
                              "Siege " + std::to_string(b.siege) + "  Niederlagen " +
                                  std::to_string(b.niederlagen) + "  Remis " + std::to_string(b.remis),
                              std::chrono::steady_clock::now() - start);
        }
        fortschritt.beenden();
        const double hoechst = b.zeiten.empty() ? 0 : *std::max_element(b.zeiten.begin(), b.zeiten.end());
        std::printf("%s %6llu %12llu %6llu %10.1f %10.1f %8zu\n",
                    links(hennen ? "die Hennen" : "die Füchse", 16).c_str(),
                    static_cast<unsigned long long>(b.siege), static_cast<unsigned long long>(b.niederlagen),
                    static_cast<unsigned long long>(b.remis), fuh::median(b.zeiten), hoechst,
                    b.zeiten.size());
    }
    return 0;
}

} // namespace

namespace {
int matchLaufen(int argc, char** argv) {
    MatchOptionen o;
    const fuh::Programm programm = matchAufruf(o);
    if (const auto ende = fuh::befehlszeileLesen(programm, std::vector<std::string>(argv + 1, argv + argc),
                                                 std::cout, std::cerr))
        return *ende;
    const bool duell = o.fuchsMeister && o.hennenMeister;
    if ((o.fuchsMeister || o.hennenMeister || o.duellZeit) && !duell)
        return fuh::aufrufFehler(
            programm, "die Duell-Optionen gelten nur mit --fuchs meister --hennen meister", std::cerr);
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // a pipe sees each result line at once
    if (o.ab + o.spiele - 1 > std::numeric_limits<uint32_t>::max())
        return fuh::aufrufFehler(programm, "die Startwerte reichen über 4294967295 hinaus", std::cerr);
    if (const auto ordner = fuh::tafelOrdner()) o.duell.tafeln = fuh::tafelnLaden(*ordner);
    const Abbruch abbruch;
    int signal = 0;
    if (duell) {
        o.duell.paare = o.spiele;
        o.duell.ab = o.ab;
        try {
            signal = fuh::duell(o.duell, abbruch, std::cout, std::cerr, fuh::terminalSpalten(2));
        } catch (const fuh::Gegnerfehler& f) {
            std::cout.flush();
            std::cerr << "match: " << f.was << '\n';
            return 1;
        }
    } else {
        const Arbeitsordner ordner;
        if (ordner.pfad().empty()) {
            std::cerr << "match: kein Arbeitsordner im temporären Ordner: " << ordner.fehler() << '\n';
            return 1;
        }
        signal = spielen(o, ordner.pfad(), abbruch);
    }
    if (signal) abbruch.weitergeben(signal);
    return 0;
}
} // namespace

// Results go to standard output: one that cannot be written ends the run with status 1.
int main(int argc, char** argv) {
    fuh::standardkanaeleSichern();
    const int status = matchLaufen(argc, argv);
    return fuh::ausgabeAbschliessen("match", status, std::cout, std::cerr);
}
