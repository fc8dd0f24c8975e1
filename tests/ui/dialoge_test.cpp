// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialogs as a player meets them: in German and English, at the usual and at a large font, every
// text fits its widget and the window fits a small screen; every control is reached with Tab, has a
// name a screen reader speaks, and Escape closes the window.
#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QtTest>

#include "kinder.h"
#include "testdateien.h"
#include "ui/einst_dialog.h"
#include "ui/highscore_fenster.h"
#include "ui/info_win.h"
#include "ui/sprache.h"
#include "ui/stat_form.h"

using namespace fuh;

namespace {

enum class Art { einstellungen, statistik, highscore, info };
constexpr Art kArten[] = {Art::einstellungen, Art::statistik, Art::highscore, Art::info};

// A dialog on files that fill it to the brim: five-digit counters, full-length names, a new row.
struct Offen {
    test::TempOrdner dir;
    Oeffentlich spiel;
    QPointer<QDialog> d;

    explicit Offen(Art art) {
        switch (art) {
        case Art::einstellungen:
            // Strength 2, so that every control is enabled; the Meister makes the longest list.
            d = new EinstDialog({2, 1, 1, 1}, Spielerauswahl{true, false}, dir.pfad(), {}, {});
            break;
        case Art::statistik: {
            std::array<int16_t, 17> z{};
            z.fill(32000);
            dir.schreibe("QZ.sta", test::zaehlerBytes(z));
            d = new StatForm(dir.pfad());
            break;
        }
        case Art::highscore: {
            std::vector<uint8_t> b;
            for (int i = 0; i < 9; ++i) {
                const auto satz = test::hsSatz(45000 + i, -32000, "WWWWWWWWWWWWWWW", "Nein");
                b.insert(b.end(), satz.begin(), satz.end());
            }
            dir.schreibe("QZH.sco", b);
            spiel = test::spielende(32000);
            d = new HighscoreFenster(Seite::Hennen, spiel, dir.pfad());
            break;
        }
        case Art::info:
            d = new InfoWin;
            break;
        }
        d->show();
    }
    ~Offen() { delete d; }
};

// What a text needs: the width of its one line, or the height of its wrapped lines.
bool passt(QWidget* w) {
    if (auto* l = qobject_cast<QLabel*>(w)) {
        if (l->wordWrap()) return l->height() >= l->heightForWidth(l->width());
        return l->width() >= l->sizeHint().width() && l->height() >= l->sizeHint().height();
    }
    if (qobject_cast<QAbstractButton*>(w) || qobject_cast<QComboBox*>(w))
        return w->width() >= w->sizeHint().width() && w->height() >= w->minimumSizeHint().height();
    if (qobject_cast<QGroupBox*>(w)) return w->width() >= w->minimumSizeHint().width();
    return true;
}

// The controls a player works with.
QList<QWidget*> bedienelemente(QWidget* d) {
    QList<QWidget*> liste;
    for (QWidget* w : d->findChildren<QWidget*>())
        if ((qobject_cast<QAbstractButton*>(w) || qobject_cast<QComboBox*>(w) ||
             qobject_cast<QLineEdit*>(w)) &&
            w->isVisibleTo(d) && w->isEnabled())
            liste << w;
    return liste;
}

QString name(QWidget* w) {
    return w->objectName() + QLatin1Char('/') + QString::fromLatin1(w->metaObject()->className());
}

} // namespace

class DialogeTest : public QObject {
    Q_OBJECT
  private slots:
    void cleanup() {
        QApplication::setFont(QFont());
        spracheSetzen(sprache(QStringLiteral("de")), false);
    }

    void textePassen_data() {
        QTest::addColumn<bool>("englisch");
        QTest::addColumn<int>("punkte");
        const int ueblich = QApplication::font().pointSize();
        QTest::newRow("deutsch") << false << ueblich;
        QTest::newRow("englisch") << true << ueblich;
        QTest::newRow("deutsch, grosse Schrift") << false << 2 * ueblich;
        QTest::newRow("englisch, grosse Schrift") << true << 2 * ueblich;
    }

    // In English the window is opened in German and switched while open: its texts change and it
    // follows their size.
    void textePassen() {
        QFETCH(bool, englisch);
        QFETCH(int, punkte);
        QFont schrift = QApplication::font();
        const bool gross = punkte > schrift.pointSize();
        schrift.setPointSize(punkte);
        QApplication::setFont(schrift);
        for (const Art art : kArten) {
            Offen o(art);
            QVERIFY(QTest::qWaitForWindowExposed(o.d));
            if (englisch) {
                spracheSetzen(sprache(QStringLiteral("en")), false);
                QCoreApplication::processEvents();
                QCoreApplication::processEvents();
            }
            for (QWidget* w : o.d->findChildren<QWidget*>())
                if (w->isVisibleTo(o.d)) QVERIFY2(passt(w), qPrintable(name(w)));
            // At the usual font every window fits a screen of 800 × 600, title bar included.
            if (!gross)
                QVERIFY2(
                    o.d->width() <= 800 && o.d->height() <= 560,
                    qPrintable(name(o.d) + QStringLiteral(" %1×%2").arg(o.d->width()).arg(o.d->height())));
            spracheSetzen(sprache(QStringLiteral("de")), false);
        }
    }

    void tastaturUndNamen() {
        for (const Art art : kArten) {
            Offen o(art);
            o.d->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(o.d));
            const QList<QWidget*> alle = bedienelemente(o.d);
            QVERIFY(!alle.isEmpty());
            // A new high-score row waits for the name: the player types it at once.
            if (auto* name = o.d->findChild<QLineEdit*>()) QCOMPARE(QApplication::focusWidget(), name);
            QSet<QWidget*> erreicht;
            for (int i = 0; i <= 2 * alle.size(); ++i) {
                QWidget* fokus = QApplication::focusWidget();
                QVERIFY2(fokus && o.d->isAncestorOf(fokus), qPrintable(name(o.d)));
                erreicht.insert(fokus);
                QTest::keyClick(fokus, Qt::Key_Tab);
            }
            for (QWidget* w : alle) {
                QVERIFY2(erreicht.contains(w), qPrintable(name(w)));
                QAccessibleInterface* zugang = QAccessible::queryAccessibleInterface(w);
                QVERIFY2(!zugang->text(QAccessible::Name).trimmed().isEmpty(), qPrintable(name(w)));
                // A list says what it chooses through the label beside it.
                if (qobject_cast<QComboBox*>(w))
                    QVERIFY2(!zugang->relations(QAccessible::Label).isEmpty(), qPrintable(name(w)));
            }
            const QString fenster = name(o.d);
            // A new high-score entry goes only when the player confirms it.
            if (o.d->findChild<QLineEdit*>()) test::meldungBeantworten(QStringLiteral("Verwerfen"));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY2(o.d.isNull(), qPrintable(fenster));
        }
    }
};

QTEST_MAIN(DialogeTest)
#include "dialoge_test.moc"
