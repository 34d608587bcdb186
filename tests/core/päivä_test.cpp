// The calendar and the day step: weekends, the month's turn, the year, the gift and the goals.
#include <gtest/gtest.h>

#include "core/päivä.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

TEST(DayStep, TheAccountantSellsOnTheSaleDaysOfTheSetting) {
    struct Tapaus { int rulla; std::vector<int> päivät; };
    for (const Tapaus& c : {Tapaus{1, {5, 12, 19, 27}}, {0, {29}}}) {
        Testipeli t;
        t.Aloita();
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
    Testipeli t;
    t.Aloita();
    t.m.Päivä = 30;
    t.m.Raha = 0;
    t.m.Var[Rehu] = 0;
    t.m.El[Nauta][Naaras] = 2;
    for (int i = 0; i < 500; ++i) t.peli.arvonta.Jonoon(0.0);
    SeuraavaPäivä(t.peli);
    EXPECT_EQ(t.m.Var[Maito], 6);
    EXPECT_EQ(t.m.El[Nauta][Naaras], 1);
}

TEST(DayStep, EachPressMovesTheDayAndSetsTheWeekendFlag) {
    Testipeli t;
    t.Aloita();
    for (int odotettu = 2; odotettu <= 30; ++odotettu) {
        SeuraavaPäivä(t.peli);
        EXPECT_EQ(t.m.Päivä, odotettu);
        EXPECT_EQ(t.m.Viikonloppu, OnViikonloppu(odotettu)) << odotettu;
        EXPECT_EQ(t.m.Kuukausi, 6);
    }
    // Day 30 becomes 31 inside the step, which is a weekday, then the month turns.
    t.m.Viikonloppu = true;
    SeuraavaPäivä(t.peli);
    EXPECT_EQ(t.m.Päivä, 1);
    EXPECT_EQ(t.m.Kuukausi, 7);
    EXPECT_FALSE(t.m.Viikonloppu);
}

TEST(DayStep, TheYearTurnsAfterDecemberAndWinterStays) {
    Testipeli t;
    t.Aloita();
    t.m.Päivä = 30;
    struct Tapaus { int kuukausi; int uusiKuukausi; int vuosi; const char* vuodenaika; };
    for (const Tapaus& c : {Tapaus{12, 1, 1981, "Talvi"}, {2, 3, 1980, "Kevät"}, {8, 9, 1980, "Syksy"},
                            {10, 11, 1980, "Talvi"}, {4, 5, 1980, "Kesä"}}) {
        t.m.Päivä = 30;
        t.m.Kuukausi = static_cast<Byte>(c.kuukausi);
        t.m.Vuosi = 1980;
        SeuraavaPäivä(t.peli);
        EXPECT_EQ(t.m.Päivä, 1);
        EXPECT_EQ(t.m.Kuukausi, c.uusiKuukausi);
        EXPECT_EQ(t.m.Vuosi, c.vuosi);
        EXPECT_EQ(t.m.Vuodenaika, c.vuodenaika);
    }
}

TEST(DayStep, AMonthEndEmptiesTheEventListAndAgesTheMonthsSales) {
    Testipeli t;
    t.Aloita();
    t.peli.näkymä.Lista = {"vanha rivi"};
    t.m.Tulo[Maito] = 120;
    t.m.Päivä = 30;
    SeuraavaPäivä(t.peli);
    EXPECT_TRUE(t.peli.näkymä.Lista.empty());
    EXPECT_EQ(t.m.EdTulo[Maito], 120);
    EXPECT_EQ(t.m.Tulo[Maito], 0);
}

TEST(DayStep, AFailedStepIsReportedAndTheDayGoesOnOrStops) {
    struct Tapaus { const char* vastaus; int päivä; long laskuri; };
    // Day 255 can't grow in its Byte: the step that raises the day fails. Going on, the day
    // still stands above 30 at its end and the month turns; giving up drops the rest of the day.
    for (const Tapaus& c : {Tapaus{"Kyllä", 1, 0}, {"Ei", 255, 1}}) {
        Testipeli t;
        t.Aloita();
        t.m.Päivä = 255;
        t.peli.näkymä.ListaNäkyvissä = true;
        t.kanavat.vastaukset.push_back(c.vastaus);
        SeuraavaPäivä(t.peli);
        EXPECT_EQ(t.Tapahtumat().front(), "VIKA|Tanhua pää formi. Seuraava päivä kohdassa.|6|" + std::string(c.vastaus));
        EXPECT_EQ(t.m.Päivä, c.päivä);
        EXPECT_EQ(t.m.VikaLaskuri, c.laskuri) << "only a day that reached its end clears the count";
        EXPECT_FALSE(t.peli.näkymä.ListaNäkyvissä) << "what was done before the failure stands";
    }
}

TEST(DayStep, TheStoreFullLineComesAtExactlyFull) {
    struct Tapaus { float maito; bool täynnä; };
    for (const Tapaus& c : {Tapaus{99.5f, false}, {100, true}, {150, true}}) {
        Testipeli t;
        t.Aloita();  // Normaali: a store of 100
        t.m.Var[Maito] = c.maito;
        SeuraavaPäivä(t.peli);
        bool rivi = false;
        for (const auto& r : t.peli.näkymä.Lista) rivi |= r == "Varastosi on täynnä! Myy tuotteitasi.";
        EXPECT_EQ(rivi, c.täynnä) << c.maito;
    }
}

TEST(ChristmasGift, OnlyOnTheTwentyFourthOfDecemberUnderTwentyThousand) {
    struct Tapaus { int päivä, kuukausi; float raha; double r; float rahaJälkeen; bool lahja; };
    for (const Tapaus& c : {Tapaus{23, 12, 19999, 0.0, 20299, true},
                            {23, 12, 500, 0.9999999, 3799, true},
                            {23, 12, 20000, 0.0, 20000, false},
                            {23, 11, 100, 0.0, 100, false},
                            {24, 12, 100, 0.0, 100, false}}) {
        Testipeli t;
        t.Aloita();
        t.m.Päivä = static_cast<Byte>(c.päivä);
        t.m.Kuukausi = static_cast<Byte>(c.kuukausi);
        t.m.Raha = c.raha;
        // The gift's draw is the day's first; the weather's come after it.
        int draws = 0;
        bool ensimmäinenLahjaan = false;
        t.peli.arvonta.seuranta = [&](double, const std::source_location& paikka) {
            if (draws++ == 0) ensimmäinenLahjaan = std::string(paikka.function_name()).find("Joululahja") != std::string::npos;
        };
        t.peli.arvonta.Jonoon(c.r);
        SeuraavaPäivä(t.peli);
        EXPECT_EQ(t.m.Raha, c.rahaJälkeen);
        EXPECT_EQ(ensimmäinenLahjaan, c.lahja) << "one draw for the gift, before any other";
        if (!c.lahja) continue;
        const std::string g = c.r == 0.0 ? " 300" : " 3299";
        const auto tapahtumat = t.Tapahtumat();
        ASSERT_GE(tapahtumat.size(), 2u);
        EXPECT_EQ(tapahtumat[0], "LISTA|Joululahjaksi " + g);
        EXPECT_EQ(tapahtumat[1], "IKKUNA|Kuvat/sattumat/joulu.jpg|Joulu 24.12. 1980. Sait tänä jouluna lahjaksi " + g +
                                     " edestä lahjoja.");
        EXPECT_FALSE(t.peli.näkymä.ListaNäkyvissä) << "the gift's news window tells it, not the list";
    }
}

TEST(Goals, TheMillionAndTheTenthYear) {
    struct Tapaus { int tavoite; float raha, tili, laina; int vuosi; const char* viesti; };
    const char* miljoona = "VIESTI|0|Tavoitteesi oli kerätä miljoona ja olet päässyt tavoitteeseesi|vastattu";
    const char* kymmenen =
        "VIESTI|0|10 vuotta on kulunut, kun aloitit tilasi pitämisen. Olet päässyt nyt tavoitteeseen.|vastattu";
    for (const Tapaus& c : {Tapaus{1, 600000, 500000, 100000, 1980, miljoona},
                            {1, 600000, 500000, 100001, 1980, nullptr},
                            {1, 2000000, 0, 0, 1990, miljoona},
                            {2, 2000000, 0, 0, 1990, kymmenen},
                            {2, 0, 0, 0, 1989, nullptr},
                            {2, 0, 0, 0, 1991, nullptr},
                            {0, 5000000, 0, 0, 1990, nullptr}}) {
        Testipeli t;
        t.Aloita("Testi", 1, c.tavoite);
        t.m.Raha = c.raha;
        t.m.Tili = c.tili;
        t.m.Laina = c.laina;
        t.m.Vuosi = static_cast<Integer>(c.vuosi);
        TavoiteTarkastus(t.peli);
        const auto tapahtumat = t.Tapahtumat();
        if (c.viesti) {
            ASSERT_EQ(tapahtumat.size(), 1u);
            EXPECT_EQ(tapahtumat[0], c.viesti);
        } else {
            EXPECT_TRUE(tapahtumat.empty());
        }
    }
}

}  // namespace
}  // namespace tanhua
