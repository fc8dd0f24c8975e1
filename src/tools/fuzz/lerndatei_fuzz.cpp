// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Any bytes as QZ3.DAT, read through one long-lived learned-move file object as the game does: every
// recall sees the new content, finds the first record of a position (or its mirror form) like a plain
// scan of the file, and reads nothing past the end.
#include "fuzz_lernen.h"
#include "fuzz_ordner.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, std::size_t n) {
    static const fuh::Lerndatei lerndatei(fuh::fuzz::ordner());
    fuh::fuzz::alsDatei("QZ3.DAT", daten, n);
    fuh::Stellung s;
    s.grundstellung();
    for (const fuh::Brettfeld& f : {s.Feld, fuh::fuzz::feldAus(daten, n)}) {
        const fuh::Code p = fuh::positionscode(f);
        for (const int16_t figur : {fuh::henne, fuh::fuchs})
            if (lerndatei.erinnern(f, figur, 2, fuh::Partie{}) !=
                fuh::fuzz::gescannt(daten, n, p, figur == fuh::henne))
                std::abort();
    }
    return 0;
}
