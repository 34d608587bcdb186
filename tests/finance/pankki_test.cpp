// The bank screen: the loan limit, loans, repayment, deposits, the insurance sheet and Esc.
#include <gtest/gtest.h>

#include "finance/pankki.h"
#include "market/markkinat.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

// A farm with only what the limit counts set by hand.
void TyhjäTila(Testipeli& t) {
    t.Aloita();
    t.m.Koko_Navetta = 6;
    t.m.Koko_Siilo = 100;
    t.m.Koko_Varasto = 100;
    t.m.Pelto = 0;
    t.m.Metsä = 0;
    t.m.Raha = 10000;
    t.peli.asetukset.Äänitehosteet = true;
    AvaaPankki(t.peli);
    t.Tapahtumat();
}

TEST(Bank, LoanLimitCountsSixBuildingsLandTwiceSuppliesAndContracts) {
    struct Tapaus { int rakennus; float pelto; float metsä; int tarvikkeita; int sopimuksia; Long raja; };
    // Base 206: 6 + 100 + 100. Land counts inside the Int and again outside it.
    for (const Tapaus& c : {Tapaus{-1, 0, 0, 0, 0, 6180}, Tapaus{Saha, 0, 0, 0, 0, 6210},
                            Tapaus{Leipomo, 0, 0, 0, 0, 6180}, Tapaus{Pakkaamo, 0, 0, 0, 0, 6180},
                            Tapaus{-1, 2.5f, 0, 0, 0, 6180 + 60 + 75}, Tapaus{-1, 0, 0.4f, 0, 0, 6180 + 12},
                            Tapaus{-1, 0, 0, 2, 1, 6180 + 90}}) {
        Testipeli t;
        TyhjäTila(t);
        if (c.rakennus >= 0) t.m.Rak[static_cast<std::size_t>(c.rakennus)] = 1;
        t.m.Pelto = c.pelto;
        t.m.Metsä = c.metsä;
        for (int i = 0; i < c.tarvikkeita; ++i) t.m.Tarv[static_cast<std::size_t>(i)] = true;
        t.m.SopimuksiaLäpi = static_cast<Integer>(c.sopimuksia);
        EXPECT_EQ(LainaRaja(t.m), c.raja) << c.rakennus << " " << c.pelto << " " << c.metsä;
    }
}

TEST(Bank, TakingALoanAtAndOverTheLimit) {
    struct Tapaus { std::string summa; bool annetaan; };
    for (const Tapaus& c : {Tapaus{"6180", true}, Tapaus{"6180.9", true}, Tapaus{"6181", false}}) {
        Testipeli t;
        TyhjäTila(t);
        t.m.Raha = 1000.75f;
        OtaLainaa(t.peli);
        KirjoitaSumma(t.peli, c.summa);
        VahvistaLappu(t.peli);
        const auto& r = t.peli.pankkiruutu;
        if (c.annetaan) {
            EXPECT_EQ(t.m.Raha, 7180) << "the cents of the cash are dropped";
            EXPECT_EQ(t.m.Laina, 6180);
            EXPECT_EQ(r.teksti, "Pankki lainasi sinulle juuri  6180 rahaa.");
            EXPECT_EQ(r.lainaz, "6180");
            EXPECT_FALSE(r.Command8);
            EXPECT_TRUE(t.Tapahtumat().empty());
        } else {
            EXPECT_EQ(t.m.Raha, 1000.75f);
            EXPECT_EQ(t.m.Laina, 0);
            EXPECT_EQ(r.summa, "6180");
            EXPECT_EQ(t.Tapahtumat(),
                      (std::vector<std::string>{"ÄÄNI|virhe", "VIESTI|0|Pankki ei suostu lainaamaan sinulle noin "
                                                              "paljoa, miten olisi  6180 ?|vastattu"}));
        }
    }
}

TEST(Bank, PeriodAndDifficultyGiveRateAndMonths) {
    struct Tapaus { int taso; int ylös; int alas; float korko; int kk; std::string aika; };
    for (const Tapaus& c : {Tapaus{0, 0, 0, 3, 6, "6 kk"}, Tapaus{1, 1, 0, 5, 12, "1 vuosi"},
                            Tapaus{2, 5, 0, 7, 24, "2 vuotta"}, Tapaus{1, 2, 1, 5, 12, "1 vuosi"},
                            Tapaus{1, 0, 3, 4, 6, "6 kk"}}) {
        Testipeli t;
        TyhjäTila(t);
        t.m.Vaikeustaso = static_cast<Byte>(c.taso);
        OtaLainaa(t.peli);
        for (int i = 0; i < c.ylös; ++i) PidennäMaksuaikaa(t.peli);
        for (int i = 0; i < c.alas; ++i) LyhennäMaksuaikaa(t.peli);
        EXPECT_EQ(t.peli.pankkiruutu.aikaz, c.aika);
        KirjoitaSumma(t.peli, "1000");
        VahvistaLappu(t.peli);
        EXPECT_EQ(t.m.LainaKorko, c.korko);
        EXPECT_EQ(t.m.Lyhennysvapaa, c.kk);
        EXPECT_EQ(t.peli.pankkiruutu.Maksuaikaz, std::to_string(c.kk));
    }
}

TEST(Bank, SecondLoanAndLettersAreRefused) {
    Testipeli t;
    TyhjäTila(t);
    OtaLainaa(t.peli);
    KirjoitaSumma(t.peli, "12a");
    VahvistaLappu(t.peli);
    EXPECT_EQ(t.Tapahtumat(),
              std::vector<std::string>{"LAATIKKO|Kirjoita haluamasi summa, älä kirjaimia tai muita merkkejä"});
    EXPECT_EQ(t.m.VikaPaikka, "Pankki formi");
    EXPECT_EQ(t.m.Raha, 10000);
    EXPECT_EQ(t.m.Laina, 0);
    EXPECT_TRUE(t.peli.pankkiruutu.Command8);

    t.m.Laina = 0.5f;
    SuljeLappu(t.peli);
    OtaLainaa(t.peli);
    EXPECT_FALSE(t.peli.pankkiruutu.Lappu);
    EXPECT_EQ(t.Tapahtumat(), (std::vector<std::string>{
                                  "ÄÄNI|virhe",
                                  "VIESTI|0|Sinulla on rästissä edellisiä velkoja, huolehdi ne ensin pois.|vastattu"}));
}

TEST(Bank, RepayingSoundsAWarningFirstAndForgivesTheCents) {
    Testipeli t;
    TyhjäTila(t);
    t.m.Laina = 10000.5f;
    t.m.Lyhennysvapaa = 3;
    MaksaLaina(t.peli);
    EXPECT_EQ(t.Tapahtumat(), (std::vector<std::string>{
                                  "ÄÄNI|virhe", "VIESTI|0|Ei sinulla ole tarpeeksi rahaa maksaa  10000.5 lainaa.|vastattu"}));
    EXPECT_EQ(t.m.Raha, 10000);
    t.m.Laina = 9999.9f;
    t.peli.arvonta.Jonoon(0.5);  // the click's draw
    MaksaLaina(t.peli);
    EXPECT_EQ(t.Tapahtumat(), (std::vector<std::string>{"ÄÄNI|virhe", "ÄÄNI|klik2"}));
    EXPECT_EQ(t.m.Raha, 10000 - 9999);
    EXPECT_EQ(t.m.Laina, 0);
    EXPECT_EQ(t.m.Lyhennysvapaa, 0);
}

TEST(Bank, DepositLimitsAndCents) {
    struct Tapaus { float raha; std::string summa; float rahaJälkeen; float tiliJälkeen; std::string viesti; };
    for (const Tapaus& c : {
             Tapaus{1000, "500.5", 500, 500, ""}, Tapaus{1000, "499.9", 1000, 0, "Pankki ei ota vastaan pikku summia"},
             Tapaus{1000.25f, "1000.25", 0, 1000, ""}, Tapaus{1000.25f, "1000.5", 1000.25f, 0,
                                                                "Ei sinulla ole noin paljoa rahaa!"}}) {
        Testipeli t;
        TyhjäTila(t);
        t.m.Raha = c.raha;
        t.m.Tili = 0.75f;
        TalletaRahaa(t.peli);
        EXPECT_EQ(t.peli.pankkiruutu.summa, "500") << "half the cash, whole";
        EXPECT_FALSE(t.peli.pankkiruutu.aikaNäkyvissä);
        KirjoitaSumma(t.peli, c.summa);
        VahvistaLappu(t.peli);
        EXPECT_EQ(t.m.Raha, c.rahaJälkeen) << c.summa;
        EXPECT_EQ(t.m.Tili, c.viesti.empty() ? c.tiliJälkeen : 0.75f) << c.summa;
        const auto tapahtumat = t.Tapahtumat();
        if (c.viesti.empty()) {
            EXPECT_TRUE(tapahtumat.empty());
            EXPECT_EQ(t.peli.pankkiruutu.teksti, "Talletit tilillesi juuri " + c.summa + " rahaa.");
        } else {
            EXPECT_EQ(tapahtumat, (std::vector<std::string>{"ÄÄNI|virhe", "VIESTI|0|" + c.viesti + "|vastattu"}));
        }
    }
    Testipeli t;
    TyhjäTila(t);
    t.m.Raha = 499.99f;
    TalletaRahaa(t.peli);
    EXPECT_FALSE(t.peli.pankkiruutu.Lappu);
    EXPECT_EQ(t.Tapahtumat().front(), "ÄÄNI|virhe");
    t.m.Tili = 300.6f;
    NostaTalletukset(t.peli);
    EXPECT_EQ(t.m.Raha, 799);
    EXPECT_EQ(t.m.Tili, 0);
}

TEST(Bank, InsuranceSheetSumAndPointerTexts) {
    Testipeli t;
    TyhjäTila(t);
    OtaLainaa(t.peli);
    t.peli.arvonta.Jonoon(0.0);
    AvaaVakuutukset(t.peli);
    EXPECT_EQ(t.Tapahtumat(), std::vector<std::string>{"ÄÄNI|klik1"});
    EXPECT_FALSE(t.peli.pankkiruutu.Lappu);
    EXPECT_TRUE(t.peli.pankkiruutu.VakuLappu);
    EXPECT_EQ(t.peli.pankkiruutu.Vakusummaz, "0");
    VaihdaVakuutus(t.peli, VakuutusPalo, true);
    EXPECT_EQ(t.peli.pankkiruutu.Vakusummaz, "33");
    t.m.Raha = 20000;  // the theft premium follows the money at the click
    VaihdaVakuutus(t.peli, VakuutusVarkaus, true);
    EXPECT_EQ(t.peli.pankkiruutu.Vakusummaz, "47");
    VaihdaVakuutus(t.peli, VakuutusPalo, false);
    EXPECT_EQ(t.peli.pankkiruutu.Vakusummaz, "14");
    EXPECT_EQ(t.m.Raha, 20000) << "a box costs nothing";
    OsoitinVakuutukseen(t.peli, VakuutusTyö);
    EXPECT_EQ(t.peli.pankkiruutu.Vakuinfo,
              "Tämä vakuutus korvaa työntekijöiden työpaikka tapaturmat ja onnettomuudet.");
    OsoitinVakuutukseen(t.peli, -1);
    EXPECT_EQ(t.peli.pankkiruutu.Vakuinfo, "");
}

TEST(Bank, EscHidesTheSheetsBeforeItClosesAndClosingTakesTheReport) {
    Testipeli t;
    TyhjäTila(t);
    OtaLainaa(t.peli);
    AvaaVakuutukset(t.peli);
    TalletaRahaa(t.peli);
    t.Tapahtumat();
    PankkiEsc(t.peli);
    EXPECT_FALSE(t.peli.pankkiruutu.Lappu);
    EXPECT_FALSE(t.peli.pankkiruutu.VakuLappu);
    EXPECT_TRUE(t.peli.pankkiruutu.auki);
    EXPECT_TRUE(t.Tapahtumat().empty());
    t.peli.arvonta.Jonoon(0.9);
    PörssiRaportti(t.peli);
    EXPECT_FALSE(t.peli.näkymä.PankkiKäytössä);
    t.peli.arvonta.Jonoon(0.9);
    PankkiEsc(t.peli);
    EXPECT_FALSE(t.peli.pankkiruutu.auki);
    EXPECT_FALSE(t.peli.näkymä.RaporttiAuki);
    EXPECT_TRUE(t.peli.näkymä.PankkiKäytössä);
    EXPECT_EQ(t.Tapahtumat().back(), "ÄÄNI|klik3");
}

}  // namespace
}  // namespace tanhua
