// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window while the game waits for another program to free the data files: it keeps painting
// and shows a busy cursor, and neither input nor a timer reaches the game until the wait is over.
#include <QApplication>

#include "ui/brett_fenster.h"

namespace fuh {

void BrettFenster::wartetAufDateien(bool fertig) {
    if (fertig) {
        wartetAufDateien_ = false;
        wiedergabe_.anhalten(false);
        QApplication::restoreOverrideCursor();
        return;
    }
    if (!wartetAufDateien_) {
        wartetAufDateien_ = true; // no timer may call into the game meanwhile
        wiedergabe_.anhalten(true);
        QApplication::setOverrideCursor(Qt::BusyCursor);
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace fuh
