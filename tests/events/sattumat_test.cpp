// The day's head of the events (wage-talk test, one day in 29, the number), the hand-over to the
// channels, and the caller's demand for protection money.
#include "tapahtumapeli.h"

namespace tanhua {
namespace {

using testi::A;
using testi::Sattuma;
using testi::T;

// Runs the day's step from the given draws; all of them must be taken.
void Aja(Sattuma& t, const std::vector<double>& arvot) {
    for (double a : arvot) t.peli.arvonta.Jonoon(a);
    t.otettu = 0;
    Sattumat(t.peli);
    EXPECT_EQ(t.otettu, arvot.size());
}

TEST(Events, WageTalkTestDayDrawAndTheEvent) {
    struct Tapaus { int moti; std::initializer_list<double> arvot; bool palkat; Tapahtumat tapahtumat; };
    const Tapahtumat PALKINTO{"LISTA|Tilan hygienia huippuluokkaa",
                              "IKKUNA|Kuvat/sattumat/lakimies.jpg|Terveysviranomaiset kävivät tilallasi ja kehuivat tilasi "
                              "hygienian taivaisiin! Sait lisätukea : 2500"};
    for (const Tapaus& c : {
             // A baker paid 2,000 under the base wage: -2 + D(15) = 4 is below 3, so the wages are worked out.
             Tapaus{-2, {A(4, 15), A(1, 29)}, true, {}},
             Tapaus{-2, {A(5, 15), A(1, 29)}, false, {}},
             // The wine master's motivation doesn't count.
             Tapaus{0, {A(3, 15), A(1, 29)}, false, {}},
             // An empty number: three draws and nothing told.
             Tapaus{0, {A(3, 15), A(0, 29), A(20, 60)}, false, {}},
             Tapaus{0, {A(3, 15), A(0, 29), A(42, 60), 0.5}, false, PALKINTO},
         }) {
        Sattuma t;
        t.m.Työ[Leipuri] = 1;
        t.m.Työ[Siivooja] = 1;
        t.m.Hygienia = 95;
        t.m.Raha = 100;
        for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) t.m.Palkka[k] = t.m.PerusPalkka[k];
        t.m.Palkka[Leipuri] = static_cast<Integer>(t.m.PerusPalkka[Leipuri] + 1000 * c.moti);
        t.m.Palkka[Viinimestari] = static_cast<Integer>(t.m.PerusPalkka[Viinimestari] - 5000);
        t.m.PalkatYhteensä = 0;
        t.peli.näkymä.IkkunaKuva = "Kuvat/sattumat/joulu.jpg";
        std::vector<double> arvot(c.arvot);
        // A day whose talks run takes the round's 39 draws after the test; none opens a talk (d is N).
        if (c.palkat) arvot.insert(arvot.begin() + 1, 39, .99);
        Aja(t, arvot);
        EXPECT_EQ(std::tuple(t.m.PalkatYhteensä != 0, t.Tapahtumat()), std::tuple(c.palkat, c.tapahtumat));
        // The picture is cleared once the day's draw hits, told or not.
        const std::string kuva = !c.tapahtumat.empty() ? "Kuvat/sattumat/lakimies.jpg"
                                 : c.arvot.size() > 2  ? ""
                                                       : "Kuvat/sattumat/joulu.jpg";
        EXPECT_EQ(t.peli.näkymä.IkkunaKuva, kuva);
    }
}

TEST(Events, ALineThenTheWindowThenTheSound) {
    Sattuma t;
    t.m.Raha = 20000;
    KerroSattuma(t.peli, T("rivi", "varkaita.jpg", "teksti", "Kolina"));
    EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"LISTA|rivi", "IKKUNA|Kuvat/sattumat/varkaita.jpg|teksti", "ÄÄNI|Kolina"}));
    EXPECT_TRUE(t.peli.näkymä.ListaNäkyvissä);
    EXPECT_TRUE(t.peli.näkymä.IkkunaNäkyvissä);
}

// A farm the caller calls on: every gate one above its bound.
struct Soitto : Sattuma {
    Soitto() {
        m.Raha = 20010;
        m.Koko_Navetta = 16;
        m.Koko_Siilo = 201;
        m.Koko_Varasto = 201;
    }
};

TEST(ProtectionMoney, StrictGates) {
    for (int i = 0; i < 4; ++i) {
        Soitto t;
        (i == 0 ? t.m.Raha : i == 1 ? t.m.Koko_Navetta : i == 2 ? t.m.Koko_Siilo : t.m.Koko_Varasto) =
            i == 0 ? 10000 : i == 1 ? 15 : 200;
        EXPECT_FALSE(t.Pelaa(51, {}));
        EXPECT_TRUE(t.Tapahtumat().empty());
    }
}

TEST(ProtectionMoney, TheAnswerDecides) {
    const std::string UHKAUS = "Maksa suojeluraha, niin navettasi ei syty niin herkästi tuleen";
    const std::string ALAMAAILMA = "IKKUNA|Kuvat/sattumat/alamaailma.jpg|" + UHKAUS;
    // The sum is Round(2001 x 0.5) + 500, the tie going to even; the answer's click takes the draw after it.
    const std::string KYSYMYS = "VIESTI|1|" + UHKAUS + "\\nMaksatko  1500 ?|";
    struct Tapaus { std::string vastaus; std::initializer_list<double> arvot; std::optional<SattumanTulos> tulos; float raha; };
    for (const Tapaus& c : {
             Tapaus{"Kyllä", {A(4, 6), 0.5, 0.1, A(1, 5)},
                    T("Maksoit suojelurahaa  1500", "alamaailma.jpg", "Loistavaa. Voit nukkua yösi jälleen turvallisesti."),
                    18510},
             Tapaus{"Ei", {A(4, 6), 0.5, 0.1, A(1, 3), A(4, 5)},
                    T("Kieltäydyit suojelurahasta.", "alamaailma.jpg", "Selvä. Nahkurin orsilla tavataan!"), 20010},
             // One refusal in three goes on at the fire: the barn of 16 loses D(4) + 1 = 3 places.
             Tapaus{"Ei", {A(4, 6), 0.5, 0.1, A(0, 3), A(0, 3), 0.2, 0.5, 0},
                    T("Sinulla oli syttynyt tulipalo navetassasi!", "tulipalo.jpg",
                      "Navetassasi oli ollut tulipalo, jonka palomiehet kuitenkin saivat sammutettua.", "Tuli"),
                    20010},
             Tapaus{"vastattu", {A(4, 6), 0.5, 0.1}, std::nullopt, 20010},
         }) {
        Soitto t;
        t.kanavat.vastaukset.push_back(c.vastaus);
        EXPECT_EQ(t.Pelaa(51, c.arvot), c.tulos) << c.vastaus;
        EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{ALAMAAILMA, KYSYMYS + c.vastaus}));
        EXPECT_EQ(t.m.Raha, c.raha);
    }
}

}  // namespace
}  // namespace tanhua
