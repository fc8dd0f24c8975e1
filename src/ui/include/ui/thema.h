// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// How the board looks: a theme is a folder of pictures (the board, a fox, a hen) and a small file
// thema.ini that names them and gives the colours of the frame, the marks and the prompts. Every folder
// under the themes' root is a theme, so a further theme needs no code.
#include <QColor>
#include <QHash>
#include <QString>
#include <vector>

namespace fuh {

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

    // The name in the language spoken now.
    QString anzeigename() const;
};

inline constexpr const char* kThemaStandard = "klassisch";

// Every theme under `wurzel` (by default the game's own), the classic board first.
std::vector<Thema> themen(const QString& wurzel = QStringLiteral(":/themen"));
// The theme `id`; the classic board for an unknown or unreadable one.
Thema thema(const QString& id, const QString& wurzel = QStringLiteral(":/themen"));

} // namespace fuh
