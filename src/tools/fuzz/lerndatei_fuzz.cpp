// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Any bytes as QZ3.DAT, read through one long-lived learned-move file object as the game does: every
// recall sees the new content, finds the first record of a position (or its mirror form) like a plain
// scan of the file, and reads nothing past the end.
#include <algorithm>
#include <cstring>

#include "fuzz_ordner.h"
#include "memory/lerndatei.h"

namespace {

int16_t gescannt(const uint8_t* d, std::size_t n, const fuh::Code& p, bool henne) {
    const std::size_t saetze = std::min<std::size_t>((n + 7) / 15, 32767);
    const fuh::Code m = fuh::spiegelcode(p);
    for (std::size_t r = 0; r < saetze; ++r) {
        uint8_t satz[15] = {};
        std::memcpy(satz, d + 15 * r, std::min<std::size_t>(15, n - 15 * r));
        if (std::equal(p.begin(), p.end(), satz) || std::equal(m.begin(), m.end(), satz))
            return static_cast<int16_t>(henne ? satz[13] | (satz[14] << 8) : satz[11] | (satz[12] << 8));
    }
    return 0;
}

// A board whose code the first record holds when its bytes are a plausible code, else a board from the bytes.
fuh::Brettfeld feldAus(const uint8_t* d, std::size_t n) {
    fuh::Brettfeld f{};
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y) {
            const std::size_t i = static_cast<std::size_t>(x);
            const bool henne = i < n && (d[i] - 64) >= 0 && ((d[i] - 64) >> y & 1);
            f[x][y] = henne ? fuh::henne : fuh::leer;
        }
    if (n >= 11 && d[7] >= 64 && d[7] <= 70 && d[8] >= 64 && d[8] <= 70) f[d[7] - 64][d[8] - 64] = fuh::fuchs;
    return f;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, std::size_t n) {
    static const fuh::Lerndatei lerndatei(fuh::fuzz::ordner());
    fuh::fuzz::alsDatei("QZ3.DAT", daten, n);
    fuh::Stellung s;
    s.grundstellung();
    for (const fuh::Brettfeld& f : {s.Feld, feldAus(daten, n)}) {
        const fuh::Code p = fuh::positionscode(f);
        for (const int16_t figur : {fuh::henne, fuh::fuchs})
            if (lerndatei.erinnern(f, figur, 2, fuh::Partie{}) != gescannt(daten, n, p, figur == fuh::henne))
                std::abort();
    }
    return 0;
}
