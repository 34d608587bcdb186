// The staff screen's gauges of motivation and stress at the edges of their bands.
#include <gtest/gtest.h>

#include "henkilöstö.h"

namespace tanhua {
namespace {

using testi::Tila;

// Wages that give the sixteen motivations (the tanner's stays 0) the sum asked for.
void Motivaatiot(Tila& t, int summa) {
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) {
        if (k == Nahkuri) continue;
        const int x = std::clamp(summa, -20, 20);
        summa -= x;
        t.m.Palkka[k] = static_cast<Integer>(t.m.PerusPalkka[k] + 1000 * x);
    }
    ASSERT_EQ(summa, 0);
}

TEST(Gauges, MotivationByTheRoundedFifteenthOfTheSum) {
    struct Tapaus { int summa; const char* Moti; };
    const Tapaus tapaukset[] = {
        {-83, "Surkea!"}, {-82, "Huono"},   {-38, "Huono"}, {-37, "Normaali"},
        {22, "Normaali"}, {23, "Hyvä"},     {67, "Hyvä"},   {68, "Todella hyvä"},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Työ[Siivooja] = 1;
        Lasketyöläiset(t.peli);
        Motivaatiot(t, c.summa);
        Motilasku(t.peli);
        EXPECT_EQ(t.peli.työvoimaruutu.Moti, c.Moti) << c.summa;
    }
}

TEST(Gauges, StressCountsJobsWithoutOvertime) {
    struct Tapaus { int levossa; const char* Stres; };
    const Tapaus tapaukset[] = {{5, "Burnout!"},    {6, "Lievä stressi"},  {8, "Lievä stressi"},
                                {9, "Ei stressiä"}, {12, "Ei stressiä"},   {13, "Rento meininki"},
                                {17, "Rento meininki"}};
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Työ[Siivooja] = 1;
        Lasketyöläiset(t.peli);
        for (int k = 0; k < static_cast<int>(TYÖLÄISIÄ) - c.levossa; ++k) t.m.Ylityö[k] = true;
        Stressilasku(t.peli);
        EXPECT_EQ(t.peli.työvoimaruutu.Stres, c.Stres) << c.levossa;
    }
}

TEST(Gauges, BlankWithNobodyEmployedAndShownOnHiring) {
    Tila t;
    Motivaatiot(t, -100);
    Motilasku(t.peli);
    Stressilasku(t.peli);
    EXPECT_EQ(std::tuple(t.peli.työvoimaruutu.Moti, t.peli.työvoimaruutu.Stres), std::tuple("", ""));
    t.Valitse(Siivooja);
    OtaTöihin(t.peli);
    EXPECT_EQ(t.peli.työvoimaruutu.Moti, "Surkea!");
    EXPECT_EQ(t.peli.työvoimaruutu.Stres, "Rento meininki");
}

}  // namespace
}  // namespace tanhua
