// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// What the windows show from the game's files and the environment: the statistics with their sums,
// a new high-score entry named and saved or dropped unwritten, high-score rows with damaged dates, names with
// markup shown literally, a status text shortened to its field with the whole text at hand, and a data folder
// whose name is not UTF-8, used byte for byte.
#include <QAccessible>
#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolTip>
#include <QtTest>
#include <array>
#include <cmath>

#include "game/spiel.h"
#include "kinder.h"
#include "testdateien.h"
#include "ui/brett_fenster.h"
#include "ui/datenordner.h"
#include "ui/highscore_fenster.h"
#include "ui/meldung.h"
#include "ui/stat_form.h"
#include "ui/statustext.h"

using namespace fuh;

namespace {

using Bytes = std::vector<uint8_t>;
using test::hsSatz;
using test::kind;
using test::klick;
using test::meldungBeantworten;
using test::spielende;
using test::TempOrdner;
using test::text;

// Types text key by key; unlike QTest::keyClicks it also takes characters beyond ASCII.
void tippen(QWidget* w, const QString& text) {
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, w, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

} // namespace

class DateianzeigeTest : public QObject {
    Q_OBJECT

  private slots:

    void statistikZeigtWerteUndSummen() {
        TempOrdner dir;
        // finished, learning, pc fox 1..3, pc hens 1..3, user fox 1..3, user hens 1..3, started, learned,
        // last
        const std::array<int16_t, 17> z = {40, 6, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 45, 300, 17};
        dir.schreibe("QZ.sta", test::zaehlerBytes(z));
        QPointer<StatForm> f = new StatForm(dir.pfad());
        f->show();
        // The totals, then hens and foxes, computer and user, strengths 1..3, then the two sums.
        QStringList gezeigt;
        for (const char* feld : {"gestartet", "abgebrochen", "imLernmodus", "bewertet", "neuAusLetztem"})
            gezeigt << text(f, QString::fromLatin1(feld));
        for (int i = 0; i < 14; ++i)
            gezeigt << text(f, QStringLiteral("wert%1").arg(i));
        QCOMPARE(gezeigt.join(QLatin1Char(' ')),
                 QStringLiteral("45 5 6 300 17 4 5 6 1 2 3 10 11 12 7 8 9 21 57"));
        // A screen reader hears what each number stands for.
        QStringList namen;
        for (const char* feld : {"gestartet", "wert4", "wert13"})
            namen << kind(f, QString::fromLatin1(feld))->accessibleName();
        QCOMPARE(namen.join(QLatin1Char('|')),
                 QStringLiteral("Spiele gesamt: 45|Computer, Fuchs, Stärke 2: 2|User, Gesamt: 57"));
        klick(f, "okKnopf");
        QVERIFY(f.isNull());
    }

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
        // A tie goes above the older entry.
        QVERIFY(kind(w, "nameEingabe1")->isVisible());
        QCOMPARE(text(w, "datum0"), QLocale().toString(QDate(2020, 6, 18), QLocale::ShortFormat));
        tippen(kind(w, "nameEingabe1"), QStringLiteral("Otto"));
        // A visible label says what the field is for.
        QVERIFY(kind(w, "aufforderung")->isVisible());
        QCOMPARE(kind<QLabel>(w, "aufforderung")->buddy(), kind(w, "nameEingabe1"));

        // Escape and the close button ask first: "Zurück zur Liste" keeps the entry, "Verwerfen" drops it.
        meldungBeantworten(QStringLiteral("Zurück zur Liste"));
        QTest::keyClick(kind(w, "nameEingabe1"), Qt::Key_Escape);
        QVERIFY(w && w->isVisible());
        meldungBeantworten(QStringLiteral("Zurück zur Liste"));
        w->close();
        QVERIFY(w && w->isVisible());
        meldungBeantworten(QStringLiteral("Verwerfen"));
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

    // A stored list as it shows: dates no calendar holds as empty cells, a name or result with markup as
    // typed, in plain text that loads nothing it names; so are the messages, which may name folders.
    void gespeicherteListeAlsKlartext() {
        TempOrdner dir;
        Bytes b = hsSatz(std::nan(""), 9, "<img src=f>", "<b>J");
        for (const Bytes& s : {hsSatz(HUGE_VAL, 8, "Inf", "Ja"), hsSatz(1e300, 7, "Weit", "Ja")})
            b.insert(b.end(), s.begin(), s.end());
        dir.schreibe("QZF.sco", b);
        Oeffentlich spiel;
        HighscoreFenster w(Seite::Fuchs, spiel, dir.pfad());
        w.show();
        QCOMPARE(text(&w, "datum0") + text(&w, "datum1") + text(&w, "datum2") + text(&w, "user2"),
                 QStringLiteral("Weit"));
        QCOMPARE(text(&w, "user0") + text(&w, "sieg0"), QStringLiteral("<img src=f><b>J"));
        for (const char* zelle : {"user0", "sieg0"})
            QCOMPARE(kind<QLabel>(&w, QString::fromLatin1(zelle))->textFormat(), Qt::PlainText);
        QCOMPARE(kind(&w, "score0")->accessibleName(), QStringLiteral("1. Punkte: 9")); // row and column
        const auto meldung = meldungBeantworten();
        meldungZeigen(nullptr, QMessageBox::Warning, QStringLiteral("<b>/tmp/x</b>"));
        QCOMPARE(meldung->format, Qt::PlainText);
    }

    // A status text too long for its field is shown shortened with "…"; the whole text, escaped, is its
    // tool tip and its accessible name. A text that fits has no tip.
    void statustextZuLangFuerSeinFeld() {
        Statustext feld;
        const QString lang = QStringLiteral("Zurückgenommen: keine Bestenliste <b>x</b>");
        feld.setText(lang);
        feld.resize(feld.fontMetrics().horizontalAdvance(lang) / 2, 20);
        feld.show();
        const QString sichtbar = feld.sichtbarerText();
        QVERIFY(sichtbar.endsWith(QChar(0x2026)));
        QVERIFY(lang.startsWith(sichtbar.chopped(1)));
        QCOMPARE(QAccessible::queryAccessibleInterface(&feld)->text(QAccessible::Name), lang);

        QHelpEvent tipp(QEvent::ToolTip, QPoint(1, 1), feld.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&feld, &tipp);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), Qt::convertFromPlainText(lang));

        feld.resize(feld.fontMetrics().horizontalAdvance(lang) + 20, 20);
        QCOMPARE(feld.sichtbarerText(), lang);
        QApplication::sendEvent(&feld, &tipp);
        QTRY_VERIFY(!QToolTip::isVisible()); // a tip fades out
    }

    // XDG_DATA_HOME names a folder whose name is no valid UTF-8: the game uses exactly that folder.
    void datenordnerMitBytesAusserhalbVonUtf8() {
        TempOrdner basis;
        const std::string xdg = basis.pfad().string() + "/a\xff";
        const QByteArray alt = qgetenv("XDG_DATA_HOME");
        const bool gesetzt = qEnvironmentVariableIsSet("XDG_DATA_HOME");
        ::setenv("XDG_DATA_HOME", xdg.c_str(), 1);
        const std::filesystem::path ordner = datenordner();
        if (gesetzt)
            qputenv("XDG_DATA_HOME", alt);
        else
            qunsetenv("XDG_DATA_HOME");
        QCOMPARE(ordner.native(), xdg + "/fuchs-und-hennen");

        QTemporaryDir fensterEinstellungen;
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, fensterEinstellungen.path());
        std::filesystem::create_directories(ordner);
        {
            BrettFenster fenster(ordner, 36000);
            fenster.zugUhr().stop();
            fenster.spiel().neuesSpiel(); // counts the game in the statistics file
        }
        QCOMPARE(basis.namen(), std::vector<std::string>{"a\xff"});
        QVERIFY(std::filesystem::is_regular_file(ordner / "QZ.sta"));
    }
};

QTEST_MAIN(DateianzeigeTest)
#include "dateianzeige_test.moc"
