// The month end: the report line by line, the tax, wages and subsidy, planting, the loan, the cash.
#include <gtest/gtest.h>

#include "core/kuukausi.h"
#include "core/päivä.h"
#include "core/vero.h"
#include "finance/pankki.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

// Runs the day that ends the month and returns the report's lines as "r,g,b|column|text".
std::vector<std::string> KuunLoppu(Testipeli& t) {
    t.m.Päivä = 30;
    t.kanavat.raportit.clear();
    SeuraavaPäivä(t.peli);
    std::vector<std::string> rivit;
    if (t.kanavat.raportit.empty()) return rivit;
    for (const RaporttiRivi& r : t.kanavat.raportit.back().rivit)
        rivit.push_back(std::to_string(r.väri & 0xFF) + "|" + std::to_string(r.sarake) + "|" + r.teksti);
    return rivit;
}

const std::string VIIVA = "__________________________________________________";

TEST(MonthEnd, AnEmptyFarmsReport) {
    Testipeli t;
    t.Aloita("Matti");
    const auto rivit = KuunLoppu(t);
    const std::vector<std::string> odotettu{
        "0|5|Kuukauden tapahtumat :", "180|5|Sähkölasku : - 0", "180|5|Vesilasku : - 0", "180|5|Rehu : 0",
        "180|5|", "180|5|", "0|10|Brutto Tulot :0", "0|0|" + VIIVA, "180|10|Netto Liikevaihto :0"};
    EXPECT_EQ(rivit, odotettu);
    EXPECT_EQ(t.kanavat.raportit.back().otsikko, "Matti - Kuukausiraportti :  31. 6. 1980");
    EXPECT_FALSE(t.peli.näkymä.PääruutuKäytössä) << "the main screen waits for the report to close";
    EXPECT_EQ(t.m.Päivä, 1);
    EXPECT_EQ(t.m.Kuukausi, 7);
}

TEST(MonthEnd, BillsAreCutNotRoundedAndSalesShowWithoutABlank) {
    Testipeli t;
    t.Aloita();
    t.m.Raha = 1000.6f;
    t.m.Sähkölasku = 0.9f;
    t.m.Vesilasku = 12.7f;
    t.m.Liikevaihto = 2500.5f;
    const auto rivit = KuunLoppu(t);
    EXPECT_EQ(rivit[1], "0|5|Myynnit : +2500");  // rounds half to even
    EXPECT_EQ(rivit[2], "180|5|Sähkölasku : - 0");
    EXPECT_EQ(rivit[3], "180|5|Vesilasku : - 12");
    EXPECT_EQ(rivit.back(), "0|10|Netto Liikevaihto :2488");
    EXPECT_EQ(t.m.Raha, 988) << "1000.6 less 12, then cut to whole";
    EXPECT_EQ(t.m.Sähkölasku, 0);
    ASSERT_FALSE(t.m.Käyrät.LV.empty());
    EXPECT_EQ(t.m.Käyrät.LV.back(), " 2500.5");
    EXPECT_EQ(t.m.Käyrät.Netto.back(), " 2488.5");
    EXPECT_EQ(t.m.Käyrät.Rahatila.back(), " 988");
}

TEST(MonthEnd, PropertyTax) {
    struct Tapaus { const char* nimi; std::function<void(Muuttujat&)> aseta; long vero; };
    const Tapaus tapaukset[] = {
        {"nothing", [](Muuttujat&) {}, 0},
        {"fields, a tie to even", [](Muuttujat& m) { m.Pelto = 25; }, 62},
        {"fields under 50 forgiven", [](Muuttujat& m) { m.Pelto = 22; }, 0},
        {"berry garden counts nine", [](Muuttujat& m) { m.Rak[Marjatarha] = 3; }, 81},
        {"packing plant", [](Muuttujat& m) { m.Rak[Pakkaamo] = 1; }, 98},
        {"cows 30: 49.5 goes to 50", [](Muuttujat& m) { m.El[Nauta][Naaras] = 30; }, 50},
        {"hens 36: 49.2 is forgiven", [](Muuttujat& m) { m.El[Kana][Naaras] = 36; }, 0},
        {"young animals don't count", [](Muuttujat& m) { m.El[Nauta][Nuori] = 100; }, 0},
        {"eight supplies", [](Muuttujat& m) { for (int i = 0; i < 8; ++i) m.Tarv[i] = true; }, 64},
        {"seven supplies", [](Muuttujat& m) { for (int i = 0; i < 7; ++i) m.Tarv[i] = true; }, 0},
        {"big capacities", [](Muuttujat& m) { m.Koko_Siilo = 3000; m.Koko_Varasto = 3000; }, 180},
    };
    for (const Tapaus& c : tapaukset) {
        Muuttujat m;
        m.Koko_Navetta = 6;
        m.Koko_Siilo = 100;
        m.Koko_Varasto = 100;
        c.aseta(m);
        EXPECT_EQ(Omaisuusvero(m), c.vero) << c.nimi;
    }
}

TEST(MonthEnd, TaxLineAndChargeFromFiftyOn) {
    // 22 hectares of fields tax 48, forgiven; 22.4 hectares tax exactly 50, which is charged.
    for (const auto& [pelto, rivi, raha] : {std::tuple{22.0f, "", 10000.0f}, {22.4f, " 50", 9950.0f}}) {
        Testipeli t;
        t.Aloita();
        t.m.Pelto = pelto;
        std::string verorivi;
        for (const auto& r : KuunLoppu(t))
            if (r.starts_with("180|5|Omaisuus, kiinteistö- ja maavero : -")) verorivi = r.substr(r.rfind('-') + 1);
        EXPECT_EQ(verorivi, rivi) << pelto;
        EXPECT_EQ(t.m.Raha, raha) << pelto;
    }
}

TEST(MonthEnd, PackingAndContractLinesOnlyEverTurnTheTextRed) {
    // A colour stays until it is changed: a good contract month after a red packing line stays red.
    struct Tapaus { int pakkaamo; float tulot; Long sopimukset; std::vector<std::string> rivit; };
    const Tapaus tapaukset[] = {
        {1, 0, 100, {"180|5|Pakkaamon tuotto : 0", "180|5|Sopimukset : + 100", "180|5|"}},
        {1, 50.125f, -40, {"0|5|Pakkaamon tuotto : +50.12", "180|5|", "180|5|Sopimukset : -40"}},
        {1, 50.375f, 100, {"0|5|Pakkaamon tuotto : +50.38", "0|5|Sopimukset : + 100", "0|5|"}},
        {0, 0, 100, {"0|5|Sopimukset : + 100", "0|5|"}},
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        t.Aloita();
        t.m.Rak[Pakkaamo] = static_cast<Byte>(c.pakkaamo);
        t.m.PakkaamoTulot = c.tulot;
        t.m.Sopimustulot = c.sopimukset;
        auto rivit = KuunLoppu(t);
        // From the line after the opening and the sales.
        const auto alku = std::find_if(rivit.begin() + 1, rivit.end(), [](const std::string& r) { return r.find("Myynnit") == std::string::npos; });
        ASSERT_GE(rivit.end() - alku, static_cast<long>(c.rivit.size()));
        EXPECT_EQ(std::vector<std::string>(alku, alku + static_cast<long>(c.rivit.size())), c.rivit)
            << c.tulot << " " << c.sopimukset;
    }
}

TEST(MonthEnd, TheHerdAgesBeforeItBreeds) {
    // July is a pig's month to grow: the young become sows and the piglets young, then the
    // sows farrow. All draws 0: one lone young grows female, and a litter of six comes.
    Testipeli t;
    t.Aloita();
    t.m.Kuukausi = 7;
    t.m.Koko_Navetta = 100;
    t.m.Koko_Siilo = 1000;
    t.m.Var[Rehu] = 1000;
    t.m.El[Sika] = {2, 1, 3, 1};
    for (int i = 0; i < 500; ++i) t.peli.arvonta.Jonoon(0.0);
    KuunLoppu(t);
    EXPECT_EQ(t.m.El[Sika][Naaras], 3);
    EXPECT_EQ(t.m.El[Sika][Nuori], 3) << "last month's piglets";
    EXPECT_EQ(t.m.El[Sika][Poikanen], 6) << "this month's litter, born after the ageing";
    EXPECT_EQ(t.m.El[Sika][Uros], 1);
}

TEST(MonthEnd, WagesAndTheSubsidy) {
    struct Tapaus {
        const char* nimi;
        int taso;
        int kuukausi;
        std::function<void(Muuttujat&)> aseta;
        std::vector<std::string> palkkarivit;
        float raha;
    };
    const Tapaus tapaukset[] = {
        {"a cleaner on a good month", 1, 6,
         [](Muuttujat& m) { m.Työ[Siivooja] = 1; m.Liikevaihto = 25000; m.YlityöPalkat = 100; },
         {"180|5|Palkat : - 3000", "180|5|Ylityö korvaukset : - 100", "180|5|Nettopalkat : - 2600"}, 7400},
        {"the hard difficulty halves it", 2, 6, [](Muuttujat& m) { m.Työ[Siivooja] = 1; },
         {"180|5|Palkat : - 3000", "180|5|Nettopalkat : - 1250"}, 8750},
        {"the tanner draws no subsidy", 1, 6, [](Muuttujat& m) { m.Työ[Nahkuri] = 1; m.Palkka[Nahkuri] = 100; },
         {"180|5|Nettopalkat : - 100"}, 9900},
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        t.Aloita("Testi", c.taso);
        t.m.Raha = 10000;
        t.m.Kuukausi = static_cast<Byte>(c.kuukausi);
        t.m.Vuodenaika = VuodenaikaKuukaudesta(c.kuukausi);
        c.aseta(t.m);
        std::vector<std::string> palkkarivit;
        for (const auto& r : KuunLoppu(t))
            if (r.find("Palkat") != std::string::npos || r.find("Ylityö") != std::string::npos ||
                r.find("Nettopalkat") != std::string::npos)
                palkkarivit.push_back(r);
        EXPECT_EQ(palkkarivit, c.palkkarivit) << c.nimi;
        EXPECT_EQ(t.m.Raha, c.raha) << c.nimi << ": sales were paid when made";
    }
}

TEST(MonthEnd, ForestPlantingOneRoundMoreThanForesters) {
    struct Tapaus { float raha; float joutomaa; float metsä; float rahaJälkeen; bool eiVaraa; };
    for (const Tapaus& c : {Tapaus{5000, 5, 3, 2000, false}, Tapaus{1500, 5, 1, 500, true}, Tapaus{5000, 2, 2, 3000, false}}) {
        Testipeli t;
        t.Aloita();
        t.m.Raha = c.raha;
        t.m.Joutomaa = c.joutomaa;
        t.m.Työ[Metsuri] = 2;
        t.m.Palkka[Metsuri] = 0;
        t.m.Pellot_Metsitä = 1;
        const auto rivit = KuunLoppu(t);
        EXPECT_EQ(t.m.Metsä, c.metsä);
        EXPECT_EQ(t.m.Raha, c.rahaJälkeen);
        const std::string kulut = "180|5|Metsän istutus kustannukset : - " + std::to_string(static_cast<int>(c.metsä) * 1000);
        EXPECT_NE(std::find(rivit.begin(), rivit.end(), kulut), rivit.end()) << c.raha;
    }
}

TEST(MonthEnd, LoanInstalmentsAndDepositInterest) {
    struct Tapaus { float laina; int vapaa; float rahaJälkeen; float lainaJälkeen; long p; };
    for (const Tapaus& c : {Tapaus{10000, 1, 7475, 7575, 2525}, Tapaus{10000, 3, 10000, 10100, 0},
                            Tapaus{500, 0, 9495, 0, 505}}) {
        Testipeli t;
        t.Aloita();
        t.m.Laina = c.laina;
        t.m.LainaKorko = 10;
        t.m.Lyhennysvapaa = static_cast<Byte>(c.vapaa);
        t.m.Tili = 1000;
        EXPECT_EQ(LainaKuukausi(t.peli), c.p);
        EXPECT_EQ(t.m.Raha, c.rahaJälkeen);
        EXPECT_FLOAT_EQ(t.m.Laina, c.lainaJälkeen);
        EXPECT_FLOAT_EQ(t.m.Tili, 1001.5f);  // 0.15 % at Normaali
    }
}

TEST(MonthEnd, InsuranceBillUsesThePremiumsOfTheLastRefresh) {
    Testipeli t;
    t.Aloita();  // 6 barn places, 100 silo, 100 store
    PäivitäVakuutus(t.peli);  // fire 33, animals 20
    t.m.Pankki.Vakuutus[VakuutusPalo] = 1;
    t.m.Pankki.Vakuutus[VakuutusEläin] = 1;
    t.m.El[Nauta][Naaras] = 10;  // not in the bill until the premiums are refreshed
    t.m.Koko_Navetta = 20;
    t.m.Koko_Siilo = 1000;  // fed, so that no cow starves on the day
    t.m.Var[Rehu] = 1000;
    const auto rivit = KuunLoppu(t);
    EXPECT_NE(std::find(rivit.begin(), rivit.end(), "180|5|Vakuutusmaksut : - 53"), rivit.end());
    EXPECT_EQ(t.m.Raha, 10000 - 53);
    EXPECT_EQ(t.m.Pankki.Vakumaksu[VakuutusEläin], "50") << "refreshed after the bill";
}

TEST(MonthEnd, ClosingTheReportClearsTheTurnover) {
    Testipeli t;
    t.Aloita();
    t.peli.asetukset.Äänitehosteet = true;
    t.m.Liikevaihto = 400;
    t.m.Verovähennykset = 100;
    t.m.Sopimustulot = -50;
    KuunLoppu(t);
    EXPECT_EQ(t.m.Käyrät.LV.back(), " 450");
    EXPECT_EQ(t.m.Liikevaihto, 450) << "the main screen keeps the figure until the report is closed";
    t.peli.arvonta.Jonoon(0.5);
    t.Tapahtumat();
    SuljeRaportti(t.peli);
    EXPECT_EQ(t.m.Liikevaihto, 0);
    EXPECT_TRUE(t.peli.näkymä.PääruutuKäytössä);
    EXPECT_EQ(t.Tapahtumat(), std::vector<std::string>{"ÄÄNI|klik2"});
}

TEST(MonthEnd, AFailureLeavesTheDateOnThirtyOneAndTheNextPressTriesAgain) {
    Testipeli t;
    t.Aloita();
    t.m.Pelto = 1e6f;  // a tax past the width of a Long
    t.kanavat.vastaukset.push_back("Kyllä");
    const auto rivit = KuunLoppu(t);
    EXPECT_TRUE(rivit.empty()) << "no report";
    EXPECT_EQ(t.m.Päivä, 31);
    EXPECT_EQ(t.m.Kuukausi, 6);
    EXPECT_EQ(t.Tapahtumat().front(), "VIKA|Tanhua pää formi. Seuraava päivä kohdassa.|6|Kyllä");
    t.m.Pelto = 0;
    SeuraavaPäivä(t.peli);
    EXPECT_EQ(t.m.Päivä, 1);
    EXPECT_EQ(t.m.Kuukausi, 7);
}

}  // namespace
}  // namespace tanhua
