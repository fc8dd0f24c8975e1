// Fuchs und Hennen: starts the main window with the player's data folder.
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QStandardPaths>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <unistd.h>

#include "dialogs/titel.h"
#include "game/brett_fenster.h"

namespace {

// The per-user data folder: $XDG_DATA_HOME/fuchs-und-hennen (normally ~/.local/share/fuchs-und-hennen).
std::filesystem::path datenordner() {
    const QString basis = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (basis.isEmpty()) return std::filesystem::current_path();
    return std::filesystem::path(QFile::encodeName(basis).toStdString()) / "fuchs-und-hennen";
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    fuh::BrettFenster::anwendungEinrichten(app);

    // The game keeps its files in this folder; it must exist and be searchable.
    const std::filesystem::path ordner = datenordner();
    std::error_code fehler;
    std::filesystem::create_directories(ordner, fehler);
    if (!fehler && ::access(ordner.c_str(), X_OK) != 0) fehler.assign(errno, std::generic_category());
    if (fehler) {
        QMessageBox::critical(nullptr, QString::fromUtf8(fuh::kTitel),
                              QStringLiteral("Der Datenordner %1 ist nicht nutzbar: %2")
                                  .arg(QString::fromStdString(ordner.string()),
                                       QString::fromLocal8Bit(fehler.message().c_str())));
        return 1;
    }

    fuh::BrettFenster fenster(ordner);
    fenster.show();
    return app.exec();
}
