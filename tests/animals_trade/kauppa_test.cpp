// The animal screen: the cards and the lot, buying, selling and slaughter by hand with their refusals, the
// limit fields, the pointer and Esc; the butcher's and the tanner's daily slaughter by the orders.
#include <gtest/gtest.h>

#include "animals/kauppa.h"
#include "core/päivä.h"
#include "core/kanavat.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

// A farm with sound effects on, a barn for 50 and a store for 1000.
struct Tila : Testipeli {
    Tila() {
        Aloita();
        peli.asetukset.Äänitehosteet = true;
        m.Koko_Navetta = 50;
        m.Koko_Varasto = 1000;
        m.Raha = 100000;
        m.Var.fill(0);
    }
    // Chooses the card, sets the lot and presses the button, with the click's draw given.
    void Paina(void (*painike)(Peli&), const char* kortti, Integer määrä) {
        ValitseEläin(peli, KorttiNimellä(kortti));
        while (peli.eläinruutu.määrä < määrä) määräplus(peli);
        Tapahtumat();
        peli.arvonta.Jonoon(0.5);  // klik2, when the press succeeds
        painike(peli);
    }
};

TEST(Buying, MoneyIsCheckedOnTheWholeLotAndTheShortfallIsToldUnnarrowed) {
    struct Tapaus { Single raha; Integer määrä; const char* viesti; };
    const Tapaus tapaukset[] = {
        {5000, 1, nullptr},  // exactly enough
        {4999.5f, 1, "Rahatilanteesi on  4999.5\\nEläin maksaa  5000\\nSinulta puuttuu  .5"},
        {49000, 10, "Rahatilanteesi on  49000\\nEläimet maksaa  50000\\nSinulta puuttuu  1000"},
        // 5000 less the Single 0.1 worked in double; a Single would print 4999.9.
        {0.1f, 1, "Rahatilanteesi on  .1\\nEläin maksaa  5000\\nSinulta puuttuu  4999.89999999851"},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Raha = c.raha;
        t.Paina(Osta, "Lehmä", c.määrä);
        EXPECT_EQ(t.m.Raha, c.viesti ? c.raha : 0);
        EXPECT_EQ(t.m.El[Nauta][Naaras], c.viesti ? 0 : c.määrä);
        const Tapahtumat odotetut =
            c.viesti ? Tapahtumat{"ÄÄNI|virhe", std::string("VIESTI|0|Rahasi eivät riitä!\\n\\n") + c.viesti + "|vastattu"}
                     : Tapahtumat{"ÄÄNI|klik2"};
        EXPECT_EQ(t.Tapahtumat(), odotetut) << c.raha;
    }
}

TEST(Buying, OnlyAdultsTakeRoomInTheBarn) {
    struct Tapaus { int aikuisia, nuoria; Integer määrä; bool ostetaan; };
    for (const Tapaus& c : {Tapaus{40, 30, 10, true}, {41, 0, 10, false}, {49, 5, 1, true}, {50, 0, 1, false}}) {
        Tila t;
        t.m.El[Lammas][Uros] = c.aikuisia;
        t.m.El[Kana][Poikanen] = c.nuoria;
        t.Paina(Osta, "Kana", c.määrä);
        EXPECT_EQ(t.m.El[Kana][Naaras], c.ostetaan ? c.määrä : 0) << c.aikuisia << " + " << c.määrä;
        if (!c.ostetaan) {
            EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"ÄÄNI|virhe", "VIESTI|0|Sinulla ei ole tilaa navetassasi.|vastattu"}));
        }
    }
}

TEST(Buying, PastAnOrdersLimitOpensItsPanelWithTheBoxMarkedUntilTheScreenIsLeft) {
    Tila t;
    t.m.Eläimet.Teuras = {1, 0, 0, 0, 1};
    t.m.Eläimet.TeurasRaja = {"5", "1", "0", "0", "0", "0", "0", "0", "0", "3"};
    t.m.El[Nauta][Naaras] = 4;
    const EläinRuutuTila& r = t.peli.eläinruutu;
    const std::uint32_t oma = TeuraslaatikonVäri(t.peli, 0);
    t.Paina(Osta, "Lehmä", 1);  // 5 cows: not above the limit
    EXPECT_FALSE(r.teurasAuki);
    t.Paina(Osta, "Lehmä", 1);  // 6 cows
    EXPECT_TRUE(r.teurasAuki && TeuraslaatikonVäri(t.peli, 0) == RGB(180, 100, 100));
    t.Paina(Osta, "Uros Kettu", 1);  // 1 male fox, limit 3
    EXPECT_FALSE(r.nylkyAuki);
    t.Paina(Osta, "Pässi", 10);  // sheep have no order on
    EXPECT_EQ(TeuraslaatikonVäri(t.peli, 1), oma);
    Takaisin(t.peli);
    EXPECT_FALSE(r.teurasAuki || TeuraslaatikonVäri(t.peli, 0) != oma);
}

TEST(SlaughterByHand, TheStoreMayFillExactlyAndTheExcessIsToldUnnarrowed) {
    // Twenty eggs weigh 10 beside the meat; feed is not in the store.
    struct Tapaus { const char* kortti; Integer määrä; Single liha; const char* viesti; };
    const Tapaus tapaukset[] = {
        {"Lehmä", 10, 90, nullptr},
        {"Lehmä", 10, 90.5f, "Varastossa tavaraa :  100.5Tilankäyttö ylittyy :  .5"},
        // The Single 90.1 worked in double; narrowed, the excess would print .0999985.
        {"Lehmä", 10, 90.1f, "Varastossa tavaraa :  100.1Tilankäyttö ylittyy :  .0999984741210938"},
        // No stallion to slaughter, but the 80 kg his card shows still count.
        {"Ori", 1, 911, "Varastossa tavaraa :  921Tilankäyttö ylittyy :  1"},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Var[Liha] = c.liha;
        t.m.Var[Muna] = 20;
        t.m.Var[Rehu] = 5000;
        t.m.El[Nauta][Naaras] = 10;
        t.Paina(Teurasta, c.kortti, c.määrä);
        EXPECT_EQ(t.m.El[Nauta][Naaras], c.viesti ? 10 : 0);
        const Tapahtumat odotetut =
            c.viesti ? Tapahtumat{"ÄÄNI|virhe", std::string("VIESTI|0|Sinulla ei ole tilaa varastossa.\\nVaraston koko :"
                                                            "  1000") + c.viesti + "|vastattu"}
                     : Tapahtumat{"ÄÄNI|klik2"};
        EXPECT_EQ(t.Tapahtumat(), odotetut) << c.liha;
        EXPECT_EQ(t.m.Var[Liha], c.viesti ? c.liha : 990);
    }
}

TEST(SlaughterByHand, MeatFursAndTheStaffsShare) {
    struct Tapaus { const char* kortti; Integer määrä; int teurastajia, nahkureita; Single liha, turkki, raha; const char* info; };
    const Tapaus tapaukset[] = {
        {"Lehmä", 10, 3, 0, 900 + 360, 0, 100000, nullptr},  // the number of butchers doesn't matter
        {"Kukko", 1, 1, 0, 12 + 5, 0, 100000, nullptr},       // 4.8 rounds up
        // A tanner's note replaces the card's info text.
        {"Uros Kettu", 1, 0, 2, 0, 2, 99500, "Nahkuri veloitti sinua nylkemisestä 500 / kettu"},
        {"Kettu", 10, 0, 1, 0, 20, 95000, "Nahkuri veloitti sinua nylkemisestä 500 / kettu"},
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        for (auto& laji : t.m.El) laji = {10, 0, 0, 10};
        t.m.Työ[Teurastaja] = c.teurastajia;
        t.m.Työ[Nahkuri] = c.nahkureita;
        t.Paina(Teurasta, c.kortti, c.määrä);
        EXPECT_EQ((std::array<double, 4>{t.m.Var[Liha], t.m.Var[Turkki], t.m.Raha, 1.0 * KortinPäät(t.m, KorttiNimellä(c.kortti))}),
                  (std::array<double, 4>{c.liha, c.turkki, c.raha, 10.0 - c.määrä})) << c.kortti;
        if (c.info) { EXPECT_EQ(t.peli.eläinruutu.info, c.info); }
        EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"ÄÄNI|klik2"}) << c.kortti;
    }
}

TEST(AnimalCards, ACardIsFoundByKeyOrTitleAndQuotesTheFarmsMeat) {
    // The hen's card quotes the farm's own meat figure, here changed to 11.
    Tila t;
    t.m.Lihaa[Kana][0] = 11;
    const int kortti = KorttiNimellä("KettuUros");
    EXPECT_EQ(std::tuple(KorttiNimellä("Uros Kettu"), KorttiNimellä("Hevonen")), std::tuple(kortti, -1));
    ValitseEläin(t.peli, KorttiNimellä("Kana"));
    const EläinRuutuTila& r = t.peli.eläinruutu;
    EXPECT_EQ((std::array<long, 3>{r.liha, r.yhtosto, r.yhtmyynti}), (std::array<long, 3>{11, 500, 300}));
    EXPECT_EQ(r.info, "Tuottaa munia noin 3 kpl/päivä, sivutuotteena vähän lantaa. Teurastaessa lihaa 11 kg. "
                      "Rehunkulutus vain puoli kiloa päivässä. Lisäntyminen todennäköistä. Jatkojalostaessa "
                      "leipomossa voi tuottaa leivoksia.");
}

TEST(AnimalCards, TheLotStepsBetweenOneTenAndHundred) {
    Tila t;
    ValitseEläin(t.peli, KorttiNimellä("Sonni"));
    EläinRuutuTila& r = t.peli.eläinruutu;
    struct Askel { void (*painike)(Peli&); int määrä; long yhtosto, yhtmyynti; };
    const Askel askeleet[] = {{määräplus, 10, 50000, 40000},   {määräplus, 100, 500000, 400000}, {määräplus, 100, 500000, 400000},
                              {määrämiinus, 10, 50000, 40000}, {määrämiinus, 1, 5000, 4000},     {määrämiinus, 1, 5000, 4000}};
    for (const Askel& a : askeleet) {
        a.painike(t.peli);
        EXPECT_EQ((std::array<long, 3>{r.määrä, r.yhtosto, r.yhtmyynti}), (std::array<long, 3>{a.määrä, a.yhtosto, a.yhtmyynti}));
    }
    // Choosing another card keeps the lot; every step and choice is a small move.
    määräplus(t.peli);
    ValitseEläin(t.peli, KorttiNimellä("Kana"));
    EXPECT_EQ(std::tuple(r.yhtosto, t.Tapahtumat()), std::tuple(5000, Tapahtumat(9, "ÄÄNI|siirto")));
}

TEST(SlaughterLimits, ANumberBecomesItsWholePartNotBelowZeroAndTheRestIsRefused) {
    // The field holds 5 before each text is typed; a refused text leaves it so.
    struct Tapaus { const char* kirjoitettu; const char* jää; };
    const Tapaus tapaukset[] = {
        {"12.7", "12"}, {"-3", "0"}, {"-0.5", "0"}, {" 40 ", "40"}, {"1e3", "1000"}, {"7,9", "7"},
        {"abc", "5"},   {"", "5"},   {"3abc", "5"}, {"1 2", "5"},   {"-", "5"},
    };
    const int raja = TeurasRajaNimellä("Sonni");
    ASSERT_EQ(raja, 1);
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Eläimet.TeurasRaja[1] = "5";
        t.Tapahtumat();
        const bool otettu = TeurasRajaMuuttui(t.peli, raja, c.kirjoitettu);
        EXPECT_EQ(t.m.Eläimet.TeurasRaja[1], c.jää) << c.kirjoitettu;
        const Tapahtumat odotetut =
            otettu ? Tapahtumat{} : Tapahtumat{"ÄÄNI|virhe", "VIESTI|0|Teurasrajan pitää olla luku.|vastattu"};
        EXPECT_EQ(std::tuple(otettu, t.Tapahtumat()), std::tuple(std::string(c.jää) != "5", odotetut)) << c.kirjoitettu;
    }
    EXPECT_EQ(std::tuple(TeurasRajaNimellä("TeurasKettuUrosRaja"), TeurasRajaNimellä("Ori")), std::tuple(9, -1));
}

TEST(AnimalScreen, HintsAndLabelsFollowThePointerAndEscHidesTheCardFirst) {
    Tila t;
    t.m.OhjeetPäällä = true;
    AvaaEläimet(t.peli);
    EläinRuutuTila& r = t.peli.eläinruutu;
    EXPECT_EQ(r.ohje, "Tervetuloa ostamaan eläimiä.");
    OsoitinEläinruudulla(t.peli, EläinKohde::Kuva, KorttiNimellä("Sonni"));  // the bull has a hint of his own
    EXPECT_EQ(r.aihe + "|" + r.ohje.substr(0, 30) + "|" + std::to_string(r.kohdistin),
              "Eläimet : Sonni|Sonni on kallis ostos ja sen t|1");
    OsoitinEläinruudulla(t.peli, EläinKohde::Laskuri, KorttiNimellä("KettuUros"));
    EXPECT_EQ(r.aihe, "Eläimet : Uros kettu");
    OsoitinEläinruudulla(t.peli, EläinKohde::Ruutu);
    EXPECT_EQ(r.aihe + std::to_string(r.kohdistin), "Eläimet :-1") << "the marker goes out of sight";
    ValitseEläin(t.peli, 0);
    EXPECT_FALSE(EläimetEsc(t.peli) || r.kortti >= 0) << "Esc hides the card first";
    EXPECT_TRUE(EläimetEsc(t.peli));
}

TEST(AutoSlaughter, TheButcherTakesUpToOneHeadMoreThanButchersOfEachKindADay) {
    struct Tapaus { int teurastajia; const char *lehmäRaja, *sonniRaja; Long lehmiä, sonneja, lehmiäJää, sonnejaJää; };
    const Tapaus tapaukset[] = {
        {1, "0", "0", 8, 3, 6, 1},     // a limit of 0 empties the herd two heads a day
        {1, "9", "1", 10, 2, 9, 1},    // down to the limit, not below
        {1, "10", "2", 10, 2, 10, 2},  // a limit equal to the count takes nothing
        {3, "0", "0", 6, 6, 2, 2},     // three butchers: four passes
        {0, "0", "0", 10, 2, 10, 2},   // no butcher
    };
    for (const Tapaus& c : tapaukset) {
        Tila t;
        t.m.Työ[Teurastaja] = c.teurastajia;
        t.m.Eläimet.Teuras = {1, 0, 0, 0, 0};
        t.m.Eläimet.TeurasRaja[0] = c.lehmäRaja;
        t.m.Eläimet.TeurasRaja[1] = c.sonniRaja;
        t.m.El[Nauta] = {c.lehmiä, 3, 3, c.sonneja};
        t.m.El[Sika] = {5, 0, 0, 5};  // no order for pigs
        AutoTeurastus(t.peli);
        // The young are never taken, nor pigs without their order.
        EXPECT_EQ(t.m.El[Nauta], (std::array<Long, 4>{c.lehmiäJää, 3, 3, c.sonnejaJää})) << c.teurastajia << " " << c.lehmäRaja;
        EXPECT_EQ(t.m.El[Sika][Naaras], 5);
        // No 40 percent here: the plain meat of each head.
        EXPECT_EQ(t.m.Var[Liha], (c.lehmiä - c.lehmiäJää) * 90 + (c.sonneja - c.sonnejaJää) * 140);
    }
}

TEST(AutoSlaughter, TheStoreIsTestedOnTheLoadAtTheStartOfTheRun) {
    struct Tapaus { Single koko; Single liha; bool teurastetaan; };
    // 1000.5 rounds to the even 1000, 1001.5 to 1002, 999.5 to 1000.
    for (const Tapaus& c : {Tapaus{1000, 1000.5f, true}, {1000, 1001.5f, false}, {999, 999.5f, false}}) {
        Tila t;
        t.m.Koko_Varasto = c.koko;
        t.m.Var[Liha] = c.liha;
        t.m.Työ[Teurastaja] = t.m.Työ[Nahkuri] = 1;
        t.m.Eläimet.Teuras = {1, 1, 0, 0, 1};
        t.m.El[Nauta][Naaras] = t.m.El[Lammas][Naaras] = t.m.El[Kettu][Naaras] = 3;
        AutoTeurastus(t.peli);
        // Heads taken don't count, so the run fills the store past its size; a store already over it stops
        // everything at the first head, the foxes too.
        for (Laji laji : {Nauta, Lammas, Kettu}) EXPECT_EQ(t.m.El[laji][Naaras], c.teurastetaan ? 1 : 3) << c.liha;
        EXPECT_EQ(t.m.Var[Liha], c.liha + (c.teurastetaan ? 2 * 90 + 2 * 40 : 0));
        EXPECT_EQ(t.Tapahtumat(), c.teurastetaan ? Tapahtumat{} : Tapahtumat{"LISTA|Varaston tilanpuute esti teurastuksen."});
    }
}

TEST(AutoSlaughter, AnOverflowShowsItsOwnBoxAndStopsUnlessThePlayerChoseToGoOn) {
    for (bool jatka : {false, true}) {
        Tila t;
        t.m.Var[Liha] = 3e9f;  // a load past the whole-number width
        t.m.Koko_Varasto = 1e10f;
        t.m.Työ[Teurastaja] = 1;
        t.m.Eläimet.Teuras = {1, 0, 0, 0, 0};
        t.m.El[Nauta][Naaras] = 5;
        t.m.VikaJatkuu = jatka;
        AutoTeurastus(t.peli);
        EXPECT_EQ(t.Tapahtumat(),
                  Tapahtumat{"LAATIKKO|Tanhua peli suoritti virhetilan, todennäköinen syy on että sinulla on "
                             "todella paljon tavaraa ja pelin muuttujat eivät ymmärrä noin suuria lukuja."});
        EXPECT_EQ(t.m.VikaPaikka, "Moduulissa. Automaatti teurastaessa.");
        EXPECT_EQ(t.m.El[Nauta][Naaras], jatka ? 3 : 5);
    }
}

TEST(AutoSlaughter, TheDayRunsItOnlyWithAButcherOrATanner) {
    for (int teurastajia : {0, 1}) {
        Tila t;
        t.m.Työ[Teurastaja] = teurastajia;
        t.m.Eläimet.Teuras = {0, 0, 1, 0, 0};
        t.m.El[Sika][Uros] = 3;
        t.m.Var[Rehu] = 500;
        t.m.Päivä = 1;
        SeuraavaPäivä(t.peli);
        EXPECT_EQ(t.m.El[Sika][Uros], teurastajia ? 1 : 3);
    }
}

}  // namespace
}  // namespace tanhua
