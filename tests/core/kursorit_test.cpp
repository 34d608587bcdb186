// The game's pointer: the forms in their order, a box for each form that can't load the picture,
// and nothing at all with the setting off.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/kursorit.h"
#include "core/vikatila.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

TEST(Pointer, EachFormInTurnAndABoxForEachThatFails) {
    testi::Testipeli t;
    t.peli.asetukset.Kursorit = true;
    Aseta(t.m.VikaLaskuri, 3);
    std::vector<std::string> annetut;
    LataaKursorit(t.peli, [&](std::string_view lomake) {
        if (lomake == "Message" || lomake == "Topten") NostaVika(VIKA_EI_TIEDOSTOA);
        annetut.emplace_back(lomake);
    });
    EXPECT_EQ(annetut.size(), 15u) << "a failing form doesn't stop the ones after it";
    EXPECT_EQ(annetut.front(), "Alku");
    EXPECT_EQ(annetut.back(), "Työvoima");
    const std::string laatikko =
        "LAATIKKO|Tanhua ei löytänyt \\kuvat kansiosta kursoria, tarkasta ettei ole poistanut tai muokannut sitä. "
        "Jotta peli saadaan toimimaan asenna se uudelleen tai palauta tiedosto. Ongelman jatkuessa ota asetuksista "
        "pelin oma kursori pois käytöstä";
    EXPECT_EQ(t.Tapahtumat(), (std::vector<std::string>{laatikko, laatikko}));
    EXPECT_EQ(t.m.VikaPaikka, "Alku formi. Ladattaessa kursoreita");
    EXPECT_EQ(t.m.VikaLaskuri, 0);

    t.peli.asetukset.Kursorit = false;
    Aseta(t.m.VikaLaskuri, 3);
    LataaKursorit(t.peli, [&](std::string_view) { ADD_FAILURE() << "no pointer with the setting off"; });
    EXPECT_EQ(t.m.VikaLaskuri, 3);
}

}  // namespace
}  // namespace tanhua
