// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The moves of the game beside the board, in the notation, the move the board shows marked. Choosing a
// move (click, or Return on the list) asks to show the game after it.
#include <QDockWidget>
#include <vector>

#include "game/mitschrift.h"

class QListWidget;

namespace fuh {

class ZuglistePanel : public QDockWidget {
    Q_OBJECT
  public:
    explicit ZuglistePanel(QWidget* parent);
    // The moves, and how many of them the board shows.
    void zeigen(const std::vector<Partiezug>& zuege, bool offen, std::size_t stand);
    QListWidget* liste() const { return liste_; }
    // The text of row n: "Anfang" for the start, else the move n as "12. F e5xe3xc3".
    static QString zeile(const std::vector<Partiezug>& zuege, bool offen, std::size_t n);

  signals:
    void zugGewaehlt(std::size_t stand); // the board is to show the game after this many moves

  protected:
    void changeEvent(QEvent* e) override;

  private:
    void texteSetzen();
    void fuellen();
    QListWidget* liste_;
    std::vector<Partiezug> zuege_;
    bool offen_ = false;
};

} // namespace fuh
