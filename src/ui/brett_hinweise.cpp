// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// The board's prompts: where they lie, and a face in which every text fits, in the player's language.
#include <QEvent>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>
#include <cmath>

#include "ui/brett_flaeche.h"

namespace fuh {

namespace {

struct HinweisLage {
    Hinweis h;
    const char* name;
    const char* text;
    int left, top, width, height; // twips
};

// In the order of the Hinweis enumerators.
constexpr std::array<HinweisLage, 4> kHinweise = {{
    {Hinweis::f_zug, "f_zug", QT_TRANSLATE_NOOP("fuh::BrettFlaeche", "Die Füchse sind am Zug."), 360, 600,
     1575, 615},
    {Hinweis::h_zug, "h_zug", QT_TRANSLATE_NOOP("fuh::BrettFlaeche", "Die Hennen sind am Zug."), 480, 600,
     1335, 615},
    {Hinweis::speichern_msg, "speichern_msg",
     QT_TRANSLATE_NOOP("fuh::BrettFlaeche", "Lernmodus: Daten werden gespeichert !"), 4200, 4440, 1575, 855},
    {Hinweis::spr_msg, "spr_msg",
     QT_TRANSLATE_NOOP("fuh::BrettFlaeche", "Sprung mit rechter Maustaste abschließen !"), 4080, 600, 1455,
     1095},
}};

// Bold 9.75 points (at scale 1) in the first of these narrow sans-serif faces the system has, else in
// its default sans-serif face.
QFont hinweisSchrift(double skala) {
    QFont schrift(QStringLiteral("Sans Serif"));
    for (const char* familie : {"Liberation Sans", "Arial", "Helvetica", "Nimbus Sans"}) {
        if (QFontDatabase::hasFamily(QString::fromLatin1(familie))) {
            schrift.setFamily(QString::fromLatin1(familie));
            break;
        }
    }
    schrift.setStyleHint(QFont::SansSerif);
    schrift.setPointSizeF(9.75 * skala);
    schrift.setBold(true);
    return schrift;
}

// A face in which a prompt does not fit its box is made smaller until it fits.
QFont passendeSchrift(QFont schrift, const QString& text, QSize platz, double skala) {
    const QRect rahmen(QPoint(0, 0), platz);
    while (schrift.pointSizeF() > 6.5 * skala) {
        const QRect noetig =
            QFontMetrics(schrift).boundingRect(rahmen, Qt::AlignCenter | Qt::TextWordWrap, text);
        if (noetig.width() <= platz.width() && noetig.height() <= platz.height()) break;
        schrift.setPointSizeF(schrift.pointSizeF() - 0.25 * skala);
    }
    return schrift;
}

// A colour as a style sheet writes it, with its opacity.
QString farbText(const QColor& c) {
    return QStringLiteral("rgba(%1, %2, %3, %4)").arg(c.red()).arg(c.green()).arg(c.blue()).arg(c.alpha());
}

} // namespace

void BrettFlaeche::hinweiseAnlegen() {
    // They lie over empty corners of the board.
    for (const HinweisLage& lage : kHinweise) {
        auto* label = new QLabel(this); // its text comes with its place, in hinweiseAnordnen
        label->setObjectName(QString::fromLatin1(lage.name));
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignCenter);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->hide();
        hinweise_[static_cast<int>(lage.h)] = label;
    }
}

void BrettFlaeche::hinweiseAnordnen() {
    // One size for all four, the largest with which every text fits its box at this scale.
    const double s = skala();
    QFont schrift = hinweisSchrift(s);
    const QSize rand(static_cast<int>(6 * s), static_cast<int>(4 * s));
    auto rechteck = [this](const HinweisLage& l) {
        const QPointF a = abbild(l.left, l.top);
        const QPointF b = abbild(l.left + l.width, l.top + l.height);
        return QRectF(a, b).toRect();
    };
    for (const HinweisLage& lage : kHinweise) {
        const QFont passend = passendeSchrift(schrift, tr(lage.text), rechteck(lage).size() - rand, s);
        if (passend.pointSizeF() < schrift.pointSizeF()) schrift = passend;
    }
    const QString stil =
        QStringLiteral(
            "QLabel { color: %5; background-color: %6;"
            " border: %1px solid rgba(255, 255, 255, 90); border-radius: %2px; padding: %3px %4px; }")
            .arg(std::max(1, static_cast<int>(s)))
            .arg(std::lround(5 * s))
            .arg(std::lround(s))
            .arg(std::lround(2 * s))
            .arg(farbText(thema_.hinweisSchrift), farbText(thema_.hinweisGrund));
    for (const HinweisLage& lage : kHinweise) {
        QLabel* label = hinweisLabel(lage.h);
        label->setText(tr(lage.text));
        // The jump prompt also names the keys and that a chain without a further jump ends by itself.
        const QString mehr = lage.h == Hinweis::spr_msg ? sprungTasten() : QString();
        label->setToolTip(mehr);
        label->setAccessibleDescription(mehr);
        label->setFont(schrift);
        label->setStyleSheet(stil);
        label->setGeometry(rechteck(lage));
    }
}

QString BrettFlaeche::sprungTasten() {
    return tr("Ohne weiteren möglichen Sprung endet die Sprungfolge von selbst. Früher beenden: rechte "
              "Maustaste, Kontextmenütaste oder Umschalt+F10.");
}

bool BrettFlaeche::event(QEvent* event) {
    // The prompts let the mouse through to the pieces; their tips are shown from here.
    if (event->type() == QEvent::ToolTip) {
        const QPoint p = static_cast<QHelpEvent*>(event)->pos();
        for (const QLabel* label : hinweise_)
            if (label->isVisible() && label->geometry().contains(p) && !label->toolTip().isEmpty()) {
                QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), label->toolTip(), this);
                return true;
            }
        QToolTip::hideText();
        return true;
    }
    return QWidget::event(event);
}

void BrettFlaeche::hinweisZeigen(Hinweis h, bool sichtbar) {
    hinweisLabel(h)->setVisible(sichtbar);
}

void BrettFlaeche::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        hinweiseAnordnen(); // another text may need a smaller face
        setAccessibleName(tr("Spielbrett"));
    }
    QWidget::changeEvent(event);
}

} // namespace fuh
