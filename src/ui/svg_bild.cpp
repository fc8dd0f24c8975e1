// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/svg_bild.h"

#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <utility>

namespace fuh {

QPixmap svgPixmap(const QString& datei, QSize groesse, qreal dpr) {
    const QString schluessel =
        QStringLiteral("fuh:%1:%2x%3@%4").arg(datei).arg(groesse.width()).arg(groesse.height()).arg(dpr);
    QPixmap pixmap;
    if (QPixmapCache::find(schluessel, &pixmap)) return pixmap;

    const QSize pixel = (QSizeF(groesse) * dpr).toSize();
    QImage bild(pixel, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    QSvgRenderer renderer(datei);
    {
        QPainter painter(&bild);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(pixel)));
    }
    pixmap = QPixmap::fromImage(bild);
    pixmap.setDevicePixelRatio(dpr);
    // The board at a large size would only push the pieces out of the cache; its owner keeps it.
    if (pixel.width() * pixel.height() <= 256 * 256) QPixmapCache::insert(schluessel, pixmap);
    return pixmap;
}

SvgBild::SvgBild(QString datei, QSize groesse, QWidget* parent) : QWidget(parent), datei_(std::move(datei)) {
    resize(groesse);
    setAttribute(Qt::WA_TranslucentBackground);
    // The board handles every click and drop itself, so presses fall through to it.
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void SvgBild::setDatei(const QString& datei) {
    datei_ = datei;
    bild_ = QPixmap();
    update();
}

void SvgBild::setDeckkraft(qreal deckkraft) {
    deckkraft_ = deckkraft;
    update();
}

void SvgBild::paintEvent(QPaintEvent*) {
    const qreal dpr = devicePixelRatioF();
    if (bild_.isNull() || bild_.deviceIndependentSize() != QSizeF(size()) || bild_.devicePixelRatio() != dpr)
        bild_ = svgPixmap(datei_, size(), dpr);
    QPainter painter(this);
    painter.setOpacity(deckkraft_);
    painter.drawPixmap(0, 0, bild_);
}

} // namespace fuh
