// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/zugprotokoll.h"

#include <memory>
#include <sstream>
#include <vector>

#include "memory/partie.h"
#include "player/meister.h"

namespace fuh {

namespace {

std::optional<long long> ganzzahl(const std::string& s, long long min, long long max) {
    if (s.empty() || s.size() > 12) return std::nullopt;
    long long v = 0;
    for (char c : s) {
        if (c < '0' || c > '9') return std::nullopt;
        v = v * 10 + (c - '0');
    }
    if (v < min || v > max) return std::nullopt;
    return v;
}

std::vector<std::string> woerter(const std::string& zeile) {
    std::istringstream ein(zeile);
    std::vector<std::string> w;
    for (std::string s; ein >> s;)
        w.push_back(s);
    return w;
}

std::optional<Brettfeld> feldLesen(const std::string& s) {
    if (s.size() != static_cast<std::size_t>(kFelder)) return std::nullopt;
    Brettfeld Feld{};
    for (int i = 0; i < kFelder; ++i) {
        const char c = s[static_cast<std::size_t>(i)];
        if (c < '0' || c > '0' + fuchs) return std::nullopt;
        Feld[feldX(i)][feldY(i)] = static_cast<int16_t>(c - '0');
    }
    return Feld;
}

// "X,Y" on the grid.
std::optional<std::pair<int16_t, int16_t>> quadratLesen(const std::string& s) {
    if (s.size() != 3 || s[1] != ',' || s[0] < '0' || s[0] > '6' || s[2] < '0' || s[2] > '6')
        return std::nullopt;
    return std::pair<int16_t, int16_t>{static_cast<int16_t>(s[0] - '0'), static_cast<int16_t>(s[2] - '0')};
}

} // namespace

std::string anfrageZeile(const Zuganfrage& a) {
    std::string feld;
    for (int i = 0; i < kFelder; ++i)
        feld += static_cast<char>('0' + a.Feld[feldX(i)][feldY(i)]);
    return "zug " + std::string(a.seite == fuchs ? "f" : "h") + ' ' + std::to_string(a.spielzug) + ' ' +
           (a.strafregel ? "1" : "0") + ' ' + std::to_string(a.bedenkzeit.count()) + ' ' + feld;
}

std::optional<Zuganfrage> anfrageLesen(const std::string& zeile) {
    const auto w = woerter(zeile);
    if (w.size() != 6 || w[0] != "zug" || (w[1] != "h" && w[1] != "f")) return std::nullopt;
    const auto spielzug = ganzzahl(w[2], 0, kZugbegrenzung);
    const auto strafe = ganzzahl(w[3], 0, 1);
    const auto ms = ganzzahl(w[4], kKuerzesteBedenkzeit.count(), kLaengsteBedenkzeit.count());
    const auto feld = feldLesen(w[5]);
    if (!spielzug || !strafe || !ms || !feld) return std::nullopt;
    return Zuganfrage{*feld, w[1] == "f" ? fuchs : henne, static_cast<int>(*spielzug), *strafe == 1,
                      std::chrono::milliseconds(*ms)};
}

std::string antwortZeile(const Zugwahl& w) {
    if (w.keinZug()) return "keinzug";
    auto quadrat = [](int x, int y) { return std::to_string(x) + ',' + std::to_string(y); };
    std::string s = "zug " + quadrat(w.begin()->vonX, w.begin()->vonY);
    for (const Teilzug& z : w)
        s += ' ' + quadrat(z.nachX, z.nachY);
    return s;
}

std::optional<Zugwahl> antwortLesen(const std::string& zeile) {
    const auto w = woerter(zeile);
    if (w.size() == 1 && w[0] == "keinzug") return Zugwahl{};
    if (w.size() < 3 || w.size() > 2 + kLaengsteKette || w[0] != "zug") return std::nullopt;
    Zugwahl wahl;
    auto von = quadratLesen(w[1]);
    for (std::size_t i = 2; i < w.size(); ++i) {
        const auto nach = quadratLesen(w[i]);
        if (!von || !nach) return std::nullopt;
        wahl.anhaengen({von->first, von->second, nach->first, nach->second});
        von = nach;
    }
    return wahl;
}

void dienen(std::istream& ein, std::ostream& aus) {
    std::unique_ptr<Meister> meister = std::make_unique<Meister>(1);
    for (std::string zeile; std::getline(ein, zeile);) {
        const auto w = woerter(zeile);
        if (w.size() == 2 && w[0] == "neu") {
            const auto seed = ganzzahl(w[1], 0, UINT32_MAX);
            if (seed) meister = std::make_unique<Meister>(static_cast<uint32_t>(*seed));
            aus << (seed ? "ok" : "fehler Startwert") << std::endl;
            continue;
        }
        const auto a = anfrageLesen(zeile);
        if (!a) {
            aus << "fehler unbekannte Zeile" << std::endl;
            continue;
        }
        aus << antwortZeile(meister->berechne({a->Feld, a->seite, a->spielzug, a->strafregel, a->bedenkzeit}))
            << std::endl;
    }
}

} // namespace fuh
