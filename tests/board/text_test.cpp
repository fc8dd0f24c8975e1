// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "board/text.h"

namespace fuh {
namespace {

Text datei(const std::string& name) {
    return Text(Vorlage::dateiname, {Text::wort(name)});
}

// The German rendering is what the logs and files hold; these bytes must not change.
TEST(Text, DeutschGibtDieBytesDerProtokolleUndDateien) {
    EXPECT_EQ(deutsch(Text(Vorlage::punkte, {Text::zahl(237)})), "Punkte: 237");
    EXPECT_EQ(deutsch(Text(Vorlage::punkte, {Text::wort("")})), "Punkte: ");
    EXPECT_EQ(deutsch(Text(Vorlage::tippFuechseGewinnen, {Text::zahl(7)})), "Die Füchse gewinnen in 7 Zügen");
    EXPECT_EQ(deutsch(Vorlage::tippHennenGewinnenJetzt), "Die Hennen gewinnen mit diesem Zug");
    EXPECT_EQ(deutsch(Text(Vorlage::angabeUnbekannt, {Text::zahl(3), Text::wort("Farbe")})),
              "Zeile 3: Unbekannte Angabe „Farbe“.");
    // Nested texts: the list of names in the message about several files, a message in the link's hint.
    const Text liste(Vorlage::aufzaehlungEnde,
                     {Text(Vorlage::aufzaehlung, {datei("QZ.sta"), datei("QZ2.DAT")}), datei("QZ3.DAT")});
    EXPECT_EQ(
        deutsch(Text(Vorlage::schreibfehlerMehrere, {liste})),
        "Die Dateien „QZ.sta“, „QZ2.DAT“ und „QZ3.DAT“ konnten nicht gespeichert werden. Das Spiel geht "
        "ohne diese Daten weiter.");
    EXPECT_EQ(deutsch(Text(Vorlage::linkHinweis,
                           {Text(Vorlage::schreibfehler, {Text::wort("QZ.sta")}), Text::wort("QZ.sta")})),
              "Die Datei „QZ.sta“ konnte nicht gespeichert werden. Das Spiel geht ohne diese Daten weiter. "
              "„QZ.sta“ ist eine symbolische Verknüpfung, die ein anderer Benutzer angelegt oder verändert "
              "haben kann; das Spiel schreibt nicht durch sie hindurch.");
    // A value is inserted as it is, never searched again; a missing one leaves nothing.
    EXPECT_EQ(deutsch(Text(Vorlage::aufzaehlung, {Text::wort("%2 100 %"), Text::wort("x")})), "%2 100 %, x");
    EXPECT_EQ(deutsch(Vorlage::angabeUnbekannt), "Zeile : Unbekannte Angabe „“.");
    EXPECT_EQ(deutsch(Text()), "");
}

} // namespace
} // namespace fuh
