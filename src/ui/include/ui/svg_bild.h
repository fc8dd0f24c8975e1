// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A picture drawn from an SVG resource, rendered for the screen's device pixel ratio so it stays crisp
// at any size the board gives it.
#include <QPixmap>
#include <QString>
#include <QWidget>

namespace fuh {

// The resource `datei` rendered to `groesse` logical pixels at `dpr`. Small pictures are shared
// through the pixmap cache.
QPixmap svgPixmap(const QString& datei, QSize groesse, qreal dpr);

class SvgBild : public QWidget {
    Q_OBJECT
  public:
    SvgBild(QString datei, QSize groesse, QWidget* parent = nullptr);

    const QString& datei() const { return datei_; }
    void setDatei(const QString& datei);
    void setDeckkraft(qreal deckkraft);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString datei_;
    qreal deckkraft_ = 1.0;
    QPixmap bild_; // the last rendering, reused while size and pixel ratio stay
};

} // namespace fuh
