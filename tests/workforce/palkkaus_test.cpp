// The staff screen: hiring against the buildings' room, firing and the court claim.
#include <gtest/gtest.h>

#include "henkilöstö.h"

namespace tanhua {
namespace {

using testi::Tila;

const std::string EI_RAKENNUSTA =
    "VIESTI|0|Sinun ei kannata palkata kyseistä työntekijää, koska sinulla ei ole vielä edes rakennusta missä "
    "voisi tehdä töitä.|vastattu";
const std::string TÄYNNÄ =
    "VIESTI|0|Olet palkkaamassa enemmän työvoimaa, kuin rakennuksellesi mahtuu työntekijöitä. Laajenna ensin "
    "rakennusta, ennenkuin palkkaat lisää työvoimaa.|vastattu";

TEST(Hiring, TwoWorkersALevelOfTheirBuilding) {
    struct Tapaus { Työläinen k; Rakennus rak; Byte taso; Long ennen; Long jälkeen; std::string viesti; };
    const Tapaus tapaukset[] = {
        {Leipuri, Leipomo, 1, 2, 2, TÄYNNÄ},
        {Leipuri, Leipomo, 1, 1, 2, ""},
        {Leipuri, Leipomo, 2, 3, 4, ""},
        {Leipuri, Leipomo, 2, 4, 4, TÄYNNÄ},
        {Leipuri, Leipomo, 0, 3, 3, EI_RAKENNUSTA},  // workers left at a building of level 0
        {Tallimestari, Hevostalli, 1, 2, 2, TÄYNNÄ},
        // The gardener needs the greenhouse; a berry yard alone has no room for one.
        {Puutarhuri, Marjatarha, 3, 0, 0, EI_RAKENNUSTA},
        {Puutarhuri, Kasvihuone, 1, 0, 1, ""},
        // Jobs without a building take any number.
        {Metsuri, Leipomo, 0, 250, 251, ""},
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

TEST(Firing, OneInThreeSuesIfThereIsCashAndTheClaimMayTakeItBelowZero) {
    struct Tapaus { Single raha; double arpa; double r; Single rahaJälkeen; std::string summa; };
    const Tapaus tapaukset[] = {
        {10000, 0.0, 0.0, 6500, " 3500"},
        {10000, 0.3333, 0.99995, 4501, " 5499"},  // Int(1999.99 + 3000) + 500
        {10000, 0.3334, 0.5, 10000, ""},          // a draw of 2: no claim
        {100, 0.1, 0.5, -3410, " 3510"},          // only the cash before the claim is tested
        {0.5f, 0.1, 0.0, -3499.5f, " 3500"},      // the claim is a whole number, the cash keeps its half
        {0, 0.0, 0.5, 0, ""},                     // a 1, but nothing to sue for: no second draw
        {-5000, 0.0, 0.5, -5000, ""},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Raha = c.raha;
        t.m.Työ[Meijerityöntekijä] = 2;
        t.Valitse(Meijerityöntekijä);
        t.peli.arvonta.Jonoon(c.arpa);
        t.peli.arvonta.Jonoon(c.r);
        Erota(t.peli);
        EXPECT_EQ(t.peli.työvoimaruutu.Työläisiä, 1);
        EXPECT_EQ(t.m.Raha, c.rahaJälkeen) << c.raha << " " << c.arpa;
        if (c.summa.empty()) {
            EXPECT_EQ(std::tuple(t.peli.arvonta.JonossaJäljellä(), t.Tapahtumat(), t.peli.näkymä.PaluuLomake),
                      std::tuple(1u, Tapahtumat{"ÄÄNI|siirto"}, ""));
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

}  // namespace
}  // namespace tanhua
