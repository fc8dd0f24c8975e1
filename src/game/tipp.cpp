// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// A hint: what the computer would play now for the person to move.
#include <system_error>

#include "dateischicht/satzdatei.h"
#include "game/spiel.h"

namespace fuh {

bool Spiel::tippMoeglich() const {
    return menschAmZug() && !z_.sprungfolge.imSprung;
}

Zugwahl Spiel::tipp() {
    if (!tippMoeglich()) return {};
    // A recall creates a missing learned file; a hint must change nothing, and a missing file has
    // nothing learned, so it then asks as strength 1 does (the repetition guard still counts).
    int Staerke = z_.oeff.einst.Staerke;
    std::error_code fehler;
    if (Staerke >= 1 && !std::filesystem::exists(datenpfad(ordner_, lerndateiName(Staerke)), fehler))
        Staerke = 0;
    const Erinnerung erinnerung{lerndatei_, Staerke, z_.partie};
    // Against the Meister the hint searches too.
    Meister* sucher = meister(spieler(gegner(z_.amZug)), meisterTipp_);
    if (z_.amZug == Seite::Hennen) return hennenWahl(erinnerung, tippZufall_, sucher);
    return fuchsWahl(erinnerung, tippZufall_, sucher);
}

void Spiel::endspieltafeln(Endspieltafeln t) {
    tafeln_ = std::move(t);
    for (auto* m : {&meisterHennen_, &meisterFuchs_, &meisterTipp_})
        if (*m) (*m)->endspieltafeln(tafeln_);
}

Text Spiel::tippUrteil() const {
    const Endspieltafel* tafel = tafeln_.fuer(strafregelGilt());
    if (!tippMoeglich() || !tafel) return {};
    const auto u = urteil(*tafel, meister::Suchbrett::aus(z_.stellung.Feld, z_.amZug == Seite::Fuchs),
                          z_.partie.spielzug);
    if (!u) return {};
    if (u->ergebnis == Ergebnis::remis) return Vorlage::tippRemis;
    const bool hennen = u->ergebnis == Ergebnis::hennen;
    if (u->plies == 1) return hennen ? Vorlage::tippHennenGewinnenJetzt : Vorlage::tippFuechseGewinnenJetzt;
    return Text(hennen ? Vorlage::tippHennenGewinnen : Vorlage::tippFuechseGewinnen, {Text::zahl(u->plies)});
}

} // namespace fuh
