// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The main window in a temporary data folder, driven like a player: menu commands, mouse drags on the
// board at whatever size it has, message boxes answered as soon as they appear.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <fstream>
#include <memory>
#include <optional>
#include <vector>

#include "game/spiel.h"
#include "ui/brett_fenster.h"
#include "ui/brett_flaeche.h"

namespace fuh::test {

inline constexpr uint32_t kStartzeit = 36000; // fixed seed: every run plays the same game

// Answers every message box as it opens and remembers its text, its icon and whether its whole title
// fits (the box is wider than the title's text): the question about the last game with `fortsetzen`
// ("Ja" or "Nein"), the one about quitting with the button named `beenden`, every other box with OK.
class Antworter {
  public:
    explicit Antworter(QMessageBox::StandardButton fortsetzen = QMessageBox::Yes,
                       const char* beenden = "abbrechen")
        : beenden_(beenden), fortsetzen_(fortsetzen) {
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            texte.push_back(box->text());
            symbole.push_back(box->icon());
            titelPasst.push_back(box->width() > box->fontMetrics().horizontalAdvance(box->windowTitle()));
            if (QAbstractButton* antwort = box->button(fortsetzen_)) {
                ++fragen;
                antwort->click();
            } else if (auto* knopf = box->findChild<QPushButton*>(QString::fromLatin1(beenden_))) {
                knopf->click();
            } else {
                box->accept();
            }
        });
        timer_.start(5);
    }
    int anzahl(const QString& teil) const {
        return static_cast<int>(
            std::count_if(texte.begin(), texte.end(), [&](const QString& t) { return t.contains(teil); }));
    }
    std::vector<QString> texte;
    std::vector<QMessageBox::Icon> symbole;
    std::vector<bool> titelPasst;
    int fragen = 0;
    const char* beenden_;

  private:
    QMessageBox::StandardButton fortsetzen_;
    QTimer timer_;
};

// The settings file's 8 bytes: side, strength, learning, single-move mode.
inline void einstellungenSchreiben(const std::filesystem::path& ordner, std::vector<char> werte) {
    std::vector<char> bytes;
    for (char w : werte) {
        bytes.push_back(w);
        bytes.push_back(0);
    }
    std::ofstream(ordner / "QZ.INI", std::ios::binary).write(bytes.data(), 8);
}

struct Aufbau {
    QTemporaryDir ordner;
    QTemporaryDir fensterEinstellungen; // the window's own settings (size, pace) stay in here
    std::unique_ptr<BrettFenster> fenster;

    // `einst`: side, strength, learning, single-move, written to the settings file before the window
    // starts. `tempo`: sofort shows every move at once.
    explicit Aufbau(std::optional<std::vector<char>> einst = std::nullopt, Tempo tempo = Tempo::sofort) {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, fensterEinstellungen.path());
        if (einst) einstellungenSchreiben(pfad(), *einst);
        starten();
        fenster->tempoSetzen(tempo);
    }
    // A fresh window on the same files and settings, as after a restart.
    void starten() {
        fenster.reset();
        fenster = std::make_unique<BrettFenster>(pfad(), kStartzeit);
        fenster->zugUhr().stop(); // the tests tick by hand
        fenster->show();
        QVERIFY(QTest::qWaitForWindowExposed(fenster.get()));
    }
    std::filesystem::path pfad() const { return ordner.path().toStdString(); }
    // Where the running game is kept between starts, and the offer of the one kept there.
    std::filesystem::path zustand() const { return pfad() / "zustand"; }
    void anbieten() { fenster->fortsetzenAnbieten(zustand()); }
    // A new game, the hen on 24 dragged to 17.
    void ersterZug() {
        aktion("Neu");
        ziehe(24, 17);
    }
    Spiel& spiel() { return fenster->spiel(); }
    BrettFlaeche* brett() { return fenster->brett(); }
    void aktion(const char* name) {
        auto* a = fenster->findChild<QAction*>(QString::fromLatin1(name));
        QVERIFY2(a, name);
        a->trigger();
    }
    QString panel(int n) { return fenster->findChild<QLabel*>(QStringLiteral("panel%1").arg(n))->text(); }
    bool hinweisSichtbar(const char* name) {
        return !fenster->findChild<QLabel*>(QString::fromLatin1(name))->isHidden();
    }

    // The centre of square `s` on the board as it is drawn now.
    QPoint mitte(int s) { return brett()->feldRechteck(s).center(); }
    // A left-button drag from `von` to `ziel` (board coordinates).
    void ziehe(QPoint von, QPoint ziel) {
        QTest::mousePress(brett(), Qt::LeftButton, Qt::NoModifier, von);
        for (int i = 1; i <= 4; ++i)
            QTest::mouseMove(brett(), von + (ziel - von) * i / 4);
        QTest::mouseRelease(brett(), Qt::LeftButton, Qt::NoModifier, ziel);
    }
    void ziehe(int von, QPoint ziel) { ziehe(mitte(von), ziel); }
    void ziehe(int von, int nach) { ziehe(mitte(von), mitte(nach)); }
};

// A file's bytes; empty when it cannot be read.
inline QByteArray inhalt(const std::filesystem::path& p) {
    QFile f(QString::fromStdString(p.string()));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Every piece image stands on the point where the game has the piece, at the board's scale; a hen the
// game has taken is hidden, a parked fox waits beside the cross.
inline void bilderPruefen(Aufbau& a) {
    const auto& platz = a.spiel().stellung().figurplatz;
    for (int k = 0; k < kFiguren; ++k) {
        const SvgBild* figur = a.brett()->figur(k);
        const bool aufDemBrett = BrettFlaeche::istFuchs(k) || platz[k] != kParkfeld;
        QCOMPARE(!figur->isHidden(), aufDemBrett);
        if (aufDemBrett) QCOMPARE(figur->geometry(), a.brett()->feldRechteck(platz[k]));
    }
}

} // namespace fuh::test
