// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A high-score list: enters the finished game and lets the player type a name for the new row.
#include <QDialog>
#include <filesystem>

#include "spieldaten/bestenliste.h"
#include "ui/beschriftung.h"

class QDialogButtonBox;
class QGridLayout;
class QLineEdit;

namespace fuh {

class HighscoreFenster : public QDialog {
    Q_OBJECT
  public:
    HighscoreFenster(Seite seite, Oeffentlich& spiel, std::filesystem::path ordner,
                     QWidget* parent = nullptr);

    const Bestenliste& liste() const { return liste_; }

  protected:
    void changeEvent(QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    void reject() override;

  private:
    void zeileAnlegen(QGridLayout* tabelle, int i);
    // The edit for the name of the new row `zeile`; it has the focus.
    QLineEdit* namensfeldAnlegen(int zeile);
    QDialogButtonBox* knoepfeAnlegen();
    // "OK": the list goes to its file; a list that cannot be saved stays open, so the name is not lost.
    void speichernUndSchliessen();
    // A new entry not yet saved is dropped only when the player says so.
    bool verwerfenErlaubt();
    // The dates and win flags of the rows, in the player's language.
    void zeilenSetzen();

    Bestenliste liste_;
    Beschriftung texte_{staticMetaObject};
    std::filesystem::path ordner_;
    bool entschieden_ = false; // saved, or left unsaved on purpose: closing asks nothing
};

} // namespace fuh
