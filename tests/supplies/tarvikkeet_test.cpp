// The supplies shop: the lists and their texts, buying, and the lists kept in step with the flags.
#include <gtest/gtest.h>

#include "buildings/tarvikkeet.h"
#include "finance/pankki.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using Rivit = std::vector<TarvikeRivinro>;
const Rivit YLEISET{Palohälytin, Paimenpoika, Varashälytin, Energiansäästövalot, Lämminvesivaraaja, Kaivo};

struct Kauppa : testi::Testipeli {
    Kauppa() {
        Aloita();
        peli.asetukset.Äänitehosteet = true;
        m.Raha = 100000;
        AvaaTarvikkeet(peli);
        Tapahtumat();
    }
    TarvikeRuutuTila& r() { return peli.tarvikeruutu; }
    // A click, with a draw of 0.5 for the click sound ("klik2").
    void Klik(void (*nappi)(Peli&)) {
        peli.arvonta.Jonoon(0.5);
        nappi(peli);
    }
    void Osta(TarvikeRivinro rivi) {
        ValitseTarvike(peli, rivi);
        Klik(Command5Tarvikkeet);
    }
};

TEST(Lists, EachButtonShowsItsListTitleTextAndAction) {
    struct Tapaus { void (*nappi)(Peli&); std::size_t rivejä; const char* otsikko; const char* info; const char* Command5; };
    const Tapaus tapaukset[] = {
        {NäytäYleiset, 6, "Yleiset tarvikkeet",
         "Tarvikkeet sisältävät yleisiä tarvikkeita maatilan jokapäiväisiin tarpeisiin.", "Osta"},
        {NäytäLisälaitteet, 18, "Lisälaitteet",
         "Lisälaitteet sisältävät tuotannon jatkojalostus laitteita, jotka parantavat tuotantoa, hintaa sekä "
         "tuotteiden laatua.", "Osta"},
        {NäytäTyökoneet, 7, "Työkoneet, älkää ostako näitä (kesken)",
         "Työkoneet sisältävät viljelykseen ja muuhun tarpeeliset koneet ja apulaitteet", "Osta"},
        {NäytäOmat, 0, "Ostetut laitteet, koneet ja tarvikkeet", "Et ole vielä ostanut yhtään lisälaitetta.", "Myy"},
    };
    for (const Tapaus& c : tapaukset) {
        Kauppa t;
        t.Klik(c.nappi);
        EXPECT_EQ(t.r().Lista.size(), c.rivejä) << c.otsikko;
        EXPECT_EQ(std::tuple(t.r().otsikko, t.r().info, t.r().Command5, t.Tapahtumat()),
                  std::tuple(c.otsikko, c.info, c.Command5, Tapahtumat{"ÄÄNI|klik2"}));
    }
    // Every item bought: the list is empty, says so, and the button still offers to buy.
    Kauppa t;
    t.Klik(NäytäYleiset);
    EXPECT_EQ(t.r().Lista, YLEISET);
    for (TarvikeRivinro k : YLEISET) t.Osta(k);
    t.Klik(NäytäYleiset);
    EXPECT_TRUE(t.r().Lista.empty());
    EXPECT_EQ(std::tuple(t.r().info, t.r().Command5), std::tuple("Olet jo ostanut kaikki tarvikkeet.", "Osta"));
    t.Klik(NäytäOmat);
    EXPECT_EQ(t.r().info, "Listassa on kaikki ostamasi lisälaitteet.");
}

TEST(Buying, ExactlyEnoughMoneyBuysAndLessIsRefusedWithTheShortfallUnnarrowed) {
    struct Tapaus { Single raha; const char* viesti; };
    const Tapaus tapaukset[] = {
        {5000, nullptr},
        {5000.5f, nullptr},
        {1234.567f, "Rahatilanteesi on  1234.567\\nTarvike maksaa  5000\\nSinulta puuttuu  3765.43298339844"},
        {-250, "Rahatilanteesi on -250\\nTarvike maksaa  5000\\nSinulta puuttuu  5250"},
    };
    for (const Tapaus& c : tapaukset) {
        Kauppa t;
        t.Klik(NäytäYleiset);
        t.m.Raha = c.raha;
        ValitseTarvike(t.peli, Palohälytin);
        t.Tapahtumat();
        t.Klik(Command5Tarvikkeet);
        EXPECT_EQ(t.m.Tarv[Palohälytin], !c.viesti) << c.raha;
        if (!c.viesti) {
            EXPECT_EQ(std::tuple(t.m.Raha, t.Tapahtumat(), t.r().Tavarat, t.r().Lista),
                      std::tuple(c.raha - 5000, Tapahtumat{"ÄÄNI|klik2"}, Rivit{Palohälytin},
                                 Rivit(YLEISET.begin() + 1, YLEISET.end())));
            // The labels are blanked and nothing is chosen: a second press does nothing.
            EXPECT_EQ(t.r().info + t.r().hinta + t.r().nimi, "");
            Command5Tarvikkeet(t.peli);
            EXPECT_EQ(t.Tapahtumat(), Tapahtumat{});
        } else {
            EXPECT_EQ(t.m.Raha, c.raha);
            EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"ÄÄNI|virhe", "VIESTI|0|Rahasi eivät riitä!\\n\\n" +
                                                                   std::string(c.viesti) + "|vastattu"}));
            EXPECT_EQ(t.r().Lista, YLEISET);
        }
    }
}

TEST(Opening, ItemsThatChangedMeanwhileMoveAndTheOthersKeepTheirOrder) {
    // The lists come in step with the flags on opening, and on a list button pressed without it.
    for (const bool avataan : {true, false}) {
        Kauppa t;
        t.Klik(NäytäYleiset);
        t.Osta(Kaivo);
        t.Osta(Palohälytin);
        t.Klik(NäytäOmat);
        ValitseTarvike(t.peli, Palohälytin);
        t.Tapahtumat();
        t.Klik(SuljeTarvikkeet);
        // The fire alarm breaks and a tractor comes with the farm while the screen is closed.
        t.m.Tarv[Palohälytin] = false;
        t.m.Tarv[Traktori] = true;
        if (avataan) t.Klik(AvaaTarvikkeet);
        else t.Klik(NäytäOmat);
        EXPECT_EQ(std::tuple(t.r().Tavarat, t.r().Lista), std::tuple((Rivit{Kaivo, Traktori}), t.r().Tavarat));
        EXPECT_EQ(t.r().valittu, -1);  // the chosen item left the list
        EXPECT_EQ(t.r().kauppa[Tarvikkeita],
                  (Rivit{Paimenpoika, Varashälytin, Energiansäästövalot, Lämminvesivaraaja, Palohälytin}));
        EXPECT_EQ(t.r().kauppa[Työkoneet], (Rivit{Puimuri, Metsäkone, LannoitusKärry, Ojittaja, MyrkkyKärry, AURA}));
        EXPECT_EQ(t.Tapahtumat(), (Tapahtumat(2, "ÄÄNI|klik2")));
    }
    // A saved farm rebuilds the lists from the flags in catalogue order, without the plough.
    Kauppa t;
    t.m.Tarv[Kaivo] = t.m.Tarv[Palohälytin] = t.m.Tarv[Puimuri] = true;
    RakennaTarvikelistat(t.peli);
    EXPECT_EQ(t.r().Tavarat, (Rivit{Palohälytin, Kaivo, Puimuri}));
    EXPECT_EQ(t.r().kauppa[Työkoneet], (Rivit{Traktori, Metsäkone, LannoitusKärry, Ojittaja, MyrkkyKärry}));
}

}  // namespace
}  // namespace tanhua
