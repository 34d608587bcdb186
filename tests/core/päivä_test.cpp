// The calendar and the day step: weekends, the month's turn, the year, the gift and the goals.
#include <gtest/gtest.h>

#include <algorithm>

#include "core/päivä.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

using Tila = testi::Aloitettu;

TEST(DayStep, TheAccountantSellsOnTheSaleDaysOfTheSetting) {
    struct Tapaus { int rulla; std::vector<int> päivät; };
    for (const Tapaus& c : {Tapaus{1, {5, 12, 19, 27}}, {0, {29}}}) {
        Tila t;
        t.m.Työ[Kirjanpitäjä] = 1;
        t.m.Tuotteet.rulla = static_cast<Integer>(c.rulla);
        t.m.Tuotteet.Myy[Lanta] = 1;
        std::vector<int> myyntipäivät;
        for (int päivä = 2; päivä <= 30; ++päivä) {
            t.m.Var[Lanta] = 100;
            SeuraavaPäivä(t.peli);
            if (t.m.Var[Lanta] < 100) myyntipäivät.push_back(päivä);
        }
        EXPECT_EQ(myyntipäivät, c.päivät) << "rulla " << c.rulla;
    }
}

TEST(DayStep, TheHerdGivesItsOutputBeforeItEats) {
    // An empty silo with every draw 0: both cows give 3 litres, then one of them starves.
    Tila t;
    t.m.Päivä = 30;
    t.m.Raha = 0;
    t.m.Var[Rehu] = 0;
    t.m.El[Nauta][Naaras] = 2;
    for (int i = 0; i < 500; ++i) t.peli.arvonta.Jonoon(0.0);
    SeuraavaPäivä(t.peli);
    EXPECT_EQ(std::tuple(t.m.Var[Maito], t.m.El[Nauta][Naaras]), std::tuple(6, 1));
}

TEST(DayStep, WeekendsAndTheTurnOfMonthAndYear) {
    Tila t;
    std::vector<int> viikonloput;
    for (int päivä = 2; päivä <= 30; ++päivä) {
        SeuraavaPäivä(t.peli);
        if (t.m.Viikonloppu) viikonloput.push_back(t.m.Päivä);
    }
    EXPECT_EQ(viikonloput, (std::vector<int>{6, 7, 13, 14, 20, 21, 28, 29}));
    // Day 30 becomes 31 inside the step, a weekday; then the month turns, the event list
    // empties and the month's sales become last month's.
    struct Tapaus { int kuukausi, uusiKuukausi, vuosi; const char* vuodenaika; };
    for (const Tapaus& c : {Tapaus{2, 3, 1980, "Kevät"}, {8, 9, 1980, "Syksy"}, {10, 11, 1980, "Talvi"},
                            {4, 5, 1980, "Kesä"}, {12, 1, 1981, "Talvi"}}) {
        t.m.Päivä = 30;
        t.m.Kuukausi = static_cast<Byte>(c.kuukausi);
        t.m.Viikonloppu = true;
        t.m.Tulo[Maito] = 120;
        t.peli.näkymä.Lista = {"vanha rivi"};
        SeuraavaPäivä(t.peli);
        EXPECT_EQ(std::tuple(t.m.Päivä, t.m.Kuukausi, t.m.Vuosi, t.m.Vuodenaika, t.m.Viikonloppu),
                  std::tuple(Byte{1}, static_cast<Byte>(c.uusiKuukausi), static_cast<Integer>(c.vuosi),
                             std::string(c.vuodenaika), false)) << c.kuukausi;
        EXPECT_TRUE(t.peli.näkymä.Lista.empty());
        EXPECT_EQ(std::tuple(t.m.EdTulo[Maito], t.m.Tulo[Maito]), std::tuple(120.0f, 0.0f));
    }
}

TEST(DayStep, TheStoreFullLineComesAtExactlyFull) {
    for (const auto& [maito, täynnä] : {std::pair{99.5f, false}, {100.0f, true}, {150.0f, true}}) {
        Tila t;  // Normaali: a store of 100
        t.m.Var[Maito] = maito;
        SeuraavaPäivä(t.peli);
        EXPECT_EQ(std::ranges::count(t.peli.näkymä.Lista, "Varastosi on täynnä! Myy tuotteitasi."), täynnä ? 1 : 0) << maito;
    }
}

TEST(ChristmasGift, OnlyOnTheTwentyFourthOfDecemberUnderTwentyThousand) {
    // The gift's draw is the day's first, so the queued value decides it: 0 gives 300, the top 3299.
    struct Tapaus { int päivä, kuukausi; float raha; double r; float rahaJälkeen; };
    for (const Tapaus& c : {Tapaus{23, 12, 19999, 0.0, 20299}, {23, 12, 500, 0.9999999, 3799},
                            {23, 12, 20000, 0.0, 20000}, {23, 11, 100, 0.0, 100}, {24, 12, 100, 0.0, 100}}) {
        Tila t;
        t.m.Päivä = static_cast<Byte>(c.päivä);
        t.m.Kuukausi = static_cast<Byte>(c.kuukausi);
        t.m.Raha = c.raha;
        t.peli.arvonta.Jonoon(c.r);
        SeuraavaPäivä(t.peli);
        EXPECT_EQ(t.m.Raha, c.rahaJälkeen) << c.päivä << "." << c.kuukausi << " " << c.raha;
        EXPECT_FALSE(c.raha != c.rahaJälkeen && t.peli.näkymä.ListaNäkyvissä) << "the gift's news window tells it";
    }
}

TEST(Goals, TheMillionAndTheTenthYear) {
    const char* miljoona = "VIESTI|0|Tavoitteesi oli kerätä miljoona ja olet päässyt tavoitteeseesi|vastattu";
    const char* kymmenen =
        "VIESTI|0|10 vuotta on kulunut, kun aloitit tilasi pitämisen. Olet päässyt nyt tavoitteeseen.|vastattu";
    struct Tapaus { int tavoite; float raha, tili, laina; int vuosi; const char* viesti; };
    for (const Tapaus& c : {Tapaus{1, 600000, 500000, 100000, 1980, miljoona}, {1, 600000, 500000, 100001, 1980, nullptr},
                            {1, 2000000, 0, 0, 1990, miljoona}, {2, 2000000, 0, 0, 1990, kymmenen},
                            {2, 0, 0, 0, 1989, nullptr}, {2, 0, 0, 0, 1991, nullptr}, {0, 5000000, 0, 0, 1990, nullptr}}) {
        Testipeli t;
        t.Aloita("Testi", 1, c.tavoite);
        t.m.Raha = c.raha;
        t.m.Tili = c.tili;
        t.m.Laina = c.laina;
        t.m.Vuosi = static_cast<Integer>(c.vuosi);
        TavoiteTarkastus(t.peli);
        const auto e = t.Tapahtumat();
        EXPECT_EQ(e.empty() ? std::string() : e[0], c.viesti ? c.viesti : "") << c.vuosi;
        // The million's goal shows the Tilanne screen with the story printed over it.
        const bool tarina = c.viesti == miljoona;
        EXPECT_EQ(e.size() > 1 && e[1] == "ALUE|Tarina", tarina) << c.vuosi;
        EXPECT_EQ(t.peli.tilanneruutu.auki && t.peli.tilanneruutu.Tarina, tarina) << c.vuosi;
        if (!tarina) {
            EXPECT_LE(e.size(), 1u) << c.vuosi;
        }
    }
}

}  // namespace
}  // namespace tanhua
