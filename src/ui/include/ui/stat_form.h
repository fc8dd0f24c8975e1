// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The statistics window: counters of "QZ.sta" as read when the window opens.
#include <QDialog>

#include "ui/beschriftung.h"
#include <filesystem>

namespace fuh {

class StatForm : public QDialog {
    Q_OBJECT
  public:
    explicit StatForm(std::filesystem::path ordner, QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* e) override;

  private:
    Beschriftung texte_{staticMetaObject};
};

} // namespace fuh
