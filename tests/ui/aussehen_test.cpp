// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// How the board looks and sounds, and the window's own settings: the themes, the choice of one in the
// menu, the sounds of a game; a stored window size far larger than the screen, and fenster.conf read as
// untrusted input (a huge file, a FIFO in its place; a planted folder link is refused by the real
// program, see programm_pruefen).
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>

#include <fstream>

#include "dateischicht/benutzerordner.h"
#include "fenster_aufbau.h"
#include "ui/datenordner.h"
#include "ui/fenstergeometrie.h"
#include "ui/klaenge.h"
#include "ui/statustext.h"
#include "ui/thema.h"

using namespace fuh;
using namespace fuh::test;

namespace fs = std::filesystem;

namespace {

// The colour of the board's ground, at its top left corner where no line or point is.
QColor grund(Aufbau& a) {
    const QRect r = a.brett()->brettRechteck();
    return a.brett()->grab().toImage().pixelColor(r.topLeft() + QPoint(12, 12));
}

bool gruen(const QColor& c) {
    return c.green() > c.red() + 40 && c.green() > c.blue() + 40;
}

void schreibe(const QString& pfad, const QByteArray& inhalt) {
    QFile f(pfad);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(inhalt);
}

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

class AussehenTest : public QObject {
    Q_OBJECT
  private slots:
    // A theme of one's own is a folder: what it leaves out comes from the classic board, and a folder
    // without its pictures is no theme. Points given in part or out of the picture are not taken; a
    // theme's own points move the pieces and targets there at once.
    void einOrdnerIstEinThema() {
        QTemporaryDir wurzel;
        for (const char* name : {"rot", "halb", "weit"})
            QDir(wurzel.path()).mkpath(QLatin1String(name));
        QFile::copy(QStringLiteral(":/themen/klassisch/brett.svg"),
                    wurzel.filePath(QStringLiteral("rot/b.svg")));
        const QByteArray bilder = "[Thema]\nBrett=../rot/b.svg\nFuchs=../rot/b.svg\nHenne=../rot/b.svg\n";
        schreibe(wurzel.filePath(QStringLiteral("rot/thema.ini")),
                 bilder + "Name=Rot\nRand=#ff0000\nStrich=99\n[Punkte]\nY=10 20 30 40 50 60 401\n"
                          "X0=1 2 3 4 5 6 7\nFigur=20\n");
        schreibe(wurzel.filePath(QStringLiteral("halb/thema.ini")), "[Thema]\nBrett=fehlt.svg\n");
        QByteArray weit = bilder + "[Punkte]\nY=20 80 140 200 260 320 380\nFigur=40\n";
        for (int zeile = 0; zeile < 7; ++zeile)
            weit += "X" + QByteArray::number(zeile) + "=20 80 140 200 260 320 380\n";
        schreibe(wurzel.filePath(QStringLiteral("weit/thema.ini")), weit);
        const std::vector<Thema> liste = themen(wurzel.path());
        QCOMPARE(liste.size(), 3u); // the game's own classic board, "rot" and "weit"
        const Thema &rot = liste[1], &klassisch = liste.front();
        QVERIFY(std::tuple(rot.name, rot.rand, rot.zugNach, rot.strich, rot.punkte, rot.figur) ==
                std::tuple(QStringLiteral("Rot"), QColor(Qt::red), klassisch.zugNach, 3.0, klassisch.punkte,
                           klassisch.figur));

        BrettFlaeche brett([] { return true; });
        brett.resize(BrettFlaeche::kSeite, BrettFlaeche::kSeite);
        Stellung s;
        s.grundstellung();
        brett.aufstellen(s);
        const int mitte = feldNummer(3, 3);
        QCOMPARE(brett.figur(figur_index(s, mitte).value_or(0))->geometry(), brett.feldRechteck(mitte));
        brett.themaSetzen(liste[2]);
        QCOMPARE(brett.feldRechteck(mitte), QRect(180, 180, 40, 40));
        for (int k = 0; k < kFiguren; ++k)
            QCOMPARE(brett.figur(k)->geometry(), brett.feldRechteck(s.figurplatz[k]));
        QCOMPARE(brett.platzAn(QPoint(219, 200)), mitte);
    }

    // The theme and the sound chosen in the menu apply at once and after a restart; an unknown theme
    // gives the classic board. Every mark of the high-contrast board is opaque and stands out from its
    // white ground.
    void themaUndTonGeltenSofortUndBleiben() {
        const Thema k = thema(QStringLiteral("kontrast"));
        for (const QColor& c : {k.zugVon, k.zugNach, k.tippLinie, k.tippRing})
            QVERIFY(c.alpha() == 255 && c.lightnessF() < 0.45);
        QCOMPARE(thema(QStringLiteral("gibt-es-nicht")).id, QStringLiteral("klassisch"));
        Aufbau a;
        fensterEinstellungen().setValue(QStringLiteral("thema"), QStringLiteral("kontrast"));
        a.starten();
        QVERIFY(!gruen(grund(a)) && grund(a).lightnessF() > 0.9);
        a.aktion("thema_dunkel");
        QVERIFY(grund(a).lightnessF() < 0.25);
        QCOMPARE(a.brett()->figur(0)->datei(), thema(QStringLiteral("klassisch")).fuchs);
        a.aktion("thema_klassisch");
        QSignalSpy gespielt(a.fenster->findChild<Klaenge*>(), &Klaenge::gespielt);
        a.ersterZug();
        a.fenster->zugTakt();
        QCOMPARE(gespielt.size(), 2); // the hen set down, the fox's reply
        a.aktion("ton");

        a.starten();
        QVERIFY(gruen(grund(a)));
        QVERIFY(!a.fenster->findChild<Klaenge*>()->an());
        QSignalSpy still(a.fenster->findChild<Klaenge*>(), &Klaenge::gespielt);
        a.ersterZug();
        QCOMPARE(still.size(), 0);
    }

    void klaengeFolgenDemSpiel() {
        std::optional<Seite> mensch = Seite::Hennen;
        Klaenge k([&] { return mensch; });
        QSignalSpy gespielt(&k, &Klaenge::gespielt);
        using A = Ereignis::Art;
        using K = Klaenge::Klang;
        const auto zug = [](int von, int nach) { return Ereignis{A::zug, von, nach, 0, false, {}}; };
        const auto meldung = [](Text t) { return Ereignis{A::meldung, 0, 0, 0, false, std::move(t)}; };
        const struct {
            Ereignis e;
            std::optional<Seite> mensch;
            std::optional<K> klang;
        } faelle[] = {
            {zug(feldNummer(2, 4), feldNummer(2, 3)), Seite::Hennen, K::abgesetzt},
            {zug(feldNummer(2, 2), feldNummer(2, 4)), Seite::Hennen, K::fang},
            {zug(feldNummer(3, 2), kParkfeld), Seite::Hennen, K::geparkt},
            {zug(kParkfeld, feldNummer(3, 0)), Seite::Hennen, K::abgesetzt},
            {meldung(Vorlage::hennenGewinnen), Seite::Hennen, K::sieg},
            {meldung(Vorlage::hennenGewinnen), Seite::Fuchs, K::niederlage},
            {meldung(Vorlage::fuchsGewinnt), std::nullopt, K::sieg},
            {Ereignis{A::zugbegrenzung, 0, 0, 0, false, {}}, Seite::Fuchs, K::remis},
            {meldung(Vorlage::fuchsEingesetzt), Seite::Fuchs, std::nullopt},
            {Ereignis{A::status, 1, 0, 0, false, {}}, Seite::Fuchs, std::nullopt},
        };
        for (const auto& f : faelle) {
            mensch = f.mensch;
            gespielt.clear();
            k.ereignis(f.e);
            QCOMPARE(gespielt.size(), f.klang ? 1 : 0);
            if (f.klang) QCOMPARE(gespielt.front().front().value<K>(), *f.klang);
        }
    }

    // The first start's window shows every status field whole, also once a move has brought the points
    // and a take-back its note. (A stored size far larger than the screen: the geometry case below.)
    void ersterStartZeigtJedesStatusfeldGanz() {
        Aufbau a(std::vector<char>{0, 2, 1, 0});
        a.ersterZug();
        a.fenster->zugTakt();
        QTRY_VERIFY(!a.fenster->beschaeftigt());
        a.aktion("zurueck"); // the take-back's field shows too
        QTRY_VERIFY(!a.fenster->beschaeftigt());
        for (int i = 1; i <= 4; ++i) {
            const auto* feld = a.fenster->findChild<Statustext*>(QStringLiteral("panel%1").arg(i));
            QCOMPARE(feld->sichtbarerText(), feld->text());
        }
    }

    void schmalesFensterZeigtDieGefuelltenFelderGanz() {
        // The fields without text give their share of the bar to the others: at the board's smallest
        // size the bar says whole who plays and how strongly.
        Aufbau a(std::vector<char>{0, 2, 1, 0});
        a.fenster->resize(400, a.fenster->height());
        QTRY_COMPARE(a.fenster->width(), 400);
        for (int i = 1; i <= 4; ++i) {
            const auto* feld = a.fenster->findChild<Statustext*>(QStringLiteral("panel%1").arg(i));
            QCOMPARE(feld->isVisible(), i <= 2);
            QCOMPARE(feld->text().isEmpty(), i > 2);
            QTRY_COMPARE(feld->sichtbarerText(), feld->text());
        }
    }

    void fenstergeometrieLesen() {
        const QRect frei(0, 0, 1024, 768);
        for (const QByteArray& kaputt :
             {QByteArray(), QByteArray("kaputt"), geometrie(0, 0, 0, 100), QByteArray(100000, 'x')})
            QVERIFY(!fenstergeometrie(kaputt, frei));
        const auto passt = fenstergeometrie(geometrie(10, 20, 300, 200), frei);
        QVERIFY(passt && passt->unveraendert);
        const auto gross = fenstergeometrie(geometrie(-2000000000, 5, 2000000000, 2000000000, true), frei);
        QVERIFY(gross && std::tuple(gross->unveraendert, gross->normal, gross->maximiert) ==
                             std::tuple(false, frei, true));
        const auto daneben =
            fenstergeometrie(geometrie(5000, 5000, 300, 200), frei).value_or(Fenstergeometrie{});
        QCOMPARE(daneben.normal, QRect(724, 568, 300, 200));
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
        QVERIFY(fensterEinstellungenEinrichten().isEmpty() && fs::is_directory(datei.parent_path()));
        std::ofstream(datei) << "[General]\n" << std::string(200000, 'x') << "\n";
        const QStringList w = fensterEinstellungenEinrichten();
        QVERIFY(w.size() == 1 && w.front().contains(QStringLiteral("größer als 16 KB")) &&
                !fs::exists(datei));
        QVERIFY(::mkfifo(datei.c_str(), 0600) == 0);
        QCOMPARE(fensterEinstellungenEinrichten().size(), 1);
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

QTEST_MAIN(AussehenTest)
#include "aussehen_test.moc"
