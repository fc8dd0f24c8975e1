// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The line under the board that explains the game as it goes: how to begin, whose turn it is, the move
// number against the limit (with a warning shortly before it), the modes that change how the game
// runs, and why a game ended. It keeps what it shows as facts, not as text, so that a change of
// language rewrites it at once.
#include <QString>
#include <cstdint>

#include "board/spielausgang.h"
#include "ui/statustext.h"

namespace fuh {

// What the line reports, as the screen shows the game now.
struct Lage {
    enum class Zug { keiner, mensch, computer, zweiSpieler, selbstspiel };
    bool begonnen = false; // a game was started in this window
    bool laeuft = false;
    Zug amZug = Zug::keiner;
    Seite seite = Seite::Hennen; // the side to move
    int spielzug = 0;            // positions recorded so far
    bool lernmodus = false, einzelzug = false;
};

class Lagefeld : public Statustext {
    Q_OBJECT
  public:
    explicit Lagefeld(QWidget* parent = nullptr);

    // Shows `lage`; returns what a screen reader should hear of the change: whose turn it is when a
    // person's turn begins, the warning when the move limit comes near, else nothing.
    QString setzen(const Lage& lage);
    // The game ended for the reasons in `gruende` (bit n: Endegrund n); `letzterFuchs`: the last fox on
    // the cross was to be taken off. Shown until the next game begins; returns the line.
    QString ende(uint8_t gruende, bool letzterFuchs);

    // The parts of the line, each in the current language.
    static QString zugText(const Lage& lage);
    static QString zaehlerText(int spielzug);
    static QString warnung(int spielzug); // empty while the limit is still far
    static QString grundText(Endegrund g, bool letzterFuchs);

  protected:
    void changeEvent(QEvent* e) override;

  private:
    void schreiben();

    Lage lage_;
    uint8_t gruende_ = 0; // the last end's reasons, one bit per Endegrund; 0 while none is shown
    bool letzterFuchs_ = false;
};

} // namespace fuh
