// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A high-score list: enters the finished game and lets the player type a name for the new row.
#include <QDialog>
#include <filesystem>

#include "dialogs/bestenliste.h"

namespace fuh {

class HighscoreFenster : public QDialog {
    Q_OBJECT
  public:
    HighscoreFenster(Seite seite, Oeffentlich& spiel, std::filesystem::path ordner,
                     QWidget* parent = nullptr);

    const Bestenliste& liste() const { return liste_; }

  private:
    void ok_Click();

    Bestenliste liste_;
    std::filesystem::path ordner_;
};

} // namespace fuh
