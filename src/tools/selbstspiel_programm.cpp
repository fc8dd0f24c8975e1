// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/selbstspiel_programm.h"

#include <chrono>
#include <ctime>
#include <exception>
#include <iostream>
#include <set>

#include "tools/fortschritt.h"
#include "tools/partien.h"
#include "tools/selbstspiel_lauf.h"
#include "tools/zugprotokoll.h"
#include "tools/zwischenordner.h"

namespace fuh {

namespace {
uint32_t sekundenSeitMitternacht() {
    const std::time_t jetzt = std::time(nullptr);
    std::tm lokal{};
    localtime_r(&jetzt, &lokal);
    return static_cast<uint32_t>(lokal.tm_hour * 3600 + lokal.tm_min * 60 + lokal.tm_sec);
}

// Names each unsaved-file message once (a folder that cannot be written fails the same way every game)
// and keeps the progress line.
class Rueckmeldung : public Beobachter {
  public:
    Rueckmeldung(std::string name, uint64_t gesamt, std::ostream& fehler, std::size_t spalten)
        : name_(std::move(name)), gesamt_(gesamt), fortschritt_(fehler, spalten) {}

    void nichtGespeichert(const std::string& meldung) override {
        if (gemeldet_.insert(meldung).second) fortschritt_.meldung(name_ + ": " + meldung);
    }
    void partieGespielt(const Summe& s) override {
        fortschritt_.melde(s.spiele, gesamt_,
                           "Hennen " + std::to_string(s.nachErgebnis[1]) + "  Füchse " +
                               std::to_string(s.nachErgebnis[2]) + "  Remis " +
                               std::to_string(s.nachErgebnis[3]),
                           std::chrono::steady_clock::now() - start_);
    }
    void beenden() { fortschritt_.beenden(); }

  private:
    std::string name_;
    uint64_t gesamt_;
    Fortschritt fortschritt_;
    std::set<std::string> gemeldet_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};
} // namespace

int selbstspielProgramm(const std::vector<std::string>& args, const std::filesystem::path& ordner,
                        Konsole k) {
    Optionen o;
    const Programm programm = selbstspielAufruf(o);
    if (const auto ende = befehlszeileLesen(programm, args, k.aus, k.fehler)) return *ende;
    if (o.dienen) {
        dienen(std::cin, k.aus);
        return 0;
    }
    if (o.nachspielen)
        return partieNachspielen(*o.nachspielen, ordner, k.aus, k.fehler) ? 0 : kNichtGespeichert;
    // A log scrolling on the same terminal is progress enough, and the line would tear it.
    const std::size_t spalten = o.protokoll && k.ausTerminal ? 0 : k.fehlerSpalten;
    Rueckmeldung rueckmeldung(programm.name, o.spiele, k.fehler, spalten);
    try {
        const Summe s =
            selbstspiel(o, o.seed.value_or(sekundenSeitMitternacht()), ordner, k.aus, &rueckmeldung);
        rueckmeldung.beenden();
        return s.nichtGespeichert > 0 ? kNichtGespeichert : 0;
    } catch (const Signalabbruch& a) {
        // The run's folder is gone; the program ends as the signal would have ended it.
        rueckmeldung.beenden();
        k.aus.flush();
        Signalsperre::weitergeben(a.signal);
    } catch (const std::exception& e) {
        // Only --fortsetzen-pruefen throws: its saved game could not be written or read back.
        rueckmeldung.beenden();
        k.aus.flush();
        k.fehler << programm.name << ": " << e.what() << '\n';
        return kNichtGespeichert;
    }
}

} // namespace fuh
