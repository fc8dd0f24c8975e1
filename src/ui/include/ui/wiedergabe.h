// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Plays back what the game reported, in the order it was reported and at a pace a player can follow.
// The game computes a computer move in an instant and the window cuts it into the steps of a glide; here
// those steps are spread over a visible time, and whatever came after a slide (a prompt, a message, a window)
// is shown only when the slide has ended. Everything else is shown at once when its turn comes.
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>
#include <deque>
#include <functional>

#include "board/text.h"

namespace fuh {

// One report of the game to its view.
struct Ereignis {
    enum class Art {
        bewegt,         // a: piece, b: the square it now stands on
        gleitet,        // one step of a glide: a: piece, b: from square, c: to square, schritt: 1..kSchritte
        sichtbar,       // a: piece, ja: shown
        ziehbar,        // ja: pieces unlocked
        hinweis,        // a: prompt, ja: shown
        status,         // a: panel, text
        zugbegrenzung,  // the move limit drew the game
        zug,            // a: from square, b: to square, ja: a computer move
        meldung,        // text, a modal message
        speicherfehler, // text, a modal warning
        oeffnen,        // a: window
        ende,           // a: the reasons, bit n for Endegrund n; b: 1 when the last fox was to be parked
    };
    Art art;
    int a = 0, b = 0, c = 0;
    bool ja = false;
    Text text;
    int schritt = 0;

    static constexpr int kSchritte = 100; // a glide is shown in this many steps at most
};

enum class Tempo { sofort, schnell, normal, langsam };

class Wiedergabe : public QObject {
    Q_OBJECT
  public:
    // `zeigen` puts one report on the screen; for a message it returns when the message is closed.
    explicit Wiedergabe(std::function<void(const Ereignis&)> zeigen, QObject* parent = nullptr);

    Tempo tempo() const { return tempo_; }
    void setTempo(Tempo t);
    // Milliseconds one slide of a piece takes; 0 shows every slide at once.
    int gleitdauer() const;

    // Queues a report. A report made outside a call into the game is shown from the event loop.
    void anhaengen(Ereignis::Art art, int a = 0, int b = 0, int c = 0, bool ja = false, Text text = {});
    void anhaengen(Ereignis e);
    // Shows what is due now; a slide that has to wait goes on by the timer. With Tempo::sofort
    // everything queued is shown before this returns.
    void abspielen();
    // The game was abandoned: every picture goes at once to where the game left it; of its
    // announcements only those for which `behalten` says so are still shown.
    void abbrechen(const std::function<bool(const Ereignis&)>& behalten);
    // While held, nothing is shown: the game is in the middle of a call and lets the window paint.
    void anhalten(bool ja) { angehalten_ = ja; }
    // Something reported is not yet shown, or a message is open.
    bool laeuft() const { return !schlange_.empty() || aktiv_ || pause_.isActive(); }

  signals:
    // Everything reported so far has been shown.
    void fertig();

  private:
    enum class Gleiten { wartet, fertig, abgebrochen };
    // Shows the steps of the running slide that are due now.
    Gleiten gleitenFortsetzen();

    std::function<void(const Ereignis&)> zeigen_;
    std::deque<Ereignis> schlange_;
    Tempo tempo_ = Tempo::normal;
    QTimer takt_;    // drives a running slide
    QTimer pause_;   // the short rest after a slide, so a chain of jumps reads jump by jump
    QTimer anstoss_; // starts the playback of a report nobody asked to be shown
    QElapsedTimer uhr_;
    int gleitLaenge_ = 0;  // steps of the running slide, 0 when none runs
    int gleitGezeigt_ = 0; // of these already shown
    bool aktiv_ = false;   // inside abspielen, possibly in a message's own event loop
    bool angehalten_ = false;
};

} // namespace fuh
