// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// What a screen reader is told: the board's points and the cursor's, the computer's moves, and a chain
// of jumps in one sentence.
#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include "fenster_aufbau.h"
#include "tastatur_helfer.h"
#include "ui/ansage.h"
#include "ui/brett_zugang.h"
#include "versetzen.h"

using namespace fuh;
using namespace fuh::test;

class AnsagenTest : public QObject {
    Q_OBJECT
  private slots:
    void punkteFuerDenScreenreader() {
        Aufbau a;
        aktivieren(a);
        QAccessibleInterface* brett = QAccessible::queryAccessibleInterface(a.brett());
        QStringList punkte;
        for (int i = 0; i < brett->childCount(); ++i)
            if (brett->child(i)->role() == QAccessible::Button && !brett->child(i)->state().invisible)
                punkte << name(brett->child(i));
        QCOMPARE(punkte.size(), 33);
        // Rows count from the bottom: the foxes start on row 5, the hens fill rows 1 to 4.
        QCOMPARE(punkte.first(), QStringLiteral("c7: leer"));
        QVERIFY(punkte.contains(QStringLiteral("c5: Fuchs")) && punkte.contains(QStringLiteral("e5: Fuchs")));
        QCOMPARE(punkte.last(), QStringLiteral("e1: Henne"));
        QCOMPARE(punkte.filter(QStringLiteral("Henne")).size(), 20);

        // The cursor's point is the focused child.
        QCOMPARE(name(brett->focusChild()), QStringLiteral("d4: Henne"));
        QVERIFY(brett->focusChild()->state().focused);
        taste(a, Qt::Key_Up);
        QCOMPARE(name(brett->focusChild()), QStringLiteral("d5: leer"));
        QCOMPARE(brett->child(brett->indexOfChild(brett->focusChild())), brett->focusChild());
        const QPoint c5 = a.brett()->mapToGlobal(a.mitte(feldNummer(2, 2)));
        QCOMPARE(name(brett->childAt(c5.x(), c5.y())), QStringLiteral("c5: Fuchs"));

        // A move renames both of its points; a piece sliding over a point does not.
        a.aktion("Neu");
        fahren(a, feldNummer(3, 3));
        QAccessibleInterface* d4 = brett->focusChild();
        taste(a, Qt::Key_Return, Qt::Key_Up, Qt::Key_Return);
        QCOMPARE(a.spiel().stellung().Feld[3][2], henne);
        QCOMPARE(name(d4), QStringLiteral("d4: leer"));
        QCOMPARE(name(brett->focusChild()), QStringLiteral("d5: Henne"));
        const int k = a.brett()->figurAuf(feldNummer(3, 2));
        a.brett()->figurGleiten(k, feldNummer(3, 2), feldNummer(3, 3), 100, 100);
        QCOMPARE(name(d4), QStringLiteral("d4: leer"));

        // A fox taken off the board is still found, on its own place beside the cross.
        QVERIFY(versetzen(a.spiel(), feldNummer(2, 2), kParkfeld));
        QTRY_VERIFY(brett->child(33) && !brett->child(33)->state().invisible);
        QCOMPARE(name(brett->child(33)), QStringLiteral("Ausgeschlossener Fuchs"));
    }

    void computerzugWirdAngesagt() {
        Aufbau a;
        aktivieren(a);
        a.ersterZug();
        QSignalSpy gesagt(a.fenster->findChild<Ansage*>(), &Ansage::angesagt);
        a.fenster->zugTakt();
        // The fox that moved, by where it stood and where it stands now.
        const Teilzug& z = a.spiel().zugregister();
        const QString zug =
            QStringLiteral("Fuchs %1 nach %2")
                .arg(feldName(feldNummer(z.vonX, z.vonY)), feldName(feldNummer(z.nachX, z.nachY)));
        // While the computer thinks, its prompt; then its move.
        QTRY_VERIFY(ansagen(gesagt).contains(zug));
        const QString texte = ansagen(gesagt);
        QVERIFY(texte.indexOf(QStringLiteral("Die Füchse sind am Zug.")) < texte.indexOf(zug));
        // Screen readers hear it as a notification that appears.
        QAccessibleInterface* zugang = QAccessible::queryAccessibleInterface(a.fenster->findChild<Ansage*>());
        QCOMPARE(zugang->role(), QAccessible::Notification);
        QVERIFY(zugang->text(QAccessible::Name).contains(zug));
    }

    void sprungketteInEinemSatz() {
        BrettFlaeche brett([] { return false; });
        Ansage ansage(brett);
        QSignalSpy gesagt(&ansage, &Ansage::angesagt);
        // As the window shows a move: the piece's image lands first, then the move is reported.
        auto zug = [&](int k, int von, int nach) {
            brett.figurSetzen(k, nach);
            ansage.ereignis({Ereignis::Art::zug, von, nach, 0, true, {}});
        };
        zug(1, feldNummer(2, 2), feldNummer(2, 4));
        zug(1, feldNummer(2, 4), feldNummer(4, 4));
        zug(7, feldNummer(3, 5), feldNummer(3, 4)); // another piece: the chain is complete
        const QString hinweis = QStringLiteral("Die Füchse sind am Zug.");
        ansage.sagen(hinweis);
        QCOMPARE(gesagt.count(), 0); // what appears in one go is said together
        QTRY_COMPARE(gesagt.count(), 1);
        QCOMPARE(ansage.text(),
                 QStringLiteral("Fuchs c5 springt über c4 nach c3 und über d3 nach e3. Henne d2 nach d3. ") +
                     hinweis);
        ansage.sagen(hinweis);
        QTRY_COMPARE(gesagt.count(), 2); // said again, heard again
        QCOMPARE(ansage.text(), hinweis);
        // A status text is said when it changes, and not shown again beside its own field.
        for (const int punkte : {237, 237, 240})
            ansage.ereignis(
                {Ereignis::Art::status, 3, 0, 0, false, Text(Vorlage::punkte, {Text::zahl(punkte)})});
        QTRY_COMPARE(gesagt.count(), 3);
        QCOMPARE(ansage.gesprochen(), QStringLiteral("Punkte: 237. Punkte: 240."));
        QCOMPARE(ansage.text(), hinweis);
    }
};

QTEST_MAIN(AnsagenTest)
#include "ansagen_test.moc"
