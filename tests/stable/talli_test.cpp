// The stable's day: the demand, the lesson hours with their holds, the mares running out and the
// ledger's line. The weekends are played in the stable's transcript.
#include <gtest/gtest.h>

#include "buildings/talli.h"
#include "core/päivä.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

// A farm with a stable, the pasture and the horses told, and the draws counted.
struct Talli : Testipeli {
    Talli() {
        Aloita();
        m.Rak[Hevostalli] = 1;
        m.Työ[Tallimestari] = 1;
        m.El[Hevonen][Naaras] = 1;
        m.Laidun = 10;
        peli.arvonta.seuranta = [this](double, const std::source_location&) { ++arvontoja; };
    }
    // Demand 0: summer (+2), an overcast sky (0), the price step 1 and the mares filling half the
    // pasture (-1).
    void Nollakysyntä(Long tammoja) {
        m.Vuodenaika = "Kesä";
        m.Pilvisyys = 3;
        m.Hevostalli_rulla = 1;
        m.TuntiHinta = 40;
        m.El[Hevonen][Naaras] = tammoja;
        m.Laidun = tammoja / 2.0f;
    }
    int arvontoja = 0;
};

TEST(StableDemand, SeasonSkyPriceAndCrowding) {
    struct Tapaus { const char* vuodenaika; Integer pilvisyys; Integer rulla; Long tammoja, oreja; Single laidun; double b; };
    const Tapaus tapaukset[] = {
        {"Kesä", 1, 0, 0, 0, 5, 4},      // the best day: four hours a block whatever the draw
        {"Talvi", 6, 4, 6, 2, 2, -8},    // winter rain, dearest hour, a full pasture
        {"Kevät", 2, 2, 1, 0, 0, -2},    // no pasture: one mare fills it
        {"Syksy", 5, 1, 2, 1, 1, -2.5},  // three horses on one hectare: 75 percent
        {"Kesä", 3, 0, 25, 5, 1, 0},     // 750 percent is held to 100
        {"Kesä", 4, 0, 1, 1, 1, 1},      // half full
    };
    for (const Tapaus& c : tapaukset) {
        Talli t;
        t.m.Vuodenaika = c.vuodenaika;
        t.m.Pilvisyys = c.pilvisyys;
        t.m.Hevostalli_rulla = c.rulla;
        t.m.El[Hevonen][Naaras] = c.tammoja;
        t.m.El[Hevonen][Uros] = c.oreja;
        t.m.Laidun = c.laidun;
        EXPECT_DOUBLE_EQ(Kysyntä(t.m), c.b) << c.vuodenaika << " " << c.pilvisyys;
    }
}

TEST(StableDay, HoursRoundToEvenAreHeldAndCountWhileTheMaresLast) {
    struct Tapaus { const char* mikä; Long tammoja, mestareita; bool ylityö; Integer moti; std::vector<double> arvonnat;
        Long T; };
    // With demand 0 and motivation 0, h = round(4r): r .625 gives 2.5, .875 gives 3.5.
    const Tapaus tapaukset[] = {
        {"2.5 goes to 2; one mare, one master: one block", 1, 1, false, 0, {.625, .99}, 2},
        {"3.5 goes to 4", 1, 1, false, 0, {.875, .99}, 4},
        {"two mares, one master: two blocks", 2, 1, false, 0, {.625, .875}, 6},
        {"two mares, two masters: three blocks", 2, 2, false, 0, {.625, .875, .25, .99}, 7},
        {"held to 4 without overtime", 2, 1, false, 4, {.99, .75}, 8},
        {"up to 6 with overtime, on a weekday too", 2, 1, true, 4, {.99, .75}, 12},
        {"below 0 is 0", 2, 1, false, -10, {.1, .9}, 0},
    };
    for (const Tapaus& c : tapaukset) {
        Talli t;
        t.Nollakysyntä(c.tammoja);
        t.m.Päivä = 3;
        t.m.Kuukausi = 6;
        t.m.Työ[Tallimestari] = c.mestareita;
        t.m.Ylityö[Tallimestari] = c.ylityö;
        t.m.Moti[Tallimestari] = c.moti;
        t.m.Liikevaihto = 100;
        for (double r : c.arvonnat) t.peli.arvonta.Jonoon(r);
        RatsastusPäivä(t.peli);
        EXPECT_EQ(t.arvontoja, static_cast<int>(c.arvonnat.size())) << c.mikä;
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u) << c.mikä;
        ASSERT_EQ(t.peli.talliruutu.Ratsastus.size(), 1u);
        EXPECT_EQ(t.peli.talliruutu.Ratsastus[0], " 3. 6 - " + Str(c.T) + " tuntia. Summa:" + Str(c.T * 40)) << c.mikä;
        EXPECT_EQ(t.m.RatsastusTulot, c.T * 40) << c.mikä;
        EXPECT_EQ(t.m.Liikevaihto, 100 + c.T * 40) << c.mikä;
        EXPECT_EQ(t.m.YlityöPalkat, 0) << "overtime costs nothing on a weekday: " << c.mikä;
    }
}

}  // namespace
}  // namespace tanhua
