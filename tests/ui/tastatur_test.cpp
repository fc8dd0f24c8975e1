// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The game without a mouse: the keyboard cursor on the board, the standard shortcuts, and the points
// a lifted piece may go to.
#include <QAccessible>
#include <QMenuBar>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>
#include <vector>

#include "fenster_aufbau.h"
#include "tastatur_helfer.h"
#include "ui/ansage.h"
#include "ui/brett_zugang.h"
#include "ui/highscore_fenster.h"
#include "ui/hilfe_fenster.h"

using namespace fuh;
using namespace fuh::test;

class TastaturTest : public QObject {
    Q_OBJECT
  private slots:
    // The cursor starts on d4 and stays on the cross; a piece is picked up, put back and refused.
    void cursorAufnehmenZuruecklegenUndFalschAblegen() {
        Aufbau a;
        aktivieren(a);
        QCOMPARE(QApplication::focusWidget(), a.brett());
        QCOMPARE(a.brett()->cursor(), feldNummer(3, 3));
        // At the cross's outer corners the keys that lead off it leave the cursor where it is.
        const std::vector<std::pair<int, std::vector<Qt::Key>>> ecken = {
            {feldNummer(0, 2), {Qt::Key_Up, Qt::Key_Left}},
            {feldNummer(2, 0), {Qt::Key_Up, Qt::Key_Left}},
            {feldNummer(4, 6), {Qt::Key_Down, Qt::Key_Right}}};
        for (const auto& [ecke, tasten] : ecken) {
            fahren(a, ecke);
            for (Qt::Key k : tasten)
                taste(a, k);
            QCOMPARE(a.brett()->cursor(), ecke);
        }

        QSignalSpy abgelegt(a.brett(), &BrettFlaeche::abgelegt);
        // Locked before a game starts: nothing is picked up.
        taste(a, Qt::Key_Return);
        QVERIFY(!a.brett()->ziehtGerade());

        a.aktion("Neu");
        const Stellung anfang = a.spiel().stellung();
        fahren(a, feldNummer(3, 3));
        QAccessibleInterface* d4 = QAccessible::queryAccessibleInterface(a.brett())->focusChild();
        taste(a, Qt::Key_Space);
        QVERIFY(a.brett()->ziehtGerade());
        QCOMPARE(name(d4), QStringLiteral("d4: Henne, aufgenommen"));
        taste(a, Qt::Key_Up, Qt::Key_Escape);
        QVERIFY(!a.brett()->ziehtGerade());
        QCOMPARE(name(d4), QStringLiteral("d4: Henne"));
        taste(a, Qt::Key_Return); // the cursor's point is empty: nothing to pick up
        QVERIFY(!a.brett()->ziehtGerade());
        QCOMPARE(abgelegt.count(), 0);

        // Onto itself, onto a fox, or onto a point the hen cannot reach: the board or the game refuses.
        for (int ziel : {feldNummer(3, 3), feldNummer(2, 2), feldNummer(3, 0)}) {
            fahren(a, feldNummer(3, 3));
            taste(a, Qt::Key_Return);
            fahren(a, ziel);
            taste(a, Qt::Key_Return);
            QVERIFY(!a.brett()->ziehtGerade());
        }
        QCOMPARE(abgelegt.count(), 1); // only the empty point reached the game
        QVERIFY(a.spiel().stellung() == anfang);
        bilderPruefen(a);
    }

    // One move by keys as the hint (Ctrl+T) shows it; a chain of jumps that could go on is closed with
    // Shift+F10. The hint's marks go with the move, and there is none until the computer has replied.
    // `geschlossen` counts the jumps.
    void zugNachTipp(Aufbau& a, int& geschlossen) {
        QTest::keyClick(a.fenster.get(), Qt::Key_T, Qt::ControlModifier);
        const std::vector<int> tipp = a.brett()->tipp();
        QVERIFY2(!tipp.empty(), "no hint while a person is to move");
        for (int feld : tipp) {
            fahren(a, feld);
            taste(a, Qt::Key_Return);
        }
        if (std::abs(feldX(tipp[1]) - feldX(tipp[0])) == 2 || std::abs(feldY(tipp[1]) - feldY(tipp[0])) == 2)
            ++geschlossen;
        if (a.spiel().sprungfolge().imSprung) {
            QTest::keyClick(a.brett(), Qt::Key_F10, Qt::ShiftModifier);
            QVERIFY(!a.spiel().sprungfolge().imSprung);
        }
        QVERIFY(a.brett()->tipp().empty());
        QVERIFY(!a.fenster->findChild<QAction*>(QStringLiteral("tipp"))->isEnabled());
    }

    void ganzePartieOhneMaus() {
        Aufbau a({{1, 0, 0, 0}}); // the player has the foxes, so chains of jumps must be closed
        Antworter antworter;
        aktivieren(a);
        QSignalSpy gesagt(a.fenster->findChild<Ansage*>(), &Ansage::angesagt);
        QTest::keyClick(a.fenster.get(), Qt::Key_N, Qt::ControlModifier);
        QVERIFY(a.spiel().ziehbar());
        int geschlossen = 0;
        for (int zug = 0; zug < 400 && !a.spiel().endeGefunden(); ++zug) {
            zugNachTipp(a, geschlossen);
            if (QTest::currentTestFailed()) return;
            QVERIFY(a.spiel().computerAmZug() || a.spiel().endeGefunden());
            a.fenster->zugTakt();
        }
        QVERIFY(a.spiel().endeGefunden());
        QVERIFY(geschlossen > 0);
        QTRY_VERIFY(!antworter.texte.empty()); // the result was announced
        QTRY_VERIFY(a.fenster->findChild<HighscoreFenster*>() &&
                    a.fenster->findChild<HighscoreFenster*>()->isVisible());
        // The hints and the end were said to a screen reader as well.
        QTRY_VERIFY(ansagen(gesagt).contains(antworter.texte.front()));
        QVERIFY(ansagen(gesagt).contains(QStringLiteral("Tipp: Fuchs ")));
    }

    // A lifted piece shows where it may go, lifted by keys or by the mouse; screen readers hear those
    // points as allowed, and the marks go when the piece is put down.
    void erlaubteZiele() {
        Aufbau a;
        aktivieren(a);
        QSignalSpy gesagt(a.fenster->findChild<Ansage*>(), &Ansage::angesagt);
        a.aktion("Neu");
        QAccessibleInterface* brett = QAccessible::queryAccessibleInterface(a.brett());
        taste(a, Qt::Key_Return); // the hen on d4: only d5 is free ahead of it
        QCOMPARE(a.brett()->ziele(), std::vector<int>{feldNummer(3, 2)});
        QTRY_VERIFY(ansagen(gesagt).contains(QStringLiteral("Henne d4 aufgenommen, erlaubt: d5")));
        taste(a, Qt::Key_Up);
        QCOMPARE(name(brett->focusChild()), QStringLiteral("d5: leer, erlaubt"));
        taste(a, Qt::Key_Escape);
        QVERIFY(a.brett()->ziele().empty());
        QCOMPARE(name(brett->focusChild()), QStringLiteral("d5: leer"));

        const int a4 = feldNummer(0, 3), a5 = feldNummer(0, 2);
        QTest::mousePress(a.brett(), Qt::LeftButton, Qt::NoModifier, a.mitte(a4));
        QCOMPARE(a.brett()->ziele(), std::vector<int>{a5});
        QTest::mouseMove(a.brett(), a.mitte(a5));
        QTest::mouseRelease(a.brett(), Qt::LeftButton, Qt::NoModifier, a.mitte(a5));
        QVERIFY(a.brett()->ziele().empty());
        QCOMPARE(a.spiel().stellung().Feld[0][2], henne);
    }

    // F10 opens the menu, F1 the help; after each window or dialog closes the keys move the cursor again,
    // and a dialog opens on its first field, named by its label.
    void fokusNachJedemDialog() {
        Aufbau a;
        aktivieren(a);
        QTest::keyClick(a.brett(), Qt::Key_F10);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QApplication::activePopupWidget()->close();
        // (Ctrl+N, Ctrl+T and Shift+F10 are played in the whole game above.)
        QTest::keyClick(a.fenster.get(), Qt::Key_F1);
        // The help shows its text and closes with Escape also while the text has the focus.
        QPointer<HilfeFenster> hilfe = a.fenster->findChild<HilfeFenster*>();
        QVERIFY(QTest::qWaitForWindowActive(hilfe) && !hilfe->browser()->document()->isEmpty());
        hilfe->browser()->setFocus();
        QTest::keyClick(hilfe->browser(), Qt::Key_Escape);
        QTRY_VERIFY(!hilfe || !hilfe->isVisible());
        aktivieren(a);
        for (const char* befehl : {"Einstellungen", "statistik", "highscoreFuchs", "hilfeZeigen", "info"}) {
            a.fenster->menuBar()->setFocus(Qt::MenuBarFocusReason); // as when it was chosen there
            a.aktion(befehl);
            QTRY_VERIFY2(QApplication::activeWindow() && QApplication::activeWindow() != a.fenster.get(),
                         befehl);
            if (qstrcmp(befehl, "Einstellungen") == 0) {
                QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("computerSpielt"));
                QCOMPARE(QApplication::focusWidget()->accessibleName(), QStringLiteral("Computer spielt"));
            }
            QApplication::activeWindow()->close();
            aktivieren(a); // as the desktop does when a window closes
            QTRY_VERIFY2(QApplication::focusWidget() == a.brett(), befehl);
        }
    }
};

QTEST_MAIN(TastaturTest)
#include "tastatur_test.moc"
