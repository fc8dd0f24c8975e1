// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The search behind Meister: negamax alpha-beta with a principal-variation window, a transposition
// table, killer and history move ordering, and a capture search for the foxes' jumps at the horizon.
#include <array>
#include <chrono>
#include <cstdint>

#include "board/zufall.h"
#include "player/endspieltafel.h"
#include "player/meister_bewertung.h"
#include "player/meister_brett.h"
#include "player/meister_zeit.h"
#include "player/transposition.h"

namespace fuh::meister {

inline constexpr int kMatt = 30000;
inline constexpr int kEntschieden = kMatt - 200; // values beyond this are a won or lost game
inline constexpr int kPlies = 64;
using fuh::kZugbegrenzung;
// What a draw is worth to the side the search plays, below an even position. The hens win most games
// between equal players and play on for the win; the foxes take a draw at its face value.
inline constexpr int kKontemptHennen = 1000;
inline constexpr int kKontemptFuechse = 0;

struct Auftrag {
    Suchbrett brett;
    int spielzug = 0;
    bool strafregel = true;
    std::chrono::steady_clock::time_point start;
    std::chrono::microseconds budget{0};
    uint64_t knotenGrenze = 0; // instead of the clock, when not 0
    int tiefenGrenze = 0;
    const Endspieltafel* tafel = nullptr; // the exact values inside the endgame class, for these rules
};

struct Ergebnis {
    Suchzug zug;
    bool gefunden = false;
    int tiefe = 0;
    int wert = 0;
    uint64_t knoten = 0;
};

class Suche {
  public:
    Suche() = default;
    Ergebnis wurzel(const Auftrag& a, Zufall& zufall);
    Gewichte gewichte;
    void vergessen() { tt_.leeren(); }

  private:
    int ab(const Suchbrett& b, int tiefe, int alpha, int beta, int ply, int spielzug);
    int ruhe(const Suchbrett& b, int alpha, int beta, int ply, int spielzug);
    int iteration(int tiefe, int n, int alpha, int beta);
    bool nachZug(const Suchbrett& kind, Folge folge, int spielzug, int ply, int& wert) const;
    bool tafelWert(const Suchbrett& b, int ply, int spielzug, int& wert) const;
    bool tafelzug(int n, Ergebnis& erg);
    int remis(bool fuchsAmZug) const {
        const int kontempt = wurzelFuchs_ ? kKontemptFuechse : kKontemptHennen;
        return fuchsAmZug == wurzelFuchs_ ? -kontempt : kontempt;
    }
    int statisch(const Suchbrett& b, int spielzug) const;
    void ordne(const Suchbrett& b, int ply, int n, const Eintrag* e);
    int waehle(int ply, int von, int n);
    void speichere(const Suchbrett& b, const Suchzug& z, int wert, Grenze art, int tiefe, int ply, int rest);
    void merke(const Suchbrett& b, int ply, const Suchzug& z, int tiefe);
    bool zeitUm();

    Auftrag auftrag_;
    Zeitplan zeit_;
    bool wurzelFuchs_ = false;
    bool halt_ = false;
    uint64_t knoten_ = 0;
    std::array<std::array<Suchzug, kHoechstZuege>, kPlies> zuege_{};
    std::array<std::array<int, kHoechstZuege>, kPlies> noten_{};
    std::array<std::array<Suchzug, 2>, kPlies> killer_{};
    std::array<std::array<std::array<int, kQuadrate>, kQuadrate>, 2> historie_{};
    Transposition tt_;
};

} // namespace fuh::meister
