// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// What the core says to the player is a value: one of its templates and the values filled into it. The
// core's logs and files hold its German rendering (`deutsch`); a window translates the template and the
// values each on their own, so it never has to take a finished sentence apart.
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Marks a German template for the translation tools, which collect it in the context "Kern".
#define FUH_TR_NOOP(kontext, text) text

namespace fuh {

// Every template of the core; %1, %2, ... stand for its values.
enum class Vorlage : uint8_t {
    hennenGewinnen,
    fuchsGewinnt,
    fuchsGewinntOhneZug, // the hens cannot move: said without the exclamation mark
    remisZiel,
    tippHennenGewinnen,  // the hint's exact endgame verdict; %1 the moves of both sides until the end
    tippFuechseGewinnen, // as above
    tippHennenGewinnenJetzt,
    tippFuechseGewinnenJetzt,
    tippRemis,
    punkte,               // %1 the points, empty where nobody scores
    schreibfehler,        // %1 a file's name
    schreibfehlerMehrere, // %1 the list of names
    dateiname,            // one name of such a list, quoted
    aufzaehlung,          // %1 the list so far, %2 the next name
    aufzaehlungEnde,      // as above, for the last name
    linkHinweis,          // %1 a message about a file, %2 the name of the link writes do not follow
    partieBeschaedigt,
    keinePartie,
    angabeUnbekannt, // %1 the line, %2 the entry's name
    zeileUnlesbar,   // %1 the line
    zeileAbgeschnitten,
    angabeFehlt, // %1 the entry's name
    zugVerboten, // %1 the line
    ergebnisFalsch,
    partieZuGross,
    partieUnlesbar, // %1 the file's name
    pcFuchs,
    pcHennen,
    pcBeide,
    staerke,       // %1 the strength, 1 to 3
    staerkeDialog, // strength 3 as the settings dialog has always written it
    zweiSpielerFuchsAmZug,
    zweiSpielerHennenAmZug,
    meister,
    siegJa, // the high-score lists' column "won", stored in German
    siegNein,
    fuchsAusgeschlossen,
    fuchsEingesetzt,
    zurueckgenommen,
};
inline constexpr std::size_t kVorlagen = static_cast<std::size_t>(Vorlage::zurueckgenommen) + 1;

// The German template, as marked for translation.
const char* vorlage(Vorlage v);

// A template with its values, or a plain word that is the same in every language (a file's name, a
// number). The empty text says nothing.
class Text {
  public:
    Text() = default;
    // Implicit, so that a template without values can be passed where a text is expected.
    Text(Vorlage v, std::initializer_list<Text> werte = {}) : vorlage_(v), werte_(werte) {}
    static Text wort(std::string w);
    static Text zahl(long long n) { return wort(std::to_string(n)); }

    std::optional<Vorlage> vorlage() const { return vorlage_; }
    const std::string& wort() const { return wort_; }
    const std::vector<Text>& werte() const { return werte_; }
    bool leer() const { return !vorlage_ && wort_.empty(); }

    friend bool operator==(const Text&, const Text&) = default;

  private:
    std::optional<Vorlage> vorlage_;
    std::string wort_;
    std::vector<Text> werte_;
};

// `vorlage` with each %1 to %9 replaced by the matching entry of `werte` (a missing one by nothing);
// inserted values are never searched again. A window fills its translated templates the same way.
std::string einsetzen(std::string_view vorlage, const std::vector<std::string>& werte);

// The text in German, byte for byte as the core's logs and files hold it.
std::string deutsch(const Text& t);

} // namespace fuh
