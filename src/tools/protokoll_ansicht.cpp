// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/protokoll_ansicht.h"

namespace fuh {

namespace {
const char* flagge(bool b) {
    return b ? "-1" : "0";
}
} // namespace

void ProtokollAnsicht::meldung(const Text& text) {
    if (aus_) *aus_ << "meldung " << deutsch(text) << '\n';
}

void ProtokollAnsicht::speicherfehler(const Text& text) {
    meldung(text);
    if (beiSpeicherfehler_) beiSpeicherfehler_(deutsch(text));
}

void ProtokollAnsicht::oeffnen(Fenster f) {
    if (!aus_ || !spiel_) return;
    *aus_ << "liste " << (f == Fenster::highh ? 'h' : 'f') << ' ' << spiel_->score << ' ';
    bool leer = true;
    for (char c : spiel_->u_is_sieger)
        if (c != ' ') {
            *aus_ << c;
            leer = false;
        }
    *aus_ << (leer ? "- " : " ") << flagge(spiel_->fuchs_null) << ' ' << flagge(spiel_->sw_spielende) << '\n';
}

void ProtokollAnsicht::zugAusgefuehrt(int vonX, int vonY, int nachX, int nachY, bool normal) {
    if (aus_)
        *aus_ << "zug " << vonX << ' ' << vonY << ' ' << nachX << ' ' << nachY << ' ' << (normal ? 1 : 0)
              << '\n';
}

} // namespace fuh
