// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/auswertung.h"

#include <algorithm>
#include <cmath>

namespace fuh {

namespace {
constexpr double kZ95 = 1.96; // the normal quantile of a two-sided 95 % interval
}

Punktzahl punktzahl(const std::vector<double>& punkte) {
    Punktzahl p;
    if (punkte.empty()) return p;
    const double n = static_cast<double>(punkte.size());
    double summe = 0;
    for (double x : punkte)
        summe += x;
    p.wert = summe / n;
    if (punkte.size() < 2) return p;
    double quadrate = 0;
    for (double x : punkte)
        quadrate += (x - p.wert) * (x - p.wert);
    p.plusMinus = kZ95 * std::sqrt(quadrate / (n - 1) / n);
    return p;
}

double median(std::vector<double> werte) {
    if (werte.empty()) return 0;
    const auto mitte = werte.begin() + static_cast<std::ptrdiff_t>(werte.size() / 2);
    std::nth_element(werte.begin(), mitte, werte.end());
    return *mitte;
}

double hoechstwert(const std::vector<double>& werte) {
    return werte.empty() ? 0 : *std::max_element(werte.begin(), werte.end());
}

} // namespace fuh
