// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window at the end of a game: a game the computer plays itself ends cleanly, and filing a
// game waits for another program that holds the data folder without freezing the window.
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
    void ganzePartieDesPc() {
        Aufbau a({{2, 0, 0, 0}});
        Antworter antworter;
        a.aktion("Neu");
        QVERIFY(a.spiel().endeGefunden());
        QVERIFY(a.spiel().spielzug() > 10);
        QVERIFY(!a.spiel().ziehbar() || a.spiel().spielzug() >= kZugbegrenzung);
        QVERIFY(!antworter.texte.empty()); // the result was announced
        QVERIFY(!a.hinweisSichtbar("f_zug") && !a.hinweisSichtbar("h_zug"));
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        bilderPruefen(a);
    }

    // Another program holds the data folder while the player's winning move is filed: the window keeps
    // painting with a busy cursor, and one warning names both files.
    void ablegenWartetUndFensterMaltWeiter() {
        Aufbau a({{0, 1, 1, 1}}); // the player has the hens; strength 2, learning, no replies
        Antworter antworter;
        a.aktion("Neu");
        Spiel& s = a.spiel();
        auto ziehe = [&](int vx, int vy, int nx, int ny) {
            const auto k = figur_index(s.stellung(), feldNummer(vx, vy));
            QVERIFY(k.has_value());
            s.abgelegt(feldNummer(nx, ny), *k);
        };
        // The foxes are put aside; nine hens walk into the target area, all but the last step.
        QVERIFY(test::versetzen(s, feldNummer(2, 2), feldNummer(0, 2)));
        QVERIFY(test::versetzen(s, feldNummer(4, 2), feldNummer(6, 2)));
        for (int x : {2, 3, 4})
            for (int start = 3; start <= 5; ++start)
                for (int y = start; y > start - 3; --y)
                    if (x != 4 || start != 5 || y != 3) ziehe(x, y, x, y - 1);
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
        const auto warnung =
            std::find(antworter.symbole.begin(), antworter.symbole.end(), QMessageBox::Warning);
        const QString text = antworter.texte[static_cast<std::size_t>(warnung - antworter.symbole.begin())];
        QVERIFY2(text.contains(QStringLiteral("„QZ2.DAT“ und „QZ.sta“")), qPrintable(text));
    }
};

QTEST_MAIN(SpielendeFensterTest)
#include "spielende_fenster_test.moc"
