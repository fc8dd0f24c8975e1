// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Any bytes as QZ.sta: the counters are the file's first 34 bytes, missing ones 0.
#include "fuzz_ordner.h"
#include "spieldaten/statistikdatei.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, std::size_t n) {
    fuh::fuzz::alsDatei("QZ.sta", daten, n);
    const fuh::Statistik s = fuh::statistikLesen(fuh::fuzz::ordner());
    for (std::size_t i = 0; i < s.zaehler.size(); ++i) {
        const unsigned lo = 2 * i < n ? daten[2 * i] : 0u;
        const unsigned hi = 2 * i + 1 < n ? daten[2 * i + 1] : 0u;
        if (s.zaehler[i] != static_cast<int16_t>(lo | (hi << 8))) std::abort();
    }
    return 0;
}
