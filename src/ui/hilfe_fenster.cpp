#include "ui/hilfe_fenster.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace fuh {

namespace {
const QUrl kStartseite(QStringLiteral("qrc:/hilfe/ratgeber.html"));
} // namespace

HilfeFenster::HilfeFenster(QWidget* parent) : QWidget(parent, Qt::Window) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Fuchs und Hennen – Hilfe"));

    auto* haupt = new QVBoxLayout(this);
    auto* leiste = new QHBoxLayout;
    auto* zurueck = new QPushButton(QStringLiteral("Zurück"), this);
    zurueck->setObjectName(QStringLiteral("zurueck"));
    zurueck->setEnabled(false);
    auto* start = new QPushButton(QStringLiteral("Inhalt"), this);
    start->setObjectName(QStringLiteral("inhalt"));
    leiste->addWidget(zurueck);
    leiste->addWidget(start);
    leiste->addStretch();
    haupt->addLayout(leiste);

    browser_ = new QTextBrowser(this);
    browser_->setObjectName(QStringLiteral("browser"));
    browser_->setOpenExternalLinks(true);
    haupt->addWidget(browser_);
    browser_->setSource(kStartseite);
    resize(640, 560);

    connect(browser_, &QTextBrowser::backwardAvailable, zurueck, &QPushButton::setEnabled);
    connect(zurueck, &QPushButton::clicked, browser_, &QTextBrowser::backward);
    connect(start, &QPushButton::clicked, this, &HilfeFenster::zumAnfang);
}

void HilfeFenster::zumAnfang() {
    browser_->home();
    browser_->verticalScrollBar()->setValue(0);
}

} // namespace fuh
