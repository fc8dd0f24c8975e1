// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Where a lifted piece may go, marked on the board.
#include <QPainter>
#include <algorithm>
#include <utility>

#include "ui/brett_flaeche.h"
#include "ui/brett_zugang.h"

namespace fuh {

void BrettFlaeche::zieleSetzen(std::vector<int> ziele) {
    if (ziele == ziele_) return;
    std::swap(ziele_, ziele);
    update();
    // The points that gained or lost the mark are named anew.
    for (const std::vector<int>* liste : {&ziele, &ziele_})
        for (int feld : *liste)
            zugangNameGeaendert(this, feld);
}

void BrettFlaeche::zieleZeichnen(QPainter& painter) const {
    // Filled dots in the middle of the point, white on a dark rim: unlike the rings of the last move
    // and of a hint, and visible on every colour of the board.
    const double s = skala();
    const double radius = std::max(4.0, 8.0 * s);
    painter.setPen(QPen(QColor(10, 20, 60), std::max(2.0, 3.0 * s)));
    painter.setBrush(QColor(255, 255, 255, 230));
    for (int feld : ziele_)
        painter.drawEllipse(QRectF(feldRechteck(feld)).center(), radius, radius);
    painter.setBrush(Qt::NoBrush);
}

} // namespace fuh
