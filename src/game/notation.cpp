// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "game/notation.h"

#include <vector>

namespace fuh {

namespace {
constexpr std::string_view kPark = "Park";
constexpr std::string_view kKeinZug = "--";

std::string parkplatzText(const Partiezug& e) {
    const Teilzug& z = e.strafzug;
    switch (e.strafe) {
    case Strafe::Art::parken:
        return punktText(z.vonX, z.vonY) + "-" + std::string(kPark);
    case Strafe::Art::einsetzen:
        return std::string(kPark) + "-" + punktText(z.nachX, z.nachY);
    case Strafe::Art::letzterFuchs:
        return punktText(z.vonX, z.vonY) + "-" + std::string(kPark) + "=";
    default:
        return {};
    }
}

std::optional<std::pair<int16_t, int16_t>> punktLesen(std::string_view t) {
    if (t.size() != 2 || t[0] < 'a' || t[0] > 'g' || t[1] < '1' || t[1] > '7') return std::nullopt;
    return std::pair<int16_t, int16_t>(static_cast<int16_t>(t[0] - 'a'), static_cast<int16_t>('7' - t[1]));
}

std::vector<std::string_view> woerter(std::string_view text) {
    std::vector<std::string_view> w;
    std::size_t i = 0;
    while (i < text.size()) {
        const std::size_t ende = std::min(text.find(' ', i), text.size());
        if (ende > i) w.push_back(text.substr(i, ende - i));
        i = ende + 1;
    }
    return w;
}

// The penalty's verdict: "e3-Park", "e3-Park=" or "Park-a5"; false when the word is none of these.
bool strafeLesen(std::string_view w, Partiezug& e) {
    const std::string park(kPark);
    if (w.starts_with(park + "-")) {
        const auto p = punktLesen(w.substr(park.size() + 1));
        if (!p) return false;
        e.strafe = Strafe::Art::einsetzen;
        e.strafzug = {0, 0, p->first, p->second};
        return true;
    }
    const bool letzter = w.ends_with("-" + park + "=");
    if (!letzter && !w.ends_with("-" + park)) return false;
    const auto p = punktLesen(w.substr(0, 2));
    if (!p || w.size() != 2 + 1 + park.size() + (letzter ? 1 : 0)) return false;
    e.strafe = letzter ? Strafe::Art::letzterFuchs : Strafe::Art::parken;
    e.strafzug = {p->first, p->second, 0, 0};
    return true;
}

// "d4-d5" or "e5xe3xc3", a chain perhaps followed by "+".
bool bewegungLesen(std::string_view w, Partiezug& e, bool& offen) {
    if (w == kKeinZug) return true;
    offen = w.ends_with('+');
    if (offen) w.remove_suffix(1);
    if (w.size() < 5 || w.size() % 3 != 2) return false;
    const char trenner = w[2];
    if (trenner != '-' && trenner != 'x') return false;
    if (trenner == '-' && (w.size() != 5 || offen)) return false;
    auto von = punktLesen(w.substr(0, 2));
    for (std::size_t i = 2; von && i < w.size(); i += 3) {
        const auto nach = punktLesen(w.substr(i + 1, 2));
        if (w[i] != trenner || !nach) return false;
        const Teilzug t{von->first, von->second, nach->first, nach->second};
        if (t.sprung() != (trenner == 'x')) return false; // a jump is written with x, a step with -
        e.teile.push_back(t);
        von = nach;
    }
    return von.has_value();
}
} // namespace

std::string punktText(int x, int y) {
    return {static_cast<char>('a' + x), static_cast<char>('7' - y)};
}

std::string zugText(const Partiezug& e, bool offen) {
    std::string text = parkplatzText(e);
    if (!text.empty()) text += ' ';
    if (e.teile.empty()) return text + std::string(kKeinZug);
    text += punktText(e.teile.front().vonX, e.teile.front().vonY);
    for (const Teilzug& t : e.teile)
        text += (t.sprung() ? "x" : "-") + punktText(t.nachX, t.nachY);
    return offen ? text + "+" : text;
}

std::optional<GelesenerZug> zugLesen(Seite seite, std::string_view text) {
    const auto w = woerter(text);
    GelesenerZug g;
    g.zug.seite = seite;
    if (w.empty() || w.size() > 2) return std::nullopt;
    if (w.size() == 2 && !strafeLesen(w[0], g.zug)) return std::nullopt;
    if (!bewegungLesen(w.back(), g.zug, g.offen)) return std::nullopt;
    return g;
}

} // namespace fuh
