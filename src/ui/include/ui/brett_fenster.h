#pragma once
// The main window ("brett"): shows the board, forwards every event to the game in one call and
// carries out what the game asks of the screen.
#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <vector>

#include "board/zufall.h"
#include "dialogs/bestenliste.h"
#include "game/ansicht.h"

class QApplication;
class QLabel;

namespace fuh {

class BrettFlaeche;
class EinstDialog;
class HighscoreFenster;
class HilfeFenster;
class InfoWin;
class Spiel;
class StatForm;

class BrettFenster : public QMainWindow, public Ansicht {
    Q_OBJECT
  public:
    // `ordner` holds the data files. The game starts as at the current time of day.
    explicit BrettFenster(std::filesystem::path ordner, QWidget* parent = nullptr);
    // As above with a fixed start time (seconds since midnight), which seeds the random source.
    BrettFenster(std::filesystem::path ordner, uint32_t startzeit, QWidget* parent = nullptr);
    ~BrettFenster() override;

    // Application names and Qt's German texts for standard buttons; call once before any window.
    static void anwendungEinrichten(QApplication& app);

    Spiel& spiel() { return *spiel_; }
    BrettFlaeche* brett() const { return brett_; }
    QTimer& timer1() { return timer1_; }
    QLabel* panel(int nummer) const { return panels_.at(static_cast<size_t>(nummer - 1)); }

    // Ansicht
    void figurBewegt(int k, int left, int top) override;
    void figurSichtbar(int k, bool sichtbar) override;
    void figurenZiehbar(bool ziehbar) override;
    void hinweis(Hinweis h, bool sichtbar) override;
    void status(Statusfeld feld, const std::string& text) override;
    void meldung(const std::string& text) override;
    void oeffnen(Fenster f) override;

  public slots:
    void Timer1_Timer();

  private:
    void menueAnlegen();
    // Paints the whole window at once, e.g. where a closed menu or message box lay.
    void ganzMalen();
    void statusleisteAnlegen();
    void bilderAbgleichen();
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
    std::array<QLabel*, 3> panels_{};
    QTimer timer1_;
    QPointer<EinstDialog> einst_;
    QPointer<StatForm> stat_;
    QPointer<HilfeFenster> hilfe_;
    QPointer<InfoWin> info_;
    std::array<QPointer<HighscoreFenster>, 2> highscore_{};
};

} // namespace fuh
