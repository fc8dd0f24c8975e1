// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/zugliste_panel.h"

#include <QEvent>
#include <QListWidget>

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
    connect(liste_, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* i) { emit zugGewaehlt(static_cast<std::size_t>(liste_->row(i))); });
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
void ZuglistePanel::fuellen() {
    const QSignalBlocker ruhe(liste_);
    const int zeile = liste_->currentRow();
    liste_->clear();
    liste_->addItem(tr("Anfang"));
    for (std::size_t i = 0; i < zuege_.size(); ++i) {
        const Partiezug& e = zuege_[i];
        liste_->addItem(QStringLiteral("%1. %2 %3")
                            .arg(i + 1)
                            .arg(QLatin1Char(e.seite == Seite::Fuchs ? 'F' : 'H'))
                            .arg(QString::fromStdString(zugText(e, offen_ && i + 1 == zuege_.size()))));
    }
    liste_->setCurrentRow(std::min(zeile, liste_->count() - 1));
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
    liste_->setAccessibleDescription(tr("Die Züge der Partie; die Auswahl zeigt das Brett nach diesem Zug."));
}

} // namespace fuh
