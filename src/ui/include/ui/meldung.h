// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The game's modal message boxes: the application's title, shown whole, and one OK button; and the one
// way a label shows text that may come from a file or a player.
#include <QLabel>
#include <QMessageBox>
#include <QString>

namespace fuh {

// Makes `label` show its text literally: a name like "<img src=f>" must neither format the text nor make
// Qt open a file. Returns `label`.
QLabel* klartext(QLabel* label);

// Shows `text` (as plain text: it may name files or folders) and returns when the box is closed. Failures to
// save use QMessageBox::Warning, announcements of the game no icon.
void meldungZeigen(QWidget* eltern, QMessageBox::Icon symbol, const QString& text);

} // namespace fuh
