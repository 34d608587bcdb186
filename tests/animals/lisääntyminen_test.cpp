// The herd's month end: ageing by the month table and breeding with its odds, room and litters.
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "animals/eläimet.h"
#include "lauma.h"

namespace tanhua {
namespace {

using testi::Lauma;

TEST(Ageing, EachSpeciesGrowsUpInItsMonths) {
    constexpr std::array<Laji, LAJEJA> lajit{Kana, Lammas, Sika, Kettu, Nauta, Hevonen};
    struct Tapaus { int kuukausi; std::array<Long, LAJEJA> vanhenee; };
    const Tapaus tapaukset[] = {
        {1, {1, 1, 1, 1, 1, 1}}, {2, {0, 0, 0, 0, 0, 0}}, {3, {1, 0, 0, 0, 0, 0}}, {4, {0, 1, 1, 1, 0, 0}},
        {7, {1, 1, 1, 1, 0, 0}}, {10, {0, 1, 1, 1, 0, 0}}, {12, {0, 0, 0, 0, 0, 0}},
    };
    for (const Tapaus& c : tapaukset) {
        Lauma t;
        for (auto& laji : t.m.El) laji[Nuori] = laji[Poikanen] = 1;
        t.m.Kuukausi = static_cast<Byte>(c.kuukausi);
        t.Jonoon({0.0});
        Vanhentuminen(t.peli);
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 1u);  // a lone young draws nothing
        // A cub becomes young and a young an adult, in one step.
        for (std::size_t i = 0; i < lajit.size(); ++i)
            EXPECT_EQ(t.m.El[lajit[i]], (std::array<Long, 4>{c.vanhenee[i], 1, 1 - c.vanhenee[i], 0}))
                << "month " << c.kuukausi << " " << LAJITAULU[lajit[i]].laji;
    }
}

TEST(Ageing, OneYoungInFourBecomesAMaleDrawnSpeciesBySpeciesAndTheChartCountsTheAdults) {
    Lauma t;
    t.m.Kuukausi = 1;
    for (auto& laji : t.m.El) laji[Nuori] = 2;
    t.m.El[Hevonen][Nuori] = 1;  // a lone young is always female, and draws nothing
    t.m.El[Kana][Naaras] = 5;
    t.Jonoon({0.0, 0.25, 0.9, 0.9, 0.24});  // hen, sheep, pig, fox, cattle: below 0.25 a male
    Vanhentuminen(t.peli);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
    struct Tapaus { Laji laji; Long naaraita, uroksia; };
    for (const Tapaus& c : {Tapaus{Kana, 6, 1}, {Lammas, 2, 0}, {Sika, 2, 0}, {Nauta, 1, 1}, {Hevonen, 1, 0}}) {
        EXPECT_EQ(t.m.El[c.laji][Naaras], c.naaraita) << LAJITAULU[c.laji].laji;
        EXPECT_EQ(t.m.El[c.laji][Uros], c.uroksia) << LAJITAULU[c.laji].laji;
    }
    EXPECT_EQ(t.m.Käyrät.Eläimiä, std::vector<std::string>{" 16"});
}

// Breeding with the six odds draws (hen, sheep, pig, fox, cattle, horse) and the four litter
// draws (hen, pig, fox, sheep) given.
void Lisäänny(Lauma& t, const std::array<double, 6>& kertoimet, const std::array<double, 4>& pesueet) {
    t.Jonoon(std::vector<double>(kertoimet.begin(), kertoimet.end()));
    t.Jonoon(std::vector<double>(pesueet.begin(), pesueet.end()));
    Lisääntyminen(t.peli);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
}

TEST(Breeding, CattleOddsWithTheInseminatorAndTheHerdsSize) {
    struct Tapaus { Long lehmiä; Long siementäjiä; int moti; int k; bool poikii; };
    // The cattle's draw gives Int(r × 11) = k; a calf comes when k <= 1 + bonus + cows \ 100.
    const Tapaus tapaukset[] = {
        {1, 0, 0, 1, true},   {1, 0, 0, 2, false},   {1, 1, 0, 2, true},   {1, 1, 0, 3, false},  // Int(0.3) + 1 = 1
        {1, 4, 0, 3, true},   {1, 4, 0, 4, false},   {1, 4, 2, 5, true},   {1, 4, 2, 6, false},  // Int(1.2) + 1, + moti
        {150, 0, 0, 2, true}, {150, 0, 0, 3, false}, {250, 0, 0, 3, true}, {250, 0, 0, 4, false},  // the division cuts
    };
    for (const Tapaus& c : tapaukset) {
        Lauma t;
        t.m.El[Nauta] = {c.lehmiä, 0, 0, 1};
        t.m.Työ[Siementäjä] = c.siementäjiä;
        t.m.Moti[Siementäjä] = static_cast<Integer>(c.moti);
        Lisäänny(t, {0.99, 0.99, 0.99, 0.99, (c.k + 0.5) / 11, 0.99}, {0.99, 0.99, 0.99, 0.99});
        EXPECT_EQ(t.m.El[Nauta][Poikanen], c.poikii ? 1 : 0)
            << c.lehmiä << " cows, " << c.siementäjiä << " inseminators, motivation " << c.moti << ", k " << c.k;
    }
}

TEST(Breeding, TheRoomTestIsStrictAndTheFullBarnIsTold) {
    struct Tapaus { float navetta; Long sonneja; Long siementäjiä; Long vasikoita; Long poikasia; bool viesti; };
    // One cow and her calf-to-be; the cattle's draw always wins.
    // 3 is not above 2 + 1, but the barn isn't full; 2 is not above the heads: full. With no male and no
    // inseminator there are no births and no word; the inseminator stands in for the bull; the young take room.
    const Tapaus tapaukset[] = {
        {4, 1, 0, 0, 1, false}, {3, 1, 0, 0, 0, false}, {2, 1, 0, 0, 0, true}, {2, 0, 0, 0, 0, false},
        {2, 0, 1, 0, 0, true},  {4, 0, 1, 0, 1, false}, {4, 1, 0, 1, 0, false}, {5, 1, 0, 1, 1, false},
    };
    for (const Tapaus& c : tapaukset) {
        Lauma t;
        t.m.Koko_Navetta = c.navetta;
        t.m.El[Nauta] = {1, c.vasikoita, 0, c.sonneja};
        t.m.El[Sika][Naaras] = c.sonneja == 0 ? 1 : 0;  // a sow in the bull's place keeps two heads
        t.m.Työ[Siementäjä] = c.siementäjiä;
        Lisäänny(t, {0.99, 0.99, 0.99, 0.99, 0.0, 0.99}, {0.99, 0.99, 0.99, 0.99});
        EXPECT_EQ(t.m.El[Nauta][Poikanen], c.poikasia) << c.navetta << " " << c.sonneja << " " << c.siementäjiä;
        EXPECT_EQ(t.Tapahtumat(), c.viesti ? std::vector<std::string>{"LISTA|Eläimesi ei voi lisääntyä tilanpuutteen vuoksi!"}
                                           : std::vector<std::string>{}) << c.navetta << " " << c.sonneja;
    }
}

TEST(Breeding, EachSpeciesNeedsItsOwnPairAndSpeciesShareTheLastPlaces) {
    Lauma t;
    auto& el = t.m.El;
    el[Nauta] = el[Hevonen] = {1, 0, 0, 1};
    el[Lammas][Naaras] = 1;  // no ram: the bull doesn't serve the ewes
    el[Sika][Uros] = 1;      // a boar without a sow
    t.m.Koko_Navetta = 8;    // 6 heads: each birth alone fits, and both are let in
    Lisäänny(t, {0.0, 0.0, 0.0, 0.0, 0.0, 0.0}, {0.0, 0.0, 0.0, 0.0});
    EXPECT_EQ(std::tuple(el[Nauta][Poikanen], el[Hevonen][Poikanen], el[Lammas][Poikanen], el[Sika][Poikanen]),
              std::tuple(1, 1, 0, 0));
}

TEST(Breeding, LittersAreDrawnHenPigFoxSheep) {
    struct Tapaus { bool hautomo; Long tiput, porsaat, kettuset, karitsat; };
    const Tapaus tapaukset[] = {
        {false, 8, 7, 5, 2},  // Int(0.99 × 2 + 6) + 1, Int(0.99 × 2 + 5) + 1, Int(0.5 × 2 + 3) + 1, Int(0 + 1) + 1
        {true, 9, 7, 5, 2},   // the hatchery: 50 \ 20 = 2, Int(0.99 × 2 + 7) + 1
    };
    for (const Tapaus& c : tapaukset) {
        Lauma t;
        auto& el = t.m.El;
        el[Kana] = {50, 0, 0, 1};
        el[Lammas] = {100, 0, 0, 1};
        el[Sika] = {60, 0, 0, 1};
        el[Kettu] = {80, 0, 0, 1};
        t.m.Tarv[Hautomo] = c.hautomo;
        Lisäänny(t, {0.0, 0.0, 0.0, 0.0, 0.0, 0.0}, {0.99, 0.99, 0.5, 0.0});
        EXPECT_EQ((std::array<Long, 4>{el[Kana][Poikanen], el[Sika][Poikanen], el[Kettu][Poikanen], el[Lammas][Poikanen]}),
                  (std::array<Long, 4>{c.tiput, c.porsaat, c.kettuset, c.karitsat}));
    }
}

}  // namespace
}  // namespace tanhua
