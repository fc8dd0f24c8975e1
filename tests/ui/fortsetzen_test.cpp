// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// A game continued after the window was closed.
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <csignal>

#include "fenster_aufbau.h"
#include "game/partiedatei.h"
#include "spieldaten/statistikdatei.h"
#include "ui/beendigung.h"

using namespace fuh;
using namespace fuh::test;

class FortsetzenTest : public QObject {
    Q_OBJECT
  private slots:
    void nachDemNeustartFortsetzen() {
        Aufbau a;
        const std::filesystem::path zustand = a.pfad() / "zustand";
        const std::filesystem::path datei = zustand / "partie";
        a.fenster->fortsetzenAnbieten(zustand); // nothing saved: no question
        a.aktion("Neu");
        a.ziehe(24, 17);
        a.fenster->zugTakt();
        const Sicherung vorher = a.spiel().sicherung();

        a.starten(); // the window closes with the game running
        QVERIFY(std::filesystem::exists(datei));
        const auto gespeichert = std::filesystem::file_size(datei);
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            QCOMPARE(box->text(), QStringLiteral("Die letzte Partie fortsetzen?"));
            // While the question is open the file is still there, whole, also when the window's timer
            // ticks meanwhile: killed now, nothing is lost.
            a.fenster->zugTakt();
            QVERIFY(std::filesystem::exists(datei));
            QCOMPARE(std::filesystem::file_size(datei), gespeichert);
            box->button(QMessageBox::Yes)->click();
        });
        a.fenster->fortsetzenAnbieten(zustand);
        QVERIFY(a.spiel().sicherung() == vorher);
        QVERIFY(!std::filesystem::exists(datei));
        bilderPruefen(a);

        // "Nein", here by Escape, drops it; a window without a running game leaves no file.
        a.starten();
        QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        a.fenster->fortsetzenAnbieten(zustand);
        QVERIFY(!a.spiel().laeuft());
        a.starten();
        QVERIFY(!std::filesystem::exists(datei));
    }

    // The session ends the program with a signal: the running game is kept as on "Beenden". (A signal
    // while the next start asks about it is the real program's test, programm_pruefen.)
    void signalBehaeltDiePartie() {
        Aufbau a;
        const std::filesystem::path zustand = a.pfad() / "zustand";
        const std::filesystem::path datei = zustand / "partie";
        a.fenster->fortsetzenAnbieten(zustand);
        a.aktion("Neu");
        a.ziehe(24, 17);
        const Sicherung vorher = a.spiel().sicherung();
        signaleBeendenLassen(*qApp);
        QTimer::singleShot(0, [] { ::raise(SIGTERM); }); // unhandled, it would end the test
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(beendenVerlangt());
        a.starten(); // the window goes as it does when the program ends
        QVERIFY(std::filesystem::exists(datei));
        Partieablage naechster(zustand);
        std::vector<std::string> keine;
        const auto angebot = naechster.holen(keine);
        QVERIFY(angebot.sicherung && *angebot.sicherung == vorher);
        // The application is ending now, and any dialog would return at once; a run of the main loop
        // ends that for the tests that follow.
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QCoreApplication::exec();
    }

    // The computer against itself, shown move by move: continued, it plays on to the end by itself.
    void selbstspielFortsetzen() {
        Aufbau a(std::vector<char>{2, 0, 0, 0}, Tempo::normal);
        const std::filesystem::path zustand = a.pfad() / "zustand";
        a.fenster->fortsetzenAnbieten(zustand);
        a.aktion("Neu");
        QVERIFY(a.spiel().selbstspielLaeuft());
        a.starten();
        a.fenster->tempoSetzen(Tempo::sofort);
        Antworter antworter; // "Ja" to the question, OK to the announcement of the end
        a.fenster->fortsetzenAnbieten(zustand);
        QTRY_VERIFY(a.spiel().endeGefunden());
        QCOMPARE(statistikLesen(a.pfad()).beendet(), int16_t{1});
    }
};

QTEST_MAIN(FortsetzenTest)
#include "fortsetzen_test.moc"
