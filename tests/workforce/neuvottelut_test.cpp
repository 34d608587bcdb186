// The wage talks: who comes to the table, the draws of a round, the haggling and the resignation.
#include <gtest/gtest.h>

#include "tuki/testipeli.h"
#include "workforce/neuvottelut.h"

namespace tanhua {
namespace {

// A farm whose stable master and cleaner are paid their base wage; the draws are counted.
struct Neuvottelu : testi::Testipeli {
    explicit Neuvottelu(int taso = 1) {
        Aloita("Testi", taso);
        m.PerusPalkka[Tallimestari] = m.Palkka[Tallimestari] = 6000;
        m.PerusPalkka[Siivooja] = m.Palkka[Siivooja] = 3000;
        m.Työ[Tallimestari] = 1;
        m.Raha = 1000;
        peli.arvonta.seuranta = [this](double, const std::source_location&) { ++arvontoja; };
    }
    void Arvonnat(std::initializer_list<double> r) {
        for (double x : r) peli.arvonta.Jonoon(x);
    }
    // Jobs that don't talk: d is N, never 1.
    void Ohitse(int töitä) {
        for (int i = 0; i < 3 * töitä; ++i) peli.arvonta.Jonoon(.99);
    }
    void Vastaukset(std::initializer_list<const char*> v) {
        for (const char* x : v) kanavat.vastaukset.push_back(x);
    }
    int arvontoja = 0;
};

// The stable master's talk opens at d = 1, t well below 3 and a raise of 350.
TEST(WageTalks, ThreeDrawsAJobAndTheDrawOfDByDifficulty) {
    struct Tapaus { int taso; double rd; bool puhuu; };
    const Tapaus tapaukset[] = {
        {0, .999 / 36, true}, {0, 1.0001 / 36, false}, {1, .999 / 34, true},
        {1, 1.0001 / 34, false}, {2, .999 / 32, true}, {2, 1.0001 / 32, false},
    };
    for (const Tapaus& c : tapaukset) {
        Neuvottelu t(c.taso);
        t.Arvonnat({c.rd, .9, .5});
        t.Ohitse(12);
        t.Vastaukset({"Kyllä"});
        Palkkaneuvottelut(t.peli);
        EXPECT_EQ(t.arvontoja, 39) << c.taso;
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
        EXPECT_EQ(t.m.Palkka[Tallimestari], c.puhuu ? 6350 : 6000) << c.taso << " " << c.rd;
        EXPECT_EQ(t.m.PalkkaLukko[Tallimestari], c.puhuu);
    }
}

TEST(WageTalks, EachConditionAtItsEdge) {
    struct Tapaus { const char* mikä; int palkka; Long työ; double rt; double rk; bool puhuu; };
    const Tapaus tapaukset[] = {
        {"base + 599 never talks", 6599, 1, .9, .999, false},
        {"base + 598 meets a raise of 599", 6598, 1, .9, .999, true},
        {"t = 3", 6000, 1, 6097.5 / 12000, .5, false},
        {"t = 2", 6000, 1, 6098.5 / 12000, .5, true},
        {"nobody in the job", 5000, 0, .9, .5, false},
    };
    for (const Tapaus& c : tapaukset) {
        Neuvottelu t;
        t.m.Palkka[Tallimestari] = static_cast<Integer>(c.palkka);
        t.m.Työ[Tallimestari] = c.työ;
        t.Arvonnat({0, c.rt, c.rk});
        t.Ohitse(12);
        t.Vastaukset({"Kyllä"});
        Palkkaneuvottelut(t.peli);
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u) << c.mikä;
        EXPECT_EQ(t.m.PalkkaLukko[Tallimestari], c.puhuu) << c.mikä;
        EXPECT_EQ(t.kanavat.vastaukset.empty(), c.puhuu) << c.mikä;
    }
}

TEST(WageTalks, EveryRefusalHalvesTheRaiseAndAnAgreementAtNothingStillLocks) {
    Neuvottelu t;
    t.Arvonnat({0, .9, .6001});  // a raise of 400
    for (int i = 0; i < 9; ++i) {
        t.Arvonnat({.75});  // a second thought, not a resignation
        t.Vastaukset({"Ei", "vastattu"});
    }
    t.Ohitse(12);
    t.Vastaukset({"Kyllä"});
    Palkkaneuvottelut(t.peli);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
    std::vector<int> vaatimukset;
    int mietteitä = 0;
    for (const std::string& e : t.Tapahtumat()) {
        const auto kohta = e.find("palkkavaatimukseksi ");
        if (kohta != std::string::npos) vaatimukset.push_back(std::stoi(e.substr(kohta + 20)));
        if (e == "VIESTI|0|Tallimestari miettii uutta palkkavaatimusta.|vastattu") ++mietteitä;
    }
    EXPECT_EQ(std::tuple(vaatimukset, mietteitä, t.m.Palkka[Tallimestari]),
              std::tuple((std::vector<int>{6400, 6200, 6100, 6050, 6025, 6012, 6006, 6003, 6001, 6000}), 9, 6000));
    EXPECT_TRUE(t.m.PalkkaLukko[Tallimestari]);
    EXPECT_EQ(t.peli.näkymä.IkkunaTeksti, "Sopimuksessa päästiin yhteisymmärrykseen. Uusi palkka on  6000 / kk");
}

TEST(WageTalks, AnAgreementGoesOnToTheNextJobAndAResignationEndsTheRound) {
    const std::string kuva = "IKKUNA|Kuvat/sattumat/lakimies.jpg|";
    const std::string tallimestari = kuva +
        "Tallimestarisi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä.";
    {
        Neuvottelu t;
        t.m.Työ[Siivooja] = 2;
        t.Arvonnat({0, .9, .5});
        t.Ohitse(11);
        t.Arvonnat({0, .9, .5});
        t.Vastaukset({"Kyllä", "Kyllä"});
        Palkkaneuvottelut(t.peli);
        EXPECT_EQ(t.arvontoja, 39);
        const Tapahtumat e = t.Tapahtumat();
        ASSERT_EQ(e.size(), 8u);
        EXPECT_EQ(e[0], tallimestari);
        EXPECT_EQ(e[2], kuva + "Sopimuksessa päästiin yhteisymmärrykseen. Uusi palkka on  6350 / kk");
        EXPECT_EQ(e[3], "LISTA|Tallimestari sai palkankorotuksen");
        EXPECT_EQ(e[4], kuva + "siivoojasi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä.");
        EXPECT_EQ(e[5], "VIESTI|1|\\nPalkkaneuvottelu :\\n\\nSiivooja on tyytymätön maksamaasi palkkaan ja haluaa uusia "
                        "sopimuksensa.\\nSiivooja ilmoitti palkkavaatimukseksi  3350 / kk.\\n\\nSuostutko uuteen sopimukseen?|Kyllä");
        EXPECT_EQ(e[6], kuva + "Sopimuksessa päästiin heti yhteisymmärrykseen. Uusi palkka on  3350 / kk");
        EXPECT_EQ(e[7], "LISTA|Siivooja sai palkankorotuksen");
    }
    {
        Neuvottelu t;
        t.m.Työ[Siivooja] = 2;
        t.Arvonnat({0, .9, .5, .25, .5});  // refused, then the resignation and a bill of 7000
        t.Vastaukset({"Ei"});
        Palkkaneuvottelut(t.peli);
        EXPECT_EQ(t.arvontoja, 5) << "the cleaner's talk never comes";
        EXPECT_EQ(std::tuple(t.m.Työ[Tallimestari], t.m.Työ[Siivooja], t.m.Palkka[Tallimestari], t.m.Raha),
                  std::tuple(0, 2, 6000, -6000));
        const Tapahtumat e = t.Tapahtumat();
        ASSERT_EQ(e.size(), 5u);
        EXPECT_EQ(e[0], tallimestari);
        EXPECT_EQ(e[2], "VIESTI|0|Sopimuksesi ei miellyttänyt. Tallimestari otti lopputilin ja hänen lakimiehensä jätti  "
                        "7000 laskun sinulle!|vastattu");
        EXPECT_EQ(e[3], kuva + "Tallimestari otti lopputilin ja  7000 korvausvaatimuksen");
        EXPECT_EQ(e[4], "LISTA|Tallimestari otti lopputilin");
    }
}

TEST(WageTalks, ARaisePastTheWagesWidthIsFailureSixAndLeavesTheWage) {
    Neuvottelu t;
    t.m.PerusPalkka[Tallimestari] = t.m.Palkka[Tallimestari] = 32500;
    t.Arvonnat({0, .9, .5});
    t.Vastaukset({"Kyllä"});
    try {
        Palkkaneuvottelut(t.peli);
        ADD_FAILURE() << "no failure";
    } catch (const Vika& v) {
        EXPECT_EQ(v.Numero(), VIKA_YLIVUOTO);
    }
    EXPECT_EQ(t.m.Palkka[Tallimestari], 32500);
}

}  // namespace
}  // namespace tanhua
