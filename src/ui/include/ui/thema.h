// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// How the board looks: a theme is a folder of pictures (the board, a fox, a hen) and a small file
// thema.ini that names them and gives the colours of the frame, the marks and the prompts, and where on
// the board picture the points lie. Every folder under the themes' root is a theme, so a further theme
// needs no code.
#include <QColor>
#include <QHash>
#include <QPointF>
#include <QString>
#include <array>
#include <vector>

#include "board/stellung.h"

namespace fuh {

inline constexpr int kBrettseite = 400; // the board picture's side in its own units

struct Thema {
    QString id;                    // the folder's name, as kept in the window settings
    QString name;                  // in German
    QHash<QString, QString> namen; // in the other languages, by their code
    QString brett, fuchs, henne;   // the pictures
    QColor rand;                   // beside the board where the window is not square
    QColor zugVon, zugNach;        // rings of the last move's origin and destination
    QColor tippLinie, tippRing;    // the hint's path and its end rings
    QColor cursorAussen, cursorInnen;
    QColor hinweisSchrift, hinweisGrund; // the prompts over the board's corners
    double strich = 1.0;                 // line widths of every mark, relative to the classic board
    // In the board picture's units: the centre of each square of the 7 x 7 grid (the points of the cross,
    // and the parking square where a penalised fox waits), and the side of a piece.
    std::array<QPointF, kFelder> punkte = gleichmaessigePunkte();
    double figur = 32;

    // The name in the language spoken now.
    QString anzeigename() const;
    // Every square in the middle of its seventh of the picture: for a theme that names no points.
    static std::array<QPointF, kFelder> gleichmaessigePunkte();
};

inline constexpr const char* kThemaStandard = "klassisch";

// Every theme under `wurzel` (by default the game's own), the classic board first.
std::vector<Thema> themen(const QString& wurzel = QStringLiteral(":/themen"));
// The theme `id`; the classic board for an unknown or unreadable one.
Thema thema(const QString& id, const QString& wurzel = QStringLiteral(":/themen"));

} // namespace fuh
