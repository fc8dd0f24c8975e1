// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "player/tafel_bau.h"

#include <algorithm>
#include <bit>
#include <map>
#include <thread>
#include <tuple>

#include "tafel_bilanz.h"

namespace fuh {

using meister::Hennenmaske;
using meister::Suchbrett;
using meister::TafelIndex;

namespace {

// Hens of one count with the same number in each row: their own moves keep them there or lead up.
struct Schicht {
    int hennen = 0;
    std::vector<Hennenmaske> masken;
};

std::vector<Schicht> schichten(const TafelIndex& ix) {
    std::vector<Schicht> alle;
    for (int k = kZielfelder; k <= std::min(kAnzahlHennen, ix.felder()); ++k) {
        // Ordered by the sum of the hens' rows, then by the counts per row.
        std::map<std::tuple<int, uint32_t>, std::vector<Hennenmaske>> nachProfil;
        const Hennenmaske ende = 1u << ix.felder();
        for (Hennenmaske m = (1u << k) - 1; m < ende;) {
            int hoehe = 0;
            uint32_t profil = 0;
            for (Hennenmaske r = m; r != 0; r &= r - 1) {
                const int zeile = TafelIndex::kreuzFeld(std::countr_zero(r)) / 7;
                hoehe += zeile;
                profil += 1u << (5 * zeile);
            }
            nachProfil[{hoehe, profil}].push_back(m);
            const Hennenmaske t = m | (m - 1); // the next mask with as many bits
            m = (t + 1) | (((~t & -~t) - 1) >> (std::countr_zero(m) + 1));
        }
        for (auto& [schluessel, masken] : nachProfil)
            alle.push_back({k, std::move(masken)});
    }
    return alle;
}

// One layer: its positions numbered locally ((mask * placements + placement) * 2 + side).
class Schichtloeser {
  public:
    Schichtloeser(const TafelIndex& ix, std::vector<uint8_t>& werte, const Schicht& s)
        : ix_(ix), werte_(werte), s_(s), lagen_(ix.fuchslagen(s.hennen)),
          n_(static_cast<uint32_t>(s.masken.size() * lagen_ * 2)), gewinn_(n_), verlust_(n_), remis_(n_),
          rest_(n_), fertig_(n_), lokal_(meister::binom(ix.felder(), s.hennen), -1) {
        for (std::size_t i = 0; i < s.masken.size(); ++i)
            lokal_[TafelIndex::rang(s.masken[i])] = static_cast<int32_t>(i);
    }
    void loesen(int faeden);
    uint32_t groesse() const { return n_; }

  private:
    struct Kinder {
        std::vector<uint32_t> anfang, liste; // per position of a stretch its successors in the layer
    };
    uint64_t global(uint32_t p) const {
        return ix_.nummer(s_.masken[p / 2 / lagen_], p / 2 % lagen_, (p & 1) != 0);
    }
    void erkunden(uint32_t von, uint32_t bis, Kinder& k);
    void umkehren(const std::vector<Kinder>& teile, const std::vector<uint32_t>& grenzen);
    void entscheiden(uint32_t p, uint8_t wert, int runde);
    void ausbreiten();

    const TafelIndex& ix_;
    std::vector<uint8_t>& werte_;
    const Schicht& s_;
    uint64_t lagen_;
    uint32_t n_;
    std::vector<uint8_t> gewinn_, verlust_, remis_;
    std::vector<uint16_t> rest_; // successors in the layer not yet won by their mover
    std::vector<uint8_t> fertig_;
    std::vector<int32_t> lokal_; // local mask of each rank of the layer's hen count, -1 for another layer
    std::vector<uint32_t> vorAnfang_, vor_; // predecessors in the layer
    std::array<std::vector<uint32_t>, tafelwert::kLaengsterVerlust + 1> eimer_;
};

// Moves of every position in [von, bis): the ends and the solved layers give a first balance, the
// successors in this layer are listed.
void Schichtloeser::erkunden(uint32_t von, uint32_t bis, Kinder& k) {
    std::vector<meister::Suchzug> zuege(meister::kHoechstZuege);
    std::vector<uint32_t> hier;
    for (uint32_t p = von; p < bis; ++p) {
        k.anfang.push_back(static_cast<uint32_t>(k.liste.size()));
        meister::Bilanz b;
        hier.clear();
        meister::nachfolger(
            ix_.stellung(global(p)), ix_.strafregel(), zuege.data(), b, [&](const Suchbrett& kind) {
                const auto l = ix_.zerlege(kind); // the class is closed: every successor lies in it
                const int32_t m = kind.hennen == s_.hennen ? lokal_[TafelIndex::rang(l->hennen)] : -1;
                if (m >= 0)
                    hier.push_back(
                        static_cast<uint32_t>((m * lagen_ + l->fuechse) * 2 + (kind.fuchsAmZug ? 1 : 0)));
                else
                    b.kind(werte_[ix_.nummer(l->hennen, l->fuechse, kind.fuchsAmZug)]);
            });
        std::sort(hier.begin(), hier.end());
        hier.erase(std::unique(hier.begin(), hier.end()), hier.end());
        k.liste.insert(k.liste.end(), hier.begin(), hier.end());
        gewinn_[p] = static_cast<uint8_t>(b.gewinn);
        verlust_[p] = static_cast<uint8_t>(b.verlust);
        remis_[p] = b.remis;
        rest_[p] = static_cast<uint16_t>(hier.size());
    }
    k.anfang.push_back(static_cast<uint32_t>(k.liste.size()));
}

void Schichtloeser::umkehren(const std::vector<Kinder>& teile, const std::vector<uint32_t>& grenzen) {
    vorAnfang_.assign(n_ + 1, 0);
    for (const Kinder& k : teile)
        for (uint32_t c : k.liste)
            ++vorAnfang_[c + 1];
    for (uint32_t p = 0; p < n_; ++p)
        vorAnfang_[p + 1] += vorAnfang_[p];
    vor_.resize(vorAnfang_[n_]);
    std::vector<uint32_t> frei(vorAnfang_.begin(), vorAnfang_.end() - 1);
    for (std::size_t t = 0; t < teile.size(); ++t)
        for (uint32_t p = grenzen[t]; p < grenzen[t + 1]; ++p)
            for (uint32_t i = teile[t].anfang[p - grenzen[t]]; i < teile[t].anfang[p - grenzen[t] + 1]; ++i)
                vor_[frei[teile[t].liste[i]]++] = p;
}

// `p` is decided: a loss makes each predecessor a win, a win takes one hope from each.
void Schichtloeser::entscheiden(uint32_t p, uint8_t wert, int runde) {
    fertig_[p] = 1;
    werte_[global(p)] = wert;
    meister::Bilanz vorher;
    vorher.kind(wert);
    for (uint32_t i = vorAnfang_[p]; i < vorAnfang_[p + 1]; ++i) {
        const uint32_t q = vor_[i];
        if (fertig_[q]) continue;
        if (vorher.gewinn != 0) {
            if (gewinn_[q] != 0 && gewinn_[q] <= vorher.gewinn) continue;
            gewinn_[q] = static_cast<uint8_t>(std::min(vorher.gewinn, tafelwert::kLaengsterGewinn));
            eimer_[std::max<int>(gewinn_[q], runde)].push_back(q);
        } else {
            verlust_[q] = static_cast<uint8_t>(std::max<int>(verlust_[q], vorher.verlust));
            if (--rest_[q] == 0 && gewinn_[q] == 0 && !remis_[q])
                eimer_[std::max<int>(verlust_[q], runde)].push_back(q);
        }
    }
}

// In the order of distance: each position is decided once, by its quickest win or slowest loss.
void Schichtloeser::ausbreiten() {
    for (uint32_t p = 0; p < n_; ++p) {
        if (gewinn_[p] != 0)
            eimer_[gewinn_[p]].push_back(p);
        else if (rest_[p] == 0 && !remis_[p])
            eimer_[verlust_[p]].push_back(p);
    }
    for (int runde = 1; runde <= tafelwert::kLaengsterVerlust; ++runde) {
        auto& e = eimer_[static_cast<std::size_t>(runde)];
        for (std::size_t i = 0; i < e.size(); ++i) {
            const uint32_t p = e[i];
            if (fertig_[p]) continue;
            meister::Bilanz b;
            b.gewinn = gewinn_[p];
            b.verlust = verlust_[p];
            entscheiden(p, b.wert(), runde);
        }
        e.clear();
        e.shrink_to_fit();
    }
    for (uint32_t p = 0; p < n_; ++p)
        if (!fertig_[p]) werte_[global(p)] = tafelwert::kRemis;
}

void Schichtloeser::loesen(int faeden) {
    const uint32_t teil = (n_ + static_cast<uint32_t>(faeden) - 1) / static_cast<uint32_t>(faeden);
    std::vector<uint32_t> grenzen;
    for (uint32_t g = 0; g < n_; g += teil)
        grenzen.push_back(g);
    grenzen.push_back(n_);
    std::vector<Kinder> teile(grenzen.size() - 1);
    {
        std::vector<std::jthread> arbeiter;
        for (std::size_t t = 0; t < teile.size(); ++t)
            arbeiter.emplace_back(
                [this, &teile, &grenzen, t] { erkunden(grenzen[t], grenzen[t + 1], teile[t]); });
    }
    umkehren(teile, grenzen);
    teile.clear();
    ausbreiten();
}

} // namespace

Endspieltafel tafelBauen(bool strafregel, int faeden, int zeilen, const Baufortschritt& fortschritt) {
    const TafelIndex ix(strafregel, zeilen);
    std::vector<uint8_t> werte(ix.groesse(), tafelwert::kRemis);
    uint64_t fertig = 0;
    for (const Schicht& s : schichten(ix)) {
        Schichtloeser loeser(ix, werte, s);
        loeser.loesen(std::max(1, faeden));
        fertig += loeser.groesse();
        if (fortschritt) fortschritt(fertig, ix.groesse());
    }
    return Endspieltafel(strafregel, std::move(werte), zeilen);
}

} // namespace fuh
