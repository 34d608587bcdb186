// The stable screen and the wage talks in the window: the controls against their widgets, the price
// slider, the crowding's colour, and a talk answered from the keyboard.
#include <gtest/gtest.h>

#include <QEnterEvent>
#include <QTest>
#include <deque>

#include "ikkuna.h"
#include "ui/Hevostalli.h"
#include "ui/Tanhua.h"
#include "workforce/neuvottelut.h"

namespace tanhua::ui {
namespace {

using testi::Klikkaa;
using testi::VertaaRuutua;
using StableWindow = testi::Pelissä;

// The stylesheet colour of a label as "rgb(r,g,b)".
bool Värinen(const QLabel* l, const char* rgb) { return l->styleSheet().contains(rgb); }

TEST_F(StableWindow, TheSliderSetsTheHourPriceAndTheCrowdingTurnsYellowThenRed) {
    m.Rak[Rakennus::Hevostalli] = 1;
    m.El[Hevonen][Naaras] = 2;
    m.Laidun = 10;
    m.Työ[Tallimestari] = 1;
    EXPECT_FALSE(i.w->tanhua()->Hepotalli()->isVisible());
    QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Return);
    ASSERT_TRUE(i.w->tanhua()->Hepotalli()->isVisible()) << "a day with a stable and a mare shows the button";
    Klikkaa({i.w->tanhua()->Hepotalli()});
    Hevostalli* h = i.w->hevostalli();
    ASSERT_EQ(i.w->pino()->currentWidget(), h);
    EXPECT_EQ(VertaaRuutua(i.peli, h, "Hevostalli"), 8);
    EXPECT_EQ(h->Ratsastus()->count(), 1);

    Klikkaa({h->Command3()});
    ASSERT_TRUE(h->Hinnasto()->isVisible());
    h->rulla()->setValue(4);
    EXPECT_EQ(m.TuntiHinta, 100);
    EXPECT_EQ(h->findChild<QLabel*>("summa")->text(), "100");
    QEnterEvent osoitin(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QApplication::sendEvent(h->Command2(), &osoitin);
    EXPECT_EQ(VertaaRuutua(i.peli, h, "Hevostalli"), 12);

    struct Tapaus { Long hevosia; const char* väri; };
    for (const Tapaus& c : {Tapaus{29, "rgb(50,200,50)"}, {30, "rgb(200,200,80)"}, {39, "rgb(200,200,80)"},
                            {40, "rgb(200,50,50)"}}) {
        m.El[Hevonen][Naaras] = c.hevosia;
        i.w->Päivitä();
        EXPECT_TRUE(Värinen(h->KapasiteettiZ(), c.väri)) << c.hevosia << " " << S(h->KapasiteettiZ()->styleSheet());
    }
    Klikkaa({h->Command1()});
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
}

TEST_F(StableWindow, ATalkAnsweredNoThenYesLeavesTheNewsWindowWithTheAgreement) {
    i.peli.asetukset.Äänitehosteet = false;
    m.PerusPalkka[Tallimestari] = m.Palkka[Tallimestari] = 6000;
    m.Työ[Tallimestari] = 1;
    // The stable master opens with 350, refuses and thinks again (.75), then agrees to 175.
    for (double r : {0.0, .9, .5, .75}) i.peli.arvonta.Jonoon(r);
    std::deque<Qt::Key> näppäimet{Qt::Key_E, Qt::Key_K, Qt::Key_K};
    std::vector<std::string> kysymykset;
    QTimer vastaaja;
    vastaaja.setInterval(20);
    QObject::connect(&vastaaja, &QTimer::timeout, [&] {
        if (!i.w->message()->isVisible() || näppäimet.empty()) return;
        kysymykset.push_back(i.peli.näkymä.MsgTeksti);
        QTest::keyClick(i.w->message(), näppäimet.front());
        näppäimet.pop_front();
    });
    vastaaja.start();
    i.w->Toimi([&] { Palkkaneuvottelut(i.peli); });
    EXPECT_TRUE(näppäimet.empty());
    ASSERT_EQ(kysymykset.size(), 3u);
    EXPECT_EQ(kysymykset[1], "Tallimestari miettii uutta palkkavaatimusta.");
    EXPECT_NE(kysymykset[2].find("palkkavaatimukseksi  6175 / kk."), std::string::npos);
    EXPECT_TRUE(i.w->uutiset()->isVisible());
    EXPECT_EQ(S(i.w->uutiset()->Tapahtuma()->text()),
              "Sopimuksessa päästiin yhteisymmärrykseen. Uusi palkka on  6175 / kk");
    EXPECT_EQ(m.Palkka[Tallimestari], 6175);
}

}  // namespace
}  // namespace tanhua::ui
