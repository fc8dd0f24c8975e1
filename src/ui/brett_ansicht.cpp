// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// What the game reports to its view: queued for the playback, and shown, said and heard in turn.
#include <QStatusBar>

#include "ui/ansage.h"
#include "ui/brett_fenster.h"
#include "ui/brett_flaeche.h"
#include "ui/klaenge.h"
#include "ui/meldung.h"
#include "ui/sprache.h"

namespace fuh {

void BrettFenster::zeigen(const Ereignis& e) {
    ansage_->ereignis(e); // before a message box holds the playback
    klaenge_->ereignis(e);
    switch (e.art) {
    case Ereignis::Art::bewegt:
        brett_->figurSetzen(e.a, e.b);
        break;
    case Ereignis::Art::gleitet:
        brett_->figurGleiten(e.a, e.b, e.c, e.schritt, Ereignis::kSchritte);
        break;
    case Ereignis::Art::sichtbar:
        brett_->figurZeigen(e.a, e.ja);
        break;
    case Ereignis::Art::ziehbar:
        if (!e.ja) brett_->ziehenAbbrechen();
        break;
    case Ereignis::Art::hinweis:
        brett_->hinweisZeigen(static_cast<Hinweis>(e.a), e.ja);
        break;
    case Ereignis::Art::status:
        panelSetzen(static_cast<Statusfeld>(e.a), e.text);
        break;
    case Ereignis::Art::zugbegrenzung:
        zugbegrenzungZeigen();
        ansage_->sagen(statusBar()->currentMessage());
        break;
    case Ereignis::Art::zug:
        if (e.ja)
            brett_->zugMarkieren(e.a, e.b);
        else
            brett_->markierungLoeschen();
        break;
    case Ereignis::Art::meldung:
        if (!nurNotiz(e.text)) meldungZeigen(this, QMessageBox::NoIcon, uebersetzt(e.text));
        break;
    case Ereignis::Art::speicherfehler:
        meldungZeigen(this, QMessageBox::Warning, uebersetzt(e.text));
        break;
    case Ereignis::Art::ende:
        endeZeigen(e);
        break;
    case Ereignis::Art::oeffnen:
        highscoreNachDemSpiel(static_cast<Fenster>(e.a) == Fenster::highf ? Seite::Fuchs : Seite::Hennen);
        break;
    }
}

void BrettFenster::bewegen(int k, int von, int nach, bool gleitet) {
    zuletztGeglitten_ = gleitet;
    if (!gleitet) return wiedergabe_.anhaengen(Ereignis::Art::bewegt, k, nach);
    // The playback spreads the steps over the time the pace allows.
    for (int i = 1; i <= Ereignis::kSchritte; ++i)
        wiedergabe_.anhaengen(Ereignis{Ereignis::Art::gleitet, k, von, nach, false, {}, i});
}

void BrettFenster::figurGezogen(int k, int von, int nach, bool gleitet) {
    bewegen(k, von, nach, gleitet);
}

void BrettFenster::fuchsGeparkt(int k, int von, bool gleitet) {
    bewegen(k, von, kParkfeld, gleitet);
}

void BrettFenster::fuchsZurueck(int k, int nach, bool gleitet) {
    bewegen(k, kParkfeld, nach, gleitet);
}

void BrettFenster::henneGeschlagen(int k, int /*feld*/) {
    wiedergabe_.anhaengen(Ereignis::Art::sichtbar, k, 0, 0, false);
}

void BrettFenster::aufgestellt(const Stellung& s) {
    for (int k = 0; k < kFiguren; ++k) {
        const int feld = s.figurplatz[static_cast<std::size_t>(k)];
        wiedergabe_.anhaengen(Ereignis::Art::bewegt, k, feld);
        wiedergabe_.anhaengen(Ereignis::Art::sichtbar, k, 0, 0, BrettFlaeche::gezeigt(k, feld));
    }
}

void BrettFenster::figurenZiehbar(bool ziehbar) {
    wiedergabe_.anhaengen(Ereignis::Art::ziehbar, 0, 0, 0, ziehbar);
}

void BrettFenster::hinweis(Hinweis h, bool sichtbar) {
    wiedergabe_.anhaengen(Ereignis::Art::hinweis, static_cast<int>(h), 0, 0, sichtbar);
}

void BrettFenster::status(Statusfeld feld, const Text& text) {
    wiedergabe_.anhaengen(Ereignis::Art::status, static_cast<int>(feld), 0, 0, false, text);
}

void BrettFenster::meldung(const Text& text) {
    wiedergabe_.anhaengen(Ereignis::Art::meldung, 0, 0, 0, false, text);
}

void BrettFenster::speicherfehler(const Text& text) {
    wiedergabe_.anhaengen(Ereignis::Art::speicherfehler, 0, 0, 0, false, text);
}

void BrettFenster::zugbegrenzungErreicht() {
    wiedergabe_.anhaengen(Ereignis::Art::zugbegrenzung);
}

void BrettFenster::oeffnen(Fenster f) {
    wiedergabe_.anhaengen(Ereignis::Art::oeffnen, static_cast<int>(f));
}

void BrettFenster::zugAusgefuehrt(int vonX, int vonY, int nachX, int nachY, bool /*normal*/) {
    // A computer piece slides; the player's own piece is set down at once.
    wiedergabe_.anhaengen(Ereignis::Art::zug, feldNummer(vonX, vonY), feldNummer(nachX, nachY), 0,
                          zuletztGeglitten_);
}

} // namespace fuh
