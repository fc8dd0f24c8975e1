// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The settings dialog driven like a user, on the offscreen platform: what it shows, writes and hands
// back, and a settings file or high-score list that cannot be written.
#include <QCheckBox>
#include <QComboBox>
#include <QPointer>
#include <QtTest>

#include "game/spiel.h"
#include "kinder.h"
#include "testdateien.h"
#include "ui/einst_dialog.h"
#include "ui/highscore_fenster.h"

using namespace fuh;

namespace {

using Bytes = std::vector<uint8_t>;
using test::kind;
using test::klick;
using test::meldungBeantworten;
using test::spielende;
using test::TempOrdner;

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
    // What the dialog writes to QZ.INI, hands back and reports to the status bar: "4 Meister" is stored
    // as strength 3 and handed back as the Meister choice; "niemand (zwei Spieler)" is a choice of its
    // own while the file keeps the computer's side.
    void einstellungenUebernehmen() {
        using Status = QPair<int, QString>;
        const struct {
            Einstellungen vorher;
            int pc, staerke;
            bool lernen, meister, zweiSpieler;
            Bytes datei;
            QList<Status> status;
        } faelle[] = {
            // clang-format off
            {{0, 0, 0, 0}, 1, 2, true, false, false, {1, 0, 2, 0, 1, 0, 0, 0},
             {{1, QStringLiteral("PC spielt Hennen")}, {2, QStringLiteral("SPielstärke 3")}}},
            {{0, 0, 0, 0}, 0, 3, true, true, false, {0, 0, 2, 0, 1, 0, 0, 0},
             {{2, QStringLiteral("Meister")}}},
            {{1, 0, 0, 0}, 3, 0, false, false, true, {1, 0, 0, 0, 0, 0, 0, 0},
             {{2, QStringLiteral("Spielstärke 1")}}},
            // clang-format on
        };
        for (const auto& f : faelle) {
            TempOrdner dir;
            Einst e(dir.pfad(), f.vorher);
            e.pc()->setCurrentIndex(f.pc);
            e.staerke()->setCurrentIndex(f.staerke);
            if (f.lernen) QTest::mouseClick(e.lernen(), Qt::LeftButton);
            klick(e.d, "okKnopf");
            QVERIFY(e.d.isNull());
            QCOMPARE(dir.lies("QZ.INI"), f.datei);
            QCOMPARE(e.uebernommen, 1);
            const Einstellungen& neu = e.spiel.einst;
            QCOMPARE(Bytes({uint8_t(neu.PC), uint8_t(neu.Staerke), uint8_t(neu.Lernmodus),
                            uint8_t(neu.Einzelzug)}),
                     Bytes({f.datei[0], f.datei[2], f.datei[4], f.datei[6]}));
            QCOMPARE(std::make_pair(e.meister, e.zweiSpieler), std::make_pair(f.meister, f.zweiSpieler));
            for (const Status& st : f.status)
                QVERIFY2(e.status.contains(st), qPrintable(st.second));
        }
        // The Meister shows again only where the file still says strength 3.
        TempOrdner dir;
        QCOMPARE(Einst(dir.pfad(), {0, 2, 1, 0}, true).staerke()->currentIndex(), 3);
        QCOMPARE(Einst(dir.pfad(), {0, 1, 1, 0}, true).staerke()->currentIndex(), 1);
        QCOMPARE(Einst(dir.pfad(), {0, 2, 1, 0}, false).staerke()->currentIndex(), 2);
    }

    // The dialog shows the file's values, a damaged file's as the first entries; learning needs strength 2
    // or more; "Abbrechen" changes nothing.
    void anzeigenLernmodusUndAbbrechen() {
        TempOrdner dir;
        Einst kaputt(dir.pfad(), {7, -1, 2, 5});
        QVERIFY(kaputt.pc()->currentIndex() == 0 && kaputt.staerke()->currentIndex() == 0);
        QVERIFY(!kaputt.lernen()->isChecked() && !kaputt.einzelzug()->isChecked());
        Einst e(dir.pfad(), {2, 1, 1, 1});
        QVERIFY(e.pc()->currentIndex() == 2 && e.staerke()->currentIndex() == 1);
        QVERIFY(e.lernen()->isEnabled() && e.lernen()->isChecked() && e.einzelzug()->isChecked());
        e.staerke()->setCurrentIndex(0); // "1 leicht"
        QVERIFY(!e.lernen()->isEnabled() && !e.lernen()->isChecked());
        e.staerke()->setCurrentIndex(1); // "2 mittel"
        QVERIFY(e.lernen()->isEnabled() && !e.lernen()->isChecked());
        klick(e.d, "abbruchKnopf");
        QVERIFY(e.d.isNull());
        QVERIFY(dir.namen().empty());
        QVERIFY(e.status.isEmpty() && e.uebernommen == 0);
    }

    void nichtSpeicherbarWirdGemeldet() {
        TempOrdner dir;
        dir.schreibe("keinOrdner", {});
        const auto ordner = dir.pfad() / "keinOrdner";
        Einst e(ordner);
        auto meldung = meldungBeantworten();
        klick(e.d, "okKnopf");
        const QString& gezeigt = meldung->titelUndText;
        QVERIFY2(gezeigt.startsWith(QStringLiteral("Fuchs und Hennen|")) && gezeigt.contains("QZ.INI"),
                 qPrintable(gezeigt));
        // The settings still apply to the game being played.
        QCOMPARE(e.uebernommen, 1);
        QCOMPARE(e.status.size(), 2);
        QVERIFY(e.d.isNull());

        // The list stays open so that the name is not lost.
        Oeffentlich spiel = spielende(3);
        QPointer<HighscoreFenster> w = new HighscoreFenster(Seite::Hennen, spiel, ordner);
        w->show();
        meldung = meldungBeantworten();
        klick(w, "okKnopf");
        QVERIFY(meldung->titelUndText.startsWith(QStringLiteral("Fuchs und Hennen|")));
        QVERIFY(w && w->isVisible());
        delete w;
    }
};

QTEST_MAIN(FensterTest)
#include "fenster_test.moc"
