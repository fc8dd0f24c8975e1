// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A window's named children, as the window tests find, read and click them.
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace fuh::test {

template <class T = QWidget> T* kind(QWidget* w, const QString& name) {
    T* k = w->findChild<T*>(name);
    if (!k) qFatal("missing child %s", qPrintable(name));
    return k;
}

inline QString text(QWidget* w, const QString& name) {
    return kind<QLabel>(w, name)->text();
}

// Windows closed by the click are gone afterwards.
inline void klick(QWidget* w, const char* knopf) {
    QTest::mouseClick(kind<QPushButton>(w, QString::fromLatin1(knopf)), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace fuh::test
