// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The settings window: side the computer plays, strength, learning and single-move mode.
#include <QDialog>
#include <filesystem>
#include <functional>
#include <string>

#include "game/ansicht.h"

#include "dialogs/oeffentlich.h"
#include "ui/beschriftung.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace fuh {

class EinstDialog : public QDialog {
    Q_OBJECT
  public:
    // Opens showing `einst` (and the Meister as the fourth strength when `meister` is set and the file
    // says strength 3). `statusSetzen` writes a status bar panel (the game's German text); `uebernehmen`
    // lets the game take the new settings and the Meister choice. QZ.INI stores the Meister as strength 3.
    EinstDialog(const Einstellungen& einst, bool meister, std::filesystem::path ordner,
                std::function<void(Statusfeld feld, const std::string& text)> statusSetzen,
                std::function<void(const Einstellungen&, bool meister)> uebernehmen,
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
    std::function<void(Statusfeld, const std::string&)> statusSetzen_;
    std::function<void(const Einstellungen&, bool)> uebernehmen_;
    Beschriftung texte_{staticMetaObject};
    QComboBox* computerSpielt_ = nullptr;
    QComboBox* staerke_ = nullptr;
    QCheckBox* lernmodus_ = nullptr;
    QCheckBox* einzelzug_ = nullptr;
    QPushButton* okKnopf_ = nullptr;
    QPushButton* abbruchKnopf_ = nullptr;
};

} // namespace fuh
