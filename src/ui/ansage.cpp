// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/ansage.h"
#include "ui/sprache.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QStringList>
#include <cstdlib>
#include <utility>

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

// Screen readers know the field as a notification, named by its text.
class AnsageZugang : public QAccessibleWidget {
  public:
    explicit AnsageZugang(Ansage* ansage) : QAccessibleWidget(ansage, QAccessible::Notification) {}
    QString text(QAccessible::Text t) const override {
        return t == QAccessible::Name ? static_cast<const Ansage*>(widget())->gesprochen() : QString();
    }
};

QAccessibleInterface* ansageFabrik(const QString&, QObject* objekt) {
    if (auto* ansage = qobject_cast<Ansage*>(objekt)) return new AnsageZugang(ansage);
    return nullptr;
}

} // namespace

Ansage::Ansage(const BrettFlaeche& brett, QWidget* parent) : Statustext(parent), brett_(brett) {
    setObjectName(QStringLiteral("ansage"));
    static const bool eingerichtet = (QAccessible::installFactory(ansageFabrik), true);
    (void)eingerichtet;
    gleich_.setSingleShot(true);
    gleich_.setInterval(0);
    connect(&gleich_, &QTimer::timeout, this, &Ansage::aussprechen);
}

void Ansage::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) clear();
    Statustext::changeEvent(e);
}

void Ansage::verwerfen() {
    zugFelder_.clear();
    wartend_.clear();
    zeigen_ = false;
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
    case Ereignis::Art::hinweis: {
        const QString text = brett_.hinweisLabel(static_cast<Hinweis>(e.a))->text();
        const bool sprung = static_cast<Hinweis>(e.a) == Hinweis::spr_msg;
        if (e.ja) {
            sagen(text);
            if (sprung) sagen(BrettFlaeche::sprungTasten());
        } else if (sprung) {
            // A chain that ended at once (no further jump) asks for nothing: its prompt is not said.
            wartend_.removeAll(text);
            wartend_.removeAll(BrettFlaeche::sprungTasten());
        }
        return;
    }
    case Ereignis::Art::status: {
        Text& alt = status_.at(static_cast<size_t>(e.a - 1));
        // Said, but not shown a second time beside its own field.
        if (e.text != alt) sagen(uebersetzt(e.text), false);
        alt = e.text;
        return;
    }
    case Ereignis::Art::meldung:
    case Ereignis::Art::speicherfehler:
        return sagen(uebersetzt(e.text));
    default:
        return;
    }
}

void Ansage::sagen(const QString& text, bool zeigen) {
    abschliessen(); // in the order they appeared
    if (text.isEmpty()) return;
    wartend_ << text;
    zeigen_ = zeigen_ || zeigen;
    gleich_.start();
}

void Ansage::abschliessen() {
    if (zugFelder_.empty()) return;
    const QString satz = zugSatz(zugFuchs_, zugFelder_);
    zugFelder_.clear();
    sagen(satz);
}

void Ansage::tipp(const std::vector<int>& felder, const Text& urteil) {
    const int k = felder.empty() ? -1 : brett_.figurAuf(felder.front());
    if (k >= 0) sagen(tr("Tipp: %1").arg(zugSatz(BrettFlaeche::istFuchs(k), felder)));
    if (k >= 0 && !urteil.leer()) sagen(uebersetzt(urteil));
}

QString Ansage::zugSatz(bool fuchs, const std::vector<int>& felder) const {
    // A jump names the hen it takes: "springt über c6 nach c5", a chain each jump in turn.
    QString weg;
    for (size_t i = 1; i < felder.size(); ++i) {
        const int a = felder[i - 1], b = felder[i];
        const int dx = feldX(b) - feldX(a), dy = feldY(b) - feldY(a);
        const QString ziel = feldName(b);
        if (std::abs(dx) != 2 && std::abs(dy) != 2) {
            weg += tr(" nach %1").arg(ziel);
            continue;
        }
        const QString ueber = feldName(feldNummer(feldX(a) + dx / 2, feldY(a) + dy / 2));
        weg += i == 1 ? tr(" springt über %1 nach %2").arg(ueber, ziel)
                      : tr(" und über %1 nach %2").arg(ueber, ziel);
    }
    const QString von = feldName(felder.front());
    return (fuchs ? tr("Fuchs %1") : tr("Henne %1")).arg(von) + weg;
}

void Ansage::aussprechen() {
    if (wartend_.isEmpty()) return; // all of it was taken back before it was said
    const QString text = saetze(wartend_);
    wartend_.clear();
    gesprochen_ = text;
    if (std::exchange(zeigen_, false)) setText(text);
    // Screen readers pass over a label's changed name; a notification that appears they speak, also
    // when its text is the same as before.
    QAccessibleEvent erschienen(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&erschienen);
    emit angesagt(text);
}

} // namespace fuh
