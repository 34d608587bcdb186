// The cards of the animal screen: choosing, the lot and its totals, the info texts, the limits.
#include <gtest/gtest.h>

#include "animals/kauppa.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;
using Tapahtumat = std::vector<std::string>;

TEST(AnimalCards, EachCardShowsItsPricesMeatAndInfo) {
    struct Tapaus { const char* nimi; const char* otsikko; int osto, myynti, liha; const char* info; };
    const Tapaus tapaukset[] = {
        // The hen's card quotes the farm's own meat figure, here changed to 11.
        {"Kana", "Kana", 500, 300, 11,
         "Tuottaa munia noin 3 kpl/päivä, sivutuotteena vähän lantaa. Teurastaessa lihaa 11 kg. Rehunkulutus vain "
         "puoli kiloa päivässä. Lisäntyminen todennäköistä. Jatkojalostaessa leipomossa voi tuottaa leivoksia."},
        {"Pässi", "Pässi", 3000, 2000, 45,
         "Tuottaa villaa noin 1 kg/päivä, sivutuotteena vähän lantaa. Tuottaa teurastaessa lihaa 45. Rehunkulutus "
         "noin 3 kg/päivä. Mahdollistaa lisääntymisen lampaan kanssa."},
        {"Sika", "Emakko", 3000, 1000, 70, nullptr},
        {"KettuUros", "Uros Kettu", 3000, 1000, 0,
         "Urospuolinen kettu tuottaa turkiksia teurastaessa. Turkisten tuloon vaikuttaa nahkuri. Kettu kuluttaa "
         "rehua noin 2 kg/päivä. Mahdollistaa lisääntymisen naaraskettujen kanssa."},
        {"Ori", "Ori", 7000, 6000, 80, nullptr},
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        t.Aloita();
        t.m.Lihaa[Kana][0] = 11;
        const int kortti = KorttiNimellä(c.nimi);
        EXPECT_EQ(KorttiNimellä(c.otsikko), kortti);
        ValitseEläin(t.peli, kortti);
        const EläinRuutuTila& r = t.peli.eläinruutu;
        EXPECT_EQ(r.otsikko, c.otsikko);
        EXPECT_EQ(r.liha, c.liha) << c.nimi;
        EXPECT_EQ(r.yhtosto, c.osto) << c.nimi;
        EXPECT_EQ(r.yhtmyynti, c.myynti) << c.nimi;
        if (c.info) {
            EXPECT_EQ(r.info, c.info);
        }
    }
    EXPECT_EQ(KorttiNimellä("Hevonen"), -1);
}

TEST(AnimalCards, TheLotStepsBetweenOneTenAndHundred) {
    Testipeli t;
    t.Aloita();
    t.peli.asetukset.Äänitehosteet = true;
    ValitseEläin(t.peli, KorttiNimellä("Sonni"));
    EläinRuutuTila& r = t.peli.eläinruutu;
    struct Askel { void (*painike)(Peli&); int määrä; long yhtosto, yhtmyynti; };
    const Askel askeleet[] = {{määräplus, 10, 50000, 40000},  {määräplus, 100, 500000, 400000},
                              {määräplus, 100, 500000, 400000}, {määrämiinus, 10, 50000, 40000},
                              {määrämiinus, 1, 5000, 4000},     {määrämiinus, 1, 5000, 4000}};
    for (const Askel& a : askeleet) {
        a.painike(t.peli);
        EXPECT_EQ(r.määrä, a.määrä);
        EXPECT_EQ(r.yhtosto, a.yhtosto);
        EXPECT_EQ(r.yhtmyynti, a.yhtmyynti);
    }
    // Choosing another card keeps the lot; every step and choice is a small move.
    määräplus(t.peli);
    ValitseEläin(t.peli, KorttiNimellä("Kana"));
    EXPECT_EQ(r.yhtosto, 5000);
    EXPECT_EQ(t.Tapahtumat(), Tapahtumat(9, "ÄÄNI|siirto"));
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
        Testipeli t;
        t.Aloita();
        t.peli.asetukset.Äänitehosteet = true;
        t.m.Eläimet.TeurasRaja[1] = "5";
        t.Tapahtumat();
        const bool otettu = TeurasRajaMuuttui(t.peli, raja, c.kirjoitettu);
        EXPECT_EQ(t.m.Eläimet.TeurasRaja[1], c.jää) << c.kirjoitettu;
        const Tapahtumat odotetut =
            otettu ? Tapahtumat{} : Tapahtumat{"ÄÄNI|virhe", "VIESTI|0|Teurasrajan pitää olla luku.|vastattu"};
        EXPECT_EQ(otettu, std::string(c.jää) != "5") << c.kirjoitettu;
        EXPECT_EQ(t.Tapahtumat(), odotetut) << c.kirjoitettu;
    }
    EXPECT_EQ(TeurasRajaNimellä("TeurasKettuUrosRaja"), 9);
    EXPECT_EQ(TeurasRajaNimellä("Ori"), -1);
}

TEST(AnimalScreen, HintsAndLabelsFollowThePointerAndEscHidesTheCardFirst) {
    Testipeli t;
    t.Aloita();
    t.m.OhjeetPäällä = true;
    AvaaEläimet(t.peli);
    EläinRuutuTila& r = t.peli.eläinruutu;
    EXPECT_EQ(r.ohje, "Tervetuloa ostamaan eläimiä.");
    OsoitinEläinruudulla(t.peli, EläinKohde::Kuva, KorttiNimellä("Sonni"));
    EXPECT_EQ(r.aihe, "Eläimet : Sonni");
    EXPECT_EQ(r.ohje.substr(0, 30), "Sonni on kallis ostos ja sen t");
    OsoitinEläinruudulla(t.peli, EläinKohde::Kuva, KorttiNimellä("Kettu"));
    EXPECT_EQ(r.aihe, "Eläimet : Naaraskettu");
    EXPECT_EQ(r.kohdistin, KorttiNimellä("Kettu"));
    OsoitinEläinruudulla(t.peli, EläinKohde::Laskuri, KorttiNimellä("KettuUros"));
    EXPECT_EQ(r.aihe, "Eläimet : Uros kettu");
    OsoitinEläinruudulla(t.peli, EläinKohde::Ruutu);
    EXPECT_EQ(r.aihe, "Eläimet :");
    EXPECT_EQ(r.kohdistin, -1);
    ValitseEläin(t.peli, 0);
    EXPECT_FALSE(EläimetEsc(t.peli));
    EXPECT_EQ(r.kortti, -1);
    EXPECT_TRUE(EläimetEsc(t.peli));
}

}  // namespace
}  // namespace tanhua
