// The headless runner: its words, its errors and its exit status, and the scenario transcripts (which
// hold what the runner prints, skips and reads back).
#include <gtest/gtest.h>

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
                            // The farm is given up at the program's end.
                            {"new A Vapaa 1 on\nanswer Kyllä\ncall Tanhua.Lopetus\ndays 1\n",
                             "line 4: days needs a farm"},
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
    // Every button name of the coupon's form is an operation, the missing Command3 too.
    for (int n = 1; n <= 10; ++n)
        EXPECT_EQ(Toiminnot().count("Ravit.Command" + std::to_string(n)), 1u) << n;
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
