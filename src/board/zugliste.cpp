// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "board/zugliste.h"

#include <algorithm>

namespace fuh {

namespace {

constexpr int kReichweite = 2; // a jump goes two squares; nothing goes further

bool erlaubt(const Brettfeld& Feld, int16_t seite, const Sprungfolge& sprung, const Teilzug& t) {
    return seite == henne ? hennenzugErlaubt(Feld, t.vonX, t.vonY, t.nachX, t.nachY)
                          : fuchszugErlaubt(Feld, sprung, t.vonX, t.vonY, t.nachX, t.nachY);
}

bool bekannt(const std::vector<Regelzug>& zuege, const Regelzug& z) {
    return std::any_of(zuege.begin(), zuege.end(), [&z](const Regelzug& w) {
        return w.teile[0].vonX == z.teile[0].vonX && w.teile[0].vonY == z.teile[0].vonY &&
               w.nachher == z.nachher;
    });
}

// Every move that begins with a part from (x, y) that the rules allow; after a jump the same fox may
// jump on, as the open jump sequence allows.
void zuegeAb(const Regelzug& bisher, int16_t seite, const Sprungfolge& sprung, int x, int y,
             std::vector<Regelzug>& aus) {
    for (int x1 = x - kReichweite; x1 <= x + kReichweite; ++x1)
        for (int y1 = y - kReichweite; y1 <= y + kReichweite; ++y1) {
            const Teilzug t{static_cast<int16_t>(x), static_cast<int16_t>(y), static_cast<int16_t>(x1),
                            static_cast<int16_t>(y1)};
            if (bisher.anzahl >= kLaengsteKette || !erlaubt(bisher.nachher, seite, sprung, t)) continue;
            Regelzug z = bisher;
            z.teile[static_cast<std::size_t>(z.anzahl++)] = t;
            teilzugAusfuehren(z.nachher, t);
            if (bekannt(aus, z)) continue; // another route got here: its continuations are known too
            aus.push_back(z);
            if (t.sprung()) zuegeAb(z, seite, {true, t.nachX, t.nachY}, x1, y1, aus);
        }
}

} // namespace

void teilzugAusfuehren(Brettfeld& Feld, const Teilzug& t) {
    Feld[t.nachX][t.nachY] = Feld[t.vonX][t.vonY];
    Feld[t.vonX][t.vonY] = leer;
    if (t.sprung()) Feld[(t.vonX + t.nachX) / 2][(t.vonY + t.nachY) / 2] = leer;
}

std::vector<Regelzug> erlaubteZuege(const Brettfeld& Feld, int16_t seite, const Sprungfolge& sprung) {
    std::vector<Regelzug> zuege;
    Regelzug anfang;
    anfang.nachher = Feld;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (Feld[x][y] == seite) zuegeAb(anfang, seite, sprung, x, y, zuege);
    return zuege;
}

} // namespace fuh
