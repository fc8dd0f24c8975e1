#pragma once
// A high-score list: enters the finished game and lets the player type a name for the new row.
#include <QDialog>
#include <QString>
#include <filesystem>

#include "dialogs/bestenliste.h"

namespace fuh {

class HighscoreFenster : public QDialog {
    Q_OBJECT
  public:
    HighscoreFenster(Seite seite, Oeffentlich& spiel, std::filesystem::path ordner,
                     QWidget* parent = nullptr);

    const Bestenliste& liste() const { return liste_; }

    // Today as an OLE Automation date (whole days since 30 December 1899).
    static double oleDatumHeute();
    // The cell text of a stored date: the short system format, or empty for 0 and unusable values.
    static QString datumText(double oleDatum);

  private:
    void ok_Click();

    Bestenliste liste_;
    std::filesystem::path ordner_;
};

} // namespace fuh
