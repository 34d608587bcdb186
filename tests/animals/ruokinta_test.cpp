// The herd at the silo: the feed of each kind, starvation, the welfare fine and the warnings.
#include <gtest/gtest.h>

#include <vector>

#include "animals/eläimet.h"
#include "lauma.h"

namespace tanhua {
namespace {

using testi::Jonoon;
using testi::Lauma;

TEST(Feeding, EachKindEatsOnePassMoreThanItsHeads) {
    struct Tapaus { Laji laji; Luokka luokka; Long päitä; double laidun; std::vector<double> arvot; Long syönti; float jäljellä; };
    // With Laidun 1 a lone grazer loads it at 10 %, held up to 40 %: the factor is 0.4.
    const Tapaus tapaukset[] = {
        {Nauta, Naaras, 1, 0, {0.0, 0.99}, 12, 88},        // (3 + 2) + (3 + 4)
        {Nauta, Uros, 1, 1, {0.5, 0.5}, 8, 91.6f},         // 2 × (3 + 0.4 × 3) = 8.4
        {Hevonen, Naaras, 1, 0, {0.34, 0.67}, 11, 89},     // (2 + 3) + (2 + 4)
        {Sika, Naaras, 1, 1, {0.5, 0.49}, 9, 91},          // pigs don't graze: (2 + 3) + (2 + 2)
        {Lammas, Naaras, 1, 1, {0.5, 0.0}, 4, 96},         // (1 + 0.4 × 3) + (1 + 0.4 × 2)
        {Kettu, Uros, 1, 0, {0.99, 0.99}, 4, 96},
        {Kana, Naaras, 3, 0, {}, 4, 96},                   // no draw: one a pass
    };
    for (const Tapaus& c : tapaukset) {
        Lauma t;
        t.m.El[c.laji][c.luokka] = c.päitä;
        t.m.Laidun = static_cast<Single>(c.laidun);
        t.m.Var[Rehu] = 100;
        Jonoon(t, c.arvot);
        Ruokinta(t.peli);
        const std::string kuka = std::string(LAJITAULU[c.laji].laji) + (c.luokka == Uros ? " male" : " female");
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u) << kuka;
        EXPECT_EQ(t.m.Syönti[c.laji], c.syönti) << kuka;
        EXPECT_FLOAT_EQ(t.m.Var[Rehu], c.jäljellä) << kuka;
    }
}

TEST(Feeding, TheMonthsCounterRoundsItsNewSumToEven) {
    // Five cows on a hectare load it at 50 %: the day's feed is 6 × 3 + 0.5 × (3 + 5 × 2) = 24.5.
    // The counter holds the sum, so a tie is settled by the parity of the whole sum.
    struct Tapaus { Long ennen; Long jälkeen; };
    for (const Tapaus& c : {Tapaus{0, 24}, {1, 26} /* 25.5, not 1 + 24 */, {2, 26}}) {
        Lauma t;
        t.m.El[Nauta][Naaras] = 5;
        t.m.Laidun = 1;
        t.m.Var[Rehu] = 100;
        t.m.Syönti[Nauta] = c.ennen;
        Jonoon(t, {0.5, 0.0, 0.0, 0.0, 0.0, 0.0});
        Ruokinta(t.peli);
        EXPECT_EQ(t.m.Syönti[Nauta], c.jälkeen) << c.ennen;
        EXPECT_FLOAT_EQ(t.m.Var[Rehu], 75.5f) << c.ennen;
    }
}

TEST(Feeding, StarvationNeedsLessThanOneKiloLeft) {
    // Exactly 1 left: no test, no draws; 0.9 left or below zero: the hen dies and the silo is put back to 0.
    struct Tapaus { float rehu; Long kanojaJälkeen; float rehuJälkeen; std::size_t arvontojaJäljellä; };
    for (const Tapaus& c : {Tapaus{3.0f, 1, 1.0f, 12}, {2.9f, 0, 0.0f, 0}, {1.0f, 0, 0.0f, 0}}) {
        Lauma t;
        t.m.El[Kana][Naaras] = 1;
        t.m.Hygienia = t.m.Vaikeustaso = 0;
        t.m.Raha = 500;
        t.m.Var[Rehu] = c.rehu;
        Jonoon(t, std::vector<double>(12, 0.0));
        Ruokinta(t.peli);
        EXPECT_EQ(t.m.El[Kana][Naaras], c.kanojaJälkeen) << c.rehu;
        EXPECT_FLOAT_EQ(t.m.Var[Rehu], c.rehuJälkeen) << c.rehu;
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), c.arvontojaJäljellä) << c.rehu;
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

TEST(Feeding, WarningsByCashAndAutomaticPurchase) {
    struct Tapaus { float rehu; float raha; int automaatti; Long kirjanpitäjiä; const char* rivi; };
    // Two hens eat 3 and need 1 a day: the warning comes below 4 kilos.
    for (const Tapaus& c : {Tapaus{6.5f, 10, 0, 0, "Rehua jäljellä 3.5 Kg!!"}, {7.0f, 10, 0, 0, nullptr},
                            {6.5f, 0.5f, 1, 1, "Rehua jäljellä 3.5 Kg!!"},
                            {6.5f, 0, 1, 1, "Rehua jäljellä 3.5 Kg ja rahat loppu!"},
                            {6.5f, -5, 1, 0, "Rehua 3.5 Kg, Rehun automaattiostoon ei varaa!"},
                            {6.5f, 0, 0, 1, "Rehua jäljellä 3.5 Kg eikä ole varaa ostaa lisää."}}) {
        Lauma t;
        t.m.El[Kana][Naaras] = 2;
        t.m.Var[Rehu] = c.rehu;
        t.m.Raha = c.raha;
        t.m.Tuotteet.Myy[Rehu] = static_cast<Integer>(c.automaatti);
        t.m.Työ[Kirjanpitäjä] = c.kirjanpitäjiä;
        Ruokinta(t.peli);
        EXPECT_EQ(t.Tapahtumat(), c.rivi ? std::vector<std::string>{std::string("LISTA|") + c.rivi}
                                         : std::vector<std::string>{}) << c.rehu << " " << c.raha;
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
        Jonoon(t, {c.r});
        Jonoon(t, std::vector<double>(7, 0.99));
        Jonoon(t, {c.r, 0.99, 0.99, 0.99});
        Nälkäkuolemat(t.peli);
        EXPECT_EQ(t.m.El[Kana][Naaras], c.kuolee ? 2 : 3) << c.hygienia << " " << c.taso << " " << c.r;
        EXPECT_EQ(t.m.El[Nauta][Naaras], c.kuolee ? 2 : 3) << c.hygienia << " " << c.taso << " " << c.r;
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
    }
}

TEST(Starvation, EachKindLosesOneHeadWithItsLine) {
    Lauma t;
    for (auto& laji : t.m.El) laji[Naaras] = laji[Uros] = 2;
    t.m.Hygienia = t.m.Vaikeustaso = 0;
    t.m.Raha = 0;
    Jonoon(t, std::vector<double>(12, 0.0));
    Nälkäkuolemat(t.peli);
    for (const auto& laji : t.m.El) EXPECT_EQ(laji[Naaras] + laji[Uros], 2);
    EXPECT_EQ(t.Tapahtumat(), (std::vector<std::string>{
                                  "LISTA|Kanojasi kuoli nälkään!", "LISTA|Kukkojasi kuoli nälkään!",
                                  "LISTA|Lampaitasi kuoli nälkään!", "LISTA|Pässejäsi kuoli nälkään!",
                                  "LISTA|Emakoitasi kuoli nälkään!", "LISTA|Karjujasi kuoli nälkään!",
                                  "LISTA|Kettujasi kuoli nälkään!", "LISTA|Kettujasi kuoli nälkään!",
                                  "LISTA|Lehmiäsi kuoli nälkään!", "LISTA|Sonnejasi kuoli nälkään!",
                                  "LISTA|Hevosiasi kuoli nälkään!", "LISTA|Orejasi kuoli nälkään!"}));
}

TEST(Starvation, TheWelfareFine) {
    // A hen dies at the first draw; then the fine's two draws: four days in five, and its size.
    struct Tapaus { Long kanoja; float raha; std::vector<double> arvot; float rahaJälkeen; std::size_t jäljellä; const char* sakko; };
    const Tapaus tapaukset[] = {
        {1, 1000, {0.0, 0.5}, 1000, 2, nullptr},         // exactly 1000 is too little to fine
        {1, 1001, {0.2, 0.5}, 1001, 1, nullptr},         // Int(1.0) is not 0
        {0, 10000, {0.0, 0.5}, 10000, 2, nullptr},       // nobody died
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
        Jonoon(t, {0.0});
        Jonoon(t, std::vector<double>(11, 0.99));
        Jonoon(t, c.arvot);
        Nälkäkuolemat(t.peli);
        EXPECT_FLOAT_EQ(t.m.Raha, c.rahaJälkeen) << c.raha;
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), c.jäljellä) << c.raha;
        std::vector<std::string> odotettu;
        if (c.kanoja > 0) odotettu.push_back("LISTA|Kanojasi kuoli nälkään!");
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
