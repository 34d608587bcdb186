// The market's monthly step, the first walk of a new farm, the bank's market report and the base prices.
#include <gtest/gtest.h>

#include <array>
#include <map>

#include "core/perushinnat.h"
#include "market/markkinat.h"
#include "market/taulut/pörssi.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

// Queues the 24 draws of a month's walk: each index keeps its value unless a draw is given for it.
void JonoonKävely(testi::Testipeli& t, const std::map<Tuote, double>& tuotteet = {},
                  const std::map<Maa, double>& maat = {}) {
    for (Tuote k : KÄVELYJÄRJESTYS) {
        const auto it = tuotteet.find(k);
        t.peli.arvonta.Jonoon(it != tuotteet.end() ? it->second
                                                   : static_cast<double>(PÖRSSITAULU[k].k) / PÖRSSITAULU[k].n);
    }
    for (Maa maa : MAAJÄRJESTYS) {
        const auto it = maat.find(maa);
        t.peli.arvonta.Jonoon(it != maat.end() ? it->second
                                               : static_cast<double>(MAAPÖRSSI[maa].k) / MAAPÖRSSI[maa].n);
    }
}

struct Markkinapeli : ::testing::Test {
    void SetUp() override {
        t.Aloita();
        t.m.Kurssi.fill(0);
        t.m.MaaKurssi.fill(0);
        t.m.Var.fill(0);
        t.m.Vuosi = 1984;
        t.peli.arvonta.TyhjennäJono();
        t.Tapahtumat();
    }
    testi::Testipeli t;
};

TEST_F(Markkinapeli, WalkRoundsToEvenWithOneDrawForEachIndexInOrder) {
    t.m.Kurssi[Liha] = 2;
    t.m.Kurssi[Villa] = 1;
    t.m.MaaKurssi[MaaMetsä] = 100;
    JonoonKävely(t, {{Maito, 0.5}, {Liha, 0.5}, {Villa, 0.5}, {Turkki, 0.0}, {Vaate, 0.5}, {Leipä, 0.75}, {Hunaja, 0.99}},
                 {{MaaPelto, 0.75}, {MaaMetsä, 0.25}, {MaaLaidun, 0.0}});
    Markkinat(t.peli);
    struct Tapaus { Tuote k; int odotettu; };
    // Milk 1.5 - 1 = 0.5 -> 0; meat 2 + 2.5 - 2 = 2.5 -> 2; wool 1 + 2.5 - 2 = 1.5 -> 2; furs at their lowest step;
    // clothes 6.5 - 6 = 0.5 -> 0; bread 8.25 - 5 -> 3; honey 4.95 - 2 -> 3.
    for (const Tapaus& c : {Tapaus{Maito, 0}, {Liha, 2}, {Villa, 2}, {Turkki, -19}, {Vaate, 0}, {Leipä, 3}, {Hunaja, 3}})
        EXPECT_EQ(t.m.Kurssi[c.k], c.odotettu) << TUOTETAULU[c.k].avain;
    EXPECT_EQ(t.m.MaaKurssi, (std::array<Long, MAITA>{-150, 250, 0, -250}));  // forest, field, waste land, pasture
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
    EXPECT_TRUE(t.Tapahtumat().empty());
}

TEST_F(Markkinapeli, TheLastCrashInTheCheckOrderNamesTheNewsAndTheDrawPicksTheStory) {
    // r: the story's draw; tarina: the story, the first one told of the crashed word when empty.
    struct Tapaus { std::map<Tuote, int> kurssit; std::map<Tuote, float> varastot; float laidun;
        std::map<Maa, long> maakurssit; std::string sana; double r; std::string tarina; };
    const Tapaus tapaukset[] = {
        // Cheese is checked after manure although it walks before it.
        {{{Juusto, 14}, {Lanta, 6}}, {{Lanta, 1}}, 0, {}, "Juuston", 0.1, ""},
        // A feed crash overwrites the word although it marks nothing.
        {{{Turkki, 151}, {Rehu, 6}}, {{Turkki, 1}}, 0, {}, "Rehun", 0.1, ""},
        // Land comes last; pasture held.
        {{{Maito, 6}}, {}, 2, {{MaaLaidun, 4001}}, "Laidunmaan", 0.1, ""},
        {{{Maito, 6}}, {{Maito, 0.5f}}, 0, {}, "Maidon", 0.0, ""},
        {{{Maito, 6}}, {{Maito, 0.5f}}, 0, {}, "Maidon", 0.2,
         "Maidon hinta romahti alas. Tämä oli jo ennalta odotettua liian korkean hinnan suhteen arvioivat "
         "asiantuntijat."},
        {{{Maito, 6}}, {{Maito, 0.5f}}, 0, {}, "Maidon", 0.6,
         "Kurssit laskivat roimasti. Maidon hinta teki tänään roiman laskun pörssissä. Maatalous saattaa kärsiä tästä, "
         "mutta ostajat ovat tyytyväisiä."},
        {{{Maito, 6}}, {{Maito, 0.5f}}, 0, {}, "Maidon", 0.99,
         "Suuri kurssiromahdus tänään. Maidon kurssi tipahti alas tänään iltapäivällä. Maatilanyrittäjät ovat "
         "huolissaan tulevaisuudestaan."},
    };
    for (const Tapaus& c : tapaukset) {
        t.m.Kurssi.fill(0), t.m.MaaKurssi.fill(0), t.m.Var.fill(0);
        t.m.Laidun = c.laidun;
        for (auto [k, v] : c.kurssit) t.m.Kurssi[k] = static_cast<Integer>(v);
        for (auto [k, v] : c.varastot) t.m.Var[k] = v;
        for (auto [maa, v] : c.maakurssit) t.m.MaaKurssi[maa] = v;
        JonoonKävely(t);
        t.peli.arvonta.Jonoon(c.r);
        Markkinat(t.peli);
        const std::string tarina = !c.tarina.empty() ? c.tarina : "Pörssiromahdus! " + c.sana +
            " hinta romahti kerralla alas. Onko maaseudun tulevaisuus vaakalaudalla tuotannon suhteen?";
        EXPECT_EQ(t.Tapahtumat(), (Tapahtumat{"LISTA|" + c.sana + " kurssi romahti!",
                                             "IKKUNA|Kuvat/sattumat/lehti.jpg|" + tarina})) << c.sana << " " << c.r;
        for (auto [k, v] : c.kurssit) EXPECT_EQ(t.m.Kurssi[k], 0) << TUOTETAULU[k].avain;
    }
}

TEST(Markkinat, CrashesAboveTheLimitBoundsBelowAndFeedHeldDownBefore1983) {
    testi::Testipeli t;
    t.Aloita("Testi", 2);  // the hardest level: products cheaper, feed and land dearer
    ASSERT_EQ((std::array<long, 3>{t.m.PerusHinta[Lanta], t.m.PerusHinta[Rehu], t.m.PerusMaa[MaaJoutomaa]}),
              (std::array<long, 3>{1, 5, 7000}));  // manure, feed, waste land
    t.m.Var.fill(0);
    t.m.Var[Rehu] = 5000;  // feed is held, but never makes the news
    struct Tapaus { Tuote k; int vuosi, ennen, jälkeen; };
    for (const Tapaus& c : {
             Tapaus{Maito, 1984, 5, 5}, {Maito, 1984, 6, 0}, {Turkki, 1984, 150, 150}, {Turkki, 1984, 151, 0},
             {Lauta, 1984, 26, 0}, {Vaate, 1984, 20, 20}, {Hunaja, 1984, 11, 0}, {Viini, 1984, 13, 13},
             {Rehu, 1982, 4, 3}, {Rehu, 1982, 9, 3}, {Rehu, 1983, 5, 5}, {Rehu, 1983, 6, 0},  // feed's own rule
             // Lower bounds: a price below 0, an index below its bound, a feed price below 1.
             {Lanta, 1984, -2, 0}, {Lanta, 1984, -1, -1}, {Turkki, 1984, -100, -100}, {Turkki, 1984, -101, 0},
             {Vaate, 1984, -21, 0}, {Makkara, 1984, -6, -6}, {Rehu, 1984, -4, -4}, {Rehu, 1984, -5, 1}}) {
        t.m.Kurssi.fill(0);
        t.m.Vuosi = static_cast<Integer>(c.vuosi);
        t.m.Kurssi[c.k] = static_cast<Integer>(c.ennen);
        t.peli.arvonta.TyhjennäJono();
        JonoonKävely(t);
        t.peli.arvonta.Jonoon(0.5);  // a story's draw, left alone when nothing held crashed
        Markkinat(t.peli);
        EXPECT_EQ(t.m.Kurssi[c.k], c.jälkeen) << TUOTETAULU[c.k].avain << " " << c.vuosi << " " << c.ennen;
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 1u);
    }
    struct MaaTapaus { Maa maa; long ennen, jälkeen; };
    for (const MaaTapaus& c : {MaaTapaus{MaaPelto, 5000, 5000}, {MaaPelto, 5001, 0}, {MaaJoutomaa, 2501, 0},
                               {MaaJoutomaa, -3001, 0}, {MaaJoutomaa, -3000, -3000}, {MaaLaidun, -4001, 0}}) {
        t.m.MaaKurssi.fill(0);
        t.m.MaaKurssi[c.maa] = c.ennen;
        t.peli.arvonta.TyhjennäJono();
        JonoonKävely(t);
        Markkinat(t.peli);
        EXPECT_EQ(t.m.MaaKurssi[c.maa], c.jälkeen) << MAATAULU[c.maa].avain << " " << c.ennen;
    }
    EXPECT_TRUE(t.Tapahtumat().empty());
}

TEST(Markkinat, FirstWalkStartsFromZeroWithWiderStepsAndLeavesPastureOut) {
    testi::Aloitettu t;
    t.m.Kurssi.fill(50);
    t.m.MaaKurssi.fill(900);
    for (int i = 0; i < 24; ++i) t.peli.arvonta.Jonoon(0.8);
    EnsimmäinenKurssi(t.peli);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 1u) << "23 draws: pasture land takes none";
    struct Tapaus { Tuote k; int odotettu; };
    for (const Tapaus& c : {Tapaus{Maito, 1}, {Liha, 2}, {Turkki, 16}, {Vaate, 7}, {Leivos, 3}, {Leipä, 4}, {Makkara, 4}})
        EXPECT_EQ(t.m.Kurssi[c.k], c.odotettu) << TUOTETAULU[c.k].avain;
    EXPECT_EQ(t.m.MaaKurssi, (std::array<Long, MAITA>{300, 300, 150, 0}));
    // In the walk's order: only the fur's draw (the fifth) is high.
    t.peli.arvonta.TyhjennäJono();
    for (int i = 0; i < 23; ++i) t.peli.arvonta.Jonoon(i == 4 ? 0.98 : 0.0);
    EnsimmäinenKurssi(t.peli);
    EXPECT_EQ(t.m.Kurssi[Turkki], 25);  // 49 - 24
    EXPECT_EQ(std::tuple(t.m.Kurssi[Vaate], t.m.MaaKurssi[MaaJoutomaa]), std::tuple(-9, -250));
}

TEST(PörssiRaportti, OutlookByTheAverageOverNineteen) {
    struct Tapaus { int summa; std::string keskiarvo; std::string näkymä; };
    for (const Tapaus& c : {Tapaus{17 * 19, " 17", "Huippukausi!"}, {16 * 19 + 18, " 16", "Nousukausi"},
                            {9 * 19, " 9", "Nousukausi"}, {8 * 19 + 18, " 8", "Neutraali"}, {6 * 19, " 6", "Neutraali"},
                            {5 * 19 + 18, " 5", "Laskusuhdanne"}, {19, " 1", "Laskusuhdanne"}, {-1, "-1", "Lama!"}}) {
        testi::Aloitettu t;
        t.m.Kurssi.fill(0);
        t.m.Kurssi[Leipä] = static_cast<Integer>(c.summa);  // bread has no line, but counts
        t.Tapahtumat();
        PörssiRaportti(t.peli);
        const auto tapahtumat = t.Tapahtumat();
        ASSERT_EQ(tapahtumat.size(), 22u);  // the title, 18 products, a blank line, the average, the outlook
        EXPECT_EQ(tapahtumat[20], "RIVI|0,0,0|0|         Keskiarvo : " + c.keskiarvo) << c.summa;
        EXPECT_EQ(tapahtumat[21], "RIVI|0,0,0|0|         Yleinen talousnäkymä : " + c.näkymä) << c.summa;
        EXPECT_EQ(t.kanavat.raportit.at(0).fonttikoko, 10);
        EXPECT_FALSE(t.peli.näkymä.PankkiKäytössä) << "the bank waits for the page to close";
    }
}

TEST(PerusHinnat, EachSupplyRaisesItsOwnProductsOnly) {
    struct Tapaus { Tarvike tarvike; std::map<Tuote, int> lisät; };
    const Tapaus tapaukset[] = {
        {Kutomakone, {{Vaate, 1}}}, {Kirnu, {{Juusto, 1}, {Maito, 1}}}, {Teollisuusuuni, {{Leipä, 1}, {Leivos, 1}}},
        {Kylmiö, {{Makkara, 2}, {Liha, 1}}}, {Käymissäiliö, {{Viini, 2}}}, {Turkiskuivaamo, {{Turkki, 100}}},
        {Lypsykone, {}},  // a machine of the herd, no price
    };
    testi::Testipeli t;
    t.Aloita("Testi", 1);
    t.m.Tarv.fill(false);
    PerusHinnat(t.peli);
    const auto perus = t.m.PerusHinta;
    for (const Tapaus& c : tapaukset) {
        t.m.Tarv.fill(false);
        t.m.Tarv[c.tarvike] = true;
        PerusHinnat(t.peli);
        for (std::size_t k = 0; k < TUOTTEITA; ++k) {
            const auto it = c.lisät.find(static_cast<Tuote>(k));
            EXPECT_EQ(t.m.PerusHinta[k], perus[k] + (it == c.lisät.end() ? 0 : it->second))
                << c.tarvike << " " << TUOTETAULU[k].avain;
        }
    }
    // All together milk takes three; a second run starts again from the table.
    t.m.Tarv.fill(true);
    PerusHinnat(t.peli);
    PerusHinnat(t.peli);
    EXPECT_EQ(t.m.PerusHinta[Maito], perus[Maito] + 3);
    EXPECT_EQ(t.m.PerusHinta[Turkki], perus[Turkki] + 150);
}

}  // namespace
}  // namespace tanhua
