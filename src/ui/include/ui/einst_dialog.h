// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The settings window: side the computer plays, strength, learning and single-move mode.
#include <QDialog>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

#include "game/ansicht.h"

#include "spieldaten/oeffentlich.h"
#include "ui/beschriftung.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace fuh {

// What the window keeps beyond the settings file: the Meister as the fourth strength, and two people
// at the board ("niemand (zwei Spieler)"), which leaves the file's side of the computer as it was.
struct Spielerauswahl {
    bool meister = false;
    bool zweiSpieler = false;
};

class EinstDialog : public QDialog {
    Q_OBJECT
  public:
    // Opens showing `einst` (and the Meister as the fourth strength when `wahl.meister` is set and the
    // file says strength 3; "niemand" as the computer's side with `wahl.zweiSpieler`). `statusSetzen`
    // writes a status bar panel (the game's German text); `uebernehmen` lets the game take the new
    // settings and choices. QZ.INI stores the Meister as strength 3.
    EinstDialog(const Einstellungen& einst, Spielerauswahl wahl, std::filesystem::path ordner,
                std::function<void(Statusfeld feld, const Text& text)> statusSetzen,
                std::function<void(const Einstellungen&, const Spielerauswahl&)> uebernehmen,
                QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* e) override;

  private:
    // The controls in their layout, with their texts in the player's language.
    void aufbauen();
    QLabel* beschriftet(const char* text, QWidget* feld);
    void ausgleich();
    // "Übernehmen": the game takes the settings, QZ.INI and the status bar get them, the window closes.
    void bestaetigen();

    std::filesystem::path ordner_;
    std::function<void(Statusfeld, const Text&)> statusSetzen_;
    std::function<void(const Einstellungen&, const Spielerauswahl&)> uebernehmen_;
    int16_t pcVorher_ = 0; // kept in the file while two people play
    Beschriftung texte_{staticMetaObject};
    QComboBox* computerSpielt_ = nullptr;
    QComboBox* staerke_ = nullptr;
    QCheckBox* lernmodus_ = nullptr;
    QCheckBox* einzelzug_ = nullptr;
    QPushButton* okKnopf_ = nullptr;
    QPushButton* abbruchKnopf_ = nullptr;
};

} // namespace fuh
