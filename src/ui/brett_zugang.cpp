// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/brett_zugang.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLabel>
#include <QPointer>
#include <QWindow>
#include <algorithm>
#include <array>

#include "ui/brett_flaeche.h"

namespace fuh {

namespace {

constexpr int kPunkte = 34; // the cross, then the place of a fox taken off the board
constexpr int kHinweise = 4;

// The points of the cross in reading order, from the top left, then the parking place.
constexpr std::array<int, kPunkte> kPunktFelder = [] {
    std::array<int, kPunkte> felder{};
    int i = 0;
    for (int y = 0; y <= 6; ++y)
        for (int x = 0; x <= 6; ++x)
            if (aufKreuz(x, y)) felder[i++] = feldNummer(x, y);
    felder[i] = kParkfeld;
    return felder;
}();

int punktIndex(int feld) {
    for (int i = 0; i < kPunkte; ++i)
        if (kPunktFelder[i] == feld) return i;
    return -1;
}

// One point of the board. It has no object of its own; the board's interface owns it.
class PunktZugang : public QAccessibleInterface {
  public:
    PunktZugang(BrettFlaeche* brett, int feld) : brett_(brett), feld_(feld) {}

    bool isValid() const override { return !brett_.isNull(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return brett_ ? brett_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(brett_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text t) const override {
        return brett_ && t == QAccessible::Name ? punktName(*brett_, feld_) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!brett_) return {};
        const QRect r = brett_->feldRechteck(feld_);
        return {brett_->mapToGlobal(r.topLeft()), r.size()};
    }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override {
        QAccessible::State s;
        s.focusable = true;
        // The parking place is there only while a fox waits on it.
        s.invisible =
            !brett_ || !brett_->isVisible() || (feld_ == kParkfeld && brett_->angesagteFigur(feld_) < 0);
        s.focused = brett_ && brett_->hasFocus() && brett_->cursor() == feld_;
        return s;
    }

  private:
    QPointer<BrettFlaeche> brett_;
    int feld_;
};

// The board: the 33 points, then the four prompts lying on it.
class BrettZugang : public QAccessibleWidget {
  public:
    explicit BrettZugang(BrettFlaeche* brett) : QAccessibleWidget(brett, QAccessible::Grouping) {}
    ~BrettZugang() override {
        for (QAccessible::Id id : ids_)
            if (id) QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return kPunkte + kHinweise; }
    QAccessibleInterface* child(int i) const override {
        if (i < 0 || i >= childCount()) return nullptr;
        if (i >= kPunkte)
            return QAccessible::queryAccessibleInterface(
                brett()->hinweisLabel(static_cast<Hinweis>(i - kPunkte)));
        if (!ids_[i])
            ids_[i] = QAccessible::registerAccessibleInterface(new PunktZugang(brett(), kPunktFelder[i]));
        return QAccessible::accessibleInterface(ids_[i]);
    }
    int indexOfChild(const QAccessibleInterface* kind) const override {
        for (int i = 0; i < childCount(); ++i)
            if (child(i) == kind) return i;
        return -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const int feld = brett()->platzAn(brett()->mapFromGlobal(QPoint(x, y)));
        const int i = punktIndex(feld);
        return i >= 0 ? child(i) : nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        return brett()->hasFocus() ? child(punktIndex(brett()->cursor())) : nullptr;
    }

  private:
    BrettFlaeche* brett() const { return static_cast<BrettFlaeche*>(widget()); }
    mutable std::array<QAccessible::Id, kPunkte> ids_{};
};

QAccessibleInterface* brettFabrik(const QString&, QObject* objekt) {
    if (auto* brett = qobject_cast<BrettFlaeche*>(objekt)) return new BrettZugang(brett);
    return nullptr;
}

void melden(QAccessibleEvent& ereignis, int feld) {
    const int i = punktIndex(feld);
    if (i < 0) return;
    ereignis.setChild(i);
    QAccessible::updateAccessibility(&ereignis);
}

} // namespace

void zugangEinrichten() {
    static const bool eingerichtet = (QAccessible::installFactory(brettFabrik), true);
    (void)eingerichtet;
}

QString feldName(int feld) {
    return QChar(u'a' + feldX(feld)) + QString::number(7 - feldY(feld));
}

QString punktName(const BrettFlaeche& brett, int feld) {
    const int k = brett.angesagteFigur(feld);
    if (feld == kParkfeld)
        return k < 0 ? QString() : QCoreApplication::translate("BrettZugang", "Ausgeschlossener Fuchs");
    const auto& ziele = brett.ziele();
    if (k < 0 && std::find(ziele.begin(), ziele.end(), feld) != ziele.end())
        return QCoreApplication::translate("BrettZugang", "%1: leer, erlaubt").arg(feldName(feld));
    const bool aufgenommen = brett.getragenVon() == feld;
    const char* text = k < 0 ? QT_TRANSLATE_NOOP("BrettZugang", "%1: leer")
                       : !BrettFlaeche::istFuchs(k)
                           ? (aufgenommen ? QT_TRANSLATE_NOOP("BrettZugang", "%1: Henne, aufgenommen")
                                          : QT_TRANSLATE_NOOP("BrettZugang", "%1: Henne"))
                       : aufgenommen ? QT_TRANSLATE_NOOP("BrettZugang", "%1: Fuchs, aufgenommen")
                                     : QT_TRANSLATE_NOOP("BrettZugang", "%1: Fuchs");
    return QCoreApplication::translate("BrettZugang", text).arg(feldName(feld));
}

void zugangFokus(BrettFlaeche* brett, int alt, int feld) {
    if (alt != feld) {
        // Screen readers keep the states they were told; the old point is no longer focused.
        QAccessible::State fokus;
        fokus.focused = true;
        QAccessibleStateChangeEvent verlassen(brett, fokus);
        melden(verlassen, alt);
    }
    QAccessibleEvent ereignis(brett, QAccessible::Focus);
    melden(ereignis, feld);
}

void zugangNameGeaendert(BrettFlaeche* brett, int feld) {
    QAccessibleEvent ereignis(brett, QAccessible::NameChanged);
    melden(ereignis, feld);
}

void BrettFlaeche::inhaltAbgleichen() {
    for (int feld : kPunktFelder) {
        const int k = figurAuf(feld);
        if (inhalt_[feld] == k) continue;
        inhalt_[feld] = k;
        zugangNameGeaendert(this, feld);
    }
}

} // namespace fuh
