// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// How the game looks and sounds: Spiel -> Aussehen and Spiel -> Ton, both kept in the window settings.
#include <QAction>
#include <QActionGroup>
#include <QMenu>

#include "ui/brett_fenster.h"
#include "ui/brett_flaeche.h"
#include "ui/klaenge.h"

namespace fuh {

namespace {
const QString kThemaSchluessel = QStringLiteral("thema");
const QString kTonSchluessel = QStringLiteral("ton");
} // namespace

void BrettFenster::aussehenMenue(QMenu* menue) {
    QMenu* aussehen = menue->addMenu(QString());
    texte_.text(aussehen->menuAction(), QT_TR_NOOP("&Aussehen"));
    aussehen->setObjectName(QStringLiteral("aussehen"));
    auto* gruppe = new QActionGroup(aussehen);
    const QString gewaehlt = fensterEinstellungen().value(kThemaSchluessel).toString();
    for (const Thema& t : themen()) {
        QAction* a = aussehen->addAction(t.anzeigename());
        a->setObjectName(QStringLiteral("thema_") + t.id);
        a->setCheckable(true);
        a->setData(t.id);
        gruppe->addAction(a);
        connect(a, &QAction::triggered, this, [this, id = t.id] { themaWaehlen(id); });
    }
    themaAktionen_ = gruppe;
    themaWaehlen(gewaehlt, false);

    tonAktion_ = befehl(menue, "ton", QT_TR_NOOP("T&on"), [this] {
        klaenge_->setAn(tonAktion_->isChecked());
        fensterEinstellungen().setValue(kTonSchluessel, tonAktion_->isChecked() ? "an" : "aus");
    });
    tonAktion_->setCheckable(true);
    // Sound is on unless the player switched it off.
    tonAktion_->setChecked(fensterEinstellungen().value(kTonSchluessel).toString() != QLatin1String("aus"));
    klaenge_->setAn(tonAktion_->isChecked());
}

void BrettFenster::themaWaehlen(const QString& id, bool merken) {
    const Thema t = thema(id);
    brett_->themaSetzen(t);
    for (QAction* a : themaAktionen_->actions())
        a->setChecked(a->data().toString() == t.id);
    if (merken) fensterEinstellungen().setValue(kThemaSchluessel, t.id);
}

void BrettFenster::aussehenTexteSetzen() {
    // The themes name themselves in both languages.
    for (QAction* a : themaAktionen_->actions())
        a->setText(thema(a->data().toString()).anzeigename());
}

} // namespace fuh
