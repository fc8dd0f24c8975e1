#include "ui/brett_flaeche.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QMouseEvent>
#include <utility>

#include "board/bildlage.h"

namespace fuh {

namespace {

constexpr int pixel(int twips) {
    return twips / kTwipsProPixel;
}

const QSize kBild(pixel(kBildgroesse), pixel(kBildgroesse));

struct HinweisLage {
    Hinweis h;
    const char* name;
    const char* text;
    int left, top, width, height; // twips
};

// In the order of the Hinweis enumerators.
constexpr std::array<HinweisLage, 4> kHinweise = {{
    {Hinweis::f_zug, "f_zug", "Die Füchse sind am Zug.", 360, 600, 1575, 615},
    {Hinweis::h_zug, "h_zug", "Die Hennen sind am Zug.", 480, 600, 1335, 615},
    {Hinweis::speichern_msg, "speichern_msg", "Lernmodus: Daten werden gespeichert !", 4200, 4440, 1575, 855},
    {Hinweis::spr_msg, "spr_msg", "Sprung mit rechter Maustaste abschließen !", 4080, 600, 1455, 1095},
}};

// Bold 9.75 points in the first of these narrow sans-serif faces the system has, else in its default
// sans-serif face.
QFont hinweisSchrift() {
    QFont schrift(QStringLiteral("Sans Serif"));
    for (const char* familie : {"Liberation Sans", "Arial", "Helvetica", "Nimbus Sans"}) {
        if (QFontDatabase::hasFamily(QString::fromLatin1(familie))) {
            schrift.setFamily(QString::fromLatin1(familie));
            break;
        }
    }
    schrift.setStyleHint(QFont::SansSerif);
    schrift.setPointSizeF(9.75);
    schrift.setBold(true);
    return schrift;
}

// A face in which a prompt does not fit its fixed box is made smaller until every prompt fits.
QFont passendeSchrift(QFont schrift, const QString& text, QSize platz) {
    const QRect rahmen(QPoint(0, 0), platz);
    while (schrift.pointSizeF() > 6.5) {
        const QRect noetig =
            QFontMetrics(schrift).boundingRect(rahmen, Qt::AlignCenter | Qt::TextWordWrap, text);
        if (noetig.width() <= platz.width() && noetig.height() <= platz.height()) break;
        schrift.setPointSizeF(schrift.pointSizeF() - 0.25);
    }
    return schrift;
}

QString figurDatei(int k) {
    return k < 2 ? QStringLiteral(":/bilder/fuchs.svg") : QStringLiteral(":/bilder/henne.svg");
}

} // namespace

BrettFlaeche::BrettFlaeche(std::function<bool()> ziehbar, QWidget* parent)
    : SvgBild(QStringLiteral(":/bilder/brett.svg"), QSize(kSeite, kSeite), parent),
      ziehbar_(std::move(ziehbar)) {
    setAttribute(Qt::WA_TransparentForMouseEvents, false);
    setAttribute(Qt::WA_TranslucentBackground, false);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true); // for the hand cursor over draggable pieces

    // The prompts lie over empty corners of the board; the pieces are created later and so stay on top.
    QFont schrift = hinweisSchrift();
    // One size for all four, the largest with which every text fits its box.
    const QSize rand(6, 4);
    for (const HinweisLage& lage : kHinweise) {
        const QSize groesse(pixel(lage.width), pixel(lage.height));
        const QFont passend = passendeSchrift(schrift, QString::fromUtf8(lage.text), groesse - rand);
        if (passend.pointSizeF() < schrift.pointSizeF()) schrift = passend;
    }
    for (const HinweisLage& lage : kHinweise) {
        auto* label = new QLabel(QString::fromUtf8(lage.text), this);
        label->setObjectName(QString::fromLatin1(lage.name));
        label->setFont(schrift);
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignCenter);
        label->setStyleSheet(QStringLiteral("QLabel { color: #fffbe0; background-color: rgba(24, 72, 0, 185);"
                                            " border: 1px solid rgba(255, 255, 255, 90); border-radius: 5px;"
                                            " padding: 1px 2px; }"));
        label->setGeometry(pixel(lage.left), pixel(lage.top), pixel(lage.width), pixel(lage.height));
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->hide();
        hinweise_[static_cast<int>(lage.h)] = label;
    }

    for (int k = 0; k < kFiguren; ++k) {
        auto* figur = new SvgBild(figurDatei(k), kBild, this);
        figur->setObjectName(QStringLiteral("figur%1").arg(k));
        figuren_[k] = figur;
    }
}

void BrettFlaeche::figurSetzen(int k, int left, int top) {
    SvgBild* figur = figuren_[k];
    const QRect vorher = figur->geometry();
    figur->move(pixel(left), pixel(top));
    if (figur->isVisible()) repaint(vorher.united(figur->geometry()));
}

void BrettFlaeche::figurZeigen(int k, bool sichtbar) {
    SvgBild* figur = figuren_[k];
    if (!sichtbar && gezogen_ == k) ziehenAbbrechen();
    figur->setVisible(sichtbar);
    repaint(figur->geometry());
}

void BrettFlaeche::hinweisZeigen(Hinweis h, bool sichtbar) {
    QLabel* label = hinweisLabel(h);
    label->setVisible(sichtbar);
    repaint(label->geometry());
}

int BrettFlaeche::figurAn(QPoint p) const {
    // Later images lie on top of earlier ones.
    for (int k = kFiguren - 1; k >= 0; --k)
        if (!figuren_[k]->isHidden() && figuren_[k]->geometry().contains(p)) return k;
    return -1;
}

int BrettFlaeche::platzAn(QPoint p) const {
    for (int t = 0; t < kFelder; ++t)
        if (QRect(QPoint(pixel(platzLeft(t)), pixel(platzTop(t))), kBild).contains(p)) return t;
    return -1;
}

void BrettFlaeche::ziehenAbbrechen() {
    gezogen_ = -1;
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

    // The original image stays where it is until the game makes the move; a copy follows the cursor.
    gezogen_ = k;
    griff_ = p - figuren_[k]->pos();
    schwebend_ = new SvgBild(figuren_[k]->datei(), kBild, this);
    schwebend_->setDeckkraft(0.75);
    schwebend_->move(p - griff_);
    schwebend_->show();
    schwebend_->raise();
    setCursor(Qt::ClosedHandCursor);
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
    if (gezogen_ < 0 || event->button() != Qt::LeftButton) return;
    const int k = gezogen_;
    const QPoint p = event->position().toPoint();
    ziehenAbbrechen();
    zeigerSetzen(p);

    // Only the drop targets accept a drop; a piece image lying over the point takes it instead. The
    // board holds the mouse during a drag, so a release over another window arrives here as well.
    if (figurAn(p) >= 0) return;
    if (QApplication::topLevelAt(event->globalPosition().toPoint()) != window()) return;
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
