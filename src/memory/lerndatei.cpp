// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "memory/lerndatei.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "dateischicht/dateizugriff.h"
#include "dateischicht/satzdatei.h"
#include "memory/lernindex.h"

namespace fuh {

namespace {
// Writes the merged records back: new ones appended in one write, changed ones in place, then syncs.
bool zurueckschreiben(int fd, Lernindex& index, const int* beruehrt, int anzahl, int letzter) {
    const std::size_t alt = index.laenge();
    const std::size_t neu = index.laengeNach(letzter);
    // New records first: when the disk is full the file is cut back, and nothing has changed.
    if (neu > alt && !datei::schreiben(fd, index.daten() + alt, neu - alt, static_cast<off_t>(alt))) {
        const int ergebnis = ::ftruncate(fd, static_cast<off_t>(alt));
        static_cast<void>(ergebnis);
        return false;
    }
    for (int i = 0; i < anzahl; ++i) {
        const std::size_t pos = static_cast<std::size_t>(beruehrt[i]) * kLernsatz;
        if (pos >= alt) continue; // written with the new records
        const std::size_t n = std::min<std::size_t>(kLernsatz, alt - pos);
        if (!datei::schreiben(fd, index.daten() + pos, n, static_cast<off_t>(pos))) return false;
    }
    struct stat st {};
    if (::fdatasync(fd) != 0 || ::fstat(fd, &st) != 0) return false;
    index.laengeSetzen(neu);
    index.standSetzen(st);
    return true;
}
} // namespace

const char* lerndateiName(int Staerke) {
    return Staerke == 1 ? "QZ2.DAT" : "QZ3.DAT";
}

Lerndatei::Lerndatei(std::filesystem::path ordner)
    : ordner_(std::move(ordner)), speicher_(std::make_shared<std::array<Speicher, 2>>()) {
    for (int i = 0; i < 2; ++i) {
        Speicher& s = (*speicher_)[static_cast<std::size_t>(i)];
        s.exakt = (ordner_ / lerndateiName(i == 0 ? 1 : 2)).string();
        s.index = std::make_shared<Lernindex>();
    }
}

Lerndatei::Speicher& Lerndatei::speicher(int Staerke) const {
    return (*speicher_)[Staerke == 1 ? 0 : 1];
}

const Lernindex* Lerndatei::aktuellerIndex(int Staerke) const {
    Speicher& s = speicher(Staerke);
    Lernindex& index = *s.index;
    struct stat st {};
    const char* pfad = s.exakt.c_str();
    if (::stat(pfad, &st) != 0) {
        if (errno != ENOENT) return nullptr;
        // Not under its own name: under the other case found before, else looked up (created when missing).
        if (s.gefunden.empty() || s.gefunden == s.exakt || ::stat(s.gefunden.c_str(), &st) != 0) {
            s.gefunden = datenpfad(ordner_, lerndateiName(Staerke)).string();
            const datei::Deskriptor d = datei::regulaerOeffnen(s.gefunden.c_str(), O_RDONLY, true, st);
            if (!d || (!index.aktuell(st) && !index.laden(d.fd(), st))) return nullptr;
            return &index;
        }
        pfad = s.gefunden.c_str();
    }
    if (index.aktuell(st)) return &index;
    struct stat offen {};
    const datei::Deskriptor d = datei::regulaerOeffnen(pfad, O_RDONLY, false, offen);
    if (!d) {
        index.leeren(st); // cannot be read: holds nothing until it changes
        return &index;
    }
    if (!index.laden(d.fd(), offen)) {
        index.vergessen();
        return nullptr;
    }
    return &index;
}

Lerndatei::Merge Lerndatei::speichern(const Partie& partie, int Staerke) const {
    const int saetze = std::clamp<int>(partie.spielzug, 0, kSituationen);
    const char* name = lerndateiName(Staerke);
    if (saetze == 0) // nothing to write; a missing file is created as a read would
        return {0, dateiLesen(datenpfad(ordner_, name), 0).has_value()};
    const datei::Ordnersperre sperre(ordner_);
    if (!sperre.gehalten()) return {0, false};
    return zusammenfuehren(speicher(Staerke), name, partie, saetze);
}

Lerndatei::Merge Lerndatei::zusammenfuehren(Speicher& s, const char* name, const Partie& partie,
                                            int saetze) const {
    s.gefunden = datenpfad(ordner_, name).string();
    Lernindex& index = *s.index;
    struct stat st {};
    const datei::Deskriptor d = datei::regulaerOeffnen(s.gefunden.c_str(), O_RDWR, true, st);
    // Read again under the lock: another copy of the game may have merged since the last recall.
    if (!d || !index.laden(d.fd(), st)) return {0, false};
    Merge m;
    std::array<int, kSituationen> beruehrt{};
    int anzahl = 0;
    int letzter = -1;
    for (int k = 0; k < saetze; ++k) {
        const Situation& sit = partie.sits[static_cast<std::size_t>(k)];
        int r = index.finde(sit.code, spiegelcode(sit.code));
        if (r >= 0) {
            index.addieren(r, sit.fuchswert, sit.hennenwert);
        } else if (index.saetze() < kHoechsteSaetze) {
            r = index.saetze();
            index.anhaengen(sit.code, sit.fuchswert, sit.hennenwert);
            ++m.neueZuege;
        } else {
            continue;
        }
        beruehrt[static_cast<std::size_t>(anzahl++)] = r;
        letzter = std::max(letzter, r);
    }
    if (!zurueckschreiben(d.fd(), index, beruehrt.data(), anzahl, letzter)) {
        index.vergessen(); // memory and file may differ now
        return {0, false};
    }
    return m;
}

int16_t Lerndatei::erinnern(const Brettfeld& Feld, int16_t figur, int Staerke, const Partie& partie) const {
    const Code p = positionscode(Feld);
    int16_t ergebnis = 0;
    if (Staerke >= 1) {
        if (const Lernindex* index = aktuellerIndex(Staerke)) {
            const int r = index->finde(p, spiegelcode(p));
            if (r >= 0)
                ergebnis = index->wert(r, figur == henne ? Lernindex::kHennenwert : Lernindex::kFuchswert);
        }
    }
    for (int k = 1; k <= kWiederholungsTiefe; ++k)
        if (partie.spielzug >= k && partie.spielzug - k < kSituationen &&
            partie.sits[partie.spielzug - k].code == p)
            ergebnis = kWiederholung;
    return ergebnis;
}

} // namespace fuh
