// Base prices: the difficulty's direction for products, feed and land, and what each supply adds.
#include <gtest/gtest.h>

#include <map>

#include "core/perushinnat.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

TEST(PerusHinnat, ProductsGrowCheaperAndLandAndFeedDearerWithTheDifficulty) {
    // Manure at the hardest level is worth a single mark; furs fall by ten a level, the pasture rises by 1500.
    struct Tapaus { int taso; int lanta, rehu, turkki, leipä; long joutomaa, laidun; };
    for (const Tapaus& c : {Tapaus{0, 3, 3, 1500, 34, 5000, 8000}, {2, 1, 5, 1480, 28, 7000, 11000}}) {
        testi::Testipeli t;
        t.Aloita("Testi", c.taso);
        t.m.PerusHinta.fill(0);
        PerusHinnat(t.peli);
        EXPECT_EQ(t.m.PerusHinta[Lanta], c.lanta) << c.taso;
        EXPECT_EQ(t.m.PerusHinta[Rehu], c.rehu) << c.taso;
        EXPECT_EQ(t.m.PerusHinta[Turkki], c.turkki) << c.taso;
        EXPECT_EQ(t.m.PerusHinta[Leipä], c.leipä) << c.taso;
        EXPECT_EQ(t.m.PerusMaa[MaaJoutomaa], c.joutomaa) << c.taso;
        EXPECT_EQ(t.m.PerusMaa[MaaLaidun], c.laidun) << c.taso;
        EXPECT_FLOAT_EQ(t.m.Siemen[Rypsi], 0.35f);
    }
}

TEST(PerusHinnat, EachSupplyRaisesItsOwnProductsOnly) {
    struct Tapaus { Tarvike tarvike; std::map<Tuote, int> lisät; };
    const Tapaus tapaukset[] = {
        {Kutomakone, {{Vaate, 1}}},           {Teollisuusrukki, {{Villa, 1}}},
        {Separointikone, {{Maito, 1}}},       {Pastörointikammio, {{Maito, 1}}},
        {Kirnu, {{Juusto, 1}, {Maito, 1}}},   {Lantasäiliö, {{Lanta, 1}}},
        {Teollisuusuuni, {{Leipä, 1}, {Leivos, 1}}},
        {Kylmiö, {{Makkara, 2}, {Liha, 1}}},  {Käymissäiliö, {{Viini, 2}}},
        {Turkiskuivaamo, {{Turkki, 100}}},    {Kaavintakone, {{Turkki, 50}}},
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
