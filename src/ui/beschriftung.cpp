// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/beschriftung.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMetaObject>
#include <QPointer>
#include <utility>

namespace fuh {

namespace {

// Sets `quelle`, translated, on `ziel` through `setzen`, as long as `ziel` lives.
template <class Ziel>
std::function<void()> setzer(const Beschriftung& texte, Ziel* ziel, const char* quelle,
                             void (Ziel::*setzen)(const QString&)) {
    return [&texte, z = QPointer<Ziel>(ziel), quelle, setzen] {
        if (z) (z.data()->*setzen)(texte.uebersetzt(quelle));
    };
}

} // namespace

Beschriftung::Beschriftung(const QMetaObject& fenster) : kontext_(fenster.className()) {}

QString Beschriftung::uebersetzt(const char* quelle) const {
    return QCoreApplication::translate(kontext_, quelle);
}

void Beschriftung::merken(std::function<void()> setzen) {
    setzen();
    setzer_.push_back(std::move(setzen));
}

void Beschriftung::text(QLabel* l, const char* quelle) {
    merken(setzer(*this, l, quelle, &QLabel::setText));
}

void Beschriftung::text(QAbstractButton* b, const char* quelle) {
    merken(setzer(*this, b, quelle, &QAbstractButton::setText));
}

void Beschriftung::text(QAction* a, const char* quelle) {
    merken(setzer(*this, a, quelle, &QAction::setText));
}

void Beschriftung::titel(QGroupBox* g, const char* quelle) {
    merken(setzer(*this, g, quelle, &QGroupBox::setTitle));
}

void Beschriftung::titel(QWidget* fenster, const char* quelle) {
    merken(setzer(*this, fenster, quelle, &QWidget::setWindowTitle));
}

void Beschriftung::zugangsname(QWidget* w, std::function<QString()> bauen) {
    merken([z = QPointer(w), bauen = std::move(bauen)] {
        if (z) z->setAccessibleName(bauen());
    });
}

void Beschriftung::eintraege(QComboBox* c, std::initializer_list<const char*> quellen) {
    const std::vector<const char*> liste(quellen);
    while (c->count() < static_cast<int>(liste.size()))
        c->addItem(QString());
    merken([this, z = QPointer(c), liste] {
        for (std::size_t i = 0; z && i < liste.size(); ++i)
            z->setItemText(static_cast<int>(i), uebersetzt(liste[i]));
    });
}

void Beschriftung::erneuern() const {
    for (const auto& setzen : setzer_)
        setzen();
}

} // namespace fuh
