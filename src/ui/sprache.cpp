// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/sprache.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>
#include <functional>
#include <optional>

#include "dateischicht/satzdatei.h"
#include "game/aufzeichnung.h"
#include "game/texte.h"
#include "spieldaten/statustexte.h"
#include "ui/brett_fenster.h"

namespace fuh {

namespace {

constexpr const char* kKernKontext = "Kern"; // where the translation tools file the core's marked texts
constexpr const char* kSchluessel = "sprache";
constexpr const char* kEnglischCode = "en";
constexpr const char* kUebersetzerName = "fuh_uebersetzung"; // the translators this file installed
constexpr const char* kSpielUebersetzung = "fuh_spiel";      // of them, the game's own

struct Sprachdaten {
    QLocale::Language sprache;
    QLocale::Territory land; // for dates, where the system's locale speaks another language
    const char* spiel;       // the game's translation, or nothing for its own language
    const char* qt;          // Qt's translation of its standard texts, or nothing for English
};

Sprachdaten daten(Sprache s) {
    if (s == Sprache::englisch)
        return {QLocale::English, QLocale::UnitedStates, ":/i18n/fuchs-und-hennen_en", nullptr};
    return {QLocale::German, QLocale::Germany, nullptr, "qtbase_de"};
}

void installieren(const QString& datei, const QString& ordner, const char* name = kUebersetzerName) {
    auto* u = new QTranslator(QCoreApplication::instance());
    u->setObjectName(QString::fromLatin1(name));
    if (u->load(datei, ordner))
        QCoreApplication::installTranslator(u);
    else
        delete u;
}

using Teil = std::function<QString(const QString&)>;

// `text` translated if it was built from `vorlage`: each inserted value goes through `teil`. The core's
// templates hold one or two values.
std::optional<QString> nachVorlage(const QString& text, const char* vorlage, const Teil& teil) {
    static const QRegularExpression platzhalter(QStringLiteral("%([1-9])"));
    const QString v = QString::fromUtf8(vorlage);
    QString muster = QStringLiteral("^");
    std::vector<int> nummern;
    qsizetype bis = 0;
    for (const QRegularExpressionMatch& m : platzhalter.globalMatch(v)) {
        muster += QRegularExpression::escape(v.mid(bis, m.capturedStart() - bis)) + QStringLiteral("(.*)");
        nummern.push_back(m.captured(1).toInt());
        bis = m.capturedEnd();
    }
    muster += QRegularExpression::escape(v.mid(bis)) + QStringLiteral("$");
    const QRegularExpressionMatch treffer =
        QRegularExpression(muster, QRegularExpression::DotMatchesEverythingOption).match(text);
    if (!treffer.hasMatch()) return std::nullopt;
    QString werte[2];
    for (std::size_t i = 0; i < nummern.size(); ++i)
        if (nummern[i] <= 2) werte[nummern[i] - 1] = teil(treffer.captured(static_cast<int>(i) + 1));
    const QString uebersetzt = QCoreApplication::translate(kKernKontext, vorlage);
    return nummern.size() > 1 ? uebersetzt.arg(werte[0], werte[1]) : uebersetzt.arg(werte[0]);
}

// A list of quoted file names, as in the message about several files.
QString dateiliste(const QString& text) {
    for (const char* vorlage : {kAufzaehlungEnde, kAufzaehlung, kDateiname})
        if (auto t = nachVorlage(text, vorlage, dateiliste)) return *t;
    return text; // a file's name is the same in every language
}

} // namespace

QString linkHinweisAnhaengen(const QString& meldung, const std::filesystem::path& ordner,
                             const std::string& name) {
    const auto link = verweigerterLink(ordner, name);
    if (!link) return meldung;
    return QCoreApplication::translate(kKernKontext, kLinkHinweis)
        .arg(meldung, QString::fromStdString(*link));
}

Sprache gespeicherteSprache() {
    return fensterEinstellungen().value(QLatin1String(kSchluessel)).toString() == QLatin1String(kEnglischCode)
               ? Sprache::englisch
               : Sprache::deutsch;
}

Sprache aktuelleSprache() {
    return QCoreApplication::instance()->findChild<QTranslator*>(QString::fromLatin1(kSpielUebersetzung),
                                                                 Qt::FindDirectChildrenOnly)
               ? Sprache::englisch
               : Sprache::deutsch;
}

void spracheSetzen(Sprache s, bool merken) {
    for (auto* u : QCoreApplication::instance()->findChildren<QTranslator*>(Qt::FindDirectChildrenOnly)) {
        if (u->objectName() != QLatin1String(kUebersetzerName) &&
            u->objectName() != QLatin1String(kSpielUebersetzung))
            continue;
        QCoreApplication::removeTranslator(u);
        delete u;
    }
    const Sprachdaten d = daten(s);
    const QLocale system = QLocale::system();
    QLocale::setDefault(system.language() == d.sprache ? system : QLocale(d.sprache, d.land));
    if (d.qt) installieren(QString::fromLatin1(d.qt), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (d.spiel) installieren(QString::fromLatin1(d.spiel), QString(), kSpielUebersetzung);
    if (merken)
        fensterEinstellungen().setValue(QLatin1String(kSchluessel), s == Sprache::englisch
                                                                        ? QLatin1String(kEnglischCode)
                                                                        : QLatin1String("de"));
}

QString kernText(const QString& text) {
    const QString fest = QCoreApplication::translate(kKernKontext, text.toUtf8().constData());
    if (fest != text) return fest;
    const Teil gleich = [](const QString& w) { return w; };
    if (auto t = nachVorlage(text, kLinkHinweis, kernText)) return *t; // a message, then the link's sentence
    if (auto t = nachVorlage(text, kSchreibfehlerMehrere, dateiliste)) return *t;
    for (const char* vorlage :
         {kSchreibfehler, kPunkteText, kStaerkeStatustext, kAngabeUnbekannt, kZeileUnlesbar,
          kZeileAbgeschnitten, kAngabeFehlt, kZugVerboten, kErgebnisFalsch, kPartieUnlesbar,
          kTippHennenGewinnen, kTippFuechseGewinnen})
        if (auto t = nachVorlage(text, vorlage, gleich)) return *t;
    return text;
}

} // namespace fuh
