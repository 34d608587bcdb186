// The building screen: prices and days of each target, ordering and its refusals in their order.
#include <gtest/gtest.h>

#include <algorithm>

#include "buildings/rakennukset.h"
#include "buildings/rakentaminen.h"
#include "core/vikatila.h"
#include "tuki/testipeli.h"
#include "työmaat.h"

namespace tanhua {
namespace {

using testi::Testipeli;
using Tapahtumat = std::vector<std::string>;


// A farm with sound on, plenty of money, some pasture and the building screen open.
struct Tila : Testipeli {
    explicit Tila(Byte tähdet = 5) {
        Aloita();
        peli.asetukset.Äänitehosteet = true;
        m.Raha = 1000000;
        m.Laidun = 2;
        m.Tähdet = tähdet;
        AvaaRakennukset(peli);
        Tapahtumat();
    }
    void Valitse(std::size_t kohde, int askelia = 0) {
        ValitseKohde(peli, kohde);
        for (int i = 0; i < askelia; ++i) AskelMäärä(peli, 1);
        Tapahtumat();
    }
};

TEST(Catalogue, StoreStepsHaveTheirOwnPricesAndDaysAndHalfDaysOnARunningOrder) {
    struct Tapaus { std::size_t kohde; int askel; Integer määrä; Single hinta; Integer päivät, juoksevalla; };
    const Tapaus tapaukset[] = {
        {NAVETTA, 0, 1, 2000, 7, 3},        {NAVETTA, 1, 10, 20000, 50, 25},
        {NAVETTA, 2, 100, 200000, 300, 150}, {SIILO, 0, 50, 1000, 30, 15},
        {SIILO, 1, 500, 10000, 150, 75},     {SIILO, 2, 1000, 20000, 200, 100},
        {VARASTO, 0, 50, 1000, 30, 15},      {VARASTO, 1, 500, 10000, 150, 75},
        {VARASTO, 2, 1000, 20000, 200, 100},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.Valitse(c.kohde, c.askel);
        const RakennusRuutuTila& r = t.peli.rakennusruutu;
        EXPECT_EQ(r.määrä, c.määrä) << c.kohde << " " << c.askel;
        EXPECT_EQ(r.hinta, c.hinta) << c.kohde << " " << c.askel;
        EXPECT_EQ(r.Kesto, c.päivät) << c.kohde << " " << c.askel;
        t.m.RakAika[c.kohde] = 1;
        AskelMäärä(t.peli, 0);
        EXPECT_EQ(r.Kesto, c.juoksevalla) << c.kohde << " " << c.askel;
    }
}

TEST(Catalogue, BuildingPriceGrowsWithLevelAndTheFifthLevelEndsOrders) {
    struct Tapaus { Byte taso; Single hinta; const char* painike; bool käytössä; const char* tasoteksti; };
    const Tapaus tapaukset[] = {
        {0, 12000, "Rakenna", true, "0 / 5"},  {1, 18000, "Laajenna", true, "1 / 5"},
        {2, 27000, "Laajenna", true, "2 / 5"}, {3, 36000, "Laajenna", true, "3 / 5"},
        {4, 45000, "Laajenna", true, "4 / 5"}, {5, 54000, "Laajenna", false, "5 / 5"},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Rak[Saha] = c.taso;
        t.Valitse(Saha);
        const RakennusRuutuTila& r = t.peli.rakennusruutu;
        EXPECT_EQ(r.hinta, c.hinta) << int(c.taso);
        EXPECT_EQ(r.Kesto, 120);
        EXPECT_EQ(r.Command2, c.painike);
        EXPECT_EQ(r.Command2Käytössä, c.käytössä);
        EXPECT_EQ(r.taso, c.tasoteksti);
        EXPECT_FALSE(r.askeleetKäytössä);
        EXPECT_EQ(r.paneeli, c.taso > 0);
    }
    // A level-5 building takes no order even with money.
    Tila t;
    t.m.Rak[Saha] = 5;
    t.Valitse(Saha);
    TilaaKohde(t.peli);
    EXPECT_EQ(t.m.RakAika[Saha], 0);
    EXPECT_EQ(t.m.Raha, 1000000);
    EXPECT_TRUE(t.Tapahtumat().empty());
}

TEST(Catalogue, SelectionTextGivesWayToTheOrderText) {
    Tila t;
    t.Valitse(Mylly);
    EXPECT_EQ(t.peli.rakennusruutu.info,
              "Myllyn rakennus mahdollistaa jauhon tuoton viljasta. Tarvitset myös paljon peltoa, sekä myllärin.");
    t.m.RakAika[Mylly] = 4;
    t.Valitse(Mylly);
    EXPECT_EQ(t.peli.rakennusruutu.info, TEKSTI_RAKENTEILLA);
    EXPECT_EQ(RAKENNUSKATALOGI[Viinitehdas].vihjeOtsikko, "Rakennus : Viinin valmistamo");
    EXPECT_TRUE(RAKENNUSKATALOGI[Pakkaamo].vihje.empty());
}

TEST(Steppers, MoveAlongTheRowOnlyAndSoundOnlyWhenTheyMove) {
    Tila t;
    t.Valitse(SIILO);
    const RakennusRuutuTila& r = t.peli.rakennusruutu;
    AskelMäärä(t.peli, -1);
    EXPECT_EQ(r.määrä, 50);
    EXPECT_TRUE(t.Tapahtumat().empty());
    AskelMäärä(t.peli, 1);
    AskelMäärä(t.peli, 1);
    AskelMäärä(t.peli, 1);
    EXPECT_EQ(r.määrä, 1000);
    EXPECT_EQ(r.hinta, 20000);
    EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"ÄÄNI|siirto", "ÄÄNI|siirto"}));
    // A building's steppers are off.
    t.Valitse(Saha);
    AskelMäärä(t.peli, 1);
    EXPECT_EQ(r.määrä, 1);
    EXPECT_TRUE(t.Tapahtumat().empty());
}

TEST(Ordering, ExactMoneyBuysAndOneUnitLessIsRefusedWithTheShortfall) {
    struct Tapaus { Single raha; const char* viesti; };
    const Tapaus tapaukset[] = {
        {2000, nullptr},
        {1999, "VIESTI|0|Rahasi eivät riitä!\\n\\nRahatilanteesi on  1999\\nRakennus maksaa  2000\\n"
               "Sinulta puuttuu  1|vastattu"},
        {1999.5f, "VIESTI|0|Rahasi eivät riitä!\\n\\nRahatilanteesi on  1999.5\\nRakennus maksaa  2000\\n"
                  "Sinulta puuttuu  .5|vastattu"},
        {-300, "VIESTI|0|Rahasi eivät riitä!\\n\\nRahatilanteesi on -300\\nRakennus maksaa  2000\\n"
               "Sinulta puuttuu  2300|vastattu"},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Raha = c.raha;
        t.Valitse(NAVETTA);
        TilaaKohde(t.peli);
        if (!c.viesti) {
            EXPECT_EQ(t.m.Raha, 0);
            EXPECT_EQ(t.m.RakAika[NAVETTA], 7);
            EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"ÄÄNI|siirto"});
        } else {
            EXPECT_EQ(t.m.Raha, c.raha);
            EXPECT_EQ(t.m.RakAika[NAVETTA], 0);
            EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"ÄÄNI|virhe", c.viesti}));
        }
    }
}

TEST(Ordering, AnOrderPaysDeductsATenthAndShowsItsDays) {
    struct Tapaus { std::size_t kohde; int askel; Byte taso; Single hinta; Integer päivät, tilaus; Long vähennys; };
    const Tapaus tapaukset[] = {
        {VARASTO, 2, 0, 20000, 200, 1000, 2000},
        {VARASTO, 1, 0, 10000, 150, 500, 1000},
        {NAVETTA, 2, 0, 200000, 300, 100, 20000},
        {Leipomo, 0, 2, 38250, 180, 1, 3825},
        {Kasvihuone, 0, 1, 10500, 50, 1, 1050},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Rak[c.kohde < RAKENNUKSIA ? c.kohde : 0] = c.taso;
        t.m.Verovähennykset = 7;
        t.Valitse(c.kohde, c.askel);
        TilaaKohde(t.peli);
        EXPECT_EQ(t.m.Raha, 1000000 - c.hinta) << c.kohde;
        EXPECT_EQ(t.m.Verovähennykset, 7 + c.vähennys) << c.kohde;
        EXPECT_EQ(t.m.RakAika[c.kohde], c.päivät) << c.kohde;
        EXPECT_EQ(t.m.RakTilaus[c.kohde], c.tilaus) << c.kohde;
        const RakennusRuutuTila& r = t.peli.rakennusruutu;
        EXPECT_EQ(r.päivät[c.kohde], std::to_string(c.päivät) + " päivää");
        EXPECT_TRUE(r.päivätNäkyvät[c.kohde]);
        EXPECT_EQ(r.info, TEKSTI_RAKENTEILLA);
    }
}

TEST(Ordering, StoreOrdersStackAtHalfTheDays) {
    Tila t;
    t.m.Koko_Varasto = 200;
    AvaaRakennukset(t.peli);
    t.Valitse(VARASTO);
    TilaaKohde(t.peli);
    EXPECT_EQ(t.peli.rakennusruutu.Kesto, 15);  // worked out again for the running order
    TilaaKohde(t.peli);
    EXPECT_EQ(t.m.RakAika[VARASTO], 45);
    EXPECT_EQ(t.m.RakTilaus[VARASTO], 100);
    // The size shown on the screen waits for it to be opened again.
    EXPECT_EQ(t.peli.rakennusruutu.varastoz, "200");
    for (int päivä = 0; päivä < 44; ++päivä) {
        t.peli.arvonta.Jonoon(0);
        TyömaaPäivä(t.peli);
    }
    EXPECT_EQ(t.m.Koko_Varasto, 200);
    t.peli.arvonta.Jonoon(0);
    TyömaaPäivä(t.peli);
    EXPECT_EQ(t.m.Koko_Varasto, 300);
    EXPECT_EQ(t.m.RakAika[VARASTO], 0);
    EXPECT_EQ(t.m.RakTilaus[VARASTO], 0);
}

TEST(Ordering, RefusalsComeInTheirOrderAndChangeNothing) {
    const std::string lukittuAlku = "VIESTI|0|Et voi rakentaa lukittua rakennusta!\\n";
    const std::string lukittuLoppu =
        "Laajentamalla tilaasi saavutat tarvittavat tähdet, jotta saat poistettua lukituksen.|vastattu";
    const std::string laidun =
        "VIESTI|0|Et voi rakentaa hevostallia!\\n\\nSinulla ei ole laidunaluetta hevosille.\\n"
        "Hevostallisi rakennetaan laitumelle ja tarvitset siihen laidunaluetta.|vastattu";
    const std::string käynnissä =
        "VIESTI|0|Olet jo antanut työmääräyksen laajentaa rakennustasi!\\n\\nEt voi laajentaa enempää, kunnes "
        "edellinen laajennus on valmis.\\nKun päivät ovat kuluneet nollaan, on rakennus valmis ja voit taas "
        "aloittaa laajentamisen.\\nHuomioi, että lautojen toimittaminen rakennukselle nopeuttaa prosessia.\\n|vastattu";
    struct Tapaus { const char* nimi; std::size_t kohde; Byte tähdet; Single laidun; Integer aika; Single raha;
                    Tapahtumat odotus; };
    const Tapaus tapaukset[] = {
        {"money before a running order", Saha, 5, 2, 10, 100,
         {"ÄÄNI|virhe", "VIESTI|0|Rahasi eivät riitä!\\n\\nRahatilanteesi on  100\\nRakennus maksaa  12000\\n"
                        "Sinulta puuttuu  11900|vastattu"}},
        {"running order", Saha, 5, 2, 10, 1000000, {"ÄÄNI|siirto", "ÄÄNI|virhe", käynnissä}},
        {"no pasture before the lock", Hevostalli, 0, 0, 0, 1000000, {"ÄÄNI|siirto", "ÄÄNI|virhe", laidun}},
        {"locked, no stars", Hevostalli, 0, 2, 0, 1000000,
         {"ÄÄNI|siirto", lukittuAlku + "Et ole saavuttanut vielä yhtään tähteä tilallesi ja tämän takia kohde on "
                                       "lukittu." + lukittuLoppu}},
        {"locked before a running order", Pakkaamo, 2, 2, 10, 1000000,
         {"ÄÄNI|siirto", lukittuAlku + "Tilasi on vasta  2 tähden tila ja tämän takia kohde on lukittu." +
                             lukittuLoppu}},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t(c.tähdet);
        t.m.Laidun = c.laidun;
        t.m.RakAika[c.kohde] = c.aika;
        t.m.Raha = c.raha;
        NäytäTyömaat(t.peli);
        t.Valitse(c.kohde);
        const Muuttujat ennen = t.m;
        TilaaKohde(t.peli);
        EXPECT_EQ(t.Tapahtumat(), c.odotus) << c.nimi;
        EXPECT_EQ(t.m.Raha, ennen.Raha) << c.nimi;
        EXPECT_EQ(t.m.RakAika, ennen.RakAika) << c.nimi;
        EXPECT_EQ(t.m.RakTilaus, ennen.RakTilaus) << c.nimi;
        EXPECT_EQ(t.m.Verovähennykset, ennen.Verovähennykset) << c.nimi;
    }
    // The running order also tells its state in the info box.
    Tila t;
    t.m.RakAika[Saha] = 10;
    t.Valitse(Saha);
    TilaaKohde(t.peli);
    EXPECT_EQ(t.peli.rakennusruutu.info, TEKSTI_PARHAILLAAN);
}

TEST(Ordering, PackingPlantOrderSetsItsOpeningFiguresAtOnce) {
    Tila t;
    t.m.Rak[Pakkaamo] = 1;
    t.m.PakkaamoMax = 4000;
    t.m.PakkaamoKerroin = 0.3f;
    t.Valitse(Pakkaamo);
    TilaaKohde(t.peli);
    EXPECT_EQ(t.m.PakkaamoMax, 1000);
    EXPECT_EQ(t.m.PakkaamoKerroin, 0.1f);
    EXPECT_EQ(t.m.Raha, 1000000 - 30000);
}

TEST(Ordering, StackedStoreOrderPastTheWidthFailsWithoutPaying) {
    Tila t;
    t.m.RakAika[NAVETTA] = 32700;
    t.Valitse(NAVETTA, 2);
    try {
        TilaaKohde(t.peli);
        FAIL() << "no overflow";
    } catch (const Vika& v) {
        EXPECT_EQ(v.Numero(), VIKA_YLIVUOTO);
    }
    EXPECT_EQ(t.m.Raha, 1000000);
    EXPECT_EQ(t.m.RakTilaus[NAVETTA], 0);
}

TEST(DayLabels, StarsLockTheirBuildingsOverAnyDayCount) {
    struct Tapaus { Byte tähdet; bool lukitus; std::vector<std::size_t> lukitut; };
    const Tapaus tapaukset[] = {
        {0, true, {Saha, Kasvihuone, Meijeri, Mylly, Ompelimo, Leipomo, Teurastamo, Rehuntuotanto, Hevostalli,
                   Marjatarha, Viinitehdas, Mehiläistarha, Pakkaamo}},
        {1, true, {Saha, Meijeri, Ompelimo, Leipomo, Rehuntuotanto, Hevostalli, Viinitehdas, Pakkaamo}},
        {2, true, {Pakkaamo}},
        {3, true, {}},
        {0, false, {}},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t(c.tähdet);
        t.peli.rakennusruutu = RakennusRuutuTila{};  // a screen never opened under a lock
        t.m.TähtiLukitus = c.lukitus;
        t.m.RakAika[Saha] = 12;
        t.m.RakAika[NAVETTA] = 3;
        NäytäTyömaat(t.peli);
        const RakennusRuutuTila& r = t.peli.rakennusruutu;
        for (std::size_t i = 0; i < RAKENNUKSIA; ++i) {
            const bool lukittu = std::find(c.lukitut.begin(), c.lukitut.end(), i) != c.lukitut.end();
            EXPECT_EQ(r.päivät[i] == "Lukittu", lukittu) << int(c.tähdet) << " " << i;
            EXPECT_EQ(r.päivätPunaisella[i], lukittu) << int(c.tähdet) << " " << i;
            EXPECT_EQ(r.päivätNäkyvät[i], lukittu || i == Saha) << int(c.tähdet) << " " << i;
        }
        if (c.tähdet >= 2 || !c.lukitus) {
            EXPECT_EQ(r.päivät[Saha], "12 päivää");
        }
        EXPECT_EQ(r.päivät[NAVETTA], "3 päivää");
    }
}

TEST(DayLabels, AStarEarnedOpensTheBuildingWhenTheScreenOpensAgain) {
    Tila t(1);
    NäytäTyömaat(t.peli);
    const RakennusRuutuTila& r = t.peli.rakennusruutu;
    EXPECT_EQ(r.päivät[Saha], "Lukittu");
    t.m.Tähdet = 2;
    AvaaRakennukset(t.peli);  // a star is earned in the day, and the screen opens afresh
    t.Valitse(Saha);
    TilaaKohde(t.peli);
    EXPECT_EQ(r.päivät[Saha], "120 päivää");
    EXPECT_FALSE(r.päivätPunaisella[Saha]);
    t.m.RakAika[Saha] = 0;
    NäytäTyömaat(t.peli);
    EXPECT_FALSE(r.päivätNäkyvät[Saha]);
    EXPECT_FALSE(r.päivätPunaisella[Saha]);
    EXPECT_EQ(r.päivät[Saha], "");
}

}  // namespace
}  // namespace tanhua
