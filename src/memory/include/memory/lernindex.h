// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The part of a learned-move file the game owns, kept in memory with an index code -> first record, and
// the file state (device, inode, size, modification time) it was read at.
#include <sys/stat.h>

#include <cstdint>
#include <vector>

#include "memory/lerndatei.h"
#include "memory/positionscode.h"

namespace fuh {

class Lernindex {
  public:
    static constexpr std::size_t kFuchswert = 11;
    static constexpr std::size_t kHennenwert = 13;
    // The part of the file a merge can reach; records beyond it are never read.
    static constexpr std::size_t kHoechstens = static_cast<std::size_t>(kHoechsteSaetze) * kLernsatz;

    // Reads the owned part of the open file `fd`, whose status is `st`, and indexes it. A file read
    // before with the same state and the same bytes keeps its index. False on a read error.
    bool laden(int fd, const struct stat& st);
    // No records, valid for the file state `st` (a file that cannot be read counts as empty).
    void leeren(const struct stat& st);
    // Whether the index still describes the file with status `st`.
    bool aktuell(const struct stat& st) const;
    void vergessen() { gueltig_ = false; }

    // The first record whose code is `p` or `m`, or -1.
    int finde(const Code& p, const Code& m) const;
    int16_t wert(int r, std::size_t feld) const;

    // Merge steps on the bytes in memory; `schreibbereich` then says what to write back.
    void addieren(int r, int16_t fuchswert, int16_t hennenwert);
    void anhaengen(const Code& c, int16_t fuchswert, int16_t hennenwert);
    int saetze() const { return n_; }
    std::size_t laenge() const { return laenge_; }
    // The file's length after the merge steps so far: record bytes touched past the end grow it, with
    // zeros filling a gap, as a record-by-record write would.
    std::size_t laengeNach(int letzterSatz) const;
    const uint8_t* daten() const { return inhalt_.data(); }
    void laengeSetzen(std::size_t laenge) { laenge_ = laenge; }
    void standSetzen(const struct stat& st);

  private:
    void puffernAnlegen();
    void aufbauen();
    bool eintragen(int r); // false when the code is already there
    static uint64_t streuwert(const uint8_t* code);
    int suche(const uint8_t* code, uint64_t h, uint32_t& platz) const; // record of `code`, or -1

    std::vector<uint8_t> inhalt_;   // owned part, zeros after the end up to a whole record
    std::vector<uint8_t> frisch_;   // the file as read again, compared with inhalt_
    std::vector<uint32_t> tabelle_; // open addressing: hash mark and record number + 1, 0 empty
    uint32_t maske_ = 0;
    std::size_t ausdehnung_ = 0;       // bytes of inhalt_ that may be other than zero
    std::size_t frischAusdehnung_ = 0; // the same for frisch_
    std::size_t laenge_ = 0;
    int n_ = 0;
    bool gueltig_ = false;
    dev_t dev_ = 0;
    ino_t ino_ = 0;
    off_t groesse_ = 0;
    struct timespec mtime_ {};
};

} // namespace fuh
