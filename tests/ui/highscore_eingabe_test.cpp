// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// A high-score list with a new entry, driven like a user on the offscreen platform: the name typed and
// saved, or the entry dropped without writing.
#include <QApplication>
#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <QtTest>

#include "game/spiel.h"
#include "kinder.h"
#include "testdateien.h"
#include "ui/highscore_fenster.h"

using namespace fuh;

namespace {

using Bytes = std::vector<uint8_t>;
using test::hsSatz;
using test::kind;
using test::klick;
using test::spielende;
using test::TempOrdner;
using test::text;

// Types text key by key; unlike QTest::keyClicks it also takes characters beyond ASCII.
void tippen(QWidget* w, const QString& text) {
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, w, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

} // namespace

class HighscoreEingabeTest : public QObject {
    Q_OBJECT
  private slots:
    void highscoreNeuerEintragMitName() {
        TempOrdner dir;
        Oeffentlich spiel = spielende(42);
        QPointer<HighscoreFenster> w = new HighscoreFenster(Seite::Hennen, spiel, dir.pfad());
        w->show();
        QVERIFY(kind(w, "nameEingabe0")->isVisible() &&
                !w->findChild<QLineEdit*>(QStringLiteral("nameEingabe1")));
        QCOMPARE(text(w, "score0"), QStringLiteral("42"));
        QCOMPARE(text(w, "score1") + text(w, "datum1"), QStringLiteral("0")); // a row never written: no date
        QCOMPARE(text(w, "datum0"), QLocale().toString(QDate::currentDate(), QLocale::ShortFormat));

        tippen(kind(w, "nameEingabe0"), QStringLiteral("Jörg"));
        klick(w, "okKnopf");
        QVERIFY(w.isNull());
        const Bytes datei = dir.lies("QZH.sco");
        QCOMPARE(datei.size(), std::size_t{290});
        QCOMPARE(Bytes(datei.begin() + 8, datei.begin() + 29),
                 (Bytes{42,  0,   0x4A, 0xF6, 0x72, 0x67, ' ', ' ', ' ', ' ', ' ',
                        ' ', ' ', ' ',  ' ',  ' ',  ' ',  'J', 'a', ' ', ' '}));
    }

    void highscoreAbbruchSchreibtNicht() {
        TempOrdner dir;
        Bytes vorher = hsSatz(44000, 100, "Hugo", "Ja");
        const Bytes zweiter = hsSatz(44001, 30, "Erna", "Nein");
        vorher.insert(vorher.end(), zweiter.begin(), zweiter.end());
        dir.schreibe("QZF.sco", vorher);
        Oeffentlich spiel = spielende(30, "Nein");
        QPointer<HighscoreFenster> w = new HighscoreFenster(Seite::Fuchs, spiel, dir.pfad());
        w->show();
        // A tie goes above the older entry; that entry's name shows until one is typed.
        QVERIFY(kind(w, "nameEingabe1")->isVisible());
        QCOMPARE(text(w, "user2"), QStringLiteral("Erna"));
        QCOMPARE(text(w, "sieg1"), QStringLiteral("Nein"));
        QCOMPARE(text(w, "datum0"), QLocale().toString(QDate(2020, 6, 18), QLocale::ShortFormat));
        tippen(kind(w, "nameEingabe1"), QStringLiteral("Otto"));
        // A visible label says what the field is for.
        QVERIFY(kind(w, "aufforderung")->isVisible());
        QCOMPARE(kind<QLabel>(w, "aufforderung")->buddy(), kind(w, "nameEingabe1"));

        // Escape and the close button ask first: "Zurück zur Liste" keeps the entry, "Verwerfen" drops it.
        auto antworten = [](const QString& knopf) {
            QTimer::singleShot(0, [knopf] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                QVERIFY(box);
                for (QAbstractButton* b : box->buttons())
                    if (b->text().remove(QLatin1Char('&')) == knopf) b->click();
            });
        };
        antworten(QStringLiteral("Zurück zur Liste"));
        QTest::keyClick(kind(w, "nameEingabe1"), Qt::Key_Escape);
        QVERIFY(w && w->isVisible());
        antworten(QStringLiteral("Zurück zur Liste"));
        w->close();
        QVERIFY(w && w->isVisible());
        antworten(QStringLiteral("Verwerfen"));
        QTest::keyClick(kind(w, "nameEingabe1"), Qt::Key_Escape);
        QVERIFY(!w || !w->isVisible());
        QCOMPARE(dir.lies("QZF.sco"), vorher);
        delete w;

        // "Abbruch" is a choice already: it asks nothing.
        w = new HighscoreFenster(Seite::Fuchs, spiel, dir.pfad());
        w->show();
        klick(w, "abbruchKnopf");
        QVERIFY(w.isNull());
        QCOMPARE(dir.lies("QZF.sco"), vorher);
    }
};

QTEST_MAIN(HighscoreEingabeTest)
#include "highscore_eingabe_test.moc"
