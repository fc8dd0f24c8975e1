// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/hilfe_fenster.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "ui/sprache.h"

namespace fuh {

namespace {

constexpr int kRahmen = 40; // room for a window frame and title bar, which the size does not include

// The guide in the language spoken now.
QUrl startseite() {
    return QUrl(QString::fromLatin1(aktuelleSprache().hilfe));
}

} // namespace

HilfeFenster::HilfeFenster(QWidget* parent) : QDialog(parent, Qt::Window) {
    setAttribute(Qt::WA_DeleteOnClose);
    // The platform adds the application's name to the caption.
    texte_.titel(this, QT_TR_NOOP("Hilfe"));

    auto* haupt = new QVBoxLayout(this);
    auto* leiste = new QHBoxLayout;
    auto* zurueck = new QPushButton(this);
    texte_.text(zurueck, QT_TR_NOOP("Zurück"));
    zurueck->setObjectName(QStringLiteral("zurueck"));
    zurueck->setEnabled(false);
    auto* start = new QPushButton(this);
    texte_.text(start, QT_TR_NOOP("Inhalt"));
    start->setObjectName(QStringLiteral("inhalt"));
    auto* schliessen = new QPushButton(this);
    texte_.text(schliessen, QT_TR_NOOP("Schließen"));
    schliessen->setObjectName(QStringLiteral("schliessen"));
    leiste->addWidget(zurueck);
    leiste->addWidget(start);
    leiste->addStretch();
    leiste->addWidget(schliessen);
    haupt->addLayout(leiste);

    browser_ = new QTextBrowser(this);
    browser_->setObjectName(QStringLiteral("browser"));
    browser_->setAccessibleName(tr("Hilfetext"));
    browser_->setOpenExternalLinks(true);
    haupt->addWidget(browser_);
    browser_->setSource(startseite());
    resize(640, 560);
    // On a small screen the window and its frame stay within the screen, title bar included.
    if (const QScreen* bildschirm = parent ? parent->screen() : screen()) {
        const QRect frei = bildschirm->availableGeometry();
        resize(size().boundedTo(frei.size() - QSize(kRahmen, 2 * kRahmen)));
        move(frei.topLeft() + QPoint(kRahmen / 2, kRahmen));
    }

    connect(browser_, &QTextBrowser::backwardAvailable, zurueck, &QPushButton::setEnabled);
    connect(zurueck, &QPushButton::clicked, browser_, &QTextBrowser::backward);
    connect(start, &QPushButton::clicked, this, &HilfeFenster::zumAnfang);
    connect(schliessen, &QPushButton::clicked, this, &QWidget::close);
    // Escape closes the help wherever the focus is in it, as in a dialog.
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WindowShortcut);
    connect(escape, &QShortcut::activated, this, &QWidget::close);
}

void HilfeFenster::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) {
        texte_.erneuern();
        // The other language's guide, from its start: its pages and anchors are its own.
        browser_->clearHistory();
        zumAnfang();
    }
    QDialog::changeEvent(e);
}

void HilfeFenster::zumAnfang() {
    browser_->setSource(startseite());
    browser_->verticalScrollBar()->setValue(0);
}

} // namespace fuh
