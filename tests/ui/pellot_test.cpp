// The land screen opened from the main screen, a hectare bought, the refusal met, the forester's
// panel; and the sowing and harvest screens, which play never reaches, entered from their pictures.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QTest>

#include "ui/Kylvö.h"
#include "ui/Nosto.h"
#include "ui/Pellot.h"
#include "ui/RahaKyltti.h"
#include "ui/Tanhua.h"
#include "ikkuna.h"

namespace tanhua::ui {
namespace {

using testi::Klikkaa;
using testi::VertaaRuutua;
using LandScreen = testi::Pelissä;

TEST_F(LandScreen, ABuyARefusalAndTheForestersPanel) {
    // The star lock keeps the button off until the first star.
    EXPECT_FALSE(i.w->tanhua()->Command5()->isEnabled());
    Aseta(m.Tähdet, 1);
    i.w->PalaaPääruutuun();
    Klikkaa({i.w->tanhua()->Command5()});
    Pellot* p = i.w->pellot();
    ASSERT_EQ(i.w->pino()->currentWidget(), p);
    EXPECT_EQ(VertaaRuutua(i.peli, p, "Pellot"), 6);

    Aseta(m.Raha, 100000);
    m.LantaPeltoon = true;
    Klikkaa({p->Maa(MaaPelto), p->Command7()});
    EXPECT_EQ(m.Pelto, 1);
    EXPECT_EQ(i.w->rahaKyltti()->Rahatilaz()->text(), " 87975") << "the plate after the trade";
    // The card with the manure picture: its 15 controls and the six of the screen.
    EXPECT_EQ(VertaaRuutua(i.peli, p, "Pellot"), 21);

    Aseta(m.Raha, 100);
    i.VastaaNäppäimellä(Qt::Key_K);
    Klikkaa({p->Command7()});
    EXPECT_EQ(i.peli.näkymä.MsgTeksti.rfind("Ei sinulla ole varaa", 0), 0u);
    EXPECT_EQ(m.Pelto, 1);

    Aseta(m.Rak[Saha], 1);
    Aseta(m.Työ[Metsuri], 1);
    i.w->Päivitä();
    Klikkaa({p->MetsuriKuva(), p->Metsitä()});
    EXPECT_EQ(m.Pellot_Metsitä, 1);
    EXPECT_EQ(VertaaRuutua(i.peli, p, "Pellot"), 26);
    // Esc hides the card and the panel, then leaves the screen.
    QTest::keyClick(p, Qt::Key_Escape);
    EXPECT_EQ(VertaaRuutua(i.peli, p, "Pellot"), 7);
    QTest::keyClick(p, Qt::Key_Escape);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
}

TEST_F(LandScreen, SowingAndHarvestScreens) {
    Aseta(m.Raha, 100000);
    Aseta(m.Pelto, 4);
    Klikkaa({i.w->tanhua()->Command5()});
    Pellot* p = i.w->pellot();
    // Nothing in play shows the sowing picture; here it is shown by hand.
    i.peli.peltoruutu.Image4 = true;
    i.w->Päivitä();
    Klikkaa({p->Image4()});
    Kylvö* k = i.w->kylvö();
    ASSERT_EQ(i.w->pino()->currentWidget(), k);
    Klikkaa({k->Kuva(Peruna), k->plus(), k->plus(), k->Command3(), k->Myrkytetään()});
    EXPECT_EQ(i.peli.kylvöruutu.ala[Peruna], 2);
    EXPECT_EQ(VertaaRuutua(i.peli, k, "Kylvö"), 26);
    Klikkaa({k->Command2()});
    ASSERT_EQ(i.w->pino()->currentWidget(), p);
    EXPECT_EQ(m.Kylvetty[Peruna], 2);
    EXPECT_TRUE(p->Image5()->isVisible());
    EXPECT_FALSE(p->Image4()->isVisible());

    Klikkaa({p->Image5()});
    Nosto* n = i.w->nosto();
    ASSERT_EQ(i.w->pino()->currentWidget(), n);
    Klikkaa({n->Command4()});
    EXPECT_EQ(VertaaRuutua(i.peli, n, "Nosto"), 19);
    Klikkaa({n->Command2()});
    EXPECT_EQ(i.w->pino()->currentWidget(), p);
    EXPECT_EQ(m.KylvettyAla, 0);
    EXPECT_TRUE(p->Image4()->isVisible());
}

}  // namespace
}  // namespace tanhua::ui
