// The processing chains: the shift rule's gates and pay, the recipes, the yards, the feed plant and
// the order of the day's draws. Every case checks that it took exactly the draws it was given.
#include <gtest/gtest.h>

#include <vector>

#include "buildings/rakennukset.h"
#include "buildings/taulut/jalostus.h"
#include "core/päivä.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

// A bare farm: nothing built, nobody hired, summer weather of S = 6 (Kesä 5 + (18 + 32) x 0.02).
struct Tila : testi::Testipeli {
    Tila() {
        m.Vuodenaika = "Kesä";
        m.Lämpötila = 18;
        m.Koko_Varasto = 1000;
        m.Tuotanto.fill(100);
    }
    void Palkkaa(Työläinen työ, Long montako, bool ylityö = false) {
        m.Työ[työ] = montako;
        m.Palkka[työ] = 5500;
        m.Ylityö[työ] = ylityö;
    }
    void Arvot(const std::vector<double>& arvot) {
        for (const double r : arvot) peli.arvonta.Jonoon(r);
    }
    std::size_t Jäljellä() const { return peli.arvonta.JonossaJäljellä(); }
};

TEST(Chains, TheShiftRuleGatesAChainAndItsDraws) {
    // The sawmill: r = 0.5 gives U(0..2) = 1, work 5, n = 5; 6.5 boards round to 6.
    struct Tapaus { const char* nimi; Byte taso; Long työ; double kuorma; bool viikonloppu, ylityö;
                    std::vector<double> arvot; Single lautaa, puuta, palkat; };
    const Tapaus tapaukset[] = {
        {"weekday", 1, 1, 0, false, false, {0.5}, 6, 95, 0},
        {"no building", 0, 1, 0, false, false, {}, 0, 100, 0},
        {"no carpenter", 1, 0, 0, false, false, {}, 0, 100, 0},
        {"store exactly full still works", 1, 1, 1000, false, false, {0.5}, 6, 95, 0},
        {"one unit over full stops", 1, 1, 1001, false, false, {}, 0, 100, 0},
        {"weekend without overtime", 1, 1, 0, true, false, {}, 0, 100, 0},
        // k = 1 adds a unit of work and Int(5500 / 50); the weekend adds Int(5500 / 15).
        {"weekend with overtime, k = 1", 1, 1, 0, true, true, {0.9, 0.5}, 8, 94, 110 + 366},
        {"weekday overtime, k = 0", 1, 1, 0, false, true, {0.1, 0.5}, 6, 95, 0},
        {"two carpenters", 1, 2, 0, false, false, {0.5, 0.0}, 11, 91, 0},  // 6.5 -> 6, then 11.2 -> 11
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Rak[Saha] = c.taso;
        t.Palkkaa(Kirvesmies, c.työ, c.ylityö);
        t.m.Viikonloppu = c.viikonloppu;
        t.m.Var[Puu] = 100;
        t.peli.päivänKuorma = c.kuorma;
        t.Arvot(c.arvot);
        t.peli.arvonta.Jonoon(0.77);  // one spare: a draw too many takes it
        Jalostus(t.peli, Saha);
        EXPECT_EQ(std::tuple(t.Jäljellä(), t.m.Var[Lauta], t.m.Var[Puu], t.m.YlityöPalkat),
                  std::tuple(1u, c.lautaa, c.puuta, c.palkat)) << c.nimi;
    }
}

TEST(Chains, WorkIsCutByThePercentageTheTestIsStrictAndRoundWholeStocksToEven) {
    struct Tapaus { const char* nimi; Rakennus rakennus; Byte tuotanto; Integer moti; double r;
                    Tuote raaka; Single raakaa; Tuote tuote; Single tuotetta; Single raakaaJälkeen, tuotettaJälkeen; };
    const Tapaus tapaukset[] = {
        // 4 + 2 + 1 = 7 at 50 percent: 350 \ 100 = 3; 3.9 rounds to 4.
        {"half output", Saha, 50, 1, 0.9, Puu, 10, Lauta, 0, 7, 4},
        // At 0 percent n is 0: the test passes and nothing moves but the rounding of the stock.
        {"no output", Saha, 0, 0, 0.5, Puu, 10, Lauta, 2.5, 10, 2},
        {"stock equal to n does nothing", Saha, 100, 0, 0.5, Puu, 5, Lauta, 0, 5, 0},
        {"one above n works", Saha, 100, 0, 0.5, Puu, 6, Lauta, 0, 1, 6},
        // 1 + 6.5 = 7.5 goes to 8: the whole stock is rounded, not the addition alone.
        {"whole stock rounds to even", Saha, 100, 0, 0.5, Puu, 10, Lauta, 1, 5, 8},
        // 6 x 0.65 = 3.9 on a fractional stock of 0.4: 4.3 goes to 4.
        {"a fraction left by another path", Meijeri, 100, 0, 0.0, Maito, 10, Juusto, 0.4f, 4, 4},
        // Sausage and flour are added whole, with no rounding: 1.5 stays fractional.
        {"sausage unrounded", Teurastamo, 100, 0, 0.0, Liha, 10, Makkara, 1.5, 7, 4.5},
        // Motivation -1: 4 + 0 - 1 = 3; 2.4 goes to 2.
        {"wine: 0.8 n", Viinitehdas, 100, -1, 0.0, Marja, 4, Viini, 0, 1, 2},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        const KetjuRivi* rivi = nullptr;
        for (const KetjuRivi& r : KETJUTAULU)
            if (r.rakennus == c.rakennus) rivi = &r;
        ASSERT_NE(rivi, nullptr);
        t.m.Rak[c.rakennus] = 1;
        t.Palkkaa(rivi->työ, 1);
        t.m.Moti[rivi->työ] = c.moti;
        t.m.Tuotanto[c.rakennus] = c.tuotanto;
        t.m.Var[c.raaka] = c.raakaa;
        t.m.Var[c.tuote] = c.tuotetta;
        t.Arvot({c.r});
        Jalostus(t.peli, c.rakennus);
        EXPECT_EQ(std::tuple(t.Jäljellä(), t.m.Var[c.raaka], t.m.Var[c.tuote]),
                  std::tuple(0u, c.raakaaJälkeen, c.tuotettaJälkeen)) << c.nimi;
    }
}

TEST(Chains, TheBakeryMakesBreadThenPastryFromOneN) {
    // r = 0 gives n = 5 (5 + U(0..4) = 5).
    struct Tapaus { const char* nimi; Single jauhoa, munia; Single jauhoaJälkeen, munia_, leipää, leivoksia; };
    const Tapaus tapaukset[] = {
        {"both", 30, 100, 20, 95, 6, 4},
        {"bread leaves too little flour for pastry", 8, 100, 3, 100, 6, 0},
        {"no eggs: bread only", 30, 5, 25, 5, 6, 0},
        {"flour equal to n: nothing", 5, 100, 5, 100, 0, 0},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Rak[Leipomo] = 1;
        t.Palkkaa(Leipuri, 1);
        t.m.Var[Jauho] = c.jauhoa;
        t.m.Var[Muna] = c.munia;
        t.Arvot({0.0});
        Jalostus(t.peli, Leipomo);
        EXPECT_EQ(std::tuple(t.Jäljellä(), t.m.Var[Jauho], t.m.Var[Muna], t.m.Var[Leipä], t.m.Var[Leivos]),
                  std::tuple(0u, c.jauhoaJälkeen, c.munia_, c.leipää, c.leivoksia)) << c.nimi;
    }
}

TEST(Chains, PollinationNeedsWorkingBeeKeepersAndEachGardenRoundDrawsItsOwnBonus) {
    // With S = 6 the berry round raises S by the bee yard's level to 7: Int(2 S + 7 x 0) = 14. A
    // working bee-keeper pollinates first, S 8, berries 16. The bee-keeper takes k with overtime
    // and one r; the gardener, on overtime, k and r.
    struct Tapaus { const char* nimi; Long hoitajia; bool viikonloppu, hoitajanYlityö; std::vector<double> arvot;
                    Single marjoja; };
    const Tapaus tapaukset[] = {
        {"no bee-keeper", 0, false, true, {0.0, 0.0}, 14},
        {"bee-keeper on a weekday", 1, false, false, {0.0, 0.0, 0.0}, 16},
        {"weekend, bee-keeper off", 1, true, false, {0.0, 0.0}, 14},
        {"weekend, bee-keeper on overtime", 1, true, true, {0.0, 0.0, 0.0, 0.0}, 16},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Rak[Mehiläistarha] = 1;
        t.m.Rak[Marjatarha] = 1;
        t.Palkkaa(Mehiläishoitaja, c.hoitajia, c.hoitajanYlityö);
        t.Palkkaa(Puutarhuri, 1, true);
        t.m.Viikonloppu = c.viikonloppu;
        t.Arvot(c.arvot);
        Jalostus(t.peli, Mehiläistarha);
        Jalostus(t.peli, Marjatarha);
        EXPECT_EQ(std::tuple(t.Jäljellä(), t.m.Var[Marja]), std::tuple(0u, c.marjoja)) << c.nimi;
    }

    // Two gardeners on overtime: the vegetable round draws k and r for each, then the berry round
    // its own. k = 1 in the first round only: vegetables Int(6 x 0 + 1) + 1 + 1 = 3 each, berries 12.
    Tila t;
    t.m.Rak[Kasvihuone] = 1;
    t.m.Rak[Marjatarha] = 1;
    t.Palkkaa(Puutarhuri, 2, true);
    t.Arvot({0.9, 0.0, 0.9, 0.0, 0.0, 0.0, 0.0, 0.0});
    Jalostus(t.peli, Kasvihuone);
    Jalostus(t.peli, Marjatarha);
    EXPECT_EQ(std::tuple(t.Jäljellä(), t.m.Var[Vihannes], t.m.Var[Marja], t.m.YlityöPalkat),
              std::tuple(0u, 6, 24, 2 * 110));
}

TEST(FeedPlant, WishPercentageGrainTestLimitAndLoad) {
    // Two cows: the herd's estimate is 10. Level 1: the limit is 10.
    struct Tapaus { const char* nimi; bool mylly; Byte tuotanto; Single viljaa; double kuorma; double r;
                    Single rehua, viljaaJälkeen; };
    const Tapaus tapaukset[] = {
        {"mill: a fifth", true, 100, 100, 0, 0.99, 2.4f, 98},      // Int(2 x 0.99) + 1 = 2
        {"no mill: a half", false, 100, 100, 0, 0.99, 6, 95},      // Int(5 x 0.99) + 1 = 5
        {"half output", false, 50, 100, 0, 0.99, 2.4f, 98},       // 5 x 50 \ 100 = 2
        {"grain equal to the wish", false, 100, 5, 0, 0.99, 0, 5},
        {"over full store", false, 100, 100, 1001, 0.99, 0, 100},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Pelto = 10;
        t.m.Rak[Rehuntuotanto] = 1;
        t.m.Rak[Mylly] = c.mylly ? 1 : 0;
        t.m.El[Nauta][Naaras] = 2;
        t.m.Tuotanto[Rehuntuotanto] = c.tuotanto;
        t.m.Var[Vilja] = c.viljaa;
        t.peli.päivänKuorma = c.kuorma;
        t.Arvot({c.r});
        Jalostus(t.peli, Rehuntuotanto);
        EXPECT_EQ(t.Jäljellä(), 0u) << c.nimi;
        EXPECT_FLOAT_EQ(t.m.Var[Rehu], c.rehua) << c.nimi;
        EXPECT_EQ(t.m.Var[Vilja], c.viljaaJälkeen) << c.nimi;
        EXPECT_EQ(t.m.ViljaaKäytetty, static_cast<Long>(c.viljaa - c.viljaaJälkeen)) << c.nimi;
    }

    // A wish of 50 against 30 of grain: the grain test comes before the limit of 10, so nothing.
    Tila t;
    t.m.Pelto = 10;
    t.m.Rak[Rehuntuotanto] = 1;
    t.m.El[Nauta][Naaras] = 20;  // estimate 100: Int(50 x 0.99) + 1 = 50
    t.m.Var[Vilja] = 30;
    t.Arvot({0.99});
    Jalostus(t.peli, Rehuntuotanto);
    EXPECT_EQ(t.m.Var[Vilja], 30);
    // With grain to spare the limit holds the day to 10, 12 of feed.
    t.m.Var[Vilja] = 60;
    t.Arvot({0.99});
    Jalostus(t.peli, Rehuntuotanto);
    EXPECT_EQ(std::tuple(t.m.Var[Vilja], t.m.Var[Rehu], t.m.RehuaTuotettu), std::tuple(50, 12, 12));
}

TEST(FeedPlant, ACounterPastItsWidthIsFailureSixAndTheDayGoesOn) {
    testi::Aloitettu t;
    t.m.Pelto = 10;
    t.m.Rak[Rehuntuotanto] = 1;
    t.m.Tuotanto[Rehuntuotanto] = 100;
    t.m.Var[Vilja] = 1000;
    t.m.Koko_Varasto = 10000;
    t.m.RehuaTuotettu = 2147483647;
    t.m.Sähkölasku = 0;
    const Single rehua = t.m.Var[Rehu];
    SeuraavaPäivä(t.peli);
    int kuutosia = 0;
    for (const std::string& e : t.kanavat.tapahtumat) kuutosia += e.rfind("VIKA|", 0) == 0 && e.find("|6|") != std::string::npos;
    EXPECT_EQ(kuutosia, 1);
    // The feed made before the failure stands, and the day reached its bills.
    EXPECT_GT(t.m.Var[Rehu], rehua);
    EXPECT_EQ(t.m.RehuaTuotettu, 2147483647);
    EXPECT_GT(t.m.Sähkölasku, 0);
}

TEST(Chains, TheDayOrderTakesItsDrawsFeedSawYardsThenTheHouseChains) {
    // One worker in each of feed, saw, bees, greenhouse, berries, dairy, mill, bakery and winery.
    // Each draw lands in one chain only; a draw out of order changes what that chain makes.
    auto Maatila = [](Tila& t) {
        t.m.Pelto = 10;
        t.m.El[Nauta][Naaras] = 2;
        for (const Rakennus r : {Rehuntuotanto, Saha, Mehiläistarha, Kasvihuone, Marjatarha, Meijeri, Mylly,
                                 Leipomo, Viinitehdas})
            t.m.Rak[r] = 1;
        for (const Työläinen j : {Kirvesmies, Mehiläishoitaja, Puutarhuri, Meijerityöntekijä, Mylläri, Leipuri,
                                  Viinimestari})
            t.Palkkaa(j, 1);
        t.m.Var[Vilja] = 100;
        t.m.Var[Puu] = 100;
        t.m.Var[Maito] = 100;
    };
    Tila t;
    Maatila(t);
    // After the berries the ten hectares of field take eleven draws, at 0 here: no grain.
    t.Arvot({0.9, 0.5, 0.25, 0.75, 0.1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0.0, 0.99, 0.6, 0.4});
    Jalostus(t.peli);
    EXPECT_EQ(t.Jäljellä(), 0u);
    EXPECT_FLOAT_EQ(t.m.Var[Rehu], 2.4f);  // feed: Int(2 x 0.9) + 1 = 2 with the mill
    EXPECT_EQ(t.m.Var[Lauta], 6);          // saw: n = 5
    EXPECT_EQ(t.m.Var[Hunaja], 4);         // S = 6 + 1 pollinated: Int(13 x 0.25) + 1
    EXPECT_EQ(t.m.Var[Vihannes], 7);       // Int(7 x 0.75 + 1) + 1
    EXPECT_EQ(t.m.Var[Juusto], 4);         // dairy: n = 6, 3.9 -> 4
    EXPECT_EQ(t.m.Var[Maito], 94);
    EXPECT_EQ(t.m.Var[Vilja], 92);         // feed 2, mill n = 6
    // The bakery works today's flour: 12 - 8; the winery presses today's berries: S = 8 after the
    // second pollination gives Int(16 + 0.7) = 16 berries, 6 of them pressed.
    EXPECT_EQ(std::tuple(t.m.Var[Jauho], t.m.Var[Leipä], t.m.Var[Marja], t.m.Var[Viini]), std::tuple(4, 10, 10, 5));
    EXPECT_FALSE(t.peli.päivänKuorma) << "figures taken outside a day are dropped";

    // In winter the season block neither draws nor makes anything; the winery still works.
    Tila talvi;
    Maatila(talvi);
    talvi.m.Vuodenaika = "Talvi";
    talvi.m.Var[Marja] = 100;
    talvi.Arvot({0.9, 0.5, 0.0, 0.99, 0.6, 0.4});
    Jalostus(talvi.peli);
    EXPECT_EQ(std::tuple(talvi.Jäljellä(), talvi.m.Var[Hunaja] + talvi.m.Var[Vihannes], talvi.m.Var[Viini]),
              std::tuple(0u, 0, 5));
}

}  // namespace
}  // namespace tanhua
