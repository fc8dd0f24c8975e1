#pragma once
// A game table for the players without the game flow around it.
#include "board/zufall.h"
#include "board/zug.h"
#include "leeres_kreuz.h"
#include "memory/lerndatei.h"
#include "player/spieltisch.h"
#include "temp_ordner.h"
#include "test_ansicht.h"

namespace fuh::test {

struct TestTisch : Spieltisch, Gutschrift {
    TempOrdner ordner;
    Stellung s;
    Partie partie;
    Lerndatei lerndatei{ordner.pfad()};
    int Staerke = 0;
    int PC = 1;
    Zufall zufall{12345};
    Figurbilder bilder;
    TestAnsicht ansicht;
    int erinnerungen = 0;

    TestTisch() {
        s.grundstellung();
        bilder.aufstellen(s);
    }
    struct Platz {
        int k, x, y; // piece k (0, 1 foxes) on (x, y)
    };
    // An otherwise empty cross with just these pieces.
    void aufstellen(std::initializer_list<Platz> figuren) {
        s = leeresKreuz();
        for (const Platz& p : figuren) {
            s.Feld[p.x][p.y] = p.k < 2 ? fuchs : henne;
            s.figurplatz[p.k] = static_cast<int16_t>(feldNummer(p.x, p.y));
        }
        bilder.aufstellen(s);
    }
    // Records the position as after a plain move.
    void aufzeichnen() {
        s.vonX = s.vonY = 0;
        s.nachX = s.nachY = 1;
        partie.pstoSits(s);
    }

    Stellung& spielstellung() override { return s; }
    const Partie& partieDaten() const override { return partie; }
    int16_t erinnern(const Brettfeld& f, int16_t figur) override {
        ++erinnerungen;
        return lerndatei.erinnern(f, figur, Staerke, partie);
    }
    int ziehe(int n) override { return zufall.ziehe(n); }
    void zug(bool normal) override {
        Zugumgebung u{s, bilder, ansicht, *this};
        fuh::zug(u, PC, normal);
    }
    bool endecheck(int16_t) override {
        partie.pstoSits(s);
        return false;
    }
    void meldung(const std::string& text) override { ansicht.meldung(text); }
    void hinweis(Hinweis h, bool sichtbar) override { ansicht.hinweis(h, sichtbar); }
    int16_t einzelzug() const override { return 0; }
    void letzterFuchsAusgeschlossen() override {}
    void sanktion(int16_t H, int16_t F, int16_t q) override { partie.sanktion(H, F, q); }
};

} // namespace fuh::test
