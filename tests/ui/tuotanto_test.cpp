// The building screen's production panels in the window: the panel in the info box, the product
// pictures, and the slider that sets a building's percentage.
#include <gtest/gtest.h>

#include <QLabel>
#include <QSlider>
#include <QTest>

#include "ui/Rakennukset.h"
#include "ui/Tanhua.h"
#include "ikkuna.h"

namespace tanhua::ui {
namespace {

using testi::Ikkuna;
using testi::VertaaRuutua;

TEST(ProductionPanels, ADairysPanelAndSliderAndTheYardsInWinter) {
    Ikkuna i;
    i.Aloita();
    Muuttujat& m = i.peli.m;
    m.Rak[Kasvihuone] = 1;
    m.Tulo[Juusto] = 1234;
    QTest::mouseClick(i.w->tanhua()->Command2(), Qt::LeftButton);
    Rakennukset* r = i.w->rakennukset();
    // An unbuilt dairy chosen starts at full output; it has no panel or slider yet.
    m.Tuotanto[Meijeri] = 0;
    QTest::mouseClick(r->Kuva(Meijeri), Qt::LeftButton);
    EXPECT_EQ(m.Tuotanto[Meijeri], 100);
    EXPECT_FALSE(r->Rakennus_Tuotanto()->isVisible());
    EXPECT_FALSE(r->findChild<QLabel*>("RaakaKuva")->isVisible());

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
    m.Vuodenaika = "Talvi";
    QTest::mouseClick(r->Kuva(Kasvihuone), Qt::LeftButton);
    VertaaRuutua(i.peli, r, "Rakennukset");
    EXPECT_FALSE(r->Rakennus_Tuotanto()->isVisible());
    EXPECT_TRUE(info->text().startsWith("Kasvihuoneen tämän kk:n tuotto: "));
    EXPECT_FALSE(info->text().contains("Nettotuotto"));
    m.Vuodenaika = "Kesä";
    QTest::mouseClick(r->Kuva(Kasvihuone), Qt::LeftButton);
    EXPECT_TRUE(info->text().contains("Nettotuotto"));
}

}  // namespace
}  // namespace tanhua::ui
