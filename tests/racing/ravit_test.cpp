// The race-betting screen: the names file, the draws of the races, marking, the stake, the tests of
// the coupon, the pools and the sheet.
#include <gtest/gtest.h>

#include "core/peli.h"
#include "racing/ravit.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

std::string Nimitiedosto(int nimiä) {
    std::string s = "Ravihevosten nimet\r\n";
    for (int i = 0; i < nimiä; ++i) s += "Heppa" + std::to_string(i) + "\r\n";
    return s;
}

// The coupon open on a farm, with sounds on to hear that the screen plays none.
struct Ravissa : Testipeli {
    Ravissa() {
        Aloita();
        peli.asetukset.Äänitehosteet = true;
        AvaaRavit(peli);
        LyöVetoa(peli);
        Tapahtumat();
    }
    RaviRuutuTila& r() { return peli.raviruutu; }
    void Jonoon(std::size_t n, double arvo) {
        for (std::size_t i = 0; i < n; ++i) peli.arvonta.Jonoon(arvo);
    }
};

constexpr std::size_t ARVONTOJA = 8 * 11 * 3;

TEST(Races, TheNamesFileGivesItsBoxesAndTheRacesTakeThreeDrawsAPlace) {
    const std::string EI = "LAATIKKO|Tanhua ei löytänyt /Data kansiosta tiedostoa nimeltä RaviHevoset. Jos et löydä "
                           "itsekkään sitä, tee kyseinen tiedosto ja lisää sinne hevosten nimiä riveittäin minimissään 8 kpl.";
    const std::string YLI = "LAATIKKO|Sinulla on ravihevos listalla yli 100 nimeä, niitä voi olla enintään 100 kpl.";
    struct Tapaus { int rivejä; Tapahtumat laatikot; int nimiMäärä; };  // rivejä -1: no file
    for (const Tapaus& c : {Tapaus{-1, {EI}, 0}, Tapaus{0, {EI}, 0}, Tapaus{1, {EI}, 0}, Tapaus{2, {}, 0},
                            Tapaus{8, {}, 6}, Tapaus{101, {}, 99}, Tapaus{102, {YLI}, 99}}) {
        Ravissa t;
        if (c.rivejä == 0) t.KirjoitaData("RaviHevoset.txt", "");
        if (c.rivejä > 0) t.KirjoitaData("RaviHevoset.txt", Nimitiedosto(c.rivejä - 1));
        const bool luetaan = c.laatikot != Tapahtumat{EI};
        if (luetaan) t.Jonoon(ARVONTOJA, 0.99);
        ValitseVetolaji(t.peli, vetolaji::V75);
        EXPECT_EQ(std::tuple(t.Tapahtumat(), t.peli.arvonta.JonossaJäljellä()), std::tuple(c.laatikot, 0u)) << c.rivejä;
        EXPECT_EQ(t.r().Vetolaji, luetaan ? "V75" : "Trio") << "a refusal changes nothing";
        if (!luetaan) continue;
        EXPECT_EQ(t.r().NimiMäärä, c.nimiMäärä) << c.rivejä;
        // D(NimiMäärä) never gives the last name, except with a single name.
        EXPECT_EQ(t.r().LähtöNimet[7][10], "Heppa" + std::to_string(std::max(c.nimiMäärä - 1, 0))) << c.rivejä;
        EXPECT_EQ(t.r().LähtöKertoimet[7][10], "3.80");
    }
}

TEST(Races, ANameOnTheRowsIsDrawnAgainUnlessNoOtherCanCome) {
    for (int näkyvissä : {1, 2}) {
        Ravissa t;
        t.KirjoitaData("RaviHevoset.txt", Nimitiedosto(3));  // D(2) gives Heppa0 or Heppa1
        t.r().RaviNimi[4] = "Heppa0";
        if (näkyvissä == 2) t.r().RaviNimi[9] = "Heppa1";
        // The first place draws Heppa0, on screen: once more for Heppa1 when it is free.
        t.peli.arvonta.Jonoon(0);
        if (näkyvissä == 1) t.peli.arvonta.Jonoon(0.5);
        t.Jonoon(2, 0);
        t.Jonoon(ARVONTOJA - 3, 0.5);
        ValitseVetolaji(t.peli, vetolaji::Trio);
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u) << näkyvissä;
        EXPECT_EQ(std::tuple(t.r().LähtöNimet[0][0], t.r().LähtöKertoimet[0][0], t.r().LähtöKertoimet[0][1]),
                  std::tuple(näkyvissä == 1 ? "Heppa1" : "Heppa0", "1.00", "2.40"));
    }
    EXPECT_EQ(std::tuple(Kerrointeksti(2, 8), Kerrointeksti(1, 1)), std::tuple("3.80", "2.10"));
}

TEST(Races, MarkingByKind) {
    Ravissa t;
    // Trio: the lowest free place, none when all three are taken; a filled box is emptied.
    struct Klikkaus { int rivi; const char* merkit; };
    for (const Klikkaus& k : {Klikkaus{2, "  1       "}, Klikkaus{5, "  1  2    "}, Klikkaus{2, "     2    "},
                              Klikkaus{7, "     2 1  "}, Klikkaus{8, "     2 13 "}, Klikkaus{9, "     2 13 "}}) {
        MerkitseHevonen(t.peli, k.rivi);
        std::string merkit;
        for (const std::string& m : t.r().Ruutu) merkit += m.empty() ? " " : m;
        EXPECT_EQ(merkit, k.merkit) << k.rivi;
    }
    EXPECT_TRUE(t.r().LähtöMerkit[0][7].empty()) << "Trio marks are not stored";
    // V75: one X, stored for the race on view; Kerroin does nothing outside "Voittajaveto".
    t.r().Vetolaji = vetolaji::V75;
    t.r().RiviNro = 3;
    MerkitseHevonen(t.peli, 6);
    ValitseKerroin(t.peli, 1);
    EXPECT_EQ(std::tuple(t.r().Ruutu[6], t.r().Ruutu[1], t.r().LähtöMerkit[3][6], t.r().LähtöMerkit[3][5]),
              std::tuple("X", "", "X", ""));
    t.r().Vetolaji = vetolaji::Voittajaveto;
    ValitseKerroin(t.peli, 1);
    EXPECT_EQ(t.r().Ruutu[1] + t.r().Ruutu[6], "X");
    EXPECT_EQ(t.r().LähtöMerkit[3][6], "X") << "Kerroin's mark is not stored";
    NäytäRivi(t.peli, 6);
    EXPECT_EQ(t.r().otsikko, " Rivi :  7");
    EXPECT_EQ(t.Tapahtumat(), Tapahtumat{}) << "the races play no sound";
}

TEST(Races, StakeStepsAndTheirFloorAndCeiling) {
    struct Tapaus { Long alku; bool ylös; int painalluksia; Long loppu; const char* laatikko; };
    for (const Tapaus& c : {Tapaus{0, true, 1, 10, " 10"}, Tapaus{0, true, 2, 110, " 110"},
                            Tapaus{0, true, 12, 10110, " 10110"}, Tapaus{10000, true, 1, 10000, "100"},
                            Tapaus{0, false, 1, 0, "100"}, Tapaus{110, false, 2, 10, " 10"},
                            Tapaus{100, false, 1, 99, " 99"}, Tapaus{12, false, 5, 10, " 10"}}) {
        Ravissa t;
        t.r().Panos = c.alku;
        for (int i = 0; i < c.painalluksia; ++i) c.ylös ? NostaPanosta(t.peli) : LaskePanosta(t.peli);
        EXPECT_EQ(std::tuple(t.r().Panos, t.r().Panosz), std::tuple(c.loppu, c.laatikko)) << c.alku << " " << c.ylös;
    }
}

TEST(Races, TheCouponsTestsRefuseWithTheirBoxes) {
    Ravissa t;
    t.KirjoitaData("RaviHevoset.txt", Nimitiedosto(20));
    t.Jonoon(ARVONTOJA, 0.3);
    ValitseVetolaji(t.peli, vetolaji::V75);
    for (int lähtö = 0; lähtö < 6; ++lähtö) {
        NäytäRivi(t.peli, lähtö);
        MerkitseHevonen(t.peli, 0);
    }
    HyväksyKuponki(t.peli);
    EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"LAATIKKO|V75 veikkauksessa sinulla pitää olla seitsemästä lähdöstä "
                                         "valittuna voittajahevonen."});
    EXPECT_TRUE(t.r().Picture1);
    t.r().Vetolaji = vetolaji::Trio;
    t.r().Ruutu = {"1", "3", "", "", "", "", "", "", "", "X"};
    HyväksyKuponki(t.peli);
    EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"LAATIKKO|Sinulta puuttuu Trio:sta kohteita. Triossa pitää olla 3 hevosen järjestys."});
    EXPECT_FALSE(t.r().Tulos);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
}

TEST(Races, AnAcceptedCouponTakesPPlusSixDrawsAndPrintsTheSheet) {
    Ravissa t;
    t.m.Raha = 1234;
    t.r().Vetolaji = vetolaji::Voittajaveto;
    t.r().RaviNimi[4] = "Tuiskutähti";
    t.r().Panos = 10;
    // W 4, P 100, each of 101 rounds D(5) + 1 = 3, then c5 = 90, c6 = 8, c7 = 0.
    t.peli.arvonta.Jonoon(0.45);
    t.peli.arvonta.Jonoon(0);
    t.Jonoon(101, 0.5);
    for (double r : {0.9, 0.999, 0.5}) t.peli.arvonta.Jonoon(r);
    HyväksyKuponki(t.peli);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
    EXPECT_FALSE(t.r().Picture1);
    EXPECT_TRUE(t.r().Tulos);
    EXPECT_EQ(t.m.Raha, 1234);
    // T = 303 + 10; p6 = (313 \ 8) * 0.12 above 1 and p5 = 3 * 0.24 below 1 with no 7: the third row.
    const Tapahtumat odotetut{
        "LAATIKKO|kolmas",
        "ALUE|Ravit.Tulos",
        "RIVI|0,0,0|0|",
        "RIVI|0,0,0|0|",
        "RIVI|0,0,0|0|Arvontaan osallistui 100 osaanottajaa.",
        "RIVI|0,0,0|0|Kokonais vaihto oli 313",
        "RIVI|0,0,0|0|7 oikein tuloksella voittosumma 0 (0)",
        "RIVI|0,0,0|0|6 oikein tuloksella voittosumma 11.7 (8)",
        "RIVI|0,0,0|0|5 oikein tuloksella voittosumma .6 (90)",
        "RIVI|0,0,0|0|",
        "RIVI|0,0,0|0|" + std::string(60, '_'),
        "RIVI|0,0,0|0|",
        "RIVI|0,0,0|0|Arvonnassa selvisi  osumaa.",
        "RIVI|0,0,0|0|",
        "RIVI|0,0,0|0|Voittajahevonen oli nro 4 - Tuiskutähti",
    };
    EXPECT_EQ(t.Tapahtumat(), odotetut);
}

TEST(Races, ThePoolsFirstRowThatHolds) {
    struct Tapaus { Long T, c5, c6, c7; Single p7, p6, p5; int potti; };
    for (const Tapaus& c : {Tapaus{1000000, 1000, 100, 2, 120000, 1200, 240, 0},
                            Tapaus{1000, 1000, 10, 1, 300, 20, 0, 1},
                            Tapaus{1000, 1000, 10, 0, 0, 30, 0.2f, 2},
                            Tapaus{1000000, 1000, 0, 5, 60000, 0, 200, 3},  // drawn, c7 needs c6 of 40
                            Tapaus{1000000, 1000, 100, 0, 0, 1200, 240, -1},
                            Tapaus{500, 0, 0, 0, 0, 0, 0, -1}}) {  // no winners: no division
        RaviTulos t;
        t.T = c.T;
        t.c5 = c.c5;
        t.c6 = c.c6;
        t.c7 = c.c7;
        JaaPotit(t);
        EXPECT_EQ(t.potti, c.potti) << c.T << " " << c.c5 << " " << c.c6 << " " << c.c7;
        EXPECT_EQ((std::array{t.p7, t.p6, t.p5}), (std::array{c.p7, c.p6, c.p5})) << c.potti;
    }
}

}  // namespace
}  // namespace tanhua
