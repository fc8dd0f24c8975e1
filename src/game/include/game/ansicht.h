// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The one way the game reaches the screen. The window implements it; headless programs log through it.
#include "board/spielausgang.h"
#include "board/stellung.h"
#include "board/text.h"

namespace fuh {

// The four prompt labels of the main window.
enum class Hinweis { f_zug, h_zug, speichern_msg, spr_msg };

// Windows that the game opens by itself.
enum class Fenster { highf, highh };

// The panels of the status bar; the fourth is empty unless a move of the game was taken back.
enum class Statusfeld { seite = 1, staerke = 2, punkte = 3, zuruecknahme = 4 };

// The mouse button pressed on a piece.
enum class Maustaste { links = 1, rechts = 2 };

class Ansicht {
  public:
    virtual ~Ansicht() = default;
    // What happens to the pieces, once each, in the game's squares. `gleitet`: the computer moved it, so a
    // screen lets it glide; a person's own piece is set down at once.
    virtual void figurGezogen(int /*k*/, int /*von*/, int /*nach*/, bool /*gleitet*/) {}
    // A jump took hen k off square `feld`; she has no square any more.
    virtual void henneGeschlagen(int /*k*/, int /*feld*/) {}
    // The penalty rule parked fox k beside the cross (on kParkfeld), or brought it back onto `nach`.
    virtual void fuchsGeparkt(int /*k*/, int /*von*/, bool /*gleitet*/) {}
    virtual void fuchsZurueck(int /*k*/, int /*nach*/, bool /*gleitet*/) {}
    // Every piece stands anew where `s` has it (a new game, a take-back, a game continued or opened).
    virtual void aufgestellt(const Stellung& /*s*/) {}
    // All pieces draggable (automatic drag mode) or locked.
    virtual void figurenZiehbar(bool ziehbar) = 0;
    // Shows or hides a prompt label and repaints it at once.
    virtual void hinweis(Hinweis h, bool sichtbar) = 0;
    // A panel's text; the empty text clears it.
    virtual void status(Statusfeld feld, const Text& text) = 0;
    // A modal message with OK and the application's title; returns when it is closed.
    virtual void meldung(const Text& text) = 0;
    // Files that could not be saved at one moment, named in one message; a screen may mark it as a warning.
    virtual void speicherfehler(const Text& text) { meldung(text); }
    // The game was drawn because the move limit was reached; it announces nothing else.
    virtual void zugbegrenzungErreicht() {}
    // The game is over, for every reason in `ausgang`; reported before the end's messages.
    virtual void spielEndet(const Spielausgang& /*ausgang*/) {}
    virtual void oeffnen(Fenster f) = 0;
    // Another program is using the data files and the game waits for it, a few seconds at most: called
    // again and again while it waits, then once with `fertig`. A screen keeps painting meanwhile and
    // shows that it is busy; nothing may call into the game until the wait is over.
    virtual void wartetAufDateien(bool /*fertig*/) {}
    // Every executed move, for logs; the screen has already been told through figurGezogen.
    virtual void zugAusgefuehrt(int /*vonX*/, int /*vonY*/, int /*nachX*/, int /*nachY*/, bool /*normal*/) {}
};

} // namespace fuh
