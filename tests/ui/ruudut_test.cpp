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
#include "contracts/sopimukset.h"
#include "core/viestit.h"
#include "ui/Eläimet.h"
#include "ui/Pankki.h"
#include "ui/Rakennukset.h"
#include "ui/Sopimukset.h"
#include "ui/Tanhua.h"
#include "ui/Tarvikkeet.h"
#include "ui/Tuotteet.h"
#include "ui/Työvoima.h"
#include "ikkuna.h"

namespace tanhua::ui {
namespace {

using testi::Ikkuna;
using testi::Klikkaa;
using testi::VertaaRuutua;
using Screens = testi::Pelissä;

TEST(StartAndMainScreens, ShowTheirControls) {
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
    EXPECT_EQ(m.Vaikeustaso, 2);
}

TEST_F(Screens, TheAnimalScreenWithACardAndBothPanels) {
    m.OhjeetPäällä = true;
    Aseta(m.Koko_Navetta, 100);
    Aseta(m.Rak[Teurastamo], 1);
    Aseta(m.Työ[Teurastaja], 1);
    Aseta(m.Työ[Nahkuri], 1);
    m.El[Kana] = {12, 3, 4, 2};
    m.El[Kettu][Poikanen] = 5;
    m.Eläimet.Teuras = {0, 0, 0, 1, 0};
    m.Eläimet.TeurasRaja[7] = "2";
    Klikkaa({i.w->tanhua()->Command1()});
    Eläimet* e = i.w->eläimet();
    // Twelve cocks bought, past the limit of 2, and the tanner's panel opened.
    Klikkaa({e->Kuva(7), e->Plus(), e->Osta(), e->NahkuriKuva()});
    ASSERT_TRUE(e->TeurasPaneeli()->isVisible());
    EXPECT_GT(VertaaRuutua(i.peli, e, "Eläimet"), 60);
    QTest::keyClick(e, Qt::Key_Escape);  // hides the card
    EXPECT_FALSE(e->akkuna()->isVisible());
    VertaaRuutua(i.peli, e, "Eläimet");
}

TEST_F(Screens, TheProductScreenWithTheManureCardAndTheAccountantsPanel) {
    Aseta(m.Työ[Kirjanpitäjä], 1);
    Aseta(m.Var[Lanta], 12.5);
    m.Tuotteet.Myy[Muna] = 1;
    m.Tuotteet.MyyTyyli[Muna] = "Puolet";
    Klikkaa({i.w->tanhua()->Command3()});
    Tuotteet* t = i.w->tuotteet();
    Klikkaa({t->Kuva(Lanta), t->KirjanpitäjäKuva()});
    ASSERT_TRUE(t->Taulu()->isVisible());
    EXPECT_EQ(t->findChild<QLabel*>("MyyntiAika")->text(), "joka viikko");
    EXPECT_GT(VertaaRuutua(i.peli, t, "Tuotteet"), 80);
}

TEST_F(Screens, TheBuildingScreenWithItsOrdersAndProductionPanels) {
    // One star: the sawmill is locked over its running order, the mill has an order, the barn two.
    m.Tähdet = 1;
    m.Raha = 500000;
    m.Rak[Mylly] = 2;
    m.RakAika[Saha] = 12;
    m.RakAika[Mylly] = 30;
    Klikkaa({i.w->tanhua()->Command2()});
    Rakennukset* r = i.w->rakennukset();
    ASSERT_EQ(i.w->pino()->currentWidget(), r);
    Klikkaa({r->Kuva(Työmaa(Navetta)), r->Plus(), r->Command2()});
    VertaaRuutua(i.peli, r, "Rakennukset");
    EXPECT_EQ(r->findChild<QLabel*>("RakenneSahaz")->text(), "Lukittu");
    // The locked label tells the stars that open it; a label with no tip of its own shows none.
    EXPECT_EQ(r->findChild<QLabel*>("RakenneSahaz")->toolTip(), "Lukittu. Avautuu, kun tilallasi on 2 tähteä.");
    EXPECT_EQ(r->findChild<QLabel*>("RakenneNavettaz")->toolTip(), "");
    EXPECT_EQ(r->findChild<QLabel*>("RakenneNavettaz")->text(), "50 päivää");
    EXPECT_EQ(r->hintanäky()->text(), " 20000");

    // A built building chosen: its production panel takes the text's place and the level shows.
    Klikkaa({r->findChild<QLabel*>("RakenneMyllyz")});
    m.RakAika[Mylly] = 0;
    Klikkaa({r->Kuva(Mylly)});
    VertaaRuutua(i.peli, r, "Rakennukset");
    EXPECT_EQ(r->findChild<QLabel*>("taso")->text(), "2 / 5");
    EXPECT_FALSE(r->Plus()->isEnabled());

    // An unbuilt dairy chosen starts at full output; it has no panel or slider yet.
    Muuttujat& m = i.peli.m;
    m.Rak[Kasvihuone] = 1;
    m.Tulo[Juusto] = 1234;
    m.Tuotanto[Meijeri] = 0;
    Klikkaa({r->Kuva(Meijeri)});
    EXPECT_EQ(m.Tuotanto[Meijeri], 100);
    EXPECT_FALSE(r->Rakennus_Tuotanto()->isVisible());
    EXPECT_FALSE(r->findChild<QLabel*>("RaakaKuva")->isVisible());
    // Built, it shows its month's output, its product pictures and the slider.
    m.Rak[Meijeri] = 1;
    Klikkaa({r->Kuva(Meijeri)});
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
        Klikkaa({r->Kuva(Kasvihuone)});
        VertaaRuutua(i.peli, r, "Rakennukset");
        EXPECT_FALSE(r->Rakennus_Tuotanto()->isVisible());
        EXPECT_TRUE(info->text().startsWith("Kasvihuoneen tämän kk:n tuotto: "));
        EXPECT_EQ(info->text().contains("Nettotuotto"), m.Vuodenaika == "Kesä");
    }
    QTest::keyClick(r, Qt::Key_Escape);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua()) << "Esc leaves the building screen";
}

TEST_F(Screens, TheSuppliesShopShowsItsControlsAsTheGameReadsThem) {
    EXPECT_FALSE(i.w->tanhua()->Command9()->isEnabled()) << "the supplies wait for the first star";
    m.Tähdet = 1;
    m.Raha = 30000;
    i.w->PalaaPääruutuun();
    Klikkaa({i.w->tanhua()->Command9()});
    Tarvikkeet* t = i.w->tarvikkeet();
    ASSERT_EQ(i.w->pino()->currentWidget(), t);
    EXPECT_EQ(VertaaRuutua(i.peli, i.w->rahaKyltti(), "RahaKyltti"), 1);
    Klikkaa({t->Command3()});
    t->Lista()->setCurrentRow(8);  // Kirnu
    Klikkaa({t->Command5(), t->Command4()});
    t->Lista()->setCurrentRow(5);  // Kaivo
    Klikkaa({t->Command5(), t->Command6()});
    t->Lista()->setCurrentRow(1);
    VertaaRuutua(i.peli, t, "Tarvikkeet");
    // The owned list in order of purchase, its second row chosen for sale.
    EXPECT_EQ(t->Lista()->currentItem()->text(), "Kaivo");
    EXPECT_EQ(t->Command5()->text(), "Myy");
}

TEST_F(Screens, TheStaffScreenAndTheBankShowTheirControls) {
    m.Tähdet = 2;
    m.Rak[Leipomo] = 1;
    m.Työ[Leipuri] = 1;
    m.Työ[Siivooja] = 3;
    Klikkaa({i.w->tanhua()->Command8()});
    Työvoima* t = i.w->työvoima();
    ASSERT_EQ(i.w->pino()->currentWidget(), t);
    const auto rivit = t->Lista()->findItems("Leipuri", Qt::MatchExactly);
    ASSERT_EQ(rivit.size(), 1);
    t->Lista()->setCurrentItem(rivit.front());
    Klikkaa({t->Command3(), t->Command7()});
    t->mittari()->setValue(370);
    EXPECT_EQ(m.Palkka[Leipuri], 5370);
    EXPECT_EQ(VertaaRuutua(i.peli, t, "Työvoima"), 18);
    EXPECT_EQ(t->palk()->text(), " 5370");
    Klikkaa({t->Command1()});

    Klikkaa({i.w->tanhua()->Command6()});
    Pankki* p = i.w->pankki();
    ASSERT_EQ(i.w->pino()->currentWidget(), p);
    Klikkaa({p->Command2()});
    QTest::keyClicks(p->summa(), "3000");
    Klikkaa({p->Command8()});
    EXPECT_EQ(m.Laina, 3000);
    // The loan sheet shows with "Hyväksy" off; the insurance sheet's controls are out of sight.
    EXPECT_EQ(VertaaRuutua(i.peli, p, "Pankki"), 20);
    EXPECT_FALSE(p->Command8()->isEnabled());
    Klikkaa({p->vaku(), p->Vakuutus(VakuutusTyö)});
    EXPECT_EQ(i.peli.pankkiruutu.Vakusummaz, "600");  // five workers and the base
    EXPECT_EQ(VertaaRuutua(i.peli, p, "Pankki"), 24);
    // Esc hides the sheets; the bank opened again shows none and a fresh loan sheet can be confirmed.
    QTest::keyClick(p, Qt::Key_Escape);
    QTest::keyClick(p, Qt::Key_Escape);
    m.Laina = 0;
    Klikkaa({i.w->tanhua()->Command6()});
    EXPECT_EQ(VertaaRuutua(i.peli, p, "Pankki"), 10);
    Klikkaa({p->Command2()});
    EXPECT_TRUE(p->Command8()->isEnabled());
}

TEST_F(Screens, ThePhoneOpensTheContractsAndACallEndsInAnAnswer) {
    Aseta(m.El[Nauta][Naaras], 10);
    Aseta(m.Päivä, 5);
    // The day's step forced to a call about milk.
    for (double r : {0.0, 0.0, 0.5}) i.peli.arvonta.Jonoon(r);
    i.w->Toimi([&] { Sopimustarjous(i.peli); });
    Tanhua* t = i.w->tanhua();
    ASSERT_TRUE(t->Puhelin()->isVisible());
    EXPECT_GT(VertaaRuutua(i.peli, t, "Tanhua"), 20);

    Klikkaa({t->Puhelin()});
    Sopimukset* s = i.w->sopimukset();
    ASSERT_EQ(i.w->pino()->currentWidget(), s);
    EXPECT_FALSE(i.peli.näkymä.Puhelin);
    Klikkaa({s->Command5()});
    QListWidget* lista = s->Sopimuksia();
    ASSERT_EQ(lista->count(), 1);
    // The terms: half the base amount, the price as it stands, 17 months.
    for (double r : {0.0, 0.5, 0.99, 0.0, 0.0, 0.0, 0.0}) i.peli.arvonta.Jonoon(r);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(0)).center());
    ASSERT_TRUE(i.peli.sopimusruutu.Puhelussa);
    EXPECT_EQ(i.peli.arvonta.JonossaJäljellä(), 0u);
    EXPECT_TRUE(s->infoa()->text().startsWith("Paikallinen yhtiö on valmis tekemään kanssasi Maito-sopimuksen."));

    // "Sulje" is refused while the buyer waits for an answer.
    i.VastaaNäppäimellä(Qt::Key_K);
    Klikkaa({s->Command1()});
    EXPECT_EQ(i.w->pino()->currentWidget(), s);
    i.VastaaNäppäimellä(Qt::Key_K);
    Klikkaa({s->Command3()});
    EXPECT_EQ(m.Sop[0].Tuote, "Maito");
    EXPECT_EQ(lista->count(), 0);
    Klikkaa({s->Command6()});
    EXPECT_EQ(s->findChild<QLabel*>("s1kestoz")->text(), "1 v 5 kk");
    EXPECT_TRUE(s->findChild<QLabel*>("s1hintaz")->text().endsWith(" /KK"));
    EXPECT_TRUE(s->findChild<QLabel*>("s1määräz")->text().endsWith(" /KK"));
    EXPECT_EQ(VertaaRuutua(i.peli, s, "Sopimukset"), 35);

    // A click on the product chooses it for cancelling; "Ei" keeps it.
    Klikkaa({s->Tuote(0)});
    EXPECT_EQ(s->findChild<QLabel*>("Peruttava")->text(), "Maito");
    i.VastaaNäppäimellä(Qt::Key_E);
    Klikkaa({s->Command7()});
    EXPECT_EQ(m.Sop[0].Tuote, "Maito");
    Klikkaa({s->Command1()});
    EXPECT_EQ(i.w->pino()->currentWidget(), t);
}

}  // namespace
}  // namespace tanhua::ui
