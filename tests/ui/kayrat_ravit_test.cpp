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
using testi::VertaaRuutua;

// The pixel of the plot where the curve's point (x, y) in the plot's units falls.
QColor Kohta(const QImage& kuva, double x, double y) {
    return kuva.pixelColor(static_cast<int>(x * kuva.width() / TAULU_LEVEYS),
                           static_cast<int>(y * kuva.height() / TAULU_KORKEUS));
}
bool Punainen(const QColor& c) { return c.red() > 130 && c.green() < 100 && c.blue() < 100; }

TEST(CurvesWindow, TheCurveIsDrawnWithItsLabelsAtAnySize) {
    Ikkuna i;
    i.Aloita();
    i.peli.m.Käyrät.Rahatila = {" 0", " 200"};
    QTest::mouseClick(i.w->tanhua()->Stat(), Qt::LeftButton);
    Käyrät* k = i.w->käyrät();
    ASSERT_EQ(i.w->pino()->currentWidget(), k);
    EXPECT_FALSE(k->Command(5)->isEnabled()) << "no bookkeeper";
    QTest::mouseClick(k->Command(6), Qt::LeftButton);
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
    QTest::mouseClick(k->Command(9), Qt::LeftButton);
    EXPECT_EQ(VertaaRuutua(i.peli, k, "Käyrät"), 23);
    QTest::mouseClick(k->Command(10), Qt::LeftButton);
    EXPECT_TRUE(k->findChild<QLabel*>("Ilmoitusteksti")->isVisible());
    QTest::keyClick(k, Qt::Key_Escape);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
}

TEST(CurvesWindow, TheMonthsPictureShowsAndAKeyHidesIt) {
    Ikkuna i;
    i.Aloita();
    i.peli.m.Päivä = 30;
    QTest::mouseClick(i.w->tanhua()->Command4(), Qt::LeftButton);
    ASSERT_FALSE(i.w->KuukaudenvaihdeKuva.isNull());
    i.w->raportti()->findChild<QPushButton*>("Command1")->click();
    QTest::mouseClick(i.w->tanhua()->Stat(), Qt::LeftButton);
    Käyrät* k = i.w->käyrät();
    QTest::mouseClick(k->Command(10), Qt::LeftButton);
    EXPECT_TRUE(k->Kuva()->isVisible());
    EXPECT_FALSE(k->Command(6)->isEnabled()) << "the picture covers the buttons";
    EXPECT_EQ(VertaaRuutua(i.peli, k, "Käyrät"), 24);
    QTest::keyClick(k->Kuva(), Qt::Key_Space);
    EXPECT_FALSE(k->Kuva()->isVisible());
    EXPECT_EQ(i.w->pino()->currentWidget(), k) << "the key only hid the picture";
}

TEST(RacesWindow, ACouponFromTheWayInToTheSheet) {
    Ikkuna i;
    i.Aloita();
    const float raha = i.peli.m.Raha;
    // The notice is the plain box: closed as a player would.
    QTimer::singleShot(0, [] {
        if (QWidget* laatikko = QApplication::activeModalWidget()) laatikko->close();
    });
    i.w->AvaaRavit();
    Ravit* r = i.w->ravit();
    ASSERT_EQ(i.w->pino()->currentWidget(), r);
    EXPECT_EQ(VertaaRuutua(i.peli, r, "Ravit"), 2);
    QTest::mouseClick(r->Command(2), Qt::LeftButton);
    QTest::mouseClick(r->Command(9), Qt::LeftButton);
    QTest::mouseClick(r->Rivi(2), Qt::LeftButton);
    QTest::mouseClick(r->Kerroin(4), Qt::LeftButton);
    QTest::mouseClick(r->Command(7), Qt::LeftButton);
    EXPECT_EQ(i.peli.raviruutu.Ruutu[4], "X");
    EXPECT_EQ(i.peli.raviruutu.otsikko, " Rivi :  3");
    EXPECT_FALSE(r->RaviNimi(0)->text().isEmpty());
    EXPECT_EQ(VertaaRuutua(i.peli, r, "Ravit"), 52);
    QTimer::singleShot(0, [] {
        if (QWidget* laatikko = QApplication::activeModalWidget()) laatikko->close();
    });
    QTest::mouseClick(r->Command(4), Qt::LeftButton);
    EXPECT_TRUE(r->Tulos()->isVisible());
    EXPECT_EQ(VertaaRuutua(i.peli, r, "Ravit"), 4);
    EXPECT_EQ(i.peli.m.Raha, raha);
    QTest::mouseClick(r->Command(1), Qt::LeftButton);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
}

}  // namespace
}  // namespace tanhua::ui
