// The herd's month end: ageing by the month table and breeding with its odds, room and litters.
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "animals/eläimet.h"
#include "lauma.h"

namespace tanhua {
namespace {

using testi::Jonoon;
using testi::Testipeli;
using testi::TyhjäLauma;

TEST(Ageing, EachSpeciesGrowsUpInItsMonths) {
    // hen, sheep, pig, fox, cattle, horse
    constexpr std::array<Laji, LAJEJA> lajit{Kana, Lammas, Sika, Kettu, Nauta, Hevonen};
    struct Tapaus { int kuukausi; std::array<bool, LAJEJA> vanhenee; };
    const Tapaus tapaukset[] = {
        {1, {true, true, true, true, true, true}},
        {2, {false, false, false, false, false, false}},
        {3, {true, false, false, false, false, false}},
        {4, {false, true, true, true, false, false}},
        {5, {true, false, false, false, false, false}},
        {6, {false, false, false, false, false, false}},
        {7, {true, true, true, true, false, false}},
        {9, {true, false, false, false, false, false}},
        {10, {false, true, true, true, false, false}},
        {11, {true, false, false, false, false, false}},
        {12, {false, false, false, false, false, false}},
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        TyhjäLauma(t);
        for (auto& laji : t.m.El) laji[Nuori] = laji[Poikanen] = 1;
        t.m.Kuukausi = static_cast<Byte>(c.kuukausi);
        Jonoon(t, {0.0});
        Vanhentuminen(t.peli);
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 1u);  // a lone young draws nothing
        for (std::size_t i = 0; i < lajit.size(); ++i) {
            const auto& el = t.m.El[lajit[i]];
            const char* kuka = LAJITAULU[lajit[i]].laji.data();
            EXPECT_EQ(el[Naaras], c.vanhenee[i] ? 1 : 0) << "month " << c.kuukausi << " " << kuka;
            EXPECT_EQ(el[Nuori], 1) << "month " << c.kuukausi << " " << kuka;
            EXPECT_EQ(el[Poikanen], c.vanhenee[i] ? 0 : 1) << "month " << c.kuukausi << " " << kuka;
            EXPECT_EQ(el[Uros], 0);
        }
    }
}

TEST(Ageing, OneYoungInFourBecomesAMale) {
    struct Tapaus { long nuoria; double r; long naaraita; long uroksia; std::size_t jäljellä; };
    const Tapaus tapaukset[] = {
        {3, 0.24, 2, 1, 0},
        {3, 0.25, 3, 0, 0},
        {2, 0.0, 1, 1, 0},
        {1, 0.0, 1, 0, 1},  // a lone young is always female, and draws nothing
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        TyhjäLauma(t);
        t.m.Kuukausi = 1;
        t.m.El[Nauta][Nuori] = c.nuoria;
        Jonoon(t, {c.r});
        Vanhentuminen(t.peli);
        EXPECT_EQ(t.m.El[Nauta][Naaras], c.naaraita) << c.nuoria << " " << c.r;
        EXPECT_EQ(t.m.El[Nauta][Uros], c.uroksia) << c.nuoria << " " << c.r;
        EXPECT_EQ(t.m.El[Nauta][Nuori], 0);
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), c.jäljellä);
    }
}

TEST(Ageing, SpeciesDrawInTheirOrderAndTheChartCountsTheAdults) {
    Testipeli t;
    TyhjäLauma(t);
    t.m.Kuukausi = 1;
    for (auto& laji : t.m.El) laji[Nuori] = 2;
    t.m.El[Kana][Naaras] = 5;
    // hen, sheep, pig, fox, cattle, horse
    Jonoon(t, {0.0, 0.9, 0.9, 0.9, 0.0, 0.9});
    Vanhentuminen(t.peli);
    EXPECT_EQ(t.m.El[Kana][Uros], 1);
    EXPECT_EQ(t.m.El[Kana][Naaras], 6);
    EXPECT_EQ(t.m.El[Nauta][Uros], 1);
    for (Laji laji : {Lammas, Sika, Kettu, Hevonen}) {
        EXPECT_EQ(t.m.El[laji][Uros], 0);
        EXPECT_EQ(t.m.El[laji][Naaras], 2);
    }
    EXPECT_EQ(t.m.Käyrät.Eläimiä, std::vector<std::string>{" 17"});
}

// Breeding with the six odds draws (hen, sheep, pig, fox, cattle, horse) and the four litter
// draws (hen, pig, fox, sheep) given.
void Lisäänny(Testipeli& t, const std::array<double, 6>& kertoimet, const std::array<double, 4>& pesueet) {
    Jonoon(t, std::vector<double>(kertoimet.begin(), kertoimet.end()));
    Jonoon(t, std::vector<double>(pesueet.begin(), pesueet.end()));
    Lisääntyminen(t.peli);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
}

TEST(Breeding, CattleOddsWithTheInseminatorAndTheHerdsSize) {
    struct Tapaus { long lehmiä; long siementäjiä; int moti; int k; bool poikii; };
    // The cattle's draw gives Int(r × 11) = k; a calf comes when k <= 1 + bonus + cows \ 100.
    const Tapaus tapaukset[] = {
        {1, 0, 0, 1, true},   {1, 0, 0, 2, false},
        {1, 1, 0, 2, true},   {1, 1, 0, 3, false},    // Int(0.3) + 1 = 1
        {1, 4, 0, 3, true},   {1, 4, 0, 4, false},    // Int(1.2) + 1 = 2
        {1, 4, 2, 5, true},   {1, 4, 2, 6, false},    // motivation adds
        {1, 1, -1, 1, true},  {1, 1, -1, 2, false},
        {1, 10, 0, 5, true},  {1, 10, 0, 6, false},   // Int(3) + 1 = 4
        {150, 0, 0, 2, true}, {150, 0, 0, 3, false},  // 150 \ 100 = 1
        {250, 0, 0, 3, true}, {250, 0, 0, 4, false},  // 250 \ 100 = 2: the division cuts
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        TyhjäLauma(t);
        t.m.El[Nauta][Naaras] = c.lehmiä;
        t.m.El[Nauta][Uros] = 1;
        t.m.Työ[Siementäjä] = c.siementäjiä;
        t.m.Moti[Siementäjä] = static_cast<Integer>(c.moti);
        Lisäänny(t, {0.99, 0.99, 0.99, 0.99, (c.k + 0.5) / 11, 0.99}, {0.99, 0.99, 0.99, 0.99});
        EXPECT_EQ(t.m.El[Nauta][Poikanen], c.poikii ? 1 : 0)
            << c.lehmiä << " cows, " << c.siementäjiä << " inseminators, motivation " << c.moti << ", k " << c.k;
    }
}

TEST(Breeding, TheRoomTestIsStrictAndTheFullBarnIsTold) {
    struct Tapaus { float navetta; long sonneja; long siementäjiä; long vasikoita; long poikasia; bool viesti; };
    // One cow and her calf-to-be; the cattle's draw always wins.
    const Tapaus tapaukset[] = {
        {4, 1, 0, 0, 1, false},
        {3, 1, 0, 0, 0, false},  // 3 is not above 2 + 1, but the barn isn't full
        {2, 1, 0, 0, 0, true},   // not above the heads: full
        {1, 1, 0, 0, 0, true},
        {2, 0, 0, 0, 0, false},  // no male and no inseminator: no births, no word
        {2, 0, 1, 0, 0, true},
        {4, 0, 1, 0, 1, false},  // the inseminator stands in for the bull
        {4, 0, 0, 0, 0, false},
        {4, 1, 0, 1, 0, false},  // the young take room too
        {5, 1, 0, 1, 1, false},
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        TyhjäLauma(t);
        t.m.Koko_Navetta = c.navetta;
        t.m.El[Nauta][Naaras] = 1;
        t.m.El[Sika][Naaras] = c.sonneja == 0 ? 1 : 0;  // a sow in the bull's place keeps two heads
        t.m.El[Nauta][Uros] = c.sonneja;
        t.m.El[Nauta][Nuori] = c.vasikoita;
        t.m.Työ[Siementäjä] = c.siementäjiä;
        Lisäänny(t, {0.99, 0.99, 0.99, 0.99, 0.0, 0.99}, {0.99, 0.99, 0.99, 0.99});
        EXPECT_EQ(t.m.El[Nauta][Poikanen], c.poikasia) << c.navetta << " " << c.sonneja << " " << c.siementäjiä;
        std::vector<std::string> odotettu;
        if (c.viesti) odotettu.push_back("LISTA|Eläimesi ei voi lisääntyä tilanpuutteen vuoksi!");
        EXPECT_EQ(t.Tapahtumat(), odotettu) << c.navetta << " " << c.sonneja << " " << c.siementäjiä;
    }
}

TEST(Breeding, SpeciesShareTheLastPlaces) {
    Testipeli t;
    TyhjäLauma(t);
    auto& el = t.m.El;
    el[Nauta][Naaras] = el[Nauta][Uros] = 1;
    el[Hevonen][Naaras] = el[Hevonen][Uros] = 1;
    t.m.Koko_Navetta = 6;  // 4 heads: each birth alone fits, and both are let in
    Lisäänny(t, {0.99, 0.99, 0.99, 0.99, 0.0, 0.0}, {0.0, 0.0, 0.0, 0.0});
    EXPECT_EQ(el[Nauta][Poikanen], 1);
    EXPECT_EQ(el[Hevonen][Poikanen], 1);
}

TEST(Breeding, EachSpeciesNeedsItsOwnMaleAndFemale) {
    Testipeli t;
    TyhjäLauma(t);
    auto& el = t.m.El;
    el[Nauta][Naaras] = el[Nauta][Uros] = 1;
    el[Lammas][Naaras] = 1;  // no ram: the bull doesn't serve the ewes
    el[Sika][Uros] = 1;      // a boar without a sow
    Lisäänny(t, {0.0, 0.0, 0.0, 0.0, 0.0, 0.0}, {0.0, 0.0, 0.0, 0.0});
    EXPECT_EQ(el[Nauta][Poikanen], 1);
    EXPECT_EQ(el[Lammas][Poikanen], 0);
    EXPECT_EQ(el[Sika][Poikanen], 0);
}

TEST(Breeding, LittersAreDrawnHenPigFoxSheep) {
    struct Tapaus { bool hautomo; long tiput; long porsaat; long kettuset; long karitsat; };
    const Tapaus tapaukset[] = {
        {false, 8, 7, 5, 2},  // Int(0.99 × 2 + 6) + 1, Int(0.99 × 2 + 5) + 1, Int(0.5 × 2 + 3) + 1, Int(0 + 1) + 1
        {true, 9, 7, 5, 2},   // the hatchery: 50 \ 20 = 2, Int(0.99 × 2 + 7) + 1
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        TyhjäLauma(t);
        auto& el = t.m.El;
        el[Kana][Naaras] = 50;
        el[Lammas][Naaras] = 100;
        el[Sika][Naaras] = 60;
        el[Kettu][Naaras] = 80;
        for (Laji laji : {Kana, Lammas, Sika, Kettu}) el[laji][Uros] = 1;
        t.m.Tarv[Hautomo] = c.hautomo;
        Lisäänny(t, {0.0, 0.0, 0.0, 0.0, 0.0, 0.0}, {0.99, 0.99, 0.5, 0.0});
        EXPECT_EQ(el[Kana][Poikanen], c.tiput);
        EXPECT_EQ(el[Sika][Poikanen], c.porsaat);
        EXPECT_EQ(el[Kettu][Poikanen], c.kettuset);
        EXPECT_EQ(el[Lammas][Poikanen], c.karitsat);
    }
}

}  // namespace
}  // namespace tanhua
