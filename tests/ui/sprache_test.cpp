// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The windows in German and English: the first start, switching while windows are open, the core's
// German texts shown translated, and the line under the board.
#include <QDialogButtonBox>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QTextBrowser>
#include <QtTest>
#include <fstream>

#include "fenster_aufbau.h"
#include "testdateien.h"
#include "ui/einst_dialog.h"
#include "ui/highscore_fenster.h"
#include "ui/hilfe_fenster.h"
#include "ui/lagefeld.h"
#include "ui/sprache.h"
#include "ui/stat_form.h"

using namespace fuh;
using test::Aufbau;

namespace {

// Qt's own text for a standard button, which Qt's translation gives in the chosen language.
QString abbrechenKnopf() {
    QDialogButtonBox knoepfe(QDialogButtonBox::Cancel);
    return knoepfe.button(QDialogButtonBox::Cancel)->text();
}

QString code(const Sprache& s) {
    return QString::fromLatin1(s.code);
}

QString menue(Aufbau& a, const char* name) {
    return a.fenster->findChild<QMenu*>(QString::fromLatin1(name))->title();
}

// Switches through the menu as a player does; the windows follow when the change is delivered.
void waehle(Aufbau& a, const char* sprache) {
    a.aktion(sprache);
    QCoreApplication::processEvents();
}

// What follows the language: the menu, what the game wrote into the status bar and the board's prompts,
// the open windows, what a screen reader hears of a number, and Qt's own buttons.
QString gezeigt(Aufbau& a) {
    const BrettFenster* f = a.fenster.get();
    const auto* stat = f->findChild<StatForm*>();
    const auto* liste = f->findChild<HighscoreFenster*>();
    return (QStringList()
            << menue(a, "spiel") << a.panel(3)
            << a.brett()->findChild<QLabel*>(QStringLiteral("f_zug"))->text()
            << f->findChild<EinstDialog*>()->findChild<QPushButton*>(QStringLiteral("okKnopf"))->text()
            << stat->windowTitle() << stat->findChild<QLabel*>(QStringLiteral("wert13"))->accessibleName()
            << liste->windowTitle() << liste->findChild<QLabel*>(QStringLiteral("sieg0"))->text()
            << f->findChild<HilfeFenster*>()->browser()->source().fileName() << abbrechenKnopf())
        .join(QLatin1Char('|'));
}

} // namespace

class SpracheTest : public QObject {
    Q_OBJECT
  private slots:
    // The first start is German also on an English system; switched to English and back through the
    // menu, the main window, the game's texts and every open window follow.
    void ersterStartDeutschUndUmschalten() {
        QCOMPARE(QLocale::system().language(), QLocale::English); // set in main, as on such a system
        Aufbau a;
        QCOMPARE(code(aktuelleSprache()), QStringLiteral("de"));
        QCOMPARE(QLocale().language(), QLocale::German);
        QCOMPARE(a.panel(1), QStringLiteral("PC spielt Fuchs"));
        QCOMPARE(abbrechenKnopf(), QStringLiteral("Abbrechen"));
        QVERIFY(a.fenster->findChild<QAction*>(QStringLiteral("sprache_de"))->isChecked());
        // A high-score row, a first move, then the windows opened over the game (opened before the
        // move, lying over the board, they would take the drag).
        const std::vector<uint8_t> zeile = test::hsSatz(44000, 100, "Hugo", "Ja");
        std::ofstream(a.pfad() / "QZF.sco", std::ios::binary)
            .write(reinterpret_cast<const char*>(zeile.data()), static_cast<std::streamsize>(zeile.size()));
        a.ersterZug();
        for (const char* fenster : {"Einstellungen", "statistik", "highscoreFuchs", "hilfeZeigen"})
            a.aktion(fenster);
        waehle(a, "sprache_en");
        QCOMPARE(code(gespeicherteSprache()), QStringLiteral("en"));
        QCOMPARE(gezeigt(a),
                 QStringLiteral("&Game|Points: 237|The foxes are to move.|Apply|Statistics|Player, "
                                "Total: 0|High scores fox|Yes|ratgeber_en.html|Cancel"));
        test::Antworter antworter; // a message of the game
        a.fenster->meldung(Vorlage::hennenGewinnen);
        a.fenster->zugTakt();
        QTRY_COMPARE(antworter.texte.size(), std::size_t{1});
        QCOMPARE(antworter.texte[0], QStringLiteral("The hens have won!"));

        waehle(a, "sprache_de");
        QCOMPARE(code(gespeicherteSprache()), QStringLiteral("de"));
        QCOMPARE(gezeigt(a),
                 QStringLiteral("&Spiel|Punkte: 237|Die Füchse sind am Zug.|Übernehmen|Statistik|User, "
                                "Gesamt: 0|Highscores Fuchs|Ja|ratgeber.html|Abbrechen"));
        // Chosen elsewhere, e.g. in another main window: the menu shows it.
        spracheSetzen(sprache(QStringLiteral("en")), false);
        QCoreApplication::processEvents();
        QVERIFY(a.fenster->findChild<QAction*>(QStringLiteral("sprache_en"))->isChecked());
        spracheSetzen(sprache(QStringLiteral("de")), false);
    }

    // Each value is translated on its own and filled into the translated template, also inside a list
    // of names or a message that carries another message.
    void kernTexteMitWerten() {
        const auto name = [](const char* n) { return Text(Vorlage::dateiname, {Text::wort(n)}); };
        const Text liste(Vorlage::aufzaehlungEnde,
                         {Text(Vorlage::aufzaehlung, {name("QZ.sta"), name("QZ2.DAT")}), name("QZF.sco")});
        const std::pair<Text, const char*> faelle[] = {
            {Text(Vorlage::schreibfehlerMehrere, {liste}),
             "The files “QZ.sta”, “QZ2.DAT” and “QZF.sco” could not be saved. The game goes on without this "
             "data."},
            {Text(Vorlage::tippFuechseGewinnen, {Text::zahl(7)}), "The foxes win in 7 moves"},
            {Vorlage::staerkeDialog, "Strength 3"},
            // A word that looks like a template stays as it is.
            {Text::wort("Punkte: %1"), "Punkte: %1"},
        };
        spracheSetzen(sprache(QStringLiteral("en")), false);
        for (const auto& [text, englisch] : faelle)
            QCOMPARE(uebersetzt(text), QString::fromUtf8(englisch));
        spracheSetzen(sprache(QStringLiteral("de")), false);
        for (const auto& [text, englisch] : faelle)
            QCOMPARE(uebersetzt(text), QString::fromStdString(deutsch(text)));
    }
    // The line under the board: the reason of the end (the last fox's apart from the foxes' other
    // loss), the move counter and the warning before the limit, rewritten when the language changes.
    void endeUndZaehlerInBeidenSprachen() {
        const struct {
            Endegrund grund;
            bool letzterFuchs;
            const char *deutsch, *englisch;
        } faelle[] = {
            {Endegrund::hennenImZiel, false, "Spielende: Die Hennen besetzen alle 9 Zielfelder.",
             "Game over: The hens occupy all 9 target points."},
            {Endegrund::fuchsOhneZug, false, "Spielende: Die Füchse können nicht mehr ziehen.",
             "Game over: The foxes cannot move any more."},
            {Endegrund::fuchsOhneZug, true,
             "Spielende: Der letzte Fuchs auf dem Brett wäre ausgeschlossen worden.",
             "Game over: The last fox on the board would have been taken off."},
        };
        Lagefeld lage;
        for (const auto& f : faelle) {
            spracheSetzen(sprache(QStringLiteral("de")), false);
            QCoreApplication::processEvents();
            lage.ende(static_cast<uint8_t>(1U << static_cast<unsigned>(f.grund)), f.letzterFuchs);
            QCOMPARE(lage.text(), QString::fromUtf8(f.deutsch));
            spracheSetzen(sprache(QStringLiteral("en")), false);
            QTRY_COMPARE(lage.text(), QString::fromUtf8(f.englisch));
        }
        // The counter and the warning ten moves before the limit, in English too.
        Lage l;
        l.begonnen = l.laeuft = true;
        l.amZug = Lage::Zug::mensch;
        l.spielzug = 139;
        QCOMPARE(lage.setzen(l), QStringLiteral("Your move: hens. 10 moves left before the draw"));
        QVERIFY2(lage.text().contains(QStringLiteral("Move 139 of 149")), qPrintable(lage.text()));
        spracheSetzen(sprache(QStringLiteral("de")), false);
        QTRY_VERIFY2(lage.text().contains(QStringLiteral("Zug 139 von 149 · Noch 10 Züge bis zum Remis")),
                     qPrintable(lage.text()));
    }
};

int main(int argc, char** argv) {
    // The system speaks English; the game must not follow it.
    qputenv("LC_ALL", "en_US.UTF-8");
    qputenv("LANG", "en_US.UTF-8");
    qunsetenv("LANGUAGE");
    QTemporaryDir einstellungen;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, einstellungen.path());
    QApplication app(argc, argv);
    BrettFenster::anwendungEinrichten(app);
    SpracheTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "sprache_test.moc"
