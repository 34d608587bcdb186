// The statistics screen: the scale's rungs and labels, the line, items read back from text, the
// time axis, the net table's rows and gates.
#include <gtest/gtest.h>

#include "core/peli.h"
#include "stats/käyrät.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

// The screen opened with sounds on: the opening's click is the only draw.
struct Käyrillä : Testipeli {
    Käyrillä() {
        Aloita();
        peli.asetukset.Äänitehosteet = true;
        peli.arvonta.Jonoon(0);
        AvaaKäyrät(peli);
        Tapahtumat();
    }
    const KäyrätRuutuTila& r() const { return peli.käyrätruutu; }
};

TEST(Curves, TopIsTheFirstRungNotBelowTheLargestFloorAndTheLabelsCutMillions) {
    struct Tapaus { Käyrä k; std::vector<std::string> lista; double T; const char* maximi; const char* puoli; const char* minimi; };
    const Tapaus tapaukset[] = {
        {KäyräRaha, {}, 100, " 100;-", " 50;-", " 0;-"},
        {KäyräRaha, {" 100.9"}, 100, " 100;-", " 50;-", " 0;-"},  // the floor is 100, a rung
        {KäyräRaha, {" 101", " 5"}, 1000, " 1000;-", " 500;-", " 0;-"},
        {KäyräRaha, {"-5000", "-1"}, 100, " 100;-", " 50;-", " 0;-"},
        {KäyräRaha, {" 7500000"}, 7500000, " 7 milj", " 3 milj", " 0;-"},
        {KäyräRaha, {" 7500001"}, 10000000, " 10 milj", " 5 milj", " 0;-"},
        {KäyräRaha, {" 1.2E+07"}, 10000000, " 10 milj", " 5 milj", " 0;-"},
        {KäyräLV, {" 2000000"}, 2000000, " 2 milj", " 1000000;-", " 0;-"},  // T / 2 at exactly a million
        {KäyräLV, {" 2000001"}, 5000000, " 5 milj", " 2 milj", " 0;-"},
        {KäyräLV, {" 1.5E+08"}, 100000000, " 100 milj", " 50 milj", " 0;-"},
        {KäyräNetto, {" 999999.9"}, 1000000, " 1 milj", " 500000;-", " 0;-"},
        {KäyräPalkat, {" 5000001"}, 10000000, " 10000000;-", " 5000000;-", " 0;-"},
        {KäyräEläimet, {" 10"}, 10, " 10 eläintä", " 5 eläintä", " 0 eläintä"},
        {KäyräEläimet, {" 11"}, 20, " 20 eläintä", " 10 eläintä", " 0 eläintä"},
        {KäyräRakennukset, {" 11"}, 100, " 100 m/4", " 50 m/4", " 0 m/4"},
    };
    for (const Tapaus& c : tapaukset) {
        Käyrillä t;
        t.m.Käyrät.*KÄYRÄTAULU[c.k].lista = c.lista;
        PiirräKäyrä(t.peli, c.k);
        const std::string mikä = std::string(KÄYRÄTAULU[c.k].nimi) + (c.lista.empty() ? "" : c.lista[0]);
        EXPECT_EQ(t.r().T, c.T) << mikä;
        EXPECT_EQ(t.r().Maximi, c.maximi) << mikä;
        EXPECT_EQ(t.r().Puoli, c.puoli) << mikä;
        EXPECT_EQ(t.r().Minimi, c.minimi) << mikä;
        EXPECT_EQ(t.r().otsikko, KÄYRÄTAULU[c.k].otsikko) << mikä;
        EXPECT_EQ(t.Tapahtumat(), Tapahtumat{"ÄÄNI|siirto"}) << mikä;
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u) << mikä;
    }
}

TEST(Curves, TheLineIsTwoUnitsThickItsFirstSegmentFlatUnitAndStepRoundedToEven) {
    Käyrillä t;
    // Top 1000 over 400 units is 2.5: the unit rounds to 2, so 200 stands 100 units up.
    t.m.Käyrät.Rahatila = {" 0", " 200"};
    PiirräKäyrä(t.peli, KäyräRaha);
    EXPECT_EQ(std::tuple(t.r().U, t.r().S), std::tuple(2, 300));
    ASSERT_EQ(t.r().janat.size(), 4u);
    const Jana odotetut[] = {{0, 400, 300, 400}, {0, 401, 300, 401}, {300, 400, 600, 300}, {300, 401, 600, 301}};
    for (std::size_t i = 0; i < 4; ++i) {
        const Jana& j = t.r().janat[i];
        EXPECT_EQ((std::array{j.x1, j.y1, j.x2, j.y2}), (std::array{odotetut[i].x1, odotetut[i].y1, odotetut[i].x2, odotetut[i].y2})) << i;
    }
    // 600 / 16 = 37.5 and 600 / 48 = 12.5 go to the even step; an empty list steps 1 and draws nothing.
    for (auto [n, S] : {std::pair{16, 38}, std::pair{48, 12}, std::pair{0, 1}, std::pair{10000, 0}}) {
        t.m.Käyrät.Eläimiä.assign(static_cast<std::size_t>(n), " 3");
        PiirräKäyrä(t.peli, KäyräEläimet);
        EXPECT_EQ(t.r().S, S) << n;
        EXPECT_EQ(t.r().U, 1) << "10 / 400 rounds to 0, which becomes 1";
        EXPECT_EQ(t.r().janat.size(), static_cast<std::size_t>(2 * n));
    }
}

TEST(Curves, AnItemThatIsNotANumberIsFailure13AtItsButton) {
    for (const char* vastaus : {KYLLÄ, EI}) {
        Käyrillä t;
        t.m.Käyrät.YHTPalkat = {" 100", "sata", ""};
        t.kanavat.vastaukset = {vastaus, vastaus};
        PiirräKäyrä(t.peli, KäyräPalkat);
        const Tapahtumat alku{"ÄÄNI|siirto", "ÄÄNI|virhe", "VIKA|Käyrät formi. Command1 click|13|" + std::string(vastaus)};
        if (std::string(vastaus) == KYLLÄ) {
            // Going on leaves both out: one line from the good item, the labels at the lowest rung.
            Tapahtumat odotetut = alku;
            odotetut.insert(odotetut.end(), {"ÄÄNI|virhe", "VIKA|Käyrät formi. Command1 click|13|Kyllä"});
            EXPECT_EQ(std::tuple(t.Tapahtumat(), t.r().janat.size(), t.r().Maximi), std::tuple(odotetut, 2u, " 100;-"));
        } else {
            EXPECT_EQ(t.Tapahtumat(), alku) << "giving up stops at the first";
            EXPECT_TRUE(t.r().janat.empty());
            EXPECT_EQ(t.r().Maximi, "");
            EXPECT_EQ(t.r().otsikko, "Kokonais palkat") << "what was done stands";
        }
        EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
    }
}

TEST(Curves, TimeAxisAndTheNetButtonAreSetAtOpening) {
    struct Tapaus { int vuosi; const char* aika2; };
    for (const Tapaus& c : {Tapaus{1980, " 1980"}, Tapaus{1981, " 1980"}, Tapaus{1983, " 1982"},
                            Tapaus{1985, " 1982"}, Tapaus{1987, " 1984"}}) {
        EXPECT_EQ(Aika2(static_cast<Integer>(c.vuosi)), c.aika2) << c.vuosi;
    }
    Käyrillä t;
    EXPECT_EQ(std::tuple(t.r().aika1, t.r().aika3), std::tuple("1.6.1980", " 1. 6. 1980"));
    EXPECT_FALSE(t.r().Command5);
    t.m.Työ[Kirjanpitäjä] = 1;
    EXPECT_FALSE(t.r().Command5) << "hiring while open changes nothing";
    t.peli.arvonta.Jonoon(0);
    AvaaKäyrät(t.peli);
    EXPECT_TRUE(t.r().Command5);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u);
}

TEST(Curves, NetTableRowsAndTheirGates) {
    struct Tapaus { Tuote k; int kuukausi; int rakennus; Single netto; };
    // Sales 10000 each; feed 300 a species; every wage 1001 for one worker.
    const Tapaus tapaukset[] = {
        {Maito, 6, -1, 9700},          {Liha, 6, -1, 10000},          {Liha, 6, Teurastamo, 8999},
        {Villa, 6, -1, 9700},          {Turkki, 6, -1, 8699},         {Rehu, 6, -1, 10000},
        {Puu, 6, -1, 8999},            {Vihannes, 3, Kasvihuone, 10000}, {Vihannes, 4, Kasvihuone, 9500},
        {Vihannes, 11, Kasvihuone, 9500}, {Vihannes, 12, Kasvihuone, 10000}, {Vihannes, 6, -1, 10000},
        {Leivos, 6, -1, 8999},         {Makkara, 6, -1, 8999},        {Marja, 4, Marjatarha, 8999},
        {Marja, 12, Marjatarha, 10000}, {Hunaja, 11, Mehiläistarha, 8999}, {Hunaja, 3, Mehiläistarha, 10000},
    };
    for (const Tapaus& c : tapaukset) {
        Muuttujat m;
        m.EdTulo.fill(10000);
        m.EdSyönti.fill(300);
        m.Palkka.fill(1001);
        m.Työ.fill(1);
        m.Kuukausi = static_cast<Byte>(c.kuukausi);
        if (c.rakennus >= 0) m.Rak[static_cast<std::size_t>(c.rakennus)] = 1;
        EXPECT_EQ(TuotteenNetto(m, c.k), c.netto) << TUOTETAULUN_NIMET[c.k] << c.kuukausi;
    }
}

TEST(Curves, TablesPrintTwentyProductsAtColumnFiveRedBelowZero) {
    Käyrillä t;
    t.m.EdTulo.fill(0);
    t.m.EdTulo[Maito] = 1234567.8f;
    t.m.EdSyönti[Nauta] = 2000000;
    PiirräKäyrä(t.peli, KäyräRaha);
    TuotteidenNetto(t.peli);
    EXPECT_EQ(t.r().otsikko, "Viime kk:n tuotteiden netto tulot");
    EXPECT_EQ(t.r().Maximi + t.r().Puoli + t.r().Minimi, "");
    EXPECT_TRUE(t.r().janat.empty());
    const Tapahtumat e = t.Tapahtumat();
    ASSERT_EQ(e.size(), 23u);
    EXPECT_EQ(std::tuple(e[1], e[2], e[3], e[22]),
              std::tuple("ALUE|Käyrät.Taulu", "RIVI|0,0,0|0|", "RIVI|180,0,0|5|Maito : -765432.2",
                         "RIVI|0,0,0|5|Hunaja :  0"));
    TuotteidenBrutto(t.peli);
    EXPECT_EQ(t.Tapahtumat()[2], "RIVI|0,0,0|5|Maito :  1234568") << "a table plays no sound";
    EXPECT_EQ(t.r().otsikko, "Viime kk:n tuotteiden brutto myynti");
}

}  // namespace
}  // namespace tanhua
