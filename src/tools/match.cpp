// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// match: the Meister against strength 3, on each side, over games with fixed seeds. Prints the
// Meister's wins, losses and draws and its time per move (median and maximum). A developer's tool for
// measuring the Meister; it is not installed.
#include <signal.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <limits>
#include <string>
#include <vector>

#include "game/spiel.h"
#include "tools/fortschritt.h"
#include "tools/protokoll_ansicht.h"
#include "tools/selbstspiel_optionen.h"
#include "tools/zeichen.h"

namespace {

namespace fs = std::filesystem;
using fuh::Ergebnis;

struct MatchOptionen {
    uint64_t spiele = 200;
    std::chrono::milliseconds bedenkzeit = fuh::Spielerwahl{}.bedenkzeit;
};

fuh::Programm matchAufruf(MatchOptionen& o) {
    return {
        "match",
        "Der Meister gegen Stärke 3 auf jeder Seite, in Partien mit den Startwerten 1 bis N:\n"
        "seine Siege, Niederlagen und Remis und seine Zeit je Zug.\n"
        "Ein Werkzeug für die Entwicklung; es wird nicht installiert.",
        "Rückgabewert: 0 fertig, 1 kein Arbeitsordner, 2 falscher Aufruf. Der Arbeitsordner\n"
        "im temporären Ordner wird am Ende entfernt, auch nach SIGINT, SIGTERM oder SIGHUP.",
        {
            {"spiele", 'n', "N", "Partien je Seite (Vorgabe " + std::to_string(MatchOptionen{}.spiele) + ")",
             fuh::zahl(o.spiele, 1, std::numeric_limits<uint32_t>::max())},
            fuh::bedenkzeitOption(o.bedenkzeit),
        }};
}

// SIGINT, SIGTERM and SIGHUP stay blocked and are asked for between moves, so a stopped match still removes
// its folder.
class Abbruch {
  public:
    Abbruch() {
        sigemptyset(&signale_);
        sigaddset(&signale_, SIGINT);
        sigaddset(&signale_, SIGTERM);
        sigaddset(&signale_, SIGHUP);
        sigprocmask(SIG_BLOCK, &signale_, &vorher_);
    }
    // The pending signal, or 0.
    int angefordert() const {
        const timespec sofort{};
        const int s = sigtimedwait(&signale_, nullptr, &sofort);
        return s > 0 ? s : 0;
    }
    // Ends the process as the signal would have.
    [[noreturn]] void weitergeben(int s) const {
        ::signal(s, SIG_DFL);
        sigprocmask(SIG_SETMASK, &vorher_, nullptr);
        raise(s);
        std::_Exit(128 + s);
    }

  private:
    sigset_t signale_{}, vorher_{};
};

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
int partie(bool meisterHennen, uint32_t seed, std::chrono::milliseconds bedenkzeit, const fs::path& ordner,
           const Abbruch& abbruch, Bilanz& b) {
    const fuh::Oeffentlich* oeffentlich = nullptr;
    fuh::ProtokollAnsicht ansicht(oeffentlich, nullptr);
    fuh::Zufall zufall(seed);
    fuh::Spiel spiel(ansicht, zufall, ordner);
    oeffentlich = &spiel.oeffentlich();
    spiel.einstellungenFestlegen({2, 2, 0, 0}); // both sides, strength 3, no learning
    fuh::Spielerwahl wahl;
    (meisterHennen ? wahl.hennen : wahl.fuchs) = fuh::Spieler{2, true};
    wahl.bedenkzeit = bedenkzeit;
    wahl.meisterSeed = seed;
    spiel.spielerFestlegen(wahl);
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

double median(std::vector<double> v) {
    if (v.empty()) return 0;
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

// Both sides, one result line each. Returns a signal that stopped the match, or 0.
int spielen(const MatchOptionen& o, const fs::path& ordner, const Abbruch& abbruch) {
    const auto spiele = static_cast<unsigned long long>(o.spiele);
    std::printf("Meister gegen Stärke 3: %llu Partien je Seite, Bedenkzeit %lld ms, Startwerte 1..%llu\n\n",
                spiele, static_cast<long long>(o.bedenkzeit.count()), spiele);
    std::printf("%s %6s %12s %6s %10s %10s %8s\n", links("Meister spielt", 16).c_str(), "Siege",
                "Niederlagen", "Remis", "Median ms", "Max ms", "Züge");
    for (const bool hennen : {true, false}) {
        Bilanz b;
        fuh::Fortschritt fortschritt(std::cerr, fuh::terminalSpalten(2));
        const auto start = std::chrono::steady_clock::now();
        for (uint64_t s = 1; s <= o.spiele; ++s) {
            if (const int signal = partie(hennen, static_cast<uint32_t>(s), o.bedenkzeit, ordner, abbruch, b))
                return signal;
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
                    static_cast<unsigned long long>(b.remis), median(b.zeiten), hoechst, b.zeiten.size());
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    MatchOptionen o;
    if (const auto ende = fuh::befehlszeileLesen(
            matchAufruf(o), std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr))
        return *ende;
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // a pipe sees each result line at once
    const Abbruch abbruch;
    int signal = 0;
    {
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
