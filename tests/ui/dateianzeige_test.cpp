// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// What the windows show from the game's files and the environment: the statistics with their sums,
// high-score rows with damaged dates, names with markup shown literally (no file they name is opened),
// a status text shortened to its field with the whole text at hand, and a data folder whose name is not
// UTF-8, used byte for byte.
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolTip>
#include <QtTest>
#include <array>
#include <atomic>
#include <cmath>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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
using test::TempOrdner;
using test::text;

// Messages may name folders and files: shown as they are, too.
void meldungIstKlartext() {
    auto boxFormat = std::make_shared<Qt::TextFormat>(Qt::AutoText);
    QTimer::singleShot(0, [boxFormat] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            *boxFormat = box->textFormat();
            box->accept();
        }
    });
    meldungZeigen(nullptr, QMessageBox::Warning, QStringLiteral("<b>/tmp/x</b>"));
    QCOMPARE(*boxFormat, Qt::PlainText);
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
        const std::pair<const char*, const char*> felder[] = {{"gestartet", "45"},
                                                              {"abgebrochen", "5"},
                                                              {"imLernmodus", "6"},
                                                              {"bewertet", "300"},
                                                              {"neuAusLetztem", "17"}};
        for (const auto& [name, wert] : felder)
            QCOMPARE(text(f, QString::fromLatin1(name)), QString::fromLatin1(wert));
        // Hens then foxes, computer then user, strengths 1..3, then the two sums.
        const char* werte[14] = {"4", "5", "6", "1", "2", "3", "10", "11", "12", "7", "8", "9", "21", "57"};
        for (int i = 0; i < 14; ++i)
            QCOMPARE(text(f, QStringLiteral("wert%1").arg(i)), QString::fromLatin1(werte[i]));
        // A screen reader hears what each number stands for.
        const auto name = [&f](const char* kind) {
            return test::kind(f, QString::fromLatin1(kind))->accessibleName();
        };
        QCOMPARE(name("gestartet"), QStringLiteral("Spiele gesamt: 45"));
        QCOMPARE(name("wert4"), QStringLiteral("Computer, Fuchs, Stärke 2: 2"));
        QCOMPARE(name("wert13"), QStringLiteral("User, Gesamt: 57"));
        klick(f, "okKnopf");
        QVERIFY(f.isNull());
    }

    void highscoreMitKaputtenDaten() {
        TempOrdner dir;
        Bytes b = hsSatz(std::nan(""), 9, "Nan", "Ja");
        for (const Bytes& s : {hsSatz(HUGE_VAL, 8, "Inf", "Ja"), hsSatz(1e300, 7, "Weit", "Ja")})
            b.insert(b.end(), s.begin(), s.end());
        dir.schreibe("QZF.sco", b);
        Oeffentlich spiel;
        HighscoreFenster w(Seite::Fuchs, spiel, dir.pfad());
        w.show();
        for (int i = 0; i < 3; ++i) // dates no calendar holds show as empty cells
            QCOMPARE(text(&w, QStringLiteral("datum%1").arg(i)), QString());
        QCOMPARE(text(&w, "user2"), QStringLiteral("Weit"));
    }

    // A stored name with markup shows as typed, and never makes the window load what it names: here a
    // FIFO, whose opening would block the window for good. A watcher opens it for writing whenever a
    // reader appears, so a failure ends the test instead of hanging it.
    void namenMitMarkupSindKlartext() {
        TempOrdner dir;
        dir.schreibe("QZF.sco", hsSatz(44000, 100, "<img src=f>", "<b>J"));
        const std::filesystem::path fifo = dir.pfad() / "f";
        QCOMPARE(::mkfifo(fifo.c_str(), 0600), 0);
        const auto vorher = std::filesystem::current_path();
        std::filesystem::current_path(dir.pfad());
        std::atomic<bool> fertig{false};
        std::atomic<bool> geoeffnet{false};
        std::thread waechter([&] {
            while (!fertig) {
                const int fd = ::open(fifo.c_str(), O_WRONLY | O_NONBLOCK);
                if (fd >= 0) {
                    geoeffnet = true;
                    ::close(fd);
                }
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
        });
        QString name;
        QString sieg;
        Qt::TextFormat format = Qt::AutoText;
        QString zugang;
        {
            Oeffentlich spiel;
            HighscoreFenster w(Seite::Fuchs, spiel, dir.pfad());
            w.show();
            w.grab(); // lays out and paints every cell
            name = text(&w, "user0");
            sieg = text(&w, "sieg0");
            format = kind<QLabel>(&w, "user0")->textFormat();
            zugang = kind<QLabel>(&w, "score0")->accessibleName();
        }
        fertig = true;
        waechter.join();
        std::filesystem::current_path(vorher);
        QVERIFY(!geoeffnet);
        QCOMPARE(name, QStringLiteral("<img src=f>"));
        QCOMPARE(sieg, QStringLiteral("<b>J"));
        QCOMPARE(format, Qt::PlainText);
        QCOMPARE(zugang, QStringLiteral("1. Punkte: 100")); // a screen reader hears row and column

        meldungIstKlartext();
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
