// The land's day and month: the forester's passes and their draws, replanting, grain and the store gate.
#include <gtest/gtest.h>

#include <vector>

#include "core/päivä.h"
#include "land/maat.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using Rivit = std::vector<std::string>;

struct Tila : testi::Testipeli {
    Tila() {
        Aloita();
        m.Päivä = 10;
        m.Viikonloppu = false;
        m.Palkka[Metsuri] = 7000;
    }
    void Arvonnat(const std::vector<double>& r) {
        for (double x : r) peli.arvonta.Jonoon(x);
    }
};

TEST(Forester, PassesTakeTheirDrawsInTheRuleOrder) {
    struct Tapaus { const char* nimi; bool viikonloppu, ylityö, kone; int työ, moti; float metsä; int jäljellä;
        std::vector<double> r; float puu; int jäljelläNyt, hakattu; float ylityöpalkat, metsäNyt, joutomaa; Rivit lista;
    };
    const std::vector<Tapaus> tapaukset{
        {"plain weekday pass", false, false, false, 1, 0, 5, 100, {0.6}, 4, 99, 1, 0, 5, 0, {}},
        // The overtime draw comes first: 0.2 gives no bonus, 0.7 a log more.
        {"overtime before logs", false, true, false, 1, 0, 5, 100, {0.2, 0.7}, 4, 99, 1, 0, 5, 0, {}},
        {"overtime bonus paid", false, true, false, 1, 0, 5, 100, {0.7, 0.2}, 4, 99, 1, 140, 5, 0, {}},
        // The machine's draw comes after the logs' and doubles the crew's bite.
        {"forest machine", false, false, true, 1, 0, 5, 100, {0.2, 0.9}, 6, 98, 2, 0, 5, 0, {}},
        {"motivation adds logs", false, false, false, 1, 2, 5, 100, {0.0}, 5, 99, 1, 0, 5, 0, {}},
        // A pass that would leave exactly 0 still fells.
        {"felled to exactly 0", false, false, false, 1, 0, 5, 3, {0.0}, 3, 2, 1, 0, 5, 0, {}},
        {"too little left", false, false, false, 1, 0, 0, 3, {0.6}, 0, 0, 0, 0, 0, 0,
         {"Metsurisi on kaatanut kaiken metsäsi."}},
        {"nearly all felled", false, false, false, 1, 0, 0, 50, {0.0}, 3, 49, 1, 0, 0, 0,
         {"Metsurisi on kaatanut lähes kaiken metsäsi.  49 % jäljellä."}},
        // A crew of ten takes ten points a pass: a whole hectare in a day.
        {"crew of ten", false, false, false, 10, 0, 5, 100, std::vector<double>(10, 0.0), 30, 100, 100, 0, 4, 1, {}},
        // Weekends: no work without overtime; with it, weekend pay at every pass.
        {"weekend off", true, false, false, 2, 0, 5, 100, {}, 0, 100, 0, 0, 5, 0, {}},
        {"weekend overtime", true, true, false, 2, 0, 5, 100, {0.0, 0.0, 0.0, 0.0}, 6, 96, 4, 932, 5, 0, {}},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Viikonloppu = c.viikonloppu;
        t.m.Ylityö[Metsuri] = c.ylityö;
        t.m.Tarv[Metsäkone] = c.kone;
        t.m.Työ[Metsuri] = c.työ;
        t.m.Moti[Metsuri] = static_cast<Integer>(c.moti);
        t.m.Metsä = c.metsä;
        t.m.MetsääJäljellä = c.jäljellä;
        t.Arvonnat(c.r);
        Metsänhakkuu(t.peli);
        EXPECT_EQ(std::tuple(t.m.Var[Puu], t.m.MetsääJäljellä, t.m.PuutaHakattu, t.m.YlityöPalkat,
                             std::pair(t.m.Metsä, t.m.Joutomaa), t.peli.näkymä.Lista, t.peli.arvonta.JonossaJäljellä()),
                  std::tuple(c.puu, c.jäljelläNyt, c.hakattu, c.ylityöpalkat, std::pair(c.metsäNyt, c.joutomaa),
                             c.lista, 0u)) << c.nimi;
    }
}

TEST(Forester, ReplantingTestsTheMoneyBeforeTheLand) {
    struct Tapaus { int metsitä; float raha, joutomaa; int työ; float rahaNyt, joutomaaNyt; Long kulut; Rivit lista; };
    for (const Tapaus& c : {
             Tapaus{1, 10000, 5, 2, 7000, 2, 3000, {}},  // two foresters plant three hectares
             Tapaus{1, 1000, 5, 2, 0, 4, 1000, {"Metsän istuttamiseen ei ole varaa."}},
             Tapaus{1, 1500, 1, 2, 500, 0, 1000, {"Metsän istuttamiseen ei ole varaa."}},
             Tapaus{1, 5000, 1, 2, 4000, 0, 1000, {}},  // out of land: ends silently
             Tapaus{0, 10000, 5, 2, 10000, 5, 0, {}},
             Tapaus{1, 10000, 5, 0, 10000, 5, 0, {}},
         }) {
        Tila t;
        t.m.Pellot_Metsitä = static_cast<Integer>(c.metsitä);
        t.m.Raha = c.raha;
        t.m.Joutomaa = c.joutomaa;
        t.m.Työ[Metsuri] = c.työ;
        EXPECT_EQ(Metsitys(t.peli), c.kulut) << c.raha;
        EXPECT_EQ(std::pair(t.m.Raha, t.m.Joutomaa), std::pair(c.rahaNyt, c.joutomaaNyt)) << c.raha;
        EXPECT_EQ(t.m.Metsä, c.joutomaa - c.joutomaaNyt) << c.raha;
        EXPECT_EQ(t.peli.näkymä.Lista, c.lista) << c.raha;
    }
}

TEST(Grain, SeasonManureAndPassesMakeTheDaysGrain) {
    struct Tapaus { const char* nimi; const char* vuodenaika; int lämpötila; bool kastelu; float sade, aurinko;
        float pelto, lanta; bool lantaPeltoon; std::vector<double> r; float vilja, lantaNyt; Long tuotettu; };
    const std::vector<Tapaus> tapaukset{
        // Each pass adds Int(D / 10 + S) × r / 10; 0.25 a pass adds up exactly.
        {"ties round to even", "Kesä", -32, false, 0, 0, 9, 0, false, std::vector<double>(10, 0.5), 2, 0, 2},
        {"half a kilo rounds to 0", "Kesä", -32, false, 0, 0, 1, 0, false, {0.5, 0.5}, 0, 0, 0},
        // Frost takes nothing off: S stays at the season's base.
        {"hard frost", "Kesä", -60, false, 0, 0, 3, 0, false, std::vector<double>(4, 0.5), 1, 0, 1},
        // Spring 3, irrigation 1, 50 degrees' worth 1, rain and sun 1: S = 6.
        {"spring with everything", "Kevät", 18, true, 2.5, 2, 1, 0, false, {0.5, 0.5}, 0, 0, 1},
        {"autumn base", "Syksy", -32, false, 0, 0, 1, 0, false, {0.5, 0.5}, 0, 0, 1},
        // One pass more than CLng of the hectares: 1.5 ha is three passes.
        {"passes by CLng", "Kesä", -32, false, 0, 0, 1.5, 0, false, {0.5, 0.5, 0.5}, 0, 0, 1},
        // Manure: the whole field while a third of the stock is more, else the third; CLng first.
        {"manure for every hectare", "Kesä", -32, false, 0, 0, 10, 300, true, std::vector<double>(11, 0.5), 3, 290, 3},
        {"manure by the third", "Kesä", -32, false, 0, 0, 5, 9, true, std::vector<double>(6, 0.5), 1, 6, 2},
        {"manure rounded first", "Kesä", -32, false, 0, 0, 5, 8.6f, true, std::vector<double>(6, 0.5), 1, 5.6f, 2},
        {"too little manure", "Kesä", -32, false, 0, 0, 5, 2, true, std::vector<double>(6, 0.5), 1, 2, 2},
        {"winter grows nothing", "Talvi", 10, false, 0, 0, 5, 300, true, {0.5}, 0, 300, 0},
        {"no field", "Kesä", 10, false, 0, 0, 0, 300, true, {0.5}, 0, 300, 0},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Vuodenaika = c.vuodenaika;
        t.m.Lämpötila = static_cast<Integer>(c.lämpötila);
        t.m.Tarv[Kastelujärjestelmä] = c.kastelu;
        t.m.Sateisuus = c.sade;
        t.m.Aurinkoisuus = c.aurinko;
        t.m.Pelto = c.pelto;
        t.m.Var[Lanta] = c.lanta;
        t.m.LantaPeltoon = c.lantaPeltoon;
        t.Arvonnat(c.r);
        Viljankasvu(t.peli);
        EXPECT_EQ(std::tuple(t.m.Var[Vilja], t.m.ViljaaTuotettu), std::tuple(c.vilja, c.tuotettu)) << c.nimi;
        EXPECT_FLOAT_EQ(t.m.Var[Lanta], c.lantaNyt) << c.nimi;
        // Winter and a farm without fields take no draw at all.
        const std::size_t jäljellä = (c.pelto <= 0 || std::string(c.vuodenaika) == "Talvi") ? c.r.size() : 0;
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), jäljellä) << c.nimi;
    }
}

TEST(Grain, TheStoreGateIsStrict) {
    // Day 29 to 30: a weekday without the day's event. A store at exactly its size still fells
    // and grows; one unit more stops both.
    for (const auto& [maito, töissä] : {std::pair{100.0f, true}, {101.0f, false}}) {
        Tila t;  // Normaali: a store of 100
        t.m.Päivä = 29;
        t.m.Kuukausi = 6;
        t.m.Vuodenaika = "Kesä";
        t.m.Var[Maito] = maito;
        t.m.Pelto = 100;
        t.m.Työ[Metsuri] = 1;
        SeuraavaPäivä(t.peli);
        EXPECT_EQ(std::tuple(t.m.Var[Puu] > 0, t.m.Var[Vilja] > 0), std::tuple(töissä, töissä)) << maito;
    }
}

}  // namespace
}  // namespace tanhua
