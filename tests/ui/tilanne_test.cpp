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
using testi::Klikkaa;
using testi::VertaaRuutua;
using TilanneScreen = testi::Pelissä;

TEST_F(TilanneScreen, SavesAndOpensThroughThePanel) {
    m.OhjeetPäällä = true;
    Klikkaa({i.w->tanhua()->Command7()});
    Tilanne* t = i.w->tilanne();
    ASSERT_EQ(i.w->pino()->currentWidget(), t);
    EXPECT_EQ(t->Alue()->Rivit().at(2), "      Vaikeustaso : Normaali");
    EXPECT_EQ(i.peli.tilanneruutu.Ohje, "Tervetuloa tilanne valikkoon");
    EXPECT_EQ(VertaaRuutua(i.peli, t, "Tilanne"), 6);

    Klikkaa({t->Command1()});
    QTest::keyClicks(t->Kohde(), "Syksy");
    i.VastaaNäppäimellä(Qt::Key_K);
    Klikkaa({t->Command5()});
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
    Klikkaa({t->Command6()});
    EXPECT_EQ(i.peli.näkymä.MsgTeksti, "Tilanne avattu onnistuneesti");
    EXPECT_EQ(m.Raha, 10000);
    // Esc closes the panel first, then the screen.
    QTest::keyClick(t, Qt::Key_Escape);
    EXPECT_FALSE(t->Kohde()->isVisible());
    QTest::keyClick(t, Qt::Key_Escape);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
}

TEST(TilanneStory, PrintsAndTheListTakesAName) {
    Ikkuna i;
    i.Aloita("Pirkko");
    i.peli.m.Raha = 60000;
    Klikkaa({i.w->tanhua()->Command7()});
    Tilanne* t = i.w->tilanne();
    i.VastaaNäppäimellä(Qt::Key_K);
    Klikkaa({t->Command4()});
    ASSERT_TRUE(t->Tarina()->isVisible());
    EXPECT_EQ(t->Tarina()->Rivit().at(1), "          Sinun tarinasi:");
    EXPECT_EQ(t->Tarina()->Rivit().back(), "       Loppu.......");
    EXPECT_EQ(VertaaRuutua(i.peli, t, "Tilanne"), 7);
    // The screen's Sulje does nothing while the story shows.
    Klikkaa({t->Command3()});
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
    Klikkaa({t->TarinaSulje()});
    Topten* l = i.w->topten();
    ASSERT_EQ(i.w->pino()->currentWidget(), l);
    EXPECT_EQ(l->n(1)->text(), "Pirkko P");
    EXPECT_EQ(l->p(1)->text(), " 500");
    EXPECT_EQ(l->p(2)->text(), "100");
    EXPECT_EQ(VertaaRuutua(i.peli, l, "Topten"), 23);
    // Closing the list writes it and ends the program.
    Klikkaa({l->Command1()});
    EXPECT_TRUE(i.lopetettu);
    const auto rivit = ListanRivit(LueTiedosto(i.kansiot.data / "Topten.dat").value());
    ASSERT_EQ(rivit.size(), 20u);
    EXPECT_EQ(rivit[0], "Pirkko P");
}

}  // namespace
}  // namespace tanhua::ui
