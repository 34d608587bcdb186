// The land screen's trade and the sowing and harvest screens' sheets.
#include <gtest/gtest.h>

#include <vector>

#include "land/kylvö.h"
#include "land/pellot.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

struct Tila : testi::Testipeli {
    Tila() {
        Aloita();
        peli.asetukset.Äänitehosteet = true;
        // A hectare of any kind at 11500.
        for (std::size_t k = 0; k < MAITA; ++k) {
            m.PerusMaa[k] = 11500;
            m.MaaKurssi[k] = 0;
        }
        Tapahtumat();
    }
    void Kortti(Maa maa, Integer erä) {
        ValitseMaa(peli, maa);
        while (peli.peltoruutu.määrä < erä) plus(peli);
        Tapahtumat();
    }
};

TEST(LandTrade, EqualMoneyBuysAndOneShortIsRefused) {
    struct Tapaus { Integer erä; float raha; float pelto, rahaNyt; Tapahtumat tapahtumat; };
    for (const Tapaus& c : {
             Tapaus{1, 11500, 1, 0, {"ÄÄNI|siirto"}},
             Tapaus{10, 200000, 10, 85000, {"ÄÄNI|siirto"}},
             Tapaus{1, 11499, 0, 11499,
                    {"ÄÄNI|virhe", "VIESTI|0|Ei sinulla ole varaa\\n\\n 1 hehtaaria maksaa  11500\\n Sinulla on rahaa  "
                                   "11499\\n Sinulta puuttuu  1|vastattu"}},
             Tapaus{1, 11499.5f, 0, 11499.5f,
                    {"ÄÄNI|virhe", "VIESTI|0|Ei sinulla ole varaa\\n\\n 1 hehtaaria maksaa  11500\\n Sinulla on rahaa  "
                                   "11499.5\\n Sinulta puuttuu  .5|vastattu"}},
         }) {
        Tila t;
        t.m.Raha = c.raha;
        t.m.Liikevaihto = 7;
        t.Kortti(MaaPelto, c.erä);
        OstaMaata(t.peli);
        EXPECT_EQ(std::pair(t.m.Pelto, t.m.Raha), std::pair(c.pelto, c.rahaNyt)) << c.raha;
        EXPECT_EQ(t.m.Liikevaihto, 7) << "land is no turnover";
        EXPECT_EQ(t.Tapahtumat(), c.tapahtumat) << c.raha;
    }
}

TEST(LandTrade, SalesAreRefusedInTheirOrder) {
    const std::string EI_MYYTÄVÄÄ = "Ei sinulla ole tarpeeksi myytävää.";
    const std::string TALLI =
        "Olet rakentanut hevostallisi laitumelle, joten sinun on pakko jättää laidunmaata ainakin 1 hehtaari "
        "myymättä.";
    enum Talli { Ei, Seisoo, Tekeillä };
    // viesti: empty for a sale.
    struct Tapaus { Maa maa; float ha; Integer erä; Talli talli; float haNyt; std::string viesti; };
    for (const Tapaus& c : {
             Tapaus{MaaPelto, 5, 10, Ei, 5, EI_MYYTÄVÄÄ},
             Tapaus{MaaMetsä, 10, 10, Ei, 0, ""},  // all of the forest; the hectare being felled stays
             Tapaus{MaaJoutomaa, 0.5f, 1, Ei, 0.5f, EI_MYYTÄVÄÄ},
             Tapaus{MaaLaidun, 10, 10, Seisoo, 10, TALLI},
             Tapaus{MaaLaidun, 10, 10, Tekeillä, 10, TALLI},
             Tapaus{MaaLaidun, 5, 10, Seisoo, 5, EI_MYYTÄVÄÄ},  // too little comes first
             Tapaus{MaaLaidun, 11, 10, Seisoo, 1, ""},
             Tapaus{MaaLaidun, 1.5f, 1, Seisoo, 0.5f, ""},
             Tapaus{MaaLaidun, 10, 10, Ei, 0, ""},
         }) {
        Tila t;
        t.m.Raha = 1000;
        t.m.MetsääJäljellä = 60;
        Hehtaarit(t.m, c.maa) = c.ha;
        t.m.Rak[Hevostalli] = c.talli == Seisoo ? 1 : 0;
        t.m.RakAika[Hevostalli] = c.talli == Tekeillä ? 3 : 0;
        t.Kortti(c.maa, c.erä);
        MyyMaata(t.peli);
        EXPECT_EQ(Hehtaarit(t.m, c.maa), c.haNyt) << c.maa << " " << c.ha;
        EXPECT_EQ(t.m.Raha, c.viesti.empty() ? 1000 + 11500.0f * c.erä : 1000) << c.maa << " " << c.ha;
        EXPECT_EQ(std::tuple(t.m.MetsääJäljellä, t.m.Liikevaihto), std::tuple(60, 0));
        const Tapahtumat odotetut = c.viesti.empty() ? Tapahtumat{"ÄÄNI|siirto"}
                                                     : Tapahtumat{"ÄÄNI|virhe", "VIESTI|0|" + c.viesti + "|vastattu"};
        EXPECT_EQ(t.Tapahtumat(), odotetut) << c.maa << " " << c.ha;
    }
}

TEST(LandTrade, TheCardShowsTaxAndYield) {
    struct Tapaus { Maa maa; float ha; const char* vuodenaika; std::string vero, tuotto; };
    for (const Tapaus& c : {Tapaus{MaaPelto, 3, "Kesä", "0.45", "17"}, {MaaPelto, 3, "Talvi", "0.45", "(Talvi!)"},
                            {MaaMetsä, 10, "Talvi", "5", "12"}, {MaaJoutomaa, 15, "Kesä", "2.25", "-"},
                            {MaaLaidun, 0.5f, "Kesä", "0.02", "-"}}) {
        Tila t;
        t.m.Vuodenaika = c.vuodenaika;
        t.m.ViljaaTuotettu = 17;
        t.m.PuutaHakattu = 12;
        Hehtaarit(t.m, c.maa) = c.ha;
        // Round(0.0175, 2) goes to the even hundredth.
        EXPECT_EQ(Luku(KortinMaavero(t.m, c.maa)), c.vero.rfind("0.", 0) == 0 ? c.vero.substr(1) : c.vero) << c.maa;
        EXPECT_EQ(KKTuotto(t.m, c.maa), c.tuotto) << c.maa;
    }
}

TEST(Sowing, TheSheetAndTheCycleOfSowingAndHarvest) {
    Tila t;
    t.m.Pelto = 3;
    t.m.Raha = 5000;
    AvaaKylvö(t.peli);
    ValitseKasvi(t.peli, Rypsi);
    for (int i = 0; i < 5; ++i) KylvöPlus(t.peli);  // held below the unplanned field
    EXPECT_EQ(t.peli.kylvöruutu.määrä, 3);
    while (t.peli.kylvöruutu.määrä > 1) KylvöMiinus(t.peli);
    HyväksyKasvi(t.peli);
    EXPECT_EQ(t.peli.kylvöruutu.määrä, 1) << "the lot stays while field is left";
    AsetaMyrkytetään(t.peli, true);
    // Seed prices are Singles: a hectare of rape is Int(500 × 0.35f) = 174.
    EXPECT_EQ(t.peli.kylvöruutu.Kustannukset,
              (std::vector<std::string>{"Siemeniin :  174", "", "Maan kääntäminen", "traktorin vuokraus : 100 / ha =  100",
                                        "traktorin kuljettajan palkka : 1000", "", "Myrkytyksiin",
                                        "Tuholais myrkytys maksaa :  500", "Myrkytyskoneen vuokraus :  100", "",
                                        "Kokonais kustannus :  1874"}));
    t.Tapahtumat();
    t.m.Raha = 1873;
    AloitaKylväminen(t.peli);
    EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"ÄÄNI|virhe", "VIESTI|0|Kylväminen maksaa liikaa!\\n\\nRahatilanteesi :  1873\\n"
                                                        "Kylväminen maksaa :  1874\\n\\nSinulta puuttuu :  1|vastattu"}));
    t.m.Raha = 1874;
    AloitaKylväminen(t.peli);
    EXPECT_EQ(std::tuple(t.m.Raha, t.m.Kylvetty[Rypsi], t.m.KylvettyAla, t.m.KylvöKulut, t.m.HoitoTaso),
              std::tuple(0.0f, 1, 1, 1874, Byte{1}));
    EXPECT_EQ(std::pair(t.peli.peltoruutu.Image4, t.peli.peltoruutu.Image5), std::pair(false, true));

    // Nothing fills the crop: the harvest charges its costs and takes the sowing's off again.
    AvaaNosto(t.peli);
    KorjaaSato(t.peli);
    EXPECT_EQ(t.m.Raha, -(1874.0f + 250 + 100 + 1500 + 2000));
    EXPECT_EQ(std::tuple(t.m.Kylvetty[Rypsi], t.m.KylvettyAla), std::tuple(0, 0));
    EXPECT_EQ(std::pair(t.peli.peltoruutu.Image4, t.peli.peltoruutu.Image5), std::pair(true, false));
}

}  // namespace
}  // namespace tanhua
