#include "ui/svg_bild.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <utility>

namespace fuh {

namespace {

// The resource `datei` rendered to `groesse` logical pixels at `dpr`; cached, as slides repaint often.
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
    QPixmapCache::insert(schluessel, pixmap);
    return pixmap;
}

} // namespace

SvgBild::SvgBild(QString datei, QSize groesse, QWidget* parent) : QWidget(parent), datei_(std::move(datei)) {
    setFixedSize(groesse);
    setAttribute(Qt::WA_TranslucentBackground);
    // The board handles every click and drop itself, so presses fall through to it.
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void SvgBild::setDeckkraft(qreal deckkraft) {
    deckkraft_ = deckkraft;
    update();
}

void SvgBild::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setOpacity(deckkraft_);
    painter.drawPixmap(0, 0, svgPixmap(datei_, size(), devicePixelRatioF()));
}

} // namespace fuh
