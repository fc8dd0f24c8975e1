#include "tools/selbstspiel_optionen.h"

#include <limits>

namespace fuh {

namespace {
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
        if (a != "--spiele" && a != "--pc" && a != "--staerke" && a != "--seed") {
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
