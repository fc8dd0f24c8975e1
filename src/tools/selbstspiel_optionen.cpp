// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/selbstspiel_optionen.h"

#include <limits>

namespace fuh {

namespace {
constexpr uint32_t kHoechsteBedenkzeit = 500; // never longer than the window's turn tick

// A side's player: strength 1, 2 or 3, the Meister (which learns into the strength-3 file), or a person.
Setzer spieler(std::optional<Spieler>& ziel, bool& mensch) {
    return [&ziel, &mensch](const std::string& s) {
        mensch = s == "mensch";
        if (mensch) {
            ziel.reset();
            return true;
        }
        if (s == "meister") {
            ziel = Spieler{2, true};
            return true;
        }
        const auto v = zahlLesen(s, 1, 3);
        if (v) ziel = Spieler{static_cast<int16_t>(*v - 1), false};
        return v.has_value();
    };
}

Setzer pfad(std::optional<std::filesystem::path>& ziel) {
    return [&ziel](const std::string& s) {
        if (s.empty()) return false;
        ziel = s;
        return true;
    };
}

// Any non-negative integer, however long, reduced modulo 2^24.
Setzer seed(std::optional<uint32_t>& ziel) {
    return [&ziel](const std::string& s) {
        if (s.empty()) return false;
        uint32_t v = 0;
        for (char c : s) {
            if (c < '0' || c > '9') return false;
            v = (v * 10 + static_cast<uint32_t>(c - '0')) % (1u << 24);
        }
        ziel = v;
        return true;
    };
}
} // namespace

Option bedenkzeitOption(std::chrono::milliseconds& ziel) {
    return {"bedenkzeit", 0, "MS",
            "die Bedenkzeit des Meisters je Zug in Millisekunden, 1 bis " +
                std::to_string(kHoechsteBedenkzeit) + " (Vorgabe " +
                std::to_string(Spielerwahl{}.bedenkzeit.count()) + ")",
            [&ziel](const std::string& s) {
                const auto v = zahlLesen(s, 1, kHoechsteBedenkzeit);
                if (v) ziel = std::chrono::milliseconds(*v);
                return v.has_value();
            }};
}

Einstellungen einstellungen(const Optionen& o) {
    Einstellungen e;
    e.PC = static_cast<int16_t>(o.pc);
    e.Staerke = static_cast<int16_t>(o.staerke - 1);
    e.Lernmodus = o.lernen ? 1 : 0;
    if (o.menschFuchs == o.menschHennen) return e;
    // One person: the computer plays the other side, at the strength given for that side.
    e.PC = o.menschFuchs ? 1 : 0;
    const std::optional<Spieler>& computer = o.menschFuchs ? o.spieler.hennen : o.spieler.fuchs;
    if (computer && !computer->meister) e.Staerke = computer->Staerke;
    return e;
}

Spielerwahl spielerwahl(const Optionen& o) {
    Spielerwahl w = o.spieler;
    w.zweiSpieler = o.menschFuchs && o.menschHennen;
    return w;
}

bool computerAllein(const Optionen& o) {
    return !o.menschFuchs && !o.menschHennen && o.pc == 2;
}

Programm selbstspielAufruf(Optionen& o) {
    const Optionen vorgabe;
    return {"selbstspiel",
            "Spielt Fuchs und Hennen ohne Fenster im aktuellen Ordner, mit denselben Spielern\n"
            "und Dateien wie das Spiel (QZ.sta, QZ2.DAT, QZ3.DAT; nie QZ.INI oder die\n"
            "Bestenlisten).",
            "Die letzte Zeile der Ausgabe ist immer:\n"
            "  summe SPIELE HENNEN FÜCHSE REMIS ABGEBROCHEN\n"
            "Rückgabewert: 0 alles gespielt und gespeichert; 1 eine Datei konnte nicht\n"
            "gespeichert werden (die Meldung nennt sie) oder die Partie von --nachspielen\n"
            "wurde abgelehnt; 2 falscher Aufruf.",
            {
                {"spiele", 'n', "N",
                 "so viele Spiele nacheinander (Vorgabe " + std::to_string(vorgabe.spiele) + ")",
                 zahl(o.spiele, 0, std::numeric_limits<uint32_t>::max())},
                {"pc", 0, "0|1|2",
                 "die Seite des Computers: 0 die Füchse, 1 die Hennen, 2 beide (Vorgabe); "
                 "bei 0 oder 1 spielt ein zufälliger Mensch die andere Seite",
                 zahl(o.pc, 0, 2)},
                {"staerke", 0, "1|2|3", "die Spielstärke (Vorgabe " + std::to_string(vorgabe.staerke) + ")",
                 zahl(o.staerke, 1, 3)},
                {"lernen", 'l', "", "der Lernmodus (ab Spielstärke 2)", schalter(o.lernen)},
                {"seed", 0, "S", "der Startwert des Zufalls (Vorgabe: die Sekunden seit Mitternacht)",
                 seed(o.seed)},
                {"protokoll", 'p', "", "eine Zeile je Ereignis (spiel, zug, meldung, liste, ende)",
                 schalter(o.protokoll)},
                {"fuchs", 0, "S",
                 "wer die Füchse spielt: Spielstärke 1, 2, 3, meister, oder mensch (ein zufälliger Mensch)",
                 spieler(o.spieler.fuchs, o.menschFuchs)},
                {"hennen", 0, "S",
                 "wer die Hennen spielt: Spielstärke 1, 2, 3, meister, oder mensch (ein zufälliger Mensch)",
                 spieler(o.spieler.hennen, o.menschHennen)},
                bedenkzeitOption(o.spieler.bedenkzeit),
                {"fortsetzen-pruefen", 0, "",
                 "vor jedem Zug die Partie in eine Datei sichern und aus ihr fortsetzen (Log und Dateien "
                 "bleiben gleich)",
                 schalter(o.fortsetzenPruefen)},
                {"partien", 0, "ORDNER",
                 "jede gespielte Partie als Datei spiel-N.fuh in ORDNER schreiben (Züge in der Notation)",
                 pfad(o.partien)},
                {"nachspielen", 0, "DATEI",
                 "keine neue Partie spielen, sondern die Partie aus DATEI nachspielen und ihre Zeilen "
                 "ausgeben (spiel, zug, meldung, liste, ende)",
                 pfad(o.nachspielen)},
                {"dienen", 0, "",
                 "keine Partie spielen, sondern den Meister Züge liefern lassen: je Zeile der "
                 "Standardeingabe eine Stellung, je Zeile der Ausgabe ein Zug (für match --gegner)",
                 schalter(o.dienen)},
            }};
}

} // namespace fuh
