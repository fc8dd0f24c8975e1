#include "dialogs/einstellungsdatei.h"

#include "memory/satzdatei.h"

namespace fuh {

namespace {
constexpr std::size_t kSatz = 8;
}

void einstellungenLesen(const std::filesystem::path& ordner, Einstellungen& e) {
    const auto inhalt = dateiLesen(datenpfad(ordner, kEinstellungsdatei), kSatz);
    // The record count is the length divided by the record size, rounded half to even: up to four
    // bytes there is no record, from five bytes on the (partial) first record counts.
    if (!inhalt || inhalt->size() <= kSatz / 2) {
        e.PC = 0;
        e.Lernmodus = 0;
        e.Einzelzug = 0;
        return; // Staerke keeps the value the game started with
    }
    e.PC = le16(*inhalt, 0);
    e.Staerke = le16(*inhalt, 2);
    e.Lernmodus = le16(*inhalt, 4);
    e.Einzelzug = le16(*inhalt, 6);
}

bool einstellungenSchreiben(const std::filesystem::path& ordner, const Einstellungen& e) {
    return dateiFortschreiben(datenpfad(ordner, kEinstellungsdatei), kSatz, [&](Bytes& inhalt) {
        setzeLe16(inhalt, 0, e.PC);
        setzeLe16(inhalt, 2, e.Staerke);
        setzeLe16(inhalt, 4, e.Lernmodus);
        setzeLe16(inhalt, 6, e.Einzelzug);
        return true;
    });
}

} // namespace fuh
