#pragma once
// What the computer players need of the running game.
#include <cstdint>
#include <string>

#include "board/ansicht.h"
#include "board/stellung.h"
#include "memory/partie.h"

namespace fuh {

class Spieltisch {
  public:
    virtual ~Spieltisch() = default;
    virtual Stellung& spielstellung() = 0;
    virtual const Partie& partieDaten() const = 0;
    // Learned value of a position for the side `figur`, with the repetition guard.
    virtual int16_t erinnern(const Brettfeld& Feld, int16_t figur) = 0;
    // Int(Rnd * n) + 1 from the game's random source.
    virtual int ziehe(int n) = 0;
    // Executes the move register on the real board.
    virtual void zug(bool normal) = 0;
    virtual bool endecheck(int16_t figur) = 0;
    virtual void meldung(const std::string& text) = 0;
    virtual void hinweis(Hinweis h, bool sichtbar) = 0;
    virtual int16_t einzelzug() const = 0;
    // The penalty rule would have taken the last fox off the board.
    virtual void letzterFuchsAusgeschlossen() = 0;
};

} // namespace fuh
