// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "game/spiel.h"

#include "dateischicht/satzdatei.h"
#include "game/zug.h"
#include "spieldaten/einstellungsdatei.h"
#include "spieldaten/statistikdatei.h"
#include "spieldaten/statustexte.h"

namespace fuh {

Spiel::Spiel(Ansicht& ansicht, Zufall& zufall, std::filesystem::path ordner)
    : ansicht_(ansicht), zufall_(zufall), ordner_(std::move(ordner)), lerndatei_(ordner_) {
    z_.stellung.grundstellung();
}

Spiel::~Spiel() = default;

void Spiel::spielerFestlegen(const Spielerwahl& w) {
    const bool andereSeiten = w.zweiSpieler != spielerwahl_.zweiSpieler;
    spielerwahl_ = w;
    if (andereSeiten) spielerGewechselt();
    meisterHennen_.reset();
    meisterFuchs_.reset();
    meisterTipp_.reset();
    statusTexte();
}

void Spiel::programmStart(uint32_t sekundenSeitMitternacht) {
    init();
    zufall_.setzen(sekundenSeitMitternacht);
    tippZufall_.setzen(sekundenSeitMitternacht);
    sperren(false);
}

void Spiel::init() {
    if (festeEinstellungen_)
        z_.oeff.einst = *festeEinstellungen_;
    else
        einstellungenLesen(ordner_, z_.oeff.einst);
    z_.oeff.score = 0;
    z_.oeff.u_is_sieger = "    ";
    z_.oeff.fuchs_null = false;
    z_.zugregister = {};
    z_.oeff.sw_spielende = false;
    z_.stellung.grundstellung();
    z_.sprungfolge.imSprung = false;
    z_.partie.spielzug = 0;
    z_.amZug = Seite::Hennen;
    z_.mitschrift = {};
    verlauf_.clear();
    wiederholbar_.clear();
    offeneAblage_.reset();
    if (z_.zurueckgenommen) ansicht_.status(Statusfeld::zuruecknahme, {});
    z_.zurueckgenommen = false;
    statusTexte();
}

void Spiel::statusTexte() {
    if (spielerwahl_.zweiSpieler)
        ansicht_.status(Statusfeld::seite, z_.amZug == Seite::Fuchs ? Vorlage::zweiSpielerFuchsAmZug
                                                                    : Vorlage::zweiSpielerHennenAmZug);
    else if (const auto text = pcStatustext(z_.oeff.einst.PC))
        ansicht_.status(Statusfeld::seite, *text);
    const auto meister = [](const std::optional<Spieler>& s) { return s && s->meister; };
    if (meister(spielerwahl_.fuchs) || meister(spielerwahl_.hennen))
        ansicht_.status(Statusfeld::staerke, Vorlage::meister);
    else if (const auto text = staerkeStatustext(z_.oeff.einst.Staerke))
        ansicht_.status(Statusfeld::staerke, *text);
}

void Spiel::punkteZeigen(std::optional<int16_t> zahl) {
    z_.punkte = {true, zahl};
    ansicht_.status(Statusfeld::punkte, punkteText(z_.punkte));
}

void Spiel::neuesSpiel() {
    init();
    bool gezaehlt = false;
    {
        const datei::Ordnersperre sperre = ordnerSperren();
        gezaehlt = ohneDateien_ || spielGestartet(ordner_);
    }
    if (!gezaehlt) meldeSchreibfehler({kStatistikdatei});
    ansicht_.aufgestellt(z_.stellung);
    sperren(true);
    z_.endeGefunden = false;
    z_.letztesErgebnis = Ergebnis::offen;
    // A jump sequence of the last game is over; its prompt must not linger.
    ansicht_.hinweis(Hinweis::spr_msg, false);
    spielBeginnen();
}

void Spiel::sperren(bool ziehbar) {
    z_.ziehbar = ziehbar;
    ansicht_.figurenZiehbar(ziehbar);
}

void Spiel::einstellungenUebernehmen(const Einstellungen& e) {
    const bool anders = !(e == z_.oeff.einst);
    z_.oeff.einst = e;
    if (anders) spielerGewechselt();
}

void Spiel::spielerGewechselt() {
    // The moves so far were made under the old players; taking them back would bring those back too.
    verlauf_.clear();
    wiederholbar_.clear();
    // A chain of jumps is a person's: it ends when the computer takes over the foxes.
    if (z_.sprungfolge.imSprung && !menschSpielt(Seite::Fuchs)) {
        z_.sprungfolge.imSprung = false;
        ansicht_.hinweis(Hinweis::spr_msg, false);
        amZugSetzen(Seite::Hennen);
    }
}

bool Spiel::menschSpielt(Seite s) const {
    if (spielerwahl_.zweiSpieler) return true;
    const Computer PC = z_.oeff.einst.computer();
    return PC == (s == Seite::Fuchs ? Computer::hennen : Computer::fuchs);
}

bool Spiel::computerSpielt(Seite s) const {
    if (spielerwahl_.zweiSpieler) return false;
    const Computer PC = z_.oeff.einst.computer();
    return PC == Computer::beide || PC == (s == Seite::Fuchs ? Computer::fuchs : Computer::hennen);
}

std::optional<Seite> Spiel::menschenseite() const {
    for (Seite s : {Seite::Fuchs, Seite::Hennen})
        if (menschSpielt(s) && computerSpielt(gegner(s))) return s;
    return std::nullopt;
}

void Spiel::einstellungenFestlegen(const Einstellungen& e) {
    festeEinstellungen_ = e;
    z_.oeff.einst = e;
}

void Spiel::meldeSchreibfehler(const std::vector<std::string>& dateien) {
    if (dateien.empty()) return;
    Text text;
    if (dateien.size() == 1) {
        text = schreibfehler(dateien.front());
    } else {
        const auto name = [](const std::string& d) { return Text(Vorlage::dateiname, {Text::wort(d)}); };
        Text namen = name(dateien.front());
        for (std::size_t i = 1; i < dateien.size(); ++i)
            namen = Text(i + 1 == dateien.size() ? Vorlage::aufzaehlungEnde : Vorlage::aufzaehlung,
                         {namen, name(dateien[i])});
        text = Text(Vorlage::schreibfehlerMehrere, {namen});
    }
    for (const std::string& name : dateien)
        text = mitLinkHinweis(text, ordner_, name);
    ansicht_.speicherfehler(text);
}

datei::Ordnersperre Spiel::ordnerSperren() {
    return datei::Ordnersperre(ordner_, [this](bool fertig) { ansicht_.wartetAufDateien(fertig); });
}

void Spiel::zug(bool normal) {
    Zugumgebung u{z_.stellung,
                  z_.zugregister,
                  z_.sprungfolge,
                  ansicht_,
                  z_.partie,
                  menschSpielt(Seite::Fuchs),
                  menschSpielt(Seite::Hennen)};
    fuh::zug(u, normal);
}

} // namespace fuh
