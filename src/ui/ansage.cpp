// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/ansage.h"
#include "ui/sprache.h"

#include <QAccessible>
#include <QStringList>

#include "ui/brett_flaeche.h"
#include "ui/brett_zugang.h"

namespace fuh {

namespace {

// Several texts said at once become sentences: a full stop after each that has no mark of its own.
QString saetze(const QStringList& texte) {
    if (texte.size() == 1) return texte.front();
    QStringList saetze;
    for (const QString& t : texte)
        saetze << (t.back().isPunct() ? t : t + QLatin1Char('.'));
    return saetze.join(QLatin1Char(' '));
}

} // namespace

Ansage::Ansage(const BrettFlaeche& brett, QWidget* parent) : Statustext(parent), brett_(brett) {
    setObjectName(QStringLiteral("ansage"));
    gleich_.setSingleShot(true);
    gleich_.setInterval(0);
    connect(&gleich_, &QTimer::timeout, this, &Ansage::aussprechen);
}

void Ansage::verwerfen() {
    zugFelder_.clear();
    wartend_.clear();
    gleich_.stop();
}

void Ansage::ereignis(const Ereignis& e) {
    switch (e.art) {
    case Ereignis::Art::zug: {
        if (!e.ja) return abschliessen(); // the player's own move needs no telling
        if (!zugFelder_.empty() && zugFelder_.back() == e.a) {
            zugFelder_.push_back(e.b);
            return;
        }
        abschliessen();
        // By now the piece's image stands on its destination.
        const int k = brett_.figurAuf(e.b);
        if (k < 0) return;
        zugFuchs_ = BrettFlaeche::istFuchs(k);
        zugFelder_ = {e.a, e.b};
        return;
    }
    case Ereignis::Art::hinweis:
        if (e.ja) sagen(brett_.hinweisLabel(static_cast<Hinweis>(e.a))->text());
        return;
    case Ereignis::Art::status: {
        QString& alt = status_.at(static_cast<size_t>(e.a - 1));
        if (e.text != alt) sagen(kernText(e.text));
        alt = e.text;
        return;
    }
    case Ereignis::Art::meldung:
    case Ereignis::Art::speicherfehler:
        return sagen(kernText(e.text));
    default:
        return;
    }
}

void Ansage::sagen(const QString& text) {
    abschliessen(); // in the order they appeared
    if (text.isEmpty()) return;
    wartend_ << text;
    gleich_.start();
}

void Ansage::abschliessen() {
    if (zugFelder_.empty()) return;
    const QString satz = zugSatz(zugFuchs_, zugFelder_);
    zugFelder_.clear();
    sagen(satz);
}

void Ansage::tipp(const std::vector<int>& felder, const QString& urteil) {
    const int k = felder.empty() ? -1 : brett_.figurAuf(felder.front());
    if (k >= 0) sagen(tr("Tipp: %1").arg(zugSatz(BrettFlaeche::istFuchs(k), felder)));
    if (k >= 0 && !urteil.isEmpty()) sagen(kernText(urteil));
}

QString Ansage::zugSatz(bool fuchs, const std::vector<int>& felder) const {
    QStringList ziele;
    for (size_t i = 1; i < felder.size(); ++i)
        ziele << feldName(felder[i]);
    const QString von = feldName(felder.front());
    const QString ziel = ziele.join(tr(" nach "));
    return fuchs ? tr("Fuchs %1 nach %2").arg(von, ziel) : tr("Henne %1 nach %2").arg(von, ziel);
}

void Ansage::aussprechen() {
    const QString text = saetze(wartend_);
    wartend_.clear();
    // A label tells screen readers of a changed text itself; a repeated one is news all the same.
    if (text == this->text()) {
        QAccessibleEvent ereignis(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&ereignis);
    } else {
        setText(text);
    }
    emit angesagt(text);
}

} // namespace fuh
