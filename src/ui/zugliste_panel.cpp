// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/zugliste_panel.h"

#include <QEvent>
#include <QListWidget>
#include <QScrollBar>

#include "game/notation.h"

namespace fuh {

ZuglistePanel::ZuglistePanel(QWidget* parent) : QDockWidget(parent), liste_(new QListWidget(this)) {
    setObjectName(QStringLiteral("zugliste"));
    liste_->setObjectName(QStringLiteral("zuglisteZuege"));
    setWidget(liste_);
    setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    texteSetzen();
    connect(liste_, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* i) { emit zugGewaehlt(static_cast<std::size_t>(liste_->row(i))); });
    // A click or the list's own keys move the selection; the board follows.
    connect(liste_, &QListWidget::currentRowChanged, this, [this](int zeile) {
        if (zeile >= 0) emit zugGewaehlt(static_cast<std::size_t>(zeile));
    });
}

void ZuglistePanel::zeigen(const std::vector<Partiezug>& zuege, bool offen, std::size_t stand) {
    if (zuege != zuege_ || offen != offen_ || liste_->count() == 0) {
        zuege_ = zuege;
        offen_ = offen;
        fuellen();
    }
    const QSignalBlocker ruhe(liste_);
    liste_->setCurrentRow(static_cast<int>(std::min(stand, zuege.size())));
    if (QListWidgetItem* i = liste_->currentItem()) liste_->scrollToItem(i);
}

// Row 0 is the start, row n the move n, as in a game file.
QString ZuglistePanel::zeile(const std::vector<Partiezug>& zuege, bool offen, std::size_t n) {
    if (n == 0 || n > zuege.size()) return tr("Anfang");
    const Partiezug& e = zuege[n - 1];
    return QStringLiteral("%1. %2 %3")
        .arg(n)
        .arg(QLatin1Char(e.seite == Seite::Fuchs ? 'F' : 'H'))
        .arg(QString::fromStdString(zugText(e, offen && n == zuege.size())));
}

void ZuglistePanel::fuellen() {
    const QSignalBlocker ruhe(liste_);
    const int aktuell = liste_->currentRow();
    liste_->clear();
    for (std::size_t n = 0; n <= zuege_.size(); ++n)
        liste_->addItem(zeile(zuege_, offen_, n));
    liste_->setCurrentRow(std::min(aktuell, liste_->count() - 1));
}

void ZuglistePanel::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) {
        texteSetzen();
        fuellen();
    }
    QDockWidget::changeEvent(e);
}

void ZuglistePanel::texteSetzen() {
    setWindowTitle(tr("Zugliste"));
    liste_->setAccessibleName(tr("Zugliste"));
    // Wide enough for a long line without cutting it.
    liste_->setMinimumWidth(
        liste_->fontMetrics().horizontalAdvance(QStringLiteral("150. F e5xe3xc3xa3xa5+")) +
        liste_->verticalScrollBar()->sizeHint().width() + 2 * liste_->frameWidth());
    liste_->setAccessibleDescription(tr("Die Züge der Partie; die Auswahl zeigt das Brett nach diesem Zug."));
}

} // namespace fuh
