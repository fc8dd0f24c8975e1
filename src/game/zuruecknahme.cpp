// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Taking moves back, and going on from a copy of the whole game.
#include "game/spiel.h"

#include "board/text.h"

namespace fuh {

Spielstand Spiel::zustand() const {
    Spielstand z = z_;
    z.zufall = zufall_.zustand();
    z.tippZufall = tippZufall_.zustand();
    return z;
}

bool Spiel::zuruecknehmenMoeglich() const {
    return !verlauf_.empty() && laeuft() && (menschSpielt(Seite::Fuchs) || menschSpielt(Seite::Hennen));
}

void Spiel::zuruecknehmen() {
    if (!zuruecknehmenMoeglich()) return;
    wiederholbar_.push_back(zustand());
    wiederholbar_.back().zurueckgenommen = true;
    Spielstand vorher = std::move(verlauf_.back());
    verlauf_.pop_back();
    vorher.zurueckgenommen = true;
    zustandSetzen(vorher);
}

void Spiel::wiederholen() {
    if (!wiederholenMoeglich()) return;
    verlauf_.push_back(zustand());
    Spielstand nachher = std::move(wiederholbar_.back());
    wiederholbar_.pop_back();
    zustandSetzen(nachher);
}

void Spiel::keineBestenliste() {
    z_.zurueckgenommen = true;
    ansicht_.status(Statusfeld::zuruecknahme, Vorlage::zurueckgenommen);
}

void Spiel::fortsetzen(const Sicherung& s) {
    verlauf_ = s.verlauf;
    wiederholbar_.clear();
    offeneAblage_.reset();
    zustandSetzen(s.stand);
}

void Spiel::zustandSetzen(const Spielstand& z) {
    z_ = z;
    zufall_.setzen(z.zufall);
    tippZufall_.setzen(z.tippZufall);
    ansicht_.aufgestellt(z_.stellung);
    ansicht_.figurenZiehbar(z_.ziehbar);
    // Between moves only an open jump sequence keeps a prompt on the board.
    for (Hinweis h : {Hinweis::f_zug, Hinweis::h_zug, Hinweis::speichern_msg})
        ansicht_.hinweis(h, false);
    ansicht_.hinweis(Hinweis::spr_msg, z_.sprungfolge.imSprung);
    statusTexte();
    ansicht_.status(Statusfeld::punkte, punkteText(z_.punkte));
    ansicht_.status(Statusfeld::zuruecknahme, z_.zurueckgenommen ? Text(Vorlage::zurueckgenommen) : Text());
}

} // namespace fuh
