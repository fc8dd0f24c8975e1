#include "player/strafregel.h"
#include "spiel_fixture.h"

namespace fuh {
namespace {

using test::SpielTest;

TEST_F(SpielTest, EinzelzugmodusFordertKeineAntwort) {
    ini(0, 0, 0, 1);
    spiel.Form_Load(1);
    spiel.Neu_Click();
    ziehe(24, 17);
    EXPECT_EQ(spiel.pcZug(), 0);
    ziehe(22, 15); // another hen of the human's side
    EXPECT_EQ(spiel.spielzug(), 2);
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

TEST_F(FuchsSpieltTest, NeuNachFangUndStrafeStelltAllesAuf) {
    ziehe(4, 2, 4, 1); // a step although both foxes could jump
    spiel.Timer1_Timer();
    ASSERT_EQ(ansicht.meldungen, std::vector<std::string>{kFuchsAusgeschlossen});
    ASSERT_TRUE(figur_index(spiel.stellung(), kParkfeld).has_value());
    ziehe(2, 2, 2, 4); // the remaining fox captures
    ASSERT_EQ(spiel.stellung().Feld[2][3], leer);

    // Every piece is back and shown, the captured hens and the parked fox too; then the hens open.
    spiel.Neu_Click();
    Stellung erwartet;
    erwartet.grundstellung();
    erwartet.Feld[3][3] = leer;
    erwartet.Feld[3][2] = henne;
    EXPECT_EQ(spiel.stellung().Feld, erwartet.Feld);
    for (int k = 0; k < kFiguren; ++k)
        EXPECT_TRUE(spiel.bilder().sichtbar[k]) << k;
    EXPECT_EQ(spiel.spielzug(), 1);
    EXPECT_EQ(statistik(14), 2);
}

} // namespace
} // namespace fuh
