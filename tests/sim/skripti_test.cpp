// The headless runner: its words, its errors and its exit status, and the scenario transcripts.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/viestit.h"
#include "sim/skripti.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

namespace fs = std::filesystem;

TEST(Runner, SplitsWordsWithQuotes) {
    struct Tapaus { const char* rivi; std::vector<std::string> sanat; bool kelpaa; };
    for (const Tapaus& c : {Tapaus{"new Matti \"10 vuotta\" 1 on", {"new", "Matti", "10 vuotta", "1", "on"}, true},
                            {"  set   Raha  3.5 ", {"set", "Raha", "3.5"}, true},
                            {"answer \"\" Kyllä", {"answer", "", "Kyllä"}, true},
                            {"print \"Raha", {}, false},
                            {"", {}, true}}) {
        std::vector<std::string> sanat;
        EXPECT_EQ(Sanat(c.rivi, sanat), c.kelpaa) << c.rivi;
        if (c.kelpaa) {
            EXPECT_EQ(sanat, c.sanat) << c.rivi;
        }
    }
}

struct Ajo {
    int tila;
    std::string ulos, virheet;
};

// Runs a script on a fresh data folder seeded from the built program folder.
Ajo Aja(const std::string& skripti) {
    testi::Väliaikainen kansio;
    Ajuri ajuri(Kansiot{TANHUA_PROGRAM_DIR, kansio.polku() / "Data"});
    std::istringstream sisään(skripti);
    std::ostringstream ulos, virheet;
    const int tila = ajuri.Aja(sisään, ulos, virheet);
    return {tila, ulos.str(), virheet.str()};
}

TEST(Runner, BadLinesAreNamedAndStopTheScript) {
    struct Tapaus { const char* skripti; const char* virhe; };
    for (const Tapaus& c : {Tapaus{"new A Vapaa 1 on\nfly\n", "line 2: unknown command 'fly'"},
                            {"new A Vapaa 1 on\nprint Rahaa\n", "line 2: unknown value 'Rahaa'"},
                            {"new A Vapaa 1 on\ncall Lentää\n", "line 2: unknown operation 'Lentää'"},
                            {"# \"a quote in a comment\n\nnew A Jotain 1 on\n", "line 3: GOAL must be"},
                            {"new A Vapaa 3 on\n", "line 1: DIFFICULTY goes from 0 to 2"},
                            {"draws 0.5 1.0\n", "line 1: a draw must be a decimal number in [0,1)"},
                            {"draws 0x0.8p0\n", "line 1: a draw must be a decimal number"},
                            {"draws -0.0\n", "line 1: a draw must be a decimal number"},
                            {"seed -1\n", "line 1: N goes from 0 to 4294967295"},
                            {"new A Vapaa 1 on\ndays kaksi\n", "line 2: N must be a whole number"},
                            {"new A Vapaa 1 on\ncall SeuraavaPäivä 3\n", "line 2: wrong number of arguments"},
                            {"set Raha\n", "line 1: set takes NAME VALUE"},
                            {"new A Vapaa 1 on\nprint Tanhua.TP_Kuva(5)\n", "line 2: unknown value 'Tanhua.TP_Kuva(5)'"},
                            {"new A Vapaa 1 on\ncall Eläimet.Osta Lehmus 1\n", "line 2: unknown animal card 'Lehmus'"},
                            {"new A Vapaa 1 on\ncall Tuotteet.MyyKaikki Kulta\n", "line 2: unknown product 'Kulta'"},
                            // Nothing is run on a farm that isn't there.
                            {"days 1\n", "line 1: days needs a farm"},
                            {"set Raha 5\n", "line 1: set Raha needs a farm"},
                            {"call SeuraavaPäivä\n", "line 1: call SeuraavaPäivä needs a farm"},
                            {"new A Vapaa 1 on\ncall Tilanne.Avaa\nanswer Kyllä\ncall Tilanne.UusiTilanne\ndays 1\n",
                             "line 5: days needs a farm"},
                            // Files of the data folder only, and bytes that are there.
                            {"file ../Asetukset.dat\n", "line 1: a file of the data folder is named without folders"},
                            {"poke Puuttuu.sav 0 1\n", "line 1: no file 'Puuttuu.sav'"},
                            {"poke Asetukset.dat 100000 1\n", "line 1: OFFSET must be within the file's"},
                            {"poke Asetukset.dat 0 256\n", "line 1: BYTE goes from 0 to 255"},
                            // The day's weather picture is -1 to 9.
                            {"new A Vapaa 1 on\nset SääKuva 10\n", "line 2: SääKuva goes from -1 to 9: '10'"},
                            {"new A Vapaa 1 on\nset SääKuva -2\n", "line 2: SääKuva goes from -1 to 9"}}) {
        const Ajo ajo = Aja(c.skripti);
        EXPECT_EQ(ajo.tila, 1) << c.skripti;
        EXPECT_NE(ajo.virheet.find(c.virhe), std::string::npos) << c.skripti << ajo.virheet;
    }
}

TEST(Runner, PrintsWhatTheMainScreensControlsShow) {
    // A warm clear day; the stars show with the lock on and hide with it off.
    const Ajo ajo = Aja("set Musiikki False\nnew A Vapaa 1 on\nset Kuukausi 7\ndraws 0.5 0.1 0.9 0.9\ndays 1\n"
                        "print Tanhua.AsteLuku Tanhua.Sää Tanhua.TP_Kuva(0) Tanhua.Lista Tanhua.Command9 Tanhua.Mittari4\n"
                        "set TähtiLukitus False\ncall Päivitälukemat\nprint Tanhua.TP_Kuva(4)\n");
    EXPECT_EQ(ajo.tila, 0) << ajo.virheet;
    EXPECT_EQ(ajo.ulos,
              "Tanhua.AsteLuku=+ 18 °c|215,84,36\n"
              "Tanhua.Sää=aurinkoinen.gif|Aurinko paistaa, taivas on kirkas\n"
              "Tanhua.TP_Kuva(0)=Tähti2.gif|Ensimmäinen tähti. Klikkaa tähteä nähdäksesti mitä sinun on saavutettava, "
              "jotta tilasi ansaitsee kyseisen tähden.\n"
              "Tanhua.Lista=piilossa\nTanhua.Command9=Tarvikkeet\nTanhua.Mittari4=100\nTanhua.TP_Kuva(4)=piilossa\n");
}

TEST(Runner, APressAPlayerCouldNotMakeIsSkippedAndTheScriptReadsOn) {
    // The stars keep the supplies shut and hide with the lock off; the script goes on to its end.
    const Ajo ajo = Aja("set Musiikki False\nnew A Vapaa 1 on\nevents\ncall Tarvikkeet.Avaa\nset TähtiLukitus False\ncall Päivitälukemat\n"
                        "call Tanhua.NäytäTähti 2\nprint Päivä\nevents\n");
    EXPECT_EQ(ajo.tila, 0) << ajo.virheet;
    EXPECT_EQ(ajo.ulos, "Päivä=1\nOHITETTU|Tarvikkeet.Avaa\nOHITETTU|Tanhua.NäytäTähti\n");
}

TEST(Runner, CareerAndCouponPressesNeedTheirControlsAndAnEndedCareerPlaysNoDay) {
    // Each case: its script and how many times each line must stand in what it printed.
    struct Tapaus {
        const char* mikä;
        std::string skripti;
        std::vector<std::pair<std::string, int>> rivit;
    };
    const std::string alku = "set Musiikki False\nset Äänitehosteet False\n";
    for (const Tapaus& c : {
             Tapaus{"the coupon has no Command3",
                    alku + "new A Vapaa 1 on\ncall Ravit.Avaa\ncall Ravit.Command2\ncall Ravit.Command3\n"
                           "print Ravit.Vetolaji\nevents\n",
                    {{"OHITETTU|Ravit.Command3", 1}, {"OHITETTU|Ravit.Command2", 0}, {"Ravit.Vetolaji=Trio", 1}}},
             {"no save before the panel shows",
              alku + "new A Vapaa 1 on\ncall Tilanne.Tallenna Eka\ncall Tilanne.Avaa\ncall Tilanne.Tallenna Eka\n"
                     "file Eka.sav\nevents\n",
              {{"OHITETTU|Tilanne.Tallenna", 2}, {"Eka.sav=missing", 1}}},
             {"no open while the panel is hidden",
              alku + "new A Vapaa 1 on\ncall Tilanne.Avaa\ncall Tilanne.AvaaTallenna\ncall Tilanne.Tallenna Eka\n"
                     "call Tilanne.SuljePaneeli\nset Raha 5\ncall Tilanne.AvaaTilanne Eka\nprint Raha\nevents\n",
              {{"OHITETTU|Tilanne.AvaaTilanne", 1}, {"Raha=5", 1}}},
             {"no new farm from the main screen",
              alku + "new A Vapaa 1 on\nanswer Kyllä\ncall Tilanne.UusiTilanne\ndays 1\nprint Päivä\nevents\n",
              {{"OHITETTU|Tilanne.UusiTilanne", 1}, {"Päivä=2", 1}}},
             // The goal's day shows the story over the main screen; no later press reaches the day.
             {"the million reached ends the days",
              alku + "new A Miljoona 1 on\nset Raha 2000000\ndays 3\nprint Päivä\ndays 1\nevents\n",
              {{"Päivä=2", 1},
               {"VIESTI|0|Tavoitteesi oli kerätä miljoona ja olet päässyt tavoitteeseesi|vastattu", 1},
               {"OHITETTU|SeuraavaPäivä", 2}}},
         }) {
        const Ajo ajo = Aja(c.skripti);
        EXPECT_EQ(ajo.tila, 0) << c.mikä << ": " << ajo.virheet;
        std::istringstream ulos(ajo.ulos);
        std::vector<std::string> rivit;
        for (std::string r; std::getline(ulos, r);) rivit.push_back(r);
        for (const auto& [rivi, kertaa] : c.rivit)
            EXPECT_EQ(std::count(rivit.begin(), rivit.end(), rivi), kertaa) << c.mikä << ": " << rivi;
    }
    // Every button name of the coupon's form is an operation, the missing Command3 too.
    for (int n = 1; n <= 10; ++n)
        EXPECT_EQ(Toiminnot().count("Ravit.Command" + std::to_string(n)), 1u) << n;
}

TEST(Runner, TellsTheEndOfTheProgramAndReadsOn) {
    const Ajo ajo = Aja("set Musiikki False\nnew A Vapaa 1 on\nset Äänitehosteet True\ndraws 0.1 0.1\nevents\nanswer Kyllä\n"
                        "call Tanhua.Lopetus\nevents\nprint Päivä\nnew B Vapaa 1 on\ndays 2\nprint Päivä PelaajanNimi\n");
    EXPECT_EQ(ajo.tila, 0) << ajo.virheet;
    // The button clicks, the box asks, its answer clicks, the game ends.
    EXPECT_EQ(ajo.ulos,
              "ÄÄNI|klik1\nVIESTI|1|Oletko varma että lopetat pelin suoraan ilman eläkkeelle siirtymistä?|Kyllä\n"
              "ÄÄNI|klik1\nLOPPU\nPäivä=1\nPäivä=3\nPelaajanNimi=B\n");
    // The farm is given up at the end: a day needs a new one.
    EXPECT_EQ(Aja("new A Vapaa 1 on\nanswer Kyllä\ncall Tanhua.Lopetus\ndays 1\n").tila, 1);
}

TEST(Runner, ReadsAndTampersWithTheDataFolderBytes) {
    // Settings need no farm and hold for the run only: the file keeps its bytes.
    const Ajo ajo = Aja("set Musiikki False\nprint Musiikki\npoke asetukset.dat 0 92\npoke asetukset.dat 1 32\n"
                        "file Asetukset.dat\nfile Puuttuu.sav\n");
    EXPECT_EQ(ajo.tila, 0) << ajo.virheet;
    // The size, then each line with its line feed: a backslash doubled, a blank and the line ends as \xHH.
    EXPECT_EQ(ajo.ulos.substr(0, 95), "Musiikki=False\nAsetukset.dat=53\nAsetukset.dat:1=\\\\\\x20lse\\x0D\\x0A\n"
                                      "Asetukset.dat:2=True\\x0D\\x0A\n");
    EXPECT_EQ(ajo.ulos.substr(ajo.ulos.size() - 20), "Puuttuu.sav=missing\n");
}

TEST(Runner, SetStoresByWidthAndPrintsWithoutTheBlank) {
    const Ajo ajo = Aja(
        "set Musiikki False\nnew Matti Vapaa 1 on\nevents\nset Raha 3.5\nset Hygienia 4.5\nset Viikonloppu True\nset Raha -2\n"
        "set Vuodenaika Talvi\nprint Raha Hygienia Viikonloppu Vuodenaika\n"
        "set Päivä 300\nset Raha kolme\nprint Päivä Raha\nevents\n");
    EXPECT_EQ(ajo.tila, 0) << ajo.virheet;
    EXPECT_EQ(ajo.ulos,
              "Raha=-2\nHygienia=4\nViikonloppu=True\nVuodenaika=Talvi\nPäivä=1\nRaha=-2\n"
              "ÄÄNI|virhe\nVIKA|Tuntematon / määrittämätön|6|Kyllä\nÄÄNI|virhe\nVIKA|Tuntematon / määrittämätön|13|Kyllä\n");
}

TEST(Runner, TraceTellsWhereEachDrawWasTaken) {
    const Ajo ajo = Aja("new A Vapaa 1 on\nevents\ntrace on\ndraws 0.25\nset Kuukausi 12\nset Päivä 23\nset Raha 10\n"
                        "days 1\ntrace off\nevents\n");
    EXPECT_EQ(ajo.tila, 0) << ajo.virheet;
    EXPECT_NE(ajo.ulos.find("ARVONTA|.25|core/päivä.cpp:"), std::string::npos) << ajo.ulos;
    EXPECT_NE(ajo.ulos.find("LISTA|Joululahjaksi  1050"), std::string::npos);
}

TEST(Runner, TellsAreasAndWaitingNewsAndKeepsTheSupplyListsWithTheFlags) {
    testi::Testipeli t;
    t.Aloita();
    t.Tapahtumat();
    // A printed area is told as a report page is; a waiting news window is closed at once.
    t.kanavat.Alue({"Taulukko", 10, {{PUNAINEN, 3, "Maito  12"}, {MUSTA, 5, "Liha"}}});
    KerroJaOdota(t.peli, "Kuvat/sattumat/joulu.jpg", "Sopimus\npäättyi");
    EXPECT_FALSE(t.peli.näkymä.IkkunaNäkyvissä);
    EXPECT_EQ(t.Tapahtumat(), (std::vector<std::string>{"ALUE|Taulukko", "RIVI|180,0,0|3|Maito  12", "RIVI|0,0,0|5|Liha",
                                                         "IKKUNA|Kuvat/sattumat/joulu.jpg|Sopimus\\npäättyi"}));

    testi::Väliaikainen kansio;
    Ajuri ajuri(Kansiot{TANHUA_PROGRAM_DIR, kansio.polku() / "Data"});
    std::ostringstream ulos;
    for (const char* rivi : {"new A Vapaa 1 off", "set Tarv_Kirnu True", "call Jalostus Saha"}) ajuri.Rivi(rivi, ulos);
    EXPECT_EQ(ajuri.peli().tarvikeruutu.Tavarat, std::vector<TarvikeRivinro>{static_cast<TarvikeRivinro>(Kirnu)});
    // Outside a day the chain takes the store load for itself and leaves none standing.
    EXPECT_FALSE(ajuri.peli().päivänKuorma);
    EXPECT_THROW(ajuri.Rivi("call Jalostus Navetta", ulos), std::runtime_error) << "a store has no chain";
}

TEST(Runner, TheGuideNamesEveryOperation) {
    std::ifstream tiedosto(TANHUA_SIM_DOC);
    std::stringstream opas;
    opas << tiedosto.rdbuf();
    for (const auto& [nimi, toiminto] : Toiminnot())
        EXPECT_NE(opas.str().find("`" + nimi), std::string::npos) << nimi << " is not in docs/tanhua-sim.md";
}

// Each scenario is a script beside its expected output; the first differing line is shown.
TEST(Scenarios, TranscriptsMatch) {
    int ajettu = 0;
    for (const auto& tiedosto : fs::directory_iterator(TANHUA_SCENARIOS)) {
        if (tiedosto.path().extension() != ".tanhua") continue;
        ++ajettu;
        std::ifstream skripti(tiedosto.path());
        std::stringstream sisältö;
        sisältö << skripti.rdbuf();
        fs::path odotettuPolku = tiedosto.path();
        odotettuPolku.replace_extension(".expected");
        std::ifstream odotettuTiedosto(odotettuPolku);
        ASSERT_TRUE(odotettuTiedosto) << "missing " << odotettuPolku;
        const Ajo ajo = Aja(sisältö.str());
        EXPECT_EQ(ajo.tila, 0) << tiedosto.path() << ": " << ajo.virheet;
        std::istringstream saatu(ajo.ulos);
        std::string odotettuRivi, saatuRivi;
        int n = 0;
        while (true) {
            ++n;
            const bool o = static_cast<bool>(std::getline(odotettuTiedosto, odotettuRivi));
            const bool s = static_cast<bool>(std::getline(saatu, saatuRivi));
            if (!o && !s) break;
            if (!o || !s || odotettuRivi != saatuRivi) {
                ADD_FAILURE() << tiedosto.path().filename() << "\n" << n << ": - " << (o ? odotettuRivi : "(end)")
                              << "\n" << n << ": + " << (s ? saatuRivi : "(end)");
                break;
            }
        }
    }
    EXPECT_GT(ajettu, 0);
}

TEST(Runner, TheProgramExitsWithTheScriptsStatus) {
    testi::Väliaikainen kansio;
    const fs::path skripti = kansio.polku() / "s.tanhua";
    std::ofstream(skripti) << "new A Vapaa 1 off\ndays 3\nprint Päivä\n";
    std::ofstream(kansio.polku() / "huono.tanhua") << "hyppää\n";
    const std::string data = " --data-dir " + (kansio.polku() / "Data").string();
    struct Tapaus { std::string argumentit; int tila; };
    for (const Tapaus& c : {Tapaus{data + " " + skripti.string(), 0},
                            {data + " " + (kansio.polku() / "huono.tanhua").string(), 1},
                            {data + " " + kansio.polku().string(), 2},  // a folder is no script
                            {" --data-dir", 2},                         // the option without its folder
                            {data + " " + (kansio.polku() / "puuttuu.tanhua").string(), 2}}) {
        const int tila = std::system((std::string(TANHUA_SIM_EXE) + c.argumentit + " > /dev/null 2>&1").c_str());
        EXPECT_EQ(WEXITSTATUS(tila), c.tila) << c.argumentit;
    }
}

}  // namespace
}  // namespace tanhua
