// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The line under the board in both languages: the reason of the end (the last fox's apart from the
// foxes' other loss), the move counter and the warning before the limit, rewritten at once when the
// language changes.
#include <QTest>

#include "ui/lagefeld.h"
#include "ui/sprache.h"

using namespace fuh;

class LagefeldTest : public QObject {
    Q_OBJECT
  private slots:
    void endeUndZaehlerInBeidenSprachen() {
        const struct {
            Endegrund grund;
            bool letzterFuchs;
            const char *deutsch, *englisch;
        } faelle[] = {
            {Endegrund::hennenImZiel, false, "Spielende: Die Hennen besetzen alle 9 Zielfelder.",
             "Game over: The hens occupy all 9 target points."},
            {Endegrund::fuchsOhneZug, false, "Spielende: Die Füchse können nicht mehr ziehen.",
             "Game over: The foxes cannot move any more."},
            {Endegrund::fuchsOhneZug, true,
             "Spielende: Der letzte Fuchs auf dem Brett wäre ausgeschlossen worden.",
             "Game over: The last fox on the board would have been taken off."},
        };
        Lagefeld lage;
        for (const auto& f : faelle) {
            spracheSetzen(sprache(QStringLiteral("de")), false);
            QCoreApplication::processEvents();
            lage.ende(static_cast<uint8_t>(1U << static_cast<unsigned>(f.grund)), f.letzterFuchs);
            QCOMPARE(lage.text(), QString::fromUtf8(f.deutsch));
            spracheSetzen(sprache(QStringLiteral("en")), false);
            QTRY_COMPARE(lage.text(), QString::fromUtf8(f.englisch));
        }
        // The counter and the warning ten moves before the limit, in English too.
        Lage l;
        l.begonnen = l.laeuft = true;
        l.amZug = Lage::Zug::mensch;
        l.spielzug = 139;
        QCOMPARE(lage.setzen(l), QStringLiteral("Your move: hens. 10 moves left before the draw"));
        QVERIFY2(lage.text().contains(QStringLiteral("Move 139 of 149")), qPrintable(lage.text()));
        spracheSetzen(sprache(QStringLiteral("de")), false);
        QTRY_VERIFY2(lage.text().contains(QStringLiteral("Zug 139 von 149 · Noch 10 Züge bis zum Remis")),
                     qPrintable(lage.text()));
    }
};

QTEST_MAIN(LagefeldTest)
#include "lagefeld_test.moc"
