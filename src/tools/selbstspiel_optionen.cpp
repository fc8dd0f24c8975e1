// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/selbstspiel_optionen.h"

#include <limits>

namespace fuh {

namespace {
constexpr uint32_t kHoechsteBedenkzeit = 500; // never longer than the window's turn tick

bool nurZiffern(const std::string& s) {
    if (s.empty()) return false;
    for (char c : s)
        if (c < '0' || c > '9') return false;
    return true;
}

// A plain decimal number no larger than `hoechstens` (at most 2^32 - 1, so nothing overflows).
std::optional<uint64_t> zahl(const std::string& s, uint32_t hoechstens) {
    if (!nurZiffern(s)) return std::nullopt;
    uint64_t v = 0;
    for (char c : s) {
        v = v * 10 + static_cast<uint64_t>(c - '0');
        if (v > hoechstens) return std::nullopt;
    }
    return v;
}

// A side's player: strength 1, 2 or 3, or the Meister (which learns into the strength-3 file).
std::optional<Spieler> spielerWert(const std::string& s) {
    if (s == "meister") return Spieler{2, true};
    const auto v = zahl(s, 3);
    if (!v || *v < 1) return std::nullopt;
    return Spieler{static_cast<int16_t>(*v - 1), false};
}

// Any non-negative integer, however long, reduced modulo 2^24.
std::optional<uint32_t> seedWert(const std::string& s) {
    if (!nurZiffern(s)) return std::nullopt;
    uint64_t v = 0;
    for (char c : s)
        v = (v * 10 + static_cast<uint64_t>(c - '0')) % (1u << 24);
    return static_cast<uint32_t>(v);
}
} // namespace

std::optional<Optionen> optionenLesen(const std::vector<std::string>& args, std::string& fehler) {
    Optionen o;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (a == "--lernen") {
            o.lernen = true;
            continue;
        }
        if (a == "--protokoll") {
            o.protokoll = true;
            continue;
        }
        if (a == "--fortsetzen-pruefen") {
            o.fortsetzenPruefen = true;
            continue;
        }
        if (a != "--spiele" && a != "--pc" && a != "--staerke" && a != "--seed" && a != "--fuchs" &&
            a != "--hennen" && a != "--bedenkzeit") {
            fehler = "unbekanntes Argument: " + a;
            return std::nullopt;
        }
        if (i + 1 >= args.size()) {
            fehler = "fehlender Wert nach " + a;
            return std::nullopt;
        }
        const std::string& wert = args[++i];
        bool gut = true;
        if (a == "--spiele") {
            const auto v = zahl(wert, std::numeric_limits<uint32_t>::max());
            gut = v.has_value();
            if (gut) o.spiele = *v;
        } else if (a == "--pc") {
            const auto v = zahl(wert, 2);
            gut = v.has_value();
            if (gut) o.pc = static_cast<int>(*v);
        } else if (a == "--staerke") {
            const auto v = zahl(wert, 3);
            gut = v.has_value() && *v >= 1;
            if (gut) o.staerke = static_cast<int>(*v);
        } else if (a == "--fuchs" || a == "--hennen") {
            const auto v = spielerWert(wert);
            gut = v.has_value();
            (a == "--fuchs" ? o.spieler.fuchs : o.spieler.hennen) = v;
        } else if (a == "--bedenkzeit") {
            const auto v = zahl(wert, kHoechsteBedenkzeit);
            gut = v.has_value() && *v >= 1;
            if (gut) o.spieler.bedenkzeit = std::chrono::milliseconds(*v);
        } else {
            const auto v = seedWert(wert);
            gut = v.has_value();
            if (gut) o.seed = *v;
        }
        if (!gut) {
            fehler = "ungültiger Wert für " + a + ": " + wert;
            return std::nullopt;
        }
    }
    return o;
}

} // namespace fuh
