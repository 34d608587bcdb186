// The 800 x 600 canvas scaled to the window: the same screens, whole and in proportion, at every size,
// taking clicks where they are drawn; F11 and the whole-screen setting.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>

#include "ikkuna.h"
#include "ui/Kangas.h"
#include "ui/Tanhua.h"
#include "ui/Tarvikkeet.h"

#include <cmath>

namespace tanhua::ui {
namespace {

using testi::Ikkuna;

TEST(Canvas, ScalesUniformlyToEveryWindowSizeAndTakesClicksWhereItDraws) {
    const qreal suhde = qApp->devicePixelRatio();
    for (const QSize koko : {QSize(800, 600), QSize(1280, 720), QSize(1920, 1080), QSize(3840, 2160), QSize(1000, 1000)}) {
        SCOPED_TRACE(QString("%1 x %2").arg(koko.width()).arg(koko.height()).toStdString());
        Ikkuna i;
        i.peli.asetukset.Kursorit = true;
        i.Aloita();
        i.w->resize(koko);
        QApplication::processEvents();
        Kangas* k = i.w->kangas();
        ASSERT_EQ(k->viewport()->size(), koko);
        const double odotettu = std::min(koko.width() / 800.0, koko.height() / 600.0);
        EXPECT_DOUBLE_EQ(k->Mittakaava(), odotettu);
        EXPECT_DOUBLE_EQ(Piirtotarkkuus(), odotettu * suhde) << "pictures are made at the screen's pixels";
        // The whole canvas shows, in the middle, with equal margins on the two sides that have them.
        const QRect piirretty = k->mapFromScene(QRectF(0, 0, 800, 600)).boundingRect();
        EXPECT_TRUE(k->viewport()->rect().adjusted(-1, -1, 1, 1).contains(piirretty)) << piirretty.x() << "," << piirretty.y();
        EXPECT_LE(std::abs(piirretty.left() - (koko.width() - 1 - piirretty.right())), 2);
        EXPECT_LE(std::abs(piirretty.top() - (koko.height() - 1 - piirretty.bottom())), 2);
        // The screens keep their design size whatever the window's.
        EXPECT_EQ(i.w->sisältö()->size(), QSize(800, 600));
        EXPECT_EQ(i.w->pino()->geometry(), QRect(0, 0, 800, 600));
        // A click where the view draws the next-day button presses it.
        QPushButton* päivä = i.w->tanhua()->Command4();
        const QPoint keskellä = k->mapFromScene(QPointF(päivä->mapTo(i.w->sisältö(), päivä->rect().center())));
        const int ennen = i.peli.m.Päivä;
        QTest::mouseClick(k->viewport(), Qt::LeftButton, {}, keskellä);
        EXPECT_EQ(i.peli.m.Päivä, ennen + 1);
        // A picture of the screen is drawn from as many pixels as it covers on the screen.
        QLabel* logo = i.w->tanhua()->findChild<QLabel*>("PlayerLogo");
        ASSERT_NE(logo, nullptr);
        ASSERT_FALSE(logo->pixmap().isNull());
        EXPECT_DOUBLE_EQ(logo->pixmap().devicePixelRatio(), odotettu * suhde);
        EXPECT_EQ(logo->pixmap().deviceIndependentSize().toSize(), QSize(48, 48));
        // The pitchfork is 32 units of the canvas on the forms that take it; the supplies keep the arrow.
        const int kursori = static_cast<int>(std::lround(32 * odotettu * suhde));
        EXPECT_EQ(i.w->tanhua()->cursor().shape(), Qt::BitmapCursor);
        EXPECT_EQ(i.w->tanhua()->cursor().pixmap().size(), QSize(kursori, kursori));
        EXPECT_EQ(i.w->tarvikkeet()->cursor().shape(), Qt::ArrowCursor);
    }
}

TEST(Canvas, F11AndTheWholeScreenSettingSwitchWithoutChangingTheDisplay) {
    Ikkuna i;
    i.w->show();
    QTest::keyClick(i.w->alku()->Nimesi(), Qt::Key_F11);
    EXPECT_TRUE(i.w->isFullScreen());
    QTest::keyClick(i.w->alku()->Nimesi(), Qt::Key_F11);
    EXPECT_FALSE(i.w->isFullScreen());
    // With the setting on, the game takes the whole screen when a farm starts; off, it stays a window.
    for (const bool koko : {false, true}) {
        Ikkuna j;
        j.peli.asetukset.Resoluutio800 = koko;
        j.Aloita();
        EXPECT_EQ(j.w->isFullScreen(), koko);
        EXPECT_TRUE(j.w->tanhua()->Command4()->hasFocus());
    }
}

}  // namespace
}  // namespace tanhua::ui
