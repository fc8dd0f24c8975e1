// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A fixed-size table of searched positions, keyed by a hash of the position code and the side to move.
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>
#include <type_traits>

namespace fuh::meister {

enum class Grenze : uint8_t { leer, genau, unten, oben };

struct Eintrag {
    uint64_t schluessel = 0;
    int16_t wert = 0;
    int8_t tiefe = 0;
    Grenze art = Grenze::leer;
    int8_t von = 0, nach = 0, spruenge = 0; // the best move found, enough to recognise it
    uint8_t rest = 0;                       // moves left before the move limit, capped at 255
};

// Zero bytes make an empty entry, which is how a new table starts.
static_assert(Grenze{} == Grenze::leer && std::is_trivially_copyable_v<Eintrag>);

class Transposition {
  public:
    // The entries come zeroed from the system, page by page as the search first touches them, so a new
    // table costs nothing until it is used and its first use is paid inside the search's own clock.
    explicit Transposition(int bits = 20)
        : eintraege_(static_cast<Eintrag*>(std::calloc(std::size_t{1} << bits, sizeof(Eintrag)))),
          maske_((uint64_t{1} << bits) - 1) {
        if (!eintraege_) throw std::bad_alloc();
    }

    // The entry for the key, or nullptr. Entries searched close to the move limit count only for the
    // same distance to it, since the limit may have decided them.
    const Eintrag* finde(uint64_t schluessel, int rest) const {
        const Eintrag& e = eintraege_[schluessel & maske_];
        if (e.art == Grenze::leer || e.schluessel != schluessel) return nullptr;
        const int r = rest > 255 ? 255 : rest;
        if (e.rest != r && (e.rest <= e.tiefe || r <= e.tiefe)) return nullptr;
        return &e;
    }
    void speichere(const Eintrag& neu) {
        Eintrag& e = eintraege_[neu.schluessel & maske_];
        // Keep a deeper result of the same position; anything else is replaced.
        if (e.schluessel == neu.schluessel && e.tiefe > neu.tiefe && e.art != Grenze::leer) return;
        e = neu;
    }
    void leeren() {
        for (uint64_t i = 0; i <= maske_; ++i)
            eintraege_[i] = Eintrag{};
    }

  private:
    struct Freigabe {
        void operator()(Eintrag* p) const { std::free(p); }
    };
    std::unique_ptr<Eintrag[], Freigabe> eintraege_;
    uint64_t maske_;
};

} // namespace fuh::meister
