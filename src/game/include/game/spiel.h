// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The game: owns the whole state of the running game and every procedure of its flow.
// The window forwards each event here in one call; the game answers through the view (Ansicht).
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "board/regeln.h"
#include "board/stellung.h"
#include "board/teilzug.h"
#include "board/zufall.h"
#include "dateischicht/dateizugriff.h"
#include "game/ansicht.h"
#include "game/spielerwahl.h"
#include "game/spielstand.h"
#include "memory/lerndatei.h"
#include "memory/partie.h"
#include "player/erinnerung.h"
#include "player/meister.h"
#include "player/strafregel.h"
#include "player/zugwahl.h"
#include "spieldaten/oeffentlich.h"

namespace fuh {

// Where the computer's choices come from in a game being replayed, instead of from its players.
class Zugvorgabe {
  public:
    virtual ~Zugvorgabe() = default;
    // A choice for `seite` is at hand; without one the computer does not move.
    virtual bool bereit(Seite seite) const = 0;
    virtual Zugwahl wahl(Seite seite) = 0;
};

class Spiel {
  public:
    // `ordner` is where the data files live; `zufall` is the game's one random source.
    Spiel(Ansicht& ansicht, Zufall& zufall, std::filesystem::path ordner);
    ~Spiel();

    // Events of the main window.
    void programmStart(uint32_t sekundenSeitMitternacht); // initialise, seed the random source, lock pieces
    void neuesSpiel();
    // A person dropped piece k on square t: taken only when a person plays the side to move and the move
    // is legal, otherwise ignored.
    void abgelegt(int t, int k);
    // The squares the piece on square `von` may be moved to now by the person to move; empty when no
    // person is to move or that piece may not move.
    std::vector<int> ziele(int von) const;
    // A person ends the fox's open chain of jumps (the right mouse button); the hens move next.
    void sprungfolgeSchliessen();
    // The computer makes the move of the side to move when it plays that side; true when it moved.
    bool computerZieht();

    // Who plays: a side is played by a person or by the computer (a settings file with an unknown value
    // leaves both sides to nobody, and the game waits).
    bool menschSpielt(Seite s) const;
    bool computerSpielt(Seite s) const;
    Seite amZug() const { return z_.amZug; }
    // Is a person to move now: the one question every input asks before it reaches the game.
    bool menschAmZug() const { return laeuft() && menschSpielt(z_.amZug); }
    bool computerAmZug() const { return laeuft() && computerSpielt(z_.amZug); }
    // The side one person plays against the computer; none in a game of two people or of the computer alone.
    std::optional<Seite> menschenseite() const;

    // Computer against computer. By default a new game is played through at once. A window that shows
    // the moves one by one sets `schrittweise` and then calls computerZieht() for each move; the moves,
    // random draws and files are the same. A new game abandons a game still running this way.
    void schrittweise(bool ja) { schrittweise_ = ja; }
    bool selbstspielLaeuft() const {
        return laeuft() && computerSpielt(Seite::Fuchs) && computerSpielt(Seite::Hennen);
    }

    // The move the computer would make now for the person to move, without making it; its own random
    // source, so asking never changes the game. Empty when there is nothing to advise (see tippMoeglich).
    Zugwahl tipp();
    bool tippMoeglich() const;
    // With the hint, in an endgame the table knows: the exact outcome for the rules in force ("Die
    // Hennen gewinnen in 7 Zügen", "Remis"). Empty otherwise.
    Text tippUrteil() const;
    // The exact endgame tables the Meister looks positions up in; none until the window hands them over.
    void endspieltafeln(Endspieltafeln t);

    // The settings dialog confirmed: the settings take effect at once (no new game); when the computer
    // now plays the side to move, it moves at its next turn.
    void einstellungenUebernehmen(const Einstellungen& e);
    // Headless drivers play with fixed settings: the settings file is then neither read nor written.
    void einstellungenFestlegen(const Einstellungen& e);
    // Each computer side may play at its own strength, or two people play; files and statistics follow
    // the settings. Takes effect at once, like the settings.
    void spielerFestlegen(const Spielerwahl& w);
    const Spielerwahl& spielerwahl() const { return spielerwahl_; }

    // What the window shows and the other windows read.
    const Stellung& stellung() const { return z_.stellung; }
    const Sprungfolge& sprungfolge() const { return z_.sprungfolge; }
    const Teilzug& zugregister() const { return z_.zugregister; } // the last move made
    bool ziehbar() const { return z_.ziehbar; }
    Oeffentlich& oeffentlich() { return z_.oeff; }
    const Oeffentlich& oeffentlich() const { return z_.oeff; }
    const std::filesystem::path& ordner() const { return ordner_; }
    Ergebnis ergebnis() const { return z_.ergebnis; }
    int16_t spielzug() const { return z_.partie.spielzug; }
    const Partie& partie() const { return z_.partie; }
    int16_t neueZuege() const { return z_.neueZuege; }
    // An end was announced in the current game, and the last result an end-of-move check found.
    bool endeGefunden() const { return z_.endeGefunden; }
    Ergebnis letztesErgebnis() const { return z_.letztesErgebnis; }

    // Taking a person's last move back, with the computer's reply: the game is then exactly as it was
    // before that move, random sources included. Only while a person plays and the game runs; nothing is
    // written to any file.
    bool zuruecknehmenMoeglich() const;
    void zuruecknehmen();
    // Bringing back what was taken back, exactly as it was (random sources included), until a
    // different move is made.
    bool wiederholenMoeglich() const { return !wiederholbar_.empty() && laeuft(); }
    void wiederholen();

    // A replayed game: the computer's choices come from `v` (null: from its players again), and no
    // file is written, as the game was filed when it was played.
    void vorgeben(Zugvorgabe* v) { vorgabe_ = v; }
    void ohneDateien(bool ja) { ohneDateien_ = ja; }
    // The running game goes to no high-score list (a move was taken back, or it goes on from a record).
    void keineBestenliste();
    const Mitschrift& mitschrift() const { return z_.mitschrift; }
    bool zurueckgenommen() const { return z_.zurueckgenommen; }

    // A game is running: started, and not yet ended.
    bool laeuft() const { return z_.ziehbar && !z_.endeGefunden; }
    // The whole running game, random sources included, and going on from such a copy: the view is told
    // the restored pieces, prompts and status texts. Continuing counts no new game.
    Spielstand zustand() const;
    Sicherung sicherung() const { return {zustand(), verlauf_}; }
    void fortsetzen(const Sicherung& s);
    // A finished game whose filing found the data folder locked by another program until the time ran
    // out: nothing of it was written, and this is what files it later (with `ablegen`). Empty once a game
    // is begun or continued.
    const std::optional<Sicherung>& offeneAblage() const { return offeneAblage_; }
    // Files such a game now, as its end would have (a `Sicherung` with `abzulegen`).
    void ablegen(const Sicherung& s);

  private:
    // Start-up and new game.
    void init();
    void sperren(bool ziehbar);
    void statusTexte();
    void punkteZeigen(std::optional<int16_t> zahl);
    // Puts a copy back into the game and shows it.
    void zustandSetzen(const Spielstand& z);
    void spielBeginnen();

    // The turn driver: a computer side chooses, the game carries the choice out.
    void hennenZiehen();  // the computer hens' move and its end-of-move check
    void fuechseZiehen(); // the same for the computer foxes
    // The turn passes after a completed move; in single-move mode the computer does not answer a person.
    void zugBeendet(Seite seite);
    void amZugSetzen(Seite seite);
    void spielerGewechselt(); // the settings or the players changed during a game
    void strafeAnwenden(const Strafe& strafe);
    Zugwahl hennenWahl(const Erinnerung& erinnerung, Zufall& zufall, Meister* meister);
    Zugwahl fuchsWahl(const Erinnerung& erinnerung, Zufall& zufall, Meister* meister);
    // The searching player of a side when the choice names it, else null.
    Meister* meister(const std::optional<Spieler>& seite, std::unique_ptr<Meister>& instanz);
    void zug(bool normal);
    // The learned values a computer side may ask: of its own strength, or of the settings'.
    Erinnerung erinnerung(const std::optional<Spieler>& seite) const {
        return {lerndatei_, seite ? seite->Staerke : z_.oeff.einst.Staerke, z_.partie};
    }

    // End of a move, end of a game, and filing.
    bool endecheck(int16_t figur);
    Spielausgang spielende(int16_t figur);
    std::optional<int16_t> punkte();
    void beende();
    // Writes the finished game's files and returns those that failed; keeps `ende` to be filed later
    // when the data folder stays locked.
    std::vector<std::string> dateienSchreiben(Sicherung ende);
    // One message names every file that could not be saved at this moment.
    void meldeSchreibfehler(const std::vector<std::string>& dateien);
    // The data folder's lock for a task of several writes, so that it waits for another program once at
    // most; the view shows the wait.
    datei::Ordnersperre ordnerSperren();

    Ansicht& ansicht_;
    Zufall& zufall_;
    Zufall tippZufall_;
    std::filesystem::path ordner_;
    Spielstand z_;                         // the random sources' states are taken into it only by zustand()
    std::vector<Spielstand> verlauf_;      // before each of the player's moves in this game, oldest first
    std::vector<Spielstand> wiederholbar_; // what take-backs left, the latest last
    Zugvorgabe* vorgabe_ = nullptr;
    bool ohneDateien_ = false;
    std::optional<Sicherung> offeneAblage_;
    Lerndatei lerndatei_;
    std::optional<Einstellungen> festeEinstellungen_;
    Spielerwahl spielerwahl_;
    std::unique_ptr<Meister> meisterHennen_, meisterFuchs_, meisterTipp_;
    Endspieltafeln tafeln_;
    // The game applies the penalty rule to the foxes when the computer plays the hens, except in
    // single-move mode.
    bool strafregelGilt() const;
    const std::optional<Spieler>& spieler(Seite s) const {
        return s == Seite::Fuchs ? spielerwahl_.fuchs : spielerwahl_.hennen;
    }
    bool schrittweise_ = false;
};

} // namespace fuh
