#include "ui/brett_fenster.h"

#include <QAction>
#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QLayout>
#include <QLibraryInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>
#include <QTime>
#include <QTranslator>
#include <algorithm>
#include <utility>
#include <vector>

#include "game/spiel.h"
#include "ui/brett_flaeche.h"
#include "ui/einst_dialog.h"
#include "ui/highscore_fenster.h"
#include "ui/hilfe_fenster.h"
#include "ui/info_win.h"
#include "ui/stat_form.h"
#include "ui/titel.h"

namespace fuh {

namespace {

uint32_t sekundenSeitMitternacht() {
    return static_cast<uint32_t>(QTime::currentTime().msecsSinceStartOfDay() / 1000);
}

// Places the top-level window `w` to the right of `nachbar`, or to its left where the screen ends.
void nebenStellen(QWidget* w, const QWidget* nachbar) {
    constexpr int kAbstand = 12;
    w->adjustSize();
    const QRect n = nachbar->frameGeometry();
    QPoint p(n.right() + 1 + kAbstand, n.top());
    if (const QScreen* bildschirm = nachbar->screen()) {
        const QRect frei = bildschirm->availableGeometry();
        if (p.x() + w->width() > frei.right() && n.left() - kAbstand - w->width() >= frei.left())
            p.setX(n.left() - kAbstand - w->width());
    }
    w->move(p);
}

void hervorholen(QWidget* w) {
    w->show();
    w->raise();
    w->activateWindow();
}

// Windows that exist only once: asking again brings the open one forward, else `neu` makes one.
template <class W, class Neu> void einmalZeigen(QPointer<W>& offen, Neu neu) {
    if (!offen) offen = neu();
    hervorholen(offen);
}

// Windows that show the files as they are now: a fresh one from `neu` replaces the open one.
template <class W, class Neu> void neuZeigen(QPointer<W>& offen, Neu neu) {
    if (offen) offen->close();
    offen = neu();
    hervorholen(offen);
}

} // namespace

BrettFenster::BrettFenster(std::filesystem::path ordner, QWidget* parent)
    : BrettFenster(std::move(ordner), sekundenSeitMitternacht(), parent) {}

BrettFenster::BrettFenster(std::filesystem::path ordner, uint32_t startzeit, QWidget* parent)
    : QMainWindow(parent) {
    setObjectName(QStringLiteral("brett"));
    setWindowTitle(QString::fromUtf8(kTitel));

    brett_ = new BrettFlaeche([this] { return spiel_->ziehbar(); }, this);
    setCentralWidget(brett_);
    menueAnlegen();
    statusleisteAnlegen();
    layout()->setSizeConstraint(QLayout::SetFixedSize);

    spiel_ = std::make_unique<Spiel>(*this, zufall_, std::move(ordner));
    connect(brett_, &BrettFlaeche::figurGedrueckt, this,
            [this](int k, Maustaste taste) { spiel_->figur_MouseDown(k, taste); });
    connect(brett_, &BrettFlaeche::abgelegt, this, [this](int t, int k) { spiel_->platz_DragDrop(t, k); });

    spiel_->Form_Load(startzeit);
    bilderAbgleichen();

    timer1_.setInterval(500);
    connect(&timer1_, &QTimer::timeout, this, &BrettFenster::Timer1_Timer);
    timer1_.start();
}

BrettFenster::~BrettFenster() = default;

void BrettFenster::anwendungEinrichten(QApplication& app) {
    QApplication::setApplicationName(QString::fromUtf8(kTitel));
    QApplication::setApplicationDisplayName(QString::fromUtf8(kTitel));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.FuchsUndHennen"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/bilder/app.svg")));
    auto* uebersetzung = new QTranslator(&app);
    if (uebersetzung->load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(uebersetzung);
    else
        delete uebersetzung;
}

void BrettFenster::menueAnlegen() {
    auto aktion = [this](QMenu* menue, const char* name, const QString& text, auto slot) {
        QAction* a = menue->addAction(text);
        a->setObjectName(QString::fromLatin1(name));
        connect(a, &QAction::triggered, this, slot);
    };

    QMenu* spielMenue = menuBar()->addMenu(QStringLiteral("&Spiel"));
    spielMenue->setObjectName(QStringLiteral("spiel"));
    // A computer game does not return to the event loop until it is over, so the window is painted
    // whole before it starts: the menu has already been taken off the screen, and its picture must
    // not stay over the board.
    aktion(spielMenue, "start", QStringLiteral("&Start"), [this] {
        ganzMalen();
        spiel_->start_Click();
    });
    aktion(spielMenue, "Neu", QStringLiteral("&Neu"), [this] {
        ganzMalen();
        spiel_->Neu_Click();
    });
    spielMenue->addSeparator();
    aktion(spielMenue, "Beenden", QStringLiteral("&Beenden"), [] { QApplication::quit(); });

    // A command right on the menu bar, as the game has always had it.
    QAction* einstellungen = menuBar()->addAction(QStringLiteral("&Einstellungen"));
    einstellungen->setObjectName(QStringLiteral("Einstellungen"));
    connect(einstellungen, &QAction::triggered, this, &BrettFenster::einstellungenZeigen);

    QMenu* ergebnisse = menuBar()->addMenu(QStringLiteral("E&rgebnisse"));
    ergebnisse->setObjectName(QStringLiteral("erg"));
    aktion(ergebnisse, "Stt", QStringLiteral("&Statistik"), [this] { statistikZeigen(); });
    aktion(ergebnisse, "highfu", QStringLiteral("Highscore &Fuchs"),
           [this] { highscoreZeigen(Seite::Fuchs); });
    aktion(ergebnisse, "highhe", QStringLiteral("Highscore &Hennen"),
           [this] { highscoreZeigen(Seite::Hennen); });

    QMenu* hilfe = menuBar()->addMenu(QStringLiteral("&Hilfe"));
    hilfe->setObjectName(QStringLiteral("hilfe"));
    aktion(hilfe, "help", QStringLiteral("&Hilfe"), [this] {
        // The help always opens at its first topic, also when it was left open elsewhere.
        einmalZeigen(hilfe_, [this] { return new HilfeFenster(this); });
        hilfe_->zumAnfang();
    });
    aktion(hilfe, "info", QStringLiteral("&Info"),
           [this] { einmalZeigen(info_, [this] { return new InfoWin(this); }); });
}

void BrettFenster::ganzMalen() {
    // Painting processes no events. The main window's own repaint leaves the board on the screen as
    // it was, so each part is painted itself.
    for (QWidget* teil : {static_cast<QWidget*>(menuBar()), static_cast<QWidget*>(brett_),
                          static_cast<QWidget*>(statusBar())})
        teil->repaint();
}

void BrettFenster::statusleisteAnlegen() {
    QStatusBar* leiste = statusBar();
    leiste->setObjectName(QStringLiteral("StatusBar1"));
    leiste->setSizeGripEnabled(false);
    const std::array<int, 3> anteile = {2, 1, 1};
    for (size_t i = 0; i < panels_.size(); ++i) {
        auto* label = new QLabel(leiste);
        label->setObjectName(QStringLiteral("panel%1").arg(i + 1));
        label->setMinimumWidth(1); // long texts must not widen the fixed window
        leiste->addWidget(label, anteile[i]);
        panels_[i] = label;
    }
}

void BrettFenster::bilderAbgleichen() {
    const Figurbilder& b = spiel_->bilder();
    for (int k = 0; k < kFiguren; ++k) {
        brett_->figurSetzen(k, b.left[k], b.top[k]);
        brett_->figurZeigen(k, b.sichtbar[k]);
    }
}

void BrettFenster::Timer1_Timer() {
    timer1_.stop();
    spiel_->Timer1_Timer();
    timer1_.start();
}

void BrettFenster::figurBewegt(int k, int left, int top) {
    brett_->figurSetzen(k, left, top);
}

void BrettFenster::figurSichtbar(int k, bool sichtbar) {
    brett_->figurZeigen(k, sichtbar);
}

void BrettFenster::figurenZiehbar(bool ziehbar) {
    if (!ziehbar) brett_->ziehenAbbrechen();
}

void BrettFenster::hinweis(Hinweis h, bool sichtbar) {
    brett_->hinweisZeigen(h, sichtbar);
}

void BrettFenster::status(Statusfeld feld, const std::string& text) {
    panel(static_cast<int>(feld))->setText(QString::fromStdString(text));
}

void BrettFenster::meldung(const std::string& text) {
    // The game is in the middle of a procedure: no tick may enter it while the message is open.
    const bool tickte = timer1_.isActive();
    timer1_.stop();
    QMessageBox box(QMessageBox::NoIcon, QString::fromUtf8(kTitel), QString::fromStdString(text),
                    QMessageBox::Ok, this);
    box.exec();
    ganzMalen(); // the game may go on without the event loop: the box must not leave a hole behind
    if (tickte) timer1_.start();
}

void BrettFenster::oeffnen(Fenster f) {
    highscoreNachDemSpiel(f == Fenster::highf ? Seite::Fuchs : Seite::Hennen);
}

void BrettFenster::einstellungenZeigen() {
    einmalZeigen(einst_, [this] {
        return new EinstDialog(
            spiel_->oeffentlich().einst, spiel_->ordner(),
            [this](Statusfeld feld, const QString& text) { status(feld, text.toStdString()); },
            [this](const Einstellungen& e) { spiel_->einstellungenUebernehmen(e); }, this);
    });
}

void BrettFenster::statistikZeigen() {
    neuZeigen(stat_, [this] { return new StatForm(spiel_->ordner(), this); });
}

std::vector<HighscoreFenster*> BrettFenster::wartendeListen(Seite seite) const {
    std::vector<HighscoreFenster*> wartend;
    for (HighscoreFenster* w : findChildren<HighscoreFenster*>(Qt::FindDirectChildrenOnly))
        if (w->liste().seite() == seite && !w->isHidden() && w->liste().hatNeueZeile()) wartend.push_back(w);
    return wartend;
}

void BrettFenster::highscoreZeigen(Seite seite) {
    // A list whose new row still waits for its name is never replaced: a fresh one would not have it.
    const std::vector<HighscoreFenster*> wartend = wartendeListen(seite);
    for (HighscoreFenster* w : wartend)
        hervorholen(w);
    if (!wartend.empty()) return;
    // A fresh window also enters a just finished game.
    neuZeigen(highscore_[seite == Seite::Fuchs ? 0 : 1], [this, seite] {
        return new HighscoreFenster(seite, spiel_->oeffentlich(), spiel_->ordner(), this);
    });
}

void BrettFenster::highscoreNachDemSpiel(Seite seite) {
    QPointer<HighscoreFenster>& offen = highscore_[seite == Seite::Fuchs ? 0 : 1];
    const std::vector<HighscoreFenster*> wartend = wartendeListen(seite);
    if (offen && std::find(wartend.begin(), wartend.end(), offen.data()) == wartend.end()) offen->close();
    offen = new HighscoreFenster(seite, spiel_->oeffentlich(), spiel_->ordner(), this);
    // The entry of an earlier game still waits for its name: both stay open, side by side.
    if (!wartend.empty()) nebenStellen(offen, wartend.back());
    hervorholen(offen);
}

} // namespace fuh
