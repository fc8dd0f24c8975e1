// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Helpers for the window tests of the saved game: message boxes answered as they open, a game begun and
// played to its end, files read back, and the effective user `nobody` for tests that need a folder
// nobody may write.
#include <QAbstractButton>
#include <QFile>
#include <QPushButton>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "fenster_aufbau.h"
#include "game/mensch.h"

namespace fuh::test {

inline QByteArray inhalt(const std::filesystem::path& p) {
    QFile f(QString::fromStdString(p.string()));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline std::vector<std::string> namen(const std::filesystem::path& ordner) {
    std::vector<std::string> n;
    for (const auto& e : std::filesystem::directory_iterator(ordner))
        n.push_back(e.path().filename().string());
    std::sort(n.begin(), n.end());
    return n;
}

// Answers every message box as it opens: the question about the last game with `fortsetzen` ("Ja" or
// "Nein"), the one about quitting with the button named `beenden`, every other box with OK.
class Beantworter {
  public:
    explicit Beantworter(QMessageBox::StandardButton fortsetzen = QMessageBox::Yes,
                         const char* beenden = "abbrechen")
        : beenden_(beenden), fortsetzen_(fortsetzen) {
        QObject::connect(&uhr_, &QTimer::timeout, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            texte.push_back(box->text());
            if (QAbstractButton* antwort = box->button(fortsetzen_)) {
                ++fragen;
                antwort->click();
            } else if (auto* knopf = box->findChild<QPushButton*>(QString::fromLatin1(beenden_))) {
                knopf->click();
            } else {
                box->accept();
            }
        });
        uhr_.start(5);
    }
    int anzahl(const QString& teil) const {
        return static_cast<int>(
            std::count_if(texte.begin(), texte.end(), [&](const QString& t) { return t.contains(teil); }));
    }
    std::vector<QString> texte;
    int fragen = 0;
    const char* beenden_;

  private:
    QMessageBox::StandardButton fortsetzen_;
    QTimer uhr_;
};

// The effective user becomes `nobody` while the object lives, when the tests run as root: root may
// remove files from a folder nobody may write.
struct AlsNiemand {
    AlsNiemand() {
        if (::geteuid() != 0) return;
        aktiv = ::setegid(65534) == 0 && ::seteuid(65534) == 0;
    }
    ~AlsNiemand() {
        if (!aktiv) return;
        static_cast<void>(::seteuid(0));
        static_cast<void>(::setegid(0));
    }
    bool aktiv = false;
};

// The player's game is begun and one hen moved.
inline void einZug(BrettFenster& f, int von = 24, int nach = 17) {
    f.findChild<QAction*>(QStringLiteral("Neu"))->trigger();
    const auto k = figur_index(f.spiel().stellung(), von);
    QVERIFY(k.has_value());
    f.spiel().abgelegt(nach, *k);
    f.zugTakt();
}

// The player's hens against the computer's foxes until the game ends.
inline void zuEndeSpielen(Aufbau& a, uint32_t seed) {
    Zufall mensch(seed);
    for (int i = 0; i < 5000 && a.spiel().laeuft(); ++i) {
        if (a.spiel().menschAmZug()) menschZieht(a.spiel(), mensch);
        a.fenster->zugTakt(); // nothing while the last move is still being shown
        if (a.spiel().computerAmZug()) QTest::qWait(2);
    }
    QVERIFY(a.spiel().endeGefunden());
}

} // namespace fuh::test
