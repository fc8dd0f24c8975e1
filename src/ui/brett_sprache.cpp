// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The application's names and language, and the main window in that language: its menu, the status
// bar and the choice of language.
#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>

#include "ui/brett_fenster.h"
#include "ui/brett_flaeche.h"
#include "ui/titel.h"

namespace fuh {

namespace {
const char* const kZugbegrenzungText =
    QT_TRANSLATE_NOOP("fuh::BrettFenster", "Remis: Zugbegrenzung erreicht");
}

void BrettFenster::anwendungEinrichten(QApplication& /*app*/) {
    QApplication::setApplicationName(QString::fromUtf8(kTitel));
    QApplication::setApplicationDisplayName(QString::fromUtf8(kTitel));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.FuchsUndHennen"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/bilder/app.svg")));
    spracheSetzen(gespeicherteSprache(), false);
}

void BrettFenster::spracheMenue(QMenu* menue) {
    QMenu* sprache = menue->addMenu(QString());
    texte_.text(sprache->menuAction(), QT_TR_NOOP("S&prache"));
    sprache->setObjectName(QStringLiteral("sprache"));
    sprachen_ = new QActionGroup(sprache);
    for (const Sprache& s : sprachen()) {
        // Named in itself in every language, so it is not translated.
        QAction* a = sprache->addAction(QString::fromUtf8(s.name));
        a->setObjectName(QStringLiteral("sprache_") + QLatin1String(s.code));
        a->setCheckable(true);
        a->setChecked(&s == &aktuelleSprache());
        a->setData(QLatin1String(s.code));
        sprachen_->addAction(a);
        connect(a, &QAction::triggered, this, [&s] { spracheSetzen(s); });
    }
}

void BrettFenster::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) texteSetzen();
    // Back in the window (a dialog or menu closed), the keys move the cursor on the board again.
    // An open menu keeps the keys (a popup may come with an activation of its own).
    if (e->type() == QEvent::ActivationChange && isActiveWindow() && brett_ &&
        !QApplication::activePopupWidget())
        brett_->setFocus(Qt::ActiveWindowFocusReason);
    QMainWindow::changeEvent(e);
}

void BrettFenster::texteSetzen() {
    texte_.erneuern();
    aussehenTexteSetzen();
    // The language may also have been chosen elsewhere, e.g. in another main window.
    for (QAction* a : sprachen_->actions())
        a->setChecked(a->data().toString() == QLatin1String(aktuelleSprache().code));
    for (size_t i = 0; i < panels_.size(); ++i)
        panels_[i]->setText(uebersetzt(panelTexte_[i]));
    // The only message the status bar shows.
    if (!statusBar()->currentMessage().isEmpty()) zugbegrenzungZeigen();
}

void BrettFenster::panelSetzen(Statusfeld feld, const Text& text) {
    const auto i = static_cast<size_t>(feld) - 1;
    panelTexte_.at(i) = text;
    panels_.at(i)->setText(uebersetzt(text));
    // An empty field would still take its share of the bar from the others.
    panels_.at(i)->setVisible(!text.leer());
}

void BrettFenster::zugbegrenzungZeigen() {
    statusBar()->showMessage(tr(kZugbegrenzungText));
}

} // namespace fuh
