// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "player/tafel_index.h"

#include <algorithm>
#include <bit>

namespace fuh::meister {

namespace {

struct Kreuz {
    std::array<int8_t, kKreuzfelder> feld{}; // square of each cross number
    std::array<int8_t, kQuadrate> nummer{};  // cross number of each square, -1 off the cross
    std::array<std::array<uint64_t, kKreuzfelder + 1>, kKreuzfelder + 1> binom{};
};
// Built at compile time: the index is asked at every position the builder and the search visit.
constexpr Kreuz baueKreuz() {
    Kreuz k;
    int n = 0;
    for (int s = 0; s < kQuadrate; ++s) {
        const bool auf = aufKreuz(s % 7, s / 7);
        k.nummer[s] = static_cast<int8_t>(auf ? n : -1);
        if (auf) k.feld[n++] = static_cast<int8_t>(s);
    }
    for (int a = 0; a <= kKreuzfelder; ++a) {
        k.binom[a][0] = 1;
        for (int b = 1; b <= a; ++b)
            k.binom[a][b] = k.binom[a - 1][b - 1] + (b <= a - 1 ? k.binom[a - 1][b] : 0);
    }
    return k;
}
constexpr Kreuz kKreuz = baueKreuz();
constexpr const Kreuz& kreuz() {
    return kKreuz;
}

// Bits set, without a library call on machines whose baseline lacks an instruction for it.
constexpr int bitzahl(uint32_t v) {
    v = v - ((v >> 1) & 0x55555555u);
    v = (v & 0x33333333u) + ((v >> 2) & 0x33333333u);
    return static_cast<int>((((v + (v >> 4)) & 0x0F0F0F0Fu) * 0x01010101u) >> 24);
}

// Place of a fox's square among the empty cross squares.
uint64_t leerRang(int feld, Hennenmaske hennen) {
    const int c = kreuz().nummer[feld];
    const Hennenmaske davor = c >= kKlassenfelder ? hennen : hennen & ((1u << c) - 1);
    return static_cast<uint64_t>(c - bitzahl(davor));
}

} // namespace

uint64_t binom(int n, int k) {
    return k < 0 || k > n ? 0 : kreuz().binom[n][k];
}

int TafelIndex::kreuzFeld(int nummer) {
    return kreuz().feld[nummer];
}

TafelIndex::TafelIndex(bool strafregel, int zeilen)
    : strafregel_(strafregel), zeilen_(std::clamp(zeilen, 1, kKlassenzeilen)), felder_(0) {
    while (felder_ < kKreuzfelder && kreuz().feld[felder_] / 7 < zeilen_)
        ++felder_;
    for (int k = 0; k <= kAnzahlHennen; ++k)
        anfang_[k + 1] = anfang_[k] + (k < kZielfelder ? 0 : binom(felder_, k) * fuchslagen(k));
}

uint64_t TafelIndex::fuchslagen(int hennen) const {
    const int leere = kKreuzfelder - hennen;
    return binom(leere, 2) + (strafregel_ ? static_cast<uint64_t>(leere) : 0);
}

uint64_t TafelIndex::rang(Hennenmaske hennen) {
    uint64_t r = 0;
    for (int i = 1; hennen != 0; ++i, hennen &= hennen - 1)
        r += binom(std::countr_zero(hennen), i);
    return r;
}

Hennenmaske TafelIndex::maske(const Suchbrett& b) const {
    Hennenmaske m = 0;
    for (int c = 0; c < felder_; ++c)
        if (b.f[kreuz().feld[c]] == henne) m |= 1u << c;
    return m;
}

uint64_t TafelIndex::nummer(Hennenmaske hennen, uint64_t fuchslage, bool fuchsAmZug) const {
    const int k = bitzahl(hennen);
    return 2 * (anfang_[k] + rang(hennen) * fuchslagen(k) + fuchslage) + (fuchsAmZug ? 1 : 0);
}

std::optional<TafelIndex::Lage> TafelIndex::zerlege(const Suchbrett& b) const {
    const Hennenmaske m = maske(b);
    const int k = bitzahl(m);
    if (k != b.hennen || k < kZielfelder) return std::nullopt;
    const int8_t f0 = b.fuchsFeld[0], f1 = b.fuchsFeld[1];
    if (f0 < 0 || f1 < 0) return std::nullopt;
    const bool park0 = f0 == kParkfeld, park1 = f1 == kParkfeld;
    if (park0 && park1) return std::nullopt;
    if (park0 || park1) {
        if (!strafregel_) return std::nullopt;
        return Lage{m, binom(kKreuzfelder - k, 2) + leerRang(park0 ? f1 : f0, m)};
    }
    const uint64_t a = leerRang(f0, m), c = leerRang(f1, m);
    return Lage{m, a < c ? binom(static_cast<int>(c), 2) + a : binom(static_cast<int>(a), 2) + c};
}

std::optional<uint64_t> TafelIndex::index(const Suchbrett& b) const {
    const auto l = zerlege(b);
    if (!l) return std::nullopt;
    return nummer(l->hennen, l->fuechse, b.fuchsAmZug);
}

Suchbrett TafelIndex::stellung(uint64_t i) const {
    const bool fuchsAmZug = (i & 1) != 0;
    i /= 2;
    int k = kZielfelder;
    while (anfang_[k + 1] <= i)
        ++k;
    i -= anfang_[k];
    const uint64_t lagen = fuchslagen(k);
    uint64_t r = i / lagen, lage = i % lagen;
    // Unrank the hens: the largest square first.
    Hennenmaske m = 0;
    for (int j = k, c = felder_ - 1; j > 0; --j) {
        while (binom(c, j) > r)
            --c;
        r -= binom(c, j);
        m |= 1u << c;
        --c;
    }
    std::array<int8_t, kKreuzfelder> frei{};
    int n = 0;
    for (int c = 0; c < kKreuzfelder; ++c)
        if (c >= kKlassenfelder || (m & (1u << c)) == 0) frei[n++] = kreuz().feld[c];
    int8_t a = kParkfeld, c = 0;
    if (lage >= binom(n, 2)) {
        c = frei[lage - binom(n, 2)];
    } else {
        int hoch = 1;
        while (binom(hoch + 1, 2) <= lage)
            ++hoch;
        a = frei[lage - binom(hoch, 2)];
        c = frei[hoch];
    }
    Brettfeld Feld{};
    for (int s = 0; s < kQuadrate; ++s)
        Feld[s % 7][s / 7] = kreuz().nummer[s] >= 0 ? leer : 0;
    for (int j = 0; j < felder_; ++j)
        if (m & (1u << j)) Feld[kreuz().feld[j] % 7][kreuz().feld[j] / 7] = henne;
    Feld[a % 7][a / 7] = fuchs;
    Feld[c % 7][c / 7] = fuchs;
    return Suchbrett::aus(Feld, fuchsAmZug);
}

} // namespace fuh::meister
