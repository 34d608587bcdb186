// Base prices: the products and the land by the difficulty, and what each supply adds.
#include <gtest/gtest.h>

#include <array>
#include <map>

#include "core/perushinnat.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

TEST(PerusHinnat, ProductsGrowCheaperAndLandAndFeedDearerWithTheDifficulty) {
    // By difficulty 0, 1, 2, in the order of the products, then the land.
    const std::array<std::array<int, TUOTTEITA>, 3> tuotteet{{
        {5, 16, 5, 4, 1500, 3, 125, 135, 14, 53, 12, 5, 3, 34, 60, 25, 40, 10, 30, 23},
        {4, 14, 4, 3, 1490, 4, 121, 131, 12, 50, 10, 4, 2, 31, 57, 23, 37, 8, 27, 20},
        {3, 12, 3, 2, 1480, 5, 117, 127, 10, 47, 8, 3, 1, 28, 54, 21, 34, 6, 24, 17},
    }};
    struct Maahinnat { long metsä, pelto, joutomaa, laidun; };
    const std::array<Maahinnat, 3> maat{{{10000, 10000, 5000, 8000}, {12000, 12000, 6000, 9500},
                                         {14000, 14000, 7000, 11000}}};
    for (int taso = 0; taso < 3; ++taso) {
        testi::Testipeli t;
        t.Aloita("Testi", taso);
        t.m.PerusHinta.fill(0);
        PerusHinnat(t.peli);
        for (std::size_t k = 0; k < TUOTTEITA; ++k)
            EXPECT_EQ(t.m.PerusHinta[k], tuotteet[static_cast<std::size_t>(taso)][k])
                << TUOTETAULU[k].avain << " at " << taso;
        const Maahinnat& odotettu = maat[static_cast<std::size_t>(taso)];
        EXPECT_EQ(t.m.PerusMaa[MaaMetsä], odotettu.metsä) << taso;
        EXPECT_EQ(t.m.PerusMaa[MaaPelto], odotettu.pelto) << taso;
        EXPECT_EQ(t.m.PerusMaa[MaaJoutomaa], odotettu.joutomaa) << taso;
        EXPECT_EQ(t.m.PerusMaa[MaaLaidun], odotettu.laidun) << taso;
        EXPECT_FLOAT_EQ(t.m.Siemen[Mansikka], 0.5f);
        EXPECT_FLOAT_EQ(t.m.Siemen[Peruna], 0.2f);
        EXPECT_FLOAT_EQ(t.m.Siemen[Rypsi], 0.35f);
    }
}

TEST(PerusHinnat, EachSupplyRaisesItsOwnProductsOnly) {
    struct Tapaus { Tarvike tarvike; std::map<Tuote, int> lisät; };
    const Tapaus tapaukset[] = {
        {Kutomakone, {{Vaate, 1}}},
        {Teollisuusrukki, {{Villa, 1}}},
        {Separointikone, {{Maito, 1}}},
        {Pastörointikammio, {{Maito, 1}}},
        {Kirnu, {{Juusto, 1}, {Maito, 1}}},
        {Lantasäiliö, {{Lanta, 1}}},
        {Teollisuusuuni, {{Leipä, 1}, {Leivos, 1}}},
        {Kylmiö, {{Makkara, 2}, {Liha, 1}}},
        {Käymissäiliö, {{Viini, 2}}},
        {Turkiskuivaamo, {{Turkki, 100}}},
        {Kaavintakone, {{Turkki, 50}}},
        {Lypsykone, {}},  // a machine of the herd, no price
        {Hautomo, {}},
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
            const int lisä = it == c.lisät.end() ? 0 : it->second;
            EXPECT_EQ(t.m.PerusHinta[k], perus[k] + lisä) << c.tarvike << " " << TUOTETAULU[k].avain;
        }
    }
    // All together they add up; milk takes three.
    t.m.Tarv.fill(true);
    PerusHinnat(t.peli);
    EXPECT_EQ(t.m.PerusHinta[Maito], perus[Maito] + 3);
    EXPECT_EQ(t.m.PerusHinta[Turkki], perus[Turkki] + 150);
    // A second run starts again from the table: the bonuses don't pile up.
    PerusHinnat(t.peli);
    EXPECT_EQ(t.m.PerusHinta[Maito], perus[Maito] + 3);
}

}  // namespace
}  // namespace tanhua
