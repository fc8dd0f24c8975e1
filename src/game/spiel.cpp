// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "game/spiel.h"

#include "dialogs/einstellungsdatei.h"
#include "dialogs/statistikdatei.h"
#include "dialogs/statustexte.h"
#include "game/zug.h"
#include "memory/satzdatei.h"

namespace fuh {

Spiel::Spiel(Ansicht& ansicht, Zufall& zufall, std::filesystem::path ordner)
    : ansicht_(ansicht), zufall_(zufall), ordner_(std::move(ordner)), lerndatei_(ordner_) {
    stellung_.grundstellung();
    bilder_.aufstellen(stellung_);
}

Spiel::~Spiel() = default;

void Spiel::spielerFestlegen(const Spielerwahl& w) {
    spielerwahl_ = w;
    meisterHennen_.reset();
    meisterFuchs_.reset();
    meisterTipp_.reset();
    statusTexte();
}

void Spiel::Form_Load(uint32_t sekundenSeitMitternacht) {
    init();
    zufall_.setzen(sekundenSeitMitternacht);
    tippZufall_.setzen(sekundenSeitMitternacht);
    sperren(false);
}

void Spiel::init() {
    if (festeEinstellungen_)
        oeff_.einst = *festeEinstellungen_;
    else
        einstellungenLesen(ordner_, oeff_.einst);
    oeff_.score = 0;
    oeff_.u_is_sieger = "    ";
    oeff_.fuchs_null = false;
    zugregister_ = {};
    oeff_.sw_spielende = false;
    stellung_.grundstellung();
    sprungfolge_.imSprung = false;
    partie_.spielzug = 0;
    selbstspielLaeuft_ = false;
    statusTexte();
}

void Spiel::statusTexte() {
    if (const auto text = pcStatustext(oeff_.einst.PC)) ansicht_.status(Statusfeld::seite, *text);
    const auto meister = [](const std::optional<Spieler>& s) { return s && s->meister; };
    if (meister(spielerwahl_.fuchs) || meister(spielerwahl_.hennen))
        ansicht_.status(Statusfeld::staerke, kMeisterStatustext);
    else if (const auto text = staerkeStatustext(oeff_.einst.Staerke))
        ansicht_.status(Statusfeld::staerke, *text);
}

void Spiel::Neu_Click() {
    init();
    bool gezaehlt = false;
    {
        const datei::Ordnersperre sperre = ordnerSperren();
        gezaehlt = spielGestartet(ordner_);
    }
    if (!gezaehlt) meldeSchreibfehler({kStatistikdatei});
    bilder_.aufstellen(stellung_);
    for (int k = 0; k < kFiguren; ++k) {
        ansicht_.figurBewegt(k, bilder_.left[k], bilder_.top[k]);
        ansicht_.figurSichtbar(k, true);
    }
    sperren(true);
    endeGefunden_ = false;
    letztesErgebnis_ = Ergebnis::offen;
    // A jump sequence of the last game is over; its prompt must not linger.
    ansicht_.hinweis(Hinweis::spr_msg, false);
    spielBeginnen();
}

void Spiel::sperren(bool ziehbar) {
    bilder_.ziehbar = ziehbar;
    ansicht_.figurenZiehbar(ziehbar);
}

void Spiel::einstellungenUebernehmen(const Einstellungen& e) {
    oeff_.einst = e;
}

void Spiel::einstellungenFestlegen(const Einstellungen& e) {
    festeEinstellungen_ = e;
    oeff_.einst = e;
}

void Spiel::meldeSchreibfehler(const std::vector<std::string>& dateien) {
    if (dateien.empty()) return;
    std::string text;
    if (dateien.size() == 1) {
        text = schreibfehler(dateien.front());
    } else {
        std::string namen;
        for (std::size_t i = 0; i < dateien.size(); ++i)
            namen += (i == 0 ? "" : i + 1 == dateien.size() ? " und " : ", ") + ("„" + dateien[i] + "“");
        text = "Die Dateien " + namen +
               " konnten nicht gespeichert werden. Das Spiel geht ohne diese Daten weiter.";
    }
    for (const std::string& name : dateien)
        text += linkHinweis(ordner_, name);
    ansicht_.speicherfehler(text);
}

datei::Ordnersperre Spiel::ordnerSperren() {
    return datei::Ordnersperre(ordner_, [this](bool fertig) { ansicht_.wartetAufDateien(fertig); });
}

void Spiel::zug(bool normal) {
    Zugumgebung u{stellung_, zugregister_, sprungfolge_, bilder_, ansicht_, partie_};
    fuh::zug(u, oeff_.einst.computer(), normal);
}

} // namespace fuh
