// The bank screen: the loan limit, loans, deposits, the sheets and Esc. Repayment, the insurance sheet and
// the presses a player couldn't make are played in the bank scenario; the new farm's premiums in the month's bill.
#include <gtest/gtest.h>

#include "finance/pankki.h"
#include "market/markkinat.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

// A farm with only what the limit counts set by hand: a limit of 30 x (6 + 100 + 100) = 6180.
struct Pankissa : Testipeli {
    Pankissa() {
        Aloita();
        m.Koko_Navetta = 6;
        m.Koko_Siilo = 100;
        m.Koko_Varasto = 100;
        m.Raha = 10000;
        peli.asetukset.Äänitehosteet = true;
        AvaaPankki(peli);
        Tapahtumat();
    }
    void Laina(const std::string& summa) {
        OtaLainaa(peli);
        KirjoitaSumma(peli, summa);
        VahvistaLappu(peli);
    }
};

TEST(Bank, LoanLimitCountsSixBuildingsLandTwiceSuppliesAndContracts) {
    struct Tapaus { int rakennus; float pelto; float metsä; int tarvikkeita; int sopimuksia; Long raja; };
    // Land counts inside the Int and again outside it.
    for (const Tapaus& c : {Tapaus{-1, 0, 0, 0, 0, 6180}, Tapaus{Saha, 0, 0, 0, 0, 6210},
                            Tapaus{Leipomo, 0, 0, 0, 0, 6180}, Tapaus{-1, 2.5f, 0, 0, 0, 6180 + 60 + 75},
                            Tapaus{-1, 0, 0.4f, 0, 0, 6180 + 12}, Tapaus{-1, 0, 0, 2, 1, 6180 + 90}}) {
        Pankissa t;
        if (c.rakennus >= 0) t.m.Rak[static_cast<std::size_t>(c.rakennus)] = 1;
        t.m.Pelto = c.pelto;
        t.m.Metsä = c.metsä;
        for (int i = 0; i < c.tarvikkeita; ++i) t.m.Tarv[static_cast<std::size_t>(i)] = true;
        t.m.SopimuksiaLäpi = static_cast<Integer>(c.sopimuksia);
        EXPECT_EQ(LainaRaja(t.m), c.raja) << c.rakennus << " " << c.pelto << " " << c.metsä;
    }
}

TEST(Bank, ALoanIsGrantedUpToTheLimitAndOnlyForMoreThanNothing) {
    const std::string LIIKAA = "VIESTI|0|Pankki ei suostu lainaamaan sinulle noin paljoa, miten olisi  6180 ?|vastattu";
    const std::string NOLLA = "VIESTI|0|Lainan summan pitää olla suurempi kuin nolla.|vastattu";
    struct Tapaus { std::string summa; std::string viesti; };
    for (const Tapaus& c : {Tapaus{"6180", ""}, Tapaus{"6180.9", ""}, Tapaus{"6181", LIIKAA}, Tapaus{"-5000", NOLLA},
                            Tapaus{"0.9", NOLLA}, Tapaus{"1", ""}}) {
        Pankissa t;
        t.m.Raha = 1000.75f;
        t.Laina(c.summa);
        const auto& r = t.peli.pankkiruutu;
        if (c.viesti.empty()) {
            const Single s = c.summa == "1" ? 1 : 6180;
            EXPECT_EQ(t.m.Raha, 1000 + s) << "the cents of the cash are dropped";
            EXPECT_EQ(std::tuple(t.m.Laina, r.teksti, r.lainaz),
                      std::tuple(s, "Pankki lainasi sinulle juuri " + Str(s) + " rahaa.", Luku(s)));
            EXPECT_FALSE(r.Command8);
            EXPECT_TRUE(t.Tapahtumat().empty());
        } else {
            EXPECT_EQ(std::tuple(t.m.Raha, t.m.Laina), std::tuple(1000.75f, 0)) << c.summa;
            EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"ÄÄNI|virhe", c.viesti}));
        }
    }
}

TEST(Bank, PeriodAndDifficultyGiveRateAndMonths) {
    struct Tapaus { int taso; int ylös; int alas; float korko; int kk; std::string aika; };
    for (const Tapaus& c : {Tapaus{0, 0, 0, 3, 6, "6 kk"}, Tapaus{2, 5, 0, 7, 24, "2 vuotta"},
                            Tapaus{1, 2, 1, 5, 12, "1 vuosi"}}) {
        Pankissa t;
        t.m.Vaikeustaso = static_cast<Byte>(c.taso);
        OtaLainaa(t.peli);
        for (int i = 0; i < c.ylös; ++i) PidennäMaksuaikaa(t.peli);
        for (int i = 0; i < c.alas; ++i) LyhennäMaksuaikaa(t.peli);
        EXPECT_EQ(t.peli.pankkiruutu.aikaz, c.aika);
        KirjoitaSumma(t.peli, "1000");
        VahvistaLappu(t.peli);
        EXPECT_EQ(std::tuple(t.m.LainaKorko, t.peli.pankkiruutu.Maksuaikaz), std::tuple(c.korko, std::to_string(c.kk)));
    }
}

TEST(Bank, DepositLimitsAndCents) {
    // The limits are tested on the typed sum; whole parts move and the cents of both vanish. A refusal
    // leaves both as they were.
    struct Tapaus { float raha; std::string summa; float rahaJälkeen; float tiliJälkeen; std::string viesti; };
    for (const Tapaus& c : {Tapaus{1000, "500.5", 500, 500, ""},
                            Tapaus{1000, "499.9", 1000, 0.75f, "Pankki ei ota vastaan pikku summia"},
                            Tapaus{1000.25f, "1000.25", 0, 1000, ""},
                            Tapaus{1000.25f, "1000.5", 1000.25f, 0.75f, "Ei sinulla ole noin paljoa rahaa!"}}) {
        Pankissa t;
        t.m.Raha = c.raha;
        t.m.Tili = 0.75f;
        TalletaRahaa(t.peli);
        EXPECT_EQ(t.peli.pankkiruutu.summa, "500") << "half the cash, whole";
        KirjoitaSumma(t.peli, c.summa);
        VahvistaLappu(t.peli);
        EXPECT_EQ(std::tuple(t.m.Raha, t.m.Tili), std::tuple(c.rahaJälkeen, c.tiliJälkeen)) << c.summa;
        if (!c.viesti.empty()) { EXPECT_EQ(t.Tapahtumat().back(), "VIESTI|0|" + c.viesti + "|vastattu"); }
    }
    Pankissa t;
    t.m.Tili = 300.6f;
    t.m.Raha = 499.99f;
    NostaTalletukset(t.peli);
    EXPECT_EQ(std::tuple(t.m.Raha, t.m.Tili), std::tuple(799, 0));
}

TEST(Bank, OpeningShowsNoSheetAndEscLeavesAFreshOne) {
    Pankissa t;
    t.Laina("3000");
    AvaaVakuutukset(t.peli);
    t.m.Laina = 0;
    OtaLainaa(t.peli);
    EXPECT_TRUE(t.peli.pankkiruutu.Command8) << "a fresh sheet after a granted loan";
    EXPECT_EQ(t.peli.pankkiruutu.summa, "");
    t.Laina("3000");
    t.m.Laina = 0;
    t.Tapahtumat();
    PankkiEsc(t.peli);  // hides the sheet, stays in the bank
    EXPECT_FALSE(t.peli.pankkiruutu.Lappu);
    EXPECT_TRUE(t.peli.pankkiruutu.auki);
    EXPECT_TRUE(t.peli.pankkiruutu.Command8);
    EXPECT_TRUE(t.Tapahtumat().empty());
    OtaLainaa(t.peli);
    AvaaVakuutukset(t.peli);
    t.peli.arvonta.Jonoon(0.0);
    AvaaPankki(t.peli);
    EXPECT_FALSE(t.peli.pankkiruutu.Lappu);
    EXPECT_FALSE(t.peli.pankkiruutu.VakuLappu);
    EXPECT_EQ(t.Tapahtumat().back(), "ÄÄNI|klik1");
    // Esc with the market report over the bank closes both, with the click of the close button.
    PörssiRaportti(t.peli);
    t.peli.arvonta.Jonoon(0.9);
    PankkiEsc(t.peli);
    EXPECT_FALSE(t.peli.pankkiruutu.auki);
    EXPECT_FALSE(t.peli.näkymä.RaporttiAuki);
    EXPECT_TRUE(t.peli.näkymä.PankkiKäytössä);
    EXPECT_EQ(t.Tapahtumat().back(), "ÄÄNI|klik3");
}

}  // namespace
}  // namespace tanhua
