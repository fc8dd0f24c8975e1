// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Game files in the window: a finished game saved, opened after a restart, stepped through with the
// keyboard and the move list, played on from the middle; a damaged file refused; take-back and redo.
#include <QDockWidget>
#include <QListWidget>

#include "fenster_aufbau.h"
#include "game/aufzeichnung.h"
#include "ui/zugliste_panel.h"

using namespace fuh;
using namespace fuh::test;

namespace {
void taste(Aufbau& a, Qt::Key k, Qt::KeyboardModifiers m = Qt::NoModifier) {
    QTest::keyClick(a.fenster.get(), k, m);
    QTRY_VERIFY(!a.fenster->beschaeftigt());
}

// Through the opened game of n moves with the keys: to the start, one on, to the end, one back.
void mitTastenBlaettern(Aufbau& a, const Stellung& ende, std::size_t n) {
    taste(a, Qt::Key_Home);
    Stellung anfang;
    anfang.grundstellung();
    QVERIFY(a.spiel().stellung() == anfang);
    taste(a, Qt::Key_PageDown);
    QCOMPARE(a.fenster->blaetterStand(), std::optional<std::size_t>(1));
    QCOMPARE(a.fenster->zugliste()->liste()->currentRow(), 1);
    QVERIFY(!(a.spiel().stellung() == anfang));
    bilderPruefen(a);
    taste(a, Qt::Key_End);
    QVERIFY(a.spiel().stellung() == ende);
    taste(a, Qt::Key_PageUp);
    QCOMPARE(a.fenster->blaetterStand(), std::optional<std::size_t>(n - 1));
    QVERIFY(!a.spiel().laeuft()); // nothing moves while the game is stepped through
}
} // namespace

class PartieBlaetternTest : public QObject {
    Q_OBJECT
  private slots:
    void speichernOeffnenBlaetternWeiterspielen() {
        Antworter antworter;
        Aufbau a(std::vector<char>{2, 0, 0, 0}); // the computer plays itself
        a.aktion("Neu");
        QTRY_VERIFY(a.spiel().endeGefunden());
        QTRY_VERIFY(!a.fenster->beschaeftigt());
        const Stellung ende = a.spiel().stellung();
        const std::vector<Partiezug> gespielt = a.spiel().mitschrift().zuege;
        const std::size_t n = gespielt.size();
        const std::filesystem::path datei = a.pfad() / "partie.fuh";
        QVERIFY(a.fenster->partieSpeichern(datei));
        a.aktion("zuglisteZeigen");
        QVERIFY(a.fenster->zugliste()->isVisible());

        a.starten(); // the move list stays shown, the game is opened as from the command line
        QVERIFY(a.fenster->zugliste()->isVisible());
        QVERIFY(a.fenster->partieOeffnen(datei));
        QTRY_VERIFY(!a.fenster->beschaeftigt());
        QCOMPARE(a.fenster->blaetterStand(), std::optional<std::size_t>(n));
        QVERIFY(a.spiel().stellung() == ende);
        QListWidget* liste = a.fenster->zugliste()->liste();
        QCOMPARE(static_cast<std::size_t>(liste->count()), n + 1);

        mitTastenBlaettern(a, ende, n);
        if (QTest::currentTestFailed()) return;

        const int mitte = static_cast<int>(n / 2);
        QTest::mouseClick(liste->viewport(), Qt::LeftButton, Qt::NoModifier,
                          liste->visualItemRect(liste->item(mitte)).center());
        QTRY_VERIFY(!a.fenster->beschaeftigt());
        QCOMPARE(a.fenster->blaetterStand(), std::optional<std::size_t>(mitte));
        bilderPruefen(a);

        a.aktion("weiterspielen");
        QVERIFY(a.spiel().zurueckgenommen());  // a game taken up again goes to no high-score list
        QTRY_VERIFY(a.spiel().endeGefunden()); // the computer plays it on from there
        const auto& weiter = a.spiel().mitschrift().zuege;
        QVERIFY(weiter.size() > static_cast<std::size_t>(mitte));
        QVERIFY(std::equal(weiter.begin(), weiter.begin() + mitte, gespielt.begin()));
        QCOMPARE(a.fenster->blaetterStand(), std::nullopt);
    }

    void kaputteDateiWirdMitDerZeileAbgelehnt() {
        Antworter antworter;
        Aufbau a;
        const Stellung vorher = a.spiel().stellung();
        const std::filesystem::path datei = a.pfad() / "kaputt.fuh";
        std::ofstream(datei)
            << "FuH-Partie 1\nDatum: heute\nSpiel: 1\nFüchse: Computer, Stärke 1\nHennen: Mensch\n"
               "Einstellungen: PC 0, Stärke 1, Lernmodus 0, Einzelzug 0\nZurückgenommen: nein\n"
               "Ergebnis: offen\nEnde: -\n\n1. H c4-c3\n";
        QVERIFY(!a.fenster->partieOeffnen(datei));
        QCOMPARE(antworter.texte.back(),
                 QStringLiteral("Zeile 11: Dieser Zug ist nach den Regeln nicht möglich."));
        QCOMPARE(antworter.symbole.back(), QMessageBox::Warning);
        QVERIFY(a.spiel().stellung() == vorher);

        QVERIFY(!a.fenster->partieSpeichern(a.pfad() / "fehlt" / "partie.fuh"));
        QVERIFY(antworter.texte.back().contains(QStringLiteral("partie.fuh")));
    }

    // Ctrl+Z takes the move and its reply back, Ctrl+Shift+Z or Ctrl+Y bring them back; the status bar
    // says until the next game that a game with a move taken back goes to no high-score list.
    void zuruecknehmenUndWiederholenMitDerTastatur() {
        Antworter antworter;
        Aufbau a(std::vector<char>{0, 0, 0, 0}); // the player's hens
        auto* zurueck = a.fenster->findChild<QAction*>(QStringLiteral("zurueck"));
        a.aktion("Neu");
        const Stellung anfang = a.spiel().stellung();
        QVERIFY(!zurueck->isEnabled());
        a.ziehe(feldNummer(3, 3), feldNummer(3, 2));
        a.fenster->zugTakt(); // the computer's reply
        QTRY_VERIFY(!a.fenster->beschaeftigt());
        Spielstand nachher = a.spiel().zustand();
        nachher.zurueckgenommen = true;
        for (const QKeySequence& wieder :
             {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)}) {
            QTest::keySequence(a.fenster.get(), QKeySequence(Qt::CTRL | Qt::Key_Z));
            QTRY_VERIFY(!a.fenster->beschaeftigt());
            QVERIFY(a.spiel().stellung() == anfang);
            QVERIFY(!zurueck->isEnabled());
            bilderPruefen(a);
            QTest::keySequence(a.fenster.get(), wieder);
            QTRY_VERIFY(!a.fenster->beschaeftigt());
            QVERIFY(a.spiel().zustand() == nachher);
            bilderPruefen(a);
        }
        QCOMPARE(a.panel(4), QStringLiteral("Zurückgenommen: keine Bestenliste"));
        QVERIFY(a.hinweisSichtbar("panel4"));
        a.aktion("Neu");
        QVERIFY(!a.hinweisSichtbar("panel4"));
    }
};

QTEST_MAIN(PartieBlaetternTest)
#include "partie_blaettern_test.moc"
