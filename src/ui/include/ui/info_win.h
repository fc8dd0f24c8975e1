// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The about box: title, credits, contact address and four pictures; Ok closes it.
#include <QDialog>

#include "ui/beschriftung.h"

class QLabel;
class QLayout;

namespace fuh {

class InfoWin : public QDialog {
    Q_OBJECT
  public:
    explicit InfoWin(QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* e) override;

  private:
    // The texts from the title down to the Ok button.
    QLayout* texteAnlegen();
    QLabel* mailAnlegen();
    void versionSetzen(); // the program's version, in words of the current language

    Beschriftung texte_{staticMetaObject};
};

} // namespace fuh
