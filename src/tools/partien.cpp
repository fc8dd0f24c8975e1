// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/partien.h"

#include <ctime>

#include "game/nachspielen.h"
#include "tools/protokoll_ansicht.h"

namespace fuh {

namespace {
std::string heute() {
    const std::time_t jetzt = std::time(nullptr);
    std::tm lokal{};
    localtime_r(&jetzt, &lokal);
    char text[16] = {};
    std::strftime(text, sizeof text, "%Y-%m-%d", &lokal);
    return text;
}
} // namespace

std::optional<std::string> partieAblegen(const std::filesystem::path& ordner, const Spiel& spiel,
                                         uint64_t n) {
    const std::string name = "spiel-" + std::to_string(n) + ".fuh";
    if (aufzeichnungSpeichern(ordner / name, aufzeichnen(spiel, heute(), n))) return std::nullopt;
    return (ordner / name).string();
}

bool partieNachspielen(const std::filesystem::path& datei, const std::filesystem::path& ordner,
                       std::ostream& aus, std::ostream& fehler) {
    const Gelesen g = aufzeichnungLaden(datei);
    if (!g.aufzeichnung) {
        fehler << datei.string() << ": " << deutsch(g.fehler) << '\n';
        return false;
    }
    const Oeffentlich* oeffentlich = nullptr;
    ProtokollAnsicht ansicht(oeffentlich, &aus);
    Zufall zufall(1); // the recorded moves draw nothing
    Spiel spiel(ansicht, zufall, ordner);
    oeffentlich = &spiel.oeffentlich();
    aus << "spiel " << g.aufzeichnung->nummer << '\n';
    if (const std::string f = deutsch(nachspielen(spiel, *g.aufzeichnung)); !f.empty()) {
        fehler << datei.string() << ": " << f << '\n';
        return false;
    }
    aus << "ende " << static_cast<int>(spiel.endeGefunden() ? spiel.letztesErgebnis() : Ergebnis::offen)
        << ' ' << spiel.spielzug() << '\n';
    return true;
}

} // namespace fuh
