// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The board played with the keyboard: a cursor on the points of the cross, and the mouse's gestures
// made on the cursor's point.
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "ui/brett_flaeche.h"
#include "ui/brett_zugang.h"

namespace fuh {

namespace {

// The next point of the cross from `feld` in direction (dx, dy), or `feld` where the cross ends.
int naechsterPunkt(int feld, int dx, int dy) {
    for (int x = feldX(feld) + dx, y = feldY(feld) + dy; aufGitter(x, y); x += dx, y += dy)
        if (aufKreuz(x, y)) return feldNummer(x, y);
    return feld;
}

} // namespace

QRect BrettFlaeche::feldRechteck(int feld) const {
    return bildRechteck(ecke(feld));
}

QPoint BrettFlaeche::mitte(int feld) const {
    return feldRechteck(feld).center();
}

QRect BrettFlaeche::getragenRechteck() const {
    // Raised up and to the left, as a piece held above the board.
    const int hub = std::max(2, static_cast<int>(6 * skala()));
    return feldRechteck(cursor_).translated(-hub, -hub);
}

void BrettFlaeche::cursorSetzen(int feld) {
    if (feld < 0 || feld >= kFelder || !aufKreuz(feldX(feld), feldY(feld))) return;
    const int alt = std::exchange(cursor_, feld);
    if (getragenVon_ >= 0 && schwebend_) schwebend_->setGeometry(getragenRechteck());
    update();
    if (hasFocus()) zugangFokus(this, alt, cursor_);
}

void BrettFlaeche::cursorZeichnen(QPainter& painter) const {
    // A square frame just outside the piece image, dark under light, so it shows on every colour of
    // the board and is told apart from the round marks of moves and hints.
    const double s = skala();
    const QRectF r = QRectF(feldRechteck(cursor_)).adjusted(-5 * s, -5 * s, 5 * s, 5 * s);
    const double strich = thema_.strich * s;
    painter.setPen(QPen(thema_.cursorAussen, std::max(3.0, 5.0 * strich)));
    painter.drawRoundedRect(r, 4 * s, 4 * s);
    painter.setPen(QPen(thema_.cursorInnen, std::max(1.5, 2.5 * strich)));
    painter.drawRoundedRect(r, 4 * s, 4 * s);
}

void BrettFlaeche::keyPressEvent(QKeyEvent* event) {
    const bool umschalt = event->modifiers() & Qt::ShiftModifier;
    switch (event->key()) {
    case Qt::Key_Left:
        cursorSetzen(naechsterPunkt(cursor_, -1, 0));
        break;
    case Qt::Key_Right:
        cursorSetzen(naechsterPunkt(cursor_, 1, 0));
        break;
    case Qt::Key_Up:
        cursorSetzen(naechsterPunkt(cursor_, 0, -1));
        break;
    case Qt::Key_Down:
        cursorSetzen(naechsterPunkt(cursor_, 0, 1));
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        aufnehmenOderAblegen();
        break;
    case Qt::Key_Escape:
        if (getragenVon_ < 0) return QWidget::keyPressEvent(event);
        ziehenAbbrechen();
        break;
    case Qt::Key_F10:
        if (!umschalt) return QWidget::keyPressEvent(event);
        rechtsDruecken();
        break;
    case Qt::Key_Menu:
        rechtsDruecken();
        break;
    default:
        return QWidget::keyPressEvent(event);
    }
    event->accept();
}

void BrettFlaeche::aufnehmenOderAblegen() {
    if (getragenVon_ >= 0) {
        const int k = gezogen_;
        ziehenAbbrechen();
        ablegen(k, mitte(cursor_));
        return;
    }
    // A mouse drag in progress is the mouse's; the keyboard does not take it over.
    if (gezogen_ >= 0) return;
    const int k = figurAn(mitte(cursor_));
    if (k < 0) return;
    emit figurGedrueckt(k, Maustaste::links);
    if (!ziehbar_()) return;
    anheben(k, getragenRechteck().topLeft());
    getragenVon_ = cursor_;
    zugangNameGeaendert(this, cursor_);
    emit aufgenommen(k, cursor_);
}

void BrettFlaeche::rechtsDruecken() {
    if (gezogen_ >= 0) ziehenAbbrechen();
    const int k = figurAn(mitte(cursor_));
    if (k >= 0) emit figurGedrueckt(k, Maustaste::rechts);
}

void BrettFlaeche::contextMenuEvent(QContextMenuEvent* event) {
    // The board has no menu: the right button and the menu key act on the piece (see above).
    event->accept();
}

void BrettFlaeche::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
    zugangFokus(this, cursor_, cursor_);
}

void BrettFlaeche::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

} // namespace fuh
