// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// What a screen reader hears as it appears on the screen: the computer's moves, the prompts, the changed
// status texts and the game's messages. A screen reader reads the label's name some time after it was
// told of a change, so what appears in one go (a move, then the points) is said as one text, and a
// repeated text is told again all the same. The label shows the last text said that no other field shows.
#include <QString>
#include <QStringList>
#include <QTimer>
#include <array>
#include <vector>

#include "ui/statustext.h"
#include "ui/wiedergabe.h"

namespace fuh {

class BrettFlaeche;

class Ansage : public Statustext {
    Q_OBJECT
  public:
    explicit Ansage(const BrettFlaeche& brett, QWidget* parent = nullptr);

    // One report of the game, at the moment it is shown. The jumps of one computer piece are collected
    // into one sentence ("Fuchs c5 nach c3 nach e3"), said when anything else is shown or all is shown.
    void ereignis(const Ereignis& e);
    // A suggested move (origin, then each landing square), said as the computer's moves are, and the
    // game's exact verdict on the endgame when it knows one (translated here).
    void tipp(const std::vector<int>& felder, const Text& urteil = {});
    // Said when control returns to the event loop, together with whatever else is said until then;
    // shown in the field as well unless `zeigen` is false for all of it (a text the window shows
    // elsewhere already).
    void sagen(const QString& text, bool zeigen = true);
    // What was said last: the name screen readers read.
    const QString& gesprochen() const { return gesprochen_; }
    // Everything reported so far has been shown.
    void abschliessen();
    // The game was abandoned: nothing of it still waiting is said.
    void verwerfen();

  signals:
    void angesagt(const QString& text);

  protected:
    // What was said stays in the language it was said in; another language clears it.
    void changeEvent(QEvent* e) override;

  private:
    QString zugSatz(bool fuchs, const std::vector<int>& felder) const;
    void aussprechen();

    const BrettFlaeche& brett_;
    QStringList wartend_;
    bool zeigen_ = false; // something waiting is to be shown
    QString gesprochen_;
    QTimer gleich_;
    std::array<Text, 4> status_; // the panels' texts, so that only a change is said
    bool zugFuchs_ = false;
    std::vector<int> zugFelder_; // the computer move being collected: its origin, then every landing
};

} // namespace fuh
