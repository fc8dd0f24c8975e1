// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Taking a move back, and keeping a running game over the end of the program.
#include <QGuiApplication>
#include <QMessageBox>
#include <QSessionManager>
#include <QStatusBar>

#include "game/partiedatei.h"
#include "game/spiel.h"
#include "ui/brett_fenster.h"
#include "ui/brett_flaeche.h"
#include "ui/meldung.h"
#include "ui/sprache.h"
#include "ui/titel.h"

namespace fuh {

void BrettFenster::zuruecknehmen() {
    if (beschaeftigt() || !spiel_->zuruecknehmenMoeglich()) return;
    brett_->tippLoeschen();
    brett_->ziehenAbbrechen();
    brett_->markierungLoeschen();
    statusBar()->clearMessage();
    spiel_->zuruecknehmen();
    spielWeiter();
}

void BrettFenster::fortsetzenAnbieten(const std::filesystem::path& datei) {
    partieDatei_ = datei;
    // The desktop session may end the program without closing its windows first.
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) { partieSichern(); });
    const Partieladung ladung = partieHolen(datei);
    if (ladung.beschaedigt)
        meldungZeigen(this, QMessageBox::Warning, kernText(QString::fromUtf8(kPartieBeschaedigt)));
    if (!ladung.sicherung) return;
    QMessageBox frage(QMessageBox::Question, QString::fromUtf8(kTitel), tr("Die letzte Partie fortsetzen?"),
                      QMessageBox::Yes | QMessageBox::No, this);
    frage.setTextFormat(Qt::PlainText);
    frage.setDefaultButton(QMessageBox::Yes);
    frage.exec();
    // "Nein" (or Escape): the game was counted when it began, so it stays an abandoned one. Without an
    // answer the program is ending: the game is taken over, so that it is kept for the next start.
    if (frage.clickedButton() == frage.button(QMessageBox::No)) return;
    naechsterZug_.stop();
    brett_->tippLoeschen();
    brett_->ziehenAbbrechen();
    brett_->markierungLoeschen();
    spiel_->fortsetzen(*ladung.sicherung);
    spielWeiter();
}

void BrettFenster::partieSichern() {
    if (partieDatei_.empty()) return;
    if (!spiel_->laeuft()) {
        partieVerwerfen(partieDatei_);
        return;
    }
    // The program is ending: there is no one left to tell, and an older file is never half-written.
    if (!partieSpeichern(partieDatei_, spiel_->sicherung()))
        qWarning("Die laufende Partie konnte nicht gespeichert werden: %s", partieDatei_.c_str());
}

} // namespace fuh
