// The stars: every requirement of a row at once, land strictly above, one star a day, the prize and the news.
#include <gtest/gtest.h>

#include "core/tähdet.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

// A farm that meets the third star's row exactly, with two stars already.
void KolmannenTähdenTila(Muuttujat& m) {
    m.Tähdet = 2;
    m.El[Kana][Naaras] = 30;
    m.Koko_Siilo = 600;
    m.Koko_Varasto = 600;
    m.TyöntekijöitäYht = 3;
    for (int i = 0; i < 4; ++i) m.Tarv[i] = true;
    m.Pelto = 5.5f;
    m.RakennuksiaYht = 1;
    m.SopimuksiaLäpi = 1;
}

TEST(Stars, TheThirdStarAsksForItsWholeRow) {
    struct Tapaus { const char* nimi; std::function<void(Muuttujat&)> muuta; bool tähti; };
    const Tapaus tapaukset[] = {
        {"all met", [](Muuttujat&) {}, true},
        {"land of exactly 5 is not enough", [](Muuttujat& m) { m.Pelto = 5; }, false},
        {"young don't count", [](Muuttujat& m) { m.El[Kana][Naaras] = 29; m.El[Kana][Nuori] = 50; }, false},
        {"one supply short", [](Muuttujat& m) { m.Tarv[3] = false; }, false},
        {"no contract kept", [](Muuttujat& m) { m.SopimuksiaLäpi = 0; }, false},
        {"store too small", [](Muuttujat& m) { m.Koko_Varasto = 599; }, false},
        {"no building", [](Muuttujat& m) { m.RakennuksiaYht = 0; }, false},
        {"males count too", [](Muuttujat& m) { m.El[Kana][Naaras] = 20; m.El[Nauta][Uros] = 10; }, true},
        {"no stars without the star system", [](Muuttujat& m) { m.TähtiLukitus = false; }, false},
    };
    for (const Tapaus& c : tapaukset) {
        testi::Aloitettu t;
        KolmannenTähdenTila(t.m);
        c.muuta(t.m);
        t.m.Raha = 100;
        TähtiTarkastus(t.peli);
        EXPECT_EQ(std::tuple(t.m.Tähdet, t.m.Raha), c.tähti ? std::tuple(3, 3100.0f) : std::tuple(2, 100.0f)) << c.nimi;
        const auto tapahtumat = t.Tapahtumat();
        ASSERT_EQ(tapahtumat.size(), c.tähti ? 1u : 0u) << c.nimi;
        EXPECT_TRUE(!c.tähti || tapahtumat[0].starts_with("IKKUNA|Kuvat/sattumat/Onnittelu.jpg|Tilasi on valittu tämän maakunnan"));
    }
}

TEST(Stars, OneStarADay) {
    // A farm big enough for every star earns them one a day, prizes 1000, 2000, 3000, 5000, 10000.
    testi::Aloitettu t;
    t.m.El[Kana][Naaras] = 200;
    t.m.Koko_Siilo = t.m.Koko_Varasto = 6000;
    t.m.TyöntekijöitäYht = 10;
    t.m.Tarv.fill(true);
    t.m.Metsä = 200;
    t.m.RakennuksiaYht = 6;
    t.m.SopimuksiaLäpi = 10;
    t.m.Raha = 0;
    std::vector<std::pair<int, float>> päivät;
    for (int päivä = 0; päivä < 6; ++päivä) {
        TähtiTarkastus(t.peli);
        päivät.emplace_back(t.m.Tähdet, t.m.Raha);
    }
    EXPECT_EQ(päivät, (std::vector<std::pair<int, float>>{{1, 1000}, {2, 3000}, {3, 6000}, {4, 11000}, {5, 21000}, {5, 21000}}));
}

TEST(Stars, AClickShowsWhatTheStarAsks) {
    testi::Aloitettu t;
    NäytäTähti(t.peli, 0);
    EXPECT_EQ(t.Tapahtumat(), std::vector<std::string>{"VIESTI|0|Tähden saavuttamiseen :\\nEläimiä : 10, Siilo : 200, "
                                                       "Varasto : 200\\n|vastattu"});
    NäytäTähti(t.peli, 3);
    EXPECT_EQ(t.Tapahtumat(), std::vector<std::string>{
                                  "VIESTI|0|Tähden saavuttamiseen :\\nEläimiä : 50, Siilo : 1000, Varasto : 1000\\n, 3 "
                                  "sopimusta, 3 jalostamoa, 5 työntekijää, 8 tarviketta\\n, maa-alueita 50 hehtaaria\\n|vastattu"});
    t.m.Tähdet = 5;
    NäytäTähti(t.peli, 4);
    EXPECT_EQ(t.Tapahtumat(), std::vector<std::string>{"IKKUNA|Kuvat/sattumat/Onnittelu.jpg|Sinulla on jo saavutettuna "
                                                       "kaikki tähdet. Tilasi on valittu yhdeksi maamme parhaaksi maatilaksi."});
}

}  // namespace
}  // namespace tanhua
