// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/brett_fenster.h"

#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QTime>
#include <algorithm>
#include <utility>

#include "game/partiedatei.h"
#include "game/spiel.h"
#include "ui/ansage.h"
#include "ui/brett_flaeche.h"
#include "ui/fenstergeometrie.h"
#include "ui/klaenge.h"
#include "ui/meldung.h"
#include "ui/statusbreite.h"
#include "ui/titel.h"
#include "ui/zugliste_panel.h"

namespace fuh {

QSettings fensterEinstellungen() {
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("fuchs-und-hennen"),
                     QStringLiteral("fenster"));
}

namespace {

uint32_t sekundenSeitMitternacht() {
    return static_cast<uint32_t>(QTime::currentTime().msecsSinceStartOfDay() / 1000);
}

} // namespace

BrettFenster::BrettFenster(std::filesystem::path ordner, QWidget* parent)
    : BrettFenster(std::move(ordner), sekundenSeitMitternacht(), parent) {}

BrettFenster::BrettFenster(std::filesystem::path ordner, uint32_t startzeit, QWidget* parent)
    : QMainWindow(parent), wiedergabe_([this](const Ereignis& e) { zeigen(e); }), startzeit_(startzeit) {
    setObjectName(QStringLiteral("brett"));
    setWindowTitle(QString::fromUtf8(kTitel));

    brett_ = new BrettFlaeche([this] { return spiel_->menschAmZug() && !beschaeftigt(); }, this);
    klaenge_ = new Klaenge([this] { return spiel_ ? spiel_->menschenseite() : std::nullopt; }, this);
    mitteAnlegen();
    zugliste_ = new ZuglistePanel(this);
    addDockWidget(Qt::RightDockWidgetArea, zugliste_);
    menueAnlegen();
    statusleisteAnlegen();
    tempoLaden();
    groesseLaden();

    spiel_ = std::make_unique<Spiel>(*this, zufall_, std::move(ordner));
    // Computer against computer is shown move by move; the next move is asked for when one has been seen.
    spiel_->schrittweise(true);
    verbinden();

    spiel_->programmStart(startzeit);
    // The Meister is stored as strength 3 in QZ.INI; a file that says otherwise now was changed since.
    auswahl_.meister = fensterEinstellungen().value(QStringLiteral("meister")).toBool() &&
                       spiel_->oeffentlich().einst.Staerke == 2;
    auswahl_.zweiSpieler = fensterEinstellungen().value(QStringLiteral("zweiSpieler")).toBool();
    spielerAnwenden();
    // Start-up moves nothing that could be paced: its reports are shown at once.
    wiedergabe_.abbrechen([](const Ereignis&) { return true; });
    brett_->aufstellen(spiel_->stellung());
    befehleAbgleichen();

    zugUhr_.start();
    brett_->setFocus(); // the board is played with the keyboard as well
}

void BrettFenster::verbinden() {
    connect(brett_, &BrettFlaeche::figurGedrueckt, this, [this](int, Maustaste taste) {
        if (taste != Maustaste::rechts || beschaeftigt()) return;
        spiel_->sprungfolgeSchliessen();
        spielWeiter();
    });
    connect(&wiedergabe_, &Wiedergabe::fertig, this, &BrettFenster::wiedergabeFertig);
    tippUhr_.setSingleShot(true);
    connect(&tippUhr_, &QTimer::timeout, brett_, &BrettFlaeche::tippLoeschen);
    naechsterZug_.setSingleShot(true);
    connect(&naechsterZug_, &QTimer::timeout, this, &BrettFenster::selbstspielSchritt);
    zugUhr_.setInterval(500);
    connect(&zugUhr_, &QTimer::timeout, this, &BrettFenster::zugTakt);
}

BrettFenster::~BrettFenster() {
    // The program is ending: there is no one left to ask, and an older file is never half-written.
    if (!partieSichern())
        qWarning("Die laufende Partie konnte nicht gespeichert werden: %s",
                 ablage_ ? ablage_->ordner().c_str() : "kein Ordner");
    fensterEinstellungen().setValue(QStringLiteral("geometrie"), saveGeometry());
}

void BrettFenster::groesseLaden() {
    // A stored size is fitted into the screen before it is applied; one that makes no sense is dropped.
    const QScreen* bildschirm = screen();
    if (bildschirm) brettEinpassen(bildschirm->availableGeometry().height());
    if (const auto g =
            fenstergeometrie(fensterEinstellungen().value(QStringLiteral("geometrie")).toByteArray(),
                             bildschirm ? bildschirm->availableGeometry() : QRect())) {
        if (g->unveraendert) {
            if (restoreGeometry(g->gespeichert)) return;
        } else {
            setGeometry(g->normal);
            if (g->maximiert) setWindowState(windowState() | Qt::WindowMaximized);
            return;
        }
    }
    // First start: the board's size, then as wide as the status fields' longest texts need.
    const QRect frei = bildschirm ? bildschirm->availableGeometry() : QRect();
    const int zusatz = menuBar()->sizeHint().height() + statusBar()->sizeHint().height();
    resize(ersteFenstergroesse(BrettFlaeche::kSeite, zusatz, 0, frei));
    resize(
        ersteFenstergroesse(BrettFlaeche::kSeite, zusatz, statusleistenBreite(*statusBar(), panels_), frei));
}

void BrettFenster::brettEinpassen(int hoehe) {
    // A screen too low for the board picture at its own size (a large scale on a small screen): the
    // board may shrink, down to half, so that the whole window fits.
    const int rest = minimumSizeHint().height() - brett_->minimumSizeHint().height();
    const int seite = std::clamp(hoehe - rest, BrettFlaeche::kSeite / 2, BrettFlaeche::kSeite);
    brett_->setMinimumSize(seite, seite);
    // Laid out at once, so that the size set next already allows the smaller board.
    centralWidget()->layout()->activate();
    layout()->activate();
}

bool BrettFenster::beschaeftigt() const {
    return wartetAufDateien_ || wiedergabe_.laeuft() || naechsterZug_.isActive() || selbstspielSchleife_;
}

void BrettFenster::zugTakt() {
    // A requested reply waits until the player has seen everything before it.
    if (beschaeftigt()) return;
    spiel_->computerZieht();
    spielWeiter();
}

void BrettFenster::neu() {
    naechsterZug_.stop();
    if (ablage_) ablage_->verwerfen(); // the game it kept is abandoned now
    brett_->tippLoeschen();
    // The abandoned game's pictures go where it left them and its announcements are dropped; a failure
    // to save and the high-score list of a finished game still reach the player.
    wiedergabe_.abbrechen([](const Ereignis& e) {
        return e.art == Ereignis::Art::speicherfehler || e.art == Ereignis::Art::oeffnen;
    });
    brett_->ziehenAbbrechen();
    brett_->markierungLoeschen();
    ansage_->verwerfen();
    statusBar()->clearMessage();
    blaetternBeenden();
    panelSetzen(Statusfeld::punkte, {}); // the last game's points go; the new game shows its own
    spiel_->neuesSpiel();
    spielWeiter();
}

void BrettFenster::spielWeiter() {
    partieAbgleichen();
    befehleAbgleichen(); // before a message of the game may open
    wiedergabe_.abspielen();
    befehleAbgleichen();
}

void BrettFenster::wiedergabeFertig() {
    ansage_->abschliessen();
    lageZeigen();
    if (selbstspielSchleife_) return;
    if (spiel_->selbstspielLaeuft()) {
        if (wiedergabe_.gleitdauer() > 0) {
            naechsterZug_.start(wiedergabe_.gleitdauer());
            return;
        }
        // Shown at once: the whole game is played here.
        selbstspielSchleife_ = true;
        while (spiel_->selbstspielLaeuft() && !wiedergabe_.laeuft()) {
            spiel_->computerZieht();
            wiedergabe_.abspielen();
        }
        selbstspielSchleife_ = false;
    }
    befehleAbgleichen();
}

void BrettFenster::selbstspielSchritt() {
    if (!spiel_->selbstspielLaeuft()) return; // the players changed during the rest
    spiel_->computerZieht();
    spielWeiter();
}

void BrettFenster::befehleAbgleichen() {
    const bool frei = !beschaeftigt();
    for (QAction* a : wartendeBefehle_)
        a->setEnabled(frei);
    if (tippAktion_) tippAktion_->setEnabled(frei && spiel_ && spiel_->tippMoeglich());
    if (zurueckAktion_) zurueckAktion_->setEnabled(frei && spiel_ && spiel_->zuruecknehmenMoeglich());
    zuglisteAbgleichen();
    if (einstellungenAktion_)
        einstellungenAktion_->setEnabled(frei || (spiel_ && spiel_->selbstspielLaeuft()));
    if (!wiedergabe_.laeuft()) lageZeigen(); // else when what the game reported has been shown
}

} // namespace fuh
