// The staff screen: the job list by stars, hiring against the buildings' room, firing and the court claim.
#include <gtest/gtest.h>

#include "henkilöstö.h"
#include "workforce/työvoima.h"

namespace tanhua {
namespace {

using testi::Testipeli;
using testi::Tila;
using Tapahtumat = std::vector<std::string>;

const std::string EI_RAKENNUSTA =
    "VIESTI|0|Sinun ei kannata palkata kyseistä työntekijää, koska sinulla ei ole vielä edes rakennusta missä "
    "voisi tehdä töitä.|vastattu";
const std::string TÄYNNÄ =
    "VIESTI|0|Olet palkkaamassa enemmän työvoimaa, kuin rakennuksellesi mahtuu työntekijöitä. Laajenna ensin "
    "rakennusta, ennenkuin palkkaat lisää työvoimaa.|vastattu";

TEST(JobList, StarsOpenTheJobsInTheScreensOrder) {
    struct Tapaus { bool lukitus; Byte tähdet; std::vector<Työläinen> odotettu; };
    const std::vector<Työläinen> perus{Kirjanpitäjä, Siivooja, Vahtikoira, Nahkuri};
    std::vector<Työläinen> yksi = perus;
    yksi.insert(yksi.end(), {Puutarhuri, Metsuri, Mehiläishoitaja, Teurastaja, Mylläri});
    std::vector<Työläinen> kaksi = yksi;
    kaksi.insert(kaksi.end(),
                 {Ompelija, Leipuri, Meijerityöntekijä, Kirvesmies, Tallimestari, Siementäjä, Viinimestari});
    std::vector<Työläinen> kaikki = kaksi;
    kaikki.push_back(Varastotyöntekijä);
    const Tapaus tapaukset[] = {
        {true, 0, perus}, {true, 1, yksi}, {true, 2, kaksi}, {true, 3, kaikki}, {true, 5, kaikki},
        {false, 0, kaikki},
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        t.Aloita();
        t.m.TähtiLukitus = c.lukitus;
        t.m.Tähdet = c.tähdet;
        AvaaTyövoima(t.peli);
        EXPECT_EQ(t.peli.työvoimaruutu.Lista, c.odotettu) << "stars " << int(c.tähdet);
    }
}

TEST(Hiring, TwoWorkersALevelOfTheirBuilding) {
    struct Tapaus { Työläinen k; Rakennus rak; Byte taso; Long ennen; Long jälkeen; std::string viesti; };
    const Tapaus tapaukset[] = {
        {Leipuri, Leipomo, 1, 2, 2, TÄYNNÄ},
        {Leipuri, Leipomo, 1, 1, 2, ""},
        {Leipuri, Leipomo, 2, 2, 3, ""},
        {Leipuri, Leipomo, 2, 3, 4, ""},
        {Leipuri, Leipomo, 2, 4, 4, TÄYNNÄ},
        {Leipuri, Leipomo, 0, 0, 0, EI_RAKENNUSTA},
        {Leipuri, Leipomo, 0, 3, 3, EI_RAKENNUSTA},  // workers left at a building of level 0
        {Varastotyöntekijä, Pakkaamo, 5, 9, 10, ""},
        {Tallimestari, Hevostalli, 1, 2, 2, TÄYNNÄ},
        // The gardener needs the greenhouse; a berry yard alone has no room for one.
        {Puutarhuri, Marjatarha, 3, 0, 0, EI_RAKENNUSTA},
        {Puutarhuri, Kasvihuone, 1, 0, 1, ""},
        // Jobs without a building take any number.
        {Metsuri, Leipomo, 0, 250, 251, ""},
        {Kirjanpitäjä, Leipomo, 0, 0, 1, ""},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Rak[c.rak] = c.taso;
        t.m.Työ[c.k] = c.ennen;
        t.Valitse(c.k);
        OtaTöihin(t.peli);
        EXPECT_EQ(t.m.Työ[c.k], c.jälkeen) << TYÖLÄISTAULU[c.k].avain << " " << c.ennen;
        EXPECT_EQ(t.peli.työvoimaruutu.työmies, c.jälkeen);
        if (c.viesti.empty())
            EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"ÄÄNI|siirto"});
        else
            EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"ÄÄNI|siirto", "ÄÄNI|virhe", c.viesti}));
    }
}

TEST(Hiring, AHireShowsTheWageSumAndTheStaffTotal) {
    struct Tapaus { std::string vuodenaika; Single summa; };
    // Two cleaners at 3000 and a gardener at 4000; the gardener draws nothing in winter.
    const Tapaus tapaukset[] = {{"Kesä", 10000}, {"Talvi", 6000}};
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Vuodenaika = c.vuodenaika;
        t.m.Rak[Kasvihuone] = 1;
        t.m.Työ[Siivooja] = 1;
        t.Valitse(Siivooja);
        OtaTöihin(t.peli);
        t.Valitse(Puutarhuri);
        OtaTöihin(t.peli);
        EXPECT_EQ(t.m.PalkatYhteensä, c.summa);
        EXPECT_EQ(t.peli.työvoimaruutu.yhtpalk, c.summa);
        EXPECT_EQ(t.peli.työvoimaruutu.Työläisiä, 3);
        EXPECT_EQ(t.m.Raha, 10000);  // a hire costs nothing
    }
}

TEST(Hiring, NothingChosenNothingHired) {
    Tila t;
    OtaTöihin(t.peli);
    Erota(t.peli);
    EXPECT_EQ(TyöntekijöitäYhteensä(t.m), 0);
    EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"ÄÄNI|siirto", "ÄÄNI|siirto"}));
}

TEST(Firing, OneInThreeSuesForAFifthOfTheCashAtMostAndThreeThousandFiveHundredAtLeast) {
    struct Tapaus { Single raha; double arpa; double r; Single rahaJälkeen; std::string summa; };
    const Tapaus tapaukset[] = {
        {10000, 0.0, 0.0, 6500, " 3500"},
        {10000, 0.3333, 0.99995, 4501, " 5499"},  // Int(1999.99 + 3000) + 500
        {10000, 0.3334, 0.5, 10000, ""},          // a draw of 2: no claim
        {10000, 0.9999, 0.5, 10000, ""},          // 3
        {100, 0.1, 0.5, -3410, " 3510"},          // only the cash before the claim is tested
        {0.5f, 0.1, 0.0, -3499.5f, " 3500"},      // the claim is a whole number, the cash keeps its half
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Raha = c.raha;
        t.m.Työ[Meijerityöntekijä] = 2;
        t.Valitse(Meijerityöntekijä);
        t.peli.arvonta.Jonoon(c.arpa);
        t.peli.arvonta.Jonoon(c.r);
        Erota(t.peli);
        EXPECT_EQ(t.m.Työ[Meijerityöntekijä], 1);
        EXPECT_EQ(t.peli.työvoimaruutu.työmies, 1);
        EXPECT_EQ(t.peli.työvoimaruutu.Työläisiä, 1);
        EXPECT_EQ(t.m.Raha, c.rahaJälkeen) << c.raha << " " << c.arpa;
        if (c.summa.empty()) {
            EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 1u);  // no claim, no second draw
            EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"ÄÄNI|siirto"});
            EXPECT_EQ(t.peli.näkymä.PaluuLomake, "");
        } else {
            EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
            EXPECT_EQ(t.Tapahtumat(),
                      (Tapahtumat{"ÄÄNI|siirto",
                                  "IKKUNA|Kuvat/sattumat/tuomari.jpg|Meijerityöntekijä ei ollut tyytyväinen "
                                  "erottamiseen ja haastoi sinut oikeuteen. Jouduit korvaamaan :" + c.summa,
                                  "ÄÄNI|Koputus"}));
            EXPECT_EQ(t.peli.näkymä.PaluuLomake, "Työvoima");
        }
    }
}

TEST(Firing, NoCashNoClaimAndNoSecondDraw) {
    for (Single raha : {0.0f, -5000.0f}) {
        Tila t;
        t.m.Raha = raha;
        t.m.Työ[Siivooja] = 1;
        t.Valitse(Siivooja);
        t.peli.arvonta.Jonoon(0.0);  // a 1: the worker would sue
        t.peli.arvonta.Jonoon(0.5);
        Erota(t.peli);
        EXPECT_EQ(t.m.Raha, raha);
        EXPECT_EQ(t.m.Työ[Siivooja], 0);
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 1u);
        EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"ÄÄNI|siirto"});
    }
}

TEST(Firing, TheCountShownGuardsTheFiringAndNoDrawIsMadeAtZero) {
    Tila t;
    t.m.Työ[Leipuri] = 1;
    t.Valitse(Leipuri);
    t.peli.arvonta.Jonoon(0.9);
    Erota(t.peli);
    EXPECT_EQ(t.m.Työ[Leipuri], 0);
    t.peli.arvonta.Jonoon(0.0);
    Erota(t.peli);
    EXPECT_EQ(t.m.Työ[Leipuri], 0);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 1u);
    // A job at a building of level 0 can still be fired from.
    t.m.Työ[Mylläri] = 2;
    t.Valitse(Mylläri);
    Erota(t.peli);
    EXPECT_EQ(t.m.Työ[Mylläri], 1);
}

}  // namespace
}  // namespace tanhua
