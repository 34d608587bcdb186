// A hundred years of a land farm played by a seeded random strategy: buying and selling each kind of
// land, foresters hired and fired, overtime and replanting switched: no failure, no negative land,
// and the hectare being felled stays within its percentage.
#include <gtest/gtest.h>

#include <random>

#include "core/kuukausi.h"
#include "core/päivä.h"
#include "land/pellot.h"
#include "tuki/testipeli.h"
#include "workforce/työvoima.h"

namespace tanhua {
namespace {

// One move of the strategy on a given day; the strategy's own generator, never the game's draws.
void Siirto(Peli& peli, std::mt19937& g) {
    Muuttujat& m = peli.m;
    switch (std::uniform_int_distribution<int>(0, 9)(g)) {
        case 0: case 1: case 2: {
            ValitseMaa(peli, static_cast<Maa>(std::uniform_int_distribution<int>(0, 3)(g)));
            for (int i = std::uniform_int_distribution<int>(0, 2)(g); i > 0; --i) plus(peli);
            if (g() % 2 == 0) MyyMaata(peli);
            else OstaMaata(peli);
            break;
        }
        case 3: case 4:
            // A crew of up to a dozen, so that forests are felled to the last hectare now and then.
            ValitseTyöläinen(peli, Metsuri);
            if (m.Työ[Metsuri] < 1 || (m.Työ[Metsuri] < 12 && g() % 2 == 0)) OtaTöihin(peli);
            else Erota(peli);
            break;
        case 5:
            ValitseTyöläinen(peli, Metsuri);
            if (g() % 2 == 0) YlityöPäälle(peli);
            else YlityöPois(peli);
            break;
        case 6: AsetaMetsitä(peli, g() % 2 == 0); break;
        case 7: m.Tarv[Metsäkone] = g() % 4 == 0; break;
        default: break;  // most days the player just goes on
    }
}

TEST(Soak, AHundredYearsOfLandAndForesters) {
    testi::Testipeli t;
    t.Aloita("Metsä", 1, 0, false);
    t.m.Koko_Varasto = 5000000;
    t.m.Raha = 5000000;
    t.m.LantaPeltoon = true;
    AvaaTyövoima(t.peli);
    std::mt19937 g(1980);
    for (int päivä = 0; päivä < 100 * 360; ++päivä) {
        // The strategy finds money when it runs out, so that it keeps trading.
        if (t.m.Raha < 0) t.m.Raha = 1000000;
        Siirto(t.peli, g);
        SeuraavaPäivä(t.peli);
        if (t.peli.näkymä.RaporttiAuki) SuljeRaportti(t.peli);
        // Logs and grain are sold off now and then, as a player would, to keep the store in reach.
        if (t.m.Päivä == 1) t.m.Var[Puu] = t.m.Var[Vilja] = 0;
        for (const std::string& e : t.kanavat.tapahtumat) ASSERT_EQ(e.rfind("VIKA|", 0), std::string::npos) << e;
        t.kanavat.tapahtumat.clear();
        ASSERT_GE(t.m.Metsä, 0) << päivä;
        ASSERT_GE(t.m.Pelto, 0) << päivä;
        ASSERT_GE(t.m.Joutomaa, 0) << päivä;
        ASSERT_GE(t.m.Laidun, 0) << päivä;
        ASSERT_LE(t.m.MetsääJäljellä, 100) << päivä;
        // A crew bigger than what is left may bite below 0 on its last pass when no forest is left to
        // start; the next pass puts it to 0.
        if (t.m.Metsä >= 1) {
            ASSERT_GE(t.m.MetsääJäljellä, 0) << päivä;
        }
    }
    EXPECT_GT(t.m.Työ[Metsuri] + t.m.Metsä + t.m.Pelto, 0) << "the strategy did something";
}

}  // namespace
}  // namespace tanhua
