// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The windows in German and English: the first start, switching while windows are open, and the core's
// German texts shown translated.
#include <QComboBox>
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

QString befehl(Aufbau& a, const char* name) {
    return a.fenster->findChild<QAction*>(QString::fromLatin1(name))->text();
}

template <class W> QString kindText(W* w, const char* name) {
    if (auto* l = w->template findChild<QLabel*>(QString::fromLatin1(name))) return l->text();
    return w->template findChild<QAbstractButton*>(QString::fromLatin1(name))->text();
}

// Switches through the menu as a player does; the windows follow when the change is delivered.
void waehle(Aufbau& a, const char* sprache) {
    a.aktion(sprache);
    QCoreApplication::processEvents();
}

// The windows that stay open while the language changes.
struct OffeneFenster {
    EinstDialog* einst;
    StatForm* stat;
    HighscoreFenster* liste;
    HilfeFenster* hilfe;
};

// A high-score file, a first move, then every window opened over the game.
void spielenUndFensterOeffnen(Aufbau& a) {
    const std::vector<uint8_t> zeile = test::hsSatz(44000, 100, "Hugo", "Ja");
    std::ofstream(a.pfad() / "QZF.sco", std::ios::binary)
        .write(reinterpret_cast<const char*>(zeile.data()), static_cast<std::streamsize>(zeile.size()));
    a.aktion("Neu");
    a.ziehe(24, 17);
    QCOMPARE(a.panel(3), QStringLiteral("Punkte: 237"));
    // Opened after the move: lying over the board, they would take the drag.
    a.aktion("Einstellungen");
    a.aktion("statistik");
    a.aktion("highscoreFuchs");
    a.aktion("hilfeZeigen");
}

// After the switch to English: the main window, the game's texts and every open window.
void alleFensterEnglisch(Aufbau& a, const OffeneFenster& f, int breiteDeutsch) {
    QCOMPARE(code(aktuelleSprache()), QStringLiteral("en"));
    QCOMPARE(code(gespeicherteSprache()), QStringLiteral("en"));
    QCOMPARE(menue(a, "spiel"), QStringLiteral("&Game"));
    QCOMPARE(befehl(a, "Neu"), QStringLiteral("&New"));
    // What the game wrote into the status bar and the board's prompts.
    QCOMPARE(a.panel(3), QStringLiteral("Points: 237"));
    QCOMPARE(a.brett()->findChild<QLabel*>(QStringLiteral("f_zug"))->text(),
             QStringLiteral("The foxes are to move."));
    // Every open window follows; the settings grow where English needs more room.
    QCOMPARE(kindText(f.einst, "okKnopf"), QStringLiteral("Apply"));
    QCOMPARE(f.einst->findChild<QComboBox*>(QStringLiteral("staerke"))->itemText(3),
             QStringLiteral("4 Master"));
    QVERIFY(f.einst->width() >= breiteDeutsch);
    QCOMPARE(f.stat->windowTitle(), QStringLiteral("Statistics"));
    QCOMPARE(f.liste->windowTitle(), QStringLiteral("High scores fox"));
    QCOMPARE(kindText(f.liste, "sieg0"), QStringLiteral("Yes")); // the file keeps "Ja"
    // What a screen reader hears of a number follows too.
    QCOMPARE(f.stat->findChild<QLabel*>(QStringLiteral("wert13"))->accessibleName(),
             QStringLiteral("Player, Total: 0"));
    QCOMPARE(f.liste->findChild<QLabel*>(QStringLiteral("sieg0"))->accessibleName(),
             QStringLiteral("1. Won: Yes"));
    QCOMPARE(f.hilfe->browser()->source().fileName(), QStringLiteral("ratgeber_en.html"));
    QCOMPARE(abbrechenKnopf(), QStringLiteral("Cancel"));
    QCOMPARE(QLocale().language(), QLocale::English);
}

// A message of the game, and the fox's reply with its prompt, in English.
void meldungUndAntwortEnglisch(Aufbau& a, test::Antworter& antworter) {
    a.fenster->meldung(Vorlage::hennenGewinnen);
    a.fenster->zugTakt();
    QTRY_COMPARE(antworter.texte.size(), std::size_t{1});
    QCOMPARE(antworter.texte[0], QStringLiteral("The hens have won!"));
}

} // namespace

class SpracheTest : public QObject {
    Q_OBJECT
  private slots:
    void ersterStartDeutschAuchAufEnglischemSystem() {
        QCOMPARE(QLocale::system().language(), QLocale::English); // set in main, as on such a system
        Aufbau a;
        QCOMPARE(code(aktuelleSprache()), QStringLiteral("de"));
        QCOMPARE(QLocale().language(), QLocale::German);
        QCOMPARE(menue(a, "spiel"), QStringLiteral("&Spiel"));
        QCOMPARE(a.panel(1), QStringLiteral("PC spielt Fuchs"));
        QCOMPARE(abbrechenKnopf(), QStringLiteral("Abbrechen"));
        QVERIFY(a.fenster->findChild<QAction*>(QStringLiteral("sprache_de"))->isChecked());
    }

    void umschaltenUndZurueckMitOffenenFenstern() {
        Aufbau a;
        spielenUndFensterOeffnen(a);
        if (QTest::currentTestFailed()) return;
        const OffeneFenster f{a.fenster->findChild<EinstDialog*>(), a.fenster->findChild<StatForm*>(),
                              a.fenster->findChild<HighscoreFenster*>(),
                              a.fenster->findChild<HilfeFenster*>()};
        const int breiteDeutsch = f.einst->width();

        waehle(a, "sprache_en");
        alleFensterEnglisch(a, f, breiteDeutsch);
        if (QTest::currentTestFailed()) return;
        test::Antworter antworter;
        meldungUndAntwortEnglisch(a, antworter);
        if (QTest::currentTestFailed()) return;

        // A window opened now is English from the start.
        a.aktion("statistik");
        QCOMPARE(a.fenster->findChild<StatForm*>()->windowTitle(), QStringLiteral("Statistics"));

        waehle(a, "sprache_de");
        QCOMPARE(code(aktuelleSprache()), QStringLiteral("de"));
        QCOMPARE(code(gespeicherteSprache()), QStringLiteral("de"));
        QCOMPARE(menue(a, "spiel"), QStringLiteral("&Spiel"));
        QCOMPARE(f.einst->width(), breiteDeutsch);
        QCOMPARE(kindText(f.liste, "sieg0"), QStringLiteral("Ja"));
        QCOMPARE(f.hilfe->browser()->source().fileName(), QStringLiteral("ratgeber.html"));
        QCOMPARE(abbrechenKnopf(), QStringLiteral("Abbrechen"));

        // Chosen elsewhere, e.g. in another main window: the menu shows it.
        spracheSetzen(sprache(QStringLiteral("en")), false);
        QCoreApplication::processEvents();
        QVERIFY(a.fenster->findChild<QAction*>(QStringLiteral("sprache_en"))->isChecked());
        spracheSetzen(sprache(QStringLiteral("de")), false);
    }

    // A template the translation of a language lacks, or has unfinished, would be shown in German.
    void jedeVorlageInJederSprache() {
        for (const Sprache& s : sprachen()) {
            if (s.code == sprachen().front().code) continue; // the templates' own language
            QTranslator u;
            QVERIFY2(u.load(uebersetzungsdatei(s)), s.code);
            for (std::size_t i = 0; i < kVorlagen; ++i) {
                const char* v = vorlage(static_cast<Vorlage>(i));
                QVERIFY2(
                    !u.translate("Kern", v).isEmpty(),
                    (QString::fromLatin1(s.code) + QStringLiteral(": ") + QString::fromUtf8(v)).toUtf8());
            }
        }
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
            {Text(Vorlage::linkHinweis,
                  {Text(Vorlage::schreibfehler, {Text::wort("QZ.sta")}), Text::wort("QZ.sta")}),
             "The file “QZ.sta” could not be saved. The game goes on without this data. “QZ.sta” is a "
             "symbolic "
             "link that another user may have made or changed; the game does not write through it."},
            {Text(Vorlage::punkte, {Text::wort("")}), "Points: "},
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
