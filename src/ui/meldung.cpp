// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/meldung.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QSpacerItem>
#include <algorithm>

#include "ui/titel.h"

namespace fuh {

QLabel* klartext(QLabel* label) {
    label->setTextFormat(Qt::PlainText);
    return label;
}

void meldungZeigen(QWidget* eltern, QMessageBox::Icon symbol, const QString& text) {
    const QString titel = QString::fromUtf8(kTitel);
    QMessageBox box(symbol, titel, QString(), QMessageBox::Ok, eltern);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    // A box sized to a short text would cut its own title; the frame's buttons need room as well.
    const int breite = QFontMetrics(box.font()).horizontalAdvance(titel) * 3 / 2 + 120;
    if (auto* raster = qobject_cast<QGridLayout*>(box.layout()))
        raster->addItem(
            new QSpacerItem(std::min(breite, 520), 0, QSizePolicy::Minimum, QSizePolicy::Expanding),
            raster->rowCount(), 0, 1, raster->columnCount());
    box.exec();
}

} // namespace fuh
