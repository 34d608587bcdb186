// The failure reporter: its box text, the count of eight and the silence after it.
#include <gtest/gtest.h>

#include "core/vikatila.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

using testi::Testipeli;

TEST(FailureReporter, BuildsTheBoxTextLineByLine) {
    Testipeli t;
    t.m.VikaPaikka = "Tanhua pää formi. Seuraava päivä kohdassa.";
    VikaTila(t.peli, Vika(53, "File not found"));
    const std::string väli(20, ' ');
    const std::string odotettu =
        "Jossain kohtaa pelissä esiintyi vika, mutta peli yrittää itse ratkaista ongelman.\n"
        "Jos ohjelma kaatuu seuraavaksi, voit jatkaa tilannettasi lataamalla Autosave.sav tilanteen.\n\n" +
        väli + "Vian paikka : Tanhua pää formi. Seuraava päivä kohdassa.\n" + väli +
        "Vian syy : vikanro.53  Selite : File not found\n\n"
        "Ratkaisu:\n"
        "Olet todennäköisesti poistanut tai nimennyt jostain kansiosta tiedoston jota tarvitaan. Ongelma "
        "korjaantuu palauttamalla tiedosto takaisin tai asentamalla pelin uudestaan.\n\n" +
        väli + "Yritetäänkö jatkaa virhetilanteesta, vai ohitetaanko ongelmakohta?";
    EXPECT_EQ(t.kanavat.viimeisinVikateksti, odotettu);
    EXPECT_EQ(std::tuple(t.m.VikaPaikka, t.m.VikaLaskuri, t.m.VikaJatkuu), std::tuple(std::string(), Long{1}, true));
}

TEST(FailureReporter, WarnsFromTheFifthAndFallsSilentAfterTheEighth) {
    Testipeli t;
    t.peli.asetukset.Äänitehosteet = true;
    for (int i = 1; i <= 8; ++i) {
        t.kanavat.vastaukset.push_back(i < 8 ? "Kyllä" : "Ei");
        VikaTila(t.peli, Vika(6, "Overflow"));
        const std::string varoitus = "Huom! pelissä on tullut jo " + std::to_string(i) + " ongelmaa.";
        EXPECT_EQ(t.kanavat.viimeisinVikateksti.find(varoitus) != std::string::npos, i > 4) << i;
    }
    t.Tapahtumat();
    t.kanavat.vastaukset.push_back("Kyllä");
    VikaTila(t.peli, Vika(6, "Overflow"));
    EXPECT_TRUE(t.Tapahtumat().empty()) << "the ninth failure shows no box and plays no sound";
    EXPECT_FALSE(t.m.VikaJatkuu) << "the ninth follows the eighth answer";
    EXPECT_EQ(t.m.VikaLaskuri, 9);
}

TEST(FailureReporter, ASoundFailureShowsItsOwnBoxAndNeverTheReporter) {
    Testipeli t;
    struct Kanava : TallentavatKanavat {
        void Ääni(const std::string&) override { throw Vika(53, "File not found"); }
    } rikki;
    Peli peli(rikki, t.peli.kansiot);
    peli.asetukset.Äänitehosteet = true;
    VikaTila(peli, Vika(6, "Overflow"));
    ASSERT_EQ(rikki.tapahtumat.size(), 2u);
    EXPECT_TRUE(rikki.tapahtumat[0].starts_with("LAATIKKO|Tanhua on suorittanut virhetilan. Ongelman syynä on virhetila wav"));
    EXPECT_EQ(rikki.tapahtumat[1], "VIKA|Tuntematon / määrittämätön|6|Kyllä");
    EXPECT_EQ(peli.m.VikaLaskuri, 1);
}

}  // namespace
}  // namespace tanhua
