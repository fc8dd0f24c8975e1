// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window's menu, status bar and the windows it opens.
#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <algorithm>

#include "game/spiel.h"
#include "ui/ansage.h"
#include "ui/brett_fenster.h"
#include "ui/einst_dialog.h"
#include "ui/highscore_fenster.h"
#include "ui/hilfe_fenster.h"
#include "ui/info_win.h"
#include "ui/stat_form.h"
#include "ui/statustext.h"

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

const char* tempoName(Tempo t) {
    switch (t) {
    case Tempo::sofort:
        return "sofort";
    case Tempo::schnell:
        return "schnell";
    case Tempo::normal:
        break;
    case Tempo::langsam:
        return "langsam";
    }
    return "normal";
}

Tempo tempoAusName(const QString& name) {
    for (Tempo t : {Tempo::sofort, Tempo::schnell, Tempo::langsam})
        if (name == QLatin1String(tempoName(t))) return t;
    return Tempo::normal;
}

} // namespace

QAction* BrettFenster::befehl(QMenu* menue, const char* name, const char* text, std::function<void()> tun) {
    QAction* a = menue->addAction(QString());
    texte_.text(a, text);
    a->setObjectName(QString::fromLatin1(name));
    connect(a, &QAction::triggered, this, std::move(tun));
    return a;
}

void BrettFenster::menueAnlegen() {
    spielMenue();
    // A command right on the menu bar, as the game has always had it.
    QAction* einstellungen = menuBar()->addAction(QString());
    texte_.text(einstellungen, QT_TR_NOOP("&Einstellungen"));
    einstellungen->setObjectName(QStringLiteral("Einstellungen"));
    connect(einstellungen, &QAction::triggered, this, &BrettFenster::einstellungenZeigen);
    einstellungenAktion_ = einstellungen;
    ergebnisMenue();
    hilfeMenue();
    // F10 opens the menu, as everywhere on the desktop; Shift+F10 stays the board's right button.
    auto* f10 = new QShortcut(QKeySequence(Qt::Key_F10), this);
    connect(f10, &QShortcut::activated, this, [this] {
        menuBar()->setFocus(Qt::ShortcutFocusReason);
        menuBar()->setActiveAction(menuBar()->actions().front());
    });
    // F11 toggles full screen.
    auto* f11 = new QShortcut(QKeySequence(Qt::Key_F11), this);
    connect(f11, &QShortcut::activated, this,
            [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
}

void BrettFenster::spielMenue() {
    QMenu* menue = menuBar()->addMenu(QString());
    texte_.text(menue->menuAction(), QT_TR_NOOP("&Spiel"));
    menue->setObjectName(QStringLiteral("spiel"));
    // "Neu" also stops a game being shown; "Start" waits until what the game reported has been seen.
    wartendeBefehle_.push_back(befehl(menue, "start", QT_TR_NOOP("&Start"), [this] { neu(); }));
    befehl(menue, "Neu", QT_TR_NOOP("&Neu"), [this] {
        neu();
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
    tippAktion_ = befehl(menue, "tipp", QT_TR_NOOP("&Tipp"), [this] { tippZeigen(); });
    tippAktion_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
    zurueckAktion_ = befehl(menue, "zurueck", QT_TR_NOOP("Zug &zurücknehmen"), [this] { zuruecknehmen(); });
    zurueckAktion_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    partieMenue(menue);
    connect(menue, &QMenu::aboutToShow, this, &BrettFenster::befehleAbgleichen);
    menue->addSeparator();
    tempoMenue(menue);
    aussehenMenue(menue);
    spracheMenue(menue);
    menue->addSeparator();
    befehl(menue, "Beenden", QT_TR_NOOP("&Beenden"), [this] {
        if (beendenDarf()) QApplication::quit();
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
}

void BrettFenster::ergebnisMenue() {
    QMenu* menue = menuBar()->addMenu(QString());
    texte_.text(menue->menuAction(), QT_TR_NOOP("E&rgebnisse"));
    menue->setObjectName(QStringLiteral("ergebnisse"));
    befehl(menue, "statistik", QT_TR_NOOP("&Statistik"), [this] { statistikZeigen(); });
    // A list enters a just finished game, so it waits until the game's end has been shown.
    wartendeBefehle_.push_back(befehl(menue, "highscoreFuchs", QT_TR_NOOP("Highscore &Fuchs"),
                                      [this] { highscoreZeigen(Seite::Fuchs); }));
    wartendeBefehle_.push_back(befehl(menue, "highscoreHennen", QT_TR_NOOP("Highscore &Hennen"),
                                      [this] { highscoreZeigen(Seite::Hennen); }));
}

void BrettFenster::hilfeMenue() {
    QMenu* menue = menuBar()->addMenu(QString());
    texte_.text(menue->menuAction(), QT_TR_NOOP("&Hilfe"));
    menue->setObjectName(QStringLiteral("hilfe"));
    befehl(menue, "hilfeZeigen", QT_TR_NOOP("&Hilfe"), [this] {
        // The help always opens at its first topic, also when it was left open elsewhere.
        einmalZeigen(hilfe_, [this] { return new HilfeFenster(this); });
        hilfe_->zumAnfang();
    })->setShortcut(QKeySequence(Qt::Key_F1));
    befehl(menue, "info", QT_TR_NOOP("&Info"),
           [this] { einmalZeigen(info_, [this] { return new InfoWin(this); }); });
}

void BrettFenster::tempoLaden() {
    wiedergabe_.setTempo(tempoAusName(fensterEinstellungen().value(QStringLiteral("tempo")).toString()));
    tempoSetzen(wiedergabe_.tempo());
}

void BrettFenster::tempoSetzen(Tempo t) {
    wiedergabe_.setTempo(t);
    fensterEinstellungen().setValue(QStringLiteral("tempo"), QString::fromLatin1(tempoName(t)));
    const std::array<Tempo, 3> stufen = {Tempo::schnell, Tempo::normal, Tempo::langsam};
    for (size_t i = 0; i < stufen.size(); ++i)
        if (tempoAktionen_[i]) tempoAktionen_[i]->setChecked(stufen[i] == t);
}

void BrettFenster::tempoMenue(QMenu* menue) {
    QMenu* tempo = menue->addMenu(QString());
    texte_.text(tempo->menuAction(), QT_TR_NOOP("Te&mpo"));
    tempo->setObjectName(QStringLiteral("tempo"));
    auto* gruppe = new QActionGroup(tempo);
    struct Stufe {
        Tempo t;
        const char* name;
        const char* text;
    };
    const std::array<Stufe, 3> stufen = {{{Tempo::schnell, "schnell", QT_TR_NOOP("&schnell")},
                                          {Tempo::normal, "normal", QT_TR_NOOP("&normal")},
                                          {Tempo::langsam, "langsam", QT_TR_NOOP("&langsam")}}};
    for (size_t i = 0; i < stufen.size(); ++i) {
        const auto [t, name, text] = stufen[i];
        QAction* a = tempo->addAction(QString());
        texte_.text(a, text);
        a->setObjectName(QStringLiteral("tempo_") + QString::fromLatin1(name));
        a->setCheckable(true);
        gruppe->addAction(a);
        connect(a, &QAction::triggered, this, [this, t] { tempoSetzen(t); });
        tempoAktionen_[i] = a;
    }
}

void BrettFenster::statusleisteAnlegen() {
    QStatusBar* leiste = statusBar();
    leiste->setObjectName(QStringLiteral("statusleiste"));
    const std::array<int, 4> anteile = {2, 1, 1, 3}; // by the length of each field's longest text
    for (size_t i = 0; i < panels_.size(); ++i) {
        auto* label = new Statustext(leiste);
        label->setObjectName(QStringLiteral("panel%1").arg(i + 1));
        leiste->addWidget(label, anteile[i]);
        label->hide(); // until the game has something to say there
        panels_[i] = label;
    }
    ansage_ = new Ansage(*brett_, leiste);
    leiste->addWidget(ansage_, 1);
}

void BrettFenster::einstellungenZeigen() {
    einmalZeigen(einst_, [this] {
        return new EinstDialog(
            spiel_->oeffentlich().einst, auswahl_, spiel_->ordner(),
            [this](Statusfeld feld, const Text& text) { panelSetzen(feld, text); },
            [this](const Einstellungen& e, const Spielerauswahl& auswahl) {
                spiel_->einstellungenUebernehmen(e);
                spielerSetzen(auswahl);
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
