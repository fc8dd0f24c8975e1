// The end-of-move check: record the position, find an end of the game, show the points.
#include "board/gewichte.h"
#include "board/zahlen.h"
#include "game/spiel.h"

namespace fuh {

namespace {
constexpr int kHoechstpunkte = 640; // the foxes' points are this minus the hens' worth
}

bool Spiel::endecheck(int16_t figur) {
    bool ergebnis = false;
    partie_.pstoSits(stellung_);
    spielende(figur);
    if (partie_.spielzug == kZugbegrenzung) {
        ergebnis_ = 3;
        sperren(false); // no move may be recorded past the position table
        ansicht_.zugbegrenzungErreicht();
    }
    if (ergebnis_ > 0) {
        oeff_.sw_spielende = true;
        ergebnis = true;
        endeGefunden_ = true;
        letztesErgebnis_ = ergebnis_;
        // A jump sequence cannot go on after the end; its prompt would only invite a reply.
        if (stellung_.imSprung) {
            stellung_.imSprung = false;
            ansicht_.hinweis(Hinweis::spr_msg, false);
        }
    }
    const auto p = punkte();
    ansicht_.status(Statusfeld::punkte, "Punkte: " + (p ? std::to_string(*p) : std::string()));
    if (oeff_.sw_spielende) beende();
    return ergebnis;
}

void Spiel::spielende(int16_t figur) {
    int n = 0, z = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (stellung_.Feld[x][y] == henne) {
                ++n;
                if (imZielfeld(x, y)) ++z;
            }
    const int PC = oeff_.einst.PC;
    ergebnis_ = 0;
    auto ende = [&](int16_t e, const char* text, bool menschGewinnt) {
        ergebnis_ = e;
        ansicht_.meldung(text);
        sperren(false);
        oeff_.u_is_sieger = menschGewinnt ? "Ja" : "Nein";
    };
    if (z == 9) ende(1, "Die Hennen haben gewonnen!", PC == 0);
    if (n < 9) ende(2, "Der Fuchs hat gewonnen!", PC == 1);
    if (stellung_.nachX == 0 && stellung_.nachY == 0) {
        // The side to move found no move (or the last fox would have been parked).
        if (figur == henne) ende(2, "Der Fuchs hat gewonnen", PC == 1);
        if (figur == fuchs) ende(3, "Remis: Die Hennen können ihr Ziel nicht erreichen.", false);
    }
}

std::optional<int16_t> Spiel::punkte() {
    const int s = hennenwert(stellung_.Feld);
    switch (oeff_.einst.PC) {
    case 0:
        oeff_.score = wrap16(s);
        return oeff_.score;
    case 1:
        oeff_.score = wrap16(kHoechstpunkte - s);
        return oeff_.score;
    default:
        return std::nullopt;
    }
}

} // namespace fuh
