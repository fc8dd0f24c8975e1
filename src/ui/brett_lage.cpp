// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window's board with the line that explains the game, a person's drops, and the end of a game
// told with its reasons.
#include <QStringList>
#include <QVBoxLayout>

#include "game/spiel.h"
#include "ui/ansage.h"
#include "ui/brett_fenster.h"
#include "ui/brett_flaeche.h"
#include "ui/brett_zugang.h"
#include "ui/lagefeld.h"

namespace fuh {

void BrettFenster::mitteAnlegen() {
    auto* mitte = new QWidget(this);
    auto* spalte = new QVBoxLayout(mitte);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(0);
    brett_->setParent(mitte);
    spalte->addWidget(brett_, 1);
    lage_ = new Lagefeld(mitte);
    spalte->addWidget(lage_);
    setCentralWidget(mitte);
    // A lifted piece shows where it may go.
    brett_->zieleGeben([this](int k) { return spiel_->ziele(spiel_->stellung().figurplatz[k]); });
    connect(brett_, &BrettFlaeche::abgelegt, this, &BrettFenster::ablegen);
    connect(brett_, &BrettFlaeche::aufgenommen, this, [this](int k, int feld) {
        QStringList ziele;
        for (int t : brett_->ziele())
            ziele << feldName(t);
        const QString figur =
            BrettFlaeche::istFuchs(k) ? tr("Fuchs %1 aufgenommen") : tr("Henne %1 aufgenommen");
        ansage_->sagen(ziele.isEmpty()
                           ? tr("%1, kein Zug möglich").arg(figur.arg(feldName(feld)))
                           : tr("%1, erlaubt: %2").arg(figur.arg(feldName(feld)), ziele.join(tr(", "))));
    });
}

void BrettFenster::ablegen(int t, int k) {
    if (beschaeftigt()) return;
    brett_->tippLoeschen();
    spiel_->abgelegt(t, k);
    // A chain of jumps that cannot go on ends by itself, as the right button would end it.
    const Sprungfolge& sprung = spiel_->sprungfolge();
    if (sprung.imSprung && spiel_->ziele(feldNummer(sprung.sprungX, sprung.sprungY)).empty())
        spiel_->sprungfolgeSchliessen();
    spielWeiter();
}

void BrettFenster::lageZeigen() {
    if (!spiel_ || !lage_) return;
    const Spiel& s = *spiel_;
    Lage l;
    l.begonnen = s.ziehbar() || s.endeGefunden();
    l.laeuft = s.laeuft();
    if (!l.laeuft)
        l.amZug = Lage::Zug::keiner;
    else if (s.selbstspielLaeuft())
        l.amZug = Lage::Zug::selbstspiel;
    else if (s.spielerwahl().zweiSpieler)
        l.amZug = Lage::Zug::zweiSpieler;
    else
        l.amZug = s.menschAmZug()     ? Lage::Zug::mensch
                  : s.computerAmZug() ? Lage::Zug::computer
                                      : Lage::Zug::keiner;
    l.seite = s.amZug();
    l.spielzug = s.spielzug();
    const Einstellungen& e = s.oeffentlich().einst;
    l.lernmodus = e.Lernmodus == 1 && !s.spielerwahl().zweiSpieler;
    l.einzelzug = e.Einzelzug == 1 && s.menschenseite().has_value();
    const QString neu = lage_->setzen(l);
    if (!neu.isEmpty()) ansage_->sagen(neu, false); // the line shows it
}

void BrettFenster::spielEndet(const Spielausgang& ausgang) {
    int gruende = 0;
    for (const Endegrund g : ausgang)
        gruende |= 1 << static_cast<int>(g);
    wiedergabe_.anhaengen(Ereignis::Art::ende, gruende, spiel_->oeffentlich().fuchs_null ? 1 : 0);
}

bool BrettFenster::nurNotiz(const Text& text) const {
    // Watching the computer play itself, nobody is there to close a box: the penalty rule's word is
    // said and stays in the status bar instead.
    const bool strafe = text == Text(Vorlage::fuchsAusgeschlossen) || text == Text(Vorlage::fuchsEingesetzt);
    return strafe && spiel_->computerSpielt(Seite::Fuchs) && spiel_->computerSpielt(Seite::Hennen);
}

void BrettFenster::endeZeigen(const Ereignis& e) {
    ansage_->sagen(lage_->ende(static_cast<uint8_t>(e.a), e.b != 0), false);
}

} // namespace fuh
