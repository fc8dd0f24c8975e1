// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/stat_form.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>
#include <array>

#include "dialogs/statistikdatei.h"
#include "ui/meldung.h"

namespace fuh {

namespace {

// The heads of the table of wins.
constexpr const char* kComputer = QT_TRANSLATE_NOOP("fuh::StatForm", "Computer");
constexpr const char* kUser = QT_TRANSLATE_NOOP("fuh::StatForm", "User");
constexpr const char* kStaerke = QT_TRANSLATE_NOOP("fuh::StatForm", "Stärke");
constexpr const char* kHennen = QT_TRANSLATE_NOOP("fuh::StatForm", "Hennen");
constexpr const char* kFuchs = QT_TRANSLATE_NOOP("fuh::StatForm", "Fuchs");
constexpr const char* kGesamt = QT_TRANSLATE_NOOP("fuh::StatForm", "Gesamt");

QLabel* wert(const QString& name, int zahl, QWidget* eltern, Qt::Alignment ausrichtung = Qt::AlignRight) {
    auto* l = klartext(new QLabel(QString::number(zahl), eltern)); // a number, but read from a file
    l->setObjectName(name);
    l->setAlignment(ausrichtung | Qt::AlignVCenter);
    l->setMinimumWidth(QFontMetrics(l->font()).horizontalAdvance(QStringLiteral("000000")));
    return l;
}

QFrame* linie(QFrame::Shape form, QWidget* eltern) {
    auto* f = new QFrame(eltern);
    f->setFrameShape(form);
    f->setFrameShadow(QFrame::Plain);
    return f;
}

// Rows of "text: value", the values in one right-aligned column.
QGridLayout* zeilen(Beschriftung& texte, std::initializer_list<std::pair<const char*, QLabel*>> paare) {
    auto* g = new QGridLayout;
    int r = 0;
    for (const auto& [text, label] : paare) {
        auto* l = new QLabel;
        texte.text(l, text);
        texte.zugangsname(label,
                          [&texte, text, label] { return texte.uebersetzt(text) + ' ' + label->text(); });
        g->addWidget(l, r, 0);
        g->addWidget(label, r, 1);
        ++r;
    }
    g->setColumnStretch(0, 1);
    return g;
}

} // namespace

StatForm::StatForm(std::filesystem::path ordner, QWidget* parent) : QDialog(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    texte_.titel(this, QT_TR_NOOP("Statistik"));
    const Statistik s = statistikLesen(ordner);

    auto* haupt = new QVBoxLayout(this);

    auto* oben = new QHBoxLayout;
    // Started minus finished: games left by a new game or by closing the program.
    oben->addLayout(zeilen(
        texte_,
        {{QT_TR_NOOP("Spiele gesamt:"), wert(QStringLiteral("Spiele"), s.gestartet(), this)},
         {QT_TR_NOOP("abgebrochene:"), wert(QStringLiteral("abbruch"), s.gestartet() - s.beendet(), this)}}));
    oben->addSpacing(24);
    auto* ok = new QPushButton(this);
    texte_.text(ok, QT_TR_NOOP("Ok"));
    ok->setObjectName(QStringLiteral("Command1"));
    ok->setDefault(true);
    oben->addWidget(ok, 0, Qt::AlignTop);
    haupt->addLayout(oben);

    auto* lernen = new QGroupBox(this);
    texte_.titel(lernen, QT_TR_NOOP("Lernmodus"));
    lernen->setLayout(zeilen(
        texte_,
        {{QT_TR_NOOP("Spiele im Lernmodus:"), wert(QStringLiteral("gelernte"), s.imLernmodus(), lernen)},
         {QT_TR_NOOP("Bewertete Züge:"), wert(QStringLiteral("Zuge"), s.gelernt(), lernen)},
         {QT_TR_NOOP("Neue Züge aus letztem Spiel:"),
          wert(QStringLiteral("Zugaenge"), s.gelerntLetztes(), lernen)}}));
    haupt->addWidget(lernen);

    // Columns: 0 row heads, 1 rule, 2..4 computer, 5 rule, 6..8 user.
    // Rows: 0 side heads, 1 rule, 2 strengths, 3 rule, 4 hens, 5 foxes, 6 rule, 7 totals.
    auto* siege = new QGroupBox(this);
    texte_.titel(siege, QT_TR_NOOP("Siege"));
    auto* t = new QGridLayout(siege);
    t->setHorizontalSpacing(8);
    t->setVerticalSpacing(2);
    auto kopf = [&](const QString& text, int r, int c, int spalten = 1) {
        auto* l = new QLabel(text, siege);
        l->setAlignment(Qt::AlignCenter);
        t->addWidget(l, r, c, 1, spalten);
        return l;
    };
    texte_.text(kopf(QString(), 0, 2, 3), kComputer);
    texte_.text(kopf(QString(), 0, 6, 3), kUser);
    for (int k = 0; k < 3; ++k) {
        kopf(QString::number(k + 1), 2, 2 + k);
        kopf(QString::number(k + 1), 2, 6 + k);
    }
    auto zeilenkopf = [&](const char* text, int r) {
        auto* l = new QLabel(siege);
        texte_.text(l, text);
        t->addWidget(l, r, 0);
    };
    zeilenkopf(kStaerke, 2);
    zeilenkopf(kHennen, 4);
    zeilenkopf(kFuchs, 5);
    zeilenkopf(kGesamt, 7);
    // A cell says where it stands: "Computer, Hennen, Stärke 1: 4", "User, Gesamt: 57".
    auto zelle = [&](int nr, int zahl, std::array<const char*, 2> wo, int staerke = 0) {
        QLabel* l = wert(QStringLiteral("wert%1").arg(nr), zahl, siege, Qt::AlignHCenter);
        texte_.zugangsname(l, [this, l, wo, staerke] {
            QStringList teile = {texte_.uebersetzt(wo[0]), texte_.uebersetzt(wo[1])};
            if (staerke > 0) teile << texte_.uebersetzt(kStaerke) + ' ' + QString::number(staerke);
            return teile.join(QStringLiteral(", ")) + QStringLiteral(": ") + l->text();
        });
        return l;
    };
    int pc = 0;
    int user = 0;
    for (int k = 0; k < 3; ++k) {
        const int werte[4] = {s.pcSiegeHennen(k), s.pcSiegeFuchs(k), s.userSiegeHennen(k),
                              s.userSiegeFuchs(k)};
        t->addWidget(zelle(k, werte[0], {kComputer, kHennen}, k + 1), 4, 2 + k);
        t->addWidget(zelle(3 + k, werte[1], {kComputer, kFuchs}, k + 1), 5, 2 + k);
        t->addWidget(zelle(6 + k, werte[2], {kUser, kHennen}, k + 1), 4, 6 + k);
        t->addWidget(zelle(9 + k, werte[3], {kUser, kFuchs}, k + 1), 5, 6 + k);
        pc += werte[0] + werte[1];
        user += werte[2] + werte[3];
    }
    t->addWidget(zelle(12, pc, {kComputer, kGesamt}), 7, 3);
    t->addWidget(zelle(13, user, {kUser, kGesamt}), 7, 7);
    for (const int r : {1, 3, 6})
        t->addWidget(linie(QFrame::HLine, siege), r, 0, 1, 9);
    for (const int c : {1, 5})
        t->addWidget(linie(QFrame::VLine, siege), 0, c, 8, 1);
    haupt->addWidget(siege);

    haupt->setSizeConstraint(QLayout::SetFixedSize);
    connect(ok, &QPushButton::clicked, this, &QDialog::close);
}

void StatForm::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) texte_.erneuern();
    QDialog::changeEvent(e);
}

} // namespace fuh
