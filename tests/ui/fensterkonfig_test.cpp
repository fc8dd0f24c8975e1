// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The window's own settings read as untrusted input: a stored size far larger than the screen, a huge
// fenster.conf, a FIFO in its place, a folder link planted by another user.
#include <QDataStream>
#include <QScreen>
#include <QStatusBar>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "dateischicht/benutzerordner.h"
#include "fenster_aufbau.h"
#include "ui/datenordner.h"
#include "ui/fenstergeometrie.h"
#include "ui/sprache.h"
#include "ui/statustext.h"

using namespace fuh;
using namespace fuh::test;

namespace {

namespace fs = std::filesystem;

// What QWidget::saveGeometry writes, with rectangles of our choice (left, top, width, height).
QByteArray geometrie(qint64 x, qint64 y, qint64 b, qint64 h, bool maximiert = false) {
    QByteArray daten;
    QDataStream aus(&daten, QIODevice::WriteOnly);
    aus.setVersion(QDataStream::Qt_4_0);
    auto rechteck = [&] { aus << qint32(x) << qint32(y) << qint32(x + b - 1) << qint32(y + h - 1); };
    aus << quint32(0x1D9D0CB) << quint16(3) << quint16(0);
    rechteck();
    rechteck();
    aus << qint32(0) << quint8(maximiert ? 2 : 0) << quint8(0) << qint32(1024);
    rechteck();
    return daten;
}

} // namespace

class FensterKonfigTest : public QObject {
    Q_OBJECT
  private slots:
    // A stored size of 2·10^9 pixels is fitted into the screen before the window is first shown.
    void riesigeFenstergroesseWirdEingepasst() {
        Aufbau a;
        const QRect frei = a.fenster->screen()->availableGeometry();
        a.fenster.reset();
        fensterEinstellungen().setValue(QStringLiteral("geometrie"), geometrie(0, 0, 2000000000, 2000000000));
        a.starten();
        QVERIFY(a.fenster->width() <= frei.width());
        QVERIFY(a.fenster->height() <= frei.height());
        QVERIFY(a.fenster->width() >= frei.width() / 2);
    }

    // The first start's window is wide enough for the whole text of every status field, in either
    // language and with either side played, also once a move has brought the points, and with the
    // large font of a player with low vision; and it stays on the screen. With the normal font, a
    // take-back's field fits beside them too (with the large one, the test's screen is too narrow).
    void ersterStartZeigtJedesStatusfeldGanz() {
        const QFont normal = QApplication::font();
        QFont gross = normal;
        gross.setPointSizeF(normal.pointSizeF() * 1.5);
        for (const QFont& schrift : {normal, gross})
            for (const Sprache& sprache : sprachen())
                for (const char seite : {0, 1}) {
                    QApplication::setFont(schrift);
                    spracheSetzen(sprache, false);
                    Aufbau a(std::vector<char>{seite, 2, 1, 0});
                    const QRect frei = a.fenster->screen()->availableGeometry();
                    QVERIFY(a.fenster->width() <= frei.width() && a.fenster->height() <= frei.height());
                    a.aktion("Neu");
                    if (seite == 0) a.ziehe(24, 17);
                    a.fenster->zugTakt(); // the computer's move
                    QTRY_VERIFY(!a.fenster->beschaeftigt());
                    int felder = 3;
                    if (seite == 0 && schrift == normal) {
                        a.aktion("zurueck");
                        QTRY_VERIFY(!a.fenster->beschaeftigt());
                        felder = 4;
                    }
                    for (int i = 1; i <= felder; ++i) {
                        const auto* feld =
                            a.fenster->findChild<Statustext*>(QStringLiteral("panel%1").arg(i));
                        if (i != 3 || felder == 3) QVERIFY(!feld->text().isEmpty());
                        QCOMPARE(feld->sichtbarerText(), feld->text());
                    }
                }
        spracheSetzen(sprachen().front(), false);
        QApplication::setFont(normal);
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

    // fenster.conf: a huge file is not read, a FIFO not opened, a planted folder link not followed.
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
};

QTEST_MAIN(FensterKonfigTest)
#include "fensterkonfig_test.moc"
