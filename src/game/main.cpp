// Fuchs und Hennen: starts the main window in the player's data folder.
#include <QApplication>
#include <QMessageBox>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "game/brett_fenster.h"

namespace {

// FUH_DATA_DIR if given, else $XDG_DATA_HOME/fuchs-und-hennen (default ~/.local/share/fuchs-und-hennen).
std::filesystem::path datenordner() {
    if (const char* d = std::getenv("FUH_DATA_DIR"); d && *d) return d;
    std::filesystem::path basis;
    if (const char* x = std::getenv("XDG_DATA_HOME"); x && *x)
        basis = x;
    else if (const char* h = std::getenv("HOME"); h && *h)
        basis = std::filesystem::path(h) / ".local" / "share";
    else
        return std::filesystem::current_path();
    return basis / "fuchs-und-hennen";
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    fuh::BrettFenster::anwendungEinrichten(app);

    // The game keeps its files in the current directory.
    const std::filesystem::path ordner = datenordner();
    std::error_code fehler;
    std::filesystem::create_directories(ordner, fehler);
    std::filesystem::current_path(ordner, fehler);
    if (fehler) {
        QMessageBox::critical(nullptr, QString::fromUtf8(fuh::kTitel),
                              QStringLiteral("Der Datenordner %1 ist nicht nutzbar: %2")
                                  .arg(QString::fromStdString(ordner.string()),
                                       QString::fromLocal8Bit(fehler.message().c_str())));
        return 1;
    }

    fuh::BrettFenster fenster(std::filesystem::current_path());
    fenster.show();
    return app.exec();
}
