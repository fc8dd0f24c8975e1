// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/einst_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "spieldaten/einstellungsdatei.h"
#include "spieldaten/statustexte.h"
#include "ui/meldung.h"
#include "ui/sprache.h"

namespace fuh {

namespace {

constexpr int kMeister = 3;     // the fourth entry of the strengths
constexpr int kZweiSpieler = 3; // the fourth entry of the computer's side: nobody

int eintrag(int wert) {
    return wert >= 0 && wert <= 2 ? wert : 0;
}

// A pure selection list that grows with its longest entry, in whatever language and font.
QComboBox* auswahl(const QString& name, QWidget* eltern) {
    auto* c = new QComboBox(eltern);
    c->setObjectName(name);
    c->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return c;
}

QCheckBox* haken(const QString& name, QWidget* eltern) {
    auto* c = new QCheckBox(eltern);
    c->setObjectName(name);
    return c;
}

} // namespace

EinstDialog::EinstDialog(const Einstellungen& einst, Spielerauswahl wahl, std::filesystem::path ordner,
                         std::function<void(Statusfeld feld, const Text& text)> statusSetzen,
                         std::function<void(const Einstellungen&, const Spielerauswahl&)> uebernehmen,
                         QWidget* parent)
    : QDialog(parent), ordner_(std::move(ordner)), statusSetzen_(std::move(statusSetzen)),
      uebernehmen_(std::move(uebernehmen)), pcVorher_(einst.PC) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, Qt::white);
    setPalette(pal);
    texte_.titel(this, QT_TR_NOOP("Einstellungen"));
    aufbauen();

    // The values are unchecked file contents, so anything outside the lists shows entry 0.
    computerSpielt_->setCurrentIndex(wahl.zweiSpieler ? kZweiSpieler : eintrag(einst.PC));
    staerke_->setCurrentIndex(wahl.meister && einst.Staerke == 2 ? kMeister : eintrag(einst.Staerke));
    lernmodus_->setChecked(einst.Lernmodus == 1);
    einzelzug_->setChecked(einst.Einzelzug == 1);
    ausgleich();

    connect(staerke_, &QComboBox::currentIndexChanged, this, &EinstDialog::ausgleich);
    connect(okKnopf_, &QPushButton::clicked, this, &EinstDialog::bestaetigen);
    connect(abbruchKnopf_, &QPushButton::clicked, this, &QDialog::close);
}

void EinstDialog::aufbauen() {
    computerSpielt_ = auswahl(QStringLiteral("computerSpielt"), this);
    // The entry's index is the value stored as PC, but for the last: two people, kept apart from the file.
    texte_.eintraege(computerSpielt_, {QT_TR_NOOP("Fuchs"), QT_TR_NOOP("Hennen"),
                                       QT_TR_NOOP("Fuchs und Hennen"), QT_TR_NOOP("niemand (zwei Spieler)")});
    staerke_ = auswahl(QStringLiteral("staerke"), this);
    texte_.eintraege(staerke_, {QT_TR_NOOP("1 leicht"), QT_TR_NOOP("2 mittel"), QT_TR_NOOP("3 stark"),
                                QT_TR_NOOP("4 Meister")});
    lernmodus_ = haken(QStringLiteral("lernmodus"), this);
    texte_.text(lernmodus_, QT_TR_NOOP("Lernmodus (ab Spielstärke 2)"));
    einzelzug_ = haken(QStringLiteral("einzelzug"), this);
    texte_.text(einzelzug_, QT_TR_NOOP("Einzelzugmodus"));

    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(beschriftet(QT_TR_NOOP("Computer spielt:"), computerSpielt_), computerSpielt_);
    form->addRow(beschriftet(QT_TR_NOOP("Spielstärke:"), staerke_), staerke_);
    // The check boxes stand under the lists, as they always have.
    form->addRow(QString(), lernmodus_);
    form->addRow(QString(), einzelzug_);

    okKnopf_ = new QPushButton(this);
    okKnopf_->setObjectName(QStringLiteral("okKnopf"));
    texte_.text(okKnopf_, QT_TR_NOOP("Übernehmen"));
    okKnopf_->setDefault(true);
    abbruchKnopf_ = new QPushButton(this);
    abbruchKnopf_->setObjectName(QStringLiteral("abbruchKnopf"));
    texte_.text(abbruchKnopf_, QT_TR_NOOP("Abbrechen"));
    auto* knoepfe = new QDialogButtonBox(this);
    knoepfe->addButton(okKnopf_, QDialogButtonBox::AcceptRole);
    knoepfe->addButton(abbruchKnopf_, QDialogButtonBox::RejectRole);

    auto* haupt = new QVBoxLayout(this);
    haupt->addLayout(form);
    haupt->addSpacing(fontMetrics().height() / 2);
    haupt->addWidget(knoepfe);
    // The window takes the size its texts need, anew in each language.
    haupt->setSizeConstraint(QLayout::SetFixedSize);

    // The buttons come first, as the game has always had it.
    setTabOrder(okKnopf_, abbruchKnopf_);
    setTabOrder(abbruchKnopf_, computerSpielt_);
    setTabOrder(computerSpielt_, staerke_);
    setTabOrder(staerke_, lernmodus_);
    setTabOrder(lernmodus_, einzelzug_);
    computerSpielt_->setFocus(); // the dialog opens on its first field
}

QLabel* EinstDialog::beschriftet(const char* text, QWidget* feld) {
    auto* l = new QLabel(this);
    l->setObjectName(feld->objectName() + QStringLiteral("Text"));
    texte_.text(l, text);
    l->setBuddy(feld);
    // A list is known by its label, not by the entry it shows.
    texte_.zugangsname(feld, [this, text] {
        return texte_.uebersetzt(text).remove(QLatin1Char('&')).remove(QLatin1Char(':'));
    });
    return l;
}

void EinstDialog::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) {
        texte_.erneuern();
        layout()->activate(); // the new size at once, not at the next layout pass
    }
    QDialog::changeEvent(e);
}

void EinstDialog::ausgleich() {
    // Learning needs a thinking opponent; the easiest strength plays without the learned moves.
    lernmodus_->setEnabled(staerke_->currentIndex() != 0);
    if (staerke_->currentIndex() == 0) lernmodus_->setChecked(false);
}

void EinstDialog::bestaetigen() {
    Einstellungen e;
    const Spielerauswahl wahl{staerke_->currentIndex() == kMeister,
                              computerSpielt_->currentIndex() == kZweiSpieler};
    // The file knows no game of two people: it keeps the computer's side it had.
    e.PC = wahl.zweiSpieler ? pcVorher_ : static_cast<int16_t>(computerSpielt_->currentIndex());
    e.Staerke = static_cast<int16_t>(std::min(staerke_->currentIndex(), 2));
    e.Lernmodus = lernmodus_->isChecked() ? 1 : 0;
    e.Einzelzug = einzelzug_->isChecked() ? 1 : 0;
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
        // Two people: the game itself says there whose turn it is.
        if (const auto t = pcStatustext(e.PC); t && !wahl.zweiSpieler) statusSetzen_(Statusfeld::seite, *t);
        if (const auto t =
                wahl.meister ? std::optional<Text>(Vorlage::meister) : staerkeStatustextDialog(e.Staerke))
            statusSetzen_(Statusfeld::staerke, *t);
    }
    close();
}

} // namespace fuh
