// Each screen's widgets show what the game's controls say, for a farm in the middle of a game:
// every registered control against its widget, shown, enabled and written alike.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QTest>

#include "buildings/taulut/rakennuskatalogi.h"
#include "core/viestit.h"
#include "ui/Eläimet.h"
#include "ui/Pankki.h"
#include "ui/Rakennukset.h"
#include "ui/Tanhua.h"
#include "ui/Tarvikkeet.h"
#include "ui/Tuotteet.h"
#include "ui/Työvoima.h"
#include "ikkuna.h"

namespace tanhua::ui {
namespace {

using testi::Ikkuna;
using testi::VertaaRuutua;

TEST(Screens, TheStartScreenTheMainScreenAndTheNewsWindowShowTheirControls) {
    Ikkuna i;
    QTest::keyClicks(i.w->alku()->Nimesi(), "Matti");
    QTest::mouseClick(i.w->alku()->findChild<QPushButton*>("Command3"), Qt::LeftButton);  // Vaikea
    i.w->alku()->findChild<QCheckBox*>("Ohjeita")->setChecked(true);
    EXPECT_EQ(VertaaRuutua(i.peli, i.w->alku(), "Alku"), 10);
    QTest::keyClick(i.w->alku()->Nimesi(), Qt::Key_Return);
    Muuttujat& m = i.peli.m;
    m.OhjeetPäällä = true;
    Aseta(m.Työ[Kirjanpitäjä], 1);
    Aseta(m.Tähdet, 1);
    // Two days: the weather, the turnover and the stars are drawn, the event list tells of the full store.
    Aseta(m.Var[Maito], 5000);
    for (int päivä = 0; päivä < 2; ++päivä) QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Return);
    EXPECT_GT(VertaaRuutua(i.peli, i.w->tanhua(), "Tanhua"), 20);
    EXPECT_TRUE(i.w->tanhua()->Lista()->isVisible());
    EXPECT_EQ(i.peli.m.Vaikeustaso, 2);
}

TEST(Screens, TheAnimalScreenWithACardAndBothPanels) {
    Ikkuna i;
    i.Aloita();
    Muuttujat& m = i.peli.m;
    m.OhjeetPäällä = true;
    Aseta(m.Koko_Navetta, 100);
    Aseta(m.Rak[Teurastamo], 1);
    Aseta(m.Työ[Teurastaja], 1);
    Aseta(m.Työ[Nahkuri], 1);
    m.El[Kana] = {12, 3, 4, 2};
    m.El[Kettu][Poikanen] = 5;
    m.Eläimet.Teuras = {0, 0, 0, 1, 0};
    m.Eläimet.TeurasRaja[7] = "2";
    QTest::mouseClick(i.w->tanhua()->Command1(), Qt::LeftButton);
    Eläimet* e = i.w->eläimet();
    QTest::mouseClick(e->Kuva(7), Qt::LeftButton);  // Kukko
    QTest::mouseClick(e->Plus(), Qt::LeftButton);
    QTest::mouseClick(e->Osta(), Qt::LeftButton);   // twelve cocks: past the limit of 2
    QTest::mouseClick(e->NahkuriKuva(), Qt::LeftButton);
    ASSERT_TRUE(e->TeurasPaneeli()->isVisible());
    EXPECT_GT(VertaaRuutua(i.peli, e, "Eläimet"), 60);
    QTest::keyClick(e, Qt::Key_Escape);  // hides the card
    EXPECT_FALSE(e->akkuna()->isVisible());
    VertaaRuutua(i.peli, e, "Eläimet");
}

TEST(Screens, TheProductScreenWithTheManureCardAndTheAccountantsPanel) {
    Ikkuna i;
    i.Aloita();
    Muuttujat& m = i.peli.m;
    Aseta(m.Työ[Kirjanpitäjä], 1);
    Aseta(m.Var[Lanta], 12.5);
    m.Tuotteet.Myy[Muna] = 1;
    m.Tuotteet.MyyTyyli[Muna] = "Puolet";
    QTest::mouseClick(i.w->tanhua()->Command3(), Qt::LeftButton);
    Tuotteet* t = i.w->tuotteet();
    QTest::mouseClick(t->Kuva(Lanta), Qt::LeftButton);
    QTest::mouseClick(t->KirjanpitäjäKuva(), Qt::LeftButton);
    ASSERT_TRUE(t->Taulu()->isVisible());
    EXPECT_EQ(t->findChild<QLabel*>("MyyntiAika")->text(), "joka viikko");
    EXPECT_GT(VertaaRuutua(i.peli, t, "Tuotteet"), 80);
}

TEST(Screens, TheBuildingScreenWithItsOrdersAndProductionPanels) {
    Ikkuna i;
    i.Aloita();
    // One star: the sawmill is locked over its running order, the mill has an order, the barn two.
    i.peli.m.Tähdet = 1;
    i.peli.m.Raha = 500000;
    i.peli.m.Rak[Mylly] = 2;
    i.peli.m.RakAika[Saha] = 12;
    i.peli.m.RakAika[Mylly] = 30;
    QTest::mouseClick(i.w->tanhua()->Command2(), Qt::LeftButton);
    Rakennukset* r = i.w->rakennukset();
    ASSERT_EQ(i.w->pino()->currentWidget(), r);
    QTest::mouseClick(r->Kuva(Työmaa(Navetta)), Qt::LeftButton);
    QTest::mouseClick(r->Plus(), Qt::LeftButton);
    QTest::mouseClick(r->Command2(), Qt::LeftButton);
    VertaaRuutua(i.peli, r, "Rakennukset");
    EXPECT_EQ(r->findChild<QLabel*>("RakenneSahaz")->text(), "Lukittu");
    // The locked label tells the stars that open it; a label with no tip of its own shows none.
    EXPECT_EQ(r->findChild<QLabel*>("RakenneSahaz")->toolTip(), "Lukittu. Avautuu, kun tilallasi on 2 tähteä.");
    EXPECT_EQ(r->findChild<QLabel*>("RakenneNavettaz")->toolTip(), "");
    EXPECT_EQ(r->findChild<QLabel*>("RakenneNavettaz")->text(), "50 päivää");
    EXPECT_EQ(r->hintanäky()->text(), " 20000");

    // A built building chosen: its production panel takes the text's place and the level shows.
    QTest::mouseClick(r->findChild<QLabel*>("RakenneMyllyz"), Qt::LeftButton);
    i.peli.m.RakAika[Mylly] = 0;
    QTest::mouseClick(r->Kuva(Mylly), Qt::LeftButton);
    VertaaRuutua(i.peli, r, "Rakennukset");
    EXPECT_EQ(r->findChild<QLabel*>("taso")->text(), "2 / 5");
    EXPECT_FALSE(r->Plus()->isEnabled());

    // An unbuilt dairy chosen starts at full output; it has no panel or slider yet.
    Muuttujat& m = i.peli.m;
    m.Rak[Kasvihuone] = 1;
    m.Tulo[Juusto] = 1234;
    m.Tuotanto[Meijeri] = 0;
    QTest::mouseClick(r->Kuva(Meijeri), Qt::LeftButton);
    EXPECT_EQ(m.Tuotanto[Meijeri], 100);
    EXPECT_FALSE(r->Rakennus_Tuotanto()->isVisible());
    EXPECT_FALSE(r->findChild<QLabel*>("RaakaKuva")->isVisible());
    // Built, it shows its month's output, its product pictures and the slider.
    m.Rak[Meijeri] = 1;
    QTest::mouseClick(r->Kuva(Meijeri), Qt::LeftButton);
    VertaaRuutua(i.peli, r, "Rakennukset");
    auto* info = r->findChild<QLabel*>("info");
    EXPECT_TRUE(info->text().startsWith("Meijerin tämän kk:n tuotto: \r\nBruttotuotto :1234/kk\r\n"));
    EXPECT_TRUE(r->findChild<QLabel*>("RaakaKuva")->isVisible());
    EXPECT_TRUE(r->findChild<QLabel*>("TuoteKuva")->isVisible());
    // The slider moved a step down: 90 percent at once, and the label says so.
    ASSERT_TRUE(r->Rakennus_Tuotanto()->isVisible());
    EXPECT_EQ(r->Rakennus_Tuotanto()->value(), 10);
    r->Rakennus_Tuotanto()->setFocus();
    QTest::keyClick(r->Rakennus_Tuotanto(), Qt::Key_Left);
    EXPECT_EQ(m.Tuotanto[Meijeri], 90);
    EXPECT_EQ(r->Prosentti()->text(), "90 %");
    VertaaRuutua(i.peli, r, "Rakennukset");
    // The greenhouse has a panel but no slider, and in winter no net line.
    for (const char* vuodenaika : {"Talvi", "Kesä"}) {
        m.Vuodenaika = vuodenaika;
        QTest::mouseClick(r->Kuva(Kasvihuone), Qt::LeftButton);
        VertaaRuutua(i.peli, r, "Rakennukset");
        EXPECT_FALSE(r->Rakennus_Tuotanto()->isVisible());
        EXPECT_TRUE(info->text().startsWith("Kasvihuoneen tämän kk:n tuotto: "));
        EXPECT_EQ(info->text().contains("Nettotuotto"), m.Vuodenaika == "Kesä");
    }
    QTest::keyClick(r, Qt::Key_Escape);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua()) << "Esc leaves the building screen";
}

TEST(Screens, TheSuppliesShopShowsItsControlsAsTheGameReadsThem) {
    Ikkuna i;
    i.Aloita();
    EXPECT_FALSE(i.w->tanhua()->Command9()->isEnabled()) << "the supplies wait for the first star";
    i.peli.m.Tähdet = 1;
    i.peli.m.Raha = 30000;
    i.w->PalaaPääruutuun();
    QTest::mouseClick(i.w->tanhua()->Command9(), Qt::LeftButton);
    Tarvikkeet* t = i.w->tarvikkeet();
    ASSERT_EQ(i.w->pino()->currentWidget(), t);
    EXPECT_EQ(VertaaRuutua(i.peli, i.w->rahaKyltti(), "RahaKyltti"), 1);
    QTest::mouseClick(t->Command3(), Qt::LeftButton);
    t->Lista()->setCurrentRow(8);  // Kirnu
    QTest::mouseClick(t->Command5(), Qt::LeftButton);
    QTest::mouseClick(t->Command4(), Qt::LeftButton);
    t->Lista()->setCurrentRow(5);  // Kaivo
    QTest::mouseClick(t->Command5(), Qt::LeftButton);
    QTest::mouseClick(t->Command6(), Qt::LeftButton);
    t->Lista()->setCurrentRow(1);
    VertaaRuutua(i.peli, t, "Tarvikkeet");
    EXPECT_EQ(t->Lista()->count(), 2);
    EXPECT_EQ(t->Lista()->currentItem()->text(), "Kaivo");
    EXPECT_EQ(t->hinta()->text(), "6000");
    EXPECT_EQ(t->Command5()->text(), "Myy");
    EXPECT_EQ(i.peli.m.Raha, 7000);
}

TEST(Screens, TheStaffScreenAndTheBankShowTheirControls) {
    Ikkuna i;
    i.Aloita();
    Muuttujat& m = i.peli.m;
    m.Tähdet = 2;
    m.Rak[Leipomo] = 1;
    m.Työ[Leipuri] = 1;
    m.Työ[Siivooja] = 3;
    QTest::mouseClick(i.w->tanhua()->Command8(), Qt::LeftButton);
    Työvoima* t = i.w->työvoima();
    ASSERT_EQ(i.w->pino()->currentWidget(), t);
    const auto rivit = t->Lista()->findItems("Leipuri", Qt::MatchExactly);
    ASSERT_EQ(rivit.size(), 1);
    t->Lista()->setCurrentItem(rivit.front());
    QTest::mouseClick(t->Command3(), Qt::LeftButton);
    QTest::mouseClick(t->Command7(), Qt::LeftButton);
    t->mittari()->setValue(370);
    EXPECT_EQ(m.Palkka[Leipuri], 5370);
    EXPECT_EQ(VertaaRuutua(i.peli, t, "Työvoima"), 18);
    EXPECT_EQ(t->palk()->text(), " 5370");
    QTest::mouseClick(t->Command1(), Qt::LeftButton);

    QTest::mouseClick(i.w->tanhua()->Command6(), Qt::LeftButton);
    Pankki* p = i.w->pankki();
    ASSERT_EQ(i.w->pino()->currentWidget(), p);
    QTest::mouseClick(p->Command2(), Qt::LeftButton);
    QTest::keyClicks(p->summa(), "3000");
    QTest::mouseClick(p->Command8(), Qt::LeftButton);
    EXPECT_EQ(m.Laina, 3000);
    // The loan sheet shows with "Hyväksy" off; the insurance sheet's controls are out of sight.
    EXPECT_EQ(VertaaRuutua(i.peli, p, "Pankki"), 20);
    EXPECT_FALSE(p->Command8()->isEnabled());
    QTest::mouseClick(p->vaku(), Qt::LeftButton);
    QTest::mouseClick(p->Vakuutus(VakuutusTyö), Qt::LeftButton);
    EXPECT_EQ(i.peli.pankkiruutu.Vakusummaz, "600");  // five workers and the base
    EXPECT_EQ(VertaaRuutua(i.peli, p, "Pankki"), 24);
    // Esc hides the sheets; the bank opened again shows none and a fresh loan sheet can be confirmed.
    QTest::keyClick(p, Qt::Key_Escape);
    QTest::keyClick(p, Qt::Key_Escape);
    m.Laina = 0;
    QTest::mouseClick(i.w->tanhua()->Command6(), Qt::LeftButton);
    EXPECT_EQ(VertaaRuutua(i.peli, p, "Pankki"), 10);
    QTest::mouseClick(p->Command2(), Qt::LeftButton);
    EXPECT_TRUE(p->Command8()->isEnabled());
}

}  // namespace
}  // namespace tanhua::ui
