// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The windows the main window opens from its menu: which are brought forward, which are made fresh.
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>
#include <algorithm>
#include <vector>

#include "fenster_aufbau.h"
#include "ui/einst_dialog.h"
#include "ui/highscore_fenster.h"
#include "ui/hilfe_fenster.h"
#include "ui/info_win.h"
#include "ui/stat_form.h"

using namespace fuh;
using namespace fuh::test;

namespace {

// Visible windows of type W belonging to the main window.
template <class W> int offene(BrettFenster& f) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto alle = f.findChildren<W*>();
    return static_cast<int>(std::count_if(alle.begin(), alle.end(), [](W* w) { return w->isVisible(); }));
}

// Asking again brings the one open window forward.
void einzelneFensterKommenNachVorn(Aufbau& a) {
    for (const char* name : {"Einstellungen", "hilfeZeigen", "info", "Einstellungen", "hilfeZeigen", "info"})
        a.aktion(name);
    QCOMPARE(a.fenster->findChildren<EinstDialog*>().size(), 1);
    QCOMPARE(a.fenster->findChildren<HilfeFenster*>().size(), 1);
    QCOMPARE(a.fenster->findChildren<InfoWin*>().size(), 1);
    // The help opens at its first topic also when the open one was left elsewhere.
    QTextBrowser* hilfe = a.fenster->findChild<HilfeFenster*>()->browser();
    hilfe->setSource(QUrl(QStringLiteral("qrc:/hilfe/ratgeber.html#punkte")));
    QVERIFY(hilfe->verticalScrollBar()->value() > 0);
    a.aktion("hilfeZeigen");
    QCOMPARE(hilfe->source(), QUrl(QStringLiteral("qrc:/hilfe/ratgeber.html")));
    QCOMPARE(hilfe->verticalScrollBar()->value(), 0);
    QVERIFY(QApplication::activeModalWidget() == nullptr); // modeless: the board stays usable
}

// Lists and statistics are made fresh each time; the game may open a list on its own.
void listenUndStatistikNeu(Aufbau& a) {
    for (const char* name : {"statistik", "statistik", "highscoreFuchs", "highscoreHennen"})
        a.aktion(name);
    a.fenster->oeffnen(Fenster::highf);
    QTRY_VERIFY(!a.fenster->beschaeftigt());
    QCOMPARE(std::tuple(offene<StatForm>(*a.fenster), offene<HighscoreFenster>(*a.fenster),
                        a.fenster->findChildren<HighscoreFenster*>().size()),
             std::tuple(1, 2, qsizetype{2}));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

// A finished game the player won with this score: the hens' list opens with a row for the name.
void spielEnde(Aufbau& a, int16_t score) {
    Oeffentlich& o = a.spiel().oeffentlich();
    o.score = score;
    o.u_is_sieger = "Ja";
    o.sw_spielende = true;
    a.fenster->oeffnen(Fenster::highh);
    QTRY_VERIFY(!a.fenster->beschaeftigt());
}

// The hens' lists that are open.
std::vector<HighscoreFenster*> hennenListen(Aufbau& a) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    std::vector<HighscoreFenster*> l;
    for (auto* w : a.fenster->findChildren<HighscoreFenster*>())
        if (w->liste().seite() == Seite::Hennen && w->isVisible()) l.push_back(w);
    return l;
}

} // namespace

class MenueFensterTest : public QObject {
    Q_OBJECT
  private slots:
    void fensterAusDemMenue() {
        Aufbau a;
        einzelneFensterKommenNachVorn(a);
        if (QTest::currentTestFailed()) return;
        listenUndStatistikNeu(a);
        if (QTest::currentTestFailed()) return;

        // A list whose new row still waits for its name is never replaced: not by the menu, and not
        // by the list of the next finished game, which opens beside it.
        spielEnde(a, 300);
        if (QTest::currentTestFailed()) return;
        QPointer<HighscoreFenster> erste = hennenListen(a).at(0);
        QCOMPARE(erste->liste().neuePos(), 0);
        a.aktion("highscoreHennen");
        QVERIFY(!erste.isNull() && erste->isVisible());
        QCOMPARE(hennenListen(a).size(), 1u);
        spielEnde(a, 200);
        if (QTest::currentTestFailed()) return;
        const auto beide = hennenListen(a);
        QCOMPARE(beide.size(), 2u);
        for (HighscoreFenster* w : beide)
            QCOMPARE(w->liste().neuePos(), 0);
        QVERIFY(!beide[0]->frameGeometry().intersects(beide[1]->frameGeometry()));
        a.aktion("highscoreHennen");
        QCOMPARE(hennenListen(a).size(), 2u);
        QCOMPARE(offene<HighscoreFenster>(*a.fenster), 3); // the foxes' list stays as it was
    }

    // F11 toggles full screen from the board; the about box names the version the build was made as.
    void vollbildUndVersion() {
        Aufbau a;
        QVERIFY(QTest::qWaitForWindowActive(a.fenster.get()));
        QVERIFY(!a.fenster->isFullScreen());
        QTest::keyClick(a.brett(), Qt::Key_F11);
        QTRY_VERIFY(a.fenster->isFullScreen());
        QTest::keyClick(a.brett(), Qt::Key_F11);
        QTRY_VERIFY(!a.fenster->isFullScreen());

        a.aktion("info");
        auto* version = a.fenster->findChild<InfoWin*>()->findChild<QLabel*>(QStringLiteral("version"));
        QCOMPARE(version->text(), QStringLiteral("Version " FUH_PROJEKTVERSION));
        // The mail address looks like a link, but like every label of the box it ignores clicks.
        auto* mail = a.fenster->findChild<InfoWin*>()->findChild<QLabel*>(QStringLiteral("email"));
        QSignalSpy angeklickt(mail, &QLabel::linkActivated);
        QTest::mouseClick(mail, Qt::LeftButton, Qt::NoModifier, QPoint(8, mail->height() / 2));
        QCOMPARE(angeklickt.count(), 0);
    }
};

QTEST_MAIN(MenueFensterTest)
#include "menuefenster_test.moc"
