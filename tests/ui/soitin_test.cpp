// The music player's panel, a song's end reaching the game, and a screen folding open and closed.
#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "ui/Eläimet.h"
#include "ui/Player.h"
#include "ui/Tanhua.h"
#include "ikkuna.h"
#include "ui/Hevostalli.h"
#include "ui/Ravit.h"

namespace tanhua::ui {
namespace {

using testi::Ikkuna;
using testi::Klikkaa;
using testi::VertaaRuutua;
using ScreenFold = testi::Pelissä;

TEST(MusicPlayerPanel, SlidesOutWithTheSongsAndASongsEndPlaysTheNext) {
    Ikkuna i;
    i.peli.asetukset.Musiikki = false;
    i.Aloita();
    i.peli.asetukset.Animaatiot = true;
    i.peli.asetukset.BiisiSatunnainen = false;
    Player* panel = i.w->tanhua()->player();
    EXPECT_FALSE(panel->isVisible());
    Klikkaa({i.w->tanhua()->PlayerLogo()});
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->y(), i.w->tanhua()->height() / 3) << "the slide ends a third of the way down";
    EXPECT_GE(panel->MidiFile()->count(), 2);
    EXPECT_EQ(VertaaRuutua(i.peli, panel, "Player"), 8);

    const int rivi = i.peli.soitin.ListIndex;
    i.w->KappaleLoppui();
    EXPECT_EQ(i.peli.soitin.ListIndex, (rivi + 1) % panel->MidiFile()->count());
    EXPECT_EQ(panel->MidiFile()->currentRow(), i.peli.soitin.ListIndex);

    // Esc on the panel slides it away and gives the next day back its key.
    i.peli.asetukset.Animaatiot = false;
    QTest::keyClick(panel->cmdPlayer1(), Qt::Key_Escape);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(i.w->tanhua()->Command4()->hasFocus());
}

TEST_F(ScreenFold, AScreenOpensAndClosesWholeWithTheFocusBackOnTheNextDay) {
    i.peli.asetukset.Animaatiot = true;
    i.peli.asetukset.AnimNopeus = 100;
    i.peli.asetukset.Prosessorisäästö = true;
    const QRect sivu = i.w->tanhua()->geometry();
    Klikkaa({i.w->tanhua()->Command1()});
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->eläimet());
    EXPECT_EQ(i.w->eläimet()->geometry(), sivu) << "the screen ends at its own size";
    EXPECT_TRUE(i.w->eläimet()->isEnabled());
    QTest::keyClick(i.w->eläimet(), Qt::Key_Escape);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
    EXPECT_EQ(i.w->tanhua()->geometry(), sivu) << "the main form has its size back";
    EXPECT_TRUE(i.w->tanhua()->Command4()->hasFocus());
    // The race coupon folds open from the stable and back to it, each at its own size at the end.
    i.w->AvaaRuutu(i.w->hevostalli());
    Ikkuna::SuljeLaatikko();
    struct Koot : QObject {
        int muutoksia = 0;
        bool eventFilter(QObject*, QEvent* e) override {
            muutoksia += e->type() == QEvent::Resize;
            return false;
        }
    } koot;
    i.w->ravit()->installEventFilter(&koot);
    i.w->AvaaRavit(i.w->hevostalli());
    EXPECT_GT(koot.muutoksia, 2) << "the coupon opens round by round";
    i.w->ravit()->removeEventFilter(&koot);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->ravit());
    EXPECT_EQ(i.w->ravit()->geometry(), sivu);
    EXPECT_TRUE(i.w->hevostalli()->isEnabled());
    Klikkaa({i.w->ravit()->Command(1)});
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->hevostalli());
    EXPECT_EQ(i.w->hevostalli()->geometry(), sivu);
    EXPECT_TRUE(i.w->hevostalli()->isEnabled());
}

}  // namespace
}  // namespace tanhua::ui
