// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The help window: the guide from the program's resources, in the player's language, in a browser with
// back and home. A dialog, so that a screen reader presents it as a window of the game.
#include <QDialog>

#include "ui/beschriftung.h"

class QTextBrowser;

namespace fuh {

class HilfeFenster : public QDialog {
    Q_OBJECT
  public:
    explicit HilfeFenster(QWidget* parent = nullptr);

    QTextBrowser* browser() const { return browser_; }
    // Back to the guide's first topic, at the top even when the page was already shown.
    void zumAnfang();

  protected:
    void changeEvent(QEvent* e) override;

  private:
    QTextBrowser* browser_;
    Beschriftung texte_{staticMetaObject};
};

} // namespace fuh
