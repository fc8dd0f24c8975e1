// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/datenordner.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>

#include "dateischicht/benutzerordner.h"

namespace fuh {

namespace {

constexpr const char* kKontext = "datenordner";
constexpr const char* kEinstellungsdatei = "fenster.conf";

QString text(const char* quelle) {
    return QCoreApplication::translate(kKontext, quelle);
}

QString pfadText(const std::filesystem::path& p) {
    return QFile::decodeName(QByteArray::fromStdString(p.string()));
}

// fenster.conf goes to a private temporary folder that disappears with the program.
void nurFuerDiesenLauf() {
    static QTemporaryDir ersatz;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ersatz.path());
}

} // namespace

std::filesystem::path datenordner() {
    if (const auto basis = xdgOrdner("XDG_DATA_HOME", ".local/share")) return *basis / kProgrammordner;
    return std::filesystem::current_path(); // nowhere else to go: play where started
}

QString ordnerGrund(const datei::Ordner& o) {
    const QString stelle = pfadText(o.stelle);
    switch (o.grund) {
    case datei::Ordnergrund::keiner:
        break;
    case datei::Ordnergrund::fehlt:
        return text(QT_TRANSLATE_NOOP("datenordner", "%1 fehlt")).arg(stelle);
    case datei::Ordnergrund::keinOrdner:
        return text(QT_TRANSLATE_NOOP("datenordner", "%1 ist kein Ordner")).arg(stelle);
    case datei::Ordnergrund::fremderLink:
        return text(QT_TRANSLATE_NOOP("datenordner", "%1 ist eine symbolische Verknüpfung, die ein anderer "
                                                     "Benutzer angelegt oder verändert haben kann"))
            .arg(stelle);
    case datei::Ordnergrund::fremderOrdner:
        return text(QT_TRANSLATE_NOOP("datenordner", "%1 gehört einem anderen Benutzer und liegt in einem "
                                                     "Ordner, in den andere schreiben dürfen"))
            .arg(stelle);
    case datei::Ordnergrund::offenerOrdner:
        return text(QT_TRANSLATE_NOOP("datenordner", "in den Ordner %1 dürfen andere Benutzer schreiben"))
            .arg(stelle);
    case datei::Ordnergrund::schleife:
        return text(QT_TRANSLATE_NOOP("datenordner", "%1: zu viele symbolische Verknüpfungen")).arg(stelle);
    case datei::Ordnergrund::systemfehler:
        return QStringLiteral("%1: %2").arg(stelle, QString::fromLocal8Bit(std::strerror(o.fehlernummer)));
    }
    return QString();
}

QStringList fensterEinstellungenEinrichten() {
    const auto basis = xdgOrdner("XDG_CONFIG_HOME", ".config");
    if (!basis) {
        nurFuerDiesenLauf();
        return {text(QT_TRANSLATE_NOOP("datenordner", "Es gibt keinen Heimatordner (HOME): Fenstergröße, "
                                                      "Tempo und Sprache werden nicht gespeichert."))};
    }
    const datei::Ordner o = datei::ordnerOeffnen(*basis / kProgrammordner, true);
    if (!o) {
        nurFuerDiesenLauf();
        return {text(QT_TRANSLATE_NOOP("datenordner", "Der Ordner für fenster.conf ist nicht nutzbar: %1. "
                                                      "Fenstergröße, Tempo und Sprache werden nicht "
                                                      "gespeichert."))
                    .arg(ordnerGrund(o))};
    }
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, pfadText(*basis));
    struct stat st {};
    if (::fstatat(o.fd.fd(), kEinstellungsdatei, &st, 0) != 0) return {}; // none yet
    if (!S_ISREG(st.st_mode)) {
        nurFuerDiesenLauf();
        return {text(QT_TRANSLATE_NOOP("datenordner", "%1 ist keine gewöhnliche Datei; Fenstergröße, Tempo "
                                                      "und Sprache werden nicht gespeichert."))
                    .arg(pfadText(o.stelle / kEinstellungsdatei))};
    }
    if (st.st_size <= kFensterEinstellungenHoechstens) return {};
    // Far larger than the few lines the game writes: not read (it would take long), but started afresh.
    const QString warnung =
        text(QT_TRANSLATE_NOOP("datenordner", "%1 ist größer als %2 KB und wird nicht gelesen; Fenstergröße, "
                                              "Tempo und Sprache beginnen neu."))
            .arg(pfadText(o.stelle / kEinstellungsdatei))
            .arg(kFensterEinstellungenHoechstens / 1024);
    if (::unlinkat(o.fd.fd(), kEinstellungsdatei, 0) != 0) nurFuerDiesenLauf();
    return {warnung};
}

} // namespace fuh
