#pragma once
// The computer fox: jumps first, then approach moves guided by spreading potentials, then plain moves.
#include <array>
#include <cstdint>

#include "player/spieltisch.h"

namespace fuh {

class Fuchsspieler {
  public:
    explicit Fuchsspieler(Spieltisch& tisch) : tisch_(tisch) {}

    // Chooses the foxes' move on `Feld` and plays it: on the real board through zug, or in a
    // prediction (`fiktiv`) directly on the working board passed as `Feld`.
    void berechneFuchs(bool fiktiv, Brettfeld& Feld);

  private:
    void scanfuchs(const Brettfeld& Feld);
    void initzugwert() { zugwert_.fill(0); }
    void scan(int x, int y, const Brettfeld& Feld, int i);
    int scanpots(int stufe, const Brettfeld& Feld);
    bool zugDa(int x, int y, int i);
    void zugLeer(int x, int y, int i, const Brettfeld& Feld);
    bool zugAuswahl(bool fiktiv);
    Brettfeld trans() const;
    void psffigzug(int i);
    void eintrag(int i, int wert, int x, int y, int nx, int ny);
    void spiele(bool fiktiv, Brettfeld& Feld);

    Spieltisch& tisch_;
    // Candidate list: 16 entries of value, from x, from y, to x, to y; 0..7 the first fox, 8..15 the second.
    std::array<int16_t, 81> zugwert_{};
    std::array<int16_t, 4> fuchspos_{};
    Brettfeld pots_{};
};

} // namespace fuh
