// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/befehlszeile.h"

#include <getopt.h>

#include <limits>
#include <sstream>

#include "tools/zeichen.h"

namespace fuh {

namespace {
constexpr const char* kProjekt = "Fuchs und Hennen";
constexpr const char* kUrheber = "The Fuchs und Hennen authors";
constexpr const char* kLizenz = "GPL-3.0-or-later";
constexpr std::size_t kZeilenbreite = 80;
constexpr int kHilfe = 'h';
constexpr int kVersion = 'V';
constexpr int kNurLang = 256; // getopt values of options without a short form, above every char

// getopt_long's value for the option at `index`.
int kennung(const Option& o, std::size_t index) {
    return o.kurz ? static_cast<unsigned char>(o.kurz) : kNurLang + static_cast<int>(index);
}

std::string form(const Option& o) {
    return "--" + o.lang + (o.wert.empty() ? "" : " " + o.wert);
}

// The synopsis, wrapped under the program's name.
std::string aufruf(const Programm& p) {
    const std::string kopf = "Aufruf: " + p.name;
    std::string text, zeile = kopf;
    for (const Option& o : p.optionen) {
        const std::string teil = "[" + form(o) + "]";
        if (zeile.size() + 1 + teil.size() > kZeilenbreite) {
            text += zeile + '\n';
            zeile = std::string(kopf.size(), ' ');
        }
        zeile += ' ' + teil;
    }
    return text + zeile + '\n';
}

// `text` wrapped between words so that no line, indented by `einzug`, passes the line width.
std::string umbrochen(const std::string& text, std::size_t einzug) {
    std::istringstream worte(text);
    std::string aus;
    std::size_t zeile = einzug;
    for (std::string wort; worte >> wort; zeile += zeichen(wort)) {
        if (zeile > einzug && zeile + 1 + zeichen(wort) > kZeilenbreite) {
            aus += '\n' + std::string(einzug, ' ');
            zeile = einzug;
        } else if (zeile > einzug) {
            aus += ' ';
            ++zeile;
        }
        aus += wort;
    }
    return aus;
}

std::string hilfe(const Programm& p, const std::vector<Option>& optionen) {
    std::size_t spalte = 0;
    for (const Option& o : optionen)
        spalte = std::max(spalte, form(o).size());
    const std::size_t einzug = spalte + 8; // "  -n, " + the longest form + two blanks
    std::string text = aufruf(p) + p.zweck + "\n\nOptionen:\n";
    for (const Option& o : optionen) {
        const std::string kurz = o.kurz ? std::string("-") + o.kurz + "," : "   ";
        const std::string links = form(o);
        text += "  " + kurz + ' ' + links + std::string(spalte + 2 - links.size(), ' ');
        text += umbrochen(o.hilfe, einzug) + '\n';
    }
    return text + (p.nachwort.empty() ? "" : '\n' + p.nachwort + '\n');
}

std::string version(const Programm& p) {
    return p.name + " (" + kProjekt + ") " + FUH_VERSION + "\nCopyright: " + kUrheber +
           "\nLizenz: " + kLizenz +
           " (GNU GPL Version 3 oder neuer) <https://www.gnu.org/licenses/gpl-3.0.html>\n"
           "Dies ist freie Software: Sie dürfen sie verändern und weitergeben.\n"
           "Es gibt KEINE GARANTIE, soweit gesetzlich zulässig.\n";
}

// getopt_long's tables; they point into the options, which must outlive them.
struct Tabellen {
    std::string kurz = ":"; // the leading ':' tells a missing value apart from an unknown option
    std::vector<::option> lang;
};

Tabellen tabellen(const std::vector<Option>& optionen) {
    Tabellen t;
    for (std::size_t i = 0; i < optionen.size(); ++i) {
        const Option& o = optionen[i];
        t.lang.push_back(
            {o.lang.c_str(), o.wert.empty() ? no_argument : required_argument, nullptr, kennung(o, i)});
        if (o.kurz) t.kurz += o.kurz + std::string(o.wert.empty() ? "" : ":");
    }
    t.lang.push_back({nullptr, 0, nullptr, 0});
    return t;
}

const Option* finde(const std::vector<Option>& optionen, int wert) {
    for (std::size_t i = 0; i < optionen.size(); ++i)
        if (kennung(optionen[i], i) == wert) return &optionen[i];
    return nullptr;
}

// Why getopt_long refused `element`: a value for a flag, an unknown option or an ambiguous abbreviation.
std::string abgelehnt(const std::vector<Option>& optionen, const std::string& element) {
    if (const Option* o = finde(optionen, optopt)) return "--" + o->lang + " nimmt keinen Wert an";
    if (optopt != 0) return std::string("unbekannte Option: -") + static_cast<char>(optopt);
    const std::string name = element.substr(0, element.find('='));
    std::string passend;
    for (const Option& o : optionen)
        if (("--" + o.lang).rfind(name, 0) == 0) passend += (passend.empty() ? "" : ", ") + ("--" + o.lang);
    return passend.empty() ? "unbekannte Option: " + name
                           : "mehrdeutige Option: " + name + " (" + passend + ")";
}
} // namespace

std::optional<int> befehlszeileLesen(const Programm& p, const std::vector<std::string>& args,
                                     std::ostream& aus, std::ostream& fehler) {
    std::vector<Option> optionen = p.optionen;
    optionen.push_back({"help", kHilfe, "", "diese Hilfe zeigen", {}});
    optionen.push_back({"version", kVersion, "", "Version und Lizenz zeigen", {}});
    const Tabellen t = tabellen(optionen);

    // getopt_long permutes its argv, so it gets a copy of its own.
    std::vector<std::string> kopie{p.name};
    kopie.insert(kopie.end(), args.begin(), args.end());
    std::vector<char*> argv;
    for (std::string& a : kopie)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    const int argc = static_cast<int>(kopie.size());

    auto scheitern = [&](const std::string& grund) { return aufrufFehler(p, grund, fehler); };
    optind = 0; // start afresh: a second reading must not continue the first
    opterr = 0; // the messages below replace getopt's English ones
    for (int c; (c = getopt_long(argc, argv.data(), t.kurz.c_str(), t.lang.data(), nullptr)) != -1;) {
        if (c == ':') return scheitern("fehlender Wert nach --" + finde(optionen, optopt)->lang);
        if (c == '?') return scheitern(abgelehnt(optionen, argv[static_cast<std::size_t>(optind - 1)]));
        if (c == kHilfe || c == kVersion) {
            aus << (c == kHilfe ? hilfe(p, optionen) : version(p));
            return kAufrufErledigt;
        }
        const Option& o = *finde(optionen, c);
        const std::string wert = optarg ? optarg : "";
        if (!o.setzen(wert)) return scheitern("ungültiger Wert für --" + o.lang + ": " + wert);
    }
    if (optind < argc)
        return scheitern(std::string("überzähliges Argument: ") + argv[static_cast<std::size_t>(optind)]);
    return std::nullopt;
}

int aufrufFehler(const Programm& p, const std::string& grund, std::ostream& fehler) {
    fehler << p.name << ": " << grund << '\n' << aufruf(p) << "Mehr mit „" << p.name << " --help“.\n";
    return kAufruffehler;
}

std::optional<uint64_t> zahlLesen(const std::string& s, uint64_t von, uint64_t bis) {
    if (s.empty()) return std::nullopt;
    uint64_t v = 0;
    for (char c : s) {
        if (c < '0' || c > '9') return std::nullopt;
        const auto ziffer = static_cast<uint64_t>(c - '0');
        if (v > (std::numeric_limits<uint64_t>::max() - ziffer) / 10) return std::nullopt;
        v = v * 10 + ziffer;
    }
    if (v < von || v > bis) return std::nullopt;
    return v;
}

Setzer schalter(bool& ziel) {
    return [&ziel](const std::string&) {
        ziel = true;
        return true;
    };
}

} // namespace fuh
