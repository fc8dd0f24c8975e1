// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "board/text.h"

#include <array>
#include <utility>

namespace fuh {

namespace {

using V = Vorlage;
// Each template once, beside its identifier; the check below keeps the two in step.
constexpr std::array<std::pair<Vorlage, const char*>, kVorlagen> kTabelle = {{
    {V::hennenGewinnen, FUH_TR_NOOP("Kern", "Die Hennen haben gewonnen!")},
    {V::fuchsGewinnt, FUH_TR_NOOP("Kern", "Der Fuchs hat gewonnen!")},
    {V::fuchsGewinntOhneZug, FUH_TR_NOOP("Kern", "Der Fuchs hat gewonnen")},
    {V::remisZiel, FUH_TR_NOOP("Kern", "Remis: Die Hennen können ihr Ziel nicht erreichen.")},
    {V::tippHennenGewinnen, FUH_TR_NOOP("Kern", "Die Hennen gewinnen in %1 Zügen")},
    {V::tippFuechseGewinnen, FUH_TR_NOOP("Kern", "Die Füchse gewinnen in %1 Zügen")},
    {V::tippHennenGewinnenJetzt, FUH_TR_NOOP("Kern", "Die Hennen gewinnen mit diesem Zug")},
    {V::tippFuechseGewinnenJetzt, FUH_TR_NOOP("Kern", "Die Füchse gewinnen mit diesem Zug")},
    {V::tippRemis, FUH_TR_NOOP("Kern", "Remis")},
    {V::punkte, FUH_TR_NOOP("Kern", "Punkte: %1")},
    {V::schreibfehler,
     FUH_TR_NOOP("Kern",
                 "Die Datei „%1“ konnte nicht gespeichert werden. Das Spiel geht ohne diese Daten weiter.")},
    {V::schreibfehlerMehrere,
     FUH_TR_NOOP("Kern",
                 "Die Dateien %1 konnten nicht gespeichert werden. Das Spiel geht ohne diese Daten weiter.")},
    {V::dateiname, FUH_TR_NOOP("Kern", "„%1“")},
    {V::aufzaehlung, FUH_TR_NOOP("Kern", "%1, %2")},
    {V::aufzaehlungEnde, FUH_TR_NOOP("Kern", "%1 und %2")},
    {V::linkHinweis, FUH_TR_NOOP("Kern", "%1 „%2“ ist eine symbolische Verknüpfung, die ein anderer Benutzer "
                                         "angelegt oder verändert haben kann; das Spiel schreibt nicht durch "
                                         "sie hindurch.")},
    {V::partieBeschaedigt,
     FUH_TR_NOOP("Kern", "Die gespeicherte Partie ist beschädigt und wurde verworfen.")},
    {V::keinePartie, FUH_TR_NOOP("Kern", "Zeile 1: Das ist keine Partie von Fuchs und Hennen.")},
    {V::angabeUnbekannt, FUH_TR_NOOP("Kern", "Zeile %1: Unbekannte Angabe „%2“.")},
    {V::zeileUnlesbar, FUH_TR_NOOP("Kern", "Zeile %1 ist nicht lesbar.")},
    {V::zeileAbgeschnitten, FUH_TR_NOOP("Kern", "Zeile %1 ist abgeschnitten.")},
    {V::angabeFehlt, FUH_TR_NOOP("Kern", "Die Angabe „%1“ fehlt.")},
    {V::zugVerboten, FUH_TR_NOOP("Kern", "Zeile %1: Dieser Zug ist nach den Regeln nicht möglich.")},
    {V::ergebnisFalsch, FUH_TR_NOOP("Kern", "Zeile %1: Das Ergebnis passt nicht zu den Zügen.")},
    {V::partieZuGross, FUH_TR_NOOP("Kern", "Die Datei ist zu groß für eine Partie.")},
    {V::partieUnlesbar, FUH_TR_NOOP("Kern", "Die Datei „%1“ kann nicht gelesen werden.")},
    {V::pcFuchs, FUH_TR_NOOP("Kern", "PC spielt Fuchs")},
    {V::pcHennen, FUH_TR_NOOP("Kern", "PC spielt Hennen")},
    {V::pcBeide, FUH_TR_NOOP("Kern", "PC spielt Fuchs und Hennen")},
    {V::staerke, FUH_TR_NOOP("Kern", "Spielstärke %1")},
    {V::staerkeDialog, FUH_TR_NOOP("Kern", "SPielstärke 3")},
    {V::zweiSpielerFuchsAmZug, FUH_TR_NOOP("Kern", "Zwei Spieler: Füchse am Zug")},
    {V::zweiSpielerHennenAmZug, FUH_TR_NOOP("Kern", "Zwei Spieler: Hennen am Zug")},
    {V::meister, FUH_TR_NOOP("Kern", "Meister")},
    {V::siegJa, FUH_TR_NOOP("Kern", "Ja")},
    {V::siegNein, FUH_TR_NOOP("Kern", "Nein")},
    {V::fuchsAusgeschlossen,
     FUH_TR_NOOP("Kern",
                 "Der Fuchs hätte springen können. Bis zum nächsten Sprung wird er vom Feld genommen.")},
    {V::fuchsEingesetzt, FUH_TR_NOOP("Kern", "Der ausgeschlossene Fuchs wird wieder eingesetzt")},
    {V::zurueckgenommen, FUH_TR_NOOP("Kern", "Zurückgenommen: keine Bestenliste")},
}};

constexpr bool geordnet() {
    for (std::size_t i = 0; i < kTabelle.size(); ++i)
        if (static_cast<std::size_t>(kTabelle[i].first) != i) return false;
    return true;
}
static_assert(geordnet(), "every template stands at its identifier's place");

} // namespace

const char* vorlage(Vorlage v) {
    return kTabelle.at(static_cast<std::size_t>(v)).second;
}

std::string einsetzen(std::string_view vorlage, const std::vector<std::string>& werte) {
    std::string text;
    for (std::size_t i = 0; i < vorlage.size(); ++i) {
        const char c = vorlage[i];
        if (c == '%' && i + 1 < vorlage.size() && vorlage[i + 1] >= '1' && vorlage[i + 1] <= '9') {
            const auto nummer = static_cast<std::size_t>(vorlage[++i] - '1');
            if (nummer < werte.size()) text += werte[nummer];
            continue;
        }
        text += c;
    }
    return text;
}

Text Text::wort(std::string w) {
    Text t;
    t.wort_ = std::move(w);
    return t;
}

std::string deutsch(const Text& t) {
    if (!t.vorlage()) return t.wort();
    std::vector<std::string> werte;
    for (const Text& w : t.werte())
        werte.push_back(deutsch(w));
    return einsetzen(vorlage(*t.vorlage()), werte);
}

} // namespace fuh
