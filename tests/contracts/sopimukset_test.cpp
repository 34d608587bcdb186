// Contracts: the day's call request, the terms drawn at opening, the answer, cancelling, and the
// month's delivery. Every case queues its draws and one spare, which must be left untouched.
#include <gtest/gtest.h>

#include "contracts/sopimukset.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

constexpr double VARA = 0.123;  // the spare draw after a case's own

struct Sopimuksissa : Testipeli {
    explicit Sopimuksissa(int taso = 1) { Aloita("Testi", taso); }
    void Arvot(std::initializer_list<double> arvot) {
        peli.arvonta.TyhjennäJono();
        for (double r : arvot) peli.arvonta.Jonoon(r);
        peli.arvonta.Jonoon(VARA);
    }
    // Exactly the queued draws were taken, no fewer and no more.
    void Käytetty(const std::string& tapaus) {
        EXPECT_EQ(peli.arvonta.JonossaJäljellä(), 1u) << tapaus;
        peli.arvonta.TyhjennäJono();
    }
};

// The draw that gives U(a..b) = k.
double U(int a, int b, int k) { return (k - a + 0.5) / (b - a + 1); }

TEST(Contracts, TheDaysRequestDrawsTwiceOrThriceAndKeepsItsDayLimits) {
    const std::string PYYNTÖ = "LISTA|Olet saanut soittopyynnön koskien sopimusta.";
    // pyyntö: the event list tells of a call.
    struct Tapaus { const char* nimi; int päivä; float pelto; std::vector<std::string> ennen;
        std::initializer_list<double> arvot; std::vector<std::string> jälkeen; bool puhelin; bool pyyntö; };
    const Tapaus tapaukset[] = {
        {"a call on day 9", 9, 0, {}, {0, U(0, 17, 0), 0.5}, {"Maito"}, true, true},
        {"no call on day 10", 10, 0, {}, {0, 0.5}, {}, false, false},
        {"no product without the call", 9, 0, {}, {U(0, 8, 1), 0.5}, {}, false, false},
        {"a failed condition gives nothing", 5, 0, {}, {0, U(0, 17, 1), 0.5}, {}, false, false},
        {"no grain at exactly 2 hectares", 5, 2, {}, {0, U(0, 17, 10), 0.5}, {}, false, false},
        {"grain above 2 hectares", 5, 2.5f, {}, {0, U(0, 17, 10), 0.5}, {"Vilja"}, true, true},
        {"x of 0 drops the oldest", 5, 0, {"Liha", "Muna"}, {0.5, 0}, {"Muna"}, true, false},
        {"day 16 keeps the list", 16, 0, {"Liha"}, {0.5, 0.5}, {"Liha"}, true, false},
        {"day 17 drops one and the phone hides", 17, 0, {"Liha"}, {0.5, 0.5}, {}, false, false},
        {"a new one and the oldest gone", 9, 0, {"Liha"}, {0, U(0, 17, 0), 0}, {"Maito"}, true, true},
    };
    for (const Tapaus& c : tapaukset) {
        Sopimuksissa t;
        t.m.El[Nauta][Naaras] = 10;
        t.m.Pelto = c.pelto;
        t.m.Päivä = static_cast<Byte>(c.päivä);
        t.peli.näkymä.Sopimuksia = c.ennen;
        t.peli.näkymä.Puhelin = !c.ennen.empty();
        t.Arvot(c.arvot);
        Sopimustarjous(t.peli);
        t.Käytetty(c.nimi);
        EXPECT_EQ(std::tuple(t.peli.näkymä.Sopimuksia, t.peli.näkymä.Puhelin, t.Tapahtumat()),
                  std::tuple(c.jälkeen, c.puhelin, c.pyyntö ? Tapahtumat{PYYNTÖ} : Tapahtumat{})) << c.nimi;
    }
}

TEST(Contracts, TermsAreDrawnInOrderRoundedToEvenAndHeldToOne) {
    // lähde: the animals the product counts; hinta: the unit price PerusHinta + Kurssi.
    struct Tapaus { const char* nimi; int taso; Tuote tuote; Long lähde; int hinta; std::initializer_list<double> arvot;
        Ehdot odotettu; };
    const double Y = 0.999999;
    const Tapaus tapaukset[] = {
        // 10 cows at the market's base price 5: a = 15, v = 2.5 to 2.
        {"lowest", 0, Maito, 10, 5, {0, 0, 0, 0, 0, 0, 0}, {450, 900, 1200, 6, "Paikallinen", "yhtiö"}},
        {"lowest, top r", 0, Maito, 10, 5, {0, 0, 0, 0, 0, Y, Y}, {451, 902, 1200, 6, "Paikallinen", "yhtiö"}},
        // a = 2.5 to 2, v = 62.5 to 62.
        {"halves to even", 1, Turkki, 5, 125, {0, 0, 0, 0, 0, 0, 0}, {60, 3720, 4960, 6, "Paikallinen", "yhtiö"}},
        {"held to 1", 1, Turkki, 1, 1, {0, 0, 0, 0, 0, 0, 0}, {30, 30, 40, 6, "Paikallinen", "yhtiö"}},
        // a = 1.7 x 30 = 51, v = 1.1 x 10 = 11; then K = 12, the fourth first word, the last second word.
        {"order", 1, Maito, 10, 10, {U(5, 17, 17), U(5, 16, 11), U(6, 17, 12), U(0, 5, 3), U(0, 4, 4), 0.5, 0.5},
         {1532, 16852, 22440, 12, "Eräs Kylän", "kauppa"}},
        // The last penalty that fits 32 bits: 120 x 17895697 = 2147483640.
        {"32 bits", 1, Turkki, 17895697, 1, {U(5, 17, 10), 0, 0, 0, 0, 0, 0},
         {536870910, 536870910, 715827880, 6, "Paikallinen", "yhtiö"}},
    };
    for (const Tapaus& c : tapaukset) {
        Sopimuksissa t(c.taso);
        const TarjousRivi rivi = *TarjousNimellä(c.tuote == Maito ? "Maito" : "Turkki");
        if (c.tuote == Maito) t.m.El[Nauta][Naaras] = c.lähde;
        else t.m.El[Kettu][Naaras] = c.lähde;
        t.m.Kurssi[c.tuote] = static_cast<Integer>(c.hinta - t.m.PerusHinta[c.tuote]);
        if (std::string(c.nimi) == "lowest") {
            EXPECT_EQ(t.m.PerusHinta[Maito], 5);
        }
        t.Arvot(c.arvot);
        const Ehdot e = ArvoEhdot(t.peli, rivi);
        t.Käytetty(c.nimi);
        EXPECT_EQ((std::vector<Long>{e.A, e.H, e.P, e.K}),
                  (std::vector<Long>{c.odotettu.A, c.odotettu.H, c.odotettu.P, c.odotettu.K}))
            << c.nimi;
        EXPECT_EQ(e.ostaja1 + " " + e.ostaja2, c.odotettu.ostaja1 + " " + c.odotettu.ostaja2) << c.nimi;
    }
}

TEST(Contracts, APenaltyPast32BitsIsReportedOnceAndOpensNoCall) {
    Sopimuksissa t;
    t.m.El[Kettu][Naaras] = 17895698;
    t.m.Kurssi[Turkki] = static_cast<Integer>(1 - t.m.PerusHinta[Turkki]);
    t.peli.näkymä.Sopimuksia = {"Turkki"};
    // Only a and v are drawn before the penalty fails.
    t.Arvot({U(5, 17, 10), 0});
    ValitseTarjous(t.peli, 0);
    t.Käytetty("overflow");
    const Tapahtumat e = t.Tapahtumat();
    ASSERT_EQ(e.size(), 1u);
    EXPECT_EQ(e[0], "VIKA|Tuntematon / määrittämätön|6|Kyllä");  // the screen event has no place of its own
    const SopimusRuutuTila& r = t.peli.sopimusruutu;
    EXPECT_FALSE(r.Puhelussa);
    EXPECT_EQ(std::tuple(r.indeksi, r.infoa, t.peli.näkymä.Sopimuksia),
              std::tuple(-1, "", std::vector<std::string>{"Turkki"}));
}

TEST(Contracts, TheOfferTextTellsTheTermsTheStockAndTheDaysLeft) {
    const std::string EHDOT =
        "Paikallinen yhtiö on valmis tekemään kanssasi Maito-sopimuksen. yhtiö haluaa, että tuotat kuukaudessa  450 "
        "kyseistä tuotetta. yhtiö on valmis maksamaan sinulle  900/kk kyseisestä tuotannosta. Jos et pysty tuottamaan "
        "määräajassa sovittua määrää tuotteita, tai purat sopimuksen joudut maksamaan sopimus sakkoa  1200. Jos taas "
        "pystyt tuottamaan koko  6 kuukauden ajan tuotetta maksaa yhtiö sinulle  840 bonusta .Sopimuksen kesto on  6 "
        "kk.\r\n\r\n";
    struct Tapaus { int päivä; float varasto; std::string loppu; };
    for (const Tapaus& c : {
             Tapaus{28, 100, "Sinulla on varastossa tuotetta  100 kpl.\r\nSinulla on  2 päivää aikaa saada  350 "
                             "tuotetta, ennen sopimuksen alkamista."},
             Tapaus{29, 100, "Sinulla on varastossa tuotetta  100 kpl."},
             Tapaus{5, 450, "Sinulla on varastossa tuotetta  450 kpl."},
             Tapaus{5, 12.5f, "Sinulla on varastossa tuotetta  12.5 kpl.\r\nSinulla on  25 päivää aikaa saada  437.5 "
                              "tuotetta, ennen sopimuksen alkamista."},
         }) {
        Sopimuksissa t;
        t.m.Päivä = static_cast<Byte>(c.päivä);
        t.m.Var[Maito] = c.varasto;
        const Ehdot e{450, 900, 1200, 6, "Paikallinen", "yhtiö"};
        EXPECT_EQ(Tarjousteksti(t.m, *TarjousNimellä("Maito"), e), EHDOT + c.loppu) << c.päivä << " " << c.varasto;
    }
}

TEST(Contracts, ACallEndsInAnAnswerAndTakesTheFirstFreeSlot) {
    Sopimuksissa t;
    SopimusRuutuTila& r = t.peli.sopimusruutu;
    t.m.El[Nauta][Naaras] = 10;
    t.m.Sop[1] = Sopimus{"Liha", 1, 2, 3, 4};
    t.peli.näkymä.Sopimuksia = {"Muna", "Maito", "Maito", "Maito"};
    const std::string YHTEYDESSÄ =
        "VIESTI|0|Olet yhteydessä juuri kyseiseen firmaan, sinun on päätettävä hyväksytkö vai hylkäätkö sopimuksen.|vastattu";
    t.Arvot({0, 0, 0, 0, 0, 0, 0});
    ValitseTarjous(t.peli, 1);
    t.Käytetty("opening");
    ASSERT_TRUE(r.Puhelussa);
    // Another entry is refused, the same one does nothing; the screen can't be left.
    ValitseTarjous(t.peli, 0);
    ValitseTarjous(t.peli, 1);
    EXPECT_FALSE(SuljeSopimukset(t.peli));
    EXPECT_EQ(std::tuple(t.Tapahtumat(), r.indeksi), std::tuple((Tapahtumat{YHTEYDESSÄ, YHTEYDESSÄ}), 1));
    HyväksyTarjous(t.peli);
    EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"VIESTI|0|Teit juuri Maito sopimuksen.|vastattu"});
    EXPECT_EQ(t.m.Sop[0].Tuote, "Maito");
    EXPECT_EQ((std::vector<Long>{t.m.Sop[0].Määrä, t.m.Sop[0].Hinta, t.m.Sop[0].Sakko, t.m.Sop[0].Kesto}),
              (std::vector<Long>{450, 900, 1200, 6}));
    EXPECT_FALSE(r.Puhelussa);
    EXPECT_EQ(t.peli.näkymä.Sopimuksia, (std::vector<std::string>{"Muna", "Maito", "Maito"}));
    // Slot 2 is taken by hand, so the next goes to slot 3; with three taken the call stays open.
    for (int kerta = 0; kerta < 2; ++kerta) {
        t.Arvot({0, 0, 0, 0, 0, 0, 0});
        ValitseTarjous(t.peli, 1);
        t.Käytetty("again");
        HyväksyTarjous(t.peli);
    }
    EXPECT_EQ(t.m.Sop[2].Tuote, "Maito");
    EXPECT_TRUE(r.Puhelussa);
    EXPECT_EQ(t.Tapahtumat().back(), "VIESTI|0|Sinulla on jo 3 sopimusta. Peru yksi sopimuksista, tai odota viimeisen "
                                     "sopimuksen loppumista.|vastattu");
    const Single raha = t.m.Raha;
    HylkääTarjous(t.peli);
    EXPECT_FALSE(r.Puhelussa);
    EXPECT_EQ(std::tuple(t.peli.näkymä.Sopimuksia, t.m.Raha), std::tuple(std::vector<std::string>{"Muna"}, raha));
    EXPECT_TRUE(SuljeSopimukset(t.peli));
}

TEST(Contracts, CancellingAsksAndPaysThePenaltyFromCashAlone) {
    const std::string KYSYMYS = "Olet perumassa Maito-sopimusta. Tämä tarkoittaa sitä, että sinun on maksettava "
                                "rikkomissakkoa  1200. Oletko varma sopimuksen perumisesta ?";
    for (const char* vastaus : {"Kyllä", "Ei"}) {
        Sopimuksissa t;
        const bool kyllä = std::string(vastaus) == "Kyllä";
        t.m.Raha = 1000;
        t.m.Sopimustulot = 50;
        t.m.Sop[2] = Sopimus{"Maito", 450, 900, 1200, 6};
        PeruSopimus(t.peli);  // nothing chosen: nothing happens
        ValitsePeruttava(t.peli, 2);
        EXPECT_EQ(t.peli.sopimusruutu.Peruttava, "Maito");
        t.kanavat.vastaukset.push_back(vastaus);
        PeruSopimus(t.peli);
        EXPECT_EQ(std::tuple(t.Tapahtumat(), t.m.Raha, t.m.Sop[2].Tuote, t.m.Sop[2].Sakko, t.m.SopimuksiaEpä,
                             t.m.Sopimustulot),
                  std::tuple(Tapahtumat{"VIESTI|1|" + KYSYMYS + "|" + vastaus}, kyllä ? -200 : 1000,
                             kyllä ? "" : "Maito", kyllä ? 0 : 1200, kyllä ? 1 : 0, 50));
    }
}

TEST(Contracts, TheMonthDeliversBreaksAndFulfilsSlotOneFirst) {
    const std::string KUVA = "IKKUNA|Kuvat/sattumat/lakimies.jpg|";
    // varasto: of the first slot's product; raha: from 1000.
    struct Tapaus { const char* nimi; std::array<Sopimus, 3> paikat; float varasto; std::initializer_list<double> arvot;
        float varastoJälkeen; Single raha; Long tulot; std::array<Long, 3> kestot; Integer läpi, epä;
        Tapahtumat ilmoitukset; };
    const Tapaus tapaukset[] = {
        {"exactly the amount", {Sopimus{"Maito", 450, 900, 1200, 6}}, 450, {}, 0, 1900, 900, {5, 0, 0}, 0, 0, {}},
        {"slot 1 first, slot 2 passed, slot 3 short",
         {Sopimus{"Maito", 60, 100, 400, 3}, Sopimus{}, Sopimus{"Maito", 60, 100, 400, 3}}, 100, {U(0, 4, 1)}, 40,
         1000 + 100 - 400, 100 - 400, {2, 0, 0}, 0, 1,
         {KUVA + "Epäonnistuit Maito-sopimuksen noudattamisessa. Jouduit maksamaan rikkomissakkoa  400"}},
        {"broken in the last month: penalty, no bonus", {Sopimus{"Muna", 100, 300, 1000, 0}}, 99, {U(0, 4, 0)}, 99, 0,
         -1000, {0, 0, 0}, 0, 1,
         {KUVA + "Sopimuksesti peruuntui, koska tuotteesi Kananmuna ei riittänyt rajaan asti. Sopimussakko on  1000"}},
        {"fulfilled: the last pay and the bonus", {Sopimus{"Muna", 100, 300, 1001, 0}}, 100, {U(0, 4, 0)}, 0,
         1000 + 300 + 700, 1000, {0, 0, 0}, 1, 0,
         {KUVA + "Muna sopimuksesti päättyi onnistuneesti. Keräsit itsellesi  700 bonuksen."}},
    };
    for (const Tapaus& c : tapaukset) {
        Sopimuksissa t;
        t.m.Raha = 1000;
        t.m.Sop = c.paikat;
        const Tuote tuote = TarjousNimellä(c.paikat[0].Tuote)->tuote;
        t.m.Var[tuote] = c.varasto;
        t.Arvot(c.arvot);
        SopimusKuukausi(t.peli);
        t.Käytetty(c.nimi);
        EXPECT_EQ(std::tuple(t.m.Var[tuote], t.m.Raha, t.m.Sopimustulot,
                             (std::array<Long, 3>{t.m.Sop[0].Kesto, t.m.Sop[1].Kesto, t.m.Sop[2].Kesto}),
                             t.m.SopimuksiaLäpi, t.m.SopimuksiaEpä, t.Tapahtumat()),
                  std::tuple(c.varastoJälkeen, c.raha, c.tulot, c.kestot, c.läpi, c.epä, c.ilmoitukset)) << c.nimi;
    }
}

TEST(Contracts, TheSlotViewWritesMonthsAsAYearAndTheRest) {
    for (auto [kesto, teksti] : std::initializer_list<std::pair<Long, const char*>>{
             {0, "0"}, {1, "1 kk"}, {11, "11 kk"}, {12, "1 v "}, {17, "1 v 5 kk"}})
        EXPECT_EQ(Kestoteksti(kesto), teksti);
    EXPECT_EQ(std::tuple(Kuukausiluku(900), Kuukausiluku(0), Bonus(1001)), std::tuple("900 /KK", "0", 700));
}

}  // namespace
}  // namespace tanhua
