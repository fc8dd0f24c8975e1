// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Fuchs und Hennen: starts the main window in the player's data folder.
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <memory>
#include <thread>
#include <unistd.h>

#include <cerrno>

#include "game/partiedatei.h"
#include "game/spiel.h"
#include "ui/beendigung.h"
#include "ui/brett_fenster.h"
#include "ui/datenordner.h"
#include "ui/meldung.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    // Signals first: from here on a logout or `kill` ends the program as "Beenden" does.
    fuh::signaleBeendenLassen(app);
    // A game file given on the command line (a double click in a file manager), named before the
    // program enters its data folder.
    const QStringList args = QCoreApplication::arguments();
    const QString partie = args.size() > 1 ? QFileInfo(args.at(1)).absoluteFilePath() : QString();
    // The window's own settings (and with them the language) come from a checked folder only.
    const QStringList warnungen = fuh::fensterEinstellungenEinrichten();
    fuh::BrettFenster::anwendungEinrichten(app);
    for (const QString& w : warnungen)
        fuh::meldungZeigen(nullptr, QMessageBox::Warning, w);

    // The game runs in its data folder and keeps its files in the current directory. The folder is
    // entered through the descriptor that was checked, never by its name again.
    const std::filesystem::path ordner = fuh::datenordner();
    fuh::datei::Ordner daten = fuh::datei::ordnerOeffnen(ordner, true);
    if (daten && ::fchdir(daten.fd.fd()) != 0) {
        daten.grund = fuh::datei::Ordnergrund::systemfehler;
        daten.fehlernummer = errno;
        daten.fd = fuh::datei::Deskriptor();
    }
    if (!daten) {
        fuh::meldungZeigen(
            nullptr, QMessageBox::Critical,
            QCoreApplication::translate("main", "Der Datenordner %1 ist nicht nutzbar: %2")
                .arg(QFile::decodeName(QByteArray::fromStdString(ordner.string())), fuh::ordnerGrund(daten)));
        return 1;
    }

    fuh::BrettFenster fenster(std::filesystem::current_path());
    fenster.show();
    // The endgame tables (built by `tafel`) are read in the background; until then, and without them,
    // the Meister searches. The thread is joined before the window goes.
    std::jthread tafeln([&fenster] {
        const auto ordner = fuh::tafelOrdner();
        if (!ordner) return;
        auto geladen = std::make_shared<const fuh::Endspieltafeln>(fuh::tafelnLaden(*ordner));
        QMetaObject::invokeMethod(
            &fenster, [&fenster, geladen] { fenster.spiel().endspieltafeln(*geladen); },
            Qt::QueuedConnection);
    });
    fenster.fortsetzenAnbieten(fuh::partieOrdnerStandard().value_or(std::filesystem::path()));
    if (fuh::beendenVerlangt()) return 0; // ended while asking; the window keeps the game as it goes
    if (!partie.isEmpty()) fenster.partieOeffnen(QFile::encodeName(partie).toStdString());
    return app.exec();
}
