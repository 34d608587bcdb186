// The herd's day: hygiene, the cleaner's overtime, output, the pasture factor, the feed of each kind,
// starvation, the welfare fine and the warnings.
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "animals/eläimet.h"
#include "lauma.h"

namespace tanhua {
namespace {

using testi::Lauma;

TEST(Hygiene, CleanersAgainstHeads) {
    struct Tapaus { Long lehmiä, kanoja, vasikoita, siivoojia; int taso, moti; bool ylityö, linjasto; int odotettu; };
    const Tapaus tapaukset[] = {
        {0, 0, 0, 5, 1, 0, false, false, 100},    // an empty barn is clean whatever the staff
        {10, 0, 0, 0, 0, 0, false, false, 0}, {9, 0, 0, 0, 0, 0, false, true, 11},  // the feeding line adds one
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
        t.m.Hygienia = static_cast<Integer>(vanha);
        EläintenKunto(t.peli);
        EXPECT_EQ((std::array<double, 2>{1.0 * t.m.Hygienia, t.m.YlityöPalkat}), (std::array<double, 2>{std::min(vanha, 100) * 1.0, 100}));
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
    t.Jonoon({
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
    EXPECT_EQ(std::tuple(t.peli.arvonta.JonossaJäljellä(), t.m.Var[Maito], t.m.Var[Villa], t.m.Var[Muna],
                         t.m.Var[Lanta]),
              std::tuple(0u, 9, 9, 4, 5));
}

TEST(Output, SuppliesAddOneAPassAndLowHygieneCutsTheDraw) {
    struct Tapaus { Tuote tuote; Laji laji; Luokka luokka; Long päitä; Tarvike tarvike; int hygienia; double r, odotettu; };
    const Tapaus tapaukset[] = {
        {Maito, Nauta, Naaras, 2, Lypsykone, 100, 0.0, 8},    // (3 + 1) × 2
        {Maito, Nauta, Naaras, 2, Lypsykone, 0, 0.99, 10},    // H 0.5: 3 + Int(1.98) + 1 = 5 a cow
        {Muna, Kana, Naaras, 2, UVValot, 100, 0.0, 3}, {Muna, Kana, Naaras, 2, UVValot, 0, 0.99, 3},  // 3 passes; H 0.5: Int(0.99) = 0
        {Lanta, Sika, Uros, 1, Lantasäiliö, 0, 0.99, 2},      // (0 + 0.5) × 0.99 gives 0; the tank 1
    };
    for (const Tapaus& c : tapaukset) {
        Lauma t;
        t.m.El[c.laji][c.luokka] = c.päitä;
        t.m.Tarv[c.tarvike] = true;
        t.m.Hygienia = static_cast<Integer>(c.hygienia);
        t.Jonoon(std::vector<double>(10, c.r));
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

TEST(Feeding, EachKindEatsOnePassMoreThanItsHeadsAndTheCounterRoundsItsNewSumToEven) {
    // ennen: the month's counter before the day.
    struct Tapaus { Laji laji; Luokka luokka; Long päitä; float laidun; std::vector<double> arvot; Long ennen, syönti;
        float jäljellä; };
    // With Laidun 1 a lone grazer loads it at 10 %, held up to 40 %: the factor is 0.4.
    const Tapaus tapaukset[] = {
        {Nauta, Naaras, 1, 0, {0.0, 0.99}, 0, 12, 88},        // (3 + 2) + (3 + 4)
        {Nauta, Uros, 1, 1, {0.5, 0.5}, 0, 8, 91.6f},         // 2 × (3 + 0.4 × 3) = 8.4
        {Hevonen, Naaras, 1, 0, {0.34, 0.67}, 0, 11, 89},     // (2 + 3) + (2 + 4)
        {Sika, Naaras, 1, 1, {0.5, 0.49}, 0, 9, 91},          // pigs don't graze: (2 + 3) + (2 + 2)
        {Lammas, Naaras, 1, 1, {0.5, 0.0}, 0, 4, 96},         // (1 + 0.4 × 3) + (1 + 0.4 × 2)
        {Kettu, Uros, 1, 0, {0.99, 0.99}, 0, 4, 96}, {Kana, Naaras, 3, 0, {}, 0, 4, 96},  // hens: no draw, one a pass
        // Five cows on a hectare load it at 50 %: the day's feed is 6 × 3 + 0.5 × (3 + 5 × 2) = 24.5. The
        // counter holds the sum, so a tie is settled by the parity of the whole sum: 25.5, not 1 + 24.
        {Nauta, Naaras, 5, 1, {0.5, 0.0, 0.0, 0.0, 0.0, 0.0}, 0, 24, 75.5f},
        {Nauta, Naaras, 5, 1, {0.5, 0.0, 0.0, 0.0, 0.0, 0.0}, 1, 26, 75.5f},
        {Nauta, Naaras, 5, 1, {0.5, 0.0, 0.0, 0.0, 0.0, 0.0}, 2, 26, 75.5f},
    };
    for (const Tapaus& c : tapaukset) {
        Lauma t;
        t.m.El[c.laji][c.luokka] = c.päitä;
        t.m.Laidun = c.laidun;
        t.m.Var[Rehu] = 100;
        t.m.Syönti[c.laji] = c.ennen;
        t.Jonoon(c.arvot);
        Ruokinta(t.peli);
        const std::string mikä = std::string(LAJITAULU[c.laji].laji) + " " + std::to_string(c.luokka) + " " +
                                 std::to_string(c.päitä) + " " + std::to_string(c.ennen);
        EXPECT_EQ(std::tuple(t.peli.arvonta.JonossaJäljellä(), t.m.Syönti[c.laji]), std::tuple(0u, c.syönti)) << mikä;
        EXPECT_FLOAT_EQ(t.m.Var[Rehu], c.jäljellä) << mikä;
    }
}

TEST(Feeding, TheDaysNeedIsAWholeNumberRoundedToEven) {
    struct Tapaus { Laji laji; Luokka luokka; Long päitä; Long tarve; };
    const Tapaus tapaukset[] = {
        {Kana, Naaras, 1, 0}, {Kana, Naaras, 3, 2}, {Kana, Naaras, 5, 2},  // half a kilo a hen, ties to even
        {Nauta, Nuori, 1, 5}, {Hevonen, Poikanen, 2, 10}, {Lammas, Nuori, 1, 3},
        {Kettu, Naaras, 1, 1}, {Kettu, Uros, 1, 2},                          // a dog fox counts double
    };
    Lauma t;
    for (const Tapaus& c : tapaukset) {
        t.m.El = {};
        t.m.El[c.laji][c.luokka] = c.päitä;
        EXPECT_EQ(RehuTarve(t.m), c.tarve) << LAJITAULU[c.laji].laji << " class " << c.luokka;
    }
}

TEST(Feeding, StarvationBelowOneKiloLeftAndTheWarningsByCashAndAutomaticPurchase) {
    // Two hens eat 3 and need 1 a day: the warning comes below 4 kilos. With exactly 1 left nobody starves and
    // no draw is taken; with 0.9 left a hen starves and the silo is put back to 0.
    using E = std::vector<std::string>;
    struct Tapaus { float rehu, raha; int automaatti; Long kirjanpitäjiä, kanojaJää; E rivit; };
    const Tapaus tapaukset[] = {
        {6.5f, 10, 0, 0, 2, {"LISTA|Rehua jäljellä 3.5 Kg!!"}}, {7.0f, 10, 0, 0, 2, {}},
        {6.5f, 0.5f, 1, 1, 2, {"LISTA|Rehua jäljellä 3.5 Kg!!"}},
        {6.5f, 0, 1, 1, 2, {"LISTA|Rehua jäljellä 3.5 Kg ja rahat loppu!"}},
        {6.5f, -5, 1, 0, 2, {"LISTA|Rehua 3.5 Kg, Rehun automaattiostoon ei varaa!"}},
        {6.5f, 0, 0, 1, 2, {"LISTA|Rehua jäljellä 3.5 Kg eikä ole varaa ostaa lisää."}},
        {4.0f, 10, 0, 0, 2, {"LISTA|Rehua jäljellä 1 Kg!!"}},
        {3.9f, 10, 0, 0, 1, {"LISTA|Kanojasi kuoli nälkään!", "LISTA|Rehua jäljellä 0 Kg!!"}},
    };
    for (const Tapaus& c : tapaukset) {
        Lauma t;
        t.m.El[Kana][Naaras] = 2;
        t.m.Hygienia = t.m.Vaikeustaso = 0;
        t.m.Var[Rehu] = c.rehu;
        t.m.Raha = c.raha;
        t.m.Tuotteet.Myy[Rehu] = static_cast<Integer>(c.automaatti);
        t.m.Työ[Kirjanpitäjä] = c.kirjanpitäjiä;
        t.Jonoon(std::vector<double>(12, 0.0));
        Ruokinta(t.peli);
        EXPECT_EQ(t.Tapahtumat(), c.rivit) << c.rehu << " " << c.raha;
        EXPECT_EQ(t.m.El[Kana][Naaras], c.kanojaJää) << c.rehu;
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), c.kanojaJää == 2 ? 12u : 0u) << c.rehu;
    }
}

TEST(Starvation, TheTestRoundsToEvenAgainstHygieneAndDifficulty) {
    struct Tapaus { int hygienia; int taso; double r; bool kuolee; };
    const Tapaus tapaukset[] = {
        {100, 0, 0.0, false}, {50, 0, 0.0, true}, {50, 0, 0.25, false},  // Int(1) + 1 = 2
        {25, 0, 0.0, true}, {25, 0, 0.25, false},                         // 0.5 goes to 0, 1.5 to 2
        {100, 2, 0.0, true},
    };
    for (const Tapaus& c : tapaukset) {
        // Hens draw first and cows ninth; every kind draws, with heads or without.
        Lauma t;
        t.m.El[Kana][Naaras] = t.m.El[Nauta][Naaras] = 3;
        t.m.Hygienia = static_cast<Integer>(c.hygienia);
        t.m.Vaikeustaso = static_cast<Byte>(c.taso);
        t.m.Raha = 0;
        t.Jonoon({c.r});
        t.Jonoon(std::vector<double>(7, 0.99));
        t.Jonoon({c.r, 0.99, 0.99, 0.99});
        Nälkäkuolemat(t.peli);
        EXPECT_EQ(t.m.El[Kana][Naaras], c.kuolee ? 2 : 3) << c.hygienia << " " << c.taso << " " << c.r;
        EXPECT_EQ(t.m.El[Nauta][Naaras], c.kuolee ? 2 : 3) << c.hygienia << " " << c.taso << " " << c.r;
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
    }
}

TEST(Starvation, TheWelfareFine) {
    // A hen dies at the first draw; then the fine's two draws: four days in five, and its size.
    struct Tapaus { Long kanoja; float raha; std::vector<double> arvot; float rahaJälkeen; std::size_t jäljellä; const char* sakko; };
    const Tapaus tapaukset[] = {
        // Exactly 1000 is too little to fine; Int(1.0) is not 0; nobody died.
        {1, 1000, {0.0, 0.5}, 1000, 2, nullptr}, {1, 1001, {0.2, 0.5}, 1001, 1, nullptr},
        {0, 10000, {0.0, 0.5}, 10000, 2, nullptr},
        {1, 10000, {0.19, 0.5}, 8999, 0, " 1001"},       // Round(2000 × 0.5) + 1
        {1, 10012.5f, {0.0, 0.9}, 8209.5f, 0, " 1803"},  // 2002.5 goes to 2002; 1801.8 to 1802
        {1, 10010, {0.0, 0.25}, 9509, 0, " 501"},        // 500.5 goes to 500
    };
    for (const Tapaus& c : tapaukset) {
        Lauma t;
        t.peli.asetukset.Äänitehosteet = true;
        t.m.El[Kana][Naaras] = c.kanoja;
        t.m.Hygienia = t.m.Vaikeustaso = 0;
        t.m.Raha = c.raha;
        t.Jonoon({0.0});
        t.Jonoon(std::vector<double>(11, 0.99));
        t.Jonoon(c.arvot);
        Nälkäkuolemat(t.peli);
        EXPECT_FLOAT_EQ(t.m.Raha, c.rahaJälkeen) << c.raha;
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), c.jäljellä) << c.raha;
        std::vector<std::string> odotettu(c.kanoja, "LISTA|Kanojasi kuoli nälkään!");
        if (c.sakko)
            odotettu.insert(odotettu.end(), {std::string("LISTA|Eläinsuojeluvirasto sakotti ") + c.sakko,
                                             std::string("IKKUNA|Kuvat/sattumat/tuomari.jpg|Eläinsuojeluviranomaiset "
                                                         "tulivat tilallesi ja antoivat eläinten nälkäkuolemista "
                                                         "sakkoa sinulle :") + c.sakko, "ÄÄNI|Koputus"});
        EXPECT_EQ(t.Tapahtumat(), odotettu) << c.raha;
    }
}

}  // namespace
}  // namespace tanhua
