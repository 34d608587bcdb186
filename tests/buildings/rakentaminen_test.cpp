// The building screen: prices and days of each target, ordering and its refusals in their order; and the work
// orders' day: the one draw of boards, the carpenters and the completion lines.
#include <gtest/gtest.h>

#include <algorithm>

#include "buildings/rakennukset.h"
#include "buildings/rakentaminen.h"
#include "buildings/taulut/rakennuskatalogi.h"
#include "core/vikatila.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

constexpr std::size_t NAVETTA = Työmaa(Navetta), SIILO = Työmaa(Siilo), VARASTO = Työmaa(Varasto);

// A farm with sound on, plenty of money, some pasture and the building screen open.
struct Tila : testi::Testipeli {
    explicit Tila(Byte tähdet = 5) {
        Aloita();
        peli.asetukset.Äänitehosteet = true;
        m.Raha = 1000000;
        m.Laidun = 2;
        m.Tähdet = tähdet;
        AvaaRakennukset(peli);
        Tapahtumat();
    }
    const RakennusRuutuTila& r() { return peli.rakennusruutu; }
    void Valitse(std::size_t kohde, int askelia = 0) {
        ValitseKohde(peli, kohde);
        for (int i = 0; i < askelia; ++i) AskelMäärä(peli, 1);
        Tapahtumat();
    }
};

TEST(Catalogue, StepsAndLevelsSetPriceDaysAndButton) {
    // A store's days halve (integer division) while an order on it runs.
    struct Tapaus { std::size_t kohde; int askel; Byte taso; Integer määrä; Single hinta; Integer päivät, juoksevalla;
                    const char* painike; bool käytössä; const char* tasoteksti; };
    const Tapaus tapaukset[] = {
        {NAVETTA, 0, 0, 1, 2000, 7, 3, "Laajenna", true, ""},
        {SIILO, 1, 0, 500, 10000, 150, 75, "Laajenna", true, ""},
        {VARASTO, 2, 0, 1000, 20000, 200, 100, "Laajenna", true, ""},
        {Saha, 0, 0, 1, 12000, 120, 120, "Rakenna", true, "0 / 5"},
        {Saha, 0, 1, 1, 18000, 120, 120, "Laajenna", true, "1 / 5"},
        {Saha, 0, 5, 1, 54000, 120, 120, "Laajenna", false, "5 / 5"},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        if (c.kohde < RAKENNUKSIA) t.m.Rak[c.kohde] = c.taso;
        t.Valitse(c.kohde, c.askel);
        const std::string nimi = std::to_string(c.kohde) + "/" + std::to_string(c.askel) + "/" + std::to_string(c.taso);
        EXPECT_EQ(t.r().määrä, c.määrä) << nimi;
        EXPECT_EQ(t.r().hinta, c.hinta) << nimi;
        EXPECT_EQ(t.r().Kesto, c.päivät) << nimi;
        EXPECT_EQ(t.r().Command2, c.painike) << nimi;
        EXPECT_EQ(t.r().Command2Käytössä, c.käytössä) << nimi;
        EXPECT_EQ(t.r().taso, c.tasoteksti) << nimi;
        EXPECT_EQ(t.r().askeleetKäytössä, c.kohde >= RAKENNUKSIA) << nimi;
        t.m.RakAika[c.kohde] = 1;
        AskelMäärä(t.peli, 0);
        EXPECT_EQ(t.r().Kesto, c.juoksevalla) << nimi;
    }
}

TEST(Catalogue, StepperMovesAlongTheRowOnlyAndSoundsOnlyWhenItMoves) {
    Tila t;
    t.Valitse(SIILO);
    AskelMäärä(t.peli, -1);
    EXPECT_EQ(t.r().määrä, 50);
    EXPECT_TRUE(t.Tapahtumat().empty());
    for (int i = 0; i < 3; ++i) AskelMäärä(t.peli, 1);
    EXPECT_EQ(std::tuple(t.r().määrä, t.Tapahtumat()), std::tuple(1000, (Tapahtumat{"ÄÄNI|siirto", "ÄÄNI|siirto"})));
}

TEST(Ordering, ExactMoneyBuysAndLessIsRefusedWithTheShortfallUnnarrowed) {
    // The shortfall is the price less the cash in double precision: a Single would show 10765.43.
    struct Tapaus { Single raha; const char* viesti; };
    const Tapaus tapaukset[] = {
        {12000, nullptr},
        {11999.5f, "Rahatilanteesi on  11999.5\\nRakennus maksaa  12000\\nSinulta puuttuu  .5"},
        {1234.567f, "Rahatilanteesi on  1234.567\\nRakennus maksaa  12000\\nSinulta puuttuu  10765.4329833984"},
        {-300, "Rahatilanteesi on -300\\nRakennus maksaa  12000\\nSinulta puuttuu  12300"},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Raha = c.raha;
        t.Valitse(Saha);
        TilaaKohde(t.peli);
        if (!c.viesti) {
            EXPECT_EQ(std::tuple(t.m.Raha, t.Tapahtumat()), std::tuple(0, Tapahtumat{"ÄÄNI|siirto"}));
        } else {
            EXPECT_EQ(std::tuple(t.m.Raha, t.m.RakAika[Saha]), std::tuple(c.raha, 0));
            EXPECT_EQ(t.Tapahtumat(),
                      (Tapahtumat{"ÄÄNI|virhe", "VIESTI|0|Rahasi eivät riitä!\\n\\n" + std::string(c.viesti) + "|vastattu"}));
        }
    }
}

TEST(Ordering, AnOrderPaysDeductsATenthAndShowsItsDays) {
    struct Tapaus { std::size_t kohde; int askel; Byte taso; Single hinta; Integer päivät, tilaus; Long vähennys; };
    const Tapaus tapaukset[] = {
        {VARASTO, 1, 0, 10000, 150, 500, 1000},
        {NAVETTA, 2, 0, 200000, 300, 100, 20000},
        {Leipomo, 0, 2, 38250, 180, 1, 3825},
        {Pakkaamo, 0, 1, 30000, 170, 1, 3000},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Rak[c.kohde < RAKENNUKSIA ? c.kohde : 0] = c.taso;
        t.m.Verovähennykset = 7;
        t.m.PakkaamoMax = 4000;
        t.Valitse(c.kohde, c.askel);
        TilaaKohde(t.peli);
        EXPECT_EQ(std::tuple(t.m.Raha, t.m.Verovähennykset, t.m.RakAika[c.kohde], t.m.RakTilaus[c.kohde]),
                  std::tuple(1000000 - c.hinta, 7 + c.vähennys, c.päivät, c.tilaus)) << c.kohde;
        EXPECT_EQ(t.r().päivät[c.kohde], std::to_string(c.päivät) + " päivää");
        EXPECT_EQ(t.r().info, TEKSTI_RAKENTEILLA);
        // The packing plant starts from its opening figures as soon as it is ordered.
        EXPECT_EQ(t.m.PakkaamoMax, c.kohde == Pakkaamo ? 1000 : 4000);
    }
}

TEST(Ordering, RefusalsComeInTheirOrderAndChangeNothing) {
    const std::string lukittu = "VIESTI|0|Et voi rakentaa lukittua rakennusta!\\n";
    const std::string lukittuLoppu = "tämän takia kohde on lukittu.Laajentamalla tilaasi saavutat tarvittavat "
                                     "tähdet, jotta saat poistettua lukituksen.|vastattu";
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
        {"no pasture before the lock", Hevostalli, 0, 0, 0, 1000000,
         {"ÄÄNI|siirto", "ÄÄNI|virhe",
          "VIESTI|0|Et voi rakentaa hevostallia!\\n\\nSinulla ei ole laidunaluetta hevosille.\\n"
          "Hevostallisi rakennetaan laitumelle ja tarvitset siihen laidunaluetta.|vastattu"}},
        {"locked, no stars", Hevostalli, 0, 2, 0, 1000000,
         {"ÄÄNI|siirto", lukittu + "Et ole saavuttanut vielä yhtään tähteä tilallesi ja " + lukittuLoppu}},
        {"locked before a running order", Pakkaamo, 2, 2, 10, 1000000,
         {"ÄÄNI|siirto", lukittu + "Tilasi on vasta  2 tähden tila ja " + lukittuLoppu}},
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
        EXPECT_EQ(std::tuple(t.Tapahtumat(), t.m.Raha, t.m.RakAika, t.m.RakTilaus, t.m.Verovähennykset,
                             t.r().info == TEKSTI_PARHAILLAAN),
                  std::tuple(c.odotus, ennen.Raha, ennen.RakAika, ennen.RakTilaus, ennen.Verovähennykset,
                             std::string(c.nimi) == "running order")) << c.nimi;
    }
}

TEST(Ordering, StackedStoreOrderPastTheWidthFailsWithoutPaying) {
    Tila t;
    t.m.RakAika[NAVETTA] = 32700;
    t.Valitse(NAVETTA, 2);
    try {
        TilaaKohde(t.peli);
        ADD_FAILURE() << "no overflow";
    } catch (const Vika& v) {
        EXPECT_EQ(v.Numero(), VIKA_YLIVUOTO);
    }
    EXPECT_EQ(std::tuple(t.m.Raha, t.m.RakTilaus[NAVETTA]), std::tuple(1000000, 0));
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
        t.peli.rakennusruutu = RakennusRuutuTila{};  // a screen never opened under another lock
        t.m.TähtiLukitus = c.lukitus;
        t.m.RakAika[Saha] = 12;
        t.m.RakAika[NAVETTA] = 3;
        AvaaRakennukset(t.peli);
        for (std::size_t i = 0; i < RAKENNUKSIA; ++i) {
            const bool lukittu = std::find(c.lukitut.begin(), c.lukitut.end(), i) != c.lukitut.end();
            EXPECT_EQ(std::tuple(t.r().päivät[i] == "Lukittu", t.r().päivätPunaisella[i], t.r().päivätNäkyvät[i]),
                      std::tuple(lukittu, lukittu, lukittu || i == Saha)) << int(c.tähdet) << " " << i;
        }
        EXPECT_EQ(t.r().päivät[Saha] == "12 päivää", c.tähdet >= 2 || !c.lukitus) << int(c.tähdet);
        EXPECT_EQ(t.r().päivät[NAVETTA], "3 päivää");
    }
    // A finished building's label is emptied and turned back to black.
    Tila t(1);
    t.m.Tähdet = 2;
    t.m.RakAika[Saha] = 0;
    NäytäTyömaat(t.peli);
    EXPECT_FALSE(t.r().päivätNäkyvät[Saha]);
    EXPECT_FALSE(t.r().päivätPunaisella[Saha]);
    EXPECT_EQ(t.r().päivät[Saha], "");
}

// A farm with no building and no order.
struct Työmaalla : testi::Testipeli {
    Työmaalla() {
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
        Työmaalla t;
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
    Työmaalla t;
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
