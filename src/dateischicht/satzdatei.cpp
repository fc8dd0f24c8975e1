// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dateischicht/satzdatei.h"

#include <algorithm>
#include <cctype>
#include <fcntl.h>
#include <system_error>

#include "dateischicht/dateizugriff.h"

namespace fuh {

namespace fs = std::filesystem;

namespace {
bool gleichOhneGross(const std::string& a, const std::string& b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) ==
                      std::tolower(static_cast<unsigned char>(y));
           });
}
} // namespace

fs::path datenpfad(const fs::path& ordner, const std::string& name) {
    std::error_code ec;
    if (fs::exists(ordner / name, ec)) return ordner / name;
    for (fs::directory_iterator it(ordner, ec), ende; !ec && it != ende; it.increment(ec)) {
        const std::string n = it->path().filename().string();
        if (gleichOhneGross(n, name)) return it->path();
    }
    return ordner / name;
}

std::optional<Bytes> dateiLesen(const fs::path& pfad, std::size_t hoechstens) {
    struct stat st {};
    const datei::Deskriptor d = datei::regulaerOeffnen(pfad.c_str(), O_RDONLY, true, st);
    Bytes b;
    if (!d || !datei::lesen(d.fd(), b, hoechstens)) return std::nullopt;
    return b;
}

bool dateiSchreiben(const fs::path& pfad, const Bytes& inhalt) {
    return datei::ersetzen(pfad, inhalt);
}

bool dateiFortschreiben(const fs::path& pfad, std::size_t hoechstens,
                        const std::function<bool(Bytes&)>& aendern) {
    const datei::Ordnersperre sperre(pfad.parent_path());
    if (!sperre.gehalten()) return false;
    struct stat st {};
    Bytes inhalt;
    {
        const datei::Deskriptor d = datei::regulaerOeffnen(pfad.c_str(), O_RDONLY, true, st);
        if (!d || !datei::lesen(d.fd(), inhalt, hoechstens)) return false; // unreadable: left as it is
    }
    if (!aendern(inhalt)) return true;
    if (static_cast<std::uintmax_t>(st.st_size) <= hoechstens) return datei::ersetzen(pfad, inhalt);
    inhalt.resize(std::min(inhalt.size(), hoechstens)); // never past the owned part
    return datei::ueberschreiben(pfad, inhalt);
}

int16_t le16(const Bytes& b, std::size_t pos) {
    const unsigned lo = pos < b.size() ? b[pos] : 0u;
    const unsigned hi = pos + 1 < b.size() ? b[pos + 1] : 0u;
    return static_cast<int16_t>(lo | (hi << 8));
}

void setzeBytes(Bytes& b, std::size_t pos, const uint8_t* daten, std::size_t n) {
    if (b.size() < pos + n) b.resize(pos + n, 0);
    std::copy(daten, daten + n, b.begin() + static_cast<std::ptrdiff_t>(pos));
}

void setzeLe16(Bytes& b, std::size_t pos, int16_t wert) {
    const auto u = static_cast<uint16_t>(wert);
    const uint8_t daten[2] = {static_cast<uint8_t>(u & 0xFF), static_cast<uint8_t>(u >> 8)};
    setzeBytes(b, pos, daten, 2);
}

Text schreibfehler(const std::string& name) {
    return Text(Vorlage::schreibfehler, {Text::wort(name)});
}

std::optional<std::string> verweigerterLink(const fs::path& ordner, const std::string& name) {
    const fs::path pfad = datenpfad(ordner, name);
    if (!datei::linkVerweigert(pfad)) return std::nullopt;
    return pfad.filename().string();
}

Text mitLinkHinweis(const Text& meldung, const fs::path& ordner, const std::string& name) {
    const auto link = verweigerterLink(ordner, name);
    return link ? Text(Vorlage::linkHinweis, {meldung, Text::wort(*link)}) : meldung;
}

} // namespace fuh
