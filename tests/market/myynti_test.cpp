// The product card, selling by hand, buying feed, and the accountant's automatic sale.
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>

#include "market/myynti.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

struct Tuotepeli : ::testing::Test {
    void SetUp() override {
        t.Aloita();
        m.Kurssi.fill(0);
        m.Var.fill(0);
        m.Tulo.fill(0);
        m.Raha = m.Liikevaihto = m.PakkaamoMax = m.PakkaamoKäsitelty = m.PakkaamoTulot = 0;
        m.Vuodenaika = "Kevät";
        m.Koko_Siilo = 1000;
        m.PakkaamoKerroin = 0.5f;
        t.Tapahtumat();
    }
    void Hinta(Tuote k, int perus, int kurssi) {
        m.PerusHinta[k] = static_cast<Integer>(perus);
        m.Kurssi[k] = static_cast<Integer>(kurssi);
    }
    testi::Testipeli t;
    Muuttujat& m = t.m;
    TuoteRuutuTila& r = t.peli.tuoteruutu;
};

TEST_F(Tuotepeli, CardShowsPriceSeasonOffsetAndTotal) {
    struct Tapaus { Tuote k; const char* kausi; int perus, kurssi; float varasto; const char* vAika; double yhinta, yht; };
    for (const Tapaus& c : {
             Tapaus{Villa, "Kesä", 4, 1, 10, "-2", 3, 30}, {Villa, "Talvi", 4, 1, 10, "+2", 7, 70},
             {Viini, "Kevät", 27, 0, 1, "+2", 29, 29}, {Maito, "Talvi", 4, 2, 5, "0", 6, 30},
             // Manure's offset is in the unit price only; the total goes by the market price.
             {Lanta, "Kevät", 2, 0, 10, "+2", 4, 20}, {Lanta, "Talvi", 2, 0, 10, "-1", 1, 20},
             {Villa, "Kesä", 1, -1, 5, "-2", -2, 0},  // a negative total shows as 0
             // The feed card's total is the cost of filling the silo of 1000, rounded to even; none when full.
             {Rehu, "Kevät", 4, 1, 400, "0", 5, 3000}, {Rehu, "Kevät", 4, 1, 999.5f, "0", 5, 2},
             {Rehu, "Kevät", 4, -3, 999.5f, "0", 1, 0}, {Rehu, "Kevät", 4, 0, 1200, "0", 4, 0}}) {
        m.Vuodenaika = c.kausi;
        Hinta(c.k, c.perus, c.kurssi);
        m.Var[c.k] = c.varasto;
        AvaaTuote(t.peli, c.k);
        const std::string nimi = std::string(TUOTETAULU[c.k].avain) + " " + c.kausi + " " + std::to_string(c.varasto);
        EXPECT_EQ(std::tuple(r.vAika, (std::array<double, 3>{r.yhinta, r.Yhthinta, r.kpl}), r.ostaKäytössä),
                  std::tuple(c.vAika, (std::array<double, 3>{c.yhinta, c.yht, c.varasto}), c.k == Rehu)) << nimi;
    }
    AvaaTuote(t.peli, Muna);
    EXPECT_EQ(r.nimi, "Kananmuna");
}

TEST_F(Tuotepeli, ManureAndBoardCardsCarryTheFurtherBox) {
    struct Tapaus { Tuote k; Long kirvesmiehiä; const char* teksti; bool Muuttujat::*kenttä; };
    for (const Tapaus& c : {Tapaus{Lanta, 0, "Käytä lannoitetta pelloissasi.", &Muuttujat::LantaPeltoon},
                            {Lauta, 0, nullptr, nullptr}, {Maito, 1, nullptr, nullptr},
                            {Lauta, 1, "Käytä lautoja hyödyksi, kun rakennat rakennuksia.", &Muuttujat::LautaRakennukseen}}) {
        m.Työ[Kirvesmies] = c.kirvesmiehiä;
        AvaaTuote(t.peli, c.k);
        EXPECT_EQ(r.lisäasetusNäkyy, c.teksti != nullptr) << c.k;
        if (!c.teksti) continue;
        EXPECT_EQ(r.lisäasetusTeksti, c.teksti);
        Tuotelisäasetus(t.peli, true);
        EXPECT_TRUE(m.*c.kenttä);
    }
}

TEST_F(Tuotepeli, SellingAllPaysTheCardsTotalAndThePackingPlantWhileUnderItsLimit) {
    struct Tapaus { float käsitelty; double tulot; double käsiteltyJälkeen; };
    for (const Tapaus& c : {Tapaus{99, 250, 199}, Tapaus{100, 0, 100}}) {
        Hinta(Maito, 4, 1);
        m.Var[Maito] = 100;
        m.Raha = m.Liikevaihto = m.Tulo[Maito] = m.PakkaamoTulot = 0;
        m.PakkaamoMax = 100;
        m.PakkaamoKäsitelty = c.käsitelty;
        AvaaTuote(t.peli, Maito);
        MyyKaikki(t.peli);
        EXPECT_EQ((std::array<double, 4>{m.Raha, m.Liikevaihto, m.Tulo[Maito], m.Var[Maito]}),
                  (std::array<double, 4>{500, 500, 500, 0}));
        EXPECT_EQ(std::tuple(m.PakkaamoTulot, m.PakkaamoKäsitelty), std::tuple(c.tulot, c.käsiteltyJälkeen));
        EXPECT_EQ(r.Yhthinta + r.varasto[Maito], 0) << "the card and the shelf show the empty stock";
    }
    // Feed goes by the silo's content, leaves the plant out and draws the card anew.
    Hinta(Rehu, 4, 1);
    m.Var[Rehu] = 200;
    m.Raha = 0;
    AvaaTuote(t.peli, Rehu);
    MyyKaikki(t.peli);
    EXPECT_EQ(std::tuple(m.Raha + m.Tulo[Rehu], m.PakkaamoKäsitelty), std::tuple(2000, 100));
    EXPECT_EQ(r.Yhthinta, 5000) << "the cost of a full silo";
}

TEST_F(Tuotepeli, SellingHalfTruncatesAndFillsThePlantWithoutPay) {
    // Milk at 3 and feed at 5; each step presses "Myy 1/2" on the card left open.
    Hinta(Maito, 3, 0), Hinta(Rehu, 4, 1);
    m.PakkaamoMax = 1000;
    struct Askel { Tuote k; float varasto; float jää; float raha; double kortilla; };
    const Askel askeleet[] = {
        {Maito, 10, 5, 15, 15},  // the card stays open with the new total
        {Maito, -1, 2, 22, 6},   // 15 \ 2 = 7
        {Maito, 1, 0, 23, 0},    // a single unit goes for half its price
        {Maito, -1, 0, 23, 0},   // nothing to sell at a total of 0
        {Rehu, 7, 3, 38, 4985},  // feed keeps the half it is paid for; its card shows the silo's cost
        {Rehu, 0, 0, 38, 5000},
    };
    for (const Askel& a : askeleet) {
        if (a.varasto >= 0) {
            m.Var[a.k] = a.varasto;
            AvaaTuote(t.peli, a.k);
        }
        MyyPuolet(t.peli);
        EXPECT_EQ((std::array<double, 3>{m.Var[a.k], m.Raha, r.Yhthinta}), (std::array<double, 3>{a.jää, a.raha, a.kortilla}))
            << a.varasto;
    }
    EXPECT_EQ((std::array<double, 2>{m.Tulo[Maito], m.Liikevaihto}), (std::array<double, 2>{23, 38}));
    EXPECT_EQ((std::array<double, 2>{m.PakkaamoKäsitelty, m.PakkaamoTulot}), (std::array<double, 2>{7, 0}))
        << "half a sale fills the plant, but earns it nothing";
}

TEST_F(Tuotepeli, BuyingFeedFillsTheSiloOrBuysWhatTheCashCovers) {
    t.peli.asetukset.Äänitehosteet = true;
    using E = std::vector<std::string>;
    // The silo may fill up after the card was opened (täyttö): the card's total still lets the press through.
    struct Tapaus { Tuote kortti; float raha, varasto, täyttö, rahaJälkeen, varastoJälkeen, liikevaihto; E tapahtumat; };
    const Tapaus tapaukset[] = {
        {Rehu, 10000, 500, -1, 8000, 1000, -2000, {"ÄÄNI|klik2"}},
        {Rehu, 10, 0, -1, 0, 2, -2, {"ÄÄNI|klik2"}},  // two kilos, the change is lost
        {Rehu, 3, 0, -1, 3, 0, 0, {"ÄÄNI|virhe", "VIESTI|0|Rahatilanteesi on  3. Sinulla ei ole varaa|vastattu"}},
        {Rehu, -50, 0, -1, -50, 0, 0, {"ÄÄNI|virhe", "VIESTI|0|Rahatilanteesi on -50. Sinulla ei ole varaa|vastattu"}},
        {Maito, 10000, 0, -1, 10000, 0, 0, {"ÄÄNI|virhe", "VIESTI|0|Et voi ostaa, kuin rehua|vastattu"}},
        {Rehu, 10000, 1000, -1, 10000, 1000, 0, {}},  // a full silo: the total is 0 and nothing happens
        {Rehu, 10000, 500, 1000, 10000, 1000, 0,
         {"ÄÄNI|virhe", "LAATIKKO|Normaali osto", "VIESTI|0|Sinulla ei ole tilaa siilossa|vastattu"}},
    };
    for (const Tapaus& c : tapaukset) {
        Hinta(Rehu, 4, 0), Hinta(Maito, 4, 0);
        m.Var[Maito] = 5;
        m.Raha = c.raha;
        m.Var[Rehu] = c.varasto;
        m.Liikevaihto = m.Tulo[Rehu] = 0;
        AvaaTuote(t.peli, c.kortti);
        if (c.täyttö >= 0) m.Var[Rehu] = c.täyttö;
        t.Tapahtumat();
        t.peli.arvonta.TyhjennäJono();
        t.peli.arvonta.Jonoon(0.5);  // the second of the three clicks
        OstaRehua(t.peli);
        EXPECT_EQ(t.Tapahtumat(), c.tapahtumat) << c.raha;
        EXPECT_EQ((std::array<float, 4>{m.Raha, m.Var[Rehu], m.Liikevaihto, m.Tulo[Rehu]}),
                  (std::array<float, 4>{c.rahaJälkeen, c.varastoJälkeen, c.liikevaihto, c.liikevaihto})) << c.raha;
    }
}

struct Automyynti : Tuotepeli {
    void SetUp() override {
        Tuotepeli::SetUp();
        m.Työ[Kirjanpitäjä] = 1;
        m.Tuotteet.Myy.fill(0);
    }
    void Myy(Tuote k, const char* tyyli) { m.Tuotteet.Myy[k] = 1, m.Tuotteet.MyyTyyli[k] = tyyli; }
};

TEST_F(Automyynti, StylesRoundToEvenAndTheLastUnitGoes) {
    struct Tapaus { Tuote k; const char* tyyli; const char* kausi; int perus; float varasto; float raha, jää; };
    for (const Tapaus& c : {
             Tapaus{Maito, "Puolet", "Kevät", 3, 5, 7, 3},    // 15 \ 2; Round(2.5) = 2 units go
             Tapaus{Maito, "Puolet", "Kevät", 3, 3, 4, 0},    // Round(1.5) = 2 go, the last one follows
             Tapaus{Maito, "Puolet", "Kevät", 3, 1, 1, 0},    // Round(0.5) = 0, the last one follows
             Tapaus{Viini, "Puolet", "Kevät", 2, 1, 2, 1},    // (2 + 2) \ 2; the last bottle stays
             Tapaus{Turkki, "Puolet", "Kevät", 10, 7, 35, 4}, // furs: Int(3.5) = 3 go
             Tapaus{Muna, "Kaikki", "Kevät", 1, 2.5f, 2, 0},  // CLng(2.5) = 2; Round(2.5) = 2, the half follows
             Tapaus{Villa, "Kaikki", "Kesä", 4, 10, 20, 0}, Tapaus{Villa, "Kaikki", "Talvi", 4, 10, 60, 0},
             Tapaus{Lanta, "Kaikki", "Kevät", 2, 10, 20, 0},  // manure has no offset here
         }) {
        m.Tuotteet.Myy.fill(0);
        m.Vuodenaika = c.kausi;
        Hinta(c.k, c.perus, 0);
        m.Var[c.k] = c.varasto;
        m.Raha = m.Liikevaihto = m.Tulo[c.k] = 0;
        Myy(c.k, c.tyyli);
        AutoMyynti(t.peli);
        EXPECT_EQ((std::array<float, 4>{m.Raha, m.Liikevaihto, m.Tulo[c.k], m.Var[c.k]}),
                  (std::array<float, 4>{c.raha, c.raha, c.raha, c.jää}))
            << TUOTETAULU[c.k].avain << " " << c.tyyli << " " << c.varasto;
    }
}

TEST_F(Automyynti, EggsComeFirstToThePackingPlantAndOnlyWithAWarehouseWorker) {
    struct Tapaus { Long varastotyöntekijöitä; double tulot, käsitelty; };
    for (const Tapaus& c : {Tapaus{1, 20, 10}, Tapaus{0, 0, 0}}) {
        m.Työ[Varastotyöntekijä] = c.varastotyöntekijöitä;
        Hinta(Muna, 4, 0), Hinta(Maito, 5, 0);
        m.Var[Muna] = m.Var[Maito] = 10;
        m.PakkaamoMax = 1;
        m.PakkaamoKäsitelty = m.PakkaamoTulot = 0;
        Myy(Maito, "Kaikki");
        Myy(Muna, "Kaikki");
        AutoMyynti(t.peli);
        EXPECT_EQ((std::array<double, 2>{m.PakkaamoTulot, m.PakkaamoKäsitelty}), (std::array<double, 2>{c.tulot, c.käsitelty}))
            << "eggs: 40 x 0.5 for 10 units; milk comes after the limit is passed";
    }
}

TEST_F(Automyynti, TheSiloIsToppedUpAfterTheSales) {
    struct Tapaus { const char* nimi; float raha, maito, varasto, rahaJälkeen, varastoJälkeen, liikevaihto; Long kirjanpitäjiä = 1; };
    for (const Tapaus& c : {Tapaus{"no accountant: nothing sold or bought", 100, 10, 0, 100, 0, 0, 0},
                            Tapaus{"full", 10000, 0, 500, 8000, 1000, -2000}, Tapaus{"part", 10, 0, 0, 0, 2, -2},
                            Tapaus{"from the day's sale", 0, 10, 0, 0, 12, 38},  // 50 from milk, then 12 kilos
                            Tapaus{"under one", 0.5f, 0, 0, 0.5f, 0, 0}, Tapaus{"in debt", -100, 0, 0, -100, 0, 0},
                            Tapaus{"silo full", 100, 0, 1000, 100, 1000, 0}}) {
        m.Tuotteet.Myy.fill(0);
        m.Työ[Kirjanpitäjä] = c.kirjanpitäjiä;
        Hinta(Rehu, 4, 0), Hinta(Maito, 5, 0);
        m.Var[Maito] = c.maito;
        Myy(Maito, "Kaikki");
        m.Tuotteet.Myy[Rehu] = 1;
        m.Raha = c.raha;
        m.Var[Rehu] = c.varasto;
        m.Liikevaihto = 0;
        AutoMyynti(t.peli);
        EXPECT_EQ((std::array<float, 3>{m.Raha, m.Var[Rehu], m.Liikevaihto}),
                  (std::array<float, 3>{c.rahaJälkeen, c.varastoJälkeen, c.liikevaihto})) << c.nimi;
    }
}

TEST_F(Tuotepeli, OpeningTheScreenSetsPricesStocksAndLooksForThePictures) {
    namespace fs = std::filesystem;
    const fs::path kansio = t.peli.kansiot.ohjelma / "Kuvat" / "tuotteet";
    fs::create_directories(kansio);
    for (const TuoteRivi& tuote : TUOTETAULU)
        if (tuote.avain != "Vilja") std::ofstream(kansio / fs::u8path(std::string(tuote.kuva))) << "kuva";
    m.Var[Maito] = -3;
    m.Var[Liha] = 7;
    m.Tarv[Kylmiö] = true;
    m.Työ[Kirjanpitäjä] = 1;
    m.OhjeetPäällä = true;
    AvaaTuotteet(t.peli);
    EXPECT_EQ(t.Tapahtumat(), std::vector<std::string>{"LAATIKKO|Tuotteiden kuvien latauksessa ongelma. Kuvaa ei löytynyt"});
    EXPECT_EQ(m.VikaPaikka, "Tuotteiden kuvan lataus");
    EXPECT_EQ((std::array<double, 3>{m.Var[Maito], r.varasto[Liha], 1.0 * m.PerusHinta[Liha]}), (std::array<double, 3>{0, 7, 15}))
        << "a stock below 0 is set to 0; meat 14 at level 1, and 1 for the cold room";
    EXPECT_TRUE(r.kirjanpitäjäKuva);
    EXPECT_EQ(r.ohje, "Tervetuloa tuotteiden ostoon ja myyntiin.");
}

TEST_F(Tuotepeli, EscHidesTheCardAndThePanelBeforeItLeavesAndTheStyleTurnsOver) {
    OsoitinTuoteruudulla(t.peli, TuoteKohde::Kuva, Turkki);
    EXPECT_EQ(r.aihe, "Tuotteet : Turkikset");
    r.kirjanpitäjäKuva = true;
    KirjanpitäjäKuva(t.peli);
    AvaaTuote(t.peli, Maito);
    EXPECT_FALSE(TuotteetEsc(t.peli) || r.taulu || r.akkuna);
    EXPECT_TRUE(TuotteetEsc(t.peli));
    KäännäTyyli(t.peli, Maito);
    EXPECT_EQ(m.Tuotteet.MyyTyyli[Maito], "Puolet");
}

}  // namespace
}  // namespace tanhua
