// Spoilage, gifts, theft and fire: gates on both sides, draws in order, effects and texts.
#include "tapahtumapeli.h"

namespace tanhua {
namespace {

using testi::A;
using testi::Sattuma;
using testi::T;

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
