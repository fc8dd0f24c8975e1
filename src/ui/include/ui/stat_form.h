// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The statistics window: counters of "QZ.sta" as read when the window opens.
#include <QDialog>
#include <array>
#include <filesystem>

#include "ui/beschriftung.h"

class QGridLayout;
class QLabel;
class QLayout;

namespace fuh {

struct Statistik;

class StatForm : public QDialog {
    Q_OBJECT
  public:
    explicit StatForm(std::filesystem::path ordner, QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* e) override;

  private:
    // Games started and abandoned, with the Ok button.
    QLayout* spieleAnlegen(const Statistik& s);
    QWidget* lernmodusAnlegen(const Statistik& s);
    // The table of wins: heads, one cell per side, player and strength, and the two sums.
    QWidget* siegeAnlegen(const Statistik& s);
    void siegeKoepfe(QGridLayout* t);
    QLabel* siegZelle(int nr, int zahl, std::array<const char*, 2> wo, int staerke = 0);

    Beschriftung texte_{staticMetaObject};
};

} // namespace fuh
