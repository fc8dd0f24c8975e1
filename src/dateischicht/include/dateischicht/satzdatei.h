// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// Small data files of fixed-length records with 16-bit little-endian fields.
// Each operation opens, reads or writes, and closes; only regular files are read or written, and opening
// never blocks. Whole files are replaced through a temporary file, so a failed write never leaves a
// truncated or half-written file behind; every read-modify-write holds the data folder's lock.
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "board/text.h"

#include "dateischicht/dateizugriff.h"

namespace fuh {

// The file `name` in `ordner`; an existing file whose name differs only in case is the same file.
std::filesystem::path datenpfad(const std::filesystem::path& ordner, const std::string& name);

// Whole content; a missing file is created empty first. nullopt when it cannot be opened or created or
// is no regular file; such a file is left as it is. At most `hoechstens` bytes are read.
std::optional<Bytes> dateiLesen(const std::filesystem::path& pfad, std::size_t hoechstens = SIZE_MAX);

// Replaces the file with `inhalt` atomically, keeping a symbolic link, the mode and the owner. False when
// it cannot be written; the old file stays.
bool dateiSchreiben(const std::filesystem::path& pfad, const Bytes& inhalt);

// Updates the part of a file the game owns, its first `hoechstens` bytes (a missing file is created
// empty): `aendern` changes them and returns false when there is nothing to write back. A file no longer
// than that part is replaced atomically; a longer one is overwritten in place over that part only, so
// what follows stays as it was and an oversized file is never read or copied whole.
// The folder lock is held throughout. False when the lock cannot be taken in time or the file cannot be
// read or written; an unreadable file is never replaced.
bool dateiFortschreiben(const std::filesystem::path& pfad, std::size_t hoechstens,
                        const std::function<bool(Bytes&)>& aendern);

// Signed 16-bit little-endian field at `pos`; bytes past the end read as 0.
int16_t le16(const Bytes& b, std::size_t pos);
// Writes a 16-bit little-endian field, growing `b` with zeros when needed.
void setzeLe16(Bytes& b, std::size_t pos, int16_t wert);
// Writes raw bytes at `pos`, growing `b` with zeros when needed.
void setzeBytes(Bytes& b, std::size_t pos, const uint8_t* daten, std::size_t n);

// The message shown when the file `name` cannot be written.
Text schreibfehler(const std::string& name);
// The link's name when writes to `name` in `ordner` refuse to follow it.
std::optional<std::string> verweigerterLink(const std::filesystem::path& ordner, const std::string& name);
// `meldung` about the file `name` in `ordner`, followed by a sentence when that file is a symbolic link
// that writes do not follow (someone else may have planted it).
Text mitLinkHinweis(const Text& meldung, const std::filesystem::path& ordner, const std::string& name);

} // namespace fuh
