// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Game files, stepping through a game, playing on from one of its moves, and redo.
#include <QDate>
#include <QFileDialog>
#include <QListWidget>
#include <QMenu>
#include <QStatusBar>

#include "dateischicht/satzdatei.h"
#include "game/nachspielen.h"
#include "game/spiel.h"
#include "ui/ansage.h"
#include "ui/brett_fenster.h"
#include "ui/brett_flaeche.h"
#include "ui/meldung.h"
#include "ui/sprache.h"
#include "ui/zugliste_panel.h"

namespace fuh {

namespace {
constexpr const char* kEndung = ".fuh";
constexpr const char* kZuglisteSchluessel = "zugliste";

QString dateifilter() {
    return BrettFenster::tr("Partien von Fuchs und Hennen (*.fuh)");
}
} // namespace

void BrettFenster::partieMenue(QMenu* menue) {
    befehl(menue, "partieSpeichern", QT_TR_NOOP("Partie spei&chern…"), [this] {
        QString pfad = QFileDialog::getSaveFileName(this, tr("Partie speichern"), QString(), dateifilter());
        if (pfad.isEmpty()) return;
        if (!pfad.endsWith(QLatin1String(kEndung))) pfad += QLatin1String(kEndung);
        partieSpeichern(QFile::encodeName(pfad).toStdString());
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    wartendeBefehle_.push_back(befehl(menue, "partieOeffnen", QT_TR_NOOP("Partie ö&ffnen…"), [this] {
        const QString pfad =
            QFileDialog::getOpenFileName(this, tr("Partie öffnen"), QString(), dateifilter());
        if (!pfad.isEmpty()) partieOeffnen(QFile::encodeName(pfad).toStdString());
    }));
    wartendeBefehle_.back()->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));
    wiederholenAktion_ =
        befehl(menue, "wiederholen", QT_TR_NOOP("Zug &wiederholen"), [this] { wiederholen(); });
    wiederholenAktion_->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    blaetternMenue(menue);
    QAction* zeigen = zugliste_->toggleViewAction();
    zeigen->setObjectName(QStringLiteral("zuglisteZeigen"));
    texte_.text(zeigen, QT_TR_NOOP("Zug&liste"));
    menue->addAction(zeigen);
    zugliste_->setVisible(fensterEinstellungen().value(QLatin1String(kZuglisteSchluessel), false).toBool());
    // Only the player's choice is kept: the dock also hides when the window goes.
    connect(zeigen, &QAction::triggered, this,
            [](bool an) { fensterEinstellungen().setValue(QLatin1String(kZuglisteSchluessel), an); });
    connect(zugliste_, &ZuglistePanel::zugGewaehlt, this, [this](std::size_t n) { blaettern(n); });
}

void BrettFenster::blaetternMenue(QMenu* menue) {
    QMenu* blaettern = menue->addMenu(QString());
    texte_.text(blaettern->menuAction(), QT_TR_NOOP("Bl&ättern"));
    const struct {
        const char* name;
        const char* text;
        Qt::Key taste;
        int schritte;
    } befehle[] = {{"zumAnfang", QT_TR_NOOP("Zum &Anfang"), Qt::Key_Home, -kSituationen},
                   {"zugZurueck", QT_TR_NOOP("Einen Zug &zurück"), Qt::Key_PageUp, -1},
                   {"zugVor", QT_TR_NOOP("Einen Zug &vor"), Qt::Key_PageDown, 1},
                   {"zumEnde", QT_TR_NOOP("Zum &Ende"), Qt::Key_End, kSituationen}};
    for (const auto& b : befehle) {
        QAction* a = befehl(blaettern, b.name, b.text, [this, s = b.schritte] { blaetternUm(s); });
        a->setShortcut(QKeySequence(b.taste));
        wartendeBefehle_.push_back(a);
    }
    weiterAktion_ =
        befehl(menue, "weiterspielen", QT_TR_NOOP("Von hier w&eiterspielen"), [this] { weiterspielen(); });
}

void BrettFenster::wiederholen() {
    if (beschaeftigt() || !spiel_->wiederholenMoeglich()) return;
    brett_->tippLoeschen();
    brett_->ziehenAbbrechen();
    brett_->markierungLoeschen();
    spiel_->wiederholen();
    spielWeiter();
}

bool BrettFenster::partieSpeichern(const std::filesystem::path& pfad) {
    const std::string datum = QDate::currentDate().toString(Qt::ISODate).toStdString();
    const Aufzeichnung a = blaetterPartie_ ? *blaetterPartie_ : aufzeichnen(*spiel_, datum);
    if (aufzeichnungSpeichern(pfad, a)) {
        statusBar()->showMessage(tr("Partie gespeichert."), 5000);
        return true;
    }
    meldungZeigen(this, QMessageBox::Warning, uebersetzt(schreibfehler(pfad.filename().string())));
    return false;
}

bool BrettFenster::partieOeffnen(const std::filesystem::path& pfad) {
    if (beschaeftigt()) return false;
    Gelesen g = aufzeichnungLaden(pfad);
    std::vector<Spielstand> staende;
    if (g.aufzeichnung) staende = nachspielStaende(*g.aufzeichnung, spiel_->ordner(), g.fehler);
    if (staende.empty()) {
        meldungZeigen(this, QMessageBox::Warning, uebersetzt(g.fehler));
        return false;
    }
    blaetterPartie_ = std::move(g.aufzeichnung);
    blaetterStaende_ = std::move(staende);
    blaettern(blaetterStaende_.size() - 1);
    return true;
}

bool BrettFenster::blaetternVorbereiten() {
    if (!blaetterStaende_.empty()) return true;
    // A running game is not stepped through: taking back serves there.
    if (spiel_->laeuft() || spiel_->mitschrift().zuege.empty()) return false;
    Text fehler;
    Aufzeichnung a = aufzeichnen(*spiel_, QDate::currentDate().toString(Qt::ISODate).toStdString());
    blaetterStaende_ = nachspielStaende(a, spiel_->ordner(), fehler);
    if (blaetterStaende_.empty()) return false;
    blaetterPartie_ = std::move(a);
    blaetterStand_ = blaetterStaende_.size() - 1;
    return true;
}

void BrettFenster::blaetternUm(int schritte) {
    if (!blaetternVorbereiten()) return;
    const long ziel = static_cast<long>(blaetterStand_) + schritte;
    blaettern(static_cast<std::size_t>(std::clamp(ziel, 0L, static_cast<long>(blaetterStaende_.size()) - 1)));
}

// The pieces a step moves glide as a move does; the board shows the game there with every piece locked,
// so that neither a person nor the computer moves until the player plays on.
void BrettFenster::blaettern(std::size_t n) {
    if (beschaeftigt() || !blaetternVorbereiten() || n >= blaetterStaende_.size()) return;
    Spielstand ziel = blaetterStaende_[n];
    const auto& jetzt = spiel_->stellung().figurplatz;
    const auto& dann = ziel.stellung.figurplatz;
    // A hen taken on the way just goes; a piece that stands on the board before and after glides.
    for (int k = 0; k < kFiguren; ++k)
        if (jetzt[k] != dann[k] && (BrettFlaeche::istFuchs(k) || (jetzt[k] != 0 && dann[k] != 0)))
            bewegen(k, jetzt[k], dann[k], true);
    blaetterStand_ = n;
    ziel.ziehbar = false;
    ziel.zufall = spiel_->zustand().zufall;
    ziel.tippZufall = spiel_->zustand().tippZufall;
    brett_->tippLoeschen();
    brett_->markierungLoeschen();
    spiel_->fortsetzen({ziel, {}, false});
    spielWeiter();
    ansage_->sagen(ZuglistePanel::zeile(blaetterPartie_->zuege, blaetterPartie_->offen, n));
}

std::optional<std::size_t> BrettFenster::blaetterStand() const {
    if (blaetterStaende_.empty()) return std::nullopt;
    return blaetterStand_;
}

void BrettFenster::weiterspielen() {
    if (beschaeftigt() || blaetterStaende_.empty()) return;
    Spielstand z = blaetterStaende_[blaetterStand_];
    z.zufall = spiel_->zustand().zufall;
    z.tippZufall = spiel_->zustand().tippZufall;
    blaetternBeenden();
    spiel_->fortsetzen({z, {}, false});
    spiel_->keineBestenliste(); // a game taken up from a record may have been bettered
    spielWeiter();
}

void BrettFenster::blaetternBeenden() {
    blaetterPartie_.reset();
    blaetterStaende_.clear();
    blaetterStand_ = 0;
}

void BrettFenster::zuglisteAbgleichen() {
    if (wiederholenAktion_)
        wiederholenAktion_->setEnabled(!beschaeftigt() && spiel_ && spiel_->wiederholenMoeglich());
    if (weiterAktion_) weiterAktion_->setEnabled(!beschaeftigt() && !blaetterStaende_.empty());
    if (!zugliste_ || !spiel_) return;
    if (blaetterPartie_)
        zugliste_->zeigen(blaetterPartie_->zuege, blaetterPartie_->offen, blaetterStand_);
    else
        zugliste_->zeigen(spiel_->mitschrift().zuege, spiel_->sprungfolge().imSprung,
                          spiel_->mitschrift().zuege.size());
}

} // namespace fuh
