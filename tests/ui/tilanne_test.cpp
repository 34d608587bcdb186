// The Tilanne and top-ten screens in the window: the panel lists the saves, a save and an open
// through the buttons, the story printed, and the list that takes the retiring player's name.
#include <gtest/gtest.h>

#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "storage/topten.h"
#include "storage/tiedostot.h"
#include "ui/Tanhua.h"
#include "ui/Tilanne.h"
#include "ui/Topten.h"
#include "ikkuna.h"

namespace tanhua::ui {
namespace {

using testi::Ikkuna;
using testi::VertaaRuutua;

TEST(TilanneScreen, SavesAndOpensThroughThePanel) {
    Ikkuna i;
    i.Aloita();
    Muuttujat& m = i.peli.m;
    m.OhjeetPäällä = true;
    QTest::mouseClick(i.w->tanhua()->Command7(), Qt::LeftButton);
    Tilanne* t = i.w->tilanne();
    ASSERT_EQ(i.w->pino()->currentWidget(), t);
    EXPECT_EQ(t->Alue()->Rivit().at(2), "      Vaikeustaso : Normaali");
    EXPECT_EQ(i.peli.tilanneruutu.Ohje, "Tervetuloa tilanne valikkoon");
    EXPECT_EQ(VertaaRuutua(i.peli, t, "Tilanne"), 6);

    QTest::mouseClick(t->Command1(), Qt::LeftButton);
    QTest::keyClicks(t->Kohde(), "Syksy");
    i.VastaaNäppäimellä(Qt::Key_K);
    QTest::mouseClick(t->Command5(), Qt::LeftButton);
    EXPECT_EQ(i.peli.näkymä.MsgTeksti, "Tilanne tallennettu");
    ASSERT_EQ(t->File1()->count(), 1);
    EXPECT_EQ(t->File1()->item(0)->text(), "Syksy.sav");
    EXPECT_EQ(VertaaRuutua(i.peli, t, "Tilanne"), 13);

    // The farm moves on; a click on the save and "Avaa" bring it back.
    m.Raha = 1;
    t->Kohde()->clear();
    i.peli.tilanneruutu.Kohde.clear();
    const QRect rivi = t->File1()->visualItemRect(t->File1()->item(0));
    QTest::mouseClick(t->File1()->viewport(), Qt::LeftButton, {}, rivi.center());
    EXPECT_EQ(t->Kohde()->text(), "Syksy");
    i.VastaaNäppäimellä(Qt::Key_K);
    QTest::mouseClick(t->Command6(), Qt::LeftButton);
    EXPECT_EQ(i.peli.näkymä.MsgTeksti, "Tilanne avattu onnistuneesti");
    EXPECT_EQ(m.Raha, 10000);
    // Esc closes the panel first, then the screen.
    QTest::keyClick(t, Qt::Key_Escape);
    EXPECT_FALSE(t->Kohde()->isVisible());
    QTest::keyClick(t, Qt::Key_Escape);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
}

TEST(TilanneScreen, TheStoryPrintsAndTheListTakesAName) {
    Ikkuna i;
    i.Aloita("Pirkko");
    i.peli.m.Raha = 60000;
    QTest::mouseClick(i.w->tanhua()->Command7(), Qt::LeftButton);
    Tilanne* t = i.w->tilanne();
    i.VastaaNäppäimellä(Qt::Key_K);
    QTest::mouseClick(t->Command4(), Qt::LeftButton);
    ASSERT_TRUE(t->Tarina()->isVisible());
    EXPECT_EQ(t->Tarina()->Rivit().at(1), "          Sinun tarinasi:");
    EXPECT_EQ(t->Tarina()->Rivit().back(), "       Loppu.......");
    EXPECT_EQ(VertaaRuutua(i.peli, t, "Tilanne"), 7);
    // The screen's Sulje does nothing while the story shows.
    QTest::mouseClick(t->Command3(), Qt::LeftButton);
    EXPECT_EQ(i.w->pino()->currentWidget(), t);

    // The score of 500 takes row 1 of a fresh list; the prompt is answered with a name.
    QTimer::singleShot(0, [] {
        auto* kysely = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(kysely, nullptr);
        EXPECT_EQ(kysely->windowTitle(), "Top 10 Farmari");
        EXPECT_EQ(kysely->textValue(), "Pirkko");
        kysely->setTextValue("Pirkko P");
        kysely->accept();
    });
    QTest::mouseClick(t->TarinaSulje(), Qt::LeftButton);
    Topten* l = i.w->topten();
    ASSERT_EQ(i.w->pino()->currentWidget(), l);
    EXPECT_EQ(l->n(1)->text(), "Pirkko P");
    EXPECT_EQ(l->p(1)->text(), " 500");
    EXPECT_EQ(l->p(2)->text(), "100");
    EXPECT_EQ(VertaaRuutua(i.peli, l, "Topten"), 23);
    // Closing the list writes it and ends the program.
    QTest::mouseClick(l->Command1(), Qt::LeftButton);
    EXPECT_TRUE(i.lopetettu);
    const auto rivit = ListanRivit(LueTiedosto(i.kansiot.data / "Topten.dat").value());
    ASSERT_EQ(rivit.size(), 20u);
    EXPECT_EQ(rivit[0], "Pirkko P");
}

}  // namespace
}  // namespace tanhua::ui
