// The daily bills, the packing plant's figures and the production panels' texts.
#include <gtest/gtest.h>

#include "buildings/paneeli.h"
#include "buildings/rakennukset.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

TEST(Bills, CapacitiesLevelsHerdAndDevicesWithTheirFactorsAndSavings) {
    // Normal difficulty: x 3. At 20 degrees SF = 1.2 and VF = 2.6.
    struct Tapaus { const char* nimi; Integer lämpö; Single varasto, navetta; Byte meijeri, ompelimo;
                    Long lehmiä, sonneja; std::vector<Tarvike> laitteet; Single sähköEnnen, vesiEnnen;
                    double sähkö, vesi; };
    const Tapaus tapaukset[] = {
        {"stores, a dairy and the herd", 20, 1000, 100, 1, 0, 10, 2, {}, 0, 0, (1 + 0.5 + 0.3) * 3 * 1.2,
         (0.45 + 0.14) * 3 * 2.6 + 12 * 0.002 * 3 * 2.6},
        // The sewing room's bill runs on 0.35, not the panel's 0.035.
        {"hot: SF held at 1", 40, 0, 0, 0, 1, 0, 0, {}, 0, 0, 0.35 * 3, 0.01 * 3 * 3.6},
        {"frost: VF held at 1", -40, 0, 0, 0, 1, 0, 0, {}, 0, 0, 0.35 * 3 * 4.8, 0.01 * 3},
        {"the lights save on the month's whole bill", 20, 0, 0, 0, 0, 0, 0, {Energiansäästövalot}, 100, 100, 95, 100},
        {"the well's electricity comes after the lights", 20, 0, 0, 0, 0, 0, 0, {Energiansäästövalot, Kaivo}, 100,
         100, 95.02, 90},
        {"well and heater", 20, 0, 0, 0, 0, 0, 0, {Energiansäästövalot, Kaivo, Lämminvesivaraaja}, 100, 100, 95.04, 81},
        {"other devices come before the lights", 20, 0, 0, 0, 0, 0, 0, {Energiansäästövalot, Lypsykone}, 100, 100,
         100.3 * 0.95, 100.02},
    };
    for (const Tapaus& c : tapaukset) {
        testi::Testipeli t;
        t.m.Vaikeustaso = 1;
        t.m.Lämpötila = c.lämpö;
        t.m.Koko_Varasto = c.varasto;
        t.m.Koko_Navetta = c.navetta;
        t.m.Rak[Meijeri] = c.meijeri;
        t.m.Rak[Ompelimo] = c.ompelimo;
        t.m.El[Nauta][Naaras] = c.lehmiä;
        t.m.El[Nauta][Uros] = c.sonneja;
        t.m.El[Nauta][Nuori] = 50;  // the young are not on the water bill
        for (const Tarvike laite : c.laitteet) t.m.Tarv[laite] = true;
        t.m.Sähkölasku = c.sähköEnnen;
        t.m.Vesilasku = c.vesiEnnen;
        PäiväKulut(t.peli);
        EXPECT_NEAR(t.m.Sähkölasku, c.sähkö, 2e-4) << c.nimi;
        EXPECT_NEAR(t.m.Vesilasku, c.vesi, 2e-4) << c.nimi;
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
    }
}

TEST(PackingPlant, CapacityAndFactorFromWorkersWageBeltAndHygiene) {
    struct Tapaus { const char* nimi; Long työ; Integer palkka; bool hihna; Integer hygienia; Byte taso;
                    Single max, kerroin; };
    const Tapaus tapaukset[] = {
        {"level 1, base wage", 1, 4000, false, 100, 1, 2000, 0.59f},
        {"two workers and the belt", 2, 4000, true, 100, 1, 4600, 0.64f},
        {"a wage 1000 below base", 1, 3000, false, 100, 1, 1500, 0.49f},
        // 0.55 x 0.08 + 0.03 = 0.074 is rounded to 0.07 before the rest is added.
        {"hygiene 55, level 3", 1, 4000, false, 55, 3, 2000, 0.57f},
        {"no workers: the last figures stay", 0, 4000, true, 100, 1, 1000, 0.1f},
    };
    for (const Tapaus& c : tapaukset) {
        testi::Testipeli t;
        t.m.Rak[Pakkaamo] = c.taso;
        t.m.Työ[Varastotyöntekijä] = c.työ;
        t.m.Palkka[Varastotyöntekijä] = c.palkka;
        t.m.PerusPalkka[Varastotyöntekijä] = 4000;
        t.m.Tarv[Liukuhihna] = c.hihna;
        t.m.Hygienia = c.hygienia;
        t.m.PakkaamoMax = 1000;
        t.m.PakkaamoKerroin = 0.1f;
        PakkaamoPäivä(t.peli);
        EXPECT_EQ(t.m.PakkaamoMax, c.max) << c.nimi;
        EXPECT_FLOAT_EQ(t.m.PakkaamoKerroin, c.kerroin) << c.nimi;
    }
}

TEST(Panels, GrossEstimatesAndNetOfEachKind) {
    // Day 10, normal difficulty (x 3), the screen opened at SF 1.2 and VF 2.6.
    struct Tapaus { const char* nimi; Rakennus rakennus; Byte taso; const char* vuodenaika;
                    void (*aseta)(Muuttujat&); const char* teksti; };
    const Tapaus tapaukset[] = {
        // The panel estimates the sewing room's electricity at 0.035.
        {"sewing room", Ompelimo, 1, "Kesä", [](Muuttujat&) {},
         "Ompelimon tämän kk:n tuotto: \r\nBruttotuotto :0/kk\r\nSähkölasku arvio : 1.26\r\n"
         "Arvioitu vesilasku: .78\r\nNettotuotto : -2.04 /kk\r\n"},
        {"bakery: pastry and bread", Leipomo, 1, "Kesä", [](Muuttujat& m) { m.Tulo[Leivos] = 300; m.Tulo[Leipä] = 200.5f; },
         "Leipomon tämän kk:n tuotto: \r\nBruttotuotto :500.5/kk\r\nSähkölasku arvio : 18\r\n"
         "Arvioitu vesilasku: 11.7\r\nNettotuotto : 470.8 /kk\r\n"},
        {"greenhouse in winter: water only, no net", Kasvihuone, 1, "Talvi", [](Muuttujat&) {},
         "Kasvihuoneen tämän kk:n tuotto: \r\nBruttotuotto :0/kk\r\nArvioitu vesilasku: 11.7\r\n"},
        {"bees: no estimates", Mehiläistarha, 1, "Kesä",
         [](Muuttujat& m) { m.Tulo[Hunaja] = 50; m.Työ[Mehiläishoitaja] = 1; m.Palkka[Mehiläishoitaja] = 3000; },
         "Mehiläisten tämän kk:n tuotto : \r\nBruttotuotto :50/kk\r\nNettotuotto : -2950 /kk\r\n"},
        {"feed plant without production", Rehuntuotanto, 2, "Kesä", [](Muuttujat&) {},
         "Rehuntuotantolaitos: \r\nMax tuotantomäärä :17/päivä\r\nEi tuotantoa tässä kuussa\r\n"
         "Sähkölasku arvio : 21.6\r\nArvioitu vesilasku: 18.72\r\nYhteiskulutus : -40.32 /kk\r\n"},
        {"feed plant at work", Rehuntuotanto, 1, "Kesä", [](Muuttujat& m) { m.RehuaTuotettu = 12; m.ViljaaKäytetty = 10; },
         "Rehuntuotantolaitos: \r\nMax tuotantomäärä :10/päivä\r\nKäyttänyt viljaa: 10\r\nTuottanut rehua: 12\r\n"
         "Sähkölasku arvio : 10.8\r\nArvioitu vesilasku: 9.36\r\nYhteiskulutus : -20.16 /kk\r\n"},
        // The belt's 0.4 a day goes outside the difficulty and the weather.
        {"packing plant", Pakkaamo, 1, "Kesä",
         [](Muuttujat& m) {
             m.Tarv[Liukuhihna] = true;
             m.Työ[Varastotyöntekijä] = 1;
             m.Palkka[Varastotyöntekijä] = 4000;
             m.PakkaamoTulot = 5000;
             m.PakkaamoMax = 2300;
             m.PakkaamoKerroin = 0.64f;
         },
         "Pakkaamon tämän kk:n tuotot : \r\nBruttotuotto :5000/kk\r\nMax tuotanto/kk : 2300\r\nTuotelaatu : 64 %\r\n"
         "Sähkölasku arvio : 6.16\r\nNettotuotto : 993.84 /kk\r\n"},
    };
    for (const Tapaus& c : tapaukset) {
        testi::Testipeli t;
        t.m.Vaikeustaso = 1;
        t.m.Päivä = 10;
        t.m.Lämpötila = -5;  // today's weather is not what the panel reads
        t.m.Vuodenaika = c.vuodenaika;
        t.m.Rak[c.rakennus] = c.taso;
        t.peli.rakennusruutu.SF = 1.2;
        t.peli.rakennusruutu.VF = 2.6;
        c.aseta(t.m);
        EXPECT_EQ(RakennusPaneeli(t.peli, c.rakennus), c.teksti) << c.nimi;
    }
}

}  // namespace
}  // namespace tanhua
