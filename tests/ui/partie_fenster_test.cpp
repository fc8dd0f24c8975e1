// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The running game kept when the window closes and offered at the next start; a state folder that cannot
// be written, a quit that cannot keep the game, a signal while a finished game waits for the data folder
// another program holds.
#include <QCursor>
#include <QMessageBox>
#include <QTimer>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

#include "fenster_aufbau.h"
#include "fremde_sperre.h"
#include "game/mensch.h"
#include "game/partiedatei.h"
#include "spieldaten/statistikdatei.h"
#include "ui/beendigung.h"
#include "ui/datenordner.h"

using namespace fuh;
using namespace fuh::test;

namespace fs = std::filesystem;

namespace {

// The effective user becomes `nobody` while the object lives, when the tests run as root: root may
// remove files from a folder nobody may write.
struct AlsNiemand {
    const bool aktiv = ::geteuid() == 0 && ::setegid(65534) == 0 && ::seteuid(65534) == 0;
    ~AlsNiemand() {
        if (!aktiv) return;
        static_cast<void>(::seteuid(0));
        static_cast<void>(::setegid(0));
    }
};

// The player's game is begun and one hen moved.
void einZug(BrettFenster& f, int von = 24, int nach = 17) {
    f.findChild<QAction*>(QStringLiteral("Neu"))->trigger();
    const auto k = figur_index(f.spiel().stellung(), von);
    QVERIFY(k.has_value());
    f.spiel().abgelegt(nach, *k);
    f.zugTakt();
}

// The player's hens against the computer's foxes until the game ends.
void zuEndeSpielen(Aufbau& a, uint32_t seed) {
    Zufall mensch(seed);
    for (int i = 0; i < 5000 && a.spiel().laeuft(); ++i) {
        if (a.spiel().menschAmZug()) menschZieht(a.spiel(), mensch);
        a.fenster->zugTakt(); // nothing while the last move is still being shown
        if (a.spiel().computerAmZug()) QTest::qWait(2);
    }
    QVERIFY(a.spiel().endeGefunden());
}

// Lets the main loop run once: the application ending after a signal then ends for the tests that
// follow, since any dialog would return at once meanwhile.
void schleifeEinmal() {
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
}

// Games finished and started, as the statistics count them.
std::pair<int, int> partien(Aufbau& a) {
    const auto s = statistikLesen(a.pfad());
    return {s.beendet(), s.gestartet()};
}

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

class PartieFensterTest : public QObject {
    Q_OBJECT
  private slots:
    // A game continued after the window was closed.
    void nachDemNeustartFortsetzen() {
        Aufbau a;
        const fs::path datei = a.zustand() / "partie";
        a.anbieten(); // nothing saved: no question
        a.ersterZug();
        a.fenster->zugTakt();
        const Sicherung vorher = a.spiel().sicherung();

        a.starten(); // the window closes with the game running
        QVERIFY(fs::exists(datei));
        const auto gespeichert = fs::file_size(datei);
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            QCOMPARE(box->text(), QStringLiteral("Die letzte Partie fortsetzen?"));
            // While the question is open the file is still there, whole, also when the window's timer
            // ticks meanwhile: killed now, nothing is lost.
            a.fenster->zugTakt();
            QVERIFY(fs::exists(datei));
            QCOMPARE(fs::file_size(datei), gespeichert);
            box->button(QMessageBox::Yes)->click();
        });
        a.anbieten();
        QVERIFY(a.spiel().sicherung() == vorher);
        QVERIFY(!fs::exists(datei));
        bilderPruefen(a);

        // "Nein", here by Escape, drops it; a window without a running game leaves no file.
        a.starten();
        QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        a.anbieten();
        QVERIFY(!a.spiel().laeuft());
        a.starten();
        QVERIFY(!fs::exists(datei));
    }

    // The session ends the program with a signal: the running game is kept as on "Beenden". (A signal
    // while the next start asks about it is the real program's test, programm_pruefen.)
    void signalBehaeltDiePartie() {
        Aufbau a;
        a.anbieten();
        a.ersterZug();
        const Sicherung vorher = a.spiel().sicherung();
        signaleBeendenLassen(*qApp);
        QTimer::singleShot(0, [] { ::raise(SIGTERM); }); // unhandled, it would end the test
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(beendenVerlangt());
        a.starten(); // the window goes as it does when the program ends
        std::vector<std::string> keine;
        const auto angebot = Partieablage(a.zustand()).holen(keine);
        QVERIFY(angebot.sicherung && *angebot.sicherung == vorher);
        schleifeEinmal();
    }

    // The computer against itself, shown move by move: continued, it plays on to the end by itself.
    void selbstspielFortsetzen() {
        Aufbau a(std::vector<char>{2, 0, 0, 0}, Tempo::normal);
        a.anbieten();
        a.aktion("Neu");
        QVERIFY(a.spiel().selbstspielLaeuft());
        a.starten();
        a.fenster->tempoSetzen(Tempo::sofort);
        Antworter antworter; // "Ja" to the question, OK to the announcement of the end
        a.anbieten();
        QTRY_VERIFY(a.spiel().endeGefunden());
        QCOMPARE(statistikLesen(a.pfad()).beendet(), int16_t{1});
    }

    // A state folder nobody may write. The game taken over is not offered again and is never
    // filed twice; the player is told once.
    void nichtEntfernbarWirdNurEinmalAbgelegt() {
        AlsNiemand niemand;
        Antworter antworter;
        Aufbau a({{0, 0, 0, 0}});
        const fs::path zustand = a.zustand();
        a.anbieten();
        einZug(*a.fenster);
        a.starten();
        QVERIFY(fs::exists(zustand / "partie"));
        fs::permissions(zustand, fs::perms::owner_read | fs::perms::owner_exec);
        if (::faccessat(AT_FDCWD, zustand.c_str(), W_OK, AT_EACCESS) == 0)
            QSKIP("the folder stays writable (root without nobody)");

        const auto gefragtUndGesagt = [&] {
            return std::pair{antworter.fragen,
                             antworter.anzahl(QStringLiteral("kann nicht entfernt werden"))};
        };
        a.anbieten(); // "Ja"
        QCOMPARE(gefragtUndGesagt(), std::pair(1, 1));
        zuEndeSpielen(a, 5);
        a.starten();
        a.anbieten();
        QCOMPARE(gefragtUndGesagt(), std::pair(1, 1));
        QCOMPARE(partien(a), std::pair(1, 1));
        // Writable again: the marked file goes at the next start, unasked, and with it the mark.
        fs::permissions(zustand, fs::perms::owner_all);
        a.starten();
        a.anbieten();
        QCOMPARE(antworter.fragen, 1);
        QVERIFY(!fs::exists(zustand / "partie"));
        QVERIFY(!fensterEinstellungen().contains(QStringLiteral("uebernommen")));
    }

    // "Beenden" or the close button while the game cannot be kept asks first.
    void beendenOhneSicherungFragt() {
        Aufbau a;
        std::ofstream(a.pfad() / "blockiert") << "x";
        Antworter antworter;
        a.fenster->fortsetzenAnbieten(a.pfad() / "blockiert" / "zustand");
        QCOMPARE(antworter.anzahl(QStringLiteral("ist kein Ordner")), 1); // said at the start
        einZug(*a.fenster);
        QVERIFY(!a.fenster->close());
        QVERIFY(a.fenster->isVisible());
        QCOMPARE(antworter.anzahl(QStringLiteral("Die laufende Partie kann nicht gespeichert werden")), 1);
        // The menu's "Beenden" asks the same; "Trotzdem beenden" ends the program.
        antworter.beenden_ = "trotzdemBeenden";
        QTimer::singleShot(0, [&] { a.aktion("Beenden"); });
        QTimer::singleShot(3000, [] { QCoreApplication::exit(7); });
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(antworter.anzahl(QStringLiteral("Die laufende Partie kann nicht gespeichert werden")), 2);
        QCOMPARE(inhalt(a.pfad() / "blockiert"), QByteArray("x"));
    }

    // A full disk (here the file size limit) is named in the question; once it is gone, quitting
    // keeps the game without asking.
    void volleFestplatteWirdGenannt() {
        Aufbau a;
        Antworter antworter;
        a.anbieten();
        einZug(*a.fenster);
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit alt{};
        ::getrlimit(RLIMIT_FSIZE, &alt);
        const rlimit klein{16, alt.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &klein);
        const bool geschlossen = a.fenster->close();
        ::setrlimit(RLIMIT_FSIZE, &alt);
        QVERIFY(!geschlossen);
        QCOMPARE(antworter.anzahl(QString::fromLocal8Bit(std::strerror(EFBIG))), 1);
        QVERIFY(a.fenster->close());
        QCOMPARE(antworter.texte.size(), std::size_t{1});
        QVERIFY(fs::exists(a.zustand() / "partie"));
    }

    // Another program holds the data folder while the finished game is filed: the window keeps painting
    // with a busy cursor, and a signal then keeps the game, filed at the next start, once. (Last: the
    // signal marks the application as ending.)
    void signalWaehrendDesAblegens() {
        Antworter antworter;
        Aufbau a({{0, 0, 0, 0}});
        const fs::path datei = a.zustand() / "partie";
        a.anbieten();
        a.aktion("Neu");
        signaleBeendenLassen(*qApp);
        datei::sperrfristSetzen(std::chrono::milliseconds(400));
        {
            const FremdeSperre fremd(a.pfad());
            QVERIFY(fremd.gehalten());
            // The busy cursor shows the wait; once the board has been painted meanwhile, the signal comes.
            Malzaehler maler;
            a.brett()->installEventFilter(&maler);
            bool gesendet = false;
            QTimer wache;
            QObject::connect(&wache, &QTimer::timeout, [&] {
                a.brett()->update();
                if (!gesendet && maler.anzahl > 0) gesendet = ::raise(SIGTERM) == 0;
            });
            wache.start(10);
            zuEndeSpielen(a, 7);
            QVERIFY(gesendet);
        }
        datei::sperrfristSetzen(std::chrono::milliseconds(5000));
        QVERIFY(beendenVerlangt());
        QVERIFY(a.spiel().offeneAblage());
        const int gestartet = partien(a).second;
        QCOMPARE(partien(a).first, 0);
        a.fenster.reset(); // the program ends
        QVERIFY(fs::exists(datei));

        a.starten();
        a.anbieten(); // filed, without a question
        QCOMPARE(antworter.fragen, 0);
        QCOMPARE(partien(a), std::pair(1, gestartet));
        QVERIFY(!fs::exists(datei));
        schleifeEinmal();
    }
};

QTEST_MAIN(PartieFensterTest)
#include "partie_fenster_test.moc"
