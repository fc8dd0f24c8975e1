// The windows driven like a user, on the offscreen platform.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSvgRenderer>
#include <QSvgWidget>
#include <QTextBrowser>
#include <QTimer>
#include <QtTest>
#include <cmath>

#include "dialogs/einst_dialog.h"
#include "dialogs/highscore_fenster.h"
#include "dialogs/hilfe_fenster.h"
#include "dialogs/info_win.h"
#include "dialogs/stat_form.h"
#include "testdateien.h"

using namespace fuh;

namespace {

using Bytes = std::vector<uint8_t>;
using test::hsSatz;
using test::TempOrdner;

// Deletes windows closed with WA_DeleteOnClose.
void aufraeumen() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Accepts the next message box as soon as it runs and remembers its title and text.
struct Meldung {
    QString titel, text;
    void erwarten() {
        QTimer::singleShot(0, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                titel = box->windowTitle();
                text = box->text();
                box->accept();
            }
        });
    }
};

// Types text key by key; unlike QTest::keyClicks it also takes characters beyond ASCII.
void tippen(QWidget* w, const QString& text) {
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, w, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

template <class T> T* kind(QWidget* w, const char* name) {
    T* k = w->findChild<T*>(QString::fromLatin1(name));
    if (!k) qFatal("missing child %s", name);
    return k;
}

QString text(QWidget* w, const QString& name) {
    auto* l = w->findChild<QLabel*>(name);
    return l ? l->text() : QStringLiteral("<fehlt>");
}

} // namespace

class FensterTest : public QObject {
    Q_OBJECT

    struct Aufrufe {
        QList<QPair<int, QString>> status;
        QList<Einstellungen> uebernommen;
    };

    EinstDialog* einstDialog(Oeffentlich& spiel, const std::filesystem::path& ordner, Aufrufe& a) {
        auto* d = new EinstDialog(
            spiel, ordner,
            [&a](int panel, const QString& t) {
                a.status.append({panel, t});
            },
            [&a, &spiel](const Einstellungen& e) {
                a.uebernommen.append(e);
                spiel.einst = e;
            });
        d->show();
        return d;
    }

  private slots:
    void einstellungenUebernehmen() {
        TempOrdner dir;
        Oeffentlich spiel;
        Aufrufe a;
        QPointer<EinstDialog> d = einstDialog(spiel, dir.pfad(), a);
        QCOMPARE(d->windowTitle(), QStringLiteral("Einstellungen"));
        auto* pc = kind<QComboBox>(d, "pc_spielt");
        QVERIFY(!pc->isEditable());
        QCOMPARE(pc->count(), 3);
        QCOMPARE(pc->itemText(2), QStringLiteral("Fuchs und Hennen"));
        auto* lernen = kind<QCheckBox>(d, "Lernen");
        QVERIFY(!lernen->isEnabled());

        pc->setCurrentIndex(1);
        kind<QComboBox>(d, "Staerke")->setCurrentIndex(2);
        QVERIFY(lernen->isEnabled());
        QTest::mouseClick(lernen, Qt::LeftButton);
        QVERIFY(lernen->isChecked());
        QTest::mouseClick(kind<QPushButton>(d, "ok"), Qt::LeftButton);
        aufraeumen();

        QVERIFY(d.isNull());
        QCOMPARE(dir.lesen("QZ.INI"), (Bytes{0x01, 0x00, 0x02, 0x00, 0x01, 0x00, 0x00, 0x00}));
        QCOMPARE(a.uebernommen.size(), 1);
        QCOMPARE(spiel.einst.PC, 1);
        QCOMPARE(spiel.einst.Staerke, 2);
        QCOMPARE(spiel.einst.Lernmodus, 1);
        QCOMPARE(spiel.einst.Einzelzug, 0);
        const QList<QPair<int, QString>> status{{1, QStringLiteral("PC spielt Hennen")},
                                                {2, QStringLiteral("SPielstärke 3")}};
        QCOMPARE(a.status, status);
    }

    void lernmodusNurAbStaerkeZwei() {
        TempOrdner dir;
        Oeffentlich spiel;
        spiel.einst = {2, 1, 1, 1};
        Aufrufe a;
        QPointer<EinstDialog> d = einstDialog(spiel, dir.pfad(), a);
        auto* staerke = kind<QComboBox>(d, "Staerke");
        auto* lernen = kind<QCheckBox>(d, "Lernen");
        QCOMPARE(kind<QComboBox>(d, "pc_spielt")->currentIndex(), 2);
        QCOMPARE(staerke->currentIndex(), 1);
        QVERIFY(lernen->isEnabled() && lernen->isChecked());
        QVERIFY(kind<QCheckBox>(d, "Einzelzug")->isChecked());

        staerke->setCurrentIndex(0);
        QVERIFY(!lernen->isEnabled());
        QVERIFY(!lernen->isChecked());
        QTest::mouseClick(lernen, Qt::LeftButton); // disabled: no effect
        QVERIFY(!lernen->isChecked());
        staerke->setCurrentIndex(1);
        QVERIFY(lernen->isEnabled());
        QVERIFY(!lernen->isChecked());
        d->close();
        aufraeumen();
    }

    void unbekannteWerteZeigenEintragNull() {
        TempOrdner dir;
        Oeffentlich spiel;
        spiel.einst = {7, -1, 2, 5};
        Aufrufe a;
        QPointer<EinstDialog> d = einstDialog(spiel, dir.pfad(), a);
        QCOMPARE(kind<QComboBox>(d, "pc_spielt")->currentIndex(), 0);
        QCOMPARE(kind<QComboBox>(d, "Staerke")->currentIndex(), 0);
        QVERIFY(!kind<QCheckBox>(d, "Lernen")->isChecked());
        QVERIFY(!kind<QCheckBox>(d, "Einzelzug")->isChecked());
        d->close();
        aufraeumen();
    }

    void abbrechenAendertNichts() {
        TempOrdner dir;
        Oeffentlich spiel;
        spiel.einst = {1, 2, 0, 0};
        Aufrufe a;
        QPointer<EinstDialog> d = einstDialog(spiel, dir.pfad(), a);
        kind<QComboBox>(d, "pc_spielt")->setCurrentIndex(0);
        QTest::mouseClick(kind<QCheckBox>(d, "Einzelzug"), Qt::LeftButton);
        QTest::mouseClick(kind<QPushButton>(d, "Abbruch"), Qt::LeftButton);
        aufraeumen();
        QVERIFY(d.isNull());
        QVERIFY(dir.namen().empty());
        QVERIFY(a.status.isEmpty());
        QVERIFY(a.uebernommen.isEmpty());
        QCOMPARE(spiel.einst.PC, 1);
    }

    void einstellungenNichtSpeicherbar() {
        TempOrdner dir;
        dir.schreiben("keinOrdner", {});
        const auto ordner = dir.pfad() / "keinOrdner";
        Oeffentlich spiel;
        Aufrufe a;
        QPointer<EinstDialog> d = einstDialog(spiel, ordner, a);
        Meldung m;
        m.erwarten();
        QTest::mouseClick(kind<QPushButton>(d, "ok"), Qt::LeftButton);
        aufraeumen();
        QCOMPARE(m.titel, QStringLiteral("Fuchs und Hennen"));
        QVERIFY(m.text.contains(QStringLiteral("QZ.INI")));
        // The settings still apply until the program ends.
        QCOMPARE(a.uebernommen.size(), 1);
        QCOMPARE(a.status.size(), 2);
        QVERIFY(d.isNull());
    }

    void statistikZeigtWerteUndSummen() {
        TempOrdner dir;
        // finished, learning, pc fox 1..3, pc hens 1..3, user fox 1..3, user hens 1..3, started, learned,
        // last
        const std::array<int16_t, 17> z = {40, 6, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 45, 300, 17};
        dir.schreiben("QZ.sta", test::zaehlerBytes(z));
        QPointer<StatForm> f = new StatForm(dir.pfad());
        f->show();
        QCOMPARE(f->windowTitle(), QStringLiteral("Statistik"));
        QCOMPARE(text(f, "Spiele"), QStringLiteral("45"));
        QCOMPARE(text(f, "abbruch"), QStringLiteral("5"));
        QCOMPARE(text(f, "gelernte"), QStringLiteral("6"));
        QCOMPARE(text(f, "Zuge"), QStringLiteral("300"));
        QCOMPARE(text(f, "Zugaenge"), QStringLiteral("17"));
        // Hens then foxes, computer then user, strengths 1..3.
        const char* werte[14] = {"4", "5", "6", "1", "2", "3", "10", "11", "12", "7", "8", "9", "21", "57"};
        for (int i = 0; i < 14; ++i)
            QCOMPARE(text(f, QStringLiteral("wert%1").arg(i)), QString::fromLatin1(werte[i]));
        QTest::mouseClick(kind<QPushButton>(f, "Command1"), Qt::LeftButton);
        aufraeumen();
        QVERIFY(f.isNull());
    }

    void highscoreNeuerEintragMitName() {
        TempOrdner dir;
        Oeffentlich spiel;
        spiel.score = 42;
        spiel.u_is_sieger = "Ja";
        spiel.sw_spielende = true;
        QPointer<HighscoreFenster> w = new HighscoreFenster(Seite::Hennen, spiel, dir.pfad());
        w->show();
        QCOMPARE(w->windowTitle(), QStringLiteral("Highscore Hennen"));
        QVERIFY(!spiel.sw_spielende);
        auto* name = kind<QLineEdit>(w, "name1_0");
        QVERIFY(name->isVisible());
        for (int i = 1; i < 10; ++i)
            QVERIFY(!kind<QLineEdit>(w, qPrintable(QStringLiteral("name1_%1").arg(i)))->isVisible());
        QCOMPARE(text(w, "score0"), QStringLiteral("42"));
        QCOMPARE(text(w, "sieg0"), QStringLiteral("Ja"));
        QCOMPARE(text(w, "datum0"), QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
        QCOMPARE(text(w, "datum1"), QString());
        QCOMPARE(text(w, "score1"), QStringLiteral("0"));

        tippen(name, QStringLiteral("Jörg"));
        QTest::mouseClick(kind<QPushButton>(w, "ok"), Qt::LeftButton);
        aufraeumen();
        QVERIFY(w.isNull());
        const Bytes datei = dir.lesen("QZH.sco");
        QCOMPARE(datei.size(), std::size_t{290});
        const Bytes name15(datei.begin() + 10, datei.begin() + 25);
        QCOMPARE(name15,
                 (Bytes{0x4A, 0xF6, 0x72, 0x67, ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '}));
        QCOMPARE(Bytes(datei.begin() + 8, datei.begin() + 10), (Bytes{42, 0}));
    }

    void highscoreAbbruchSchreibtNicht() {
        TempOrdner dir;
        Bytes vorher = hsSatz(44000, 100, "Hugo", "Ja");
        const Bytes zweiter = hsSatz(44001, 30, "Erna", "Nein");
        vorher.insert(vorher.end(), zweiter.begin(), zweiter.end());
        dir.schreiben("QZF.sco", vorher);
        Oeffentlich spiel;
        spiel.score = 30;
        spiel.u_is_sieger = "Nein";
        spiel.sw_spielende = true;
        QPointer<HighscoreFenster> w = new HighscoreFenster(Seite::Fuchs, spiel, dir.pfad());
        w->show();
        QCOMPARE(w->windowTitle(), QStringLiteral("Highscores Fuchs"));
        // A tie goes above the older entry; that entry's name shows until one is typed.
        QVERIFY(kind<QLineEdit>(w, "name1_1")->isVisible());
        QCOMPARE(text(w, "user0"), QStringLiteral("Hugo"));
        QCOMPARE(text(w, "user2"), QStringLiteral("Erna"));
        QCOMPARE(text(w, "sieg1"), QStringLiteral("Nein"));
        QCOMPARE(text(w, "datum0"), QLocale::system().toString(QDate(2020, 6, 18), QLocale::ShortFormat));
        tippen(kind<QLineEdit>(w, "name1_1"), QStringLiteral("Otto"));
        QTest::mouseClick(kind<QPushButton>(w, "Abbruch"), Qt::LeftButton);
        aufraeumen();
        QVERIFY(w.isNull());
        QCOMPARE(dir.lesen("QZF.sco"), vorher);
    }

    void highscoreOhneEintrag() {
        TempOrdner dir;
        // Damaged dates show as empty cells.
        Bytes b = hsSatz(std::nan(""), 9, "Nan", "Ja");
        for (const Bytes& s : {hsSatz(HUGE_VAL, 8, "Inf", "Ja"), hsSatz(1e300, 7, "Weit", "Ja")})
            b.insert(b.end(), s.begin(), s.end());
        dir.schreiben("QZF.sco", b);
        Oeffentlich spiel;
        spiel.score = 50;
        spiel.fuchs_null = true;
        spiel.sw_spielende = true;
        QPointer<HighscoreFenster> w = new HighscoreFenster(Seite::Fuchs, spiel, dir.pfad());
        w->show();
        QVERIFY(!spiel.sw_spielende);
        QCOMPARE(w->liste().neuePos(), 10);
        for (int i = 0; i < 10; ++i) {
            QVERIFY(!kind<QLineEdit>(w, qPrintable(QStringLiteral("name1_%1").arg(i)))->isVisible());
            QCOMPARE(text(w, QStringLiteral("datum%1").arg(i)), QString());
        }
        QCOMPARE(text(w, "user2"), QStringLiteral("Weit"));
        w->close(); // the close box discards
        aufraeumen();
        QCOMPARE(dir.lesen("QZF.sco"), b);
    }

    void highscoreNichtSpeicherbarBleibtOffen() {
        TempOrdner dir;
        dir.schreiben("keinOrdner", {});
        const auto ordner = dir.pfad() / "keinOrdner";
        Oeffentlich spiel;
        spiel.score = 3;
        spiel.sw_spielende = true;
        QPointer<HighscoreFenster> w = new HighscoreFenster(Seite::Hennen, spiel, ordner);
        w->show();
        Meldung m;
        m.erwarten();
        QTest::mouseClick(kind<QPushButton>(w, "ok"), Qt::LeftButton);
        aufraeumen();
        QCOMPARE(m.titel, QStringLiteral("Fuchs und Hennen"));
        QVERIFY(!w.isNull());
        QVERIFY(w->isVisible());
        delete w;
    }

    void infoNurEinmal() {
        auto infoFenster = [] {
            int n = 0;
            for (QWidget* w : QApplication::topLevelWidgets())
                if (qobject_cast<InfoWin*>(w) && w->isVisible()) ++n;
            return n;
        };
        InfoWin::zeigen(nullptr);
        InfoWin::zeigen(nullptr);
        QCOMPARE(infoFenster(), 1);
        QPointer<InfoWin> info = InfoWin::offen();
        QVERIFY(info);
        QCOMPARE(info->windowTitle(), QStringLiteral("Info"));
        QCOMPARE(text(info, "Label1"), QStringLiteral("Fuchs und Hennen 2026"));
        QVERIFY(text(info, "email").contains(QStringLiteral("mailto:fuchs-und-hennen@example.org")));
        for (int i = 1; i <= 4; ++i) {
            auto* bild = kind<QSvgWidget>(info, qPrintable(QStringLiteral("Image%1").arg(i)));
            QVERIFY(bild->renderer()->isValid());
            QCOMPARE(bild->size(), QSize(32, 32));
        }
        QTest::mouseClick(kind<QPushButton>(info, "Command1"), Qt::LeftButton);
        aufraeumen();
        QVERIFY(info.isNull());
        QVERIFY(!InfoWin::offen());
        InfoWin::zeigen(nullptr);
        QCOMPARE(infoFenster(), 1);
        InfoWin::offen()->close();
        aufraeumen();
        QCOMPARE(infoFenster(), 0);
    }

    void hilfeZeigtRatgeber() {
        HilfeFenster::zeigen(nullptr);
        HilfeFenster::zeigen(nullptr);
        QPointer<HilfeFenster> h = HilfeFenster::offen();
        QVERIFY(h);
        QCOMPARE(h->windowTitle(), QStringLiteral("Fuchs und Hennen – Hilfe"));
        QCOMPARE(h->browser()->source(), QUrl(QStringLiteral("qrc:/hilfe/ratgeber.html")));
        QVERIFY(!h->browser()->document()->isEmpty());
        int n = 0;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (qobject_cast<HilfeFenster*>(w) && w->isVisible()) ++n;
        QCOMPARE(n, 1);
        h->close();
        aufraeumen();
        QVERIFY(h.isNull());
    }

    void bilderAlsRessourcen() {
        for (const char* name : {"fuchs", "henne", "brett", "app"})
            QVERIFY2(QFile::exists(QStringLiteral(":/bilder/%1.svg").arg(QLatin1String(name))), name);
    }
};

QTEST_MAIN(FensterTest)
#include "fenster_test.moc"
