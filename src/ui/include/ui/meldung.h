// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The game's modal message boxes: the application's title, shown whole, and one OK button.
#include <QMessageBox>
#include <QString>

namespace fuh {

// Shows `text` and returns when the box is closed. Failures to save use QMessageBox::Warning,
// announcements of the game no icon.
void meldungZeigen(QWidget* eltern, QMessageBox::Icon symbol, const QString& text);

} // namespace fuh
