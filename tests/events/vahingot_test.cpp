// Activists, lawsuits, the bookkeeper, disease, accidents, the hunter, storm, breakdown, escape, spoilage,
// gifts, theft and fire: gates on both sides, draws in order, effects and texts.
#include "buildings/tarvikkeet.h"
#include "tapahtumapeli.h"

namespace tanhua {
namespace {

using testi::A;
using testi::Sattuma;
using testi::T;

TEST(Activists, KindsInOrderAndAnEmptyRaidIsStillTold) {
    const std::string TEKSTI = "Eläinaktivistit iskivät tilallesi ja vapauttivat osan eläimistäsi luontoon! ";
    {  // No animals: nothing drawn.
        Sattuma t;
        EXPECT_FALSE(t.Pelaa(23, {}));
    }
    {  // Only sheep: told, nothing lost, an insured farmer is paid 0.
        Sattuma t;
        t.m.El[Lammas][Naaras] = 10;
        t.Vakuuta(VakuutusVarkaus);
        EXPECT_EQ(t.Pelaa(23, {0.5}), T("Aktivistit iskivät tilallesi!", "aktivisti.jpg",
                                         TEKSTI + "vakuutus korvasi eläimistä  0", "Kolina"));
    }
    {  // Two foxes are not above 2; 9 hens lose D(3) + 1 = 3, claim 275 x 3 + 100.
        Sattuma t;
        t.m.El[Kettu][Naaras] = 2;
        t.m.El[Kana][Naaras] = 9;
        t.Vakuuta(VakuutusVarkaus);
        const auto tulos = t.Pelaa(23, {0.5, 0.9, 0.5});
        ASSERT_TRUE(tulos);
        EXPECT_EQ(std::tuple(tulos->teksti, t.m.El[Kana][Naaras], t.m.El[Kettu][Naaras]),
                  std::tuple(TEKSTI + "vakuutus korvasi eläimistä  925", 6, 2));
    }
}

TEST(Lawsuits, FloorOrRoundAsEachRowSays) {
    struct Tapaus { int numero; float raha; std::initializer_list<double> arvot; Single S; std::string loppu; };
    for (const Tapaus& c : {
             // A tenth of 10035 is 1003.5, rounded to even 1004; half of it is 502.
             Tapaus{24, 10035, {0.5}, 1602, "Jouduit korvaamaan :  1602"},
             // 1003 x 0.5 + 2000 = 2501.5: 26 rounds it to even, 27 cuts it down.
             Tapaus{26, 10030, {0.5}, 3002, "jouduit korvaamaan oikeudessa : 3002"},
             Tapaus{27, 10030, {0.5}, 3001, "henkisistä kärsimyksistä : 3001"},
             Tapaus{28, 100001, {0.5}, 10501, "Jouduit maksamaan mätkyjä : 10501"},
             Tapaus{28, 100000, {}, 0, ""},
         }) {
        Sattuma t;
        t.m.Raha = c.raha;
        t.m.Työ[Vahtikoira] = 1;
        t.m.Metsä = 1;
        t.m.Työ[Metsuri] = 1;
        t.m.Var[Lanta] = 1;
        t.m.El[Sika][Naaras] = 1;
        t.m.Hygienia = 59;
        const auto tulos = t.Pelaa(c.numero, c.arvot);
        EXPECT_EQ(t.m.Raha, c.raha - c.S) << c.numero;
        if (c.loppu.empty()) {
            EXPECT_FALSE(tulos);
            continue;
        }
        ASSERT_TRUE(tulos);
        EXPECT_TRUE(tulos->teksti.ends_with(c.loppu)) << tulos->teksti;
        EXPECT_EQ(std::tuple(tulos->kuva, tulos->ääni), std::tuple("tuomari.jpg", "Koputus"));
    }
}

TEST(Lawsuits, EscapedFoxesMayLeaveOneMore) {
    Sattuma t;
    t.m.El[Kettu][Naaras] = 3;
    EXPECT_EQ(t.Pelaa(25, {0.5, 0.1}),
              T("Kettujasi oli päässyt vapaaksi!", "tuomari.jpg",
                "Kettujasi oli päässyt vapaaksi, koska sinulla ei ole nahkuria vahtimassa kettujasi. Ketut tuhosivat "
                "naapurisi omaisuutta. Jouduit korvaamaan :  1100",
                "Koputus"));
    EXPECT_EQ(t.m.El[Kettu][Naaras], 4);
    EXPECT_EQ(t.m.Raha, -1100) << "a fine may take the cash below zero";
}

TEST(Bookkeeper, EventsWithAndWithoutOne) {
    struct Tapaus { int numero; Long kirjanpitäjiä; float raha; std::initializer_list<double> arvot; std::string teksti; Long siivoojia; };
    for (const Tapaus& c : {
             Tapaus{34, 1, 20000, {}, "", 2},
             Tapaus{35, 1, 19999, {0.5},
                    "Olit maksanut liikaa veroja viime vuonna. Kirjanpitäjäsi korjasi virheen ja sait  1001 "
                    "veronpalautuksissa.", 2},
             Tapaus{29, 0, 0, {}, "", 2},  // no baker to quit
             Tapaus{31, 0, 0, {0.5}, "Siivoojasi jätti lakimiehellesi  1000 korvaukset ja otti lopputilin työpaikastasi", 1},
             Tapaus{31, 1, 0, {}, "", 2},
         }) {
        Sattuma t;
        t.m.Työ[Kirjanpitäjä] = c.kirjanpitäjiä;
        t.m.Työ[Siivooja] = 2;
        t.m.Raha = c.raha;
        const auto tulos = t.Pelaa(c.numero, c.arvot);
        EXPECT_EQ(tulos ? tulos->teksti : "", c.teksti) << c.numero;
        if (tulos) {
            EXPECT_EQ(tulos->kuva, "lakimies.jpg");
        }
        EXPECT_EQ(t.m.Raha, c.raha + (c.numero == 35 ? 1001 : c.numero == 31 && tulos ? -1000 : 0));
        EXPECT_EQ(t.m.Työ[Siivooja], c.siivoojia);
    }
}

TEST(Disease, HygieneGateTheAdultCounterAndAWholeClaim) {
    {  // Hygiene 50: no draw at all.
        Sattuma t;
        t.m.Hygienia = 50;
        t.m.El[Kana][Naaras] = 10;
        EXPECT_FALSE(t.Pelaa(38, {}));
    }
    {  // The family draw passes, but one sow is not above 1.
        Sattuma t;
        t.m.Hygienia = 45;
        t.m.El[Sika][Naaras] = 1;
        EXPECT_FALSE(t.Pelaa(40, {0.2}));
    }
    Sattuma t;
    t.m.Hygienia = 10;
    t.m.El[Nauta][Naaras] = 10;
    t.Vakuuta(VakuutusEläin);
    EXPECT_EQ(t.Pelaa(42, {0.9, 0.5, 0.5, 0.6}),
              T("Tilallasi on esiintynyt Lehmillä tautia! Lehmiä menehtyi tautiin.", "Tauti.jpg",
                "Lehmilläsi epäiltiin olevan BSE tartunta ja osa niistä päätyi teurastamolle.Vakuutuksesi korvasi  7000",
                "Kärpänen"));
    EXPECT_EQ(std::tuple(t.m.El[Nauta][Naaras], t.m.Raha), std::tuple(8, 7000));
}

TEST(Accident, VictimRowsWinterAndTheCost) {
    struct Tapaus { std::string vuodenaika; bool vakuutettu; std::vector<Työläinen> työt; int lisäpalkka;
        std::initializer_list<double> arvot; std::optional<SattumanTulos> tulos; float raha; };
    const std::string MAKSU = "Työtapaturma, jouduit korvaamaan  1100";
    for (const Tapaus& c : {
             Tapaus{"Kesä", false, {}, 0, {A(0, 9), 0.5, A(4, 15)}, std::nullopt, 10000},
             // Both of number 15 are hurt: the cost falls twice and the beekeeper's word stands.
             Tapaus{"Kesä", false, {Viinimestari, Mehiläishoitaja}, 0, {A(2, 9), 0.5, A(14, 15), 0.3, 0.3},
                    T(MAKSU, "tapaturma.jpg", "Mehiläishoitaja teloi itsensä töissä vakavasti, jouduit korvaamaan sairaalamaksuja  1100", "Sairas"),
                    7800},
             // In winter the beekeeper is away and takes no draw.
             Tapaus{"Talvi", false, {Viinimestari, Mehiläishoitaja}, 0, {A(2, 9), 0.5, A(14, 15), 0.3},
                    T(MAKSU, "tapaturma.jpg", "Viinimestari teloi itsensä töissä vakavasti, jouduit korvaamaan sairaalamaksuja  1100", "Sairas"),
                    8900},
             Tapaus{"Kesä", true, {Nahkuri}, 0, {A(0, 9), 0.5, A(0, 15), 0.99},
                    T("Työtapaturma, vakuutus korvasi sairaalakulut.", "tapaturma.jpg",
                      "Nahkuri oli loukannut työpaikalla itsensä, vakuutus korvasi tapaturman.", "Sairas"),
                    10000},
             // A baker paid 3,000 over the base wage has motivation 3: D(3) = 1 misses him.
             Tapaus{"Kesä", false, {Leipuri}, 3000, {A(0, 9), 0.5, A(2, 15), 0.4}, std::nullopt, 10000},
         }) {
        Sattuma t;
        t.m.Raha = 10000;
        t.m.Vuodenaika = c.vuodenaika;
        if (c.vakuutettu) t.Vakuuta(VakuutusTyö);
        for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) t.m.Palkka[k] = t.m.PerusPalkka[k];
        for (Työläinen k : c.työt) {
            t.m.Työ[k] = 1;
            t.m.Palkka[k] = static_cast<Integer>(t.m.PerusPalkka[k] + c.lisäpalkka);
        }
        EXPECT_EQ(t.Pelaa(47, c.arvot), c.tulos);
        EXPECT_EQ(t.m.Raha, c.raha);
    }
}

TEST(Hunter, TargetGateAndTheShot) {
    Sattuma t;
    t.m.El[Nauta][Naaras] = 12;
    EXPECT_FALSE(t.Pelaa(52, {A(0, 5), A(1, 2)})) << "no mares to shoot";
    EXPECT_EQ(t.Pelaa(52, {A(3, 5), A(0, 2), 0.9}),
              T("Metsästäjä ampui eläimiäsi", "Metsästäjä.jpg", "Liipasinherkkä metsästäjä ampui lehmiäsi luullen niitä hirviksi"));
    EXPECT_EQ(t.m.El[Nauta][Naaras], 10) << "12 \\ 5 = 2: D(2) + 1 shot";
}

TEST(Storm, WeatherGateSizesNegativeDrawsAndWhatTheWindLeaves) {
    {
        Sattuma t;
        t.peli.näkymä.SääKuva = 7;
        EXPECT_FALSE(t.Pelaa(53, {}));
    }
    {  // Silo and store of exactly 100 are skipped; the barn loses D(12.5) + 1 = 7.
        Sattuma t;
        t.peli.näkymä.SääKuva = 8;
        t.m.Koko_Siilo = 100;
        t.m.Koko_Varasto = 100;
        t.m.Koko_Navetta = 50;
        t.m.Var[Rehu] = 150;
        t.m.Var[Marja] = 5;
        t.Vakuuta(VakuutusPalo);
        EXPECT_EQ(t.Pelaa(53, {0.1, 0.5, 0.5, 0.1}),
                  T("Myrsky teki tuhoja tilallasi!", "myrsky.jpg",
                    "Myrsky teki tilallasi suuria tuhoja.Vakuutus korvasi sinulle  11300"));
        EXPECT_EQ(std::tuple(t.m.Koko_Navetta, t.m.Var[Rehu], t.m.Var[Marja], t.m.Raha), std::tuple(43.f, 50.f, 2.f, 11300.f));
    }
    {  // Hail on a silo of 120 with k = 2: D(-1.6) floors to -2, L = -50 counts as 0; the claim is 500 + 800.
        Sattuma t;
        t.peli.näkymä.SääKuva = 9;
        t.m.Koko_Siilo = 120;
        t.m.Koko_Varasto = 0;
        t.m.Koko_Navetta = 40;
        t.Vakuuta(VakuutusPalo);
        const auto tulos = t.Pelaa(53, {0.9, 0.9, 0.3, 0, 0, 0, A(1, 5)});
        ASSERT_TRUE(tulos);
        EXPECT_EQ(tulos->teksti, "Raivoisa myrsky repi tilasi riekaleiksi.Vakuutus korvasi sinulle  1300");
        EXPECT_EQ(std::tuple(t.m.Koko_Siilo, t.m.Koko_Navetta), std::tuple(120.f, 39.f));
    }
}

TEST(Breakdown, ShopItemsLeaveAndMachinesStay) {
    Sattuma t;
    EXPECT_FALSE(t.Pelaa(54, {})) << "nothing owned";
    t.m.Tarv[Lypsykone] = true;
    t.m.Tarv[Traktori] = true;
    RakennaTarvikelistat(t.peli);  // owned in catalogue order: the milking machine, the tractor
    t.Vakuuta(VakuutusTarvike);
    EXPECT_EQ(t.Pelaa(54, {0.6, 0.5, A(0, 5)}),
              T("Tarvikkeesi hajosi!", "korjaaja.jpg",
                "Traktori oli tullut tiensä päähän ja hajosi korjauskelvottomaksi.Vakuutus korvasi sinulle  3500"));
    EXPECT_TRUE(t.m.Tarv[Traktori]);
    t.m.Pankki.Vakuutus = {};
    EXPECT_EQ(t.Pelaa(54, {0.1, A(3, 5)}),
              T("Tarvikkeesi hajosi!", "korjaaja.jpg",
                "Syystä tai toisesta Lypsykone meni rikki, eikä sitä saa enään kuntoon."));
    EXPECT_FALSE(t.m.Tarv[Lypsykone]);
    EXPECT_EQ(t.peli.tarvikeruutu.Tavarat, (std::vector<TarvikeRivinro>{static_cast<TarvikeRivinro>(Traktori)}));
    EXPECT_EQ(t.peli.tarvikeruutu.kauppa[Lisälaitteet].back(), static_cast<TarvikeRivinro>(Lypsykone));
    EXPECT_EQ(t.m.Raha, 3500);
}

TEST(Escape, GateFineAndLostAnimals) {
    {
        Sattuma t;
        t.m.Laidun = 1;
        t.m.Vuodenaika = "Talvi";
        EXPECT_FALSE(t.Pelaa(55, {}));
        t.m.Vuodenaika = "Kesä";
        EXPECT_FALSE(t.Pelaa(55, {0.6})) << "without the herder D(2) must be 0";
    }
    {  // With the herder D(6) = 0; P = Round(101 x 0.5) = 50, the tie to even, is paid.
        Sattuma t;
        t.m.Laidun = 1;
        t.m.Tarv[Paimenpoika] = true;
        t.m.Raha = 1010;
        EXPECT_EQ(t.Pelaa(55, {0.1, 0.5, A(0, 4), A(1, 3)}),
                  T("Eläimiä karkasi laitumeltasi!", "pako.jpg",
                    "Osa eläimistäsi oli karannut laitumelta.Jouduit maksamaan sakkoja huolimattomuudestasi  50"));
        EXPECT_EQ(t.m.Raha, 960);
    }
    // Lost animals: P is drawn all the same; only adults above 5 run, foxes never.
    Sattuma t;
    t.m.Laidun = 1;
    t.m.Raha = 1000;
    t.m.El[Kana][Naaras] = 6;
    t.m.El[Kana][Uros] = 5;
    t.m.El[Kettu][Naaras] = 10;
    t.m.El[Hevonen][Naaras] = 7;
    EXPECT_EQ(t.Pelaa(55, {0.1, 0.5, A(2, 4), A(0, 3), 0.5, 0.9}),
              T("Eläimiä karkasi laitumeltasi!", "pako.jpg",
                "Eläimiäsi oli karannut laitumelta.Eläimiäsi ei löydetty etsinnöistä huolimatta."));
    EXPECT_EQ(std::tuple(t.m.El[Kana][Naaras], t.m.El[Kana][Uros], t.m.El[Kettu][Naaras], t.m.El[Hevonen][Naaras], t.m.Raha),
              std::tuple(4, 5, 10, 3, 1000.f));
}

const std::string MUNAT = "Varastosi on niin likainen, että kananmunasi pilaantuivat. Kannattaisi palkata enemmän siivoojia.";

TEST(Spoilage, HygieneTensGateAndAnEmptyStockTellsNothing) {
    struct Tapaus { Integer hygienia; Single munia; std::initializer_list<double> arvot; bool kerrotaan; };
    // At hygiene 5 the tens are 0 and D(0) is 0: certain. At 100 one chance in ten, 0.1 just misses.
    for (const Tapaus& c : {Tapaus{5, 10, {0.99, A(0, 9)}, true}, Tapaus{100, 10, {0.05, A(0, 9)}, true},
                            Tapaus{100, 10, {0.1}, false}, Tapaus{5, 0, {0.5, A(0, 9)}, false}}) {
        Sattuma t;
        t.m.Hygienia = c.hygienia;
        t.m.Var[Muna] = c.munia;
        const auto tulos = t.Pelaa(3, c.arvot);
        if (c.kerrotaan) EXPECT_EQ(tulos, T("Kananmunasi pilaantuivat!", "pilaantunut.jpg", MUNAT));
        else EXPECT_FALSE(tulos);
        EXPECT_EQ(t.m.Var[Muna], c.kerrotaan ? 0 : c.munia);
    }
}

TEST(Gifts, TheSumOfDepositAndCashGatesAndAnimalsNeedRoom) {
    struct Tapaus { int numero; float tili; float raha; float navetta; std::initializer_list<double> arvot;
        std::optional<SattumanTulos> tulos; Long kanoja; Single lihaa; };
    const std::string KANAT = "Tuttavasi antoi sinulle kanoja.";
    const std::string LIHA = "Mummosi oli käynyt hirvimetsällä ja antoi sinulle lihaa";
    for (const Tapaus& c : {
             Tapaus{9, 99999, 1, 100, {}, std::nullopt, 0, 0},
             // Short of cash: one hen more, so n = 2 against 3 free places passes and 2 doesn't.
             Tapaus{15, 0, 500, 3, {0.2, A(11, 12), A(0, 3)}, T(KANAT, "suku.jpg", KANAT), 2, 0},
             Tapaus{15, 0, 500, 2, {0.2, A(11, 12), A(0, 3)}, std::nullopt, 0, 0},
             Tapaus{16, 0, 5000, 1, {0.2, A(0, 12)}, std::nullopt, 0, 0},
             // The hunter's picture still takes the picture's draw.
             Tapaus{10, 0, 5000, 1, {0.9, A(0, 12), A(9, 20)}, T(LIHA, "Metsästäjä.jpg", LIHA), 0, 10},
         }) {
        Sattuma t;
        t.m.Tili = c.tili;
        t.m.Raha = c.raha;
        t.m.Koko_Navetta = c.navetta;
        EXPECT_EQ(t.Pelaa(c.numero, c.arvot), c.tulos) << c.numero;
        EXPECT_EQ(std::tuple(t.m.El[Kana][Naaras], t.m.Var[Liha]), std::tuple(c.kanoja, c.lihaa));
    }
}

TEST(Theft, NestedRoundsClothesLeaveAndTheClaimIsTold) {
    Sattuma t;
    t.m.Raha = 10002.5f;  // a fifth is 2000.5: rounded to even 2000, so 0.75 of it is 1500
    t.m.Var[Vaate] = 10;
    t.m.PerusHinta[Vaate] = 20;
    t.Vakuuta(VakuutusVarkaus);
    const auto tulos = t.Pelaa(19, {0.5, 0.75, 0.5, 0.35, 0.6});
    // Claim: D(1501 x 1.5) = 1125, and 3 clothes at 1.3 x 20.
    EXPECT_EQ(tulos, T("Sinulla oli käynyt yöllä varkaita!!", "varkaita2.jpg",
                       "Sinulla oli käynyt yönaikana varkaita.vakuutus korvasi sinulle  1203", "Kolina"));
    EXPECT_EQ(std::tuple(t.m.Raha, t.m.Var[Vaate]), std::tuple(10002.5f - 1501 + 1203, 7));
}

TEST(Theft, GateNeedsCashAboveEightThousandThenTheWatchDraw) {
    struct Tapaus { float raha; Long koiria; bool hälytin; std::initializer_list<double> arvot; };
    // Cash is tested before anything is drawn; one dog and the alarm make D(6) + 1 at most 2.
    for (const Tapaus& c : {Tapaus{8000, 0, false, {}}, Tapaus{20000, 1, true, {0.34}}, Tapaus{20000, 0, false, {0.67}}}) {
        Sattuma t;
        t.m.Raha = c.raha;
        t.m.Työ[Vahtikoira] = c.koiria;
        t.m.Tarv[Varashälytin] = c.hälytin;
        EXPECT_FALSE(t.Pelaa(19, c.arvot));
        EXPECT_EQ(t.m.Raha, c.raha);
    }
    // A claim too large for a whole number is an overflow, not a wrong sum.
    Sattuma t;
    t.m.Raha = 3e38f;
    for (double a : {0.1, 0.5, 0.5}) t.peli.arvonta.Jonoon(a);
    try {
        PelaaSattuma(t.peli, 19, LaskeLaskurit(t.peli));
        ADD_FAILURE() << "no overflow";
    } catch (const Vika& v) {
        EXPECT_EQ(v.Numero(), VIKA_YLIVUOTO);
    }
}

TEST(Fire, AlarmPlaceSizeGateCapsAndTheFeedRule) {
    struct Tapaus { bool hälytin; float navetta, siilo, varasto, rehu, maito; std::initializer_list<double> arvot;
        std::optional<SattumanTulos> tulos; float navettaJälkeen, siiloJälkeen, varastoJälkeen, rehuJälkeen, maitoJälkeen;
    };
    const std::string NAVETTA = "Navetassasi oli ollut tulipalo, jonka palomiehet kuitenkin saivat sammutettua.";
    const std::string SIILO = "Siilosi syttyi tuleen, mutta ei vaurioitunut kokonaan.";
    const std::string VARASTO = "Varastossasi oli tulipalo. Osa varastosta vaurioitui pahasti.";
    for (const Tapaus& c : {
             Tapaus{true, 1000, 1000, 1000, 0, 0, {0.34}, std::nullopt, 1000, 1000, 1000, 0, 0},
             Tapaus{false, 9, 1000, 1000, 0, 0, {A(0, 3), 0.1}, std::nullopt, 9, 1000, 1000, 0, 0},
             // D(250) + 1 = 126 is capped at 100 places: 0.1 x 3000 x 100 + 1000.
             Tapaus{false, 1000, 0, 0, 0, 0, {A(0, 3), 0.7, 0.5, 0.1},
                    T("Sinulla oli syttynyt tulipalo navetassasi!", "tulipalo2.jpg", NAVETTA, "Tuli"), 900, 0, 0, 0, 0},
             // With the alarm: L = 50 x (D(5) + 1) = 150; the feed halves to 300, still above the silo's 250,
             // so it is half the silo.
             Tapaus{true, 0, 400, 0, 601, 0, {0.1, A(1, 3), 0.7, 0.5, 0.25},
                    T("Siilossasi oli tulipalo!", "tulipalo.jpg", SIILO, "Tuli"), 0, 250, 0, 125, 0},
             // D(38) + 1 = 38 fifties is capped at 1,000; every stock but the feed halves.
             Tapaus{false, 0, 0, 2000, 11, 5, {A(2, 3), 0.7, 0.99, 0.5},
                    T("Varastosi oli syttynyt tuleen!", "tulipalo.jpg", VARASTO, "Tuli"), 0, 0, 1000, 11, 2},
         }) {
        Sattuma t;
        t.m.Tarv[Palohälytin] = c.hälytin;
        t.m.Koko_Navetta = c.navetta;
        t.m.Koko_Siilo = c.siilo;
        t.m.Koko_Varasto = c.varasto;
        t.m.Var[Rehu] = c.rehu;
        t.m.Var[Maito] = c.maito;
        EXPECT_EQ(t.Pelaa(20, c.arvot), c.tulos);
        EXPECT_EQ(std::tuple(t.m.Koko_Navetta, t.m.Koko_Siilo, t.m.Koko_Varasto, t.m.Var[Rehu], t.m.Var[Maito]),
                  std::tuple(c.navettaJälkeen, c.siiloJälkeen, c.varastoJälkeen, c.rehuJälkeen, c.maitoJälkeen));
    }
}

}  // namespace
}  // namespace tanhua
