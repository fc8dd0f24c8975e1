// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/brett_flaeche.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>
#include <utility>

#include "ui/brett_zugang.h"

namespace fuh {

BrettFlaeche::BrettFlaeche(std::function<bool()> ziehbar, QWidget* parent)
    : QWidget(parent), ziehbar_(std::move(ziehbar)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMouseTracking(true); // for the hand cursor over draggable pieces
    setFocusPolicy(Qt::StrongFocus);
    // Before anything asks for the board's interface: Qt keeps the first one made.
    zugangEinrichten();
    setAccessibleName(tr("Spielbrett"));
    inhalt_.fill(-1);

    // The prompts lie over empty corners of the board; the pieces are created later and so stay on top.
    hinweiseAnlegen();
    const QSize bild(figurseite() / kTwipsProPixel, figurseite() / kTwipsProPixel);
    stand_.fill(-1);
    for (int k = 0; k < kFiguren; ++k) {
        auto* figur = new SvgBild(istFuchs(k) ? thema_.fuchs : thema_.henne, bild, this);
        figur->setObjectName(QStringLiteral("figur%1").arg(k));
        figuren_[k] = figur;
    }
    hinweiseAnordnen();
}

void BrettFlaeche::themaSetzen(const Thema& thema) {
    thema_ = thema;
    brett_ = QPixmap();
    for (int k = 0; k < kFiguren; ++k) {
        figuren_[k]->setDatei(istFuchs(k) ? thema_.fuchs : thema_.henne);
        // The theme may put the points elsewhere; a gliding piece follows with its next step.
        if (stand_[k] >= 0) lagen_[k] = ecke(stand_[k]);
        figuren_[k]->setGeometry(figurRechteck(k));
    }
    if (schwebend_ && gezogen_ >= 0) schwebend_->setDatei(figuren_[gezogen_]->datei());
    hinweiseAnordnen();
    update();
}

QPointF BrettFlaeche::abbild(double left, double top) const {
    // Divided last, so that a point on the pixel grid at scale 1 stays exactly on it.
    constexpr double kTwipsProSeite = kSeite * kTwipsProPixel;
    return QPointF(ursprung_) + QPointF(left * seite_ / kTwipsProSeite, top * seite_ / kTwipsProSeite);
}

QPoint BrettFlaeche::ecke(int feld) const {
    // Rounded in twips, so that a point given to a third of a unit lands on the same whole twip each time.
    const QPointF mitte = thema_.punkte[static_cast<std::size_t>(feld)] * kTwipsProPixel;
    return QPoint(static_cast<int>(std::lround(mitte.x())), static_cast<int>(std::lround(mitte.y()))) -
           QPoint(figurseite() / 2, figurseite() / 2);
}

int BrettFlaeche::figurseite() const {
    return static_cast<int>(std::lround(thema_.figur * kTwipsProPixel));
}

QRect BrettFlaeche::figurRechteck(int k) const {
    return bildRechteck(lagen_[k]);
}

QRect BrettFlaeche::bildRechteck(QPoint twips) const {
    const QPointF p = abbild(twips.x(), twips.y());
    const int groesse = static_cast<int>(std::lround(figurseite() * skala() / kTwipsProPixel));
    return {static_cast<int>(std::floor(p.x())), static_cast<int>(std::floor(p.y())), groesse, groesse};
}

void BrettFlaeche::resizeEvent(QResizeEvent*) {
    seite_ = std::max(1, std::min(width(), height()));
    ursprung_ = QPoint((width() - seite_) / 2, (height() - seite_) / 2);
    brett_ = QPixmap();
    for (int k = 0; k < kFiguren; ++k)
        figuren_[k]->setGeometry(figurRechteck(k));
    if (schwebend_ && getragenVon_ >= 0) {
        schwebend_->setGeometry(getragenRechteck());
    } else if (schwebend_) {
        griff_ = griff_ * figurRechteck(gezogen_).width() / std::max(1, schwebend_->width());
        schwebend_->resize(figurRechteck(gezogen_).size());
    }
    hinweiseAnordnen();
}

void BrettFlaeche::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect brett = brettRechteck();
    const qreal dpr = devicePixelRatioF();
    if (brett_.isNull() || brett_.devicePixelRatio() != dpr)
        brett_ = svgPixmap(thema_.brett, brett.size(), dpr);
    // Only the strips beside the square need the frame colour.
    const QRegion rand = QRegion(rect()).subtracted(brett);
    for (const QRect& r : rand)
        painter.fillRect(r, thema_.rand);
    painter.drawPixmap(brett.topLeft(), brett_);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const double s = skala();
    const double strich = thema_.strich * s;
    const double radius = 19.5 * s;
    auto mitteVon = [this](int feld) {
        const QPoint e = ecke(feld);
        return abbild(e.x() + figurseite() / 2.0, e.y() + figurseite() / 2.0);
    };
    // The hint: a light green path from the piece over each landing square, with rings at its ends.
    if (!tipp_.empty()) {
        painter.setPen(QPen(thema_.tippLinie, std::max(2.0, 3.0 * strich), Qt::DashLine, Qt::RoundCap));
        for (size_t i = 1; i < tipp_.size(); ++i)
            painter.drawLine(mitteVon(tipp_[i - 1]), mitteVon(tipp_[i]));
        painter.setPen(QPen(thema_.tippRing, std::max(2.0, 3.0 * strich)));
        for (int feld : {tipp_.front(), tipp_.back()})
            painter.drawEllipse(mitteVon(feld), radius, radius);
    }
    zieleZeichnen(painter);
    if (hasFocus()) cursorZeichnen(painter);
    if (!markierung_) return;
    // Rings around the two points, just outside a piece standing there; the origin's is fainter.
    const auto [von, nach] = *markierung_;
    for (const auto& [feld, farbe] : {std::pair{von, thema_.zugVon}, std::pair{nach, thema_.zugNach}}) {
        painter.setPen(QPen(farbe, std::max(1.5, 2.2 * strich)));
        painter.drawEllipse(mitteVon(feld), radius, radius);
    }
}

void BrettFlaeche::figurSetzen(int k, int feld) {
    figurGleiten(k, feld, feld, 1, 1);
    inhaltAbgleichen();
}

void BrettFlaeche::figurGleiten(int k, int von, int nach, int schritt, int schritte) {
    const QPoint a = ecke(von);
    lagen_[k] = a + (ecke(nach) - a) * schritt / schritte;
    stand_[k] = schritt == schritte ? nach : -1;
    figuren_[k]->setGeometry(figurRechteck(k));
    emit figurVersetzt(k, lagen_[k].x(), lagen_[k].y());
}

void BrettFlaeche::aufstellen(const Stellung& s) {
    for (int k = 0; k < kFiguren; ++k) {
        const int feld = s.figurplatz[static_cast<std::size_t>(k)];
        figurSetzen(k, feld >= 0 && feld < kFelder ? feld : kParkfeld);
        figurZeigen(k, gezeigt(k, feld));
    }
}

void BrettFlaeche::figurZeigen(int k, bool sichtbar) {
    if (!sichtbar && gezogen_ == k) ziehenAbbrechen();
    figuren_[k]->setVisible(sichtbar);
    inhaltAbgleichen();
}

void BrettFlaeche::zugMarkieren(int von, int nach) {
    // A further jump of the same piece continues the chain: the chain's origin stays marked.
    if (markierung_ && markierung_->second == von)
        markierung_->second = nach;
    else
        markierung_ = {von, nach};
    update();
    inhaltAbgleichen(); // the slide has ended
}

void BrettFlaeche::tippZeigen(std::vector<int> felder) {
    tipp_ = std::move(felder);
    update();
}

void BrettFlaeche::tippLoeschen() {
    if (tipp_.empty()) return;
    tipp_.clear();
    update();
}

void BrettFlaeche::markierungLoeschen() {
    inhaltAbgleichen();
    if (!markierung_) return;
    markierung_.reset();
    update();
}

int BrettFlaeche::figurAn(QPoint p) const {
    // Later images lie on top of earlier ones.
    for (int k = kFiguren - 1; k >= 0; --k)
        if (!figuren_[k]->isHidden() && figuren_[k]->geometry().contains(p)) return k;
    return -1;
}

int BrettFlaeche::platzAn(QPoint p) const {
    // Back to twips, where the targets are defined.
    const double s = kTwipsProPixel / skala();
    const QPointF t = (QPointF(p) - QPointF(ursprung_)) * s;
    for (int f = 0; f < kFelder; ++f)
        if (QRectF(ecke(f), QSizeF(figurseite(), figurseite())).contains(t)) return f;
    return -1;
}

int BrettFlaeche::figurAuf(int feld) const {
    for (int k = 0; k < kFiguren; ++k)
        if (!figuren_[k]->isHidden() && stand_[k] == feld) return k;
    return -1;
}

void BrettFlaeche::ziehenAbbrechen() {
    gezogen_ = -1;
    zieleSetzen({});
    if (const int von = std::exchange(getragenVon_, -1); von >= 0) zugangNameGeaendert(this, von);
    if (schwebend_) {
        schwebend_->deleteLater();
        schwebend_->hide();
        schwebend_ = nullptr;
    }
    unsetCursor();
}

void BrettFlaeche::mousePressEvent(QMouseEvent* event) {
    const QPoint p = event->position().toPoint();
    // A drag whose release never arrived (the window lost the mouse) ends here.
    if (gezogen_ >= 0) ziehenAbbrechen();
    const int k = figurAn(p);
    if (k < 0) return;
    if (event->button() == Qt::RightButton) {
        emit figurGedrueckt(k, Maustaste::rechts);
        return;
    }
    if (event->button() != Qt::LeftButton) return;
    emit figurGedrueckt(k, Maustaste::links);
    if (!ziehbar_()) return;

    griff_ = p - figuren_[k]->pos();
    anheben(k, p - griff_);
    setCursor(Qt::ClosedHandCursor);
}

void BrettFlaeche::anheben(int k, QPoint lage) {
    // The original image stays where it is until the game makes the move; a copy is carried instead.
    gezogen_ = k;
    schwebend_ = new SvgBild(figuren_[k]->datei(), figuren_[k]->size(), this);
    schwebend_->setDeckkraft(0.75);
    schwebend_->move(lage);
    schwebend_->show();
    schwebend_->raise();
    if (zielgeber_) zieleSetzen(zielgeber_(k));
}

void BrettFlaeche::mouseMoveEvent(QMouseEvent* event) {
    const QPoint p = event->position().toPoint();
    if (gezogen_ >= 0 && schwebend_) {
        schwebend_->move(p - griff_);
        return;
    }
    zeigerSetzen(p);
}

void BrettFlaeche::mouseReleaseEvent(QMouseEvent* event) {
    if (gezogen_ < 0 || getragenVon_ >= 0 || event->button() != Qt::LeftButton) return;
    const int k = gezogen_;
    const QPoint p = event->position().toPoint();
    ziehenAbbrechen();
    zeigerSetzen(p);

    // The board holds the mouse during a drag, so a release over another window arrives here as well.
    if (QApplication::topLevelAt(event->globalPosition().toPoint()) != window()) return;
    ablegen(k, p);
}

void BrettFlaeche::ablegen(int k, QPoint p) {
    // Only the drop targets accept a drop; a piece image lying over the point takes it instead.
    if (figurAn(p) >= 0) return;
    const int t = platzAn(p);
    if (t >= 0) emit abgelegt(t, k);
}

void BrettFlaeche::zeigerSetzen(QPoint p) {
    if (figurAn(p) >= 0 && ziehbar_())
        setCursor(Qt::OpenHandCursor);
    else
        unsetCursor();
}

} // namespace fuh
