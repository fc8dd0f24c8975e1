// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Helpers for the window tests without a mouse: keys on the board, the keyboard cursor moved along the
// cross, and what screen readers are told.
#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include "fenster_aufbau.h"

namespace fuh::test {

// Everything said to screen readers, in order, as one text.
inline QString ansagen(QSignalSpy& spy) {
    QStringList texte;
    for (const QList<QVariant>& signal : spy)
        texte << signal.at(0).toString();
    return texte.join(QLatin1Char('\n'));
}

inline void aktivieren(Aufbau& a) {
    a.fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(a.fenster.get()));
}

// The keys pressed on the board one after the other.
template <class... Tasten> void taste(Aufbau& a, Tasten... k) {
    (QTest::keyClick(a.brett(), k), ...);
}

// Moves the keyboard cursor to `ziel` with the arrow keys only, along the cross.
inline void fahren(Aufbau& a, int ziel) {
    for (int schritt = 0; schritt < 16 && a.brett()->cursor() != ziel; ++schritt) {
        const int c = a.brett()->cursor();
        const int dx = feldX(ziel) - feldX(c), dy = feldY(ziel) - feldY(c);
        if (dx != 0) taste(a, dx < 0 ? Qt::Key_Left : Qt::Key_Right);
        if (a.brett()->cursor() == c && dy != 0) taste(a, dy < 0 ? Qt::Key_Up : Qt::Key_Down);
    }
    QCOMPARE(a.brett()->cursor(), ziel);
}

inline QString name(QAccessibleInterface* i) {
    return i ? i->text(QAccessible::Name) : QStringLiteral("(keines)");
}

} // namespace fuh::test
