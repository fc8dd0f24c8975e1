// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/klaenge.h"

#include <QSoundEffect>
#include <QUrl>
#include <cstdlib>

#include "board/stellung.h"

namespace fuh {

namespace {

constexpr std::array<const char*, Klaenge::kAnzahl> kDateien = {"abgesetzt", "fang",       "geparkt",
                                                                "sieg",      "niederlage", "remis"};

// A capture is a jump: two rows or two columns between the points.
bool sprung(int von, int nach) {
    return std::abs(feldX(von) - feldX(nach)) == 2 || std::abs(feldY(von) - feldY(nach)) == 2;
}

} // namespace

Klaenge::Klaenge(std::function<std::optional<Seite>()> menschenseite, QObject* parent)
    : QObject(parent), menschenseite_(std::move(menschenseite)) {
    for (size_t i = 0; i < effekte_.size(); ++i) {
        effekte_[i] = new QSoundEffect(this);
        effekte_[i]->setSource(QUrl(QStringLiteral("qrc:/klaenge/%1.wav").arg(QLatin1String(kDateien[i]))));
    }
}

void Klaenge::ereignis(const Ereignis& e) {
    switch (e.art) {
    case Ereignis::Art::zug:
        if (e.b == kParkfeld) return spielen(Klang::geparkt);
        return spielen(e.a != kParkfeld && sprung(e.a, e.b) ? Klang::fang : Klang::abgesetzt);
    case Ereignis::Art::zugbegrenzung:
        return spielen(Klang::remis);
    case Ereignis::Art::meldung:
        if (!e.text.vorlage()) return;
        switch (*e.text.vorlage()) {
        case Vorlage::hennenGewinnen:
            return ende(Seite::Hennen);
        case Vorlage::fuchsGewinnt:
        case Vorlage::fuchsGewinntOhneZug:
            return ende(Seite::Fuchs);
        case Vorlage::remisZiel:
            return spielen(Klang::remis);
        default:
            return;
        }
    default:
        return;
    }
}

void Klaenge::ende(std::optional<Seite> sieger) {
    const std::optional<Seite> mensch = menschenseite_();
    spielen(!mensch || mensch == sieger ? Klang::sieg : Klang::niederlage);
}

void Klaenge::spielen(Klang k) {
    if (!an_) return;
    QSoundEffect* effekt = effekte_.at(static_cast<size_t>(k));
    effekt->stop(); // a quick second move starts its sound afresh
    effekt->play();
    emit gespielt(k);
}

} // namespace fuh
