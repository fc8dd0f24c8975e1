// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The figures of a match: a score with its 95 % interval, and times per move.
#include <vector>

namespace fuh {

struct Punktzahl {
    double wert = 0;      // the mean score, 0..1
    double plusMinus = 0; // half the width of the 95 % interval (normal approximation)
};

// From the scores of independent units (games, or pairs of games with the same seed), each 0..1.
Punktzahl punktzahl(const std::vector<double>& punkte);

double median(std::vector<double> werte);
double hoechstwert(const std::vector<double>& werte);

} // namespace fuh
