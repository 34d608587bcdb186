// Choosing a job, the wage slider, overtime, the wage sum and the employment subsidy.
#include <gtest/gtest.h>

#include "henkilöstö.h"
#include "workforce/palkat.h"
#include "workforce/työvoima.h"

namespace tanhua {
namespace {

using testi::Testipeli;
using testi::Tila;
using Tapahtumat = std::vector<std::string>;

TEST(Choosing, TheSliderStandsAtTheWagesDifferenceHeldToItsEnd) {
    // PerusPalkka of the baker is 5000.
    struct Tapaus { Integer palkka; Integer mittari; Integer palkkaJälkeen; };
    const Tapaus tapaukset[] = {
        {5000, 0, 5000},
        {5370, 370, 5370},
        {4000, -1000, 4000},
        {6000, 1000, 6000},
        {6599, 1000, 6000},  // above base + 1000 after raises: the slider's move sets it back
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Työ[Leipuri] = 2;
        t.m.Palkka[Leipuri] = c.palkka;
        ValitseTyöläinen(t.peli, Leipuri);
        const TyövoimaRuutuTila& r = t.peli.työvoimaruutu;
        EXPECT_EQ(r.mittari, c.mittari) << c.palkka;
        EXPECT_EQ(t.m.Palkka[Leipuri], c.palkkaJälkeen) << c.palkka;
        EXPECT_EQ(r.palk, c.palkkaJälkeen);
        EXPECT_EQ(r.palkka, 5000);
        EXPECT_EQ(r.työmies, 2);
        EXPECT_EQ(r.työ, "Leipuri");
        EXPECT_EQ(r.kuva, "Kuvat/ihmiset/leipuri.jpg");
        EXPECT_TRUE(r.mittariKäytössä);
        EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"ÄÄNI|siirto"});
    }
}

TEST(Choosing, ASliderAlreadyAtItsEndLeavesARaisedWageAlone) {
    Tila t;
    t.m.Palkka[Metsuri] = 8000;  // base 7000
    ValitseTyöläinen(t.peli, Metsuri);
    t.m.Palkka[Leipuri] = 6500;  // base 5000, raised in the talks
    ValitseTyöläinen(t.peli, Leipuri);
    EXPECT_EQ(t.peli.työvoimaruutu.mittari, 1000);
    EXPECT_EQ(t.m.Palkka[Leipuri], 6500);
    EXPECT_EQ(t.peli.työvoimaruutu.palk, 6500);
}

TEST(Choosing, FixedWagesLocksAndOvertimeLabels) {
    struct Tapaus { Työläinen k; bool lukko; bool ylityö; bool mittari; std::string YliTyö; bool napit; };
    const Tapaus tapaukset[] = {
        {Leipuri, false, true, true, "Kyllä", true},
        {Leipuri, true, false, false, "Ei", true},      // a wage agreed this month freezes the slider
        {Kirjanpitäjä, false, false, true, "Ei voida määrittää", false},
        {Siementäjä, false, false, true, "Ei voida määrittää", false},
        {Vahtikoira, false, false, false, "Ei voida määrittää", false},
        {Nahkuri, false, false, false, "Ei voida määrittää", false},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.PalkkaLukko[c.k] = c.lukko;
        t.m.Ylityö[c.k] = c.ylityö;
        ValitseTyöläinen(t.peli, c.k);
        const TyövoimaRuutuTila& r = t.peli.työvoimaruutu;
        EXPECT_EQ(r.mittariKäytössä, c.mittari) << TYÖLÄISTAULU[c.k].avain;
        EXPECT_EQ(r.YliTyö, c.YliTyö) << TYÖLÄISTAULU[c.k].avain;
        EXPECT_EQ(r.ylityöNapit, c.napit);
        // A disabled slider can't be moved and the wage stays.
        const Integer ennen = t.m.Palkka[c.k];
        SiirräMittaria(t.peli, 300);
        EXPECT_EQ(t.m.Palkka[c.k], c.mittari ? ennen + 300 : ennen) << TYÖLÄISTAULU[c.k].avain;
    }
}

TEST(Choosing, TheTannerIsPaidHisBaseFromTheFirstChoiceAndTheDogShowsOneHundred) {
    Tila t;
    EXPECT_EQ(t.m.Palkka[Nahkuri], 0);
    ValitseTyöläinen(t.peli, Leipuri);
    SiirräMittaria(t.peli, 500);
    ValitseTyöläinen(t.peli, Nahkuri);
    EXPECT_EQ(t.m.Palkka[Nahkuri], 100);
    EXPECT_EQ(t.peli.työvoimaruutu.mittari, 0);
    EXPECT_EQ(t.peli.työvoimaruutu.palk, 100);
    EXPECT_EQ(t.m.Palkka[Leipuri], 5500);  // the slider's return to 0 moved no other job's wage
    ValitseTyöläinen(t.peli, Vahtikoira);
    EXPECT_EQ(t.peli.työvoimaruutu.palk, 100);
    EXPECT_EQ(t.peli.työvoimaruutu.palkka, 100);
}

TEST(Slider, TheWageFollowsAndTheSumIsShown) {
    Tila t;
    t.m.Työ[Kirjanpitäjä] = 2;
    t.m.Työ[Siivooja] = 1;
    t.Valitse(Kirjanpitäjä);
    SiirräMittaria(t.peli, 250);
    EXPECT_EQ(t.m.Palkka[Kirjanpitäjä], 3250);
    EXPECT_EQ(t.peli.työvoimaruutu.palk, 3250);
    EXPECT_EQ(t.m.PalkatYhteensä, 2 * 3250 + 3000);
    EXPECT_EQ(t.peli.työvoimaruutu.yhtpalk, 2 * 3250 + 3000);
    SiirräMittaria(t.peli, -1000);
    EXPECT_EQ(t.m.Palkka[Kirjanpitäjä], 2000);
    EXPECT_EQ(t.Tapahtumat(), Tapahtumat{});  // the slider makes no sound
}

TEST(Overtime, TheButtonsSetTheFlagAndTheLabel) {
    Tila t;
    t.Valitse(Siivooja);
    t.peli.arvonta.Jonoon(0.0);
    YlityöPäälle(t.peli);
    EXPECT_TRUE(t.m.Ylityö[Siivooja]);
    EXPECT_EQ(t.peli.työvoimaruutu.YliTyö, "Kyllä");
    t.peli.arvonta.Jonoon(0.9);
    YlityöPois(t.peli);
    EXPECT_FALSE(t.m.Ylityö[Siivooja]);
    EXPECT_EQ(t.peli.työvoimaruutu.YliTyö, "Ei");
    EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"ÄÄNI|klik1", "ÄÄNI|klik3"}));
    // The accountant's buttons are off: nothing changes, no sound.
    t.Valitse(Kirjanpitäjä);
    YlityöPäälle(t.peli);
    EXPECT_FALSE(t.m.Ylityö[Kirjanpitäjä]);
    EXPECT_EQ(t.peli.työvoimaruutu.YliTyö, "Ei voida määrittää");
    EXPECT_EQ(t.Tapahtumat(), Tapahtumat{});
}

TEST(WageSum, GardenersAndBeekeepersAreOnLeaveInWinter) {
    struct Tapaus { std::string vuodenaika; Single summa; };
    const Tapaus tapaukset[] = {{"Talvi", 3000}, {"Kevät", 3000 + 10 * 4000 + 2 * 3000}, {"Syksy", 49000}};
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        t.Aloita();
        t.m.Vuodenaika = c.vuodenaika;
        t.m.Työ[Puutarhuri] = 10;
        t.m.Työ[Mehiläishoitaja] = 2;
        t.m.Työ[Kirjanpitäjä] = 1;
        LaskePalkat(t.peli);
        EXPECT_EQ(t.m.PalkatYhteensä, c.summa) << c.vuodenaika;
    }
}

TEST(WageSum, AWageOverSixteenBitsFails) {
    Tila t;
    t.m.Palkka[Leipuri] = 32000;
    t.m.PerusPalkka[Leipuri] = 32000;
    ValitseTyöläinen(t.peli, Leipuri);
    try {
        SiirräMittaria(t.peli, 1000);
        FAIL() << "no overflow";
    } catch (const Vika& v) {
        EXPECT_EQ(v.Numero(), VIKA_YLIVUOTO);
    }
}

TEST(Subsidy, TheRateByTurnoverLessAThousandAnAccountant) {
    struct Tapaus { Single liikevaihto; Long kirjanpitäjiä; Long siivoojia; Byte taso; std::string aika; Long tuki; };
    // W is the wage sum; each case pays the accountants and cleaners at their base (3000).
    const Tapaus tapaukset[] = {
        {30000, 0, 1, 1, "Kesä", 0},
        {29999, 0, 1, 1, "Kesä", 500},
        {29999.5f, 0, 1, 1, "Kesä", 0},     // 29999.5 is 30000 as a whole number (to even)
        {20000, 0, 1, 1, "Kesä", 500},
        {19999, 0, 1, 1, "Kesä", 1000},
        {10000, 0, 1, 1, "Kesä", 1000},
        {9999, 0, 1, 1, "Kesä", 2000},
        {7500, 0, 1, 1, "Kesä", 2000},
        {7499, 0, 1, 1, "Kesä", 2500},
        {5000, 0, 1, 1, "Kesä", 2500},
        {4999, 0, 1, 1, "Kesä", 3000},
        {2500, 0, 1, 1, "Kesä", 3000},
        {2499.5f, 0, 1, 1, "Kesä", 3000},   // 2500 (to even)
        {2498.5f, 0, 1, 1, "Kesä", 3000},   // 2498: but 3500 is held to the wage of 3000
        {-50000, 0, 2, 1, "Kesä", 6000},    // 2 x 3500 = 7000, held to the wages of 6000
        {10500, 1, 1, 1, "Kesä", 2 * 2000}, // the accountant takes 9500 into the next band
        {10500, 1, 1, 2, "Kesä", 2 * 1000}, // halved on the hardest level
        {3000, 0, 3, 2, "Talvi", 3 * 1500},
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        t.Aloita();
        t.m.Liikevaihto = c.liikevaihto;
        t.m.Työ[Kirjanpitäjä] = c.kirjanpitäjiä;
        t.m.Työ[Siivooja] = c.siivoojia;
        t.m.Vaikeustaso = c.taso;
        t.m.Vuodenaika = c.aika;
        LaskePalkat(t.peli);
        EXPECT_EQ(Työllistämistuki(t.peli), c.tuki) << c.liikevaihto << " " << c.kirjanpitäjiä;
    }
}

TEST(Subsidy, WhoCountsAndWhoNever) {
    struct Tapaus { Työläinen k; std::string aika; Long tuki; };
    // Turnover 0: 3500 a worker; ten workers; a wage sum of 100000 keeps the cap out of the way.
    const Tapaus tapaukset[] = {
        {Leipuri, "Kesä", 35000},       {Varastotyöntekijä, "Talvi", 35000},
        {Puutarhuri, "Kesä", 35000},    {Puutarhuri, "Talvi", 0},
        {Mehiläishoitaja, "Kevät", 35000}, {Mehiläishoitaja, "Talvi", 0},
        {Nahkuri, "Kesä", 0},           {Vahtikoira, "Kesä", 0},
        {Viinimestari, "Kesä", 0},
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        t.Aloita();
        t.m.Liikevaihto = 0;
        t.m.Vuodenaika = c.aika;
        t.m.Työ[c.k] = 10;
        t.m.PalkatYhteensä = 100000;
        EXPECT_EQ(Työllistämistuki(t.peli), c.tuki) << TYÖLÄISTAULU[c.k].avain << " " << c.aika;
    }
}

}  // namespace
}  // namespace tanhua
