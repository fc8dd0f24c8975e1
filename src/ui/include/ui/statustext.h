// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A text field of the status bar. When the window is too narrow for its text, the field shows the text
// shortened with "…" and the whole text as its tool tip; a screen reader always gets the whole text.
// The text is always plain: it may name a file.
#include <QLabel>
#include <QString>

namespace fuh {

class Statustext : public QLabel {
    Q_OBJECT
  public:
    explicit Statustext(QWidget* parent = nullptr);

    // The text as the field shows it at its present width.
    QString sichtbarerText() const;

  protected:
    void paintEvent(QPaintEvent* e) override;
    bool event(QEvent* e) override;
};

} // namespace fuh
