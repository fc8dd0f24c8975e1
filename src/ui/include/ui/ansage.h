// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// What a screen reader hears as it appears on the screen: the computer's moves, the prompts, the status
// texts and the game's messages. The label shows the last of them, and every new one is sent to screen
// readers as a change of its name, also when it repeats the one before.
#include <QLabel>
#include <QString>
#include <vector>

#include "ui/wiedergabe.h"

namespace fuh {

class BrettFlaeche;

class Ansage : public QLabel {
    Q_OBJECT
  public:
    explicit Ansage(const BrettFlaeche& brett, QWidget* parent = nullptr);

    // One report of the game, at the moment it is shown. The jumps of one computer piece are collected
    // into one sentence ("Fuchs c5 nach c3 nach e3"), said when anything else is shown or all is shown.
    void ereignis(const Ereignis& e);
    void sagen(const QString& text);
    // Everything reported so far has been shown.
    void abschliessen();
    // The game was abandoned: a move still being collected is not said.
    void verwerfen() { zugFelder_.clear(); }

  signals:
    void angesagt(const QString& text);

  private:
    void aussprechen(const QString& text);

    const BrettFlaeche& brett_;
    bool zugFuchs_ = false;
    std::vector<int> zugFelder_; // the computer move being collected: its origin, then every landing
};

} // namespace fuh
