// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The running game kept over the end of the program: small versioned files of our own in a folder apart
// from the data folder. Written whole and safely; read as untrusted input, every value checked before use.
//
// Each saved game belongs to the window that saved or loaded it. Several windows may run at once, so a
// window replaces or removes only the file it holds itself (a flock on that file while the window lives),
// and a second window's game goes to a file of its own ("partie", "partie-2", ...). A file is read
// without being removed; it goes only when the question about it has been answered.
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "dateischicht/dateizugriff.h"
#include "game/spielstand.h"

namespace fuh {

// The file's bytes: magic, version, length, the game with its take-back states, a checksum.
Bytes partieKodieren(const Sicherung& s);
// The game in `b`, or nullopt when anything in it is damaged, foreign, out of range or no state the game
// can reach.
std::optional<Sicherung> partieDekodieren(const Bytes& b);

// $XDG_STATE_HOME/fuchs-und-hennen, by default ~/.local/state/fuchs-und-hennen; nullopt without a home
// folder (see memory/benutzerordner.h).
std::optional<std::filesystem::path> partieOrdnerStandard();

// The saved games of one folder, as one window (or tool) sees them.
class Partieablage {
  public:
    // Nothing is opened or created before the first use.
    explicit Partieablage(std::filesystem::path ordner);
    ~Partieablage(); // lets go of the file held; it stays
    Partieablage(const Partieablage&) = delete;
    Partieablage& operator=(const Partieablage&) = delete;

    const std::filesystem::path& ordner() const { return ordner_; }

    struct Angebot {
        std::optional<Sicherung> sicherung; // the game to continue (or to file)
        std::string kennung;                // its file's identity, for `uebernommen`
        int beschaedigt = 0;                // damaged files found and removed meanwhile
    };
    // The first saved game that no other window holds and that `uebernommen` does not name (identities of
    // games already taken over whose file could not be removed). It is held from now on, so no other
    // window offers it, and stays on disk until `erledigt`. Damaged files and links in a file's place are
    // removed; other things there (a folder) are left alone. `uebernommen` loses every identity that no
    // file has any more.
    Angebot holen(std::vector<std::string>& uebernommen);
    // The game offered has been taken over or dropped: its file goes. False when it cannot be removed (the
    // caller then marks its identity as taken over); the file stays held.
    bool erledigt();

    // Saves the running game: into the file held when there is one, else into a new file under the first
    // free name; never over another window's file. False when it cannot be written (`fehler()` tells why);
    // the file held then stays as it was.
    bool sichern(const Sicherung& s);
    // The game is over or was dropped: the file held, if any, goes. Another window's file is never touched,
    // nor one offered whose question is still open.
    bool verwerfen();
    // Whether a file is held (one offered, or saved by this object).
    bool haelt() const { return static_cast<bool>(gehalten_); }
    // Lets go of the file held, which stays for the next start.
    void freigeben();

    // Why the folder cannot be used; keiner when it can (or was not needed yet).
    const datei::Ordner& ordnerZustand() const { return ordnerZustand_; }
    // errno of the last failure of sichern, erledigt or verwerfen.
    int fehler() const { return fehler_; }

  private:
    bool ordnerOeffnen(bool anlegen);
    void staleTempsEntfernen();
    bool meinName() const; // the name held still names the file held

    std::filesystem::path ordner_;
    datei::Ordner ordnerZustand_;
    datei::Deskriptor gehalten_; // the file held, with a flock on it
    std::string name_;           // its name in the folder
    bool angeboten_ = false;     // held as offered, the question not yet answered
    int fehler_ = 0;
};

} // namespace fuh
