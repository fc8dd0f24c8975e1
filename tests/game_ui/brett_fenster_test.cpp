// The main window driven as a player would: menu commands, mouse drags, timer ticks, message boxes.
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "board/bildlage.h"
#include "board/regeln.h"
#include "board/sprung.h"
#include "dialogs/einst_dialog.h"
#include "dialogs/highscore_fenster.h"
#include "dialogs/stat_form.h"
#include "game/brett_fenster.h"
#include "game/brett_flaeche.h"
#include "game/spiel.h"

using namespace fuh;

namespace {

constexpr uint32_t kStartzeit = 36000; // fixed seed: every run plays the same game

QPoint mitte(int s) {
    return {(platzLeft(s) + kBildgroesse / 2) / kTwipsProPixel,
            (platzTop(s) + kBildgroesse / 2) / kTwipsProPixel};
}

// Accepts every message box that opens and remembers its text.
class Antworter {
  public:
    Antworter() {
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                texte.push_back(box->text());
                box->accept();
            }
        });
        timer_.start(5);
    }
    std::vector<QString> texte;

  private:
    QTimer timer_;
};

struct Aufbau {
    QTemporaryDir ordner;
    std::unique_ptr<BrettFenster> fenster;

    // `ini`: the settings file written before the window starts (PC first), or none.
    explicit Aufbau(std::optional<std::vector<char>> ini = std::nullopt) {
        if (ini) {
            std::ofstream aus(pfad() / "QZ.INI", std::ios::binary);
            aus.write(ini->data(), static_cast<std::streamsize>(ini->size()));
        }
        fenster = std::make_unique<BrettFenster>(pfad(), kStartzeit);
        fenster->timer1().stop(); // the tests tick by hand
        fenster->show();
    }
    std::filesystem::path pfad() const { return ordner.path().toStdString(); }
    Spiel& spiel() { return fenster->spiel(); }
    BrettFlaeche* brett() { return fenster->brett(); }
    void aktion(const char* name) {
        auto* a = fenster->findChild<QAction*>(QString::fromLatin1(name));
        QVERIFY2(a, name);
        a->trigger();
    }
    QString panel(int n) { return fenster->findChild<QLabel*>(QStringLiteral("panel%1").arg(n))->text(); }
    bool hinweisSichtbar(const char* name) {
        return !fenster->findChild<QLabel*>(QString::fromLatin1(name))->isHidden();
    }

    // A left-button drag from the centre of square `von` to `ziel` (board coordinates).
    void ziehe(int von, QPoint ziel) {
        const QPoint start = mitte(von);
        QTest::mousePress(brett(), Qt::LeftButton, Qt::NoModifier, start);
        for (int i = 1; i <= 4; ++i)
            QTest::mouseMove(brett(), start + (ziel - start) * i / 4);
        QTest::mouseRelease(brett(), Qt::LeftButton, Qt::NoModifier, ziel);
    }
    void ziehe(int von, int nach) { ziehe(von, mitte(nach)); }
};

std::vector<char> ini(char pc) {
    return {pc, 0, 0, 0, 0, 0, 0, 0};
}

bool gleich(const Stellung& a, const Stellung& b) {
    return a.Feld == b.Feld && a.figurplatz == b.figurplatz;
}

// Every piece image stands where the game says, and shows or hides as the game says.
void bilderPruefen(Aufbau& a) {
    const Figurbilder& b = a.spiel().bilder();
    for (int k = 0; k < kFiguren; ++k) {
        const SvgBild* figur = a.brett()->figur(k);
        QCOMPARE(figur->pos(), QPoint(b.left[k] / kTwipsProPixel, b.top[k] / kTwipsProPixel));
        QCOMPARE(!figur->isHidden(), b.sichtbar[k]);
    }
}

std::vector<int> fuchsFelder(const Stellung& s) {
    std::vector<int> f;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (s.Feld[x][y] == fuchs) f.push_back(feldNummer(x, y));
    return f;
}

struct Zug {
    int von, nach;
};

// Fox moves the human may make now (PC plays the hens), jumps or plain steps.
std::vector<Zug> fuchszuege(const Stellung& s, bool spruenge) {
    std::vector<Zug> z;
    for (int von : fuchsFelder(s))
        for (int a = -1; a <= 1; ++a)
            for (int b = -1; b <= 1; ++b) {
                const int w = spruenge ? 2 : 1;
                const int x = feldX(von), y = feldY(von);
                if (!korrekt(x, y, a * w, b * w)) continue;
                if (korrekterZug(s, 1, x, y, x + a * w, y + b * w))
                    z.push_back({von, feldNummer(x + a * w, y + b * w)});
            }
    return z;
}

// Jumps the foxes would have on `feld`; a fox step that threatens two hens at once forces a jump.
int drohungen(const Brettfeld& feld) {
    int n = 0;
    for (int x = 0; x <= 6; ++x)
        for (int y = 0; y <= 6; ++y)
            if (feld[x][y] == fuchs)
                for (int a = -1; a <= 1; ++a)
                    for (int b = -1; b <= 1; ++b)
                        if (korrekt(x, y, 2 * a, 2 * b) && is2sprung(x, y, a, b, feld) != 0) ++n;
    return n;
}

// Plays fox steps against the computer's hens until a fox can jump; nullopt if none came up.
std::optional<Zug> bisZumSprung(Aufbau& a, Antworter& antworter) {
    for (int runde = 0; runde < 60 && a.spiel().ziehbar(); ++runde) {
        const auto spruenge = fuchszuege(a.spiel().stellung(), true);
        if (!spruenge.empty()) return spruenge.front();
        const auto schritte = fuchszuege(a.spiel().stellung(), false);
        if (schritte.empty()) return std::nullopt;
        // The step with the most threats; among equals one that changes from round to round.
        std::optional<Zug> bester;
        int besteWertung = -1;
        for (size_t i = 0; i < schritte.size(); ++i) {
            const Zug& z = schritte[(i + static_cast<size_t>(runde)) % schritte.size()];
            Brettfeld feld = a.spiel().stellung().Feld;
            feld[feldX(z.nach)][feldY(z.nach)] = fuchs;
            feld[feldX(z.von)][feldY(z.von)] = leer;
            if (const int w = drohungen(feld); w > besteWertung) {
                besteWertung = w;
                bester = z;
            }
        }
        a.ziehe(bester->von, bester->nach);
        if (a.spiel().pcZug() != 1) return std::nullopt;
        a.fenster->Timer1_Timer();
        if (!antworter.texte.empty()) return std::nullopt;
    }
    return std::nullopt;
}

} // namespace

class BrettFensterTest : public QObject {
    Q_OBJECT
  private slots:
    void startzustand();
    void neuEntsperrtUndStelltAuf();
    void hennenzugMitDerMausUndAntwort();
    void ablegenNurAufFreienPlaetzen();
    void gesperrtOderRechtsBewegtNichts();
    void pcHennenZiehenNachNeuZuerst();
    void fuchssprungMitRechtsklickAbschliessen();
    void verpassterSprungWirdGemeldet();
    void ganzePartieDesPc();
    void fensterAusDemMenue();
};

void BrettFensterTest::startzustand() {
    Aufbau a;
    QCOMPARE(a.fenster->windowTitle(), QStringLiteral("Fuchs und Hennen"));
    QVERIFY(std::filesystem::exists(a.pfad() / "QZ.INI"));
    QCOMPARE(std::filesystem::file_size(a.pfad() / "QZ.INI"), 0u);
    QCOMPARE(a.panel(1), QStringLiteral("PC spielt Fuchs"));
    QCOMPARE(a.panel(2), QStringLiteral("Spielstärke 1"));
    for (const char* h : {"f_zug", "h_zug", "spr_msg", "speichern_msg"})
        QVERIFY2(!a.hinweisSichtbar(h), h);
    QVERIFY(!a.spiel().ziehbar());

    const Stellung& s = a.spiel().stellung();
    QCOMPARE((std::set<int>{s.figurplatz[0], s.figurplatz[1]}), (std::set<int>{16, 18}));
    const std::set<int> hennen(s.figurplatz.begin() + 2, s.figurplatz.begin() + kFiguren);
    QCOMPARE(hennen,
             (std::set<int>{21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 37, 38, 39, 44, 45, 46}));
    bilderPruefen(a);
    for (int t = 0; t < kFelder; ++t)
        QCOMPARE(a.brett()->platz(t)->geometry(), QRect(platzLeft(t) / 15, platzTop(t) / 15, 32, 32));

    // The board must fit whole into the fixed window.
    QCOMPARE(a.brett()->size(), QSize(400, 400));
    QVERIFY(a.fenster->minimumSize() == a.fenster->maximumSize());
}

void BrettFensterTest::neuEntsperrtUndStelltAuf() {
    Aufbau a;
    a.aktion("Neu");
    QVERIFY(a.spiel().ziehbar());
    const auto sta = std::filesystem::path(a.pfad()) / "QZ.sta";
    auto gestartet = [&] {
        std::ifstream ein(sta, std::ios::binary);
        std::vector<char> b((std::istreambuf_iterator<char>(ein)), std::istreambuf_iterator<char>());
        return b.size() >= 30 ? (static_cast<unsigned char>(b[28]) | static_cast<unsigned char>(b[29]) << 8)
                              : -1;
    };
    QCOMPARE(gestartet(), 1);
    const Stellung anfang = a.spiel().stellung();
    a.ziehe(24, 17);
    a.fenster->Timer1_Timer();
    QVERIFY(!gleich(a.spiel().stellung(), anfang));

    a.aktion("start");
    QVERIFY(gleich(a.spiel().stellung(), anfang));
    QVERIFY(a.spiel().ziehbar());
    bilderPruefen(a);
    QCOMPARE(a.spiel().spielzug(), 0);
    QCOMPARE(gestartet(), 2);
}

void BrettFensterTest::hennenzugMitDerMausUndAntwort() {
    Aufbau a;
    a.aktion("Neu");
    const auto fuechse = fuchsFelder(a.spiel().stellung());

    a.ziehe(24, 17);
    QCOMPARE(a.spiel().stellung().Feld[3][2], henne);
    QCOMPARE(a.spiel().stellung().Feld[3][3], leer);
    QCOMPARE(a.panel(3), QStringLiteral("Punkte: 237"));
    QCOMPARE(a.spiel().pcZug(), 2);
    bilderPruefen(a);
    QVERIFY(!a.brett()->ziehtGerade());

    a.fenster->Timer1_Timer();
    QVERIFY(fuchsFelder(a.spiel().stellung()) != fuechse);
    QCOMPARE(a.spiel().pcZug(), 0);
    QVERIFY(!a.hinweisSichtbar("f_zug"));
    bilderPruefen(a); // the fox's slide ended on its square

    // Hens never move backwards: try every hen with a free square below it.
    const Stellung vorher = a.spiel().stellung();
    int versucht = 0;
    for (int s = 0; s < kFelder; ++s) {
        const int x = feldX(s), y = feldY(s);
        if (vorher.Feld[x][y] != henne || !aufKreuz(x, y + 1) || vorher.Feld[x][y + 1] != leer) continue;
        a.ziehe(s, feldNummer(x, y + 1));
        QVERIFY(gleich(a.spiel().stellung(), vorher));
        ++versucht;
    }
    QVERIFY(versucht > 0);
    a.ziehe(feldNummer(0, 3), 0); // off the cross
    QVERIFY(gleich(a.spiel().stellung(), vorher));
    QCOMPARE(a.spiel().pcZug(), 0);
}

void BrettFensterTest::ablegenNurAufFreienPlaetzen() {
    Aufbau a;
    a.aktion("Neu");
    QSignalSpy abgelegt(a.brett(), &BrettFlaeche::abgelegt);
    const int k = static_cast<int>(
        std::find(a.spiel().stellung().figurplatz.begin(), a.spiel().stellung().figurplatz.end(), 24) -
        a.spiel().stellung().figurplatz.begin());

    a.ziehe(24, 16);                                  // onto the fox's image
    a.ziehe(24, 24);                                  // back onto its own image
    a.ziehe(24, QPoint(100, 60));                     // the board between targets
    a.ziehe(24, QPoint(a.brett()->width() + 30, 60)); // outside the board
    QCOMPARE(abgelegt.count(), 0);
    QVERIFY(!a.brett()->ziehtGerade());

    a.ziehe(24, mitte(17) + QPoint(14, -14)); // a corner of the target still counts
    QCOMPARE(abgelegt.count(), 1);
    QCOMPARE(abgelegt.at(0).at(0).toInt(), 17);
    QCOMPARE(abgelegt.at(0).at(1).toInt(), k);
    QCOMPARE(a.spiel().stellung().figurplatz[k], 17);

    // No stray floating copy survives the drags.
    const auto bilder = a.brett()->findChildren<SvgBild*>(Qt::FindDirectChildrenOnly);
    int sichtbar = 0;
    for (const SvgBild* b : bilder)
        sichtbar += b->isVisible() ? 1 : 0;
    QCOMPARE(sichtbar, kFiguren);
}

void BrettFensterTest::gesperrtOderRechtsBewegtNichts() {
    Aufbau a;
    const Stellung vorher = a.spiel().stellung();
    QSignalSpy gedrueckt(a.brett(), &BrettFlaeche::figurGedrueckt);
    QSignalSpy abgelegt(a.brett(), &BrettFlaeche::abgelegt);
    a.ziehe(24, 17);
    QVERIFY(gleich(a.spiel().stellung(), vorher));
    QCOMPARE(abgelegt.count(), 0);
    QCOMPARE(gedrueckt.count(), 1);

    // The right button reaches the game also while the pieces are locked.
    QTest::mouseClick(a.brett(), Qt::RightButton, Qt::NoModifier, mitte(16));
    QCOMPARE(gedrueckt.count(), 2);
    QCOMPARE(gedrueckt.at(1).at(1).toInt(), 2);
    QCOMPARE(a.spiel().stellung().figurplatz[gedrueckt.at(1).at(0).toInt()], 16);

    // Right-button drags never move a piece.
    a.aktion("Neu");
    QTest::mousePress(a.brett(), Qt::RightButton, Qt::NoModifier, mitte(24));
    QTest::mouseMove(a.brett(), mitte(17));
    QTest::mouseRelease(a.brett(), Qt::RightButton, Qt::NoModifier, mitte(17));
    QVERIFY(gleich(a.spiel().stellung(), vorher));
    QCOMPARE(abgelegt.count(), 0);
}

void BrettFensterTest::pcHennenZiehenNachNeuZuerst() {
    Aufbau a(ini(1));
    QCOMPARE(a.panel(1), QStringLiteral("PC spielt Hennen"));
    const Stellung anfang = a.spiel().stellung();
    a.aktion("Neu");
    int bewegt = 0;
    for (int s = 0; s < kFelder; ++s)
        bewegt += anfang.Feld[feldX(s)][feldY(s)] != a.spiel().stellung().Feld[feldX(s)][feldY(s)] ? 1 : 0;
    QCOMPARE(bewegt, 2);
    QVERIFY(a.spiel().ziehbar());
    QVERIFY(!a.hinweisSichtbar("h_zug"));
    bilderPruefen(a);
}

void BrettFensterTest::fuchssprungMitRechtsklickAbschliessen() {
    Aufbau a(ini(1));
    Antworter antworter;
    a.aktion("Neu");
    const auto sprung = bisZumSprung(a, antworter);
    QVERIFY2(sprung, "no jump came up");

    const int fuchsK = *figur_index(a.spiel().stellung(), sprung->von);
    int hennen = 0;
    for (int k = 2; k < kFiguren; ++k)
        hennen += a.brett()->figur(k)->isHidden() ? 0 : 1;
    a.ziehe(sprung->von, sprung->nach);
    QVERIFY(a.spiel().stellung().imSprung);
    QVERIFY(a.hinweisSichtbar("spr_msg"));
    QCOMPARE(a.spiel().pcZug(), 0); // the hens wait until the sequence is closed
    int danach = 0;
    for (int k = 2; k < kFiguren; ++k)
        danach += a.brett()->figur(k)->isHidden() ? 0 : 1;
    QCOMPARE(danach, hennen - 1);
    bilderPruefen(a);

    a.fenster->Timer1_Timer();
    QVERIFY(a.spiel().stellung().imSprung);

    QTest::mouseClick(a.brett(), Qt::RightButton, Qt::NoModifier, mitte(sprung->nach));
    QVERIFY(!a.spiel().stellung().imSprung);
    QVERIFY(!a.hinweisSichtbar("spr_msg"));
    QCOMPARE(a.spiel().pcZug(), 1);
    QCOMPARE(a.spiel().stellung().figurplatz[fuchsK], sprung->nach);

    const Stellung vorher = a.spiel().stellung();
    a.fenster->Timer1_Timer();
    QVERIFY(!gleich(a.spiel().stellung(), vorher));
    QVERIFY(antworter.texte.empty());
}

void BrettFensterTest::verpassterSprungWirdGemeldet() {
    Aufbau a(ini(1));
    Antworter antworter;
    a.aktion("Neu");
    const auto sprung = bisZumSprung(a, antworter);
    QVERIFY2(sprung, "no jump came up");
    const auto schritte = fuchszuege(a.spiel().stellung(), false);
    QVERIFY(!schritte.empty());

    a.ziehe(schritte.front().von, schritte.front().nach);
    QCOMPARE(a.spiel().pcZug(), 1);
    // Answered the way a quick player would: as soon as the box is up.
    QString text;
    QTimer::singleShot(0, [&text] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            text = box->text();
            box->accept();
        }
    });
    a.fenster->Timer1_Timer();
    QVERIFY2(text.startsWith(QStringLiteral("Der Fuchs hätte springen können.")), qPrintable(text));
    const auto geparkt = figur_index(a.spiel().stellung(), kParkfeld);
    QVERIFY(geparkt && *geparkt < 2);
    bilderPruefen(a);
}

void BrettFensterTest::ganzePartieDesPc() {
    Aufbau a(ini(2));
    Antworter antworter;
    a.aktion("Neu");
    QVERIFY(a.spiel().endeGefunden());
    QVERIFY(a.spiel().spielzug() > 10);
    QVERIFY(!a.spiel().ziehbar() || a.spiel().spielzug() >= kZugbegrenzung);
    QVERIFY(!antworter.texte.empty()); // the result was announced
    QVERIFY(!a.hinweisSichtbar("f_zug"));
    QVERIFY(!a.hinweisSichtbar("h_zug"));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    bilderPruefen(a);
}

void BrettFensterTest::fensterAusDemMenue() {
    Aufbau a;
    a.aktion("Einstellungen");
    a.aktion("Einstellungen");
    QCOMPARE(a.fenster->findChildren<EinstDialog*>().size(), 1); // asking again brings it forward
    QVERIFY(a.fenster->findChild<EinstDialog*>()->isVisible());
    QVERIFY(QApplication::activeModalWidget() == nullptr); // modeless: the board stays usable

    a.aktion("Stt");
    QVERIFY(a.fenster->findChild<StatForm*>()->isVisible());
    a.aktion("highfu");
    a.aktion("highhe");
    QCOMPARE(a.fenster->findChildren<HighscoreFenster*>().size(), 2);

    // The game may open a list on its own.
    a.fenster->oeffnen(Fenster::highf);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    int offen = 0;
    for (auto* h : a.fenster->findChildren<HighscoreFenster*>())
        offen += h->isVisible() ? 1 : 0;
    QCOMPARE(offen, 2);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

QTEST_MAIN(BrettFensterTest)
#include "brett_fenster_test.moc"
