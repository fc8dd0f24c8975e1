// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/statustext.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace fuh {

Statustext::Statustext(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setMinimumWidth(1); // a long text must not widen the window
}

QString Statustext::sichtbarerText() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width() - 2 * margin());
}

void Statustext::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    drawFrame(&maler);
    const QRect rahmen = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    style()->drawItemText(&maler, rahmen, QStyle::visualAlignment(layoutDirection(), alignment()), palette(),
                          isEnabled(), sichtbarerText(), foregroundRole());
}

bool Statustext::event(QEvent* e) {
    if (e->type() != QEvent::ToolTip) return QLabel::event(e);
    // Only a shortened text needs a tip; it is escaped, since a tool tip would read markup.
    if (sichtbarerText() != text())
        QToolTip::showText(static_cast<QHelpEvent*>(e)->globalPos(), Qt::convertFromPlainText(text()), this);
    else
        QToolTip::hideText();
    return true;
}

} // namespace fuh
