// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// tafel: builds the exact endgame table into the user's cache folder, checks it against the moves of
// every position, or compares random positions with a plain search. A developer's tool; not installed.
#include <chrono>
#include <cstdio>
#include <iostream>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "player/tafel_bau.h"
#include "tools/ausgabe.h"
#include "tools/befehlszeile.h"

namespace {

namespace fs = std::filesystem;

struct TafelOptionen {
    bool ohneStrafregel = false;
    bool pruefen = false;
    uint64_t vergleichen = 0;
    int tiefe = 7;
    int zeilen = fuh::meister::kKlassenzeilen;
    int faeden = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    uint64_t startwert = 1;
    std::string datei;
};

fuh::Programm tafelAufruf(TafelOptionen& o) {
    return {"tafel",
            "Die Endspieltafel: jede Stellung mit allen Hennen in den oberen vier Reihen, mit ihrem\n"
            "Ausgang bei bestem Spiel und den Zügen bis dahin. Ohne Option wird sie gebaut und in\n"
            "$XDG_CACHE_HOME/fuchs-und-hennen (sonst ~/.cache/fuchs-und-hennen) geschrieben.\n"
            "Ein Werkzeug für die Entwicklung; es wird nicht installiert.",
            "Rückgabewert: 0 fertig und richtig, 1 Tafel fehlt, ist beschädigt, falsch oder nicht\n"
            "schreibbar, 2 falscher Aufruf.",
            {
                {"ohne-strafregel", 0, "", "die Tafel für Partien ohne Strafregel",
                 fuh::schalter(o.ohneStrafregel)},
                {"pruefen", 0, "", "jeden Wert gegen die Werte seiner Nachfolger prüfen",
                 fuh::schalter(o.pruefen)},
                {"vergleichen", 0, "N", "N zufällige Stellungen mit einer Suche vergleichen",
                 fuh::zahl(o.vergleichen, 1, 100000000)},
                {"tiefe", 0, "N", "Halbzüge der Suche beim Vergleich (Vorgabe 7)", fuh::zahl(o.tiefe, 1, 12)},
                {"zeilen", 0, "N", "nur Hennen in den oberen N Reihen (3 oder 4, Vorgabe 4)",
                 fuh::zahl(o.zeilen, 3, fuh::meister::kKlassenzeilen)},
                {"faeden", 0, "N", "Threads (Vorgabe: alle Kerne)", fuh::zahl(o.faeden, 1, 256)},
                {"startwert", 0, "N", "Startwert der zufälligen Stellungen (Vorgabe 1)",
                 fuh::zahl(o.startwert, 0, UINT32_MAX)},
                {"datei", 0, "PFAD", "diese Datei statt der im Cache-Ordner",
                 [&o](const std::string& s) {
                     o.datei = s;
                     return !s.empty();
                 }},
            }};
}

fs::path tafelPfad(const TafelOptionen& o) {
    if (!o.datei.empty()) return o.datei;
    const auto ordner = fuh::tafelOrdner();
    return ordner ? fuh::tafelDatei(*ordner, !o.ohneStrafregel) : fs::path{};
}

double sekundenSeit(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

int bauen(const TafelOptionen& o, const fs::path& pfad) {
    const auto start = std::chrono::steady_clock::now();
    const fuh::Endspieltafel t =
        fuh::tafelBauen(!o.ohneStrafregel, o.faeden, o.zeilen, [&start](uint64_t fertig, uint64_t gesamt) {
            std::fprintf(stderr, "\r%5.1f %% in %.0f s",
                         100.0 * static_cast<double>(fertig) / static_cast<double>(gesamt),
                         sekundenSeit(start));
        });
    std::fprintf(stderr, "\n");
    std::array<uint64_t, 3> anzahl{}; // won, drawn, lost for the side to move
    int weitester = 0;
    for (uint8_t w : t.werte()) {
        ++anzahl[w == fuh::tafelwert::kRemis ? 1 : fuh::tafelwert::gewonnen(w) ? 0 : 2];
        if (w != fuh::tafelwert::kRemis) weitester = std::max(weitester, fuh::tafelwert::plies(w));
    }
    std::printf("%llu Stellungen in %.0f s: %llu gewonnen, %llu remis, %llu verloren für die Seite am Zug; "
                "längster Weg %d Halbzüge\n",
                static_cast<unsigned long long>(t.werte().size()), sekundenSeit(start),
                static_cast<unsigned long long>(anzahl[0]), static_cast<unsigned long long>(anzahl[1]),
                static_cast<unsigned long long>(anzahl[2]), weitester);
    if (!fuh::tafelSpeichern(pfad, t)) {
        std::cerr << "tafel: " << pfad.string() << " kann nicht geschrieben werden\n";
        return 1;
    }
    std::printf("geschrieben: %s\n", pfad.c_str());
    return 0;
}

// Random positions, half of them drawn again until the search can decide them within its depth.
int vergleichen(const TafelOptionen& o, const fuh::Endspieltafel& t) {
    std::mt19937_64 zufall(o.startwert);
    std::uniform_int_distribution<uint64_t> stelle(0, t.werte().size() - 1);
    uint64_t entschieden = 0, abweichend = 0;
    for (uint64_t n = 0; n < o.vergleichen; ++n) {
        uint64_t i = stelle(zufall);
        for (int versuch = 0; n % 2 == 0 && versuch < 1000; ++versuch, i = stelle(zufall)) {
            const uint8_t w = t.werte()[i];
            if (w != fuh::tafelwert::kRemis && fuh::tafelwert::plies(w) <= o.tiefe) break;
        }
        const uint8_t w = t.werte()[i];
        const auto suche = fuh::entscheidungIn(t.index().stellung(i), t.strafregel(), o.tiefe);
        const bool tafelWeit = w == fuh::tafelwert::kRemis || fuh::tafelwert::plies(w) > o.tiefe;
        entschieden += suche.has_value();
        if (suche ? *suche != w : !tafelWeit) {
            ++abweichend;
            std::printf("abweichend: Stellung %llu, Tafel %d, Suche %d\n", static_cast<unsigned long long>(i),
                        w, suche ? *suche : -1);
        }
    }
    std::printf("%llu Stellungen verglichen (Suche %d Halbzüge, %llu darin entschieden): %llu abweichend\n",
                static_cast<unsigned long long>(o.vergleichen), o.tiefe,
                static_cast<unsigned long long>(entschieden), static_cast<unsigned long long>(abweichend));
    return abweichend == 0 ? 0 : 1;
}

int tafelLaufen(int argc, char** argv) {
    TafelOptionen o;
    const fuh::Programm programm = tafelAufruf(o);
    if (const auto ende = fuh::befehlszeileLesen(programm, std::vector<std::string>(argv + 1, argv + argc),
                                                 std::cout, std::cerr))
        return *ende;
    const fs::path pfad = tafelPfad(o);
    if (pfad.empty()) {
        std::cerr << "tafel: kein Cache-Ordner (weder XDG_CACHE_HOME noch HOME)\n";
        return 1;
    }
    if (!o.pruefen && o.vergleichen == 0) return bauen(o, pfad);
    const auto start = std::chrono::steady_clock::now();
    const auto t = fuh::tafelLaden(pfad, !o.ohneStrafregel, o.zeilen);
    if (!t) {
        std::cerr << "tafel: " << pfad.string() << " fehlt, ist beschädigt oder gehört zu anderen Regeln\n";
        return 1;
    }
    if (o.pruefen) {
        const uint64_t fehler = fuh::tafelFehler(*t, o.faeden);
        std::printf("%llu Stellungen geprüft in %.0f s: %llu falsch\n",
                    static_cast<unsigned long long>(t->werte().size()), sekundenSeit(start),
                    static_cast<unsigned long long>(fehler));
        if (fehler != 0) return 1;
    }
    return o.vergleichen == 0 ? 0 : vergleichen(o, *t);
}

} // namespace

int main(int argc, char** argv) {
    fuh::standardkanaeleSichern();
    const int status = tafelLaufen(argc, argv);
    return fuh::ausgabeAbschliessen("tafel", status, std::cout, std::cerr);
}
