// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The saved running game across several windows, a state folder that cannot be written, a quit that
// cannot keep the game, a signal while a finished game waits for the files, and the window's own
// settings file (a size far larger than the screen, a huge file, a planted folder link).
#include <QElapsedTimer>
#include <QFile>
#include <QPushButton>
#include <QScreen>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "dialogs/statistikdatei.h"
#include "fenster_aufbau.h"
#include "fremde_sperre.h"
#include "game/mensch.h"
#include "game/partiedatei.h"
#include "memory/benutzerordner.h"
#include "ui/beendigung.h"
#include "ui/datenordner.h"
#include "ui/fenstergeometrie.h"

using namespace fuh;
using namespace fuh::test;

namespace {

namespace fs = std::filesystem;

QByteArray inhalt(const fs::path& p) {
    QFile f(QString::fromStdString(p.string()));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

std::vector<std::string> namen(const fs::path& ordner) {
    std::vector<std::string> n;
    for (const auto& e : fs::directory_iterator(ordner))
        n.push_back(e.path().filename().string());
    std::sort(n.begin(), n.end());
    return n;
}

// Answers every message box as it opens: the question about the last game with `fortsetzen` ("Ja" or
// "Nein"), the one about quitting with the button named `beenden`, every other box with OK.
class Beantworter {
  public:
    explicit Beantworter(QMessageBox::StandardButton fortsetzen = QMessageBox::Yes,
                         const char* beenden = "abbrechen")
        : beenden_(beenden), fortsetzen_(fortsetzen) {
        QObject::connect(&uhr_, &QTimer::timeout, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            texte.push_back(box->text());
            if (QAbstractButton* antwort = box->button(fortsetzen_)) {
                ++fragen;
                antwort->click();
            } else if (auto* knopf = box->findChild<QPushButton*>(QString::fromLatin1(beenden_))) {
                knopf->click();
            } else {
                box->accept();
            }
        });
        uhr_.start(5);
    }
    int anzahl(const QString& teil) const {
        return static_cast<int>(
            std::count_if(texte.begin(), texte.end(), [&](const QString& t) { return t.contains(teil); }));
    }
    std::vector<QString> texte;
    int fragen = 0;
    const char* beenden_;

  private:
    QMessageBox::StandardButton fortsetzen_;
    QTimer uhr_;
};

// The effective user becomes `nobody` while the object lives, when the tests run as root: root may
// remove files from a folder nobody may write.
struct AlsNiemand {
    AlsNiemand() {
        if (::geteuid() != 0) return;
        aktiv = ::setegid(65534) == 0 && ::seteuid(65534) == 0;
    }
    ~AlsNiemand() {
        if (!aktiv) return;
        static_cast<void>(::seteuid(0));
        static_cast<void>(::setegid(0));
    }
    bool aktiv = false;
};

// The player's game is begun and one hen moved.
void einZug(BrettFenster& f, int von = 24, int nach = 17) {
    f.findChild<QAction*>(QStringLiteral("Neu"))->trigger();
    const auto k = figur_index(f.spiel().stellung(), von);
    QVERIFY(k.has_value());
    f.spiel().platz_DragDrop(nach, *k);
    f.Timer1_Timer();
}

// The player's hens against the computer's foxes until the game ends.
void zuEndeSpielen(Aufbau& a, uint32_t seed) {
    Zufall mensch(seed);
    for (int i = 0; i < 400 && a.spiel().laeuft(); ++i) {
        menschZieht(a.spiel(), mensch);
        a.fenster->Timer1_Timer();
    }
    QVERIFY(a.spiel().endeGefunden());
}

// What QWidget::saveGeometry writes, with rectangles of our choice (left, top, width, height).
QByteArray geometrie(qint64 x, qint64 y, qint64 b, qint64 h, bool maximiert = false) {
    QByteArray daten;
    QDataStream aus(&daten, QIODevice::WriteOnly);
    aus.setVersion(QDataStream::Qt_4_0);
    auto rechteck = [&] {
        aus << qint32(x) << qint32(y) << qint32(x + b - 1) << qint32(y + h - 1);
    };
    aus << quint32(0x1D9D0CB) << quint16(3) << quint16(0);
    rechteck();
    rechteck();
    aus << qint32(0) << quint8(maximiert ? 2 : 0) << quint8(0) << qint32(1024);
    rechteck();
    return daten;
}

} // namespace

class PartieFensterTest : public QObject {
    Q_OBJECT
  private slots:
    // Case 1 of issue 24: window A is open without a game while window B plays and goes; then A goes.
    void einLeeresFensterLoeschtKeinFremdesSpiel() {
        Beantworter beantworter;
        Aufbau a;
        const fs::path zustand = a.pfad() / "zustand";
        a.fenster->fortsetzenAnbieten(zustand);
        {
            BrettFenster b(a.pfad(), kStartzeit + 60);
            b.timer1().stop();
            b.fortsetzenAnbieten(zustand);
            einZug(b);
        }
        const QByteArray vonB = inhalt(zustand / "partie");
        QVERIFY(!vonB.isEmpty());
        a.fenster.reset();
        QCOMPARE(inhalt(zustand / "partie"), vonB);

        // Two windows with running games: the second to go keeps both.
        a.starten();
        a.fenster->fortsetzenAnbieten(zustand); // "Ja": A goes on with B's game
        QCOMPARE(beantworter.fragen, 1);
        QVERIFY(a.spiel().laeuft());
        const Sicherung vonA = a.spiel().sicherung();
        Sicherung vonC;
        {
            BrettFenster c(a.pfad(), kStartzeit + 120);
            c.timer1().stop();
            c.fortsetzenAnbieten(zustand);
            QCOMPARE(beantworter.fragen, 1); // nothing left to offer
            einZug(c, 23, 16);
            vonC = c.spiel().sicherung();
        }
        a.fenster.reset();
        QCOMPARE(namen(zustand), (std::vector<std::string>{"partie", "partie-2"}));
        std::vector<std::string> keine;
        Partieablage erste(zustand), zweite(zustand);
        const auto e = erste.holen(keine);
        const auto z = zweite.holen(keine);
        QVERIFY(e.sicherung && z.sicherung);
        QVERIFY(*e.sicherung == vonC);
        QVERIFY(*z.sicherung == vonA);
    }

    // Case 2: a state folder nobody may write. The game taken over is not offered again and is never
    // filed twice; the player is told once.
    void nichtEntfernbarWirdNurEinmalAbgelegt() {
        AlsNiemand niemand;
        Beantworter beantworter;
        Aufbau a({{0, 0, 0, 0}});
        const fs::path zustand = a.pfad() / "zustand";
        a.fenster->fortsetzenAnbieten(zustand);
        einZug(*a.fenster);
        a.starten();
        QVERIFY(fs::exists(zustand / "partie"));
        fs::permissions(zustand, fs::perms::owner_read | fs::perms::owner_exec);
        if (::access(zustand.c_str(), W_OK) == 0) QSKIP("the folder stays writable (root without nobody)");

        a.fenster->fortsetzenAnbieten(zustand); // "Ja"
        QCOMPARE(beantworter.fragen, 1);
        QCOMPARE(beantworter.anzahl(QStringLiteral("kann nicht entfernt werden")), 1);
        zuEndeSpielen(a, 5);
        QCOMPARE(statistikLesen(a.pfad()).beendet(), int16_t{1});
        for (int start = 0; start < 3; ++start) {
            a.starten();
            a.fenster->fortsetzenAnbieten(zustand);
        }
        QCOMPARE(beantworter.fragen, 1);
        QCOMPARE(beantworter.anzahl(QStringLiteral("kann nicht entfernt werden")), 1);
        QCOMPARE(statistikLesen(a.pfad()).beendet(), int16_t{1});
        QCOMPARE(statistikLesen(a.pfad()).gestartet(), int16_t{1});
        a.fenster.reset();
        fs::permissions(zustand, fs::perms::owner_all);
    }

    // Case 5: "Beenden" or the close button while the game cannot be kept asks first.
    void beendenOhneSicherungFragt() {
        Aufbau a;
        std::ofstream(a.pfad() / "blockiert") << "x";
        Beantworter beantworter(QMessageBox::Yes, "abbrechen");
        a.fenster->fortsetzenAnbieten(a.pfad() / "blockiert" / "zustand");
        QCOMPARE(beantworter.anzahl(QStringLiteral("ist kein Ordner")), 1); // said at the start
        einZug(*a.fenster);
        QVERIFY(!a.fenster->close());
        QVERIFY(a.fenster->isVisible());
        QCOMPARE(beantworter.anzahl(QStringLiteral("Die laufende Partie kann nicht gespeichert werden")), 1);
        // The menu's "Beenden" asks the same; "Abbrechen" goes on playing.
        QTimer::singleShot(0, [&] { a.aktion("Beenden"); });
        QTimer::singleShot(300, [] { QCoreApplication::exit(7); });
        QCOMPARE(QCoreApplication::exec(), 7);
        QCOMPARE(beantworter.anzahl(QStringLiteral("Die laufende Partie kann nicht gespeichert werden")), 2);
        beantworter.beenden_ = "trotzdemBeenden";
        QTimer::singleShot(0, [&] { a.aktion("Beenden"); });
        QTimer::singleShot(3000, [] { QCoreApplication::exit(7); });
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(beantworter.anzahl(QStringLiteral("Die laufende Partie kann nicht gespeichert werden")), 3);
        QCOMPARE(inhalt(a.pfad() / "blockiert"), QByteArray("x"));
    }

    // Case 5: a full disk (here the file size limit) is named in the question; once it is gone, quitting
    // keeps the game without asking.
    void volleFestplatteWirdGenannt() {
        Aufbau a;
        Beantworter beantworter(QMessageBox::Yes, "abbrechen");
        const fs::path zustand = a.pfad() / "zustand";
        a.fenster->fortsetzenAnbieten(zustand);
        einZug(*a.fenster);
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit alt{};
        ::getrlimit(RLIMIT_FSIZE, &alt);
        rlimit klein = alt;
        klein.rlim_cur = 16;
        ::setrlimit(RLIMIT_FSIZE, &klein);
        const bool geschlossen = a.fenster->close();
        ::setrlimit(RLIMIT_FSIZE, &alt);
        QVERIFY(!geschlossen);
        QCOMPARE(beantworter.anzahl(QString::fromLocal8Bit(std::strerror(EFBIG))), 1);
        QVERIFY(a.fenster->close());
        QCOMPARE(beantworter.texte.size(), std::size_t{1});
        QVERIFY(fs::exists(zustand / "partie"));
    }

    // Case 4: a stored size of 2·10^9 pixels starts at once, at the screen's size.
    void riesigeFenstergroesseWirdEingepasst() {
        Aufbau a;
        const QRect frei = a.fenster->screen()->availableGeometry();
        a.fenster.reset();
        fensterEinstellungen().setValue(QStringLiteral("geometrie"),
                                        geometrie(0, 0, 2000000000, 2000000000));
        QElapsedTimer uhr;
        uhr.start();
        a.starten();
        QVERIFY2(uhr.elapsed() < 1000, qPrintable(QString::number(uhr.elapsed())));
        QVERIFY(a.fenster->width() <= frei.width());
        QVERIFY(a.fenster->height() <= frei.height());
        QVERIFY(a.fenster->width() >= frei.width() / 2);
        // Nonsense is dropped: the first start's size.
        a.fenster.reset();
        fensterEinstellungen().setValue(QStringLiteral("geometrie"), geometrie(10, 10, -5, 300));
        a.starten();
        QVERIFY(a.fenster->width() > 0 && a.fenster->width() <= frei.width());
    }

    void fenstergeometrieLesen() {
        const QRect frei(0, 0, 1024, 768);
        QVERIFY(!fenstergeometrie(QByteArray(), frei));
        QVERIFY(!fenstergeometrie(QByteArray("kaputt"), frei));
        QVERIFY(!fenstergeometrie(geometrie(0, 0, 0, 100), frei));
        QVERIFY(!fenstergeometrie(QByteArray(100000, 'x'), frei));
        const auto passt = fenstergeometrie(geometrie(10, 20, 300, 200), frei);
        QVERIFY(passt && passt->unveraendert);
        const auto gross = fenstergeometrie(geometrie(-2000000000, 5, 2000000000, 2000000000, true), frei);
        QVERIFY(gross && !gross->unveraendert);
        QCOMPARE(gross->normal, frei);
        QVERIFY(gross->maximiert);
        const auto daneben = fenstergeometrie(geometrie(5000, 5000, 300, 200), frei);
        QVERIFY(daneben);
        QCOMPARE(daneben->normal, QRect(724, 568, 300, 200));
        // What the window itself saves fits and is applied as it is.
        QWidget w;
        w.resize(320, 240);
        const auto echt = fenstergeometrie(w.saveGeometry(), w.screen()->availableGeometry());
        QVERIFY(echt && echt->unveraendert);
    }

    // Case 4 and 3 for fenster.conf: a huge file is not read, a FIFO not opened, a planted folder link
    // not followed.
    void fensterEinstellungenWerdenGeprueft() {
        QTemporaryDir konfig;
        const fs::path basis = konfig.path().toStdString();
        const QByteArray alt = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", konfig.path().toLocal8Bit());
        const fs::path datei = basis / kProgrammordner / "fenster.conf";
        QVERIFY(fensterEinstellungenEinrichten().isEmpty()); // the folder is made
        QVERIFY(fs::is_directory(datei.parent_path()));
        std::ofstream(datei) << "[General]\n" << std::string(200000, 'x') << "\n";
        QStringList w = fensterEinstellungenEinrichten();
        QCOMPARE(w.size(), 1);
        QVERIFY(w.front().contains(QStringLiteral("größer als 16 KB")));
        QVERIFY(!fs::exists(datei));
        QVERIFY(::mkfifo(datei.c_str(), 0600) == 0);
        w = fensterEinstellungenEinrichten();
        QCOMPARE(w.size(), 1);
        fensterEinstellungen().setValue(QStringLiteral("tempo"), QStringLiteral("schnell")); // never waits
        fensterEinstellungen().sync();
        QVERIFY(fs::is_fifo(datei));
        fs::remove(datei);
        if (::geteuid() == 0) {
            // Another user's link where the folder should be, in a folder everyone may write.
            const fs::path geteilt = basis / "geteilt";
            const fs::path opfer = basis / "opfer";
            fs::create_directories(geteilt);
            fs::create_directories(opfer);
            ::chmod(geteilt.c_str(), 01777);
            fs::create_directory_symlink(opfer, geteilt / kProgrammordner);
            QCOMPARE(::lchown((geteilt / kProgrammordner).c_str(), 4242, 4242), 0);
            qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(geteilt.string()));
            w = fensterEinstellungenEinrichten();
            QCOMPARE(w.size(), 1);
            QVERIFY(w.front().contains(QStringLiteral("symbolische Verknüpfung")));
            fensterEinstellungen().setValue(QStringLiteral("tempo"), QStringLiteral("schnell"));
            fensterEinstellungen().sync();
            QVERIFY(fs::is_empty(opfer));
        }
        if (alt.isNull())
            qunsetenv("XDG_CONFIG_HOME");
        else
            qputenv("XDG_CONFIG_HOME", alt);
    }

    // Case 3 for the saved game: the state folder a planted link; said once, nothing read or written.
    void fremderLinkImZustandsordner() {
        if (::geteuid() != 0) QSKIP("planting another user's link needs root");
        Beantworter beantworter;
        Aufbau a;
        const fs::path geteilt = a.pfad() / "geteilt";
        const fs::path opfer = a.pfad() / "opfer";
        fs::create_directories(geteilt);
        ::chmod(geteilt.c_str(), 01777);
        a.fenster->fortsetzenAnbieten(opfer);
        einZug(*a.fenster);
        a.starten(); // the victim's own game, in the victim's folder
        const QByteArray vorher = inhalt(opfer / "partie");
        QVERIFY(!vorher.isEmpty());
        fs::create_directory_symlink(opfer, geteilt / kProgrammordner);
        QCOMPARE(::lchown((geteilt / kProgrammordner).c_str(), 4242, 4242), 0);
        a.fenster->fortsetzenAnbieten(geteilt / kProgrammordner);
        QCOMPARE(beantworter.fragen, 0);
        QCOMPARE(beantworter.anzahl(QStringLiteral("symbolische Verknüpfung")), 1);
        einZug(*a.fenster);
        QVERIFY(!a.fenster->close()); // "Abbrechen": the game cannot be kept there
        a.fenster.reset();
        QCOMPARE(namen(opfer), std::vector<std::string>{"partie"});
        QCOMPARE(inhalt(opfer / "partie"), vorher);
    }

    // Case 5: a signal while the finished game waits for the data folder: the game is kept and filed at
    // the next start, once. (Last: the signal marks the application as ending.)
    void signalWaehrendDesAblegens() {
        Beantworter beantworter;
        Aufbau a({{0, 0, 0, 0}});
        const fs::path zustand = a.pfad() / "zustand";
        a.fenster->fortsetzenAnbieten(zustand);
        a.aktion("Neu");
        signaleBeendenLassen(*qApp);
        datei::sperrfristSetzen(std::chrono::milliseconds(400));
        {
            const FremdeSperre fremd(a.pfad());
            QVERIFY(fremd.gehalten());
            // The busy cursor shows the wait: the signal comes then.
            bool gesendet = false;
            QTimer wache;
            QObject::connect(&wache, &QTimer::timeout, [&] {
                if (!gesendet && QApplication::overrideCursor()) {
                    gesendet = true;
                    ::raise(SIGTERM);
                }
            });
            wache.start(10);
            zuEndeSpielen(a, 7);
            QVERIFY(gesendet);
        }
        datei::sperrfristSetzen(std::chrono::milliseconds(5000));
        QVERIFY(beendenVerlangt());
        QVERIFY(a.spiel().offeneAblage());
        QCOMPARE(statistikLesen(a.pfad()).beendet(), int16_t{0});
        a.fenster.reset(); // the program ends
        QVERIFY(fs::exists(zustand / "partie"));

        a.starten();
        a.fenster->fortsetzenAnbieten(zustand); // filed, without a question
        QCOMPARE(beantworter.fragen, 0);
        QCOMPARE(statistikLesen(a.pfad()).beendet(), int16_t{1});
        QVERIFY(!fs::exists(zustand / "partie"));
        a.starten();
        a.fenster->fortsetzenAnbieten(zustand);
        QCOMPARE(statistikLesen(a.pfad()).beendet(), int16_t{1});
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QCoreApplication::exec();
    }
};

QTEST_MAIN(PartieFensterTest)
#include "partie_fenster_test.moc"
