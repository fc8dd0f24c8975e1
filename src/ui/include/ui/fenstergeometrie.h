// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The window size kept in fenster.conf is read as untrusted input: a window far larger than the screen
// would take the whole memory to draw.
#include <QByteArray>
#include <QRect>
#include <QSize>
#include <optional>

namespace fuh {

struct Fenstergeometrie {
    bool unveraendert = false; // it fits the screen: apply the stored bytes as they are
    QByteArray gespeichert;
    QRect normal; // otherwise: the window's place and size, fitted into the screen
    bool maximiert = false;
};

// What QWidget::saveGeometry stored in `gespeichert`, fitted into `frei` (the screen's available area; a
// null rectangle for none): a larger window is shrunk to it, one beyond its edges moved onto it. nullopt
// when the bytes make no sense (not Qt's format, or an empty or negative size).
std::optional<Fenstergeometrie> fenstergeometrie(const QByteArray& gespeichert, const QRect& frei);

// The first start's window size: a square board of about three fifths of the screen's height, never
// below `brettSeite`, `zusatzHoehe` for the menu and status bars; at least `statusBreite` wide, so that
// the status fields show their whole texts; never larger than `frei` (a null rectangle for no screen).
QSize ersteFenstergroesse(int brettSeite, int zusatzHoehe, int statusBreite, const QRect& frei);

} // namespace fuh
