// The staff screen: choosing a job, the wage slider, overtime, the wage sum, the employment subsidy, and the
// gauges of motivation and stress at the edges of their bands.
#include <gtest/gtest.h>

#include "henkilöstö.h"
#include "workforce/palkat.h"

namespace tanhua {
namespace {

using testi::Testipeli;
using testi::Tila;

TEST(Choosing, TheSliderStandsAtTheWagesDifferenceHeldToItsEnd) {
    // The baker's base is 5000. The last case's slider already stands at its end from the forester.
    struct Tapaus { Integer palkka; Integer mittari; Integer palkkaJälkeen; bool metsuriEnsin; };
    const Tapaus tapaukset[] = {
        {5370, 370, 5370, false},
        {4000, -1000, 4000, false},
        {6599, 1000, 6000, false},  // above base + 1000 after raises: the slider's move sets it back
        {6500, 1000, 6500, true},   // no move of the slider, no change of the wage
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Palkka[Leipuri] = c.palkka;
        t.m.Palkka[Metsuri] = 8000;  // base 7000
        if (c.metsuriEnsin) ValitseTyöläinen(t.peli, Metsuri);
        ValitseTyöläinen(t.peli, Leipuri);
        const TyövoimaRuutuTila& r = t.peli.työvoimaruutu;
        EXPECT_EQ(std::tuple(r.mittari, t.m.Palkka[Leipuri]), std::tuple(c.mittari, c.palkkaJälkeen)) << c.palkka;
        EXPECT_EQ(r.palk, c.palkkaJälkeen);
    }
}

TEST(Choosing, FixedWagesLocksAndOvertimeLabels) {
    struct Tapaus { Työläinen k; bool lukko; bool ylityö; bool mittari; std::string YliTyö; };
    const Tapaus tapaukset[] = {
        {Leipuri, false, true, true, "Kyllä"},
        {Leipuri, true, false, false, "Ei"},  // a wage agreed this month freezes the slider
        {Kirjanpitäjä, false, false, true, "Ei voida määrittää"},
        {Siementäjä, false, false, true, "Ei voida määrittää"},
        {Vahtikoira, false, false, false, "Ei voida määrittää"},
        {Nahkuri, false, false, false, "Ei voida määrittää"},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.PalkkaLukko[c.k] = c.lukko;
        t.m.Ylityö[c.k] = c.ylityö;
        ValitseTyöläinen(t.peli, c.k);
        EXPECT_EQ(t.peli.työvoimaruutu.YliTyö, c.YliTyö) << TYÖLÄISTAULU[c.k].avain;
        EXPECT_EQ(t.peli.työvoimaruutu.ylityöNapit, c.YliTyö != "Ei voida määrittää");
        // A disabled slider can't be moved and the wage stays.
        const Integer ennen = t.m.Palkka[c.k];
        SiirräMittaria(t.peli, 300);
        EXPECT_EQ(t.m.Palkka[c.k], c.mittari ? ennen + 300 : ennen) << TYÖLÄISTAULU[c.k].avain;
    }
}

TEST(WageSum, TheSliderAndHiresShowItAndGardenersAndBeekeepersAreOnLeaveInWinter) {
    struct Tapaus { std::string vuodenaika; Single summa; };
    // Two accountants at 3250, a cleaner at 3000, ten gardeners at 4000, two beekeepers at 3000.
    const Tapaus tapaukset[] = {{"Talvi", 9500}, {"Kevät", 9500 + 40000 + 6000}};
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Vuodenaika = c.vuodenaika;
        t.m.Työ[Puutarhuri] = 10;
        t.m.Työ[Mehiläishoitaja] = 2;
        t.m.Työ[Kirjanpitäjä] = 1;
        t.m.Työ[Siivooja] = 1;
        t.Valitse(Kirjanpitäjä);
        OtaTöihin(t.peli);
        SiirräMittaria(t.peli, 250);
        EXPECT_EQ(t.m.PalkatYhteensä, c.summa) << c.vuodenaika;
        EXPECT_EQ(std::tuple(t.peli.työvoimaruutu.yhtpalk, t.peli.työvoimaruutu.Työläisiä), std::tuple(c.summa, 15));
        EXPECT_EQ(t.m.Raha, 10000);  // a hire costs nothing
        EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"ÄÄNI|siirto"});  // the slider makes no sound
    }
}

TEST(WageSum, AWageOverSixteenBitsFails) {
    Tila t;
    t.m.Palkka[Leipuri] = 32000;
    t.m.PerusPalkka[Leipuri] = 32000;
    ValitseTyöläinen(t.peli, Leipuri);
    EXPECT_THROW(SiirräMittaria(t.peli, 1000), Vika);
}

TEST(Subsidy, TheRateByTurnoverLessAThousandAnAccountant) {
    struct Tapaus { Single liikevaihto; Long kirjanpitäjiä; Long siivoojia; Byte taso; std::string aika; Long tuki; };
    // W is the wage sum; each case pays the accountants and cleaners at their base (3000).
    const Tapaus tapaukset[] = {
        {30000, 0, 1, 1, "Kesä", 0},
        {29999, 0, 1, 1, "Kesä", 500},
        {29999.5f, 0, 1, 1, "Kesä", 0},     // 29999.5 is 30000 as a whole number (to even)
        {19999, 0, 1, 1, "Kesä", 1000},
        {9999, 0, 1, 1, "Kesä", 2000},
        {7499, 0, 1, 1, "Kesä", 2500},
        {4999, 0, 1, 1, "Kesä", 3000},
        {2499.5f, 0, 1, 1, "Kesä", 3000},   // 2500 (to even)
        {2498.5f, 0, 1, 1, "Kesä", 3000},   // 2498: but 3500 is held to the wage of 3000
        {-50000, 0, 2, 1, "Kesä", 6000},    // 2 x 3500 = 7000, held to the wages of 6000
        {10500, 1, 1, 1, "Kesä", 2 * 2000}, // the accountant takes 9500 into the next band
        {10500, 1, 1, 2, "Kesä", 2 * 1000}, // halved on the hardest level
    };
    for (const Tapaus& c : tapaukset) {
        testi::Aloitettu t;
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
        {Varastotyöntekijä, "Talvi", 35000}, {Puutarhuri, "Kesä", 35000}, {Puutarhuri, "Talvi", 0},
        {Mehiläishoitaja, "Kevät", 35000},   {Mehiläishoitaja, "Talvi", 0}, {Nahkuri, "Kesä", 0},
        {Vahtikoira, "Kesä", 0},             {Viinimestari, "Kesä", 0},
    };
    for (const Tapaus& c : tapaukset) {
        testi::Aloitettu t;
        t.m.Liikevaihto = 0;
        t.m.Vuodenaika = c.aika;
        t.m.Työ[c.k] = 10;
        t.m.PalkatYhteensä = 100000;
        EXPECT_EQ(Työllistämistuki(t.peli), c.tuki) << TYÖLÄISTAULU[c.k].avain << " " << c.aika;
    }
}

// Wages that give the sixteen motivations (the tanner's stays 0) the sum asked for.
void Motivaatiot(Tila& t, int summa) {
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) {
        if (k == Nahkuri) continue;
        const int x = std::clamp(summa, -20, 20);
        summa -= x;
        t.m.Palkka[k] = static_cast<Integer>(t.m.PerusPalkka[k] + 1000 * x);
    }
    ASSERT_EQ(summa, 0);
}

TEST(Gauges, MotivationByTheRoundedFifteenthOfTheSum) {
    struct Tapaus { int summa; const char* Moti; };
    const Tapaus tapaukset[] = {
        {-83, "Surkea!"}, {-82, "Huono"},   {-38, "Huono"}, {-37, "Normaali"},
        {22, "Normaali"}, {23, "Hyvä"},     {67, "Hyvä"},   {68, "Todella hyvä"},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Työ[Siivooja] = 1;
        Lasketyöläiset(t.peli);
        Motivaatiot(t, c.summa);
        Motilasku(t.peli);
        EXPECT_EQ(t.peli.työvoimaruutu.Moti, c.Moti) << c.summa;
    }
}

TEST(Gauges, StressCountsJobsWithoutOvertime) {
    struct Tapaus { int levossa; const char* Stres; };
    const Tapaus tapaukset[] = {{5, "Burnout!"},    {6, "Lievä stressi"},  {8, "Lievä stressi"},
                                {9, "Ei stressiä"}, {12, "Ei stressiä"},   {13, "Rento meininki"},
                                {17, "Rento meininki"}};
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Työ[Siivooja] = 1;
        Lasketyöläiset(t.peli);
        for (int k = 0; k < static_cast<int>(TYÖLÄISIÄ) - c.levossa; ++k) t.m.Ylityö[k] = true;
        Stressilasku(t.peli);
        EXPECT_EQ(t.peli.työvoimaruutu.Stres, c.Stres) << c.levossa;
    }
}

TEST(Gauges, BlankWithNobodyEmployedAndShownOnHiring) {
    Tila t;
    Motivaatiot(t, -100);
    Motilasku(t.peli);
    Stressilasku(t.peli);
    EXPECT_EQ(std::tuple(t.peli.työvoimaruutu.Moti, t.peli.työvoimaruutu.Stres), std::tuple("", ""));
    t.Valitse(Siivooja);
    OtaTöihin(t.peli);
    EXPECT_EQ(t.peli.työvoimaruutu.Moti, "Surkea!");
    EXPECT_EQ(t.peli.työvoimaruutu.Stres, "Rento meininki");
}

}  // namespace
}  // namespace tanhua
