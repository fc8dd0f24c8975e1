// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Checking a table: each position against its successors, and positions against a plain search.
#include <atomic>
#include <thread>

#include "player/tafel_bau.h"
#include "tafel_bilanz.h"

namespace fuh {

using meister::Suchbrett;

namespace {

uint64_t fehlerIn(const Endspieltafel& t, uint64_t von, uint64_t bis) {
    std::vector<meister::Suchzug> zuege(meister::kHoechstZuege);
    uint64_t fehler = 0;
    for (uint64_t i = von; i < bis; ++i) {
        meister::Bilanz b;
        bool geschlossen = true;
        meister::nachfolger(t.index().stellung(i), t.strafregel(), zuege.data(), b,
                            [&](const Suchbrett& kind) {
                                const auto w = t.wert(kind);
                                geschlossen = geschlossen && w.has_value();
                                if (w) b.kind(*w);
                            });
        if (!geschlossen || b.wert() != t.werte()[i]) ++fehler;
    }
    return fehler;
}

// Plain and-or search to a fixed number of plies, with one move list per ply.
class Entscheidung {
  public:
    Entscheidung(bool strafregel, int tiefe)
        : strafregel_(strafregel), zuege_(static_cast<std::size_t>(tiefe + 1) * meister::kHoechstZuege) {}

    // The side to move can force a win within `n` plies.
    bool gewinnt(const Suchbrett& b, int n, int ply) {
        meister::Suchzug* z = liste(ply);
        const int anzahl = b.fuchsAmZug ? b.fuchszuege(z) : b.hennenzuege(z);
        for (int i = 0; i < anzahl; ++i) {
            Suchbrett kind = b;
            const meister::Folge f = kind.ziehe(z[i], strafregel_);
            if (f == meister::Folge::letzterFuchs) continue;
            if (endet(b, kind)) return true;
            if (n >= 2 && verliert(kind, n - 1, ply + 1)) return true;
        }
        return false;
    }
    // Every move of the side to move lets the other side win within `n` plies in all.
    bool verliert(const Suchbrett& b, int n, int ply) {
        meister::Suchzug* z = liste(ply);
        const int anzahl = b.fuchsAmZug ? b.fuchszuege(z) : b.hennenzuege(z);
        if (anzahl == 0) return !b.fuchsAmZug;
        for (int i = 0; i < anzahl; ++i) {
            Suchbrett kind = b;
            const meister::Folge f = kind.ziehe(z[i], strafregel_);
            if (f == meister::Folge::letzterFuchs || endet(b, kind)) return false;
            if (n < 2 || !gewinnt(kind, n - 1, ply + 1)) return false;
        }
        return true;
    }

  private:
    static bool endet(const Suchbrett& vorher, const Suchbrett& kind) {
        return vorher.fuchsAmZug ? kind.hennen < kZielfelder : kind.imZiel == kZielfelder;
    }
    meister::Suchzug* liste(int ply) {
        return zuege_.data() + static_cast<std::size_t>(ply) * meister::kHoechstZuege;
    }
    bool strafregel_;
    std::vector<meister::Suchzug> zuege_;
};

} // namespace

uint64_t tafelFehler(const Endspieltafel& t, int faeden) {
    const uint64_t n = t.werte().size();
    const uint64_t teile = static_cast<uint64_t>(std::max(1, faeden));
    std::atomic<uint64_t> fehler{0};
    {
        std::vector<std::jthread> arbeiter;
        for (uint64_t k = 0; k < teile; ++k)
            arbeiter.emplace_back([&, k] { fehler += fehlerIn(t, n * k / teile, n * (k + 1) / teile); });
    }
    return fehler;
}

std::optional<uint8_t> entscheidungIn(const Suchbrett& b, bool strafregel, int tiefe) {
    Entscheidung e(strafregel, tiefe);
    for (int n = 1; n <= tiefe; ++n) {
        if (e.gewinnt(b, n, 0)) return tafelwert::gewinn(n);
        if (e.verliert(b, n, 0)) return tafelwert::verlust(n);
    }
    return std::nullopt;
}

} // namespace fuh
