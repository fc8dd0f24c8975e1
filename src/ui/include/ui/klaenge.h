// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// What a player hears: a short sound when a piece is set down, a hen is captured, a fox is parked, and
// at the end of a game. The sounds follow the game's reports as they are shown, as the announcements
// do. Playing never blocks; without a sound device the game simply stays silent.
#include <QObject>
#include <QString>
#include <array>
#include <functional>
#include <optional>

#include "board/stellung.h"
#include "ui/wiedergabe.h"

class QSoundEffect;

namespace fuh {

class Klaenge : public QObject {
    Q_OBJECT
  public:
    enum class Klang { abgesetzt, fang, geparkt, sieg, niederlage, remis };
    Q_ENUM(Klang)
    static constexpr int kAnzahl = 6;

    // `menschenseite` tells whose win is the player's: a won game sounds as a win for the side a
    // person plays, and for any winner when nobody or two people play.
    explicit Klaenge(std::function<std::optional<Seite>()> menschenseite, QObject* parent = nullptr);

    bool an() const { return an_; }
    void setAn(bool an) { an_ = an; }

    // One report of the game, at the moment it is shown.
    void ereignis(const Ereignis& e);
    void spielen(Klang k);

  signals:
    // A sound was started (also without a sound device), for tests and for whoever wants to know.
    void gespielt(Klaenge::Klang k);

  private:
    void ende(std::optional<Seite> sieger);

    std::function<std::optional<Seite>()> menschenseite_;
    std::array<QSoundEffect*, kAnzahl> effekte_{};
    bool an_ = true;
};

} // namespace fuh
