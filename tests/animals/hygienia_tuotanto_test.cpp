// The herd's day: hygiene, the cleaner's overtime, output and the pasture factor.
#include <gtest/gtest.h>

#include <vector>

#include "animals/eläimet.h"
#include "lauma.h"

namespace tanhua {
namespace {

using testi::Jonoon;
using testi::Lauma;

TEST(Hygiene, CleanersAgainstHeads) {
    struct Tapaus { Long lehmiä, kanoja, vasikoita, siivoojia; int taso, moti; bool ylityö, linjasto; int odotettu; };
    const Tapaus tapaukset[] = {
        {0, 0, 0, 5, 1, 0, false, false, 100},    // an empty barn is clean whatever the staff
        {10, 0, 0, 0, 0, 0, false, false, 0},
        {9, 0, 0, 0, 0, 0, false, true, 11},      // the feeding line adds one
        {11, 0, 0, 0, 0, 0, false, true, 0},      // the base never goes below 0
        {6, 2, 1, 0, 0, 0, false, false, 10},     // the young count like adults
        {21, 0, 0, 1, 0, 0, false, false, 100},   // one cleaner keeps 21 clean at the easiest level
        {40, 0, 0, 1, 0, 0, false, false, 52},    // 52.5 goes to the even 52
        {40, 0, 0, 1, 1, 0, false, false, 50},    // each step of difficulty costs a point of power
        {78, 0, 0, 1, 2, 1, true, false, 50},     // 21 - 2 + 10 + 10 = 39 heads a cleaner
    };
    for (const Tapaus& c : tapaukset) {
        Lauma t;
        t.m.El[Nauta] = {c.lehmiä, 0, c.vasikoita, 0};
        t.m.El[Kana][Naaras] = c.kanoja;
        t.m.Työ[Siivooja] = c.siivoojia;
        t.m.Vaikeustaso = static_cast<Byte>(c.taso);
        t.m.Moti[Siivooja] = static_cast<Integer>(c.moti);
        t.m.Ylityö[Siivooja] = c.ylityö;
        t.m.Tarv[Syöttölinjasto] = c.linjasto;
        t.m.Hygienia = 37;
        EläintenKunto(t.peli);
        EXPECT_EQ(t.m.Hygienia, c.odotettu) << c.lehmiä << " heads, " << c.siivoojia << " cleaners";
    }
}

TEST(Hygiene, OvertimeIsPaidWithWholeDivisionAndAnOverflowKeepsTheOldFigure) {
    // 3190 \ 30 = 106 and 3190 \ 200 = 15: the division cuts, it doesn't round.
    struct Tapaus { Long päitä; bool ylityö, viikonloppu; double odotettu; };
    for (const Tapaus& c : {Tapaus{10, true, true, 106}, {10, true, false, 15}, {0, true, true, 0}}) {
        Lauma t;
        t.m.El[Sika][Naaras] = c.päitä;
        t.m.Työ[Siivooja] = 1;
        t.m.Palkka[Siivooja] = 3190;
        t.m.Ylityö[Siivooja] = c.ylityö;
        t.m.Viikonloppu = c.viikonloppu;
        t.m.YlityöPalkat = 0;
        EläintenKunto(t.peli);
        EXPECT_EQ(t.m.YlityöPalkat, c.odotettu);
    }
    // 21 × 20 / 1 × 100 doesn't fit the 16-bit figure: the box, the old figure held, the pay still made.
    for (int vanha : {120, 64}) {
        Lauma t;
        t.m.El[Nauta][Naaras] = 1;
        t.m.Työ[Siivooja] = 20;
        t.m.Ylityö[Siivooja] = t.m.Viikonloppu = true;
        t.m.Palkka[Siivooja] = 3000;
        t.m.YlityöPalkat = 0;
        t.m.Hygienia = static_cast<Integer>(vanha);
        EläintenKunto(t.peli);
        EXPECT_EQ(t.m.Hygienia, std::min(vanha, 100));
        EXPECT_EQ(t.m.YlityöPalkat, 100);
        EXPECT_EQ(t.Tapahtumat(), std::vector<std::string>{"LAATIKKO|Vika hygienia tarkastuksessa"});
    }
}

TEST(Output, EachKindDrawsInItsOrderWithItsPasses) {
    Lauma t;
    t.m.Hygienia = 100;  // H = 1.5
    auto& el = t.m.El;
    el[Nauta] = {2, 0, 0, 1};
    el[Lammas] = {1, 0, 0, 1};
    el[Kana] = {4, 0, 0, 3};
    el[Sika] = {1, 0, 0, 1};
    Jonoon(t, {
        0.5, 0.1,        // milk: 3 + Int(3.0) = 6, 3 + Int(0.6) = 3
        0.99,            // cow manure: Int(Int(2.97) × 0.5) = 1
        0.9,             // bull manure: Int(Int(1.35) × 0.5) = 0
        0.99,            // ewe wool: 2 + Int(4.455) = 6
        0.99,            // ewe manure: Int(Int(1.485) × 0.2) = 0
        0.7, 0.6,        // ram wool, heads + 1 passes: 1 + Int(1.05) = 2, 1 + Int(0.9) = 1
        0.5,             // ram manure: 0
        0.5, 0.34, 0.0, 0.0, 0.99,  // eggs, heads + 1 passes: 1, 1, 0, 0, 2
        0.5667,          // hen manure: Int(Int(3.4) × 0.3) = 0 (not Int(3.4 × 0.3) = 1)
        0.99,            // cock manure: Int(Int(4.455) × 0.3) = 1
        0.8, 0.39, 0.5,  // pig manure, sows + boars + 1 passes: Int(2.0) = 2, Int(0.975) = 0, Int(1.25) = 1
    });
    EläintenTuotanto(t.peli);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
    EXPECT_EQ(t.m.Var[Maito], 9);
    EXPECT_EQ(t.m.Var[Villa], 9);
    EXPECT_EQ(t.m.Var[Muna], 4);
    EXPECT_EQ(t.m.Var[Lanta], 5);
}

TEST(Output, SuppliesAddOneAPassAndLowHygieneCutsTheDraw) {
    struct Tapaus { Tuote tuote; Laji laji; Luokka luokka; Long päitä; Tarvike tarvike; int hygienia; double r, odotettu; };
    const Tapaus tapaukset[] = {
        {Maito, Nauta, Naaras, 2, Lypsykone, 100, 0.0, 8},    // (3 + 1) × 2
        {Maito, Nauta, Naaras, 2, Lypsykone, 0, 0.99, 10},    // H 0.5: 3 + Int(1.98) + 1 = 5 a cow
        {Muna, Kana, Naaras, 2, UVValot, 100, 0.0, 3},        // three passes for two hens
        {Muna, Kana, Naaras, 2, UVValot, 0, 0.99, 3},         // H 0.5: Int(0.99) = 0 an egg pass
        {Lanta, Sika, Uros, 1, Lantasäiliö, 0, 0.99, 2},      // (0 + 0.5) × 0.99 gives 0; the tank 1
    };
    for (const Tapaus& c : tapaukset) {
        Lauma t;
        t.m.El[c.laji][c.luokka] = c.päitä;
        t.m.Tarv[c.tarvike] = true;
        t.m.Hygienia = static_cast<Integer>(c.hygienia);
        Jonoon(t, std::vector<double>(10, c.r));
        EläintenTuotanto(t.peli);
        EXPECT_EQ(t.m.Var[c.tuote], c.odotettu) << TUOTETAULU[c.tuote].avain << " at hygiene " << c.hygienia;
    }
}

TEST(Pasture, LoadIsHeldBetweenFortyAndNinetyThenMovedBySeason) {
    struct Tapaus { double laidun; Long lehmiä; const char* vuodenaika; double odotettu; };
    const Tapaus tapaukset[] = {
        {0, 5, "Kesä", 1.0},  {1, 5, "Kesä", 0.5},  {1, 9, "Kesä", 0.9},  // exactly 90 stays
        {1, 4, "Kesä", 0.4},  {1, 0, "Kesä", 0.4},                        // 40 stays; no grazers load 0
        {1, 5, "Kevät", 0.6}, {1, 12, "Kevät", 1.0}, {1, 5, "Talvi", 1.0},  // winter ignores the land
    };
    Lauma t;
    for (const Tapaus& c : tapaukset) {
        t.m.Laidun = static_cast<Single>(c.laidun);
        t.m.El[Nauta][Naaras] = c.lehmiä;
        t.m.Vuodenaika = c.vuodenaika;
        EXPECT_NEAR(LaidunKerroin(t.m), c.odotettu, 1e-12) << c.laidun << " ha, " << c.lehmiä << ", " << c.vuodenaika;
    }
}

}  // namespace
}  // namespace tanhua
