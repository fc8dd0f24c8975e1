// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A window's named children, as the window tests find, read and click them.
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <memory>

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

// The message box that opens next, as it showed.
struct Meldung {
    QString titelUndText; // "title|text"
    Qt::TextFormat format = Qt::AutoText;
};

// Answers the next message box as soon as it runs: with the button labelled `knopf`, or OK.
inline std::shared_ptr<Meldung> meldungBeantworten(const QString& knopf = {}) {
    auto meldung = std::make_shared<Meldung>();
    QTimer::singleShot(0, [meldung, knopf] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        *meldung = {box->windowTitle() + QLatin1Char('|') + box->text(), box->textFormat()};
        for (QAbstractButton* b : box->buttons())
            if (b->text().remove(QLatin1Char('&')) == knopf) return b->click();
        box->accept();
    });
    return meldung;
}

} // namespace fuh::test
