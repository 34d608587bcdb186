// A hundred years of random play on the chains: buildings raised, sliders moved, devices bought and sold,
// staff hired, fired and put on overtime. Nothing fails, no stock or count goes below 0, and the
// bills stay at 0 or above and start again at each month end.
#include <gtest/gtest.h>

#include <random>

#include "buildings/rakennukset.h"
#include "core/päivä.h"
#include "core/kuukausi.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

// A hundred game years: a day without a window is cheap.
constexpr int VUOSIA = 100;

// One move of the random player, as the screens would make it: the record's values set by name.
void Siirto(Muuttujat& m, std::mt19937& g) {
    auto luku = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(g); };
    switch (luku(0, 7)) {
        case 0: Aseta(m.Rak[luku(0, RAKENNUKSIA - 1)], luku(0, 5)); break;
        case 1: Aseta(m.Tuotanto[luku(0, RAKENNUKSIA - 1)], 10 * luku(0, 10)); break;
        case 2: Aseta(m.Tarv[luku(0, TARVIKKEITA - 1)], luku(0, 1) == 1); break;
        case 3: Aseta(m.Työ[luku(0, TYÖLÄISIÄ - 1)], luku(0, 10)); break;
        case 4: Aseta(m.Ylityö[luku(0, TYÖLÄISIÄ - 1)], luku(0, 1) == 1); break;
        case 5: Aseta(m.Var[luku(0, TUOTTEITA - 1)], luku(0, 3000)); break;
        case 6: Aseta(m.Moti[luku(0, TYÖLÄISIÄ - 1)], luku(-1, 3)); break;
        default: break;  // a day with no move
    }
}

TEST(Soak, YearsOfRandomPlayKeepStocksCountsAndBillsSound) {
    testi::Testipeli t;
    t.Aloita();
    Muuttujat& m = t.m;
    std::mt19937 g(20260);
    Aseta(m.Pelto, 30);
    Aseta(m.Koko_Varasto, 50000);
    Aseta(m.Koko_Siilo, 50000);
    Aseta(m.Koko_Navetta, 100);
    Aseta(m.El[Nauta][Naaras], 20);
    const int päiviä = VUOSIA * 360;
    for (int päivä = 0; päivä < päiviä; ++päivä) {
        Siirto(m, g);
        // Money stays plentiful, so the soak plays the chains rather than bankruptcy.
        Aseta(m.Raha, 1e6);
        Aseta(m.Var[Rehu], 5000);
        const bool kuunloppu = m.Päivä == 30;
        SeuraavaPäivä(t.peli);
        if (t.peli.näkymä.RaporttiAuki) SuljeRaportti(t.peli);
        for (const std::string& tapahtuma : t.kanavat.tapahtumat) ASSERT_NE(tapahtuma.rfind("VIKA|", 0), 0u) << tapahtuma;
        t.kanavat.tapahtumat.clear();
        for (std::size_t k = 0; k < TUOTTEITA; ++k) ASSERT_GE(m.Var[k], 0) << TUOTETAULU[k].avain << " day " << päivä;
        ASSERT_GE(m.Sähkölasku, 0);
        ASSERT_GE(m.Vesilasku, 0);
        ASSERT_GE(m.RehuaTuotettu, 0);
        ASSERT_GE(m.ViljaaKäytetty, 0);
        ASSERT_GE(m.YlityöPalkat, 0);
        if (kuunloppu) {
            // Cleared at the month end; the new month holds only the day that ended the old one.
            const Single sähkö = m.Sähkölasku, vesi = m.Vesilasku;
            m.Sähkölasku = 0;
            m.Vesilasku = 0;
            PäiväKulut(t.peli);
            ASSERT_NEAR(sähkö, m.Sähkölasku, 1e-3) << "day " << päivä;
            ASSERT_NEAR(vesi, m.Vesilasku, 1e-3) << "day " << päivä;
            m.Sähkölasku = sähkö;
            m.Vesilasku = vesi;
        }
    }
    EXPECT_EQ(m.Vuosi, 1980 + VUOSIA) << "every day was played";
    EXPECT_GT(m.RehuaTuotettu + m.Var[Juusto] + m.Var[Viini] + m.Var[Lauta], 0) << "the chains worked";
}

}  // namespace
}  // namespace tanhua
