// The butcher's and the tanner's daily slaughter by the orders and their limits.
#include <gtest/gtest.h>

#include "animals/kauppa.h"
#include "core/päivä.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;
using Tapahtumat = std::vector<std::string>;

struct Tila : Testipeli {
    Tila() {
        Aloita();
        m.Var.fill(0);
        m.Koko_Varasto = 1000;
        m.Raha = 1000;
        m.Eläimet.TeurasRaja.fill("0");
    }
};

TEST(AutoSlaughter, TheButcherTakesUpToOneHeadMoreThanButchersOfEachKindADay) {
    struct Tapaus { int teurastajia; const char *lehmäRaja, *sonniRaja; Long lehmiä, sonneja, lehmiäJää, sonnejaJää; };
    const Tapaus tapaukset[] = {
        {1, "0", "0", 8, 3, 6, 1},     // a limit of 0 empties the herd two heads a day
        {1, "9", "1", 10, 2, 9, 1},    // down to the limit, not below
        {1, "10", "2", 10, 2, 10, 2},  // a limit equal to the count takes nothing
        {3, "0", "0", 6, 6, 2, 2},     // three butchers: four passes
        {0, "0", "0", 10, 2, 10, 2},   // no butcher
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Työ[Teurastaja] = c.teurastajia;
        t.m.Eläimet.Teuras = {1, 0, 0, 0, 0};
        t.m.Eläimet.TeurasRaja[0] = c.lehmäRaja;
        t.m.Eläimet.TeurasRaja[1] = c.sonniRaja;
        t.m.El[Nauta] = {c.lehmiä, 3, 3, c.sonneja};
        t.m.El[Sika] = {5, 0, 0, 5};  // no order for pigs
        AutoTeurastus(t.peli);
        // The young are never taken, nor pigs without their order.
        EXPECT_EQ(t.m.El[Nauta], (std::array<Long, 4>{c.lehmiäJää, 3, 3, c.sonnejaJää})) << c.teurastajia << " " << c.lehmäRaja;
        EXPECT_EQ(t.m.El[Sika][Naaras], 5);
        // No 40 percent here: the plain meat of each head.
        EXPECT_EQ(t.m.Var[Liha], (c.lehmiä - c.lehmiäJää) * 90 + (c.sonneja - c.sonnejaJää) * 140);
    }
}

TEST(AutoSlaughter, TheStoreIsTestedOnTheLoadAtTheStartOfTheRun) {
    struct Tapaus { Single koko; Single liha; bool teurastetaan; };
    // 1000.5 rounds to the even 1000, 1001.5 to 1002, 999.5 to 1000.
    for (const Tapaus& c : {Tapaus{1000, 1000.5f, true}, {1000, 1001.5f, false}, {999, 999.5f, false}}) {
        Tila t;
        t.m.Koko_Varasto = c.koko;
        t.m.Var[Liha] = c.liha;
        t.m.Työ[Teurastaja] = t.m.Työ[Nahkuri] = 1;
        t.m.Eläimet.Teuras = {1, 1, 0, 0, 1};
        t.m.El[Nauta][Naaras] = t.m.El[Lammas][Naaras] = t.m.El[Kettu][Naaras] = 3;
        AutoTeurastus(t.peli);
        // Heads taken don't count, so the run fills the store past its size; a store already over it stops
        // everything at the first head, the foxes too.
        for (Laji laji : {Nauta, Lammas, Kettu}) EXPECT_EQ(t.m.El[laji][Naaras], c.teurastetaan ? 1 : 3) << c.liha;
        EXPECT_EQ(t.m.Var[Liha], c.liha + (c.teurastetaan ? 2 * 90 + 2 * 40 : 0));
        EXPECT_EQ(t.Tapahtumat(), c.teurastetaan ? Tapahtumat{} : Tapahtumat{"LISTA|Varaston tilanpuute esti teurastuksen."});
    }
}

TEST(AutoSlaughter, TheTannerTakesFoxesForTwoFursAndMayRunCashBelowZero) {
    Tila t;
    t.m.Työ[Nahkuri] = 2;
    t.m.Eläimet.Teuras = {1, 0, 0, 0, 1};  // no butcher: the cow order waits
    t.m.Eläimet.TeurasRaja[8] = "2";
    t.m.Eläimet.TeurasRaja[9] = "1";
    t.m.El[Kettu] = {10, 0, 0, 2};
    t.m.El[Nauta][Naaras] = 4;
    AutoTeurastus(t.peli);
    EXPECT_EQ(t.m.El[Kettu], (std::array<Long, 4>{7, 0, 0, 1}));
    EXPECT_EQ(t.m.Var[Turkki], 8);
    EXPECT_EQ(t.m.Raha, 1000 - 4 * 500);
    EXPECT_EQ(t.m.El[Nauta][Naaras], 4);
}

TEST(AutoSlaughter, AnOverflowShowsItsOwnBoxAndStopsUnlessThePlayerChoseToGoOn) {
    for (bool jatka : {false, true}) {
        Tila t;
        t.m.Var[Liha] = 3e9f;  // a load past the whole-number width
        t.m.Koko_Varasto = 1e10f;
        t.m.Työ[Teurastaja] = 1;
        t.m.Eläimet.Teuras = {1, 0, 0, 0, 0};
        t.m.El[Nauta][Naaras] = 5;
        t.m.VikaJatkuu = jatka;
        AutoTeurastus(t.peli);
        EXPECT_EQ(t.Tapahtumat(),
                  Tapahtumat{"LAATIKKO|Tanhua peli suoritti virhetilan, todennäköinen syy on että sinulla on "
                             "todella paljon tavaraa ja pelin muuttujat eivät ymmärrä noin suuria lukuja."});
        EXPECT_EQ(t.m.VikaPaikka, "Moduulissa. Automaatti teurastaessa.");
        EXPECT_EQ(t.m.El[Nauta][Naaras], jatka ? 3 : 5);
    }
}

TEST(AutoSlaughter, TheDayRunsItOnlyWithAButcherOrATanner) {
    for (int teurastajia : {0, 1}) {
        Tila t;
        t.m.Työ[Teurastaja] = teurastajia;
        t.m.Eläimet.Teuras = {0, 0, 1, 0, 0};
        t.m.El[Sika][Uros] = 3;
        t.m.Var[Rehu] = 500;
        t.m.Päivä = 1;
        SeuraavaPäivä(t.peli);
        EXPECT_EQ(t.m.El[Sika][Uros], teurastajia ? 1 : 3);
    }
}

}  // namespace
}  // namespace tanhua
