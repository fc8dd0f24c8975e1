// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/statusbreite.h"

#include <QLabel>
#include <QLayout>
#include <QStatusBar>
#include <algorithm>
#include <cmath>
#include <vector>

#include "board/text.h"
#include "spieldaten/statustexte.h"
#include "ui/sprache.h"

namespace fuh {

namespace {

// Every text the game may show in each field.
std::array<std::vector<Text>, 4> moeglicheTexte() {
    std::array<std::vector<Text>, 4> texte;
    texte[0] = {Vorlage::zweiSpielerFuchsAmZug, Vorlage::zweiSpielerHennenAmZug};
    texte[1] = {Vorlage::meister};
    for (int stufe = 0; stufe <= 2; ++stufe) {
        if (const auto t = pcStatustext(stufe)) texte[0].push_back(*t);
        if (const auto t = staerkeStatustext(stufe)) texte[1].push_back(*t);
        if (const auto t = staerkeStatustextDialog(stufe)) texte[1].push_back(*t);
    }
    // Three digits and a sign: every score the board allows.
    texte[2] = {Text(Vorlage::punkte, {Text::zahl(-888)})};
    texte[3] = {Vorlage::zurueckgenommen};
    return texte;
}

QString laengster(const QLabel& feld, const std::vector<Text>& texte) {
    QString ergebnis;
    for (const Text& t : texte) {
        const QString text = uebersetzt(t);
        if (feld.fontMetrics().horizontalAdvance(text) > feld.fontMetrics().horizontalAdvance(ergebnis))
            ergebnis = text;
    }
    return ergebnis;
}

} // namespace

int statusleistenBreite(QStatusBar& leiste, const std::array<QLabel*, 4>& felder) {
    const auto texte = moeglicheTexte();
    std::array<QString, 4> bisher;
    std::array<bool, 4> verborgen{};
    // Every field shown with its longest text, also the one that appears only after a take-back.
    for (size_t i = 0; i < felder.size(); ++i) {
        bisher[i] = felder[i]->text();
        verborgen[i] = felder[i]->isHidden();
        felder[i]->setText(laengster(*felder[i], texte[i]));
        felder[i]->show();
    }
    // The fields share the bar by their stretch factors, whatever their texts: laid out at the present
    // width, the field shortest of its text says by how much the fields' share must grow.
    leiste.window()->layout()->activate();
    leiste.layout()->invalidate();
    leiste.layout()->activate();
    int felderBreite = 0; // every field with a share, the announcements' too
    for (const QLabel* feld : leiste.findChildren<QLabel*>())
        if (!feld->isHidden()) felderBreite += feld->width();
    double faktor = 1.0;
    for (const QLabel* feld : felder)
        faktor = std::max(faktor, double(feld->sizeHint().width()) / std::max(1, feld->width()));
    for (size_t i = 0; i < felder.size(); ++i) {
        felder[i]->setText(bisher[i]);
        felder[i]->setVisible(!verborgen[i]);
    }
    return leiste.width() + static_cast<int>(std::ceil(felderBreite * (faktor - 1.0)));
}

} // namespace fuh
