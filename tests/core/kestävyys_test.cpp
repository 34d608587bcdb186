// A hundred years of random play on the whole farm: buildings raised, sliders moved, devices bought and
// sold, staff hired, fired and put on overtime, land bought and sold, foresters hired and fired,
// replanting switched, insurance taken and dropped, the contracts screen pressed at random, and random
// answers to every box. Nothing fails, no stock, head count, staff or land goes below 0, the hectare
// being felled stays within its percentage, the bills stay at 0 or above and start again at each month
// end, an open call always has its entry and a contract slot is whole or free, and the events show a
// plausible mix of pictures.
#include <gtest/gtest.h>

#include <random>
#include <set>

#include "buildings/rakennukset.h"
#include "contracts/sopimukset.h"
#include "core/kuukausi.h"
#include "core/päivä.h"
#include "land/pellot.h"
#include "tuki/testipeli.h"
#include "workforce/työvoima.h"

namespace tanhua {
namespace {

// A hundred game years: a day without a window is cheap.
constexpr int VUOSIA = 100;

// One move of the random player: the chains' values set by name as their screens would, the land and
// the foresters through their screens. The player's own generator, never the game's draws.
void Siirto(Peli& peli, std::mt19937& g) {
    Muuttujat& m = peli.m;
    auto luku = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(g); };
    switch (luku(0, 15)) {
        case 0: Aseta(m.Rak[luku(0, RAKENNUKSIA - 1)], luku(0, 5)); break;
        case 1: Aseta(m.Tuotanto[luku(0, RAKENNUKSIA - 1)], 10 * luku(0, 10)); break;
        case 2: Aseta(m.Tarv[luku(0, TARVIKKEITA - 1)], luku(0, 1) == 1); break;
        case 3: Aseta(m.Työ[luku(0, TYÖLÄISIÄ - 1)], luku(0, 10)); break;
        case 4: Aseta(m.Ylityö[luku(0, TYÖLÄISIÄ - 1)], luku(0, 1) == 1); break;
        case 5: Aseta(m.Var[luku(0, TUOTTEITA - 1)], luku(0, 3000)); break;
        case 6: Aseta(m.Moti[luku(0, TYÖLÄISIÄ - 1)], luku(-1, 3)); break;
        case 7: case 8: case 9: {
            ValitseMaa(peli, static_cast<Maa>(luku(0, 3)));
            for (int i = luku(0, 2); i > 0; --i) plus(peli);
            if (luku(0, 1) == 0) MyyMaata(peli);
            else OstaMaata(peli);
            break;
        }
        case 10: case 11:
            // A crew of up to a dozen, so that forests are felled to the last hectare now and then.
            ValitseTyöläinen(peli, Metsuri);
            if (m.Työ[Metsuri] < 1 || (m.Työ[Metsuri] < 12 && luku(0, 1) == 0)) OtaTöihin(peli);
            else Erota(peli);
            break;
        case 12:
            ValitseTyöläinen(peli, Metsuri);
            if (luku(0, 1) == 0) YlityöPäälle(peli);
            else YlityöPois(peli);
            break;
        case 13: AsetaMetsitä(peli, luku(0, 1) == 0); break;
        case 14: m.Pankki.Vakuutus[luku(0, VAKUUTUKSIA - 1)] = luku(0, 1); break;
        default: break;  // a day with no move
    }
}

// A press on the contracts screen, any that a player could try, in or out of a call.
void Sopimussiirto(Peli& peli, std::mt19937& g) {
    auto luku = [&](int n) { return static_cast<int>(g() % static_cast<unsigned>(n)); };
    const int tuotteita = static_cast<int>(peli.näkymä.Sopimuksia.size());
    switch (luku(14)) {
        case 0: Sopimustarjous(peli); break;
        case 1: peli.näkymä.Sopimuksia.push_back(std::string(TARJOUKSET[luku(18)].teksti)); break;
        case 2: case 3: ValitseTarjous(peli, luku(tuotteita + 2) - 1); break;
        case 4: HyväksyTarjous(peli); break;
        case 5: HylkääTarjous(peli); break;
        case 6: UudetSopimukset(peli); break;
        case 7: NäytäSopimukset(peli); break;
        case 8: SuljeTarjoukset(peli); break;
        case 9: SuljeSopimuslappu(peli); break;
        case 10: ValitsePeruttava(peli, luku(3)); break;
        case 11: PeruSopimus(peli); break;
        case 12: SuljeSopimukset(peli); break;
        default: TarjousSiivous(peli); break;
    }
}

void TarkistaSopimukset(const Peli& peli, int päivä) {
    const SopimusRuutuTila& r = peli.sopimusruutu;
    const auto& lista = peli.näkymä.Sopimuksia;
    if (r.Puhelussa) {
        ASSERT_TRUE(r.indeksi >= 0 && r.indeksi < static_cast<int>(lista.size())) << päivä;
        ASSERT_EQ(lista[static_cast<std::size_t>(r.indeksi)], r.tuote) << päivä;
    } else {
        ASSERT_EQ(r.indeksi, -1) << päivä;
    }
    for (const Sopimus& s : peli.m.Sop) {
        if (s.Tuote.empty())
            ASSERT_TRUE(s.Määrä == 0 && s.Hinta == 0 && s.Sakko == 0 && s.Kesto == 0) << päivä;
        else
            ASSERT_TRUE(s.Määrä >= 1 && s.Hinta >= 1 && s.Sakko >= 40 && s.Kesto >= 0 && s.Kesto <= 17) << päivä;
    }
    ASSERT_TRUE(peli.m.SopimuksiaLäpi >= 0 && peli.m.SopimuksiaEpä >= 0) << päivä;
}

TEST(Soak, AHundredYearsOfRandomPlayOnTheWholeFarmKeepEverythingSound) {
    testi::Testipeli t;
    t.Aloita("Metsä", 1, 0, false);
    Muuttujat& m = t.m;
    std::mt19937 g(20260);
    Aseta(m.Pelto, 30);
    Aseta(m.Koko_Varasto, 50000);
    Aseta(m.Koko_Siilo, 50000);
    Aseta(m.Koko_Navetta, 100);
    Aseta(m.El[Nauta][Naaras], 20);
    m.LantaPeltoon = true;
    Aseta(m.El[Kana][Naaras], 60);
    Aseta(m.Laidun, 2);
    AvaaTyövoima(t.peli);
    // The pictures the events showed: a plausible mix, not one family over and over.
    const std::string SATTUMA = "IKKUNA|Kuvat/sattumat/";
    std::set<std::string> kuvat;
    for (int päivä = 0; päivä < VUOSIA * 360; ++päivä) {
        for (int i = 0; i < 4; ++i) t.kanavat.vastaukset.push_back(g() % 2 ? "Kyllä" : "Ei");
        Siirto(t.peli, g);
        for (int i = 0; i < 3; ++i) {
            Sopimussiirto(t.peli, g);
            TarkistaSopimukset(t.peli, päivä);
            if (HasFatalFailure()) return;
        }
        // Money and feed stay plentiful, so the soak plays the chains and the land rather than bankruptcy.
        Aseta(m.Raha, 1e6);
        Aseta(m.Var[Rehu], 5000);
        const bool kuunloppu = m.Päivä == 30;
        SeuraavaPäivä(t.peli);
        if (t.peli.näkymä.RaporttiAuki) SuljeRaportti(t.peli);
        // Logs and grain are sold off now and then, as a player would, to keep the store in reach.
        if (m.Päivä == 1) m.Var[Puu] = m.Var[Vilja] = 0;
        for (const std::string& e : t.kanavat.tapahtumat) {
            if (e.rfind(SATTUMA, 0) == 0) kuvat.insert(e.substr(0, e.find('|', SATTUMA.size())));
            ASSERT_NE(e.rfind("VIKA|", 0), 0u) << e;
            ASSERT_NE(e.rfind("LAATIKKO|", 0), 0u) << e;
        }
        t.kanavat.tapahtumat.clear();
        t.kanavat.vastaukset.clear();
        for (const auto& laji : m.El)
            for (Long luku : laji) ASSERT_GE(luku, 0) << "day " << päivä;
        for (Long työntekijöitä : m.Työ) ASSERT_GE(työntekijöitä, 0) << "day " << päivä;
        for (std::size_t k = 0; k < TUOTTEITA; ++k) ASSERT_GE(m.Var[k], 0) << TUOTETAULU[k].avain << " day " << päivä;
        for (const Single ala : {m.Metsä, m.Pelto, m.Joutomaa, m.Laidun}) ASSERT_GE(ala, 0) << "day " << päivä;
        ASSERT_GE(m.Sähkölasku, 0);
        ASSERT_GE(m.Vesilasku, 0);
        ASSERT_GE(m.RehuaTuotettu, 0);
        ASSERT_GE(m.ViljaaKäytetty, 0);
        ASSERT_GE(m.YlityöPalkat, 0);
        ASSERT_LE(m.MetsääJäljellä, 100) << päivä;
        // A crew bigger than what is left may bite below 0 on its last pass when no forest is left to
        // start; the next pass puts it to 0.
        if (m.Metsä >= 1) {
            ASSERT_GE(m.MetsääJäljellä, 0) << päivä;
        }
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
    EXPECT_GT(m.Työ[Metsuri] + m.Metsä + m.Pelto, 0) << "the land was played";
    EXPECT_GT(m.SopimuksiaLäpi + m.SopimuksiaEpä, 0) << "contracts were made and ended";
    std::string nähdyt;
    for (const std::string& k : kuvat) nähdyt += k.substr(SATTUMA.size()) + " ";
    EXPECT_GE(kuvat.size(), 12u) << nähdyt;
}

}  // namespace
}  // namespace tanhua
