// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/highscore_fenster.h"

#include <QCloseEvent>
#include <QDate>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>
#include <cmath>

#include "dateischicht/satzdatei.h"
#include "ui/meldung.h"
#include "ui/sprache.h"

namespace fuh {

namespace {

const QDate kNullDatum(1899, 12, 30);

// The columns: their heads, and the names of their cells ("datum0" … "sieg9").
constexpr std::array<const char*, 4> kKoepfe = {
    QT_TRANSLATE_NOOP("fuh::HighscoreFenster", "Datum"), QT_TRANSLATE_NOOP("fuh::HighscoreFenster", "Punkte"),
    QT_TRANSLATE_NOOP("fuh::HighscoreFenster", "Name"), QT_TRANSLATE_NOOP("fuh::HighscoreFenster", "Sieg")};
constexpr std::array<const char*, 4> kSpalten = {"datum", "score", "user", "sieg"};

// Fixed-width file fields end in blanks or, in rows never written, in zeros.
QString feldText(const std::string& bytes) {
    std::string s = vonWindows1252(bytes);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\0'))
        s.pop_back();
    return QString::fromStdString(s);
}

QString zellenname(int spalte, int zeile) {
    return QString::fromLatin1(kSpalten[static_cast<std::size_t>(spalte)]) + QString::number(zeile);
}

QLabel* zelle(const QString& name, QWidget* eltern) {
    auto* l = klartext(new QLabel(eltern));
    l->setObjectName(name);
    l->setTextFormat(Qt::PlainText); // names and flags come from the file
    return l;
}

// Today as an OLE Automation date (whole days since 30 December 1899).
double oleDatumHeute() {
    return static_cast<double>(kNullDatum.daysTo(QDate::currentDate()));
}

// The cell text of a stored date: the short format of the locale in use, or empty for 0 and unusable values.
QString datumText(double oleDatum) {
    // The range OLE dates can express (years 100 to 9999); anything else is a damaged file.
    if (!std::isfinite(oleDatum) || oleDatum == 0 || oleDatum < -657434.0 || oleDatum >= 2958466.0) return {};
    const QDate d = kNullDatum.addDays(static_cast<qint64>(std::trunc(oleDatum)));
    return d.isValid() ? QLocale().toString(d, QLocale::ShortFormat) : QString();
}

} // namespace

HighscoreFenster::HighscoreFenster(Seite seite, Oeffentlich& spiel, std::filesystem::path ordner,
                                   QWidget* parent)
    : QDialog(parent), liste_(seite), ordner_(std::move(ordner)) {
    setAttribute(Qt::WA_DeleteOnClose);
    texte_.titel(this,
                 seite == Seite::Fuchs ? QT_TR_NOOP("Highscores Fuchs") : QT_TR_NOOP("Highscore Hennen"));

    liste_.laden(ordner_);
    const int neu = liste_.anzeigen(spiel, oleDatumHeute());

    auto* haupt = new QVBoxLayout(this);
    auto* aufforderung = new QLabel(this); // says what the edit in the new row is for
    aufforderung->setObjectName(QStringLiteral("aufforderung"));
    aufforderung->setWordWrap(true);
    haupt->addWidget(aufforderung);
    auto* tabelle = new QGridLayout;
    tabelle->setHorizontalSpacing(16);
    for (int c = 0; c < 4; ++c) {
        auto* k = new QLabel(this);
        texte_.text(k, kKoepfe[static_cast<std::size_t>(c)]);
        QFont f = k->font();
        f.setBold(true);
        k->setFont(f);
        tabelle->addWidget(k, 0, c);
    }
    for (int i = 0; i < kListenzeilen; ++i)
        zeileAnlegen(tabelle, i);
    // The new row has an edit for the name; it lies over the name cell and comes first in the tab order.
    if (neu >= 0 && neu < kListenzeilen) {
        QLineEdit* name = namensfeldAnlegen(neu);
        tabelle->addWidget(name, neu + 1, 2);
        texte_.text(aufforderung, QT_TR_NOOP("Neu in der Liste! Ihr &Name:"));
        aufforderung->setBuddy(name);
    } else {
        aufforderung->hide();
    }
    haupt->addLayout(tabelle);
    zeilenSetzen();
    haupt->addWidget(knoepfeAnlegen());
    // The window takes the size its texts need, anew in each language.
    haupt->setSizeConstraint(QLayout::SetFixedSize);
}

void HighscoreFenster::zeileAnlegen(QGridLayout* tabelle, int i) {
    const Eintrag& e = liste_.eintraege()[static_cast<std::size_t>(i)];
    auto* datum = zelle(zellenname(0, i), this);
    auto* score = zelle(zellenname(1, i), this);
    score->setText(QString::number(e.score));
    score->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* user = zelle(zellenname(2, i), this);
    user->setText(feldText(e.user));
    user->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('W')) * 12);
    auto* sieg = zelle(zellenname(3, i), this);
    tabelle->addWidget(datum, i + 1, 0);
    tabelle->addWidget(score, i + 1, 1);
    tabelle->addWidget(user, i + 1, 2);
    tabelle->addWidget(sieg, i + 1, 3);
}

QLineEdit* HighscoreFenster::namensfeldAnlegen(int zeile) {
    auto* name = new QLineEdit(this);
    name->setObjectName(QStringLiteral("nameEingabe%1").arg(zeile));
    name->setMaxLength(kNamenlaenge);
    name->setAccessibleName(tr("Ihr Name für Platz %1").arg(zeile + 1));
    connect(name, &QLineEdit::textEdited, this,
            [this](const QString& text) { liste_.nameSetzen(text.toStdString()); });
    name->setFocus();
    return name;
}

QDialogButtonBox* HighscoreFenster::knoepfeAnlegen() {
    auto* ok = new QPushButton(this);
    texte_.text(ok, QT_TR_NOOP("OK"));
    ok->setObjectName(QStringLiteral("okKnopf"));
    ok->setDefault(true);
    auto* abbruch = new QPushButton(this);
    texte_.text(abbruch, QT_TR_NOOP("Abbruch"));
    abbruch->setObjectName(QStringLiteral("abbruchKnopf"));
    auto* knoepfe = new QDialogButtonBox(this);
    knoepfe->addButton(ok, QDialogButtonBox::AcceptRole);
    knoepfe->addButton(abbruch, QDialogButtonBox::RejectRole);
    connect(ok, &QPushButton::clicked, this, [this] { speichernUndSchliessen(); });
    connect(abbruch, &QPushButton::clicked, this, [this] {
        entschieden_ = true; // the player chose to leave the list as it was
        close();
    });
    return knoepfe;
}

void HighscoreFenster::zeilenSetzen() {
    for (int i = 0; i < kListenzeilen; ++i) {
        const Eintrag& e = liste_.eintraege()[static_cast<std::size_t>(i)];
        findChild<QLabel*>(zellenname(0, i))->setText(datumText(e.datum));
        // The file keeps the German flag; it is shown in the player's language.
        findChild<QLabel*>(zellenname(3, i))->setText(uebersetzt(siegText(feldText(e.sieg).toStdString())));
        // A screen reader hears row and column with each cell: "1. Punkte: 44000".
        for (std::size_t c = 0; c < kSpalten.size(); ++c) {
            auto* l = findChild<QLabel*>(zellenname(static_cast<int>(c), i));
            l->setAccessibleName(QStringLiteral("%1. %2: %3")
                                     .arg(QString::number(i + 1), texte_.uebersetzt(kKoepfe[c]), l->text()));
        }
    }
}

void HighscoreFenster::changeEvent(QEvent* e) {
    if (e->type() == QEvent::LanguageChange) {
        texte_.erneuern();
        zeilenSetzen();
        layout()->activate(); // the new size at once, not at the next layout pass
    }
    QDialog::changeEvent(e);
}

void HighscoreFenster::speichernUndSchliessen() {
    if (!liste_.speichern(ordner_)) {
        meldungZeigen(this, QMessageBox::Warning,
                      linkHinweisAnhaengen(tr("Die Highscore-Liste „%1“ konnte nicht gespeichert werden.")
                                               .arg(QString::fromLatin1(bestenlistendatei(liste_.seite()))),
                                           ordner_, bestenlistendatei(liste_.seite())));
        return;
    }
    entschieden_ = true;
    close();
}

void HighscoreFenster::reject() {
    if (verwerfenErlaubt()) QDialog::reject();
}

void HighscoreFenster::closeEvent(QCloseEvent* e) {
    if (!verwerfenErlaubt()) return e->ignore();
    QDialog::closeEvent(e);
}

bool HighscoreFenster::verwerfenErlaubt() {
    // Escape and the window's close button ask before a new entry is lost.
    if (entschieden_ || !liste_.hatNeueZeile()) return true;
    QMessageBox frage(QMessageBox::Question, windowTitle(),
                      tr("Ihr Eintrag in der Highscore-Liste ist noch nicht gespeichert. Verwerfen?"),
                      QMessageBox::NoButton, this);
    QPushButton* verwerfen = frage.addButton(tr("&Verwerfen"), QMessageBox::DestructiveRole);
    frage.setDefaultButton(frage.addButton(tr("&Zurück zur Liste"), QMessageBox::RejectRole));
    frage.exec();
    entschieden_ = frage.clickedButton() == verwerfen;
    return entschieden_;
}

} // namespace fuh
