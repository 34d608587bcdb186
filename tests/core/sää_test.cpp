// The day's weather: the temperature step by season, the band of the month, clouds, thunder and hail.
#include <gtest/gtest.h>

#include "core/päivä.h"
#include "core/sää.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using Tila = testi::Aloitettu;

// The five draws of a day, in their order: temperature step, return to the band, cloud step,
// thunder (0 of 12), hail (0 of 25).
struct Päivänsää { double lämpö, paluu, pilvi, ukkonen = 0.5, rakeet = 0.5; };

void Keli(testi::Testipeli& t, const Päivänsää& d) {
    for (double r : {d.lämpö, d.paluu, d.pilvi, d.ukkonen, d.rakeet}) t.peli.arvonta.Jonoon(r);
    tanhua::Keli(t.peli);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u) << "five draws a day";
}

TEST(Weather, TemperatureStepBySeasonAndTheMonthsBand) {
    struct Tapaus { int kuukausi; int alku; double lämpö, paluu; int odotettu; };
    for (const Tapaus& c : {Tapaus{6, 20, 0.0, 0.0, 18},      // summer: -2 at the lowest
                            {6, 20, 0.999, 0.0, 22},          // summer: +2 at the highest
                            {4, 0, 0.999, 0.0, 4},            // spring: up to +4
                            {9, 10, 0.999, 0.0, 11},          // autumn: up to +1
                            {1, -31, 0.5, 0.0, -30},          // under January's -30: back by 1
                            {1, -31, 0.5, 0.999, -28},        // ... or by 3
                            {6, 33, 0.5, 0.999, 30},          // over June's 32: down by 3
                            {6, 32, 0.5, 0.999, 32},          // at the edge nothing comes back
                            {12, 0, 0.999, 0.0, 1}}) {        // winter +2 over December's 0, back by 1
        Tila t;
        t.m.Kuukausi = static_cast<Byte>(c.kuukausi);
        t.m.Vuodenaika = VuodenaikaKuukaudesta(c.kuukausi);
        t.m.Lämpötila = static_cast<Integer>(c.alku);
        Keli(t, {c.lämpö, c.paluu, 0.5});
        EXPECT_EQ(t.m.Lämpötila, c.odotettu) << c.kuukausi << " " << c.alku;
    }
}

TEST(Weather, CloudsThePictureAndTheSumsOfSunAndRain) {
    struct Tapaus { int pilvet; int lämpötila; double pilvi, ukkonen, rakeet; int odotettuPilvi, kuva; };
    for (const Tapaus& c : {Tapaus{0, 20, 0.0, 0.5, 0.5, 1, 0},       // a new farm's first weather: 1 or 2
                            {0, 20, 0.999, 0.5, 0.5, 2, 1},
                            {6, 20, 0.999, 0.5, 0.5, 6, 5},           // held to 6; rain when warm
                            {6, 0, 0.5, 0.5, 0.5, 6, 5},              // 0 degrees is rain, not snow
                            {6, -1, 0.5, 0.5, 0.5, 6, 7},             // snow
                            {5, -1, 0.5, 0.5, 0.5, 5, 6},
                            {3, 16, 0.5, 0.0, 0.5, 3, 8},             // thunder
                            {3, 15, 0.5, 0.0, 0.5, 3, 2},             // too cold for thunder
                            {2, 20, 0.5, 0.0, 0.0, 2, 9},             // hail wins over thunder
                            {3, 20, 0.5, 0.5, 0.0, 3, 2},             // no hail under thick clouds
                            {1, 30, 0.5, 0.5, 0.0, 1, 0}}) {          // nor at 30 degrees
        Tila t;
        t.m.Pilvisyys = static_cast<Integer>(c.pilvet);
        t.m.Lämpötila = static_cast<Integer>(c.lämpötila);
        // A month whose band holds the temperature, so that it stays as it is.
        t.m.Kuukausi = static_cast<Byte>(c.lämpötila <= 0 ? 1 : 6);
        t.m.Vuodenaika = VuodenaikaKuukaudesta(t.m.Kuukausi);
        Keli(t, {0.5, 0.5, c.pilvi, c.ukkonen, c.rakeet});
        EXPECT_EQ(std::tuple(t.m.Pilvisyys, t.peli.näkymä.SääKuva), std::tuple(c.odotettuPilvi, c.kuva))
            << c.pilvet << " " << c.lämpötila;
    }
    // The sums of sun and rain decay by 8 % a day and grow by the day's clouds.
    struct Summat { int pilvi; float aurinko, sade; };
    for (const Summat& c : {Summat{1, 10 * 0.92f + 0.8f, 10 * 0.92f}, {3, 10 * 0.92f + 0.2f, 10 * 0.92f},
                            {4, 10 * 0.92f, 10 * 0.92f + 0.2f}, {6, 10 * 0.92f, 10 * 0.92f + 0.8f}}) {
        Tila t;
        t.m.Aurinkoisuus = 10;
        t.m.Sateisuus = 10;
        t.m.Pilvisyys = static_cast<Integer>(c.pilvi);
        Keli(t, {0.5, 0.5, 0.5});  // the cloud code stays
        EXPECT_EQ(std::tuple(t.m.Aurinkoisuus, t.m.Sateisuus), std::tuple(c.aurinko, c.sade)) << c.pilvi;
    }
}

}  // namespace
}  // namespace tanhua
