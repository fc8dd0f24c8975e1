// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Any bytes as QZ.INI: reading gives four values or the defaults, and never fails.
#include "fuzz_ordner.h"
#include "spieldaten/einstellungsdatei.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, std::size_t n) {
    fuh::fuzz::alsDatei("QZ.INI", daten, n);
    fuh::Einstellungen e{1, 1, 1, 1};
    fuh::einstellungenLesen(fuh::fuzz::ordner(), e);
    if (n <= 4 && (e.PC != 0 || e.Staerke != 1 || e.Lernmodus != 0 || e.Einzelzug != 0)) std::abort();
    return 0;
}
