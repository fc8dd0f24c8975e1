// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/info_win.h"

#include <QEvent>
#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSvgWidget>
#include <QVBoxLayout>

namespace fuh {

InfoWin::InfoWin(QWidget* parent) : QDialog(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    texte_.titel(this, QT_TR_NOOP("Info"));

    auto* haupt = new QHBoxLayout(this);
    auto* bilder = new QVBoxLayout;
    for (int i = 1; i <= 4; ++i) {
        auto* bild = new QSvgWidget(QStringLiteral(":/bilder/info%1.svg").arg(i), this);
        bild->setObjectName(QStringLiteral("bild%1").arg(i));
        bild->setFixedSize(32, 32);
        bilder->addWidget(bild);
    }
    bilder->addStretch();
    haupt->addLayout(bilder);
    haupt->addLayout(texteAnlegen());
    setMinimumWidth(420);
}

QLayout* InfoWin::texteAnlegen() {
    auto* texte = new QVBoxLayout;
    auto text = [&](const QString& name, const char* inhalt) {
        auto* l = new QLabel(this);
        if (inhalt) texte_.text(l, inhalt);
        l->setObjectName(name);
        l->setWordWrap(true);
        texte->addWidget(l);
        return l;
    };
    QLabel* titel = text(QStringLiteral("titel"), QT_TR_NOOP("Fuchs und Hennen 2026"));
    QFont f = titel->font();
    f.setBold(true);
    titel->setFont(f);
    text(QStringLiteral("version"), nullptr);
    versionSetzen();
    text(QStringLiteral("rechte"), QT_TR_NOOP("© 2026 Das Fuchs-und-Hennen-Team"));
    text(QStringLiteral("dank"),
         QT_TR_NOOP("Dank an Anna Gärtner und Paul Hofmann für ihre Geduld beim Testen"));
    texte->addWidget(mailAnlegen());
    // The address gets a line of its own and is never broken inside.
    text(QStringLiteral("webseite"), QT_TR_NOOP("Neue Versionen, Informationen und Neuigkeiten:<br>"
                                                "<a href=\"https://example.org/fuchs-und-hennen\" "
                                                "style=\"white-space: nowrap\">"
                                                "https://example.org/fuchs-und-hennen</a>"));
    QLabel* webseite = findChild<QLabel*>(QStringLiteral("webseite"));
    webseite->setTextFormat(Qt::RichText);
    webseite->setOpenExternalLinks(true); // opens in the browser, by mouse or by Tab and Enter
    webseite->setTextInteractionFlags(Qt::TextBrowserInteraction);
    text(
        QStringLiteral("lizenz"),
        QT_TR_NOOP(
            "Freie Software unter der GNU General Public License, Version 3 oder später (GPL-3.0-or-later)"));
    auto* ok = new QPushButton(this);
    texte_.text(ok, QT_TR_NOOP("Ok"));
    ok->setObjectName(QStringLiteral("okKnopf"));
    ok->setDefault(true);
    texte->addWidget(ok, 0, Qt::AlignRight);
    connect(ok, &QPushButton::clicked, this, &QDialog::close);
    return texte;
}

QLabel* InfoWin::mailAnlegen() {
    auto* mail = new QLabel(
        QStringLiteral("<a href=\"mailto:fuchs-und-hennen@example.org\">fuchs-und-hennen@example.org</a>"),
        this);
    mail->setObjectName(QStringLiteral("email"));
    mail->setWordWrap(true);
    // It looks like a mail link, but like every label here it does nothing when clicked.
    mail->setTextFormat(Qt::RichText);
    mail->setTextInteractionFlags(Qt::NoTextInteraction);
    return mail;
}

void InfoWin::versionSetzen() {
    findChild<QLabel*>(QStringLiteral("version"))->setText(tr("Version %1").arg(QStringLiteral(FUH_VERSION)));
}

void InfoWin::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) {
        texte_.erneuern();
        versionSetzen();
        layout()->activate(); // the new size at once, not at the next layout pass
    }
    QDialog::changeEvent(e);
}

} // namespace fuh
