// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "game/nachspielen.h"

#include <utility>

#include "board/regeln.h"
#include "board/zugliste.h" // teilzugAusfuehren

namespace fuh {

namespace {

// A side's move on `Feld` by the rules: one step, or a chain of jumps of one fox. A computer player may
// find no move even where the rules allow one (it then loses, or draws, as the end-of-move check says).
bool erlaubt(Brettfeld Feld, Seite seite, const std::vector<Teilzug>& teile) {
    Sprungfolge folge;
    for (const Teilzug& t : teile) {
        if ((folge.imSprung || teile.size() > 1) && !t.sprung()) return false;
        if (!korrekterZug(Feld, seite, folge, t.vonX, t.vonY, t.nachX, t.nachY)) return false;
        teilzugAusfuehren(Feld, t);
        folge = {true, t.nachX, t.nachY};
    }
    return true;
}

// The computer's choices, one recorded move at a time; a refused one is no move, and noted.
class Vorgabe : public Zugvorgabe {
  public:
    explicit Vorgabe(const Spiel& spiel) : spiel_(spiel) {}
    const Partiezug* naechster = nullptr;
    bool verweigert = false;

    bool bereit(Seite seite) const override { return naechster && naechster->seite == seite; }
    Zugwahl wahl(Seite seite) override {
        Zugwahl w;
        const Partiezug* e = std::exchange(naechster, nullptr);
        verweigert = !e || !erlaubt(spiel_.stellung().Feld, seite, e->teile);
        if (verweigert) return w;
        for (const Teilzug& t : e->teile)
            w.anhaengen(t);
        return w;
    }

  private:
    const Spiel& spiel_;
};

// A person's move, drop by drop; a chain is closed unless the record leaves it open.
bool menschZieht(Spiel& spiel, const Partiezug& e, bool offen) {
    if (e.teile.empty() || e.strafe != Strafe::Art::keine) return false;
    for (const Teilzug& t : e.teile) {
        const auto k = figur_index(spiel.stellung(), feldNummer(t.vonX, t.vonY));
        const std::size_t vorher = spiel.mitschrift().zuege.size();
        const std::size_t teile = vorher == 0 ? 0 : spiel.mitschrift().zuege.back().teile.size();
        if (!k || feldNummer(t.vonX, t.vonY) == kParkfeld) return false;
        spiel.abgelegt(feldNummer(t.nachX, t.nachY), *k);
        const auto& zuege = spiel.mitschrift().zuege;
        if (zuege.size() == vorher && (vorher == 0 || zuege.back().teile.size() == teile)) return false;
    }
    if (spiel.sprungfolge().imSprung && !offen) spiel.sprungfolgeSchliessen();
    return true;
}

// Shows nothing: the states are what is wanted.
class Stumm : public Ansicht {
  public:
    void figurenZiehbar(bool) override {}
    void hinweis(Hinweis, bool) override {}
    void status(Statusfeld, const Text&) override {}
    void meldung(const Text&) override {}
    void oeffnen(Fenster) override {}
};

// The game ends as the file says, or runs on when it says so.
bool ergebnisPasst(const Spiel& spiel, const Aufzeichnung& a) {
    const Ergebnis e = spiel.endeGefunden() ? spiel.letztesErgebnis() : Ergebnis::offen;
    return e == a.ergebnis && spiel.mitschrift().ende == a.ende;
}
} // namespace

Text nachspielen(Spiel& spiel, const Aufzeichnung& a, const std::function<void(std::size_t)>& nachZug) {
    Vorgabe vorgabe(spiel);
    spiel.einstellungenFestlegen(a.einst);
    spiel.spielerFestlegen(a.spieler);
    spiel.ohneDateien(true);
    spiel.schrittweise(true);
    spiel.vorgeben(&vorgabe);
    spiel.neuesSpiel(); // the computer's opening move, too, is made below
    if (a.zurueckgenommen) spiel.keineBestenliste();
    if (nachZug) nachZug(0);
    const auto zeile = [&](std::size_t i) { return Text::zahl(i < a.zeilen.size() ? a.zeilen[i] : 0); };
    Text fehler;
    for (std::size_t i = 0; i < a.zuege.size() && fehler.leer(); ++i) {
        const Partiezug& e = a.zuege[i];
        bool gemacht = !spiel.endeGefunden() && e.seite == spiel.amZug();
        if (gemacht && spiel.computerAmZug()) {
            vorgabe.naechster = &e;
            gemacht = spiel.computerZieht() && !vorgabe.verweigert;
        } else if (gemacht) {
            gemacht = spiel.menschAmZug() && menschZieht(spiel, e, a.offen && i + 1 == a.zuege.size());
        }
        const auto& zuege = spiel.mitschrift().zuege;
        if (!gemacht || zuege.size() != i + 1 || !(zuege.back() == e))
            fehler = Text(Vorlage::zugVerboten, {zeile(i)});
        else if (nachZug)
            nachZug(i + 1);
    }
    spiel.vorgeben(nullptr);
    if (fehler.leer() && !ergebnisPasst(spiel, a))
        fehler = Text(Vorlage::ergebnisFalsch, {Text::zahl(a.ergebnisZeile)});
    return fehler;
}

} // namespace fuh

namespace fuh {

std::vector<Spielstand> nachspielStaende(const Aufzeichnung& a, const std::filesystem::path& ordner,
                                         Text& fehler) {
    Stumm stumm;
    Zufall zufall;
    Spiel spiel(stumm, zufall, ordner);
    std::vector<Spielstand> staende;
    fehler = nachspielen(spiel, a, [&](std::size_t) { staende.push_back(spiel.zustand()); });
    if (!fehler.leer()) staende.clear();
    return staende;
}

} // namespace fuh
