// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The window's own settings read as untrusted input: a stored size far larger than the screen, a huge
// fenster.conf, a FIFO in its place. (A planted folder link is refused by the real program, see
// programm_pruefen.)
#include <QDataStream>
#include <QScreen>
#include <QTemporaryDir>
#include <QWidget>
#include <QtTest>
#include <sys/stat.h>

#include <fstream>

#include "dateischicht/benutzerordner.h"
#include "ui/brett_fenster.h"
#include "ui/datenordner.h"
#include "ui/fenstergeometrie.h"

using namespace fuh;

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
    void fenstergeometrieLesen() {
        const QRect frei(0, 0, 1024, 768);
        for (const QByteArray& kaputt :
             {QByteArray(), QByteArray("kaputt"), geometrie(0, 0, 0, 100), QByteArray(100000, 'x')})
            QVERIFY(!fenstergeometrie(kaputt, frei));
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

    // fenster.conf: a huge file is not read, a FIFO not opened.
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
        if (alt.isNull())
            qunsetenv("XDG_CONFIG_HOME");
        else
            qputenv("XDG_CONFIG_HOME", alt);
    }
};

QTEST_MAIN(FensterKonfigTest)
#include "fensterkonfig_test.moc"
