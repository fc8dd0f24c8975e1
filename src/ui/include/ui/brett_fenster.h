// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The main window ("brett"): shows the board, forwards every event to the game in one call and shows
// what the game reports, paced so that a player can follow the computer's moves.
#include <QMainWindow>
#include <QPointer>
#include <QSettings>
#include <QTimer>
#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "board/zufall.h"
#include "game/ansicht.h"
#include "game/aufzeichnung.h"
#include "game/spielstand.h"
#include "spieldaten/bestenliste.h"
#include "ui/beschriftung.h"
#include "ui/einst_dialog.h"
#include "ui/sprache.h"
#include "ui/wiedergabe.h"

class QAction;
class QActionGroup;
class QApplication;
class QLabel;
class QMenu;

namespace fuh {

class Ansage;
class BrettFlaeche;
class EinstDialog;
class HighscoreFenster;
class HilfeFenster;
class InfoWin;
class Klaenge;
class Lagefeld;
class Partieablage;
class Spiel;
class StatForm;
class ZuglistePanel;

// The player's own settings of the window (size, pace, the Meister); the game's settings stay in QZ.INI.
QSettings fensterEinstellungen();

class BrettFenster : public QMainWindow, public Ansicht {
    Q_OBJECT
  public:
    // `ordner` holds the data files. The game starts as at the current time of day.
    explicit BrettFenster(std::filesystem::path ordner, QWidget* parent = nullptr);
    // As above with a fixed start time (seconds since midnight), which seeds the random source.
    BrettFenster(std::filesystem::path ordner, uint32_t startzeit, QWidget* parent = nullptr);
    ~BrettFenster() override;

    // Application names and the player's language (German unless English was chosen), also for Qt's
    // standard buttons and the dates; call once before any window.
    static void anwendungEinrichten(QApplication& app);

    Spiel& spiel() { return *spiel_; }
    BrettFlaeche* brett() const { return brett_; }
    QTimer& zugUhr() { return zugUhr_; }
    QLabel* panel(int nummer) const { return panels_.at(static_cast<size_t>(nummer - 1)); }

    // How fast computer moves are shown; the choice is kept in the user's settings.
    Tempo tempo() const { return wiedergabe_.tempo(); }
    void tempoSetzen(Tempo t);
    // A reported move or message is still being shown, or the computer plays itself: no input reaches
    // the game, and the commands that start or change a game wait.
    bool beschaeftigt() const;

    // The Meister plays the computer's sides; the choice is kept in the user's settings, while QZ.INI
    // holds strength 3 for it.
    const Spielerauswahl& spielerauswahl() const { return auswahl_; }
    void spielerSetzen(const Spielerauswahl& auswahl);
    // Spiel -> Tipp: the move the computer would make for the player, marked on the board for a while.
    void tippZeigen();
    // Spiel -> Zug zurücknehmen: the player's last move and the computer's reply to it.
    void zuruecknehmen();
    // Spiel -> Zug wiederholen: what was taken back comes back exactly.
    void wiederholen();
    // Spiel -> Partie speichern / öffnen: a game file; what goes wrong is told in a message. An opened game
    // is shown at its end, to be stepped through.
    bool partieSpeichern(const std::filesystem::path& pfad);
    bool partieOeffnen(const std::filesystem::path& pfad);
    // Stepping through an opened or finished game: the board shows it after `n` moves, nothing moves.
    void blaettern(std::size_t n);
    std::optional<std::size_t> blaetterStand() const;
    // Spiel -> Von hier weiterspielen: the game shown goes on, as a game for no high-score list.
    void weiterspielen();
    ZuglistePanel* zugliste() const { return zugliste_; }
    // At start-up: a game saved when the program last ended in the folder `ordner` (and held by no other
    // window) is offered to be continued, else dropped; its file stays until the answer has taken effect.
    // From now on a game still running when the window goes is saved there, in a file of this window's
    // own. An empty `ordner`: there is no folder for it, and a running game cannot be kept.
    void fortsetzenAnbieten(const std::filesystem::path& ordner);
    // Spiel -> Beenden and the window's close button: a running game is saved first; when that fails the
    // player is asked ("Trotzdem beenden" or "Abbrechen"). False: the program is to go on.
    bool beendenDarf();

    // Ansicht: every report is queued and shown in order by the playback.
    void figurGezogen(int k, int von, int nach, bool gleitet) override;
    void henneGeschlagen(int k, int feld) override;
    void fuchsGeparkt(int k, int von, bool gleitet) override;
    void fuchsZurueck(int k, int nach, bool gleitet) override;
    void aufgestellt(const Stellung& s) override;
    void figurenZiehbar(bool ziehbar) override;
    void hinweis(Hinweis h, bool sichtbar) override;
    void status(Statusfeld feld, const Text& text) override;
    void meldung(const Text& text) override;
    void speicherfehler(const Text& text) override;
    void zugbegrenzungErreicht() override;
    void spielEndet(const Spielausgang& ausgang) override;
    void oeffnen(Fenster f) override;
    void zugAusgefuehrt(int vonX, int vonY, int nachX, int nachY, bool normal) override;
    void wartetAufDateien(bool fertig) override;

  public slots:
    void zugTakt();

  protected:
    void changeEvent(QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

  private:
    void spielerAnwenden();
    // Keeps a running game (or drops this window's saved game when none runs). False when it could not be
    // saved.
    bool partieSichern();
    // This window's saved game no longer stands for its game (over, or a new one begun): it goes.
    void partieAbgleichen();
    // Commands and their pacing.
    void neu();
    void spielWeiter(); // after every call into the game: show what it reported
    void wiedergabeFertig();
    void selbstspielSchritt();
    void zeigen(const Ereignis& e);
    void befehleAbgleichen();
    void groesseLaden();
    void brettEinpassen(int hoehe); // the least board side that lets the window fit `hoehe` pixels
    // The board's input, the playback and the timers, wired to the game.
    void verbinden();
    // The board with the line that explains the game under it, a person's drop, and that line kept up
    // to date (brett_lage.cpp).
    void mitteAnlegen();
    void ablegen(int t, int k);
    void lageZeigen();
    void endeZeigen(const Ereignis& e);
    // A message that is only noted (status and screen reader), not shown in a box that halts the game.
    bool nurNotiz(const Text& text) const;
    // Piece k goes from square `von` to `nach`: a computer's glides there in steps, a person's is set down.
    void bewegen(int k, int von, int nach, bool gleitet);

    // Menu and the other windows (brett_menue.cpp).
    void menueAnlegen();
    void spielMenue();
    void ergebnisMenue();
    void hilfeMenue();
    // Game files, stepping and the move list (brett_partien.cpp).
    void partieMenue(QMenu* menue);
    void blaetternMenue(QMenu* menue);
    bool blaetternVorbereiten();
    void blaetternUm(int schritte);
    void blaetternBeenden();
    void zuglisteAbgleichen();
    // A command named `name` in `menue` that does `tun`, its text in the player's language.
    QAction* befehl(QMenu* menue, const char* name, const char* text, std::function<void()> tun);
    void tempoMenue(QMenu* menue);
    // The board's look and the sounds (brett_aussehen.cpp).
    void aussehenMenue(QMenu* menue);
    void themaWaehlen(const QString& id, bool merken = true);
    void aussehenTexteSetzen();
    void tempoLaden();
    void statusleisteAnlegen();
    // The player's language (brett_sprache.cpp).
    void spracheMenue(QMenu* menue);
    void texteSetzen();
    void panelSetzen(Statusfeld feld, const Text& text);
    void zugbegrenzungZeigen();
    void einstellungenZeigen();
    void statistikZeigen();
    // From the menu: brings forward a list whose new row waits for a name, else shows a fresh one.
    void highscoreZeigen(Seite seite);
    // After a game: a fresh list that enters it, beside any list still waiting for a name.
    void highscoreNachDemSpiel(Seite seite);
    // Open lists of `seite` with a new row whose name is not yet confirmed.
    std::vector<HighscoreFenster*> wartendeListen(Seite seite) const;

    Zufall zufall_;
    std::unique_ptr<Spiel> spiel_;
    BrettFlaeche* brett_ = nullptr;
    Ansage* ansage_ = nullptr;
    Klaenge* klaenge_ = nullptr;
    Lagefeld* lage_ = nullptr;
    std::array<QLabel*, 4> panels_{};
    std::array<Text, 4> panelTexte_{}; // as the game wrote them, translated again on a change of language
    Beschriftung texte_{staticMetaObject};
    QTimer zugUhr_; // asks the game for the computer's reply
    Wiedergabe wiedergabe_;
    QTimer naechsterZug_; // the rest between two moves of a game the computer plays itself
    bool selbstspielSchleife_ = false;
    bool zuletztGeglitten_ = false;         // the last piece moved was a computer piece's glide
    bool wartetAufDateien_ = false;         // the game waits for the data folder's lock
    std::vector<QAction*> wartendeBefehle_; // disabled while busy
    std::array<QAction*, 3> tempoAktionen_{};
    QActionGroup* sprachen_ = nullptr; // Deutsch and English in Spiel -> Sprache
    QActionGroup* themaAktionen_ = nullptr;
    QAction* tonAktion_ = nullptr;
    QAction* tippAktion_ = nullptr;
    QAction* einstellungenAktion_ = nullptr; // also while the computer plays itself
    QAction* zurueckAktion_ = nullptr;
    QAction* wiederholenAktion_ = nullptr;
    QAction* weiterAktion_ = nullptr;
    ZuglistePanel* zugliste_ = nullptr;
    std::optional<Aufzeichnung> blaetterPartie_; // the game stepped through
    std::vector<Spielstand> blaetterStaende_;    // it after each of its moves, from the start
    std::size_t blaetterStand_ = 0;
    std::unique_ptr<Partieablage> ablage_; // where a running game is kept; null: nowhere
    bool partieBehalten_ = false;          // fortsetzenAnbieten was called: a running game is to be kept
    bool ohnePartie_ = false;              // the player chose to quit although the game was not saved
    QTimer tippUhr_;                       // how long a hint stays on the board
    Spielerauswahl auswahl_;               // kept in fenster.conf
    uint32_t startzeit_ = 0;
    QPointer<EinstDialog> einst_;
    QPointer<StatForm> stat_;
    QPointer<HilfeFenster> hilfe_;
    QPointer<InfoWin> info_;
    std::array<QPointer<HighscoreFenster>, 2> highscore_{};
};

} // namespace fuh
