// The work orders' day: the one draw of boards, the carpenters and the completion lines.
#include <gtest/gtest.h>

#include "buildings/rakennukset.h"
#include "buildings/taulut/rakennuskatalogi.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

struct Tila : testi::Testipeli {
    Tila() {
        Aloita();
        m.RakAika.fill(0);
        m.RakTilaus.fill(0);
        m.Rak.fill(0);
        Tapahtumat();
    }
};

TEST(WorkOrders, CarpentersBurnBoardsOnlyAboveTheDaysUseAndWithDaysToSpare) {
    // r = 0.5 gives 5 + Int(5 x 0.5) = 7 boards a carpenter.
    struct Tapaus { const char* nimi; bool laudat; Long kirvesmiehiä; Integer aika; Single lautaa;
                    Integer aikaJälkeen; Single lautaaJälkeen; };
    const Tapaus tapaukset[] = {
        {"one day left: plain count", true, 3, 1, 100, 0, 100},
        {"two days, three carpenters", true, 3, 2, 100, 0, 79},
        {"boards equal to the use", true, 1, 10, 7, 9, 7},
        {"one board above", true, 1, 10, 8, 8, 1},
        {"boards run out in the loop", true, 3, 10, 15, 7, 1},
        {"boards not given", false, 3, 10, 100, 9, 100},
        {"no carpenter", true, 0, 10, 100, 9, 100},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.LautaRakennukseen = c.laudat;
        t.m.Työ[Kirvesmies] = c.kirvesmiehiä;
        t.m.Var[Lauta] = c.lautaa;
        t.m.RakAika[Meijeri] = c.aika;
        t.m.RakTilaus[Meijeri] = 1;
        t.peli.arvonta.Jonoon(0.5);
        TyömaaPäivä(t.peli);
        EXPECT_EQ(std::tuple(t.m.RakAika[Meijeri], t.m.Var[Lauta], t.m.Rak[Meijeri]),
                  std::tuple(c.aikaJälkeen, c.lautaaJälkeen, c.aikaJälkeen == 0 ? 1 : 0)) << c.nimi;
    }
}

TEST(WorkOrders, OneDrawServesEveryOrderAndCompletionsAreListedStoresFirst) {
    Tila t;
    t.m.LautaRakennukseen = true;
    t.m.Työ[Kirvesmies] = 1;
    t.m.Var[Lauta] = 100;
    t.m.Koko_Navetta = 10;
    t.m.Koko_Siilo = 200;
    // A building before the stores in the family, stores finishing the same day.
    const std::size_t navetta = Työmaa(Navetta), siilo = Työmaa(Siilo), varasto = Työmaa(Varasto);
    t.m.RakAika[Pakkaamo] = 1;  t.m.RakTilaus[Pakkaamo] = 1;
    t.m.RakAika[Saha] = 5;      t.m.RakTilaus[Saha] = 1;  t.m.Rak[Saha] = 2;
    t.m.RakAika[siilo] = 2;     t.m.RakTilaus[siilo] = 500;
    t.m.RakAika[navetta] = 1;   t.m.RakTilaus[navetta] = 10;
    t.m.RakAika[varasto] = 8;   t.m.RakTilaus[varasto] = 50;
    t.peli.arvonta.Jonoon(0.99);  // 9 boards for the day
    t.peli.arvonta.Jonoon(0.0);   // left for whatever draws next
    TyömaaPäivä(t.peli);
    // Siilo, Saha and Varasto burned 9 boards each; Navetta and Pakkaamo had one day left.
    EXPECT_EQ(std::tuple(t.m.Var[Lauta], t.m.RakAika[Saha], t.m.RakAika[varasto], t.m.Koko_Navetta, t.m.Koko_Siilo,
                         t.m.Rak[Pakkaamo]),
              std::tuple(73, 3, 6, 20, 700, 1));
    EXPECT_EQ(t.peli.arvonta.U(0, 9), 0);  // only one draw was taken
    EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"LISTA|Navettasi laajennustyö on nyt valmis!",
                                          "LISTA|Siilosi laajennustyö on nyt valmis!",
                                          "LISTA|Rakennuksesi pakkaamo on nyt valmis!"}));
    EXPECT_TRUE(t.peli.näkymä.ListaNäkyvissä);
}

}  // namespace
}  // namespace tanhua
