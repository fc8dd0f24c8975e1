// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing a game file, and the files themselves.
#include <fcntl.h>

#include "aufzeichnung_namen.h"
#include "dateischicht/dateizugriff.h"
#include "game/aufzeichnung.h"
#include "game/notation.h"
#include "game/spiel.h"

namespace fuh {

namespace {
using namespace aufzeichnungsnamen;

void angabe(std::string& text, std::string_view name, const std::string& wert) {
    text.append(name).append(": ").append(wert).append("\n");
}
} // namespace

std::string aufzeichnungsnamen::spielerText(const Aufzeichnung& a, Seite seite) {
    if (a.spieler.zweiSpieler) return std::string(kMensch);
    const Computer pc = a.einst.computer();
    const bool computer =
        pc == Computer::beide || pc == (seite == Seite::Fuchs ? Computer::fuchs : Computer::hennen);
    if (!computer) return std::string(pc == Computer::fuchs || pc == Computer::hennen ? kMensch : kNiemand);
    const std::optional<Spieler>& s = seite == Seite::Fuchs ? a.spieler.fuchs : a.spieler.hennen;
    if (s && s->meister) return std::string(kComputerMeister);
    return std::string(kComputerStaerke) + std::to_string((s ? s->Staerke : a.einst.Staerke) + 1);
}

std::string aufzeichnungsnamen::einstellungenText(const Einstellungen& e) {
    return "PC " + std::to_string(e.PC) + ", Stärke " + std::to_string(e.Staerke + 1) + ", Lernmodus " +
           std::to_string(e.Lernmodus) + ", Einzelzug " + std::to_string(e.Einzelzug);
}

Aufzeichnung aufzeichnen(const Spiel& spiel, std::string datum, uint64_t nummer) {
    Aufzeichnung a;
    a.datum = std::move(datum);
    a.nummer = nummer;
    a.spieler = spiel.spielerwahl();
    a.einst = spiel.oeffentlich().einst;
    a.zurueckgenommen = spiel.zurueckgenommen();
    if (spiel.endeGefunden()) a.ergebnis = spiel.letztesErgebnis();
    a.ende = spiel.mitschrift().ende;
    a.zuege = spiel.mitschrift().zuege;
    a.offen = spiel.sprungfolge().imSprung;
    return a;
}

std::string aufzeichnungText(const Aufzeichnung& a) {
    std::string text(kKennung);
    text += '\n';
    angabe(text, kDatum, a.datum);
    angabe(text, kSpiel, std::to_string(a.nummer));
    angabe(text, kFuechse, spielerText(a, Seite::Fuchs));
    angabe(text, kHennen, spielerText(a, Seite::Hennen));
    angabe(text, kEinstellungen, einstellungenText(a.einst));
    angabe(text, kZurueckgenommen, std::string(a.zurueckgenommen ? kJa : kNein));
    angabe(text, kErgebnis, std::string(kErgebnisse[static_cast<std::size_t>(a.ergebnis)]));
    angabe(text, kEnde, std::string(a.ende ? kEndegruende[static_cast<std::size_t>(*a.ende)] : kKeinEnde));
    text += '\n';
    for (std::size_t i = 0; i < a.zuege.size(); ++i) {
        const Partiezug& e = a.zuege[i];
        text += std::to_string(i + 1) + ". " + (e.seite == Seite::Fuchs ? kFuchsZeichen : kHennenZeichen) +
                ' ' + zugText(e, a.offen && i + 1 == a.zuege.size()) + '\n';
    }
    return text;
}

Gelesen aufzeichnungLaden(const std::filesystem::path& pfad) {
    const Gelesen unlesbar{std::nullopt,
                           Text(Vorlage::partieUnlesbar, {Text::wort(pfad.filename().string())})};
    struct stat st {};
    const datei::Deskriptor fd = datei::regulaerOeffnen(pfad.c_str(), O_RDONLY, false, st);
    if (!fd) return unlesbar;
    if (static_cast<std::size_t>(st.st_size) > kHoechstePartiegroesse)
        return {std::nullopt, Vorlage::partieZuGross};
    Bytes b;
    if (!datei::lesen(fd.fd(), b, kHoechstePartiegroesse + 1)) return unlesbar;
    if (b.size() > kHoechstePartiegroesse) return {std::nullopt, Vorlage::partieZuGross};
    return aufzeichnungLesen(std::string_view(reinterpret_cast<const char*>(b.data()), b.size()));
}

bool aufzeichnungSpeichern(const std::filesystem::path& pfad, const Aufzeichnung& a) {
    const std::string text = aufzeichnungText(a);
    return datei::ersetzen(pfad, Bytes(text.begin(), text.end()));
}

} // namespace fuh
