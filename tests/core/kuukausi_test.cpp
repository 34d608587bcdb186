// The month end: the report line by line, the tax, wages and support, planting, the loan, the cash, a failure.
#include <gtest/gtest.h>

#include <algorithm>

#include "core/kuukausi.h"
#include "core/päivä.h"
#include "core/vero.h"
#include "finance/pankki.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

using Tila = testi::Aloitettu;

// Runs the day that ends the month and returns the report's lines as "r|column|text".
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

// The report's lines of wages, loan, planting and insurance: those after the feed line, up to the empty ones.
std::vector<std::string> Menorivit(const std::vector<std::string>& rivit) {
    const auto rehu = std::ranges::find_if(rivit, [](const std::string& r) { return r.starts_with("180|5|Rehu : "); });
    if (rehu == rivit.end()) return {};
    return {rehu + 1, std::find(rehu + 1, rivit.end(), "180|5|")};
}

TEST(MonthEnd, BillsAreCutNotRoundedAndSalesShowWithoutABlank) {
    // Sales of 12.5 show as 12, the tie going to even; the bills are cut: 0.9 costs nothing, 12.7 costs 12.
    // The net of 0.5 is above zero and so black, though it shows as 0.
    Tila t;
    t.m.Raha = 1000.6f;
    t.m.Sähkölasku = 0.9f;
    t.m.Vesilasku = 12.7f;
    t.m.Liikevaihto = 12.5f;
    const auto rivit = KuunLoppu(t);
    EXPECT_EQ(std::vector(rivit.begin() + 1, rivit.begin() + 4),
              (std::vector<std::string>{"0|5|Myynnit : +12", "180|5|Sähkölasku : - 0", "180|5|Vesilasku : - 12"}));
    EXPECT_EQ(rivit.back(), "0|10|Netto Liikevaihto :0");
    EXPECT_EQ(t.m.Raha, 988.0f) << "1000.6 less 12, then cut to whole";
    // The bill was cleared; the day that ended the month then added its own costs to the new one:
    // the store's 100 units and the barn's 6 places.
    const double sf = std::max(1.0, (40 - t.m.Lämpötila) * 0.06);
    EXPECT_FLOAT_EQ(t.m.Sähkölasku, static_cast<float>((100 * 0.001 + 6 * 0.005) * (t.m.Vaikeustaso + 2) * sf));
    EXPECT_EQ(t.m.Käyrät.Netto.back(), " .5");
}

TEST(MonthEnd, PropertyTax) {
    struct Tapaus { const char* nimi; std::function<void(Muuttujat&)> aseta; long vero; };
    const Tapaus tapaukset[] = {
        {"fields, a tie to even", [](Muuttujat& m) { m.Pelto = 25; }, 62},
        {"berry garden counts nine", [](Muuttujat& m) { m.Rak[Marjatarha] = 3; }, 81},
        {"packing plant", [](Muuttujat& m) { m.Rak[Pakkaamo] = 1; }, 98},
        {"cows 30: 49.5 goes to 50", [](Muuttujat& m) { m.El[Nauta][Naaras] = 30; }, 50},
        {"hens 36: 49.2 is forgiven", [](Muuttujat& m) { m.El[Kana][Naaras] = 36; }, 0},
        {"young animals don't count", [](Muuttujat& m) { m.El[Nauta][Nuori] = 100; }, 0},
        {"eight supplies", [](Muuttujat& m) { for (int i = 0; i < 8; ++i) m.Tarv[i] = true; }, 64},
        {"big capacities", [](Muuttujat& m) { m.Koko_Siilo = 3000; m.Koko_Varasto = 3000; }, 180},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;  // 6 barn places, 100 silo, 100 store
        c.aseta(t.m);
        EXPECT_EQ(Omaisuusvero(t.m), c.vero) << c.nimi;
    }
}

TEST(MonthEnd, TaxLineAndChargeFromFiftyOn) {
    // 22 hectares of fields tax 48, forgiven; 22.4 hectares tax exactly 50, which is charged.
    // With nothing else the net is 0 or below, and red.
    for (const auto& [pelto, rivi, raha, netto] :
         {std::tuple{22.0f, "", 10000.0f, "0"}, {22.4f, " 50", 9950.0f, "-50"}}) {
        Tila t;
        t.m.Pelto = pelto;
        std::string verorivi;
        const auto rivit = KuunLoppu(t);
        for (const auto& r : rivit)
            if (r.starts_with("180|5|Omaisuus, kiinteistö- ja maavero : -")) verorivi = r.substr(r.rfind('-') + 1);
        EXPECT_EQ(std::tuple(verorivi, t.m.Raha), std::tuple(rivi, raha)) << pelto;
        EXPECT_EQ(rivit.back(), "180|10|Netto Liikevaihto :" + std::string(netto));
    }
}

TEST(MonthEnd, PackingAndContractLinesOnlyEverTurnTheTextRed) {
    // A colour stays until it is changed: a good contract month after a red packing line stays red.
    struct Tapaus { int pakkaamo; float tulot; Long sopimukset; std::vector<std::string> rivit; };
    const Tapaus tapaukset[] = {
        {1, 0, 100, {"180|5|Pakkaamon tuotto : 0", "180|5|Sopimukset : + 100", "180|5|"}},
        {1, 50.125f, -40, {"0|5|Myynnit : +50", "0|5|Pakkaamon tuotto : +50.12", "180|5|", "180|5|Sopimukset : -40"}},
        {1, 50.375f, 100, {"0|5|Myynnit : +50", "0|5|Pakkaamon tuotto : +50.38", "0|5|Sopimukset : + 100", "0|5|"}},
        {0, 0, 100, {"0|5|Sopimukset : + 100", "0|5|"}},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Rak[Pakkaamo] = static_cast<Byte>(c.pakkaamo);
        t.m.PakkaamoTulot = c.tulot;
        t.m.Sopimustulot = c.sopimukset;
        const auto rivit = KuunLoppu(t);  // the packing plant's income counts as sales
        ASSERT_GT(rivit.size(), c.rivit.size());
        EXPECT_EQ(std::vector(rivit.begin() + 1, rivit.begin() + 1 + static_cast<long>(c.rivit.size())), c.rivit)
            << c.tulot << " " << c.sopimukset;
    }
}

TEST(MonthEnd, TheHerdAgesBeforeItBreeds) {
    // July is a pig's month to grow: the young become sows and the piglets young, then the
    // sows farrow. All draws 0: one lone young grows female, and a litter of six comes.
    Tila t;
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

TEST(MonthEnd, WagesLoanAndPlantingLinesAndCash) {
    // The support: a cleaner on a good month at Normaali, halved at Vaikea, none for the tanner.
    // Planting: one round more than foresters, stopped by cash under 1000 or by the end of the waste land.
    // The loan: with one repayment-free month left a quarter falls due; the last small loan is paid off whole.
    auto metsitys = [](float raha, float joutomaa) {
        return [=](Muuttujat& m) {
            m.Raha = raha, m.Joutomaa = joutomaa, m.Työ[Metsuri] = 2, m.Palkka[Metsuri] = 0, m.Pellot_Metsitä = 1;
        };
    };
    auto laina = [](float summa, Byte vapaa) { return [=](Muuttujat& m) { m.Laina = summa, m.LainaKorko = 10, m.Lyhennysvapaa = vapaa; }; };
    struct Tapaus { int taso; std::function<void(Muuttujat&)> aseta; std::vector<std::string> rivit; float raha; };
    const Tapaus tapaukset[] = {
        {1, [](Muuttujat& m) { m.Työ[Siivooja] = 1; m.Liikevaihto = 25000; m.YlityöPalkat = 100; },
         {"180|5|Palkat : - 3000", "180|5|Ylityö korvaukset : - 100", "180|5|Nettopalkat : - 2600"}, 7400},
        {2, [](Muuttujat& m) { m.Työ[Siivooja] = 1; }, {"180|5|Palkat : - 3000", "180|5|Nettopalkat : - 1250"}, 8750},
        {1, [](Muuttujat& m) { m.Työ[Nahkuri] = 1; m.Palkka[Nahkuri] = 100; }, {"180|5|Nettopalkat : - 100"}, 9900},
        {1, metsitys(5000, 5), {"180|5|Metsän istutus kustannukset : - 3000"}, 2000},
        {1, metsitys(1500, 5), {"180|5|Metsän istutus kustannukset : - 1000"}, 500},
        {1, metsitys(5000, 2), {"180|5|Metsän istutus kustannukset : - 2000"}, 3000},
        {1, laina(10000, 1), {"180|5|Lainan lyhennys : - 2525"}, 7475},
        {1, laina(500, 0), {"180|5|Lainan lyhennys : - 505"}, 9495},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t(c.taso);
        t.m.Raha = 10000;  // sales were paid when made: only the month's charges move the cash
        c.aseta(t.m);
        EXPECT_EQ(Menorivit(KuunLoppu(t)), c.rivit);
        EXPECT_EQ(t.m.Raha, c.raha) << c.rivit.back();
    }
}

TEST(MonthEnd, InsuranceBillAndClosingTheReport) {
    // The bill uses the premiums of the last refresh, here the new farm's own (fire 33, animals 20),
    // and the refresh comes after it.
    Tila t;  // 6 barn places, 100 silo, 100 store
    t.peli.asetukset.Äänitehosteet = true;
    t.m.Pankki.Vakuutus[VakuutusPalo] = 1;
    t.m.Pankki.Vakuutus[VakuutusEläin] = 1;
    t.m.El[Nauta][Naaras] = 10;  // not in the bill until the premiums are refreshed
    t.m.Koko_Navetta = 20;
    t.m.Koko_Siilo = 1000;  // fed, so that no cow starves on the day
    t.m.Var[Rehu] = 1000;
    t.m.Liikevaihto = 400;
    t.m.Verovähennykset = 100;
    t.m.Sopimustulot = -50;
    EXPECT_EQ(Menorivit(KuunLoppu(t)), std::vector<std::string>{"180|5|Vakuutusmaksut : - 53"});
    EXPECT_EQ(t.m.Raha, 10000 + 100 - 53) << "the deduction is paid back, the sales were paid when made";
    EXPECT_EQ(t.m.Pankki.Vakumaksu[VakuutusEläin], "50");
    // The turnover with its deduction and contracts stays on the main screen until the report is closed.
    EXPECT_EQ(t.m.Käyrät.LV.back(), " 450");
    EXPECT_EQ(std::tuple(t.m.Liikevaihto, t.peli.näkymä.PääruutuKäytössä), std::tuple(450.0f, false));
    t.peli.arvonta.Jonoon(0.5);
    t.Tapahtumat();
    SuljeRaportti(t.peli);
    EXPECT_EQ(std::tuple(t.m.Liikevaihto, t.peli.näkymä.PääruutuKäytössä), std::tuple(0.0f, true));
    EXPECT_EQ(t.Tapahtumat(), std::vector<std::string>{"ÄÄNI|klik2"});
}

TEST(MonthEnd, AFailureIsReportedAndTheDayGoesOnOrStopsOnThirtyOne) {
    // A tax past the width of a Long fails the month end: no report, and the date stays on 31 so that the
    // next press runs the month end again. Going on, the day reaches its end and clears the count;
    // giving up drops the rest of the day.
    for (const auto& [vastaus, laskuri] : {std::tuple{"Kyllä", 0}, {"Ei", 1}}) {
        Tila t;
        t.m.Pelto = 1e6f;
        t.kanavat.vastaukset.push_back(vastaus);
        EXPECT_TRUE(KuunLoppu(t).empty());
        EXPECT_EQ(t.Tapahtumat().front(), "VIKA|Tanhua pää formi. Seuraava päivä kohdassa.|6|" + std::string(vastaus));
        EXPECT_EQ(std::tuple(t.m.Päivä, t.m.Kuukausi, t.m.VikaLaskuri), std::tuple(Byte{31}, Byte{6}, Long{laskuri}));
        t.m.Pelto = 0;
        SeuraavaPäivä(t.peli);
        EXPECT_EQ(std::tuple(t.m.Päivä, t.m.Kuukausi), std::tuple(Byte{1}, Byte{7}));
    }
}

}  // namespace
}  // namespace tanhua
