// The statistics screen and the race coupon in the window: the curve drawn with its labels, the
// table and the month's picture; the coupon from the way in to the sheet.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "ui/Käyrät.h"
#include "ui/Ravit.h"
#include "ui/Tanhua.h"
#include "ikkuna.h"

namespace tanhua::ui {
namespace {

using testi::Ikkuna;
using testi::Klikkaa;
using testi::VertaaRuutua;
using CurvesWindow = testi::Pelissä;
using RacesWindow = testi::Pelissä;

// The pixel of the plot where the curve's point (x, y) in the plot's units falls.
QColor Kohta(const QImage& kuva, double x, double y) {
    return kuva.pixelColor(static_cast<int>(x * kuva.width() / TAULU_LEVEYS),
                           static_cast<int>(y * kuva.height() / TAULU_KORKEUS));
}
bool Punainen(const QColor& c) { return c.red() > 130 && c.green() < 100 && c.blue() < 100; }

TEST_F(CurvesWindow, TheCurveIsDrawnWithItsLabelsAtAnySize) {
    m.Käyrät.Rahatila = {" 0", " 200"};
    Klikkaa({i.w->tanhua()->Stat()});
    Käyrät* k = i.w->käyrät();
    ASSERT_EQ(i.w->pino()->currentWidget(), k);
    EXPECT_FALSE(k->Command(5)->isEnabled()) << "no bookkeeper";
    Klikkaa({k->Command(6)});
    EXPECT_EQ(k->findChild<QLabel*>("Maximi")->text(), " 1000;-");
    EXPECT_EQ(k->findChild<QLabel*>("otsikko")->text(), "Rahatilanteesi");
    EXPECT_EQ(VertaaRuutua(i.peli, k, "Käyrät"), 23) << "all but the net list, the notice and the picture";
    // The rising half ends 100 units up at the right edge; above and below it the plot is bare.
    for (QSize koko : {QSize(800, 600), QSize(1600, 1200)}) {
        i.w->resize(koko);
        QApplication::processEvents();
        const QImage kuva = k->Taulu()->grab().toImage();
        EXPECT_TRUE(Punainen(Kohta(kuva, 450, 350.5))) << koko.width();
        EXPECT_FALSE(Punainen(Kohta(kuva, 450, 300))) << koko.width();
        EXPECT_FALSE(Punainen(Kohta(kuva, 150, 200))) << koko.width();
    }
    // The net table, then the picture's notice before any month end.
    Klikkaa({k->Command(9)});
    EXPECT_EQ(VertaaRuutua(i.peli, k, "Käyrät"), 23);
    Klikkaa({k->Command(10)});
    EXPECT_TRUE(k->findChild<QLabel*>("Ilmoitusteksti")->isVisible());
    QTest::keyClick(k, Qt::Key_Escape);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
}

TEST_F(CurvesWindow, TheMonthsPictureShowsAndAKeyHidesIt) {
    m.Päivä = 30;
    Klikkaa({i.w->tanhua()->Command4()});
    ASSERT_FALSE(i.w->KuukaudenvaihdeKuva.isNull());
    i.w->raportti()->findChild<QPushButton*>("Command1")->click();
    Klikkaa({i.w->tanhua()->Stat()});
    Käyrät* k = i.w->käyrät();
    Klikkaa({k->Command(10)});
    EXPECT_TRUE(k->Kuva()->isVisible());
    EXPECT_FALSE(k->Command(6)->isEnabled()) << "the picture covers the buttons";
    EXPECT_EQ(VertaaRuutua(i.peli, k, "Käyrät"), 24);
    QTest::keyClick(k->Kuva(), Qt::Key_Space);
    EXPECT_FALSE(k->Kuva()->isVisible());
    EXPECT_EQ(i.w->pino()->currentWidget(), k) << "the key only hid the picture";
}

TEST_F(RacesWindow, ACouponFromTheWayInToTheSheet) {
    const float raha = m.Raha;
    // The notice is the plain box: closed as a player would.
    Ikkuna::SuljeLaatikko();
    i.w->AvaaRavit();
    Ravit* r = i.w->ravit();
    ASSERT_EQ(i.w->pino()->currentWidget(), r);
    EXPECT_EQ(VertaaRuutua(i.peli, r, "Ravit"), 2);
    Klikkaa({r->Command(2), r->Command(9), r->Rivi(2), r->Kerroin(4), r->Command(7)});
    EXPECT_EQ(i.peli.raviruutu.Ruutu[4], "X");
    EXPECT_EQ(i.peli.raviruutu.otsikko, " Rivi :  3");
    EXPECT_FALSE(r->RaviNimi(0)->text().isEmpty());
    EXPECT_EQ(VertaaRuutua(i.peli, r, "Ravit"), 52);
    Ikkuna::SuljeLaatikko();
    Klikkaa({r->Command(4)});
    EXPECT_TRUE(r->Tulos()->isVisible());
    EXPECT_EQ(VertaaRuutua(i.peli, r, "Ravit"), 4);
    EXPECT_EQ(m.Raha, raha);
    Klikkaa({r->Command(1)});
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
}

}  // namespace
}  // namespace tanhua::ui
