// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lagefeld.h"

#include <QEvent>
#include <QStringList>
#include <utility>

#include "board/regeln.h"

namespace fuh {

namespace {
constexpr int kWarnungAb = 10; // moves before the limit from which the line warns of it
} // namespace

Lagefeld::Lagefeld(QWidget* parent) : Statustext(parent) {
    setObjectName(QStringLiteral("lage"));
    setMargin(2);
    schreiben();
}

QString Lagefeld::zugText(const Lage& lage) {
    const bool fuechse = lage.seite == Seite::Fuchs;
    switch (lage.amZug) {
    case Lage::Zug::mensch:
        return fuechse ? tr("Sie sind am Zug: Füchse") : tr("Sie sind am Zug: Hennen");
    case Lage::Zug::computer:
        return fuechse ? tr("Der Computer zieht: Füchse") : tr("Der Computer zieht: Hennen");
    case Lage::Zug::zweiSpieler:
        return fuechse ? tr("Füchse am Zug") : tr("Hennen am Zug");
    case Lage::Zug::selbstspiel:
        return tr("Der Computer spielt gegen sich selbst");
    case Lage::Zug::keiner:
        break;
    }
    return {};
}

QString Lagefeld::zaehlerText(int spielzug) {
    return tr("Zug %1 von %2").arg(spielzug).arg(kZugbegrenzung);
}

QString Lagefeld::warnung(int spielzug) {
    const int rest = kZugbegrenzung - spielzug;
    if (rest > kWarnungAb || rest < 1) return {};
    return rest == 1 ? tr("Noch ein Zug bis zum Remis") : tr("Noch %1 Züge bis zum Remis").arg(rest);
}

QString Lagefeld::grundText(Endegrund g, bool letzterFuchs) {
    switch (g) {
    case Endegrund::hennenImZiel:
        return tr("Die Hennen besetzen alle %1 Zielfelder.").arg(kZielfelder);
    case Endegrund::zuWenigHennen:
        return tr("Weniger als %1 Hennen sind übrig; sie können das Ziel nicht mehr füllen.")
            .arg(kZielfelder);
    case Endegrund::hennenOhneZug:
        return tr("Die Hennen können nicht mehr ziehen.");
    case Endegrund::fuchsOhneZug:
        return letzterFuchs ? tr("Der letzte Fuchs auf dem Brett wäre ausgeschlossen worden.")
                            : tr("Die Füchse können nicht mehr ziehen.");
    case Endegrund::zugbegrenzung:
        break;
    }
    return tr("Die Zugbegrenzung von %1 Zügen ist erreicht.").arg(kZugbegrenzung);
}

QString Lagefeld::setzen(const Lage& lage) {
    const Lage alt = std::exchange(lage_, lage);
    if (lage.laeuft) gruende_ = 0; // a new game
    schreiben();
    if (!lage.laeuft) return {};
    QStringList neu;
    const bool zugNeu = !alt.laeuft || alt.amZug != lage.amZug || alt.seite != lage.seite;
    if (zugNeu && lage.amZug == Lage::Zug::mensch) neu << zugText(lage);
    if (warnung(alt.spielzug).isEmpty() || !alt.laeuft) neu << warnung(lage.spielzug);
    neu.removeAll(QString());
    return neu.join(QStringLiteral(". "));
}

QString Lagefeld::ende(uint8_t gruende, bool letzterFuchs) {
    gruende_ = gruende;
    letzterFuchs_ = letzterFuchs;
    lage_.laeuft = false;
    schreiben();
    return text();
}

void Lagefeld::schreiben() {
    QStringList teile;
    if (gruende_ != 0) {
        QStringList gruende;
        for (unsigned g = 0; g <= static_cast<unsigned>(Endegrund::zugbegrenzung); ++g)
            if (gruende_ & (1U << g)) gruende << grundText(static_cast<Endegrund>(g), letzterFuchs_);
        teile << tr("Spielende: %1").arg(gruende.join(QLatin1Char(' ')));
    } else if (!lage_.begonnen) {
        teile << tr("Spiel → Neu (Strg+N) beginnt eine Partie.");
    } else if (lage_.laeuft) {
        teile << zugText(lage_) << zaehlerText(lage_.spielzug) << warnung(lage_.spielzug);
    }
    if (lage_.lernmodus) teile << tr("Lernmodus");
    if (lage_.einzelzug) teile << tr("Einzelzug: Der Computer antwortet nicht");
    teile.removeAll(QString());
    setText(teile.join(QStringLiteral(" · ")));
}

void Lagefeld::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) schreiben();
    Statustext::changeEvent(e);
}

} // namespace fuh
