// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/einst_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "board/bildlage.h"
#include "dialogs/einstellungsdatei.h"
#include "dialogs/statustexte.h"
#include "memory/satzdatei.h"
#include "ui/meldung.h"
#include "ui/sprache.h"

namespace fuh {

namespace {

constexpr int kBreite = 4140; // client area in twips
constexpr int kHoehe = 2505;

struct Lage {
    QWidget* w;
    int links, oben, breite, hoehe; // twips
    int textBreite;                 // pixels the content needs
};

constexpr int kMeister = 3;     // the fourth entry of the strengths
constexpr int kZweiSpieler = 3; // the fourth entry of the computer's side: nobody

int eintrag(int wert) {
    return wert >= 0 && wert <= 2 ? wert : 0;
}

} // namespace

EinstDialog::EinstDialog(const Einstellungen& einst, Spielerauswahl wahl, std::filesystem::path ordner,
                         std::function<void(Statusfeld feld, const std::string& text)> statusSetzen,
                         std::function<void(const Einstellungen&, const Spielerauswahl&)> uebernehmen,
                         QWidget* parent)
    : QDialog(parent), ordner_(std::move(ordner)), statusSetzen_(std::move(statusSetzen)),
      uebernehmen_(std::move(uebernehmen)), pcVorher_(einst.PC) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, Qt::white);
    setPalette(pal);

    staerkeText_ = new QLabel(this);
    staerkeText_->setObjectName(QStringLiteral("Spielstärke"));
    ok_ = new QPushButton(this);
    ok_->setObjectName(QStringLiteral("ok"));
    abbruch_ = new QPushButton(this);
    abbruch_->setObjectName(QStringLiteral("Abbruch"));
    pc_spielt_ = new QComboBox(this);
    pc_spielt_->setObjectName(QStringLiteral("pc_spielt"));
    pc_spielt_->addItems(QStringList(4, QString()));
    Staerke_ = new QComboBox(this);
    Staerke_->setObjectName(QStringLiteral("Staerke"));
    Staerke_->addItems(QStringList(4, QString()));
    Lernen_ = new QCheckBox(this);
    Lernen_->setObjectName(QStringLiteral("Lernen"));
    Einzelzug_ = new QCheckBox(this);
    Einzelzug_->setObjectName(QStringLiteral("Einzelzug"));
    pcText_ = new QLabel(this);
    pcText_->setObjectName(QStringLiteral("Label1"));
    staerkeText_->setBuddy(Staerke_);
    pcText_->setBuddy(pc_spielt_);
    texteSetzen();

    setTabOrder(ok_, abbruch_);
    setTabOrder(abbruch_, pc_spielt_);
    setTabOrder(pc_spielt_, Staerke_);
    setTabOrder(Staerke_, Lernen_);
    setTabOrder(Lernen_, Einzelzug_);
    ok_->setDefault(true);

    // On opening: the values are unchecked file contents, so anything outside the lists shows entry 0.
    pc_spielt_->setCurrentIndex(wahl.zweiSpieler ? kZweiSpieler : eintrag(einst.PC));
    Staerke_->setCurrentIndex(wahl.meister && einst.Staerke == 2 ? kMeister : eintrag(einst.Staerke));
    Lernen_->setChecked(einst.Lernmodus == 1);
    Einzelzug_->setChecked(einst.Einzelzug == 1);
    ausgleich();

    connect(Staerke_, &QComboBox::currentIndexChanged, this, &EinstDialog::ausgleich);
    connect(ok_, &QPushButton::clicked, this, &EinstDialog::ok_Click);
    connect(abbruch_, &QPushButton::clicked, this, &QDialog::close);
}

void EinstDialog::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) texteSetzen();
    QDialog::changeEvent(e);
}

void EinstDialog::texteSetzen() {
    setWindowTitle(tr("Einstellungen"));
    staerkeText_->setText(tr("Spielstärke:"));
    ok_->setText(tr("Übernehmen"));
    abbruch_->setText(tr("Abbrechen"));
    const QString seiten[] = {tr("Fuchs"), tr("Hennen"), tr("Fuchs und Hennen"),
                              tr("niemand (zwei Spieler)")};
    for (int i = 0; i < pc_spielt_->count(); ++i)
        pc_spielt_->setItemText(i, seiten[i]);
    const QString staerken[] = {tr("1 leicht"), tr("2 mittel"), tr("3 stark"), tr("4 Meister")};
    for (int i = 0; i < Staerke_->count(); ++i)
        Staerke_->setItemText(i, staerken[i]);
    Lernen_->setText(tr("Lernmodus (ab Spielstärke 2)"));
    Einzelzug_->setText(tr("Einzelzugmodus"));
    pcText_->setText(tr("Computer spielt:"));
    anordnen();
}

void EinstDialog::anordnen() {
    // The layout is drawn in twips; where the font needs more room than the drawing gives, the whole
    // window grows by one factor so that the proportions stay.
    const QFontMetrics fm(font());
    auto comboBreite = [&](const QComboBox* c) {
        int b = 0;
        for (int i = 0; i < c->count(); ++i)
            b = std::max(b, fm.horizontalAdvance(c->itemText(i)));
        return b + 36; // frame and arrow
    };
    const int haken = style()->pixelMetric(QStyle::PM_IndicatorWidth) + 12;
    const Lage lagen[] = {
        {staerkeText_, 120, 600, 975, 255, fm.horizontalAdvance(staerkeText_->text())},
        {ok_, 240, 1920, 1335, 375, fm.horizontalAdvance(ok_->text()) + 16},
        {abbruch_, 1920, 1920, 1575, 375, fm.horizontalAdvance(abbruch_->text()) + 16},
        {pc_spielt_, 1560, 120, 2175, 315, comboBreite(pc_spielt_)},
        {Staerke_, 1560, 600, 2175, 315, comboBreite(Staerke_)},
        {Lernen_, 840, 1080, 2415, 255, fm.horizontalAdvance(Lernen_->text()) + haken},
        {Einzelzug_, 840, 1440, 2655, 255, fm.horizontalAdvance(Einzelzug_->text()) + haken},
        {pcText_, 120, 120, 1215, 255, fm.horizontalAdvance(pcText_->text())},
    };
    double faktor = 1.0;
    for (const Lage& l : lagen) {
        faktor = std::max(faktor, l.textBreite * double{kTwipsProPixel} / l.breite);
        const int hoehe = std::max(l.w->sizeHint().height(), fm.height() + 2);
        faktor = std::max(faktor, hoehe * double{kTwipsProPixel} / l.hoehe);
    }
    auto px = [faktor](int twips) { return static_cast<int>(std::lround(twips * faktor / kTwipsProPixel)); };
    for (const Lage& l : lagen)
        l.w->setGeometry(px(l.links), px(l.oben), px(l.breite), px(l.hoehe));
    setFixedSize(px(kBreite), px(kHoehe));
}

void EinstDialog::ausgleich() {
    // Learning needs a thinking opponent; the easiest strength plays without the learned moves.
    Lernen_->setEnabled(Staerke_->currentIndex() != 0);
    if (Staerke_->currentIndex() == 0) Lernen_->setChecked(false);
}

void EinstDialog::ok_Click() {
    Einstellungen e;
    const Spielerauswahl wahl{Staerke_->currentIndex() == kMeister,
                              pc_spielt_->currentIndex() == kZweiSpieler};
    // The file knows no game of two people: it keeps the computer's side it had.
    e.PC = wahl.zweiSpieler ? pcVorher_ : static_cast<int16_t>(pc_spielt_->currentIndex());
    e.Staerke = static_cast<int16_t>(std::min(Staerke_->currentIndex(), 2));
    e.Lernmodus = Lernen_->isChecked() ? 1 : 0;
    e.Einzelzug = Einzelzug_->isChecked() ? 1 : 0;
    if (uebernehmen_) uebernehmen_(e, wahl);
    if (!einstellungenSchreiben(ordner_, e)) {
        // The next new game reads the file again, so the settings last only for the game being played.
        meldungZeigen(this, QMessageBox::Warning,
                      linkHinweisAnhaengen(tr("Die Einstellungen konnten nicht in „%1“ gespeichert werden. "
                                              "Sie gelten nur für das laufende Spiel.")
                                               .arg(QString::fromUtf8(kEinstellungsdatei)),
                                           ordner_, kEinstellungsdatei));
    }
    if (statusSetzen_) {
        // Two people: the game itself says whose turn it is there.
        if (const auto t = pcStatustext(e.PC); t && !wahl.zweiSpieler) statusSetzen_(Statusfeld::seite, *t);
        if (const auto t = wahl.meister ? std::optional<std::string>(kMeisterStatustext)
                                        : staerkeStatustextDialog(e.Staerke))
            statusSetzen_(Statusfeld::staerke, *t);
    }
    close();
}

} // namespace fuh
