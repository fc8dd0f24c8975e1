// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The languages of the windows. The game is German; every other language is a translation of its texts
// (translations/fuchs-und-hennen_<code>.ts) and a guide of its own. The player's choice is kept in the
// window settings, so every start is German until the player picks another.
#include <QLocale>
#include <QString>
#include <QStringList>
#include <filesystem>
#include <span>
#include <string>

#include "board/text.h"

namespace fuh {

struct Sprache {
    const char* code; // kept in the window settings; the translation file ends in it
    const char* name; // in the menu, named in itself: a player who cannot read the others finds it
    QLocale::Language sprache;
    QLocale::Territory land; // for dates, where the system's locale speaks another language
    const char* qt;          // Qt's translation of its standard texts, or nothing where Qt speaks it as is
    const char* hilfe;       // the guide
};

// Every language, German first.
std::span<const Sprache> sprachen();
// The translation of the game's texts into `s`, as the resources hold it; empty for German.
QString uebersetzungsdatei(const Sprache& s);

// The language chosen in the window settings (German when none or an unknown one is).
const Sprache& gespeicherteSprache();
// The language the windows speak now.
const Sprache& aktuelleSprache();
// Speaks `s` from now on: the game's and Qt's translations, the locale for dates; every open window
// follows with its next event loop turn. `merken` also keeps the choice for the next start.
void spracheSetzen(const Sprache& s, bool merken = true);
// The language with `code`; German when there is none.
const Sprache& sprache(const QString& code);

// A text of the game's core in the language spoken now: its template translated and each value, itself
// translated where it is a text, filled in.
QString uebersetzt(const Text& text);
// The core's template `v` in the language spoken now, with `werte` filled in as they are.
QString uebersetzt(Vorlage v, const QStringList& werte);

// `meldung` about the file `name` in `ordner`, followed in the language spoken now by the sentence that
// says writes do not follow that file's symbolic link, when they do not.
QString linkHinweisAnhaengen(const QString& meldung, const std::filesystem::path& ordner,
                             const std::string& name);

} // namespace fuh
