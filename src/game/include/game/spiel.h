#pragma once
// The game: owns the whole state of the running game and every procedure of its flow.
// The window forwards each event here in one call; the game answers through the view (Ansicht).
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "board/ansicht.h"
#include "board/bildlage.h"
#include "board/stellung.h"
#include "board/zufall.h"
#include "board/zug.h"
#include "dialogs/oeffentlich.h"
#include "memory/lerndatei.h"
#include "memory/partie.h"
#include "player/fuchsspieler.h"
#include "player/hennenspieler.h"
#include "player/spieltisch.h"

namespace fuh {

class Spiel : private Spieltisch, private Gutschrift {
  public:
    // `ordner` is where the data files live; `zufall` is the game's one random source.
    Spiel(Ansicht& ansicht, Zufall& zufall, std::filesystem::path ordner);

    // Events of the main window.
    void Form_Load(uint32_t sekundenSeitMitternacht); // initialise, seed the random source, lock pieces
    void Neu_Click();
    void start_Click() { Neu_Click(); }
    void platz_DragDrop(int t, int k); // piece k dropped on the target of square t
    void figur_MouseDown(int k, Maustaste button);
    void Timer1_Timer();

    // Computer against computer. By default "Neu" plays the whole game at once. A window that shows
    // the moves one by one sets `schrittweise` and then calls selbstspielZug() for each computer move
    // until it returns false (the game ended); the moves, random draws and files are the same.
    // A new game abandons a game still running this way.
    void schrittweise(bool ja) { schrittweise_ = ja; }
    bool selbstspielZug();
    bool selbstspielLaeuft() const { return selbstspielLaeuft_; }

    // The settings dialog confirmed: the settings take effect at once (no new game).
    void einstellungenUebernehmen(const Einstellungen& e);

    // What the window shows and the other windows read.
    const Stellung& stellung() const { return stellung_; }
    const Figurbilder& bilder() const { return bilder_; }
    bool ziehbar() const { return bilder_.ziehbar; }
    Oeffentlich& oeffentlich() { return oeff_; }
    const Oeffentlich& oeffentlich() const { return oeff_; }
    const std::filesystem::path& ordner() const { return ordner_; }
    int16_t pcZug() const { return pcZug_; }
    int16_t ergebnis() const { return ergebnis_; }
    int16_t spielzug() const { return partie_.spielzug; }
    const Partie& partie() const { return partie_; }
    int16_t neueZuege() const { return neueZuege_; }

    // Headless drivers play with fixed settings: the settings file is then neither read nor written.
    void einstellungenFestlegen(const Einstellungen& e);

    // An end was announced in the current game, and the last result an end-of-move check found.
    bool endeGefunden() const { return endeGefunden_; }
    int16_t letztesErgebnis() const { return letztesErgebnis_; }

  private:
    // Start-up and new game.
    void init();
    void sperren(bool ziehbar);
    void statusTexte();
    void spielBeginnen();
    bool hennenZiehen();  // the computer hens' move and its end-of-move check; true at an end
    bool fuechseZiehen(); // the same for the computer foxes

    // End of a move, end of a game, and filing.
    bool endecheck(int16_t figur) override;
    void spielende(int16_t figur);
    std::optional<int16_t> punkte();
    void beende();
    // One message names every file that could not be saved at this moment.
    void meldeSchreibfehler(const std::vector<std::string>& dateien);

    // What the players and the move executor need of the game.
    Stellung& spielstellung() override { return stellung_; }
    const Partie& partieDaten() const override { return partie_; }
    int16_t erinnern(const Brettfeld& feld, int16_t figur) override;
    int ziehe(int n) override { return zufall_.ziehe(n); }
    void zug(bool normal) override;
    void meldung(const std::string& text) override { ansicht_.meldung(text); }
    void hinweis(Hinweis h, bool sichtbar) override { ansicht_.hinweis(h, sichtbar); }
    int16_t einzelzug() const override { return oeff_.einst.Einzelzug; }
    void letzterFuchsAusgeschlossen() override { oeff_.fuchs_null = true; }
    void sanktion(int16_t H, int16_t F, int16_t q) override { partie_.sanktion(H, F, q); }

    Ansicht& ansicht_;
    Zufall& zufall_;
    std::filesystem::path ordner_;
    Stellung stellung_;
    Figurbilder bilder_;
    Partie partie_;
    Lerndatei lerndatei_;
    Oeffentlich oeff_;
    Fuchsspieler fuchsspieler_;
    Hennenspieler hennenspieler_;
    int16_t pcZug_ = 0;
    int16_t ergebnis_ = 0;
    int16_t neueZuege_ = 0;
    std::optional<Einstellungen> festeEinstellungen_;
    bool endeGefunden_ = false;
    bool schrittweise_ = false;
    bool selbstspielLaeuft_ = false;
    bool hennenAmZug_ = true;
    int16_t letztesErgebnis_ = 0;
};

} // namespace fuh
