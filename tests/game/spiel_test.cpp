#include "spiel_fixture.h"

namespace fuh {
namespace {

using test::SpielTest;

TEST_F(SpielTest, ErsterStartLegtLeereEinstellungsdateiAnUndSperrt) {
    spiel.Form_Load(1234);
    EXPECT_TRUE(ordner.gibt("QZ.INI"));
    EXPECT_TRUE(ordner.lies("QZ.INI").empty());
    EXPECT_EQ(ansicht.panels[1], "PC spielt Fuchs");
    EXPECT_EQ(ansicht.panels[2], "Spielstärke 1");
    EXPECT_FALSE(spiel.ziehbar());
    EXPECT_EQ(zufall.zustand(), 1234u);
    const int16_t vorher = spiel.stellung().figurplatz[5];
    ziehe(24, 17); // locked: nothing happens
    EXPECT_EQ(spiel.stellung().figurplatz[5], vorher);
}

TEST_F(SpielTest, NeuZaehltStartsUndStelltAllesZurueck) {
    spiel.Form_Load(1);
    spiel.Neu_Click();
    ziehe(24, 17);
    spiel.start_Click(); // "Start" is the same command
    EXPECT_EQ(statistik(14), 2);
    EXPECT_EQ(statistik(0), 0);
    EXPECT_EQ(ordner.lies("QZ.sta").size(), 34u);
    EXPECT_TRUE(spiel.ziehbar());
    EXPECT_EQ(spiel.stellung().figurplatz[5], 24);
    EXPECT_EQ(spiel.bilder().left[5], platzLeft(24));
    EXPECT_EQ(spiel.spielzug(), 0);
}

TEST_F(SpielTest, HennenzugFordertFuchsAntwortAn) {
    spiel.Form_Load(1);
    spiel.Neu_Click();
    ziehe(24, 17);
    const Stellung& s = spiel.stellung();
    EXPECT_EQ(s.vonX, 3);
    EXPECT_EQ(s.vonY, 3);
    EXPECT_EQ(s.nachX, 3);
    EXPECT_EQ(s.nachY, 2);
    EXPECT_EQ(spiel.pcZug(), 2);
    EXPECT_EQ(ansicht.panels[3], "Punkte: 237");
    EXPECT_EQ(spiel.spielzug(), 1);

    spiel.Timer1_Timer();
    EXPECT_EQ(spiel.pcZug(), 0);
    EXPECT_EQ(spiel.spielzug(), 2);
    EXPECT_EQ(ansicht.gezeigt, std::vector<Hinweis>{Hinweis::f_zug});
    EXPECT_FALSE(ansicht.hinweise[Hinweis::f_zug]);
    spiel.Timer1_Timer(); // nothing requested: nothing happens
    EXPECT_EQ(spiel.spielzug(), 2);
}

TEST_F(SpielTest, UnzulaessigeZuegeAendernNichts) {
    spiel.Form_Load(1);
    spiel.Neu_Click();
    ziehe(24, 17);
    spiel.Timer1_Timer();
    const Stellung vorher = spiel.stellung();
    const auto panels = ansicht.panels;
    ziehe(17, 24);                             // a hen moving down
    ziehe(23, 0);                              // off the cross
    spiel.platz_DragDrop(feldNummer(2, 1), 0); // a fox while the computer plays the foxes
    spiel.platz_DragDrop(60, 5);               // no such target
    EXPECT_EQ(spiel.stellung().Feld, vorher.Feld);
    EXPECT_EQ(spiel.spielzug(), 2);
    EXPECT_EQ(spiel.pcZug(), 0);
    EXPECT_EQ(ansicht.panels, panels);
}

TEST_F(SpielTest, EinzelzugmodusFordertKeineAntwort) {
    ini(0, 0, 0, 1);
    spiel.Form_Load(1);
    spiel.Neu_Click();
    ziehe(24, 17);
    EXPECT_EQ(spiel.pcZug(), 0);
    ziehe(22, 15); // another hen of the human's side
    EXPECT_EQ(spiel.spielzug(), 2);
}

TEST_F(SpielTest, ComputerHennenEroeffnen) {
    ini(1);
    spiel.Form_Load(1);
    spiel.Neu_Click();
    EXPECT_EQ(spiel.stellung().Feld[3][2], henne);
    EXPECT_EQ(ansicht.panels[1], "PC spielt Hennen");
    EXPECT_EQ(ansicht.panels[3], "Punkte: 403");
    EXPECT_EQ(spiel.spielzug(), 1);
}

// With the computer playing the hens, after their opening the hen on (2, 4) is moved by hand to (3, 3):
// the fox on (2, 2) can then jump (2, 3) and, from (2, 4), (1, 3).
struct FuchsSpieltTest : SpielTest {
    void SetUp() override {
        ini(1);
        spiel.Form_Load(1);
        spiel.Neu_Click();
        einstellen(2, 1);
        ziehe(2, 4, 3, 3);
        einstellen(1, 0);
    }
};

TEST_F(FuchsSpieltTest, SprungfolgeEndetMitRechterTaste) {
    ziehe(2, 2, 2, 4);
    EXPECT_TRUE(spiel.stellung().imSprung);
    EXPECT_TRUE(ansicht.hinweise[Hinweis::spr_msg]);
    EXPECT_EQ(spiel.pcZug(), 0);
    ziehe(4, 2, 4, 1); // the other fox may not step now
    EXPECT_EQ(spiel.stellung().Feld[4][2], fuchs);
    ziehe(2, 4, 0, 2); // the same fox jumps again
    EXPECT_EQ(spiel.stellung().Feld[1][3], leer);
    EXPECT_EQ(spiel.pcZug(), 0);

    spiel.figur_MouseDown(7, 1); // the left button closes nothing
    EXPECT_TRUE(spiel.stellung().imSprung);
    spiel.figur_MouseDown(7, 2); // any piece
    EXPECT_FALSE(spiel.stellung().imSprung);
    EXPECT_FALSE(ansicht.hinweise[Hinweis::spr_msg]);
    EXPECT_EQ(spiel.pcZug(), 1);
    const int16_t vorher = spiel.spielzug();
    spiel.Timer1_Timer();
    EXPECT_EQ(spiel.spielzug(), vorher + 1); // one hen reply
    EXPECT_TRUE(ansicht.meldungen.empty());  // a jump is never penalised
}

} // namespace
} // namespace fuh
