// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The windows driven like a user, on the offscreen platform.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QSvgRenderer>
#include <QSvgWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <QtTest>

#include "game/spiel.h"
#include "kinder.h"
#include "testdateien.h"
#include "ui/brett_fenster.h"
#include "ui/einst_dialog.h"
#include "ui/highscore_fenster.h"
#include "ui/hilfe_fenster.h"
#include "ui/info_win.h"
#include "ui/meldung.h"

using namespace fuh;

namespace {

using Bytes = std::vector<uint8_t>;
using test::kind;
using test::klick;
using test::spielende;
using test::TempOrdner;

// Deletes windows closed with WA_DeleteOnClose.
void aufraeumen() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Accepts the next message box as soon as it runs; returns where its title will be.
std::shared_ptr<QString> meldungAnnehmen() {
    auto titel = std::make_shared<QString>();
    QTimer::singleShot(0, [titel] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            *titel = box->windowTitle() + QLatin1Char('|') + box->text();
            box->accept();
        }
    });
    return titel;
}

} // namespace

class FensterTest : public QObject {
    Q_OBJECT

    // The settings window as the main window opens it; records what it hands back.
    struct Einst {
        Oeffentlich spiel;
        QList<QPair<int, QString>> status;
        int uebernommen = 0;
        bool meister = false, zweiSpieler = false;
        QPointer<EinstDialog> d;

        Einst(const std::filesystem::path& ordner, Einstellungen e = {}, bool mitMeister = false) {
            spiel.einst = e;
            d = new EinstDialog(
                spiel.einst, Spielerauswahl{mitMeister, false}, ordner,
                [this](Statusfeld feld, const Text& t) {
                    status.append({static_cast<int>(feld), QString::fromStdString(deutsch(t))});
                },
                [this](const Einstellungen& neu, const Spielerauswahl& wahl) {
                    ++uebernommen;
                    spiel.einst = neu;
                    meister = wahl.meister;
                    zweiSpieler = wahl.zweiSpieler;
                });
            d->show();
        }
        ~Einst() { delete d; }
        QComboBox* pc() { return kind<QComboBox>(d, "computerSpielt"); }
        QComboBox* staerke() { return kind<QComboBox>(d, "staerke"); }
        QCheckBox* lernen() { return kind<QCheckBox>(d, "lernmodus"); }
        QCheckBox* einzelzug() { return kind<QCheckBox>(d, "einzelzug"); }
    };

  private slots:
    void einstellungenUebernehmen() {
        TempOrdner dir;
        Einst e(dir.pfad());
        QVERIFY(!e.lernen()->isEnabled());
        e.pc()->setCurrentIndex(1);
        e.staerke()->setCurrentIndex(2);
        QTest::mouseClick(e.lernen(), Qt::LeftButton);
        klick(e.d, "okKnopf");

        QVERIFY(e.d.isNull());
        QCOMPARE(dir.lies("QZ.INI"), (Bytes{0x01, 0x00, 0x02, 0x00, 0x01, 0x00, 0x00, 0x00}));
        QCOMPARE(e.uebernommen, 1);
        QCOMPARE(std::make_tuple(e.spiel.einst.PC, e.spiel.einst.Staerke, e.spiel.einst.Lernmodus,
                                 e.spiel.einst.Einzelzug),
                 std::make_tuple(int16_t{1}, int16_t{2}, int16_t{1}, int16_t{0}));
        const QList<QPair<int, QString>> status{{1, QStringLiteral("PC spielt Hennen")},
                                                {2, QStringLiteral("SPielstärke 3")}};
        QCOMPARE(e.status, status);
    }

    // "4 Meister" is stored as strength 3 in QZ.INI and handed back as the Meister choice; it shows again
    // only where the file still says strength 3.
    void meisterAlsVierteStaerke() {
        TempOrdner dir;
        Einst e(dir.pfad(), {0, 0, 0, 0});
        QCOMPARE(e.staerke()->count(), 4);
        e.staerke()->setCurrentIndex(3);
        QVERIFY(e.lernen()->isEnabled());
        QTest::mouseClick(e.lernen(), Qt::LeftButton);
        klick(e.d, "okKnopf");
        QCOMPARE(dir.lies("QZ.INI"), (Bytes{0x00, 0x00, 0x02, 0x00, 0x01, 0x00, 0x00, 0x00}));
        QVERIFY(e.meister);
        QCOMPARE(e.status.back(), (QPair<int, QString>{2, QStringLiteral("Meister")}));

        QCOMPARE(Einst(dir.pfad(), {0, 2, 1, 0}, true).staerke()->currentIndex(), 3);
        QCOMPARE(Einst(dir.pfad(), {0, 1, 1, 0}, true).staerke()->currentIndex(), 1);
        QCOMPARE(Einst(dir.pfad(), {0, 2, 1, 0}, false).staerke()->currentIndex(), 2);
    }

    // "niemand (zwei Spieler)" is handed back as a choice of its own; QZ.INI keeps the computer's side.
    void zweiSpielerBleibenAusserhalbDerDatei() {
        TempOrdner dir;
        Einst e(dir.pfad(), {1, 0, 0, 0});
        QCOMPARE(e.pc()->count(), 4);
        e.pc()->setCurrentIndex(3);
        klick(e.d, "okKnopf");
        QVERIFY(e.zweiSpieler);
        QCOMPARE(dir.lies("QZ.INI"), (Bytes{0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}));
        QCOMPARE(e.status, (QList<QPair<int, QString>>{{2, QStringLiteral("Spielstärke 1")}}));
    }

    void lernmodusNurAbStaerkeZwei() {
        TempOrdner dir;
        Einst e(dir.pfad(), {2, 1, 1, 1});
        QCOMPARE(e.pc()->currentIndex(), 2);
        QCOMPARE(e.staerke()->currentIndex(), 1);
        QVERIFY(e.lernen()->isEnabled() && e.lernen()->isChecked() && e.einzelzug()->isChecked());

        e.staerke()->setCurrentIndex(0); // "1 leicht"
        QVERIFY(!e.lernen()->isEnabled() && !e.lernen()->isChecked());
        QTest::mouseClick(e.lernen(), Qt::LeftButton); // disabled: no effect
        QVERIFY(!e.lernen()->isChecked());
        e.staerke()->setCurrentIndex(1); // "2 mittel"
        QVERIFY(e.lernen()->isEnabled() && !e.lernen()->isChecked());
    }

    void abbrechenAendertNichts() {
        TempOrdner dir;
        Einst e(dir.pfad(), {7, -1, 2, 5});
        // Values from a damaged file show the first entries.
        QCOMPARE(e.pc()->currentIndex(), 0);
        QCOMPARE(e.staerke()->currentIndex(), 0);
        QVERIFY(!e.lernen()->isChecked() && !e.einzelzug()->isChecked());
        e.pc()->setCurrentIndex(1);
        QTest::mouseClick(e.einzelzug(), Qt::LeftButton);
        klick(e.d, "abbruchKnopf");
        QVERIFY(e.d.isNull());
        QVERIFY(dir.namen().empty());
        QVERIFY(e.status.isEmpty());
        QCOMPARE(e.uebernommen, 0);
        QCOMPARE(e.spiel.einst.PC, 7);
    }

    void nichtSpeicherbarWirdGemeldet() {
        TempOrdner dir;
        dir.schreibe("keinOrdner", {});
        const auto ordner = dir.pfad() / "keinOrdner";
        Einst e(ordner);
        auto meldung = meldungAnnehmen();
        klick(e.d, "okKnopf");
        QVERIFY2(meldung->startsWith(QStringLiteral("Fuchs und Hennen|")) && meldung->contains("QZ.INI"),
                 qPrintable(*meldung));
        // The settings still apply to the game being played.
        QCOMPARE(e.uebernommen, 1);
        QCOMPARE(e.status.size(), 2);
        QVERIFY(e.d.isNull());

        // The list stays open so that the name is not lost.
        Oeffentlich spiel = spielende(3);
        QPointer<HighscoreFenster> w = new HighscoreFenster(Seite::Hennen, spiel, ordner);
        w->show();
        meldung = meldungAnnehmen();
        klick(w, "okKnopf");
        QVERIFY(meldung->startsWith(QStringLiteral("Fuchs und Hennen|")));
        QVERIFY(w && w->isVisible());
        delete w;
    }

    void infoUndHilfeOeffnenUndSchliessen() {
        QPointer<InfoWin> info = new InfoWin;
        info->show();
        // It looks like a link, but like every label of the box it ignores clicks.
        auto* mail = kind<QLabel>(info, QStringLiteral("email"));
        QSignalSpy angeklickt(mail, &QLabel::linkActivated);
        QTest::mouseClick(mail, Qt::LeftButton, Qt::NoModifier, QPoint(8, mail->height() / 2));
        QCOMPARE(angeklickt.count(), 0);
        for (int i = 1; i <= 4; ++i)
            QVERIFY(kind<QSvgWidget>(info, QStringLiteral("bild%1").arg(i))->renderer()->isValid());
        klick(info, "okKnopf");
        QVERIFY(info.isNull());

        // The help closes with its button, and with Escape also while the text has the focus.
        QPointer<HilfeFenster> h = new HilfeFenster;
        h->show();
        QCOMPARE(h->browser()->source(), QUrl(QStringLiteral("qrc:/hilfe/ratgeber.html")));
        QVERIFY(!h->browser()->document()->isEmpty());
        klick(h, "schliessen");
        QVERIFY(h.isNull());
        h = new HilfeFenster;
        h->show();
        QVERIFY(QTest::qWaitForWindowActive(h));
        h->browser()->setFocus();
        QTest::keyClick(h->browser(), Qt::Key_Escape);
        aufraeumen();
        QVERIFY(h.isNull());
    }
};

QTEST_MAIN(FensterTest)
#include "fenster_test.moc"
