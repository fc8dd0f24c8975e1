// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Fuchs und Hennen: starts the main window in the player's data folder.
#include <QApplication>
#include <QFile>
#include <filesystem>
#include <system_error>

#include "game/partiedatei.h"
#include "ui/beendigung.h"
#include "ui/brett_fenster.h"
#include "ui/datenordner.h"
#include "ui/meldung.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    fuh::BrettFenster::anwendungEinrichten(app);
    fuh::signaleBeendenLassen(app);

    // The game runs in its data folder and keeps its files in the current directory.
    const std::filesystem::path ordner = fuh::datenordner();
    std::error_code fehler;
    std::filesystem::create_directories(ordner, fehler);
    if (!fehler) std::filesystem::current_path(ordner, fehler);
    if (fehler) {
        fuh::meldungZeigen(nullptr, QMessageBox::Critical,
                           QCoreApplication::translate("main", "Der Datenordner %1 ist nicht nutzbar: %2")
                               .arg(QFile::decodeName(QByteArray::fromStdString(ordner.string())),
                                    QString::fromLocal8Bit(fehler.message().c_str())));
        return 1;
    }

    fuh::BrettFenster fenster(std::filesystem::current_path());
    fenster.show();
    fenster.fortsetzenAnbieten(fuh::partieDateiStandard());
    if (fuh::beendenVerlangt()) return 0; // ended while asking; the window keeps the game as it goes
    return app.exec();
}
