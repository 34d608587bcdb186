// The main screen's figures: the money format, the plate, the temperature display, the gauges' guards.
#include <gtest/gtest.h>

#include "core/pääruutu.h"
#include "core/sää.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

TEST(MainScreen, MoneyAndTemperatureFormats) {
    struct Tapaus { double raha; const char* pääruutu; const char* kyltti; };
    for (const Tapaus& c : {Tapaus{999999.6, "1000000", " 999999.6"}, {-2000000, "-2000000", "-2000000"},
                            {10000.5, "10000", " 10000.5"}, {10001.5, "10002", " 10001.5"},
                            {1000000, "1 Miljoonaa", "1 Miljoonaa"}, {1234567, "1.23 Miljoonaa", "1.23 Miljoonaa"},
                            {999999999, "1000 Miljoonaa", "1000 Miljoonaa"}, {2460000000.0, "2.5 Miljardia", "2.5 Miljardia"}}) {
        EXPECT_EQ(std::tuple(RahaMuoto(c.raha), RahaKylttiMuoto(c.raha)), std::tuple(c.pääruutu, c.kyltti)) << c.raha;
    }
    struct Lämpö { int t; const char* teksti; int r, g, b; };
    for (const Lämpö& c : {Lämpö{20, "+ 20 °c", 225, 80, 40}, {0, "+ 0 °c", 125, 120, 0},
                            {-5, "-5 °c", 170, 105, 255}, {-40, "-40 °c", 0, 0, 255}, {40, "+ 40 °c", 255, 40, 80}}) {
        const LämpötilaNäyttö n = AsteLuku(c.t);
        EXPECT_EQ(std::tuple(n.teksti, n.r, n.g, n.b), std::tuple(std::string(c.teksti), c.r, c.g, c.b)) << c.t;
    }
}

TEST(MainScreen, GaugesAndTheirGuards) {
    testi::Aloitettu t;
    t.m.Var[Rehu] = 50;
    t.m.Var[Maito] = 150.5f;  // the load is rounded before the percentage
    t.m.El[Kana][Naaras] = 3;
    t.m.Hygienia = 70;
    Päivitälukemat(t.peli);
    const auto& g = t.peli.näkymä.lukemat.mittarit;
    EXPECT_EQ(std::tuple(g[0].p, g[1].p, g[2].p, g[3].p), std::tuple(50, 150, 50, 70));
    // A size of nothing or below is put right and its gauge left undrawn; negative feed becomes 0.
    t.m.Koko_Navetta = 0;
    t.m.Koko_Varasto = -3;
    t.m.Var[Rehu] = -2;
    Päivitälukemat(t.peli);
    EXPECT_EQ(std::tuple(g[0].piirretään, g[1].piirretään, g[2].piirretään), std::tuple(true, false, false));
    EXPECT_EQ(std::tuple(t.m.Koko_Navetta, t.m.Koko_Varasto, t.m.Var[Rehu]), std::tuple(10, 100, 0));
    // While a sub-screen is open nothing on the main screen changes.
    t.peli.näkymä.PääruutuNäkyvissä = false;
    t.m.Raha = 1;
    Päivitälukemat(t.peli);
    EXPECT_NE(t.peli.näkymä.lukemat.Rahaz, "1");
}

}  // namespace
}  // namespace tanhua
