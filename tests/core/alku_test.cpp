// A new farm: start values by difficulty, the secret name, the refusal, settings files.
#include <gtest/gtest.h>

#include "core/alku.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

TEST(NewGame, StartValuesByDifficultyAndTheSecretName) {
    // The easy farm's values are in the new-farm scenario; here the other two. The secret name, in any
    // case but no other spelling, gives ten million and nothing else. The hints come only with their box ticked.
    struct Tapaus { int taso; const char* nimi; float raha, navetta, siilo, varasto, rehu; int turkki, rehuHinta; long metsä; bool ohjeita; };
    for (const Tapaus& c : {Tapaus{1, "KultaOrsi", 10000000, 6, 100, 100, 40, 1490, 4, 12000, false},
                            {2, "kultaorsi ", 8000, 5, 50, 50, 30, 1480, 5, 14000, true}}) {
        Testipeli t;
        t.peli.alku.Ohjeita = c.ohjeita;
        t.Aloita(c.nimi, c.taso);
        const Muuttujat& m = t.m;
        EXPECT_EQ(std::tuple(m.Raha, m.Koko_Navetta, m.Koko_Siilo, m.Koko_Varasto, m.Var[Rehu]),
                  std::tuple(c.raha, c.navetta, c.siilo, c.varasto, c.rehu)) << c.taso;
        EXPECT_EQ(std::tuple(m.PerusHinta[Turkki], m.PerusHinta[Rehu], m.PerusMaa[MaaMetsä]),
                  std::tuple(c.turkki, c.rehuHinta, c.metsä)) << c.taso;
        EXPECT_EQ(m.Palkka[Nahkuri], 0) << "the tanner's wage waits for the first choice";
        EXPECT_EQ(m.OhjeetPäällä, c.ohjeita);
    }
}

TEST(NewGame, AnEmptyNameIsRefused) {
    Testipeli t;
    t.peli.asetukset.Äänitehosteet = true;
    t.peli.alku.Nimesi = "";
    t.peli.arvonta.Jonoon(0.0);
    EXPECT_FALSE(AloitaUusi(t.peli));
    EXPECT_EQ(t.Tapahtumat(), (std::vector<std::string>{
        "ÄÄNI|virhe", "VIESTI|0|Et voi aloittaa uutta tilannetta, ennenkuin kirjoitat nimesi.|vastattu"}));
    EXPECT_FALSE(t.peli.käynnissä);
    EXPECT_EQ(t.m.Raha, 0);
    EXPECT_EQ(t.peli.arvonta.JonossaJäljellä(), 0u) << "the error sound draws nothing; the box's answer clicks";
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
    EXPECT_EQ(std::tuple(t.m.Tarv[Kirnu], t.m.Tuotteet.rulla, t.m.Käyrät.Rahatila.size()), std::tuple(false, 1, 0u));
    EXPECT_EQ(t.peli.alku.Viime, "Vanha");
    EXPECT_TRUE(t.peli.asetukset.Animaatiot) << "the start-up reads the settings again";
    t.Aloita("Maija", 2);
    EXPECT_EQ(std::tuple(t.m.El[Nauta][Naaras], t.m.Käyrät.Rahatila.size()), std::tuple(0, 1u));
}

TEST(StartUp, SettingsAndTheLastSave) {
    const std::string eiAsetuksia =
        "VIESTI|0|Tanhua ei löytänyt \\Data kansiosta Asetukset.dat tiedostoa. Tähän ei ole muuta syytä, kuin että "
        "olet poistanut sen jotenkin, tai tiedoston lataamisessa on tullut virheitä. Jos tämä virhesanoma ei poistu "
        "jatkossa, asenna tanhua uudelleen ja ota yhteyttä pelin tekijään.|vastattu";
    const std::string kaikki = "False\r\nTrue\r\n50\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\n";
    // The files' texts, nullptr for no file; then the sound setting, the speed, the last farm and the events.
    struct Tapaus { const char *asetukset, *savetus; bool äänet; int nopeus; const char* viime; std::vector<std::string> tapahtumat; };
    const Tapaus tapaukset[] = {
        {kaikki.c_str(), "Matti\r\n", true, 50, "Matti", {}},
        {"0\n-1\n30\n0\n0\n0\n0\n1\n0\n", "", true, 30, "", {}},  // numbers as Booleans
        {nullptr, "", false, 0, "", {eiAsetuksia}},
        {"False\r\nTrue\r\nnopea\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\n", "", true, 0, "",
         {"VIKA|Alku formi. Ladattaessa alku formia|13|Kyllä"}},
        {"False\r\nTrue\r\n50\r\n", "", false, 50, "", std::vector<std::string>(6, "VIKA|Alku formi. Ladattaessa alku formia|62|Kyllä")},  // a short file
        {kaikki.c_str(), nullptr, true, 50, "", {"VIESTI|0|Tanhua ei löytänyt edellisen tilanteen tallennus"}},
    };
    for (const Tapaus& c : tapaukset) {
        Testipeli t;
        if (c.asetukset) t.KirjoitaData("Asetukset.dat", c.asetukset);
        if (c.savetus) t.KirjoitaData("SAVETUS.DAT", c.savetus);  // names are found whatever their case
        AlkuLataus(t.peli);
        const std::string tapaus = c.asetukset ? c.asetukset : "no settings";
        EXPECT_EQ(std::tuple(t.peli.asetukset.Äänitehosteet, t.peli.asetukset.AnimNopeus, t.peli.alku.Viime),
                  std::tuple(c.äänet, c.nopeus, std::string(c.viime))) << tapaus;
        EXPECT_EQ(std::tuple(t.peli.alku.Command2, t.m.VikaLaskuri), std::tuple(std::string(c.viime) != "", Long{0}));
        auto tapahtumat = t.Tapahtumat();
        if (!c.savetus && !tapahtumat.empty()) tapahtumat[0] = tapahtumat[0].substr(0, c.tapahtumat[0].size());
        EXPECT_EQ(tapahtumat, c.tapahtumat) << tapaus;
    }
}

}  // namespace
}  // namespace tanhua
