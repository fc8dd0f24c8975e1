// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window shows the computer's moves at a pace a player can follow, scales with the window,
// and reports what went wrong in one message: driven like a player on the offscreen platform.
#include <QScreen>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <vector>

#include "fenster_aufbau.h"
#include "player/strafregel.h"
#include "ui/ansage.h"
#include "ui/lagefeld.h"

using namespace fuh;
using namespace fuh::test;

namespace {

struct Schritt {
    int k, left, top;
};

// A hen that can step straight up now: its square and the one above.
std::pair<int, int> hennenschritt(const Stellung& s) {
    for (int y = 6; y > 0; --y)
        for (int x = 0; x <= 6; ++x)
            if (s.Feld[x][y] == henne && aufKreuz(x, y - 1) && s.Feld[x][y - 1] == leer)
                return {feldNummer(x, y), feldNummer(x, y - 1)};
    qFatal("no hen can step up");
}

// 100 positions of one fox, each closer to where it ends: a glide, not a jump. That it ends on the
// game's square is for bilderPruefen to say.
void gleitetZumZiel(const std::vector<Schritt>& schritte) {
    QCOMPARE(schritte.size(), 100u);
    const int k = schritte[0].k;
    QVERIFY(k < 2);
    const auto abstand = [&](const Schritt& s) {
        return std::abs(s.left - schritte.back().left) + std::abs(s.top - schritte.back().top);
    };
    for (size_t i = 1; i < schritte.size(); ++i) {
        QCOMPARE(schritte[i].k, k);
        QVERIFY(abstand(schritte[i]) < abstand(schritte[i - 1]));
    }
}

} // namespace

class WiedergabeTest : public QObject {
    Q_OBJECT
  private slots:
    void computerzugGleitetSichtbar() {
        Aufbau a(std::nullopt, Tempo::normal);
        a.ersterZug();

        // Halfway through the fox's slide the player tries to move a hen and to start a game.
        std::vector<Schritt> schritte;
        bool zugAbgelehnt = false, startGesperrt = false, hinweisDa = false, schonMarkiert = true;
        QObject::connect(a.brett(), &BrettFlaeche::figurVersetzt, [&](int k, int left, int top) {
            schritte.push_back({k, left, top});
            if (schritte.size() != 50) return;
            const Stellung vorher = a.spiel().stellung();
            const auto [von, nach] = hennenschritt(vorher);
            a.ziehe(von, nach);
            zugAbgelehnt = a.spiel().stellung() == vorher && !a.brett()->ziehtGerade();
            startGesperrt = !a.fenster->findChild<QAction*>(QStringLiteral("start"))->isEnabled();
            hinweisDa = a.hinweisSichtbar("f_zug");
            schonMarkiert = a.brett()->markierung().has_value();
        });
        a.fenster->zugTakt();
        // The game has moved; the screen has only begun to show it.
        QVERIFY(!a.spiel().computerAmZug());
        QVERIFY(schritte.size() < 100);
        QVERIFY(a.fenster->beschaeftigt());
        QTRY_VERIFY(!a.fenster->beschaeftigt());

        gleitetZumZiel(schritte);
        if (QTest::currentTestFailed()) return;
        QVERIFY(zugAbgelehnt && startGesperrt && hinweisDa && !schonMarkiert);

        // Afterwards the prompt is gone, the move is marked, and the hen can move.
        QVERIFY(!a.hinweisSichtbar("f_zug"));
        const Stellung& s = a.spiel().stellung();
        const Teilzug& z = a.spiel().zugregister();
        QCOMPARE(a.brett()->markierung(),
                 std::make_optional(std::pair{feldNummer(z.vonX, z.vonY), feldNummer(z.nachX, z.nachY)}));
        bilderPruefen(a);
        const auto [von, nach] = hennenschritt(s);
        a.ziehe(von, nach);
        QCOMPARE(a.spiel().stellung().Feld[feldX(nach)][feldY(nach)], henne);
        QVERIFY(!a.brett()->markierung());
    }

    void brettWaechstMitDemFenster() {
        Aufbau a;
        a.fenster->resize(1, 1);
        QTRY_COMPARE(a.brett()->brettRechteck(), QRect(0, 0, 400, 400));
        QLabel* hinweis = a.fenster->findChild<QLabel*>(QStringLiteral("spr_msg"));
        const QRect hinweisKlein = hinweis->geometry();
        const qreal schriftKlein = hinweis->font().pointSizeF();

        // Twice the size: pieces, prompts and drop targets all scale.
        const QSize klein = a.fenster->size();
        a.fenster->resize(klein + QSize(400, 400));
        QTRY_COMPARE(a.brett()->brettRechteck(), QRect(0, 0, 800, 800));
        QCOMPARE(a.brett()->figur(0)->size(), QSize(64, 64));
        QVERIFY(std::abs(hinweis->width() - 2 * hinweisKlein.width()) <= 2);
        QVERIFY(std::abs(hinweis->y() - 2 * hinweisKlein.y()) <= 2);
        QVERIFY(hinweis->font().pointSizeF() > 1.8 * schriftKlein);
        bilderPruefen(a);
        a.aktion("Neu");
        const int k = *figur_index(a.spiel().stellung(), 24);
        a.ziehe(a.brett()->figur(k)->geometry().center(), a.mitte(17));
        QCOMPARE(a.spiel().stellung().figurplatz[k], 17);
        bilderPruefen(a);

        // A wide window: the board stays square and in the middle.
        a.fenster->resize(klein + QSize(600, 200));
        QTRY_COMPARE(a.brett()->brettRechteck(), QRect(200, 0, 600, 600));
        bilderPruefen(a);

        // Size and pace survive a restart (a size within the screen: a larger one is fitted into it).
        a.fenster->resize(a.fenster->screen()->availableGeometry().size() * 3 / 4);
        const QSize groesse = a.fenster->size();
        a.aktion("tempo_langsam");
        a.starten();
        QCOMPARE(a.fenster->size(), groesse);
        QCOMPARE(a.fenster->tempo(), Tempo::langsam);
        QVERIFY(a.fenster->findChild<QAction*>(QStringLiteral("tempo_langsam"))->isChecked());
    }

    void speicherfehlerInEinerMeldung() {
        // Folders where the statistics and the learned moves of strength 3 belong: neither can be written.
        Aufbau a({{2, 2, 1, 0}});
        std::filesystem::create_directory(a.pfad() / "QZ.sta");
        std::filesystem::create_directory(a.pfad() / "QZ3.DAT");
        Antworter antworter;
        a.aktion("Neu");
        QTRY_VERIFY(!a.fenster->beschaeftigt());
        QVERIFY(a.spiel().endeGefunden());

        // The start could not be counted; at the end both files are named in one warning, after the
        // result, which is no warning. (Which files the warning names is the game's to say.)
        QCOMPARE(std::count(antworter.symbole.begin(), antworter.symbole.end(), QMessageBox::Warning), 2);
        QVERIFY(antworter.texte.size() >= 3);
        QCOMPARE(antworter.symbole.front(), QMessageBox::Warning);
        QCOMPARE(antworter.symbole.back(), QMessageBox::Warning);
        QVERIFY(antworter.texte.back().contains(QStringLiteral("QZ3.DAT")));
        QCOMPARE(std::count(antworter.titelPasst.begin(), antworter.titelPasst.end(), false), 0);
        QVERIFY(std::filesystem::is_directory(a.pfad() / "QZ3.DAT"));
    }

    // Watching the computer play itself, the penalty rule's word is a note: no box halts the game. In the
    // middle of a slide, some moves in, the player switches to the hens and presses "Neu": a fresh game,
    // shown as the game holds it, and the watched one leaves no trace. A person's game gets the box.
    void zuschauenUndMitNeuAbbrechen() {
        Aufbau a({{2, 0, 0, 0}}, Tempo::schnell);
        Antworter antworter;
        a.aktion("Neu");
        QVERIFY(a.spiel().selbstspielLaeuft() && a.fenster->beschaeftigt());
        a.fenster->meldung(Vorlage::fuchsAusgeschlossen);
        const QLabel* ansage = a.fenster->findChild<Ansage*>();
        QTRY_VERIFY(ansage->text().contains(QString::fromUtf8(vorlage(Vorlage::fuchsAusgeschlossen))));
        // The settings can be changed while watching (what a change does is the game's to say).
        QVERIFY(a.fenster->findChild<QAction*>(QStringLiteral("Einstellungen"))->isEnabled());

        int letzteFigur = -1, schrittImGleiten = 0, schritte = 0;
        bool neuGedrueckt = false;
        QObject::connect(a.brett(), &BrettFlaeche::figurVersetzt, [&](int k, int, int) {
            ++schritte;
            schrittImGleiten = k == letzteFigur ? schrittImGleiten + 1 : 1;
            letzteFigur = k;
            if (neuGedrueckt || schrittImGleiten != 50 || a.spiel().spielzug() < 4) return;
            neuGedrueckt = true;
            einstellungenSchreiben(a.pfad(), {0, 0, 0, 0});
            a.aktion("Neu");
        });
        QTRY_VERIFY_WITH_TIMEOUT(neuGedrueckt, 60000);
        QTRY_VERIFY(!a.fenster->beschaeftigt());
        Stellung anfang;
        anfang.grundstellung();
        QVERIFY(a.spiel().stellung() == anfang);
        bilderPruefen(a);
        QVERIFY(!a.brett()->markierung() && !a.hinweisSichtbar("f_zug"));
        const int gezeigt = schritte;
        QCoreApplication::processEvents();
        QCOMPARE(schritte, gezeigt);
        QVERIFY(antworter.texte.empty());

        a.fenster->meldung(Vorlage::fuchsAusgeschlossen);
        QTRY_COMPARE(antworter.texte.size(), size_t{1});
    }

    // Single-move mode with the player's foxes after the hens' opening: one fox steps back and forth until
    // the limit. The line under the board warns ten moves before it; the end is a note, not a box.
    void zugbegrenzungSagtRemis() {
        Aufbau a({{1, 0, 0, 1}});
        Antworter antworter;
        const Lagefeld* lage = a.fenster->findChild<Lagefeld*>();
        QVERIFY(lage->text().startsWith(QStringLiteral("Spiel → Neu (Strg+N) beginnt eine Partie")));
        a.aktion("Neu");
        for (int i = 0; i < 200 && a.spiel().ziehbar(); ++i) {
            if (a.spiel().spielzug() == 139)
                QVERIFY2(
                    lage->text().contains(QStringLiteral("Zug 139 von 149 · Noch 10 Züge bis zum Remis")),
                    qPrintable(lage->text()));
            a.ziehe(i % 2 == 0 ? 16 : 9, i % 2 == 0 ? 9 : 16);
        }
        QCOMPARE(a.spiel().spielzug(), kZugbegrenzung);
        QCOMPARE(a.fenster->statusBar()->currentMessage(), QStringLiteral("Remis: Zugbegrenzung erreicht"));
        QVERIFY(antworter.texte.empty());
        QVERIFY(lage->text().startsWith(
            QStringLiteral("Spielende: Die Zugbegrenzung von 149 Zügen ist erreicht.")));
        a.aktion("Neu");
        QCOMPARE(a.fenster->statusBar()->currentMessage(), QString());
    }
};

QTEST_MAIN(WiedergabeTest)
#include "wiedergabe_test.moc"
