// A long seeded walk over the contracts screen, the days and the month ends: the call always has its
// entry, a slot is whole or free, the counters never fall below 0, and a penalty too big for 32 bits
// is reported once with no call left open.
#include <gtest/gtest.h>

#include <random>

#include "contracts/sopimukset.h"
#include "core/päivä.h"
#include "core/kuukausi.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

void TarkistaEhjä(const Peli& peli, int askel) {
    const SopimusRuutuTila& r = peli.sopimusruutu;
    const auto& lista = peli.näkymä.Sopimuksia;
    if (r.Puhelussa) {
        ASSERT_GE(r.indeksi, 0) << askel;
        ASSERT_LT(r.indeksi, static_cast<int>(lista.size())) << askel;
        ASSERT_EQ(lista[static_cast<std::size_t>(r.indeksi)], r.tuote) << askel;
    } else {
        ASSERT_EQ(r.indeksi, -1) << askel;
    }
    for (const Sopimus& s : peli.m.Sop) {
        if (s.Tuote.empty())
            ASSERT_TRUE(s.Määrä == 0 && s.Hinta == 0 && s.Sakko == 0 && s.Kesto == 0) << askel;
        else
            ASSERT_TRUE(s.Määrä >= 1 && s.Hinta >= 1 && s.Sakko >= 40 && s.Kesto >= 0 && s.Kesto <= 17) << askel;
    }
    ASSERT_GE(peli.m.SopimuksiaLäpi, 0) << askel;
    ASSERT_GE(peli.m.SopimuksiaEpä, 0) << askel;
}

TEST(ContractsSoak, AHundredThousandPressesLeaveNoHalfOpenCallNorHalfSlot) {
    testi::Testipeli t;
    t.Aloita();
    Peli& peli = t.peli;
    peli.arvonta.Siemen(2026);
    std::mt19937 valinta(15);
    auto luku = [&](int n) { return static_cast<int>(valinta() % static_cast<unsigned>(n)); };
    int ylivuotoja = 0;
    for (int askel = 0; askel < 100000; ++askel) {
        Muuttujat& m = t.m;
        // The farm keeps its animals, staff and feed; the store is emptied now and then.
        Aseta(m.El[Nauta][Naaras], 10);
        Aseta(m.El[Kana][Naaras], 20);
        Aseta(m.Työ[Metsuri], 1);
        Aseta(m.Var[Rehu], 2000);
        Aseta(m.Raha, 100000);
        const int tuotteita = static_cast<int>(peli.näkymä.Sopimuksia.size());
        switch (luku(16)) {
            case 0: SeuraavaPäivä(peli); break;
            case 1: Aseta(m.Päivä, 1 + luku(29)); Sopimustarjous(peli); break;
            case 2: peli.näkymä.Sopimuksia.push_back(std::string(TARJOUKSET[luku(18)].teksti)); break;
            case 3: ValitseTarjous(peli, luku(tuotteita + 2) - 1); break;
            case 4: HyväksyTarjous(peli); break;
            case 5: HylkääTarjous(peli); break;
            case 6: UudetSopimukset(peli); break;
            case 7: NäytäSopimukset(peli); break;
            case 8: SuljeTarjoukset(peli); break;
            case 9: SuljeSopimuslappu(peli); break;
            case 10: ValitsePeruttava(peli, luku(3)); break;
            case 11:
                t.kanavat.vastaukset.push_back(luku(2) ? "Kyllä" : "Ei");
                PeruSopimus(peli);
                t.kanavat.vastaukset.clear();
                break;
            case 12: SuljeSopimukset(peli); break;
            case 13: Aseta(m.Var[static_cast<Tuote>(luku(static_cast<int>(TUOTTEITA)))], 0); break;
            case 14: TarjousSiivous(peli); break;
            default: {
                // A herd too big for the penalty's 32 bits: one report, no call.
                if (peli.sopimusruutu.Puhelussa) break;
                Aseta(m.El[Kettu][Naaras], 100000000);
                m.VikaLaskuri = 0;  // a fresh press of the player's, not the ninth failure in a row
                peli.näkymä.Sopimuksia.insert(peli.näkymä.Sopimuksia.begin(), "Turkki");
                t.kanavat.tapahtumat.clear();
                ValitseTarjous(peli, 0);
                int vikoja = 0;
                for (const std::string& e : t.kanavat.tapahtumat) vikoja += e.rfind("VIKA|", 0) == 0 ? 1 : 0;
                ASSERT_EQ(vikoja, 1) << askel;
                ASSERT_FALSE(peli.sopimusruutu.Puhelussa) << askel;
                Aseta(m.El[Kettu][Naaras], 0);
                ++ylivuotoja;
            }
        }
        if (peli.näkymä.RaporttiAuki) SuljeRaportti(peli);
        t.kanavat.tapahtumat.clear();
        TarkistaEhjä(peli, askel);
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(ylivuotoja, 0);
    EXPECT_GT(t.m.SopimuksiaLäpi + t.m.SopimuksiaEpä, 0);
}

}  // namespace
}  // namespace tanhua
