// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window driven as a player would: menu commands, mouse drags, timer ticks, message boxes.
#include <QAction>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <vector>

#include "tastatur_helfer.h"
#include "ui/ansage.h"
#include "ui/stat_form.h"
#include "versetzen.h"

using namespace fuh;
using namespace fuh::test;

namespace {

std::vector<int> fuchsFelder(const Stellung& s) {
    std::vector<int> f;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (s.Feld[x][y] == fuchs) f.push_back(feldNummer(x, y));
    return f;
}

// After the computer hens' opening, the hen on (2, 4) is put by hand on (3, 3): the fox on (2, 2) can
// then jump (2, 3) onto (2, 4), and the fox on (4, 2) can jump (3, 3) onto (2, 4) too.
void sprungVorbereiten(Aufbau& a) {
    QVERIFY(test::versetzen(a.spiel(), feldNummer(2, 4), feldNummer(3, 3)));
    QCoreApplication::processEvents(); // the window shows the position it was given
}

// As above, with the hen on c1 put aside: a chain of jumps over c4 may go on over c2.
void ketteVorbereiten(Aufbau& a) {
    sprungVorbereiten(a);
    QVERIFY(test::versetzen(a.spiel(), feldNummer(2, 6), feldNummer(0, 2)));
    QCoreApplication::processEvents();
}

// Drags of the hen on 24 that the board refuses: onto the fox, onto itself, between targets, outside,
// with the right button.
void abgelehnteZuege(Aufbau& a) {
    for (const QPoint ziel :
         {a.mitte(16), a.mitte(24), a.brett()->brettRechteck().topLeft() + QPoint(100, 60),
          QPoint(a.brett()->width() + 30, 60)})
        a.ziehe(24, ziel);
    QTest::mousePress(a.brett(), Qt::RightButton, Qt::NoModifier, a.mitte(24));
    QTest::mouseMove(a.brett(), a.mitte(17));
    QTest::mouseRelease(a.brett(), Qt::RightButton, Qt::NoModifier, a.mitte(17));
    // Nor over a window lying on the board: the board holds the mouse, but the release is not its.
    a.aktion("statistik");
    QPointer<StatForm> stat = a.fenster->findChild<StatForm*>();
    stat->move(a.brett()->mapToGlobal(a.mitte(17)) - QPoint(20, 20));
    a.ziehe(24, 17);
    stat->close();
}

// Piece images shown on the board itself.
int sichtbareBilder(Aufbau& a) {
    int sichtbar = 0;
    for (const SvgBild* b : a.brett()->findChildren<SvgBild*>(Qt::FindDirectChildrenOnly))
        sichtbar += b->isVisible() ? 1 : 0;
    return sichtbar;
}

} // namespace

class BrettFensterTest : public QObject {
    Q_OBJECT
  private slots:
    void startUndNeu() {
        Aufbau a;
        QCOMPARE(a.panel(2), QStringLiteral("Spielstärke 1"));
        for (const char* h : {"f_zug", "h_zug", "spr_msg", "speichern_msg"})
            QVERIFY2(!a.hinweisSichtbar(h), h);
        QVERIFY(!a.spiel().ziehbar());
        bilderPruefen(a);
        QVERIFY(a.fenster->maximumSize().width() > 2000); // the window can grow

        a.aktion("start");
        QVERIFY(a.spiel().ziehbar());
    }

    void ziehenMitDerMausUndAntwort() {
        Aufbau a;
        QSignalSpy gedrueckt(a.brett(), &BrettFlaeche::figurGedrueckt);
        QSignalSpy abgelegt(a.brett(), &BrettFlaeche::abgelegt);
        const Stellung anfang = a.spiel().stellung();
        // Locked before Neu: the drag moves nothing, but the right button still reaches the game.
        a.ziehe(24, 17);
        QTest::mouseClick(a.brett(), Qt::RightButton, Qt::NoModifier, a.mitte(16));
        QCOMPARE(gedrueckt.count(), 2);
        QCOMPARE(gedrueckt.at(1).at(1).toInt(), 2);
        QCOMPARE(a.spiel().stellung().figurplatz[gedrueckt.at(1).at(0).toInt()], 16);

        a.aktion("Neu");
        abgelehnteZuege(a);
        QCOMPARE(abgelegt.count(), 0);
        QVERIFY(a.spiel().stellung() == anfang);
        QVERIFY(!a.brett()->ziehtGerade());

        const auto fuechse = fuchsFelder(anfang);
        const int k = *figur_index(anfang, 24);
        a.ziehe(24, a.mitte(17) + QPoint(14, -14)); // a corner of the target still counts
        QCOMPARE(QList<QVariantList>(abgelegt), QList<QVariantList>({{17, k}}));
        QCOMPARE(a.spiel().stellung().figurplatz[k], 17);
        QCOMPARE(a.panel(3), QStringLiteral("Punkte: 237"));
        bilderPruefen(a);
        // No stray floating copy survives the drags.
        QCOMPARE(sichtbareBilder(a), kFiguren);

        // The fox replies on the next tick; its slide ends on its square.
        a.fenster->zugTakt();
        QVERIFY(fuchsFelder(a.spiel().stellung()) != fuechse);
        QVERIFY(!a.hinweisSichtbar("f_zug"));
        bilderPruefen(a);
        // A new game does not show the points of the one before.
        a.aktion("Neu");
        QCOMPARE(a.panel(3), QString());
    }

    void fuchssprungMitRechtsklickAbschliessen() {
        Aufbau a({{1, 0, 0, 0}});
        Antworter antworter;
        QCOMPARE(a.panel(1), QStringLiteral("PC spielt Hennen"));
        a.aktion("Neu"); // the computer's hens move first
        QCOMPARE(a.panel(3), QStringLiteral("Punkte: 403"));

        ketteVorbereiten(a);
        const int von = feldNummer(2, 2), nach = feldNummer(2, 4);
        const int fuchsK = *figur_index(a.spiel().stellung(), von);
        QSignalSpy gesagt(a.fenster->findChild<Ansage*>(), &Ansage::angesagt);
        a.ziehe(von, nach);
        QVERIFY(a.spiel().sprungfolge().imSprung);
        QVERIFY(a.hinweisSichtbar("spr_msg"));
        // The prompt names the keys that close the chain, on screen and to a screen reader.
        QVERIFY(
            a.brett()->hinweisLabel(Hinweis::spr_msg)->toolTip().contains(QStringLiteral("Umschalt+F10")));
        QTRY_VERIFY(ansagen(gesagt).contains(QStringLiteral("Umschalt+F10")));
        QCOMPARE(a.spiel().stellung().Feld[2][3], leer);
        bilderPruefen(a);     // the captured hen's image is gone
        a.fenster->zugTakt(); // the hens wait until the sequence is closed
        QVERIFY(a.spiel().sprungfolge().imSprung);

        QTest::mouseClick(a.brett(), Qt::RightButton, Qt::NoModifier, a.mitte(nach));
        QVERIFY(!a.spiel().sprungfolge().imSprung);
        QVERIFY(!a.hinweisSichtbar("spr_msg"));
        QCOMPARE(a.spiel().stellung().figurplatz[fuchsK], nach);

        const Stellung vorher = a.spiel().stellung();
        a.fenster->zugTakt();
        QVERIFY(!(a.spiel().stellung() == vorher));
        QVERIFY(antworter.texte.empty());
    }

    // A chain with no further jump ends by itself: the hens answer without the right button, and the
    // prompt to close the chain is not said.
    void sprungketteEndetVonSelbst() {
        Aufbau a({{1, 0, 0, 0}});
        a.aktion("Neu");
        ketteVorbereiten(a);
        a.ziehe(feldNummer(2, 2), feldNummer(2, 4));
        QVERIFY(a.spiel().sprungfolge().imSprung);
        QSignalSpy gesagt(a.fenster->findChild<Ansage*>(), &Ansage::angesagt);
        a.ziehe(feldNummer(2, 4), feldNummer(2, 6));
        QTest::qWait(20); // what the jump brought is said
        QVERIFY2(!ansagen(gesagt).contains(QStringLiteral("Umschalt+F10")), qPrintable(ansagen(gesagt)));
        QVERIFY(!a.spiel().sprungfolge().imSprung && !a.hinweisSichtbar("spr_msg"));
        const Stellung vorher = a.spiel().stellung();
        a.fenster->zugTakt();
        QVERIFY(!(a.spiel().stellung() == vorher));
    }

    void verpassterSprungWirdGemeldet() {
        Aufbau a({{1, 0, 0, 0}});
        a.aktion("Neu");
        sprungVorbereiten(a);
        a.ziehe(feldNummer(4, 2), feldNummer(4, 1)); // a step although both foxes could jump
        Antworter antworter;
        a.fenster->zugTakt();
        QCOMPARE(antworter.texte.size(), std::size_t{1});
        QVERIFY(antworter.texte[0].startsWith(QStringLiteral("Der Fuchs hätte springen können.")));
        const auto geparkt = figur_index(a.spiel().stellung(), kParkfeld);
        QVERIFY(geparkt && *geparkt < 2);
        bilderPruefen(a);
    }

    // The Meister chosen in the settings plays the computer's side, shows in the status bar and is still
    // chosen after a restart.
    void meisterSpieltUndBleibt() {
        Aufbau a({{0, 2, 0, 0}});
        a.fenster->spielerSetzen({true, false});
        a.aktion("Neu");
        QVERIFY(a.spiel().spielerwahl().fuchs && a.spiel().spielerwahl().fuchs->meister);
        a.starten();
        QVERIFY(a.fenster->spielerauswahl().meister);
        QCOMPARE(a.panel(2), QStringLiteral("Meister"));
        a.fenster->spielerSetzen({false, false});
        a.aktion("Neu");
        QCOMPARE(a.panel(2), QStringLiteral("Spielstärke 3"));
    }
};

QTEST_MAIN(BrettFensterTest)
#include "brett_fenster_test.moc"
