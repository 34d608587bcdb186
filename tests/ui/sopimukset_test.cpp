// The contracts in the window: the phone rings, opens the screen, a call keeps the player there
// until it is answered, and the accepted contract shows in its slot row.
#include <gtest/gtest.h>

#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "contracts/sopimukset.h"
#include "ui/Sopimukset.h"
#include "ui/Tanhua.h"
#include "ikkuna.h"

namespace tanhua::ui {
namespace {

using testi::Ikkuna;
using testi::VertaaRuutua;

TEST(Screens, ThePhoneOpensTheContractsAndACallEndsInAnAnswer) {
    Ikkuna i;
    i.Aloita();
    Muuttujat& m = i.peli.m;
    Aseta(m.El[Nauta][Naaras], 10);
    Aseta(m.Päivä, 5);
    // The day's step forced to a call about milk.
    for (double r : {0.0, 0.0, 0.5}) i.peli.arvonta.Jonoon(r);
    i.w->Toimi([&] { Sopimustarjous(i.peli); });
    Tanhua* t = i.w->tanhua();
    ASSERT_TRUE(t->Puhelin()->isVisible());
    EXPECT_GT(VertaaRuutua(i.peli, t, "Tanhua"), 20);

    QTest::mouseClick(t->Puhelin(), Qt::LeftButton);
    Sopimukset* s = i.w->sopimukset();
    ASSERT_EQ(i.w->pino()->currentWidget(), s);
    EXPECT_FALSE(i.peli.näkymä.Puhelin);
    QTest::mouseClick(s->Command5(), Qt::LeftButton);
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
    QTest::mouseClick(s->Command1(), Qt::LeftButton);
    EXPECT_EQ(i.w->pino()->currentWidget(), s);
    i.VastaaNäppäimellä(Qt::Key_K);
    QTest::mouseClick(s->Command3(), Qt::LeftButton);
    EXPECT_EQ(m.Sop[0].Tuote, "Maito");
    EXPECT_EQ(lista->count(), 0);
    QTest::mouseClick(s->Command6(), Qt::LeftButton);
    EXPECT_EQ(s->findChild<QLabel*>("s1kestoz")->text(), "1 v 5 kk");
    EXPECT_TRUE(s->findChild<QLabel*>("s1hintaz")->text().endsWith(" /KK"));
    EXPECT_TRUE(s->findChild<QLabel*>("s1määräz")->text().endsWith(" /KK"));
    EXPECT_EQ(VertaaRuutua(i.peli, s, "Sopimukset"), 35);

    // A click on the product chooses it for cancelling; "Ei" keeps it.
    QTest::mouseClick(s->Tuote(0), Qt::LeftButton);
    EXPECT_EQ(s->findChild<QLabel*>("Peruttava")->text(), "Maito");
    i.VastaaNäppäimellä(Qt::Key_E);
    QTest::mouseClick(s->Command7(), Qt::LeftButton);
    EXPECT_EQ(m.Sop[0].Tuote, "Maito");
    QTest::mouseClick(s->Command1(), Qt::LeftButton);
    EXPECT_EQ(i.w->pino()->currentWidget(), t);
}

}  // namespace
}  // namespace tanhua::ui
