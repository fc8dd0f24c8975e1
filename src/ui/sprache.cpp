// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/sprache.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <array>

#include "dateischicht/satzdatei.h"
#include "ui/brett_fenster.h"

namespace fuh {

namespace {

// Adding a language: its translation file, its guide, and one line here.
constexpr std::array<Sprache, 2> kSprachen = {{
    {"de", "&Deutsch", QLocale::German, QLocale::Germany, "qtbase_de", "qrc:/hilfe/ratgeber.html"},
    {"en", "&English", QLocale::English, QLocale::UnitedStates, nullptr, "qrc:/hilfe/ratgeber_en.html"},
}};

constexpr const char* kKernKontext = "Kern"; // where the translation tools file the core's marked texts
constexpr const char* kSchluessel = "sprache";
constexpr const char* kUebersetzerName = "fuh_uebersetzung"; // the translators this file installed
constexpr const char* kSpielUebersetzung = "fuh_spiel";      // of them, the game's own

QTranslator* installieren(const QString& datei, const QString& ordner, const char* name) {
    auto* u = new QTranslator(QCoreApplication::instance());
    u->setObjectName(QString::fromLatin1(name));
    if (u->load(datei, ordner)) {
        QCoreApplication::installTranslator(u);
        return u;
    }
    delete u;
    return nullptr;
}

const Sprache& deutsch() {
    return kSprachen.front();
}

} // namespace

std::span<const Sprache> sprachen() {
    return kSprachen;
}

QString uebersetzungsdatei(const Sprache& s) {
    if (&s == &deutsch()) return {};
    return QStringLiteral(":/i18n/fuchs-und-hennen_") + QLatin1String(s.code);
}

const Sprache& sprache(const QString& code) {
    for (const Sprache& s : kSprachen)
        if (code == QLatin1String(s.code)) return s;
    return deutsch();
}

const Sprache& gespeicherteSprache() {
    return sprache(fensterEinstellungen().value(QLatin1String(kSchluessel)).toString());
}

const Sprache& aktuelleSprache() {
    const auto* u = QCoreApplication::instance()->findChild<QTranslator*>(
        QString::fromLatin1(kSpielUebersetzung), Qt::FindDirectChildrenOnly);
    // The translator knows the language it was loaded for.
    return u ? sprache(u->property(kSchluessel).toString()) : deutsch();
}

void spracheSetzen(const Sprache& s, bool merken) {
    for (auto* u : QCoreApplication::instance()->findChildren<QTranslator*>(Qt::FindDirectChildrenOnly)) {
        if (u->objectName() != QLatin1String(kUebersetzerName) &&
            u->objectName() != QLatin1String(kSpielUebersetzung))
            continue;
        QCoreApplication::removeTranslator(u);
        delete u;
    }
    const QLocale system = QLocale::system();
    QLocale::setDefault(system.language() == s.sprache ? system : QLocale(s.sprache, s.land));
    if (s.qt)
        installieren(QString::fromLatin1(s.qt), QLibraryInfo::path(QLibraryInfo::TranslationsPath),
                     kUebersetzerName);
    if (const QString datei = uebersetzungsdatei(s); !datei.isEmpty())
        if (auto* u = installieren(datei, QString(), kSpielUebersetzung))
            u->setProperty(kSchluessel, QLatin1String(s.code));
    if (merken) fensterEinstellungen().setValue(QLatin1String(kSchluessel), QLatin1String(s.code));
}

QString uebersetzt(Vorlage v, const QStringList& werte) {
    std::vector<std::string> utf8;
    for (const QString& w : werte)
        utf8.push_back(w.toStdString());
    const QString vorlageText = QCoreApplication::translate(kKernKontext, vorlage(v));
    return QString::fromStdString(einsetzen(vorlageText.toStdString(), utf8));
}

QString uebersetzt(const Text& text) {
    if (!text.vorlage()) return QString::fromStdString(text.wort()); // the same in every language
    QStringList werte;
    for (const Text& w : text.werte())
        werte << uebersetzt(w);
    return uebersetzt(*text.vorlage(), werte);
}

QString linkHinweisAnhaengen(const QString& meldung, const std::filesystem::path& ordner,
                             const std::string& name) {
    const auto link = verweigerterLink(ordner, name);
    if (!link) return meldung;
    return uebersetzt(Vorlage::linkHinweis, {meldung, QString::fromStdString(*link)});
}

} // namespace fuh
