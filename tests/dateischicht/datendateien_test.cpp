// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Bad things in the place of each data file: the game gets its defaults and a failed write, never a hang,
// and what was there stays exactly as it was.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <fstream>
#include <functional>
#include <random>

#include "memory/lerndatei.h"
#include "prozess.h"
#include "spieldaten/bestenliste.h"
#include "spieldaten/einstellungsdatei.h"
#include "spieldaten/statistikdatei.h"
#include "testdateien.h"

namespace fuh {
namespace {

namespace fs = std::filesystem;
using test::TempOrdner;
using B = std::vector<uint8_t>;

Code grundcode() {
    Stellung s;
    s.grundstellung();
    return positionscode(s.Feld);
}

// One data file: content that reads as something other than the default, a write, and a read that
// tells whether the default came back.
struct Art {
    const char* name;
    B inhalt;
    std::function<bool(const fs::path&)> schreiben;
    std::function<bool(const fs::path&)> liestDefault;
};

bool iniSchreiben(const fs::path& o) {
    return einstellungenSchreiben(o, {1, 2, 1, 0});
}
bool iniDefault(const fs::path& o) {
    Einstellungen e{1, 1, 1, 1};
    einstellungenLesen(o, e);
    return e.PC == 0 && e.Lernmodus == 0 && e.Einzelzug == 0;
}
bool staSchreiben(const fs::path& o) {
    return spielGestartet(o) || statistik(o, 1, {0, 0, 1, 0}, 3);
}
bool staDefault(const fs::path& o) {
    return statistikLesen(o).zaehler == Statistik{}.zaehler;
}
bool scoSchreiben(const fs::path& o) {
    Bestenliste l(Seite::Hennen);
    l.einfuegen(50, "Ja", 45000);
    return l.speichern(o);
}
bool scoDefault(const fs::path& o) {
    Bestenliste l(Seite::Hennen);
    l.laden(o);
    return l.eintraege()[0].score == 0;
}
bool lernSchreiben(const fs::path& o) {
    Partie p;
    p.sits[0].code = grundcode();
    p.sits[0].fuchswert = 4;
    p.spielzug = 1;
    return Lerndatei(o).speichern(p, 2).geschrieben;
}
bool lernDefault(const fs::path& o) {
    Stellung s;
    s.grundstellung();
    return Lerndatei(o).erinnern(s.Feld, henne, 2, Partie{}) == 0;
}

std::vector<Art> arten() {
    B lern(15, 0); // fox and hen value 9
    const Code g = grundcode();
    std::copy(g.begin(), g.end(), lern.begin());
    lern[11] = lern[13] = 9;
    return {{"QZ.INI", {2, 0, 2, 0, 1, 0, 1, 0}, iniSchreiben, iniDefault},
            {"QZ.sta", B(34, 7), staSchreiben, staDefault},
            {"QZH.sco", test::hsSatz(44000, 77, "Kurt", "Ja"), scoSchreiben, scoDefault},
            {"QZ3.DAT", lern, lernSchreiben, lernDefault}};
}

// A FIFO, a folder or an unreadable file (the child runs as nobody) in a data file's place.
TEST(Datendateien, FifoOrdnerOderUnlesbareDateiHaengtNichtUndBleibt) {
    for (const Art& art : arten()) {
        for (const std::string fall : {"FIFO", "Ordner", "unlesbar"}) {
            SCOPED_TRACE(std::string(art.name) + " " + fall);
            TempOrdner t;
            const fs::path p = t / art.name;
            if (fall == "FIFO") {
                ASSERT_EQ(::mkfifo(p.c_str(), 0644), 0);
            } else if (fall == "Ordner") {
                ASSERT_EQ(::mkdir(p.c_str(), 0755), 0);
            } else {
                t.schreibe(art.name, art.inhalt);
                ASSERT_TRUE(::geteuid() != 0 || ::chown(p.c_str(), 65534, 65534) == 0);
                ::chmod(p.c_str(), 0200);
            }
            EXPECT_TRUE(test::imKind(
                [&] {
                    EXPECT_TRUE(art.liestDefault(t.pfad()));
                    EXPECT_FALSE(art.schreiben(t.pfad()));
                },
                fall == "unlesbar" ? t.pfad() : fs::path{}));
            EXPECT_EQ(t.namen(), std::vector<std::string>{art.name});
            if (fall == "unlesbar") {
                EXPECT_EQ(t.lies(art.name), art.inhalt);
                EXPECT_EQ(fs::status(p).permissions(), fs::perms::owner_write);
            } else {
                EXPECT_TRUE(fall == "FIFO" ? fs::is_fifo(p) : fs::is_directory(p));
            }
        }
    }
}

// A link named like a data file, to a file elsewhere (named relative to the link's folder). Writes
// follow it only where nobody but the user and root can have planted or changed it, and then replace the
// file it names, which keeps its mode and owner. Otherwise the write fails, the message says why, and
// nothing changes anywhere: the link stays, its target keeps every byte, and a missing target is not
// created.
struct LinkFall {
    const char* name;
    mode_t ordner, zielordner;
    bool fremderLink, zielDa, folgt;
};

// The link `name` in `t` to `woanders`/opfer (written first when the case has a target: mode 0600, given
// to nobody where root can), the two folders set to the case's modes.
void linkAnlegen(TempOrdner& t, TempOrdner& woanders, const std::string& name, const LinkFall& f,
                 const B& opfer) {
    const bool root = ::geteuid() == 0;
    const fs::path ziel = woanders / "opfer";
    if (f.zielDa) {
        woanders.schreibe("opfer", opfer);
        ::chmod(ziel.c_str(), 0600);
        if (root) {
            ASSERT_EQ(::chown(ziel.c_str(), 65534, 65534), 0);
        }
    }
    fs::create_symlink(fs::relative(ziel, t.pfad()), t / name);
    if (f.fremderLink) {
        ASSERT_EQ(::lchown((t / name).c_str(), 65534, 65534), 0);
    }
    ASSERT_EQ(::chmod(t.pfad().c_str(), f.ordner), 0);
    ASSERT_EQ(::chmod(woanders.pfad().c_str(), f.zielordner), 0);
}

TEST(Datendateien, LinkWirdNurGefolgtWoNiemandSonstSchreibenKann) {
    const LinkFall faelle[] = {
        {"eigener Ordner", 0755, 0755, false, true, true},
        {"Ordner für alle", 0777, 0755, false, true, false},
        {"Ordner für alle, Ziel fehlt", 0777, 0755, false, false, false},
        {"klebriger Ordner für alle", 01777, 0755, false, true, true},
        {"Ziel in einem Ordner für alle", 0755, 0777, false, true, false},
        {"Link eines anderen Benutzers", 0755, 0755, true, true, false},
    };
    const B opfer(40, 0x5A);
    const bool root = ::geteuid() == 0;
    for (const Art& art : arten()) {
        for (const LinkFall& f : faelle) {
            SCOPED_TRACE(std::string(art.name) + ", " + f.name);
            if (f.fremderLink && !root) continue; // only root can give a link away
            TempOrdner t;
            TempOrdner woanders;
            const fs::path ziel = woanders / "opfer";
            linkAnlegen(t, woanders, art.name, f, opfer);
            if (HasFatalFailure()) return;
            if (!f.zielDa) {
                EXPECT_TRUE(art.liestDefault(t.pfad()));
            }
            EXPECT_EQ(art.schreiben(t.pfad()), f.folgt);
            EXPECT_TRUE(fs::is_symlink(t / art.name));
            EXPECT_EQ(t.namen(), std::vector<std::string>{art.name});
            EXPECT_EQ(woanders.namen(),
                      f.zielDa ? std::vector<std::string>{"opfer"} : std::vector<std::string>{});
            const std::optional<std::string> verweigert = f.folgt ? std::nullopt : std::optional(art.name);
            EXPECT_EQ(verweigerterLink(t.pfad(), art.name), verweigert);
            if (!f.zielDa) continue;
            EXPECT_EQ(woanders.lies("opfer") == opfer, !f.folgt);
            struct stat st {};
            ASSERT_EQ(::stat(ziel.c_str(), &st), 0);
            EXPECT_EQ(st.st_mode & 07777, 0600u);
            EXPECT_EQ(st.st_uid, root ? 65534u : ::geteuid());
        }
    }
}

TEST(Datendateien, BelegteSperreGibtFehlerUndAendertNichts) {
    TempOrdner t;
    const int ordner = ::open(t.pfad().c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(::flock(ordner, LOCK_EX), 0); // another copy of the game is filing
    datei::sperrfristSetzen(std::chrono::milliseconds(50));
    for (const Art& art : arten()) {
        SCOPED_TRACE(art.name);
        t.schreibe(art.name, art.inhalt);
        EXPECT_FALSE(art.schreiben(t.pfad()));
        EXPECT_EQ(t.lies(art.name), art.inhalt);
    }
    datei::sperrfristSetzen(std::chrono::seconds(5));
    ::close(ordner);
    for (const Art& art : arten())
        EXPECT_TRUE(art.schreiben(t.pfad())) << art.name;
}

// A file of a terabyte (sparse, so it costs no disk) is neither read nor copied whole: its first bytes are
// read and updated in place, and what follows them stays.
TEST(Datendateien, UebergrosseDateienWerdenNurAmAnfangGelesenUndGeschrieben) {
    constexpr std::uintmax_t kRiesig = std::uintmax_t{1} << 40;
    for (const Art& art : arten()) {
        SCOPED_TRACE(art.name);
        TempOrdner t;
        t.schreibe(art.name, art.inhalt);
        fs::resize_file(t / art.name, kRiesig);
        std::fstream(t / art.name, std::ios::binary | std::ios::in | std::ios::out).seekp(1000).put('X');
        EXPECT_FALSE(art.liestDefault(t.pfad()));
        EXPECT_TRUE(art.schreiben(t.pfad()));
        EXPECT_EQ(fs::file_size(t / art.name), kRiesig);
        std::ifstream ein(t / art.name, std::ios::binary);
        EXPECT_EQ(ein.seekg(1000).get(), 'X');
    }
}

// Random and cut files of every kind: reading and writing go on, and a file never gets shorter.
TEST(Datendateien, ZufaelligeUndAbgeschnitteneInhalte) {
    std::mt19937 zufall(5);
    TempOrdner t;
    for (int runde = 0; runde < 15; ++runde) {
        for (const Art& art : arten()) {
            B b = art.inhalt;
            b.resize(zufall() % (3 * b.size() + 40));
            for (auto& c : b)
                c = static_cast<uint8_t>(zufall() % 4 == 0 ? 64 + zufall() % 64 : zufall());
            t.schreibe(art.name, b);
            art.liestDefault(t.pfad());
            EXPECT_TRUE(art.schreiben(t.pfad())) << art.name;
            EXPECT_GE(t.lies(art.name).size(), b.size()) << art.name;
        }
    }
}

} // namespace
} // namespace fuh
