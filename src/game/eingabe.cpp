// The human's moves: drops of a piece on a square, and the right mouse button closing a jump sequence.
#include "board/regeln.h"
#include "game/spiel.h"

namespace fuh {

void Spiel::platz_DragDrop(int t, int k) {
    if (!bilder_.ziehbar || t < 0 || t >= kFelder || k < 0 || k >= kFiguren) return;
    Stellung& s = stellung_;
    const int von = s.figurplatz[k];
    s.vonX = static_cast<int16_t>(feldX(von));
    s.vonY = static_cast<int16_t>(feldY(von));
    s.nachX = static_cast<int16_t>(feldX(t));
    s.nachY = static_cast<int16_t>(feldY(t));
    const int PC = oeff_.einst.PC;
    if (!korrekterZug(s, PC, s.vonX, s.vonY, s.nachX, s.nachY)) return;
    zug(true);
    if (endecheck(s.Feld[s.nachX][s.nachY])) return;
    if (oeff_.einst.Einzelzug != 0) return;
    if (s.nachX == s.vonX && s.nachY == s.vonY) return;
    if (PC == 1 && !s.imSprung)
        pcZug_ = 1;
    else if (PC == 0)
        pcZug_ = 2;
}

void Spiel::figur_MouseDown(int /*k*/, Maustaste button) {
    if (button != Maustaste::rechts || !stellung_.imSprung) return;
    stellung_.imSprung = false;
    ansicht_.hinweis(Hinweis::spr_msg, false);
    pcZug_ = 1;
}

} // namespace fuh
