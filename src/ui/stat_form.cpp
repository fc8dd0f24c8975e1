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

#include "spieldaten/statistikdatei.h"
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
    haupt->addLayout(spieleAnlegen(s));
    haupt->addWidget(lernmodusAnlegen(s));
    haupt->addWidget(siegeAnlegen(s));
    // The window takes the size its texts need, anew in each language.
    haupt->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* StatForm::spieleAnlegen(const Statistik& s) {
    auto* oben = new QHBoxLayout;
    // Started minus finished: games left by a new game or by closing the program.
    oben->addLayout(zeilen(
        texte_, {{QT_TR_NOOP("Spiele gesamt:"), wert(QStringLiteral("gestartet"), s.gestartet(), this)},
                 {QT_TR_NOOP("abgebrochene:"),
                  wert(QStringLiteral("abgebrochen"), s.gestartet() - s.beendet(), this)}}));
    oben->addSpacing(24);
    auto* ok = new QPushButton(this);
    texte_.text(ok, QT_TR_NOOP("Ok"));
    ok->setObjectName(QStringLiteral("okKnopf"));
    ok->setDefault(true);
    oben->addWidget(ok, 0, Qt::AlignTop);
    connect(ok, &QPushButton::clicked, this, &QDialog::close);
    return oben;
}

QWidget* StatForm::lernmodusAnlegen(const Statistik& s) {
    auto* lernen = new QGroupBox(this);
    texte_.titel(lernen, QT_TR_NOOP("Lernmodus"));
    lernen->setLayout(zeilen(
        texte_,
        {{QT_TR_NOOP("Spiele im Lernmodus:"), wert(QStringLiteral("imLernmodus"), s.imLernmodus(), lernen)},
         {QT_TR_NOOP("Bewertete Züge:"), wert(QStringLiteral("bewertet"), s.gelernt(), lernen)},
         {QT_TR_NOOP("Neue Züge aus letztem Spiel:"),
          wert(QStringLiteral("neuAusLetztem"), s.gelerntLetztes(), lernen)}}));
    return lernen;
}

// Columns: 0 row heads, 1 rule, 2..4 computer, 5 rule, 6..8 user.
// Rows: 0 side heads, 1 rule, 2 strengths, 3 rule, 4 hens, 5 foxes, 6 rule, 7 totals.
QWidget* StatForm::siegeAnlegen(const Statistik& s) {
    auto* siege = new QGroupBox(this);
    texte_.titel(siege, QT_TR_NOOP("Siege"));
    auto* t = new QGridLayout(siege);
    t->setHorizontalSpacing(8);
    t->setVerticalSpacing(2);
    siegeKoepfe(t);
    int pc = 0;
    int user = 0;
    for (int k = 0; k < 3; ++k) {
        const int werte[4] = {s.pcSiegeHennen(k), s.pcSiegeFuchs(k), s.userSiegeHennen(k),
                              s.userSiegeFuchs(k)};
        t->addWidget(siegZelle(k, werte[0], {kComputer, kHennen}, k + 1), 4, 2 + k);
        t->addWidget(siegZelle(3 + k, werte[1], {kComputer, kFuchs}, k + 1), 5, 2 + k);
        t->addWidget(siegZelle(6 + k, werte[2], {kUser, kHennen}, k + 1), 4, 6 + k);
        t->addWidget(siegZelle(9 + k, werte[3], {kUser, kFuchs}, k + 1), 5, 6 + k);
        pc += werte[0] + werte[1];
        user += werte[2] + werte[3];
    }
    t->addWidget(siegZelle(12, pc, {kComputer, kGesamt}), 7, 3);
    t->addWidget(siegZelle(13, user, {kUser, kGesamt}), 7, 7);
    for (const int r : {1, 3, 6})
        t->addWidget(linie(QFrame::HLine, siege), r, 0, 1, 9);
    for (const int c : {1, 5})
        t->addWidget(linie(QFrame::VLine, siege), 0, c, 8, 1);
    return siege;
}

void StatForm::siegeKoepfe(QGridLayout* t) {
    QWidget* siege = t->parentWidget();
    auto kopf = [&](int r, int c, int spalten = 1) {
        auto* l = new QLabel(siege);
        l->setAlignment(Qt::AlignCenter);
        t->addWidget(l, r, c, 1, spalten);
        return l;
    };
    texte_.text(kopf(0, 2, 3), kComputer);
    texte_.text(kopf(0, 6, 3), kUser);
    for (int k = 0; k < 3; ++k) {
        kopf(2, 2 + k)->setText(QString::number(k + 1));
        kopf(2, 6 + k)->setText(QString::number(k + 1));
    }
    const std::pair<const char*, int> zeilenkoepfe[] = {
        {kStaerke, 2}, {kHennen, 4}, {kFuchs, 5}, {kGesamt, 7}};
    for (const auto& [text, r] : zeilenkoepfe) {
        auto* l = new QLabel(siege);
        texte_.text(l, text);
        t->addWidget(l, r, 0);
    }
}

// A cell says where it stands: "Computer, Hennen, Stärke 1: 4", "User, Gesamt: 57".
QLabel* StatForm::siegZelle(int nr, int zahl, std::array<const char*, 2> wo, int staerke) {
    QLabel* l = wert(QStringLiteral("wert%1").arg(nr), zahl, this, Qt::AlignHCenter);
    texte_.zugangsname(l, [this, l, wo, staerke] {
        QStringList teile = {texte_.uebersetzt(wo[0]), texte_.uebersetzt(wo[1])};
        if (staerke > 0) teile << texte_.uebersetzt(kStaerke) + ' ' + QString::number(staerke);
        return teile.join(QStringLiteral(", ")) + QStringLiteral(": ") + l->text();
    });
    return l;
}

void StatForm::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) {
        texte_.erneuern();
        layout()->activate(); // the new size at once, not at the next layout pass
    }
    QDialog::changeEvent(e);
}

} // namespace fuh
