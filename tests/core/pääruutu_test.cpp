// The main screen's figures: the money format, the plate, the temperature display, the gauges' guards.
#include <gtest/gtest.h>

#include "core/pääruutu.h"
#include "core/sää.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

TEST(MainScreen, MoneyFormatByRange) {
    struct Tapaus { double raha; const char* pääruutu; const char* kyltti; };
    for (const Tapaus& c : {Tapaus{999999.6, "1000000", " 999999.6"}, {-2000000, "-2000000", "-2000000"},
                            {10000.5, "10000", " 10000.5"}, {10001.5, "10002", " 10001.5"},
                            {1000000, "1 Miljoonaa", "1 Miljoonaa"}, {1234567, "1.23 Miljoonaa", "1.23 Miljoonaa"},
                            {999999999, "1000 Miljoonaa", "1000 Miljoonaa"}, {2460000000.0, "2.5 Miljardia", "2.5 Miljardia"}}) {
        EXPECT_EQ(RahaMuoto(c.raha), c.pääruutu) << c.raha;
        EXPECT_EQ(RahaKylttiMuoto(c.raha), c.kyltti) << c.raha;
    }
}

TEST(MainScreen, TemperatureTextAndColour) {
    struct Tapaus { int t; const char* teksti; int r, g, b; };
    for (const Tapaus& c : {Tapaus{20, "+ 20 °c", 225, 80, 40}, {0, "+ 0 °c", 125, 120, 0},
                            {-5, "-5 °c", 170, 105, 255}, {-40, "-40 °c", 0, 0, 255}, {40, "+ 40 °c", 255, 40, 80}}) {
        const LämpötilaNäyttö n = AsteLuku(c.t);
        EXPECT_EQ(n.teksti, c.teksti);
        EXPECT_EQ(n.r, c.r) << c.t;
        EXPECT_EQ(n.g, c.g) << c.t;
        EXPECT_EQ(n.b, c.b) << c.t;
    }
}

TEST(MainScreen, GaugesAndTheirGuards) {
    testi::Testipeli t;
    t.Aloita();
    t.m.Var[Rehu] = 50;
    t.m.Var[Maito] = 150.5f;  // the load is rounded before the percentage
    t.m.El[Kana][Naaras] = 3;
    t.m.Hygienia = 70;
    Päivitälukemat(t.peli);
    const auto& g = t.peli.näkymä.lukemat.mittarit;
    EXPECT_EQ(g[0].p, 50);
    EXPECT_EQ(g[1].p, 150);
    EXPECT_EQ(g[2].p, 50);
    EXPECT_EQ(g[3].p, 70);
    t.m.Koko_Navetta = 0;
    t.m.Koko_Varasto = -3;
    t.m.Var[Rehu] = -2;
    Päivitälukemat(t.peli);
    EXPECT_FALSE(g[1].piirretään);
    EXPECT_FALSE(g[2].piirretään);
    EXPECT_TRUE(g[0].piirretään);
    EXPECT_EQ(t.m.Koko_Navetta, 10);
    EXPECT_EQ(t.m.Koko_Varasto, 100);
    EXPECT_EQ(t.m.Var[Rehu], 0);
    // While a sub-screen is open nothing on the main screen changes.
    t.peli.näkymä.PääruutuNäkyvissä = false;
    t.m.Raha = 1;
    Päivitälukemat(t.peli);
    EXPECT_NE(t.peli.näkymä.lukemat.Rahaz, "1");
}

}  // namespace
}  // namespace tanhua
