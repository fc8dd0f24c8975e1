// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window at the end of a game: filing it waits for another program that holds the data folder
// without freezing the window.
#include <QApplication>
#include <QCursor>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <chrono>

#include "dateischicht/dateizugriff.h"
#include "fenster_aufbau.h"
#include "fremde_sperre.h"
#include "versetzen.h"

using namespace fuh;
using namespace fuh::test;

namespace {

// Counts the paint events of a widget that arrive while the busy cursor shows.
class Malzaehler : public QObject {
  public:
    int anzahl = 0;
    bool eventFilter(QObject*, QEvent* e) override {
        const QCursor* c = QApplication::overrideCursor();
        if (e->type() == QEvent::Paint && c && c->shape() == Qt::BusyCursor) ++anzahl;
        return false;
    }
};

} // namespace

class SpielendeFensterTest : public QObject {
    Q_OBJECT
  private slots:
    // Another program holds the data folder while the player's winning move is filed: the window keeps
    // painting with a busy cursor, and one warning names what was not saved.
    void ablegenWartetUndFensterMaltWeiter() {
        Aufbau a({{0, 1, 1, 1}}); // the player has the hens; strength 2, learning, no replies
        Antworter antworter;
        a.aktion("Neu");
        Spiel& s = a.spiel();
        QVERIFY(test::hennenVorDemSieg(s));
        QTRY_VERIFY(!a.fenster->beschaeftigt());

        Malzaehler maler;
        a.brett()->installEventFilter(&maler);
        QTimer uhr; // something to paint meanwhile
        QObject::connect(&uhr, &QTimer::timeout, [&] { a.brett()->update(); });
        uhr.start(20);
        datei::sperrfristSetzen(std::chrono::milliseconds(1500));
        {
            const test::FremdeSperre fremd(a.pfad());
            QVERIFY(fremd.gehalten());
            a.ziehe(feldNummer(4, 3), feldNummer(4, 2));
        }
        datei::sperrfristSetzen(std::chrono::seconds(5));
        uhr.stop();
        QVERIFY(s.endeGefunden());
        QVERIFY(maler.anzahl > 0);
        QVERIFY(QApplication::overrideCursor() == nullptr);
        QTRY_VERIFY(!a.fenster->beschaeftigt());
        QCOMPARE(std::count(antworter.symbole.begin(), antworter.symbole.end(), QMessageBox::Warning), 1);
    }
};

QTEST_MAIN(SpielendeFensterTest)
#include "spielende_fenster_test.moc"
