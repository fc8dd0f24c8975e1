// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The language of the windows. The game is German; English is the one translation. The player's choice
// is kept in the window settings, so every start is German until the player picks English.
#include <QString>
#include <filesystem>
#include <string>

namespace fuh {

enum class Sprache { deutsch, englisch };

// The language chosen in the window settings (German when none is).
Sprache gespeicherteSprache();
// The language the windows speak now.
Sprache aktuelleSprache();
// Speaks `s` from now on: the game's and Qt's translations, the locale for dates; every open window
// follows with its next event loop turn. `merken` also keeps the choice for the next start.
void spracheSetzen(Sprache s, bool merken = true);

// A text of the game's core, which always produces German, in the language spoken now. Texts built
// from a template are recognised and translated with their inserted values.
QString kernText(const QString& deutsch);

// `meldung` about the file `name` in `ordner`, followed in the language spoken now by the sentence that
// says writes do not follow that file's symbolic link, when they do not.
QString linkHinweisAnhaengen(const QString& meldung, const std::filesystem::path& ordner,
                             const std::string& name);

} // namespace fuh
