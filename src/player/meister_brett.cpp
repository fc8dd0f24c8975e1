// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "player/meister_brett.h"

#include <bit>

#include "board/regeln.h"

namespace fuh::meister {

namespace {

constexpr int quadrat(int x, int y) {
    return y * 7 + x;
}
// Foxes are told apart by the column-by-column scan, as the position code does; a fox that is not
// on the cross counts as standing on the corner square, which is scanned first.
int scanRang(int8_t feld) {
    return feld < 0 ? 0 : (feld % 7) * 7 + feld / 7;
}
std::array<int8_t, 2> scanFolge(const std::array<int8_t, 2>& f) {
    if (scanRang(f[1]) < scanRang(f[0])) return {f[1], f[0]};
    return f;
}

constexpr Linien baueLinien() {
    Linien l;
    for (int s = 0; s < kQuadrate; ++s) {
        const int x = s % 7, y = s / 7;
        l.kreuz[s] = aufKreuz(x, y);
        l.ziel[s] = imZielfeld(x, y);
        if (l.kreuz[s]) l.kreuzMaske |= uint64_t{1} << s;
        if (l.ziel[s]) l.zielMaske |= uint64_t{1} << s;
        int r = 0, h = 0;
        l.hennenschritt[s].fill(kKeiner);
        for (int dx = -1; dx <= 1; ++dx)
            for (int dy = -1; dy <= 1; ++dy) {
                if (dx == 0 && dy == 0) continue;
                const bool schritt = l.kreuz[s] && korrekt(x, y, dx, dy) && aufKreuz(x + dx, y + dy);
                const bool sprung =
                    schritt && korrekt(x, y, 2 * dx, 2 * dy) && aufKreuz(x + 2 * dx, y + 2 * dy);
                l.schritt[s][r] = static_cast<int8_t>(schritt ? quadrat(x + dx, y + dy) : kKeiner);
                l.mitte[s][r] = static_cast<int8_t>(sprung ? quadrat(x + dx, y + dy) : kKeiner);
                l.sprung[s][r] = static_cast<int8_t>(sprung ? quadrat(x + 2 * dx, y + 2 * dy) : kKeiner);
                if (schritt && dy <= 0) l.hennenschritt[s][h++] = l.schritt[s][r];
                if (schritt) l.nachbarn[s] |= uint64_t{1} << quadrat(x + dx, y + dy);
                if (sprung) l.sprungMitten[s] |= uint64_t{1} << quadrat(x + dx, y + dy);
                if (schritt && dy >= 0) l.herkunft[s] |= uint64_t{1} << quadrat(x + dx, y + dy);
                ++r;
            }
    }
    return l;
}

// Fixed pseudo-random hash parts (splitmix64), the same in every run.
struct Zobrist {
    std::array<std::array<uint64_t, 2>, kQuadrate> teil{};
    uint64_t seite = 0;
    constexpr Zobrist() {
        uint64_t z = 0x46554348u;
        auto naechste = [&z] {
            uint64_t v = (z += 0x9E3779B97F4A7C15ull);
            v = (v ^ (v >> 30)) * 0xBF58476D1CE4E5B9ull;
            v = (v ^ (v >> 27)) * 0x94D049BB133111EBull;
            return v ^ (v >> 31);
        };
        for (auto& t : teil)
            t = {naechste(), naechste()};
        seite = naechste();
    }
};
constexpr Zobrist kZobrist;
constexpr Linien kLinien = baueLinien();

} // namespace

const Linien& linien() {
    return kLinien;
}

uint64_t seitenschluessel() {
    return kZobrist.seite;
}

uint64_t Suchzug::geschlagen() const {
    uint64_t maske = 0;
    int feld = von;
    for (int i = 0; i < spruenge; ++i) {
        maske |= uint64_t{1} << ((feld + nach[i]) / 2); // the middle square of a straight jump
        feld = nach[i];
    }
    return maske;
}

bool schonGelistet(const Suchzug* aus, int erster, int n, const Suchzug& z) {
    const uint64_t maske = z.geschlagen();
    for (int i = erster; i < n; ++i)
        if (aus[i].ende() == z.ende() && aus[i].spruenge > 0 && aus[i].geschlagen() == maske) return true;
    return false;
}

bool Suchzug::gleich(const Suchzug& z) const {
    if (von != z.von || spruenge != z.spruenge) return false;
    for (int i = 0; i < (spruenge > 0 ? spruenge : 1); ++i)
        if (nach[i] != z.nach[i]) return false;
    return true;
}

uint64_t Suchbrett::leereFelder() const {
    uint64_t besetzt = hennenMaske;
    for (int8_t s : fuchsFeld)
        if (s >= 0) besetzt |= uint64_t{1} << s;
    return kLinien.kreuzMaske & ~besetzt;
}

void Suchbrett::setze(int feld, int8_t code) {
    const int8_t alt = f[feld];
    if (alt == henne || alt == fuchs) schluessel ^= kZobrist.teil[feld][alt - henne];
    if (alt == henne) {
        --hennen;
        hennenMaske &= ~(uint64_t{1} << feld);
        if (linien().ziel[feld]) --imZiel;
    }
    f[feld] = code;
    if (code == henne || code == fuchs) schluessel ^= kZobrist.teil[feld][code - henne];
    if (code == henne) {
        ++hennen;
        hennenMaske |= uint64_t{1} << feld;
        if (linien().ziel[feld]) ++imZiel;
    }
}

Suchbrett Suchbrett::aus(const Brettfeld& Feld, bool fuchsAmZug) {
    Suchbrett b;
    int fuechse = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y) {
            const int s = quadrat(x, y);
            const int16_t c = Feld[x][y];
            const bool kreuz = linien().kreuz[s];
            // Only the corner square may hold a piece off the cross: the parked fox.
            if (c == fuchs && (kreuz || s == kParkfeld) && fuechse < 2) {
                b.setze(s, fuchs);
                b.fuchsFeld[fuechse++] = static_cast<int8_t>(s);
            } else if (c == henne && kreuz) {
                b.setze(s, henne);
            } else {
                b.f[s] = static_cast<int8_t>(kreuz ? leer : 0);
            }
        }
    b.fuchsAmZug = fuchsAmZug;
    if (fuchsAmZug) b.schluessel ^= kZobrist.seite;
    return b;
}

Brettfeld Suchbrett::feld() const {
    Brettfeld Feld{};
    for (int s = 0; s < kQuadrate; ++s)
        Feld[s % 7][s / 7] = f[s];
    return Feld;
}

int Suchbrett::hennenzuege(Suchzug* aus) const {
    const Linien& l = linien();
    int n = 0;
    for (uint64_t m = hennenMaske; m != 0; m &= m - 1) {
        const int s = std::countr_zero(m);
        for (int8_t t : l.hennenschritt[s]) {
            if (t == kKeiner) break;
            if (f[t] != leer || n >= kHoechstZuege) continue;
            aus[n].von = static_cast<int8_t>(s);
            aus[n].spruenge = 0;
            aus[n].nach[0] = t;
            ++n;
        }
    }
    return n;
}

uint64_t Suchbrett::springbar(int feld) const {
    if (feld < 0 || !kLinien.kreuz[feld]) return 0;
    uint64_t hennen = 0;
    // A jump lands as far beyond the hen as the fox stands before it.
    for (uint64_t m = kLinien.sprungMitten[feld] & hennenMaske; m != 0; m &= m - 1)
        if (f[2 * std::countr_zero(m) - feld] == leer) hennen |= m & -m;
    return hennen;
}

// Every chain of jumps from `pos`, each shorter chain being a move of its own. A route that takes the
// same hens to the same square as one listed since `erster` is that move again, and so are its
// continuations: without this a fox among many hens would have thousands of routes.
void Suchbrett::kette(int pos, Suchzug& z, Suchzug* aus, int& n, int erster) {
    const Linien& l = linien();
    // A full list could not tell a new route from one it has no room for, and would try them all.
    for (int r = 0; r < 8 && z.spruenge < kLaengsteKette && n < kHoechstZuege; ++r) {
        const int m = l.mitte[pos][r];
        if (m == kKeiner || f[m] != henne) continue;
        const int8_t ziel = l.sprung[pos][r];
        if (f[ziel] != leer) continue;
        z.nach[z.spruenge++] = ziel;
        if (!schonGelistet(aus, erster, n, z)) {
            aus[n++] = z;
            f[m] = leer;
            kette(ziel, z, aus, n, erster);
            f[m] = henne;
        }
        --z.spruenge;
    }
}

int Suchbrett::fuchszuege(Suchzug* aus, bool nurSpruenge) const {
    const Linien& l = linien();
    int n = 0;
    Suchbrett arbeit = *this;
    for (int8_t s : fuchsFeld) {
        if (!kannSpringen(s)) continue;
        Suchzug z;
        z.von = s;
        arbeit.f[s] = leer; // the fox has left its square while it jumps
        arbeit.kette(s, z, aus, n, n);
        arbeit.f[s] = fuchs;
    }
    if (nurSpruenge) return n;
    for (int8_t s : fuchsFeld) {
        if (s < 0 || !l.kreuz[s]) continue;
        for (int8_t t : l.schritt[s])
            if (t != kKeiner && f[t] == leer && n < kHoechstZuege) {
                aus[n].von = s;
                aus[n].spruenge = 0;
                aus[n].nach[0] = t;
                ++n;
            }
    }
    return n;
}

void Suchbrett::fuchsSpringt(const Suchzug& z) {
    int von = z.von;
    for (int i = 0; i < z.spruenge; ++i) {
        setze((von + z.nach[i]) / 2, leer);
        von = z.nach[i];
    }
}

Folge Suchbrett::strafe(const std::array<int8_t, 2>& vorher, bool a, bool b) {
    if (!a && !b) return Folge::nichts;
    if (vorher[0] == kParkfeld || vorher[0] < 0 || vorher[1] < 0) return Folge::letzterFuchs;
    // The fox to park is chosen by its place in the scan order after the move.
    const auto jetzt = scanFolge(fuchsFeld);
    const bool zweiter = !a || (b && jetzt[1] / 7 < jetzt[0] / 7);
    const int8_t opfer = jetzt[zweiter ? 1 : 0];
    setze(opfer, leer);
    setze(kParkfeld, fuchs);
    fuchsFeld[fuchsFeld[0] == opfer ? 0 : 1] = static_cast<int8_t>(kParkfeld);
    return Folge::geparkt;
}

Folge Suchbrett::ziehe(const Suchzug& z, bool strafregel) {
    const int8_t ende = z.ende();
    Folge folge = Folge::nichts;
    if (!fuchsAmZug) {
        setze(z.von, leer);
        setze(ende, henne);
    } else {
        const auto vorher = scanFolge(fuchsFeld);
        const bool a = strafregel && z.spruenge == 0 && kannSpringen(vorher[0]);
        const bool b = strafregel && z.spruenge == 0 && kannSpringen(vorher[1]);
        setze(z.von, leer);
        fuchsSpringt(z);
        setze(ende, fuchs);
        fuchsFeld[fuchsFeld[0] == z.von ? 0 : 1] = ende;
        if (z.spruenge == 0) {
            folge = strafe(vorher, a, b);
        } else if (strafregel && geparkt()) {
            // Back onto the first empty square of rows 2..6, column by column.
            for (int x = 0; x <= 6 && folge == Folge::nichts; ++x)
                for (int y = kRueckkehrAbZeile; y <= 6 && folge == Folge::nichts; ++y)
                    if (f[quadrat(x, y)] == leer) {
                        setze(kParkfeld, leer);
                        setze(quadrat(x, y), fuchs);
                        fuchsFeld[fuchsFeld[0] == kParkfeld ? 0 : 1] = static_cast<int8_t>(quadrat(x, y));
                        folge = Folge::zurueck;
                    }
        }
    }
    fuchsAmZug = !fuchsAmZug;
    schluessel ^= kZobrist.seite;
    return folge;
}

} // namespace fuh::meister
