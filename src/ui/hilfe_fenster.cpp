// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/hilfe_fenster.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace fuh {

namespace {
const QUrl kStartseite(QStringLiteral("qrc:/hilfe/ratgeber.html"));
} // namespace

HilfeFenster::HilfeFenster(QWidget* parent) : QWidget(parent, Qt::Window) {
    setAttribute(Qt::WA_DeleteOnClose);
    // The platform adds the application's name to the caption.
    setWindowTitle(QStringLiteral("Hilfe"));

    auto* haupt = new QVBoxLayout(this);
    auto* leiste = new QHBoxLayout;
    auto* zurueck = new QPushButton(QStringLiteral("Zurück"), this);
    zurueck->setObjectName(QStringLiteral("zurueck"));
    zurueck->setEnabled(false);
    auto* start = new QPushButton(QStringLiteral("Inhalt"), this);
    start->setObjectName(QStringLiteral("inhalt"));
    auto* schliessen = new QPushButton(QStringLiteral("Schließen"), this);
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
    browser_->setSource(kStartseite);
    resize(640, 560);

    connect(browser_, &QTextBrowser::backwardAvailable, zurueck, &QPushButton::setEnabled);
    connect(zurueck, &QPushButton::clicked, browser_, &QTextBrowser::backward);
    connect(start, &QPushButton::clicked, this, &HilfeFenster::zumAnfang);
    connect(schliessen, &QPushButton::clicked, this, &QWidget::close);
    // Escape closes the help wherever the focus is in it, as in a dialog.
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WindowShortcut);
    connect(escape, &QShortcut::activated, this, &QWidget::close);
}

void HilfeFenster::zumAnfang() {
    browser_->home();
    browser_->verticalScrollBar()->setValue(0);
}

} // namespace fuh
