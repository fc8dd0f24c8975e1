// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "dateischicht/benutzerordner.h"
#include "partie_fixture.h"

namespace fuh::test {
namespace {

namespace fs = std::filesystem;

// A folder link planted by another user in a folder everyone can write (1777) leads
// to the victim's files. It is refused: nothing there is read, removed or written.
struct FremderOrdnerTest : PartieTest {
    static constexpr uid_t kFremd = 4242;
    fs::path geteilt() const { return ordner / "geteilt"; }
    fs::path opfer() const { return ordner / "opfer"; }
    void SetUp() override {
        if (::geteuid() != 0) GTEST_SKIP() << "planting another user's link needs root";
        fs::create_directories(geteilt());
        ::chmod(geteilt().c_str(), 01777);
        fs::create_directories(opfer());
        ASSERT_TRUE(Partieablage(opfer()).sichern(mitten()));
        ordner.schreibe("opfer/QZ.sta", std::vector<unsigned char>(34, 7));
    }
    // Every entry of the victim's folder with its bytes and modification time.
    std::map<std::string, std::pair<std::vector<unsigned char>, int64_t>> stand() const {
        std::map<std::string, std::pair<std::vector<unsigned char>, int64_t>> m;
        for (const auto& e : fs::directory_iterator(opfer())) {
            struct stat st {};
            ::lstat(e.path().c_str(), &st);
            m[e.path().filename().string()] = {lies(e.path()),
                                               st.st_mtim.tv_sec * 1000000000ll + st.st_mtim.tv_nsec};
        }
        return m;
    }
    void nichtsBeruehrt(const fs::path& unterwegs, datei::Ordnergrund grund) {
        const auto vorher = stand();
        Partieablage p(unterwegs);
        const auto a = p.holen(keine);
        EXPECT_FALSE(a.sicherung);
        EXPECT_EQ(a.beschaedigt, 0);
        EXPECT_FALSE(p.sichern(mitten(5)));
        EXPECT_EQ(p.ordnerZustand().grund, grund);
        EXPECT_TRUE(p.verwerfen());
        const datei::Ordner o = datei::ordnerOeffnen(unterwegs / "neu", true);
        EXPECT_FALSE(o);
        EXPECT_EQ(o.grund, grund);
        EXPECT_EQ(stand(), vorher);
    }
};

TEST_F(FremderOrdnerTest, EinFremderLinkWirdAbgelehnt) {
    const fs::path link = geteilt() / kProgrammordner;
    fs::create_directory_symlink(opfer(), link);
    ASSERT_EQ(::lchown(link.c_str(), kFremd, kFremd), 0);
    nichtsBeruehrt(link, datei::Ordnergrund::fremderLink);
    EXPECT_EQ(datei::ordnerOeffnen(link, false).stelle, link);
    // The same link of the user's own in that folder is followed.
    ASSERT_EQ(::lchown(link.c_str(), 0, 0), 0);
    EXPECT_TRUE(Partieablage(link).holen(keine).sicherung);
}

TEST_F(FremderOrdnerTest, EinFremderOrdnerWirdAbgelehnt) {
    const fs::path fremd = geteilt() / kProgrammordner;
    fs::create_directory(fremd);
    ASSERT_TRUE(Partieablage(fremd).sichern(mitten()));
    ASSERT_EQ(::chown(fremd.c_str(), kFremd, kFremd), 0);
    const auto vorher = lies(fremd / "partie");
    Partieablage p(fremd);
    EXPECT_FALSE(p.holen(keine).sicherung);
    EXPECT_EQ(p.ordnerZustand().grund, datei::Ordnergrund::fremderOrdner);
    EXPECT_FALSE(p.sichern(mitten(5)));
    EXPECT_EQ(lies(fremd / "partie"), vorher);
    // Further down, and through a link higher up: refused just the same.
    EXPECT_EQ(datei::ordnerOeffnen(fremd / "tief", true).grund, datei::Ordnergrund::fremderOrdner);
    EXPECT_FALSE(fs::exists(fremd / "tief"));
    fs::create_directory_symlink(geteilt(), ordner / "weg");
    EXPECT_EQ(datei::ordnerOeffnen(ordner / "weg" / kProgrammordner, false).grund,
              datei::Ordnergrund::fremderOrdner);
}

TEST_F(FremderOrdnerTest, EinOffenerOrdnerOhneStickyBitWirdAbgelehnt) {
    ::chmod(geteilt().c_str(), 0777);
    nichtsBeruehrt(geteilt() / kProgrammordner, datei::Ordnergrund::offenerOrdner);
    EXPECT_FALSE(fs::exists(geteilt() / kProgrammordner));
    // Sticky, the user's own folder there is fine.
    ::chmod(geteilt().c_str(), 01777);
    const datei::Ordner o = datei::ordnerOeffnen(geteilt() / kProgrammordner / "zustand", true);
    EXPECT_TRUE(o);
    EXPECT_TRUE(fs::is_directory(geteilt() / kProgrammordner / "zustand"));
    EXPECT_EQ(fs::status(geteilt() / kProgrammordner).permissions() & fs::perms::all, fs::perms::owner_all);
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
class Umgebung {
  public:
    Umgebung(const char* name, const char* wert) : name_(name) {
        if (const char* alt = std::getenv(name)) alt_ = alt;
        if (wert)
            setenv(name, wert, 1);
        else
            unsetenv(name);
    }
    ~Umgebung() {
        if (alt_)
            setenv(name_, alt_->c_str(), 1);
        else
            unsetenv(name_);
    }

  private:
    const char* name_;
    std::optional<std::string> alt_;
};

TEST(Partiedatei, LiegtImZustandsordner) {
    Umgebung heim("HOME", "/heim");
    {
        Umgebung zustand("XDG_STATE_HOME", "/zustand");
        EXPECT_EQ(partieOrdnerStandard(), fs::path("/zustand/fuchs-und-hennen"));
    }
    Umgebung relativ("XDG_STATE_HOME", "relativ");
    EXPECT_EQ(partieOrdnerStandard(), fs::path("/heim/.local/state/fuchs-und-hennen"));
}

// The fixed rule for unusual environments: relative or empty values count as unset; without HOME the
// user database names the home folder.
TEST(Benutzerordner, RelativeUndLeereWerteZaehlenNicht) {
    Umgebung xdg("XDG_CONFIG_HOME", "");
    Umgebung heim("HOME", "/heim");
    EXPECT_EQ(xdgOrdner("XDG_CONFIG_HOME", ".config"), fs::path("/heim/.config"));
    Umgebung relativ("XDG_CONFIG_HOME", "konfig");
    EXPECT_EQ(xdgOrdner("XDG_CONFIG_HOME", ".config"), fs::path("/heim/.config"));
    Umgebung absolut("XDG_CONFIG_HOME", "/konfig");
    EXPECT_EQ(xdgOrdner("XDG_CONFIG_HOME", ".config"), fs::path("/konfig"));
    const passwd* pw = ::getpwuid(::geteuid());
    ASSERT_NE(pw, nullptr);
    for (const char* wert : {static_cast<const char*>(nullptr), "", "heim", "./heim"}) {
        Umgebung h("HOME", wert);
        EXPECT_EQ(heimordner(), fs::path(pw->pw_dir)) << (wert ? wert : "unset");
    }
}

} // namespace
} // namespace fuh::test
