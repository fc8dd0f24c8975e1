// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Taking a move back, and keeping a running game over the end of the program.
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSessionManager>
#include <QStatusBar>
#include <cstring>
#include <optional>

#include "game/partiedatei.h"
#include "game/spiel.h"
#include "ui/beendigung.h"
#include "ui/brett_fenster.h"
#include "ui/brett_flaeche.h"
#include "ui/datenordner.h"
#include "ui/meldung.h"
#include "ui/sprache.h"
#include "ui/titel.h"

namespace fuh {

namespace {

// The identities of saved games taken over whose file could not be removed: never offered again.
constexpr const char* kUebernommen = "uebernommen";

std::vector<std::string> uebernommeneLesen() {
    std::vector<std::string> liste;
    for (const QString& k : fensterEinstellungen().value(QLatin1String(kUebernommen)).toStringList())
        liste.push_back(k.toStdString());
    return liste;
}

void uebernommeneSchreiben(const std::vector<std::string>& liste) {
    QStringList l;
    for (const std::string& k : liste)
        l.push_back(QString::fromStdString(k));
    QSettings s = fensterEinstellungen();
    if (l.isEmpty())
        s.remove(QLatin1String(kUebernommen));
    else
        s.setValue(QLatin1String(kUebernommen), l);
}

QString systemfehler(int fehler) {
    return QString::fromLocal8Bit(std::strerror(fehler));
}

// What the start found: a folder that cannot be used, damaged files removed.
void startMelden(QWidget* eltern, const datei::Ordner& o, int beschaedigt) {
    if (!o && o.grund != datei::Ordnergrund::fehlt && o.grund != datei::Ordnergrund::keiner)
        meldungZeigen(eltern, QMessageBox::Warning,
                      QCoreApplication::translate(
                          "fuh::BrettFenster",
                          "Der Ordner für die gespeicherte Partie ist nicht nutzbar: %1. Das Spiel liest und "
                          "schreibt dort nichts; eine laufende Partie wird beim Beenden nicht gespeichert.")
                          .arg(ordnerGrund(o)));
    if (beschaedigt > 0) meldungZeigen(eltern, QMessageBox::Warning, uebersetzt(Vorlage::partieBeschaedigt));
}

// "Die letzte Partie fortsetzen?": true for "Ja", false for "Nein" (or Escape), nullopt when no answer came
// (a signal ended the question: the program is ending).
std::optional<bool> fortsetzenFragen(QWidget* eltern) {
    QMessageBox frage(QMessageBox::Question, QString::fromUtf8(kTitel),
                      QCoreApplication::translate("fuh::BrettFenster", "Die letzte Partie fortsetzen?"),
                      QMessageBox::Yes | QMessageBox::No, eltern);
    frage.setTextFormat(Qt::PlainText);
    frage.setDefaultButton(QMessageBox::Yes);
    frage.exec();
    if (!frage.clickedButton()) return std::nullopt;
    return frage.clickedButton() == frage.button(QMessageBox::Yes);
}

} // namespace

void BrettFenster::zuruecknehmen() {
    if (beschaeftigt() || !spiel_->zuruecknehmenMoeglich()) return;
    brett_->tippLoeschen();
    brett_->ziehenAbbrechen();
    brett_->markierungLoeschen();
    statusBar()->clearMessage();
    spiel_->zuruecknehmen();
    spielWeiter();
}

void BrettFenster::fortsetzenAnbieten(const std::filesystem::path& ordner) {
    partieBehalten_ = true;
    if (!ordner.empty()) ablage_ = std::make_unique<Partieablage>(ordner);
    // The desktop session may end the program without closing its windows first.
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) { partieSichern(); });
    if (!ablage_) return;
    std::vector<std::string> uebernommen = uebernommeneLesen();
    const std::vector<std::string> vorher = uebernommen;
    Partieablage::Angebot angebot = ablage_->holen(uebernommen);
    if (uebernommen != vorher) uebernommeneSchreiben(uebernommen);
    startMelden(this, ablage_->ordnerZustand(), angebot.beschaedigt);
    if (!angebot.sicherung) return;

    if (angebot.sicherung->abzulegen) {
        // A finished game that could not be filed when the program ended: filed now, without a question.
        spiel_->ablegen(*angebot.sicherung);
        spielWeiter();
        if (spiel_->offeneAblage()) {
            ablage_->freigeben(); // still locked away: the next start tries again
            return;
        }
    } else {
        const std::optional<bool> ja = fortsetzenFragen(this);
        if (!ja) {
            ablage_->freigeben(); // the file stays as it is, for the next start
            return;
        }
        // "Nein": the game was counted when it began, so it stays an abandoned one.
        if (*ja) {
            naechsterZug_.stop();
            brett_->tippLoeschen();
            brett_->ziehenAbbrechen();
            brett_->markierungLoeschen();
            spiel_->fortsetzen(*angebot.sicherung);
            spielWeiter();
        }
    }
    // The answer has taken effect: the file goes. Where it cannot, the game is marked as taken over, so
    // that it is neither offered nor filed a second time.
    if (ablage_->erledigt()) return;
    uebernommen.push_back(angebot.kennung);
    uebernommeneSchreiben(uebernommen);
    meldungZeigen(this, QMessageBox::Warning,
                  tr("Die gespeicherte Partie kann nicht entfernt werden: %1. Sie wird nicht noch einmal "
                     "angeboten.")
                      .arg(systemfehler(ablage_->fehler())));
}

bool BrettFenster::partieSichern() {
    if (!partieBehalten_ || ohnePartie_) return true;
    // A finished game that the end of the program kept from its files goes to the next start.
    if (const auto& offen = spiel_->offeneAblage(); offen && beendenVerlangt())
        return ablage_ && ablage_->sichern(*offen);
    if (!spiel_->laeuft()) {
        if (ablage_) ablage_->verwerfen();
        return true;
    }
    return ablage_ && ablage_->sichern(spiel_->sicherung());
}

void BrettFenster::partieAbgleichen() {
    // The game this window kept is over (and filed), or another one begun: its file would offer it once
    // more.
    if (ablage_ && ablage_->haelt() && !spiel_->laeuft() && !spiel_->offeneAblage()) ablage_->verwerfen();
}

bool BrettFenster::beendenDarf() {
    if (!partieBehalten_ || ohnePartie_ || !spiel_->laeuft() || partieSichern()) return true;
    QString grund;
    if (!ablage_)
        grund = tr("Es gibt keinen Ordner für sie (kein Heimatordner)");
    else if (const datei::Ordner& o = ablage_->ordnerZustand(); !o && o.grund != datei::Ordnergrund::keiner)
        grund = ordnerGrund(o);
    else
        grund = systemfehler(ablage_->fehler());
    QMessageBox frage(
        QMessageBox::Warning, QString::fromUtf8(kTitel),
        tr("Die laufende Partie kann nicht gespeichert werden: %1. Beim nächsten Start lässt sie "
           "sich dann nicht fortsetzen.")
            .arg(grund),
        QMessageBox::NoButton, this);
    frage.setTextFormat(Qt::PlainText);
    QPushButton* trotzdem = frage.addButton(tr("Trotzdem beenden"), QMessageBox::DestructiveRole);
    trotzdem->setObjectName(QStringLiteral("trotzdemBeenden"));
    QPushButton* abbrechen = frage.addButton(tr("Abbrechen"), QMessageBox::RejectRole);
    abbrechen->setObjectName(QStringLiteral("abbrechen"));
    frage.setDefaultButton(abbrechen);
    frage.setEscapeButton(abbrechen);
    frage.exec();
    if (frage.clickedButton() != trotzdem) return false;
    ohnePartie_ = true;
    return true;
}

void BrettFenster::closeEvent(QCloseEvent* e) {
    if (beendenDarf())
        e->accept();
    else
        e->ignore();
}

} // namespace fuh
