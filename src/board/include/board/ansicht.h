#pragma once
// The one way the game reaches the screen. The window implements it; headless programs log through it.
#include <string>

namespace fuh {

// The four prompt labels of the main window.
enum class Hinweis { f_zug, h_zug, speichern_msg, spr_msg };

// Windows that the game opens by itself.
enum class Fenster { highf, highh };

class Ansicht {
  public:
    virtual ~Ansicht() = default;
    // A piece image moved; the screen repaints it at once (slides show every step).
    virtual void figurBewegt(int k, int left, int top) = 0;
    // One of the 100 steps of a computer piece's slide; a screen may pause briefly so the slide is seen.
    virtual void figurGleitet(int k, int left, int top) { figurBewegt(k, left, top); }
    virtual void figurSichtbar(int k, bool sichtbar) = 0;
    // All pieces draggable (automatic drag mode) or locked.
    virtual void figurenZiehbar(bool ziehbar) = 0;
    // Shows or hides a prompt label and repaints it at once.
    virtual void hinweis(Hinweis h, bool sichtbar) = 0;
    // Panel 1..3 of the status bar.
    virtual void status(int panel, const std::string& text) = 0;
    // A modal message with OK and the application's title; returns when it is closed.
    virtual void meldung(const std::string& text) = 0;
    virtual void oeffnen(Fenster f) = 0;
    // Every executed move, for logs; the screen has already been told through figurBewegt.
    virtual void zugAusgefuehrt(int /*vonX*/, int /*vonY*/, int /*nachX*/, int /*nachY*/, bool /*normal*/) {}
};

} // namespace fuh
