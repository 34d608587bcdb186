// The settings file as the settings tool reads and writes it, by the game's own line rules.
#include <gtest/gtest.h>

#include <filesystem>

#include "storage/asetukset.h"
#include "storage/tiedostot.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

TEST(SettingsFile, ALineTheGameWouldRefuseKeepsTheShippedValue) {
    Asetukset oletus;
    oletus.Musiikki = true;
    oletus.AnimNopeus = 50;
    struct Tapaus { const char* teksti; std::vector<int> huonot; bool musiikki; int nopeus; };
    for (const Tapaus& c : {
             // Booleans also take a whole number: 0 is false, all else true; a line may end LF only.
             Tapaus{"False\r\nTrue\r\n7\r\nFalse\r\n0\r\nTrue\r\n-1\r\nTrue\r\nFalse\r\n", {}, false, 7},
             {"False\nTrue\n100\nFalse\nfalse\nTrue\nTrue\nTrue\nTrue\n", {}, false, 100},
             // A word that doesn't convert, a number past 16 bits, and lines missing at the end.
             {"False\r\nTrue\r\n40000\r\nFalse\r\nkyllä\r\n", {3, 5, 6, 7, 8, 9}, true, 50},
             {"", {1, 2, 3, 4, 5, 6, 7, 8, 9}, true, 50},
         }) {
        Asetukset a;
        EXPECT_EQ(std::tuple(JäsennäAsetukset(c.teksti, oletus, a), a.Musiikki, a.AnimNopeus),
                  std::tuple(c.huonot, c.musiikki, c.nopeus)) << c.teksti;
    }
    EXPECT_EQ(HuonotRivit({5}, false),
              "Asetukset.dat: rivi 5 ei kelvannut pelille; sen tilalla on asennuksen arvo.");
    EXPECT_EQ(HuonotRivit({}, false), "");
}

TEST(SettingsFile, TypedValuesAreCheckedAndTheFileIsNineLinesWithCrLf) {
    Asetukset a;
    struct Tapaus { const char* nimi; const char* arvo; bool kelpaa; };
    for (const Tapaus& c : {Tapaus{"Musiikki", "False", true}, {"Musiikki", "false", false}, {"Musiikki", "0", false},
                            {"AnimNopeus", "0", true}, {"AnimNopeus", "100", true}, {"AnimNopeus", "101", false},
                            {"AnimNopeus", "-1", false}, {"AnimNopeus", "5.5", false}, {"AnimNopeus", "", false}}) {
        const std::size_t rivi = AsetusNimellä(c.nimi);
        ASSERT_LT(rivi, ASETUSRIVIT.size());
        EXPECT_EQ(AsetaAsetus(a, rivi, c.arvo).empty(), c.kelpaa) << c.nimi << "=" << c.arvo;
    }
    EXPECT_EQ(AsetusNimellä("Musiikit"), ASETUSRIVIT.size());
    a = Asetukset{};
    a.Animaatiot = true;
    a.AnimNopeus = 35;
    a.Prosessorisäästö = true;
    EXPECT_EQ(AsetuksetTekstinä(a), "False\r\nTrue\r\n35\r\nFalse\r\nFalse\r\nFalse\r\nFalse\r\nFalse\r\nTrue\r\n");
}

TEST(SettingsFile, AWholeWriteReplacesTheFileAndLeavesNoTemporaryBehind) {
    testi::Väliaikainen kansio;
    const auto polku = kansio.polku() / "Asetukset.dat";
    ASSERT_TRUE(KirjoitaKokonaan(polku, "vanha"));
    ASSERT_TRUE(KirjoitaKokonaan(polku, "uusi\r\n"));
    EXPECT_EQ(LueTiedosto(polku), "uusi\r\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(kansio.polku()), std::filesystem::directory_iterator()), 1);
    // A folder that isn't there can't be written: false, and nothing is left.
    EXPECT_FALSE(KirjoitaKokonaan(kansio.polku() / "puuttuu" / "Asetukset.dat", "x"));
}

}  // namespace
}  // namespace tanhua
