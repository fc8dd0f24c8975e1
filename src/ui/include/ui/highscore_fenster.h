// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A high-score list: enters the finished game and lets the player type a name for the new row.
#include <QDialog>
#include <filesystem>

#include "dialogs/bestenliste.h"
#include "ui/beschriftung.h"

namespace fuh {

class HighscoreFenster : public QDialog {
    Q_OBJECT
  public:
    HighscoreFenster(Seite seite, Oeffentlich& spiel, std::filesystem::path ordner,
                     QWidget* parent = nullptr);

    const Bestenliste& liste() const { return liste_; }

  protected:
    void changeEvent(QEvent* e) override;

  private:
    void ok_Click();
    // The dates and win flags of the rows, in the player's language.
    void zeilenSetzen();

    Bestenliste liste_;
    Beschriftung texte_{staticMetaObject};
    std::filesystem::path ordner_;
};

} // namespace fuh
