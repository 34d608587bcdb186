// A new farm: start values by difficulty, the secret name, the refusal, settings files.
#include <gtest/gtest.h>

#include "core/alku.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

TEST(NewGame, StartValuesByDifficulty) {
    struct Tapaus { int taso; float raha, navetta, siilo, varasto, rehu; int turkki, rehuHinta; long metsä; };
    for (const Tapaus& c : {Tapaus{0, 15000, 7, 150, 150, 50, 1500, 3, 10000},
                            {1, 10000, 6, 100, 100, 40, 1490, 4, 12000},
                            {2, 8000, 5, 50, 50, 30, 1480, 5, 14000}}) {
        Testipeli t;
        t.Aloita("Matti", c.taso);
        const Muuttujat& m = t.m;
        EXPECT_EQ(m.Raha, c.raha);
        EXPECT_EQ(m.Vaikeustaso, c.taso);
        EXPECT_EQ(m.Koko_Navetta, c.navetta);
        EXPECT_EQ(m.Koko_Siilo, c.siilo);
        EXPECT_EQ(m.Koko_Varasto, c.varasto);
        EXPECT_EQ(m.Var[Rehu], c.rehu);
        EXPECT_EQ(m.PerusHinta[Turkki], c.turkki);
        EXPECT_EQ(m.PerusHinta[Rehu], c.rehuHinta);
        EXPECT_EQ(m.PerusMaa[MaaMetsä], c.metsä);
        EXPECT_EQ(m.Päivä, 1);
        EXPECT_EQ(m.Kuukausi, 6);
        EXPECT_EQ(m.Vuosi, 1980);
        EXPECT_EQ(m.Palkka[Nahkuri], 0) << "the tanner's wage waits for the first choice";
        ASSERT_EQ(m.Käyrät.Rahatila.size(), 1u);
        EXPECT_EQ(m.Käyrät.Rahatila[0], Str(c.raha));
        EXPECT_EQ(m.PelaajanNimi, "Matti");
        EXPECT_TRUE(t.peli.käynnissä);
    }
}

TEST(NewGame, TheSecretNameGivesTenMillionAtAnyDifficulty) {
    struct Tapaus { const char* nimi; int taso; float raha; float navetta; };
    for (const Tapaus& c : {Tapaus{"kultaorsi", 0, 10000000, 7}, {"KultaOrsi", 2, 10000000, 5},
                            {"kultaorsi ", 1, 10000, 6}, {"kulta orsi", 1, 10000, 6}}) {
        Testipeli t;
        t.Aloita(c.nimi, c.taso);
        EXPECT_EQ(t.m.Raha, c.raha) << c.nimi;
        EXPECT_EQ(t.m.Koko_Navetta, c.navetta) << "the sizes still follow the difficulty";
    }
}

TEST(NewGame, GoalStarsAndHints) {
    struct Tapaus { int lista; const char* moodi; bool tähdet; bool ohjeita; };
    for (const Tapaus& c : {Tapaus{0, "Vapaa", true, false}, {1, "Miljoona", false, true}, {2, "10 vuotta", true, true}}) {
        Testipeli t;
        t.peli.alku.Ohjeita = c.ohjeita;
        t.Aloita("Testi", 1, c.lista, c.tähdet);
        EXPECT_EQ(t.m.PeliMoodi, c.moodi);
        EXPECT_EQ(t.m.TähtiLukitus, c.tähdet);
        EXPECT_EQ(t.m.OhjeetPäällä, c.ohjeita);
    }
}

TEST(NewGame, AnEmptyNameIsRefused) {
    Testipeli t;
    t.peli.asetukset.Äänitehosteet = true;
    t.peli.alku.Nimesi = "";
    t.peli.arvonta.Jonoon(0.0);
    EXPECT_FALSE(AloitaUusi(t.peli));
    const auto tapahtumat = t.Tapahtumat();
    ASSERT_EQ(tapahtumat.size(), 2u);
    EXPECT_EQ(tapahtumat[0], "ÄÄNI|virhe");
    EXPECT_EQ(tapahtumat[1], "VIESTI|0|Et voi aloittaa uutta tilannetta, ennenkuin kirjoitat nimesi.|vastattu");
    EXPECT_FALSE(t.peli.käynnissä);
    EXPECT_EQ(t.m.Raha, 0);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u) << "the error sound draws nothing; the box's answer clicks";
}

TEST(NewGame, DifficultyStepsStopAtTheEnds) {
    Testipeli t;  // from Normaali: up, up, down, down, down
    std::vector<int> tasot;
    for (auto askel : {NostaVaikeustasoa, NostaVaikeustasoa, LaskeVaikeustasoa, LaskeVaikeustasoa, LaskeVaikeustasoa}) {
        askel(t.peli);
        tasot.push_back(t.peli.alku.VTaso);
    }
    EXPECT_EQ(tasot, (std::vector<int>{2, 2, 1, 0, 0}));
}

TEST(NewGame, ThrowingTheFarmAwayLeavesNothingOfIt) {
    Testipeli t;
    t.KirjoitaData("Asetukset.dat", "False\r\nTrue\r\n50\r\nTrue\r\nFalse\r\nTrue\r\nTrue\r\nFalse\r\nTrue\r\n");
    t.KirjoitaData("Savetus.dat", "Vanha\r\n");
    t.Aloita("Matti", 0);
    t.m.Tarv[Kirnu] = true;
    t.m.Tuotteet.rulla = 0;
    t.m.El[Nauta][Naaras] = 3;
    t.kanavat.vastaukset = {"Ei"};
    EXPECT_FALSE(UusiTilanne(t.peli));
    EXPECT_EQ(t.m.El[Nauta][Naaras], 3);
    t.kanavat.vastaukset = {"Kyllä"};
    EXPECT_TRUE(UusiTilanne(t.peli));
    EXPECT_FALSE(t.m.Tarv[Kirnu]);
    EXPECT_EQ(t.m.Tuotteet.rulla, 1);
    EXPECT_TRUE(t.m.Käyrät.Rahatila.empty());
    EXPECT_EQ(t.peli.alku.Viime, "Vanha");
    EXPECT_TRUE(t.peli.asetukset.Animaatiot) << "the start-up reads the settings again";
    t.Aloita("Maija", 2);
    EXPECT_EQ(t.m.El[Nauta][Naaras], 0);
    ASSERT_EQ(t.m.Käyrät.Rahatila.size(), 1u);
}

TEST(StartUp, SettingsAndTheLastSave) {
    struct Tapaus {
        const char* nimi;
        const char* asetukset;  // nullptr: no file
        const char* savetus;
        bool äänet;
        int nopeus;
        const char* viime;
        std::vector<std::string> tapahtumat;
    };
    const std::string eiAsetuksia =
        "VIESTI|0|Tanhua ei löytänyt \\Data kansiosta Asetukset.dat tiedostoa. Tähän ei ole muuta syytä, kuin että "
        "olet poistanut sen jotenkin, tai tiedoston lataamisessa on tullut virheitä. Jos tämä virhesanoma ei poistu "
        "jatkossa, asenna tanhua uudelleen ja ota yhteyttä pelin tekijään.|vastattu";
    const std::string eiSavetusta = "VIESTI|0|Tanhua ei löytänyt edellisen tilanteen tallennus tiedostoa.";
    const Tapaus tapaukset[] = {
        {"all there", "False\r\nTrue\r\n50\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\n", "Matti\r\n", true, 50,
         "Matti", {}},
        {"numbers as Booleans", "0\n-1\n30\n0\n0\n0\n0\n1\n0\n", "", true, 30, "", {}},
        {"no settings", nullptr, "", false, 0, "", {eiAsetuksia}},
        {"a line that isn't a number", "False\r\nTrue\r\nnopea\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\n", "",
         true, 0, "", {"VIKA|Alku formi. Ladattaessa alku formia|13|Kyllä"}},
        {"a short file", "False\r\nTrue\r\n50\r\n", "", false, 50, "",
         {"VIKA|Alku formi. Ladattaessa alku formia|62|Kyllä", "VIKA|Alku formi. Ladattaessa alku formia|62|Kyllä",
          "VIKA|Alku formi. Ladattaessa alku formia|62|Kyllä", "VIKA|Alku formi. Ladattaessa alku formia|62|Kyllä",
          "VIKA|Alku formi. Ladattaessa alku formia|62|Kyllä", "VIKA|Alku formi. Ladattaessa alku formia|62|Kyllä"}},
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        if (c.asetukset) t.KirjoitaData("Asetukset.dat", c.asetukset);
        t.KirjoitaData("SAVETUS.DAT", c.savetus);  // names are found whatever their case
        AlkuLataus(t.peli);
        EXPECT_EQ(t.peli.asetukset.Äänitehosteet, c.äänet) << c.nimi;
        EXPECT_EQ(t.peli.asetukset.AnimNopeus, c.nopeus) << c.nimi;
        EXPECT_EQ(t.peli.alku.Viime, c.viime) << c.nimi;
        EXPECT_EQ(t.peli.alku.Command2, std::string(c.viime) != "") << c.nimi;
        EXPECT_EQ(t.m.Versio, 1.5f);
        EXPECT_EQ(t.m.VikaLaskuri, 0);
        EXPECT_EQ(t.Tapahtumat(), c.tapahtumat) << c.nimi;
    }
    Testipeli t;
    t.KirjoitaData("Asetukset.dat", "False\r\nTrue\r\n50\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\n");
    AlkuLataus(t.peli);
    const auto tapahtumat = t.Tapahtumat();
    ASSERT_EQ(tapahtumat.size(), 1u);
    EXPECT_EQ(tapahtumat[0].rfind(eiSavetusta, 0), 0u);
    EXPECT_FALSE(t.peli.alku.Command2);
}

}  // namespace
}  // namespace tanhua
