// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading a game file: nothing in it is trusted. Every line must be valid UTF-8 without control
// characters, every header known and present once, every move numbered in order and in the notation.
#include <algorithm>
#include <array>

#include "aufzeichnung_namen.h"
#include "game/notation.h"

namespace fuh {

namespace {
using namespace aufzeichnungsnamen;

constexpr std::size_t kLaengsteAngabe = 40; // an unknown header's name is quoted only up to this length
constexpr uint64_t kHoechsteNummer = 1'000'000'000'000'000;

Gelesen fehler(Vorlage vorlage, int zeile) {
    return {std::nullopt, Text(vorlage, {Text::zahl(zeile)})};
}

// Valid UTF-8 (no overlong forms, surrogates or values past U+10FFFF) and no control character.
bool lesbar(std::string_view s) {
    for (std::size_t i = 0; i < s.size();) {
        const auto c = static_cast<unsigned char>(s[i]);
        if (c < 0x80) {
            if (c < 0x20 || c == 0x7F) return false;
            ++i;
            continue;
        }
        const int n = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : c >= 0xC2 ? 1 : -1;
        if (n < 0 || c > 0xF4 || i + static_cast<std::size_t>(n) >= s.size()) return false;
        uint32_t wert = c & (0x3Fu >> n);
        for (int k = 1; k <= n; ++k) {
            const auto f = static_cast<unsigned char>(s[i + static_cast<std::size_t>(k)]);
            if ((f & 0xC0) != 0x80) return false;
            wert = (wert << 6) | (f & 0x3Fu);
        }
        const uint32_t kleinster[] = {0, 0x80, 0x800, 0x10000};
        if (wert < kleinster[n] || wert > 0x10FFFF || (wert >= 0xD800 && wert <= 0xDFFF)) return false;
        i += static_cast<std::size_t>(n) + 1;
    }
    return true;
}

std::optional<uint64_t> zahl(std::string_view s, uint64_t hoechstens) {
    if (s.empty() || s.size() > 16 || (s.size() > 1 && s[0] == '0')) return std::nullopt;
    uint64_t v = 0;
    for (char c : s) {
        if (c < '0' || c > '9') return std::nullopt;
        v = v * 10 + static_cast<uint64_t>(c - '0');
    }
    if (v > hoechstens) return std::nullopt;
    return v;
}

template <std::size_t N>
std::optional<int> stelle(const std::array<std::string_view, N>& liste, std::string_view w) {
    const auto it = std::find(liste.begin(), liste.end(), w);
    if (it == liste.end()) return std::nullopt;
    return static_cast<int>(it - liste.begin());
}

// "PC 2, Stärke 1, Lernmodus 0, Einzelzug 0": each a single digit, in range, and nothing else.
std::optional<Einstellungen> einstellungenLesen(std::string_view w) {
    for (int pc = 0; pc <= 2; ++pc)
        for (int st = 0; st <= 2; ++st)
            for (int lern = 0; lern <= 1; ++lern)
                for (int einzel = 0; einzel <= 1; ++einzel) {
                    const Einstellungen e{static_cast<int16_t>(pc), static_cast<int16_t>(st),
                                          static_cast<int16_t>(lern), static_cast<int16_t>(einzel)};
                    if (einstellungenText(e) == w) return e;
                }
    return std::nullopt;
}

// A side's player; `mensch` is set for a person. False when the text names no player.
bool spielerLesen(std::string_view w, std::optional<Spieler>& s, bool& mensch) {
    mensch = w == kMensch;
    if (mensch || w == kNiemand) return true;
    if (w == kComputerMeister) {
        s = Spieler{2, true};
        return true;
    }
    if (!w.starts_with(kComputerStaerke)) return false;
    const auto n = zahl(w.substr(kComputerStaerke.size()), 3);
    if (!n || *n < 1) return false;
    s = Spieler{static_cast<int16_t>(*n - 1), false};
    return true;
}

struct Zeile {
    std::string_view text;
    int nummer;
};

class Leser {
  public:
    explicit Leser(std::vector<Zeile> zeilen) : z_(std::move(zeilen)) {}
    Gelesen lesen();

  private:
    std::optional<Gelesen> kopfLesen(std::size_t& i);
    std::optional<Gelesen> kopfDeuten();
    std::optional<Gelesen> spielerDeuten();
    std::optional<Gelesen> zeileLesen(const Zeile& zeile);
    std::string_view wert(std::string_view name) const { return angaben_[*stelle(kAngaben, name)].text; }
    int zeileVon(std::string_view name) const { return angaben_[*stelle(kAngaben, name)].nummer; }

    std::vector<Zeile> z_;
    std::array<Zeile, kAngaben.size()> angaben_{};
    Aufzeichnung a_;
};

std::optional<Gelesen> Leser::kopfLesen(std::size_t& i) {
    for (; i < z_.size() && !z_[i].text.empty(); ++i) {
        const Zeile& zeile = z_[i];
        const std::size_t trenner = zeile.text.find(": ");
        const std::string_view name = zeile.text.substr(0, trenner);
        const auto s = trenner == std::string_view::npos ? std::nullopt : stelle(kAngaben, name);
        if (!s && trenner != std::string_view::npos && name.size() <= kLaengsteAngabe)
            return Gelesen{std::nullopt, Text(Vorlage::angabeUnbekannt,
                                              {Text::zahl(zeile.nummer), Text::wort(std::string(name))})};
        if (!s || angaben_[static_cast<std::size_t>(*s)].nummer != 0)
            return fehler(Vorlage::zeileUnlesbar, zeile.nummer);
        angaben_[static_cast<std::size_t>(*s)] = {zeile.text.substr(trenner + 2), zeile.nummer};
    }
    for (std::size_t k = 0; k < kAngaben.size(); ++k)
        if (angaben_[k].nummer == 0)
            return Gelesen{std::nullopt, Text(Vorlage::angabeFehlt, {Text::wort(std::string(kAngaben[k]))})};
    return std::nullopt;
}

std::optional<Gelesen> Leser::spielerDeuten() {
    bool menschFuchs = false, menschHennen = false;
    if (!spielerLesen(wert(kFuechse), a_.spieler.fuchs, menschFuchs))
        return fehler(Vorlage::zeileUnlesbar, zeileVon(kFuechse));
    if (!spielerLesen(wert(kHennen), a_.spieler.hennen, menschHennen))
        return fehler(Vorlage::zeileUnlesbar, zeileVon(kHennen));
    a_.spieler.zweiSpieler = menschFuchs && menschHennen;
    // The players must be the ones the settings name.
    for (const auto& [seite, name] : {std::pair{Seite::Fuchs, kFuechse}, std::pair{Seite::Hennen, kHennen}})
        if (spielerText(a_, seite) != wert(name)) return fehler(Vorlage::zeileUnlesbar, zeileVon(name));
    return std::nullopt;
}

std::optional<Gelesen> Leser::kopfDeuten() {
    a_.datum = std::string(wert(kDatum));
    const auto nummer = zahl(wert(kSpiel), kHoechsteNummer);
    if (!nummer || *nummer == 0) return fehler(Vorlage::zeileUnlesbar, zeileVon(kSpiel));
    a_.nummer = *nummer;
    const auto einst = einstellungenLesen(wert(kEinstellungen));
    if (!einst) return fehler(Vorlage::zeileUnlesbar, zeileVon(kEinstellungen));
    a_.einst = *einst;
    if (auto f = spielerDeuten()) return f;
    const std::string_view zurueck = wert(kZurueckgenommen);
    if (zurueck != kJa && zurueck != kNein) return fehler(Vorlage::zeileUnlesbar, zeileVon(kZurueckgenommen));
    a_.zurueckgenommen = zurueck == kJa;
    const auto ergebnis = stelle(kErgebnisse, wert(kErgebnis));
    if (!ergebnis) return fehler(Vorlage::zeileUnlesbar, zeileVon(kErgebnis));
    a_.ergebnis = static_cast<Ergebnis>(*ergebnis);
    a_.ergebnisZeile = zeileVon(kErgebnis);
    const auto ende = stelle(kEndegruende, wert(kEnde));
    if (ende) a_.ende = static_cast<Endegrund>(*ende);
    // An end has a reason, and only an end has one.
    if ((!ende && wert(kEnde) != kKeinEnde) || ende.has_value() == (a_.ergebnis == Ergebnis::offen))
        return fehler(Vorlage::zeileUnlesbar, zeileVon(kEnde));
    return std::nullopt;
}

// "12. F e5xe3xc3": the number counts the moves from 1; only the last may be an open chain.
std::optional<Gelesen> Leser::zeileLesen(const Zeile& zeile) {
    const std::string_view t = zeile.text;
    const std::string nummer = std::to_string(a_.zuege.size() + 1) + ". ";
    if (a_.offen || !t.starts_with(nummer) || t.size() < nummer.size() + 3 || t[nummer.size() + 1] != ' ')
        return fehler(Vorlage::zeileUnlesbar, zeile.nummer);
    const char seite = t[nummer.size()];
    if (seite != kFuchsZeichen && seite != kHennenZeichen)
        return fehler(Vorlage::zeileUnlesbar, zeile.nummer);
    const auto e =
        zugLesen(seite == kFuchsZeichen ? Seite::Fuchs : Seite::Hennen, t.substr(nummer.size() + 2));
    if (!e) return fehler(Vorlage::zeileUnlesbar, zeile.nummer);
    a_.zuege.push_back(e->zug);
    a_.zeilen.push_back(zeile.nummer);
    a_.offen = e->offen;
    return std::nullopt;
}

Gelesen Leser::lesen() {
    if (z_.empty() || z_.front().text != kKennung) return {std::nullopt, Vorlage::keinePartie};
    std::size_t i = 1;
    if (auto f = kopfLesen(i)) return *f;
    if (auto f = kopfDeuten()) return *f;
    for (; i < z_.size(); ++i)
        if (!z_[i].text.empty())
            if (auto f = zeileLesen(z_[i])) return *f;
    return {std::move(a_), {}};
}
} // namespace

Gelesen aufzeichnungLesen(std::string_view text) {
    std::vector<Zeile> zeilen;
    int nummer = 0;
    while (!text.empty()) {
        ++nummer;
        const std::size_t ende = text.find('\n');
        // A file cut short ends in the middle of a line.
        if (ende == std::string_view::npos) return fehler(Vorlage::zeileAbgeschnitten, nummer);
        std::string_view zeile = text.substr(0, ende);
        if (zeile.ends_with('\r')) zeile.remove_suffix(1); // written on another system
        if (!lesbar(zeile))
            return nummer == 1 ? Gelesen{std::nullopt, Vorlage::keinePartie}
                               : fehler(Vorlage::zeileUnlesbar, nummer);
        zeilen.push_back({zeile, nummer});
        text.remove_prefix(ende + 1);
    }
    return Leser(std::move(zeilen)).lesen();
}

} // namespace fuh
