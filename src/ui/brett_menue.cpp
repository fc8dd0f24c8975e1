// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window's menu, status bar and the windows it opens.
#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <algorithm>

#include "game/spiel.h"
#include "ui/brett_fenster.h"
#include "ui/einst_dialog.h"
#include "ui/highscore_fenster.h"
#include "ui/hilfe_fenster.h"
#include "ui/info_win.h"
#include "ui/meldung.h"
#include "ui/stat_form.h"

namespace fuh {

namespace {

// Places the top-level window `w` to the right of `nachbar`, or to its left where the screen ends.
void nebenStellen(QWidget* w, const QWidget* nachbar) {
    constexpr int kAbstand = 12;
    w->adjustSize();
    const QRect n = nachbar->frameGeometry();
    QPoint p(n.right() + 1 + kAbstand, n.top());
    if (const QScreen* bildschirm = nachbar->screen()) {
        const QRect frei = bildschirm->availableGeometry();
        if (p.x() + w->width() > frei.right() && n.left() - kAbstand - w->width() >= frei.left())
            p.setX(n.left() - kAbstand - w->width());
    }
    w->move(p);
}

void hervorholen(QWidget* w) {
    w->show();
    w->raise();
    w->activateWindow();
}

// Windows that exist only once: asking again brings the open one forward, else `neu` makes one.
template <class W, class Neu> void einmalZeigen(QPointer<W>& offen, Neu neu) {
    if (!offen) offen = neu();
    hervorholen(offen);
}

// Windows that show the files as they are now: a fresh one from `neu` replaces the open one.
template <class W, class Neu> void neuZeigen(QPointer<W>& offen, Neu neu) {
    if (offen) offen->close();
    offen = neu();
    hervorholen(offen);
}

} // namespace

void BrettFenster::menueAnlegen() {
    auto aktion = [this](QMenu* menue, const char* name, const QString& text, auto slot) {
        QAction* a = menue->addAction(text);
        a->setObjectName(QString::fromLatin1(name));
        connect(a, &QAction::triggered, this, slot);
        return a;
    };

    QMenu* spielMenue = menuBar()->addMenu(QStringLiteral("&Spiel"));
    spielMenue->setObjectName(QStringLiteral("spiel"));
    // "Neu" also stops a game being shown; "Start" waits until what the game reported has been seen.
    wartendeBefehle_.push_back(aktion(spielMenue, "start", QStringLiteral("&Start"), [this] { neu(); }));
    aktion(spielMenue, "Neu", QStringLiteral("&Neu"), [this] { neu(); });
    tippAktion_ = aktion(spielMenue, "tipp", QStringLiteral("&Tipp"), [this] { tippZeigen(); });
    tippAktion_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
    connect(spielMenue, &QMenu::aboutToShow, this, &BrettFenster::befehleAbgleichen);
    spielMenue->addSeparator();
    tempoMenue(spielMenue);
    spielMenue->addSeparator();
    aktion(spielMenue, "Beenden", QStringLiteral("&Beenden"), [] { QApplication::quit(); });

    // A command right on the menu bar, as the game has always had it.
    QAction* einstellungen = menuBar()->addAction(QStringLiteral("&Einstellungen"));
    einstellungen->setObjectName(QStringLiteral("Einstellungen"));
    connect(einstellungen, &QAction::triggered, this, &BrettFenster::einstellungenZeigen);
    wartendeBefehle_.push_back(einstellungen);

    QMenu* ergebnisse = menuBar()->addMenu(QStringLiteral("E&rgebnisse"));
    ergebnisse->setObjectName(QStringLiteral("erg"));
    aktion(ergebnisse, "Stt", QStringLiteral("&Statistik"), [this] { statistikZeigen(); });
    // A list enters a just finished game, so it waits until the game's end has been shown.
    wartendeBefehle_.push_back(aktion(ergebnisse, "highfu", QStringLiteral("Highscore &Fuchs"),
                                      [this] { highscoreZeigen(Seite::Fuchs); }));
    wartendeBefehle_.push_back(aktion(ergebnisse, "highhe", QStringLiteral("Highscore &Hennen"),
                                      [this] { highscoreZeigen(Seite::Hennen); }));

    QMenu* hilfe = menuBar()->addMenu(QStringLiteral("&Hilfe"));
    hilfe->setObjectName(QStringLiteral("hilfe"));
    aktion(hilfe, "help", QStringLiteral("&Hilfe"), [this] {
        // The help always opens at its first topic, also when it was left open elsewhere.
        einmalZeigen(hilfe_, [this] { return new HilfeFenster(this); });
        hilfe_->zumAnfang();
    });
    aktion(hilfe, "info", QStringLiteral("&Info"),
           [this] { einmalZeigen(info_, [this] { return new InfoWin(this); }); });
}

void BrettFenster::tempoMenue(QMenu* menue) {
    QMenu* tempo = menue->addMenu(QStringLiteral("&Tempo"));
    tempo->setObjectName(QStringLiteral("tempo"));
    auto* gruppe = new QActionGroup(tempo);
    const std::array<std::pair<Tempo, const char*>, 3> stufen = {
        {{Tempo::schnell, "schnell"}, {Tempo::normal, "normal"}, {Tempo::langsam, "langsam"}}};
    for (size_t i = 0; i < stufen.size(); ++i) {
        const auto [t, name] = stufen[i];
        QAction* a = tempo->addAction(QStringLiteral("&") + QString::fromLatin1(name));
        a->setObjectName(QStringLiteral("tempo_") + QString::fromLatin1(name));
        a->setCheckable(true);
        gruppe->addAction(a);
        connect(a, &QAction::triggered, this, [this, t] { tempoSetzen(t); });
        tempoAktionen_[i] = a;
    }
}

void BrettFenster::statusleisteAnlegen() {
    QStatusBar* leiste = statusBar();
    leiste->setObjectName(QStringLiteral("StatusBar1"));
    const std::array<int, 3> anteile = {2, 1, 1};
    for (size_t i = 0; i < panels_.size(); ++i) {
        auto* label = klartext(new QLabel(leiste));
        label->setObjectName(QStringLiteral("panel%1").arg(i + 1));
        label->setMinimumWidth(1); // a long text must not widen the window
        leiste->addWidget(label, anteile[i]);
        panels_[i] = label;
    }
}

void BrettFenster::einstellungenZeigen() {
    einmalZeigen(einst_, [this] {
        return new EinstDialog(
            spiel_->oeffentlich().einst, meister_, spiel_->ordner(),
            [this](Statusfeld feld, const QString& text) { panel(static_cast<int>(feld))->setText(text); },
            [this](const Einstellungen& e, bool meister) {
                // A game the computer plays itself keeps its settings and players until it ends.
                if (spiel_->selbstspielLaeuft()) {
                    wartendeEinstellungen_ = e;
                    wartenderMeister_ = meister;
                    return;
                }
                spiel_->einstellungenUebernehmen(e);
                meisterSetzen(meister);
            },
            this);
    });
}

void BrettFenster::statistikZeigen() {
    neuZeigen(stat_, [this] { return new StatForm(spiel_->ordner(), this); });
}

std::vector<HighscoreFenster*> BrettFenster::wartendeListen(Seite seite) const {
    std::vector<HighscoreFenster*> wartend;
    for (HighscoreFenster* w : findChildren<HighscoreFenster*>(Qt::FindDirectChildrenOnly))
        if (w->liste().seite() == seite && !w->isHidden() && w->liste().hatNeueZeile()) wartend.push_back(w);
    return wartend;
}

void BrettFenster::highscoreZeigen(Seite seite) {
    // A list whose new row still waits for its name is never replaced: a fresh one would not have it.
    const std::vector<HighscoreFenster*> wartend = wartendeListen(seite);
    for (HighscoreFenster* w : wartend)
        hervorholen(w);
    if (!wartend.empty()) return;
    // A fresh window also enters a just finished game.
    neuZeigen(highscore_[seite == Seite::Fuchs ? 0 : 1], [this, seite] {
        return new HighscoreFenster(seite, spiel_->oeffentlich(), spiel_->ordner(), this);
    });
}

void BrettFenster::highscoreNachDemSpiel(Seite seite) {
    QPointer<HighscoreFenster>& offen = highscore_[seite == Seite::Fuchs ? 0 : 1];
    const std::vector<HighscoreFenster*> wartend = wartendeListen(seite);
    if (offen && std::find(wartend.begin(), wartend.end(), offen.data()) == wartend.end()) offen->close();
    offen = new HighscoreFenster(seite, spiel_->oeffentlich(), spiel_->ordner(), this);
    // The entry of an earlier game still waits for its name: both stay open, side by side.
    if (!wartend.empty()) nebenStellen(offen, wartend.back());
    hervorholen(offen);
}

} // namespace fuh
