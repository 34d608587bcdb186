// The supplies shop: the lists and their texts, choosing, buying, selling and the owned list.
#include <gtest/gtest.h>

#include "buildings/tarvikkeet.h"
#include "core/pääruutu.h"
#include "core/taulut/tuotteet.h"
#include "finance/pankki.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;
using Tapahtumat = std::vector<std::string>;
using Rivit = std::vector<TarvikeRivinro>;

struct Kauppa : Testipeli {
    Kauppa() {
        Aloita();
        peli.asetukset.Äänitehosteet = true;
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
    struct Tapaus {
        void (*nappi)(Peli&);
        Rivit lista;
        const char* otsikko;
        const char* info;
        const char* Command5;
        const char* ohje;
    };
    const Tapaus tapaukset[] = {
        {NäytäYleiset, {Palohälytin, Paimenpoika, Varashälytin, Energiansäästövalot, Lämminvesivaraaja, Kaivo},
         "Yleiset tarvikkeet", "Tarvikkeet sisältävät yleisiä tarvikkeita maatilan jokapäiväisiin tarpeisiin.", "Osta",
         "Ostaa valitun tuotteen"},
        {NäytäTyökoneet, {Traktori, Puimuri, Metsäkone, LannoitusKärry, Ojittaja, MyrkkyKärry, AURA},
         "Työkoneet, älkää ostako näitä (kesken)",
         "Työkoneet sisältävät viljelykseen ja muuhun tarpeeliset koneet ja apulaitteet", "Osta",
         "Ostaa valitun tuotteen"},
        {NäytäOmat, {}, "Ostetut laitteet, koneet ja tarvikkeet", "Et ole vielä ostanut yhtään lisälaitetta.", "Myy",
         "Myy valitun tuotteen"},
    };
    for (const Tapaus& c : tapaukset) {
        Kauppa t;
        t.Klik(c.nappi);
        EXPECT_EQ(t.r().Lista, c.lista) << c.otsikko;
        EXPECT_EQ(t.r().otsikko, c.otsikko);
        EXPECT_EQ(t.r().info, c.info);
        EXPECT_EQ(t.r().Command5, c.Command5);
        EXPECT_EQ(t.r().Command5Ohje, c.ohje);
        EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"ÄÄNI|klik2"});
    }
    Kauppa t;
    t.Klik(NäytäLisälaitteet);
    ASSERT_EQ(t.r().Lista.size(), 18u);
    EXPECT_EQ(t.r().Lista.front(), UVValot);
    EXPECT_EQ(t.r().Lista.back(), Liukuhihna);
    EXPECT_EQ(t.r().info, "Lisälaitteet sisältävät tuotannon jatkojalostus laitteita, jotka parantavat tuotantoa, "
                          "hintaa sekä tuotteiden laatua.");
}

TEST(Lists, AnEmptyShopListSaysAllAreBoughtAndStillOffersToBuy) {
    Kauppa t;
    t.m.Raha = 100000;
    t.Klik(NäytäYleiset);
    for (TarvikeRivinro k : Rivit(t.r().Lista)) t.Osta(k);
    t.Klik(NäytäOmat);
    t.Klik(NäytäYleiset);
    EXPECT_TRUE(t.r().Lista.empty());
    EXPECT_EQ(t.r().info, "Olet jo ostanut kaikki tarvikkeet.");
    EXPECT_EQ(t.r().Command5, "Osta");
    t.Klik(NäytäOmat);
    EXPECT_EQ(t.r().info, "Listassa on kaikki ostamasi lisälaitteet.");
}

TEST(Choosing, ShowsTheTextAndThePriceOrTheSalePrice) {
    Kauppa t;
    t.m.Raha = 100000;
    t.Klik(NäytäLisälaitteet);
    ValitseTarvike(t.peli, Kirnu);
    EXPECT_EQ(t.r().nimi, "Kirnu");
    EXPECT_EQ(t.r().info, "Kirnu tuottaa maitotuotteita monipuolisemmin ja parantaa siten kaikkien maitotuotteiden "
                          "hintaa. Suuri sähkönkulutus ja pieni vedenkulutus.");
    EXPECT_EQ(t.r().hinta, "15000");
    EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"ÄÄNI|klik2", "ÄÄNI|siirto"}));

    // Sale is three quarters, rounded down.
    struct Tapaus { TarvikeRivinro rivi; const char* myynti; };
    const Tapaus tapaukset[] = {{Kirnu, "11250"}, {Hautomo, "2250"}, {UVValot, "1500"}};
    for (const Tapaus& c : tapaukset) t.Osta(c.rivi);
    t.Klik(NäytäOmat);
    for (const Tapaus& c : tapaukset) {
        ValitseTarvike(t.peli, c.rivi);
        EXPECT_EQ(t.r().hinta, c.myynti) << TarvikkeenNimi(c.rivi);
    }
    EXPECT_EQ(TarvikkeenMyyntihinta(Metsäkone), 1500000);

    // The plough row has no text and no price.
    t.Klik(NäytäTyökoneet);
    ValitseTarvike(t.peli, AURA);
    EXPECT_EQ(t.r().nimi, "Aura");
    EXPECT_EQ(t.r().info, "");
    EXPECT_EQ(t.r().hinta, "0");
}

TEST(Buying, ExactlyEnoughMoneyBuysAndLessIsRefusedWithTheShortfall) {
    struct Tapaus { Single raha; bool ostetaan; Single rahaJälkeen; const char* viesti; };
    const Tapaus tapaukset[] = {
        {5000, true, 0, nullptr},
        {5000.5f, true, 0.5f, nullptr},
        {4999.5f, false, 4999.5f,
         "VIESTI|0|Rahasi eivät riitä!\\n\\nRahatilanteesi on  4999.5\\nTarvike maksaa  5000\\nSinulta puuttuu  .5|vastattu"},
        {-250, false, -250,
         "VIESTI|0|Rahasi eivät riitä!\\n\\nRahatilanteesi on -250\\nTarvike maksaa  5000\\nSinulta puuttuu  5250|vastattu"},
    };
    for (const Tapaus& c : tapaukset) {
        Kauppa t;
        t.Klik(NäytäYleiset);
        t.m.Raha = c.raha;
        ValitseTarvike(t.peli, Palohälytin);
        t.Tapahtumat();
        if (c.ostetaan) t.peli.arvonta.Jonoon(0.0);
        Command5Tarvikkeet(t.peli);
        EXPECT_EQ(t.m.Raha, c.rahaJälkeen) << c.raha;
        EXPECT_EQ(t.m.Tarv[Palohälytin], c.ostetaan) << c.raha;
        if (c.ostetaan) {
            EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"ÄÄNI|klik1"});
            EXPECT_EQ(t.r().Tavarat, Rivit{Palohälytin});
            EXPECT_EQ(t.r().Lista, (Rivit{Paimenpoika, Varashälytin, Energiansäästövalot, Lämminvesivaraaja, Kaivo}));
            EXPECT_EQ(t.r().kauppa[Tarvikkeita], t.r().Lista);
            // The labels are blanked and nothing is chosen: a second press does nothing.
            EXPECT_EQ(t.r().info, "");
            EXPECT_EQ(t.r().hinta, "");
            EXPECT_EQ(t.r().nimi, "");
            EXPECT_EQ(t.r().hintaArvo, 0);
            EXPECT_EQ(t.peli.näkymä.lukemat.Rahatilaz, RahaKylttiMuoto(c.rahaJälkeen));
            Command5Tarvikkeet(t.peli);
            EXPECT_EQ(t.Tapahtumat(), Tapahtumat{});
            EXPECT_EQ(t.m.Raha, c.rahaJälkeen);
        } else {
            EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"ÄÄNI|virhe", c.viesti}));
            EXPECT_TRUE(t.r().Tavarat.empty());
            EXPECT_EQ(t.r().Lista.size(), 6u);
            EXPECT_EQ(t.r().valittu, Palohälytin);
        }
    }
}

TEST(Buying, NothingChosenOrThePloughDoesNothing) {
    Kauppa t;
    t.m.Raha = 1000;
    t.Klik(NäytäTyökoneet);
    t.Tapahtumat();
    Command5Tarvikkeet(t.peli);
    ValitseTarvike(t.peli, AURA);
    Command5Tarvikkeet(t.peli);
    EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"ÄÄNI|siirto"});
    EXPECT_EQ(t.m.Raha, 1000);
    EXPECT_TRUE(t.r().Tavarat.empty());
    EXPECT_EQ(t.r().Lista.back(), AURA);
}

TEST(Buying, ThePriceBonusWaitsForTheNextWorkingOfBasePrices) {
    Kauppa t;
    t.m.Raha = 20000;
    const Long maito = t.m.PerusHinta[Maito];
    t.Klik(NäytäLisälaitteet);
    t.Osta(Kirnu);
    ASSERT_TRUE(t.m.Tarv[Kirnu]);
    EXPECT_EQ(t.m.PerusHinta[Maito], maito);
}

TEST(Selling, PaysThreeQuartersAndPutsTheItemAtTheEndOfItsShopList) {
    Kauppa t;
    t.m.Raha = 30000;
    t.Klik(NäytäLisälaitteet);
    t.Osta(Lypsykone);
    t.Osta(UVValot);
    t.Klik(NäytäYleiset);
    t.Osta(Kaivo);
    // Owned items stand in order of purchase.
    EXPECT_EQ(t.r().Tavarat, (Rivit{Lypsykone, UVValot, Kaivo}));
    EXPECT_EQ(OmistetutTarvikkeet(t.m), 3);
    EXPECT_EQ(t.m.Raha, 10000);

    t.Klik(NäytäOmat);
    EXPECT_EQ(t.r().Lista, (Rivit{Lypsykone, UVValot, Kaivo}));
    t.Tapahtumat();
    ValitseTarvike(t.peli, Lypsykone);
    t.Klik(Command5Tarvikkeet);
    EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"ÄÄNI|siirto", "ÄÄNI|klik2"}));
    EXPECT_EQ(t.m.Raha, 17500);
    EXPECT_FALSE(t.m.Tarv[Lypsykone]);
    EXPECT_EQ(t.r().Tavarat, (Rivit{UVValot, Kaivo}));
    EXPECT_EQ(t.r().Lista, t.r().Tavarat);
    EXPECT_EQ(t.r().kauppa[Lisälaitteet].back(), Lypsykone);
    EXPECT_EQ(t.r().kauppa[Lisälaitteet].front(), Hautomo);
    EXPECT_EQ(t.r().hinta, "");
    EXPECT_EQ(t.r().nimi, "");
    EXPECT_EQ(OmistetutTarvikkeet(t.m), 2);

    // Bought again at the full price.
    t.Klik(NäytäLisälaitteet);
    t.Osta(Lypsykone);
    EXPECT_EQ(t.m.Raha, 7500);
    EXPECT_EQ(t.r().Tavarat, (Rivit{UVValot, Kaivo, Lypsykone}));
}

TEST(Opening, ItemsThatChangedWhileClosedMoveAndTheOthersKeepTheirOrder) {
    Kauppa t;
    t.m.Raha = 30000;
    t.Klik(NäytäYleiset);
    t.Osta(Kaivo);
    t.Osta(Palohälytin);
    t.Osta(Paimenpoika);
    t.Klik(NäytäOmat);
    ValitseTarvike(t.peli, Palohälytin);
    SuljeTarvikkeet(t.peli);
    // The fire alarm breaks and a tractor comes with the farm while the screen is closed.
    t.m.Tarv[Palohälytin] = false;
    t.m.Tarv[Traktori] = true;
    AvaaTarvikkeet(t.peli);
    EXPECT_EQ(t.r().Tavarat, (Rivit{Kaivo, Paimenpoika, Traktori}));
    EXPECT_EQ(t.r().Lista, t.r().Tavarat);
    EXPECT_EQ(t.r().valittu, -1);  // the chosen item left the list
    EXPECT_EQ(t.r().kauppa[Tarvikkeita],
              (Rivit{Varashälytin, Energiansäästövalot, Lämminvesivaraaja, Palohälytin}));
    EXPECT_EQ(t.r().kauppa[Työkoneet], (Rivit{Puimuri, Metsäkone, LannoitusKärry, Ojittaja, MyrkkyKärry, AURA}));
    EXPECT_EQ(static_cast<int>(t.r().Tavarat.size()), OmistetutTarvikkeet(t.m));
}

TEST(Opening, ASavedFarmRebuildsTheListsFromTheFlagsWithoutThePlough) {
    Kauppa t;
    t.m.Raha = 30000;
    t.Klik(NäytäYleiset);
    t.Osta(Kaivo);
    t.Osta(Palohälytin);
    t.m.Tarv.fill(false);
    t.m.Tarv[Kaivo] = true;
    t.m.Tarv[Palohälytin] = true;
    t.m.Tarv[Puimuri] = true;
    RakennaTarvikelistat(t.peli);
    EXPECT_EQ(t.r().Tavarat, (Rivit{Palohälytin, Kaivo, Puimuri}));
    EXPECT_EQ(t.r().kauppa[Työkoneet], (Rivit{Traktori, Metsäkone, LannoitusKärry, Ojittaja, MyrkkyKärry}));
    EXPECT_EQ(t.r().kauppa[Lisälaitteet].size(), 18u);
}

TEST(Names, KeysShownNamesAndThePloughAreFound) {
    EXPECT_EQ(TarvikeNimellä("Lypsykone"), Lypsykone);
    EXPECT_EQ(TarvikeNimellä("Syöttölinjasto"), Syöttölinjasto);
    EXPECT_EQ(TarvikeNimellä("Automaattinen syöttölinjasto"), Syöttölinjasto);
    EXPECT_EQ(TarvikeNimellä("Aura"), AURA);
    EXPECT_EQ(TarvikeNimellä("Kuokka"), -1);
}

TEST(Names, TheShopOpensFromTheFirstStarWhenStarsLock) {
    struct Tapaus { bool lukitus; Byte tähdet; bool auki; };
    const Tapaus tapaukset[] = {{false, 0, true}, {true, 0, false}, {true, 1, true}, {true, 5, true}};
    for (const Tapaus& c : tapaukset) {
        Muuttujat m;
        m.TähtiLukitus = c.lukitus;
        m.Tähdet = c.tähdet;
        EXPECT_EQ(TarvikkeetAuki(m), c.auki) << c.lukitus << " " << int(c.tähdet);
    }
}

}  // namespace
}  // namespace tanhua
