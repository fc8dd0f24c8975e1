// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/thema.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <algorithm>
#include <optional>

#include "ui/sprache.h"

namespace fuh {

namespace {

void farbe(const QSettings& ini, const char* schluessel, QColor& ziel) {
    // "#RRGGBB", or "#AARRGGBB" with its opacity first.
    const QColor c(ini.value(QLatin1String(schluessel)).toString());
    if (c.isValid()) ziel = c;
}

// The picture named under `schluessel`, relative to the theme's folder; empty when it is not there.
QString bild(const QSettings& ini, const QDir& ordner, const char* schluessel) {
    const QString name = ini.value(QLatin1String(schluessel)).toString();
    if (name.isEmpty()) return {};
    const QString pfad = QDir::cleanPath(ordner.filePath(name));
    return QFileInfo(pfad).isFile() ? pfad : QString();
}

// Numbers separated by blanks, each within [0, kBrettseite]; none unless there are exactly `anzahl`.
std::optional<std::vector<double>> zahlen(const QSettings& ini, const QString& schluessel, int anzahl) {
    std::vector<double> werte;
    for (const QString& teil : ini.value(schluessel).toString().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        bool ok = false;
        const double v = teil.toDouble(&ok);
        if (!ok || !(v >= 0 && v <= kBrettseite)) return std::nullopt;
        werte.push_back(v);
    }
    if (static_cast<int>(werte.size()) != anzahl) return std::nullopt;
    return werte;
}

// The group [Punkte]: Y the rows' centres from the top, X0 to X6 each row's column centres from the left,
// Figur a piece's side. A theme that gives them only in part keeps `t`'s points: no half-moved board.
void punkteLesen(QSettings& ini, Thema& t) {
    ini.beginGroup(QStringLiteral("Punkte"));
    const auto y = zahlen(ini, QStringLiteral("Y"), 7);
    const auto figur = zahlen(ini, QStringLiteral("Figur"), 1);
    std::array<QPointF, kFelder> punkte{};
    bool vollstaendig = y && figur && figur->front() >= 8 && figur->front() <= kBrettseite / 7.0;
    for (int zeile = 0; zeile < 7 && vollstaendig; ++zeile) {
        const auto x = zahlen(ini, QStringLiteral("X%1").arg(zeile), 7);
        vollstaendig = x.has_value();
        for (int spalte = 0; x && spalte < 7; ++spalte)
            punkte[feldNummer(spalte, zeile)] = QPointF((*x)[spalte], (*y)[zeile]);
    }
    ini.endGroup();
    if (!vollstaendig) return;
    t.punkte = punkte;
    t.figur = figur->front();
}

// The theme in `ordner`; what it leaves out is taken from `basis`. None unless it has all three
// pictures and every colour.
std::optional<Thema> lesen(const QDir& ordner, const Thema& basis) {
    const QString datei = ordner.filePath(QStringLiteral("thema.ini"));
    if (!QFileInfo(datei).isFile()) return std::nullopt;
    QSettings ini(datei, QSettings::IniFormat);
    ini.beginGroup(QStringLiteral("Thema"));
    Thema t = basis;
    t.id = ordner.dirName();
    t.name = ini.value(QStringLiteral("Name"), t.id).toString();
    t.namen.clear();
    for (const Sprache& s : sprachen()) {
        // "NameEn" for English: the key ends in the language's code.
        QString code = QLatin1String(s.code);
        code[0] = code[0].toUpper();
        const QString name = ini.value(QStringLiteral("Name") + code).toString();
        if (!name.isEmpty()) t.namen.insert(QLatin1String(s.code), name);
    }
    for (const auto& [schluessel, ziel] :
         {std::pair{"Brett", &t.brett}, {"Fuchs", &t.fuchs}, {"Henne", &t.henne}}) {
        *ziel = bild(ini, ordner, schluessel);
        if (ziel->isEmpty()) return std::nullopt;
    }
    bool vollstaendig = true;
    for (const auto& [schluessel, ziel] : {std::pair{"Rand", &t.rand},
                                           {"ZugVon", &t.zugVon},
                                           {"ZugNach", &t.zugNach},
                                           {"TippLinie", &t.tippLinie},
                                           {"TippRing", &t.tippRing},
                                           {"CursorAussen", &t.cursorAussen},
                                           {"CursorInnen", &t.cursorInnen},
                                           {"HinweisSchrift", &t.hinweisSchrift},
                                           {"HinweisGrund", &t.hinweisGrund}}) {
        farbe(ini, schluessel, *ziel);
        vollstaendig = vollstaendig && ziel->isValid();
    }
    if (!vollstaendig) return std::nullopt;
    t.strich = std::clamp(ini.value(QStringLiteral("Strich"), basis.strich).toDouble(), 0.5, 3.0);
    ini.endGroup();
    punkteLesen(ini, t);
    return t;
}

// The classic board: every other theme starts from it. The game's own copy stands in for a missing one.
Thema klassisch(const QDir& wurzel) {
    const QString id = QLatin1String(kThemaStandard);
    if (auto t = lesen(QDir(wurzel.filePath(id)), Thema{})) return *t;
    return *lesen(QDir(QStringLiteral(":/themen/") + id), Thema{});
}

} // namespace

std::array<QPointF, kFelder> Thema::gleichmaessigePunkte() {
    std::array<QPointF, kFelder> p{};
    const double siebtel = kBrettseite / 7.0;
    for (int f = 0; f < kFelder; ++f)
        p[f] = QPointF((feldX(f) + 0.5) * siebtel, (feldY(f) + 0.5) * siebtel);
    return p;
}

QString Thema::anzeigename() const {
    return namen.value(QLatin1String(aktuelleSprache().code), name);
}

std::vector<Thema> themen(const QString& wurzel) {
    const QDir dir(wurzel);
    std::vector<Thema> liste{klassisch(dir)};
    for (const QString& name : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        if (name == QLatin1String(kThemaStandard)) continue;
        if (auto t = lesen(QDir(dir.filePath(name)), liste.front())) liste.push_back(*t);
    }
    return liste;
}

Thema thema(const QString& id, const QString& wurzel) {
    const std::vector<Thema> liste = themen(wurzel);
    const auto t = std::find_if(liste.begin(), liste.end(), [&](const Thema& t) { return t.id == id; });
    return t == liste.end() ? liste.front() : *t;
}

} // namespace fuh
