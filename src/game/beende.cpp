// Filing a finished game: final credits, the learned-move merge, the statistics, the high-score list.
#include "dialogs/statistikdatei.h"
#include "game/spiel.h"

namespace fuh {

void Spiel::beende() {
    if (ergebnis_ == 1) partie_.sanktion(3, -3, 1);
    if (ergebnis_ == 2) partie_.sanktion(-3, 3, 1);
    if (ergebnis_ == 3) oeff_.sw_spielende = false;
    ansicht_.hinweis(Hinweis::speichern_msg, true);
    if (oeff_.einst.Lernmodus == 1) {
        const auto merge = lerndatei_.speichern(partie_, oeff_.einst.Staerke);
        neueZuege_ = merge.neueZuege;
        meldeSchreibfehler(merge.geschrieben, lerndateiName(oeff_.einst.Staerke));
    }
    meldeSchreibfehler(statistik(ordner_, ergebnis_, oeff_.einst, neueZuege_), kStatistikdatei);
    ansicht_.hinweis(Hinweis::speichern_msg, false);
    if (oeff_.einst.PC == 0) ansicht_.oeffnen(Fenster::highh);
    if (oeff_.einst.PC == 1) ansicht_.oeffnen(Fenster::highf);
}

} // namespace fuh
