// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Any bytes as a high-score list: ten rows with fixed-width fields, names convertible to UTF-8 and back.
#include "fuzz_ordner.h"
#include "spieldaten/bestenliste.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, std::size_t n) {
    fuh::fuzz::alsDatei("QZF.sco", daten, n);
    fuh::Bestenliste liste(fuh::Seite::Fuchs);
    liste.laden(fuh::fuzz::ordner());
    for (const fuh::Eintrag& e : liste.eintraege()) {
        if (e.user.size() != 15 || e.sieg.size() != 4) std::abort();
        if (fuh::nachWindows1252(fuh::vonWindows1252(e.user)) != e.user) std::abort();
    }
    const int zeile = liste.einfuegen(static_cast<int16_t>(n), "Ja", 45000);
    if (zeile < 0 || zeile > fuh::kListenzeilen) std::abort();
    return 0;
}
