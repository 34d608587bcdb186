// The headless runner: its words, its errors and its exit status, and the scenario transcripts.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

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
                            {"call Lentää\n", "line 1: unknown operation 'Lentää'"},
                            {"# comment\n\nnew A Jotain 1 on\n", "line 3: GOAL must be"},
                            {"new A Vapaa 3 on\n", "line 1: DIFFICULTY must be 0, 1 or 2"},
                            {"draws 0.5 1.0\n", "line 1: a draw must be a number in [0,1)"},
                            {"days kaksi\n", "line 1: N must be a whole number"},
                            {"call SeuraavaPäivä 3\n", "line 1: wrong number of arguments"},
                            {"set Raha\n", "line 1: set takes NAME VALUE"},
                            {"new A Vapaa 1 on\ncall Eläimet.Osta Lehmus 1\n", "line 2: unknown animal card 'Lehmus'"},
                            {"new A Vapaa 1 on\ncall Tuotteet.MyyKaikki Kulta\n", "line 2: unknown product 'Kulta'"}}) {
        const Ajo ajo = Aja(c.skripti);
        EXPECT_EQ(ajo.tila, 1) << c.skripti;
        EXPECT_NE(ajo.virheet.find(c.virhe), std::string::npos) << ajo.virheet;
    }
}

TEST(Runner, SetStoresByWidthAndPrintsWithoutTheBlank) {
    const Ajo ajo = Aja(
        "new Matti Vapaa 1 on\nevents\nset Raha 3.5\nset Hygienia 4.5\nset Viikonloppu True\nset Raha -2\n"
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
    struct Tapaus { const char* sisältö; int tila; };
    for (const Tapaus& c : {Tapaus{"new A Vapaa 1 off\ndays 3\nprint Päivä\n", 0}, {"hyppää\n", 1}}) {
        std::ofstream(skripti) << c.sisältö;
        const std::string komento = std::string(TANHUA_SIM_EXE) + " --data-dir " + (kansio.polku() / "Data").string() +
                                    " " + skripti.string() + " > /dev/null 2>&1";
        const int tila = std::system(komento.c_str());
        EXPECT_EQ(WEXITSTATUS(tila), c.tila) << c.sisältö;
    }
}

}  // namespace
}  // namespace tanhua
