#include "memory/satzdatei.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <system_error>
#include <unistd.h>

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
    std::ifstream ein(pfad, std::ios::binary);
    if (!ein) {
        std::ofstream neu(pfad, std::ios::binary | std::ios::app);
        if (!neu) return std::nullopt;
        return Bytes{};
    }
    std::error_code ec;
    const auto groesse = fs::file_size(pfad, ec);
    if (ec) return std::nullopt;
    Bytes b(static_cast<std::size_t>(std::min<std::uintmax_t>(groesse, hoechstens)));
    ein.read(reinterpret_cast<char*>(b.data()), static_cast<std::streamsize>(b.size()));
    b.resize(static_cast<std::size_t>(ein.gcount()));
    return b;
}

bool dateiSchreiben(const fs::path& pfad, const Bytes& inhalt) {
    std::error_code fehler;
    if (fs::exists(pfad, fehler) && ::access(pfad.c_str(), W_OK) != 0) return false; // a read-only file stays
    fs::path tmp = pfad;
    tmp += ".tmp" + std::to_string(::getpid());
    {
        std::ofstream aus(tmp, std::ios::binary | std::ios::trunc);
        if (!aus) return false;
        aus.write(reinterpret_cast<const char*>(inhalt.data()), static_cast<std::streamsize>(inhalt.size()));
        aus.flush();
        if (!aus) {
            aus.close();
            std::error_code ec;
            fs::remove(tmp, ec);
            return false;
        }
    }
    std::error_code ec;
    fs::rename(tmp, pfad, ec);
    if (ec) {
        fs::remove(tmp, ec);
        return false;
    }
    return true;
}

namespace {
bool anfangUeberschreiben(const fs::path& pfad, const Bytes& anfang) {
    if (::access(pfad.c_str(), W_OK) != 0) return false;
    std::fstream datei(pfad, std::ios::binary | std::ios::in | std::ios::out);
    if (!datei) return false;
    datei.write(reinterpret_cast<const char*>(anfang.data()), static_cast<std::streamsize>(anfang.size()));
    datei.flush();
    return static_cast<bool>(datei);
}
} // namespace

bool dateiFortschreiben(const fs::path& pfad, std::size_t hoechstens,
                        const std::function<bool(Bytes&)>& aendern) {
    auto inhalt = dateiLesen(pfad, hoechstens);
    if (!inhalt) return false;
    std::error_code ec;
    const auto groesse = fs::file_size(pfad, ec);
    if (ec) return false;
    if (!aendern(*inhalt)) return true;
    if (groesse <= hoechstens) return dateiSchreiben(pfad, *inhalt);
    inhalt->resize(std::min(inhalt->size(), hoechstens)); // never past the owned part
    return anfangUeberschreiben(pfad, *inhalt);
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

std::string schreibfehler(const std::string& name) {
    return "Die Datei „" + name +
           "“ konnte nicht gespeichert werden. Das Spiel geht ohne diese Daten weiter.";
}

} // namespace fuh
