// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <optional>
#include <string>

#include "dateischicht/benutzerordner.h"
#include "partie_fixture.h"

namespace fuh::test {
namespace {

namespace fs = std::filesystem;

// Every entry of a folder with its bytes and modification time.
std::map<std::string, std::pair<std::vector<unsigned char>, int64_t>> stand(const fs::path& ordner) {
    std::map<std::string, std::pair<std::vector<unsigned char>, int64_t>> m;
    for (const auto& e : fs::directory_iterator(ordner)) {
        struct stat st {};
        ::lstat(e.path().c_str(), &st);
        std::ifstream ein(e.path(), std::ios::binary);
        m[e.path().filename().string()] = {{std::istreambuf_iterator<char>(ein), {}},
                                           st.st_mtim.tv_sec * 1000000000ll + st.st_mtim.tv_nsec};
    }
    return m;
}

// Opening `weg` is refused for `grund`: no game is offered, saved or removed there, no folder is made
// below it, and nothing in `hinter` changes.
void nichtsBeruehrt(const fs::path& weg, datei::Ordnergrund grund, const fs::path& hinter,
                    const Sicherung& andere) {
    const auto vorher = stand(hinter);
    std::vector<std::string> keine;
    Partieablage p(weg);
    const auto a = p.holen(keine);
    EXPECT_FALSE(a.sicherung);
    EXPECT_EQ(a.beschaedigt, 0);
    EXPECT_FALSE(p.sichern(andere));
    EXPECT_EQ(p.ordnerZustand().grund, grund);
    EXPECT_TRUE(p.verwerfen());
    const datei::Ordner o = datei::ordnerOeffnen(weg / "neu", true);
    EXPECT_FALSE(o);
    EXPECT_EQ(o.grund, grund);
    EXPECT_EQ(stand(hinter), vorher);
}

// The program's folder in a folder everyone can write (1777): a link there planted by another user to the
// victim's files, a folder there of another user (also further down, and reached through a link higher
// up), or anything there once the sticky bit is gone, is refused: nothing behind it is read, removed or
// written. The user's own link there is followed, and the user's own folder made there is private.
TEST_F(PartieTest, FremdeUndOffeneOrdnerWerdenAbgelehnt) {
    if (::geteuid() != 0) GTEST_SKIP() << "planting another user's link needs root";
    enum Art { fremderLink, fremderOrdner, offen };
    const fs::path geteilt = ordner / "geteilt", opfer = ordner / "opfer", eigen = geteilt / kProgrammordner;
    fs::create_directories(opfer);
    ASSERT_TRUE(Partieablage(opfer).sichern(mitten()));
    ordner.schreibe("opfer/QZ.sta", std::vector<unsigned char>(34, 7));
    fs::create_directories(geteilt);
    fs::create_directory_symlink(geteilt, ordner / "weg");
    const Sicherung andere = mitten(5);
    using G = datei::Ordnergrund;
    const std::tuple<Art, fs::path, G> faelle[] = {
        {fremderLink, eigen, G::fremderLink},
        {fremderOrdner, eigen, G::fremderOrdner},
        {fremderOrdner, eigen / "tief", G::fremderOrdner},
        {fremderOrdner, ordner / "weg" / kProgrammordner, G::fremderOrdner},
        {offen, eigen, G::offenerOrdner},
    };
    for (const auto& [art, weg, grund] : faelle) {
        SCOPED_TRACE(weg);
        fs::remove_all(eigen);
        ::chmod(geteilt.c_str(), art == offen ? 0777 : 01777);
        if (art == fremderLink) {
            fs::create_directory_symlink(opfer, eigen);
            ASSERT_EQ(::lchown(eigen.c_str(), 4242, 4242), 0);
        } else if (art == fremderOrdner) {
            fs::create_directory(eigen);
            ASSERT_TRUE(Partieablage(eigen).sichern(mitten()));
            ASSERT_EQ(::chown(eigen.c_str(), 4242, 4242), 0);
        }
        nichtsBeruehrt(weg, grund, art == fremderOrdner ? eigen : opfer, andere);
        EXPECT_EQ(fs::exists(eigen), art != offen);
    }
    fs::remove_all(eigen);
    ::chmod(geteilt.c_str(), 01777);
    fs::create_directory_symlink(opfer, eigen);
    EXPECT_TRUE(Partieablage(eigen).holen(keine).sicherung);
    fs::remove(eigen);
    EXPECT_TRUE(datei::ordnerOeffnen(eigen / "zustand", true));
    EXPECT_TRUE(fs::is_directory(eigen / "zustand"));
    EXPECT_EQ(fs::status(eigen).permissions() & fs::perms::all, fs::perms::owner_all);
}

TEST(Ordneroeffnen, FolgtEigenenLinksUndMeldetDenRest) {
    TempOrdner t;
    fs::create_directories(t / "echt" / "tief");
    fs::create_directory_symlink("echt", t / "kurz");
    fs::create_directory_symlink(t / "kurz" / "..", t / "zurueck");
    EXPECT_TRUE(datei::ordnerOeffnen(t / "kurz" / "tief", false));
    EXPECT_TRUE(datei::ordnerOeffnen(t / "zurueck" / "echt" / "tief", false));
    EXPECT_EQ(datei::ordnerOeffnen(t / "fehlt", false).grund, datei::Ordnergrund::fehlt);
    t.schreibe("datei", {'x'});
    EXPECT_EQ(datei::ordnerOeffnen(t / "datei" / "x", true).grund, datei::Ordnergrund::keinOrdner);
    fs::create_directory_symlink("schleife", t / "schleife");
    EXPECT_EQ(datei::ordnerOeffnen(t / "schleife", false).grund, datei::Ordnergrund::schleife);
    // What it opened is the folder: a file made through it lands there.
    const datei::Ordner o = datei::ordnerOeffnen(t / "kurz" / "neu" / "tiefer", true);
    ASSERT_TRUE(o);
    EXPECT_TRUE(fs::is_directory(t / "echt" / "neu" / "tiefer"));
}

// Sets an environment variable for the life of the object (nullptr: unset).
struct Umgebung {
    static void setzen(const char* name, const char* wert) { wert ? setenv(name, wert, 1) : unsetenv(name); }
    Umgebung(const char* name, const char* wert) : name(name), alt(std::getenv(name)) {
        if (alt) gemerkt = alt;
        setzen(name, wert);
    }
    ~Umgebung() { setzen(name, alt ? gemerkt.c_str() : nullptr); }
    const char* name;
    const char* alt;
    std::string gemerkt;
};

// The fixed rule for unusual environments: relative or empty values count as unset; without HOME the
// user database names the home folder. The saved game lies in the state folder.
TEST(Benutzerordner, RelativeUndLeereWerteZaehlenNicht) {
    Umgebung xdg("XDG_CONFIG_HOME", "");
    Umgebung heim("HOME", "/heim");
    EXPECT_EQ(xdgOrdner("XDG_CONFIG_HOME", ".config"), fs::path("/heim/.config"));
    Umgebung relativ("XDG_CONFIG_HOME", "konfig");
    EXPECT_EQ(xdgOrdner("XDG_CONFIG_HOME", ".config"), fs::path("/heim/.config"));
    Umgebung absolut("XDG_CONFIG_HOME", "/konfig");
    EXPECT_EQ(xdgOrdner("XDG_CONFIG_HOME", ".config"), fs::path("/konfig"));
    {
        Umgebung zustand("XDG_STATE_HOME", "/zustand");
        EXPECT_EQ(partieOrdnerStandard(), fs::path("/zustand/fuchs-und-hennen"));
    }
    Umgebung zustand("XDG_STATE_HOME", "relativ");
    EXPECT_EQ(partieOrdnerStandard(), fs::path("/heim/.local/state/fuchs-und-hennen"));
    const passwd* pw = ::getpwuid(::geteuid());
    ASSERT_NE(pw, nullptr);
    for (const char* wert : {static_cast<const char*>(nullptr), "", "heim", "./heim"}) {
        Umgebung h("HOME", wert);
        EXPECT_EQ(heimordner(), fs::path(pw->pw_dir)) << (wert ? wert : "unset");
    }
}

} // namespace
} // namespace fuh::test
