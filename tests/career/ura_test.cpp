// The end of a career: retirement, the top-ten lists and their files, and deleting a save.
#include <gtest/gtest.h>

#include "career/tilanne.h"
#include "core/peli.h"
#include "storage/tallennus.h"
#include "storage/tiedostot.h"
#include "storage/topten.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

namespace fs = std::filesystem;

// The rows of a fresh list, best first.
std::array<std::string, 11> Nollattu() {
    std::array<std::string, 11> p{};
    for (int i = 1; i <= 10; ++i) p[i] = std::to_string(110 - 10 * i);
    return p;
}

TEST(TopTen, ThePositionOfANewResult) {
    struct Tapaus {
        const char* mikä;
        double tulos;
        bool pienempi;
        int paikka;
    };
    for (const Tapaus& c : {Tapaus{"only rows above 55 stay above it", 55, false, 6},
                            {"above every row", 101, false, 1},
                            {"equal to row 1 goes below it", 100, false, 2},
                            {"the last place", 11, false, 10},
                            {"equal to row 10: no place", 10, false, 11},
                            {"below every row", -5, false, 11},
                            {"floored before the compare", 55.9, false, 6},
                            {"days far above a fresh list's rows: no place", 3000, true, 11}}) {
        EXPECT_EQ(ListanPaikka(Nollattu(), c.tulos, c.pienempi), c.paikka) << c.mikä;
    }
    // A lower-is-better list in its order: fewer days go higher.
    std::array<std::string, 11> päivät{};
    for (int i = 1; i <= 10; ++i) päivät[i] = " " + std::to_string(1000 + 100 * i);
    EXPECT_EQ(ListanPaikka(päivät, 1550, true), 6);
    EXPECT_EQ(ListanPaikka(päivät, 900, true), 1);
    // A fresh list read as lower-is-better has no place for 50, and a row of letters is no number.
    for (auto p : {Nollattu(), [] { auto r = Nollattu(); r[4] = "paljon"; return r; }()}) {
        try {
            ListanPaikka(p, 50, p[4] == "70");
            ADD_FAILURE() << "no failure for " << p[4];
        } catch (const Vika& v) {
            EXPECT_EQ(v.Numero(), 13);
        }
    }
}

TEST(TopTen, ANameWithATabOrALineEndKeepsTheFileWhole) {
    std::vector<std::string> rivit{"Liisa\tMäki", "Pekka\r\nX", "ÿ"};
    const std::string tiedosto = ListaTiedostoksi(rivit);
    const auto takaisin = ListanRivit(tiedosto);
    ASSERT_EQ(takaisin.size(), 3u);
    EXPECT_EQ(takaisin[0], "Liisa Mäki");
    EXPECT_EQ(takaisin[1], "Pekka  X");
    EXPECT_EQ(takaisin[2], "ÿ");
    EXPECT_EQ(tiedosto.substr(0, 7), "Mjjtb!N");
}

struct Ura : ::testing::Test {
    testi::Testipeli t;
    fs::path Lista(const char* nimi) { return t.peli.kansiot.data / nimi; }

    void SetUp() override {
        t.Aloita();
        t.kanavat.vastaukset = {"Kyllä"};
        TyhjennäListat(t.peli);
        t.Tapahtumat();
    }
    // Retires with the score given and closes the story: the lists take the result.
    void Eläkkeelle(Single pisteet, std::initializer_list<std::string> vastaukset) {
        t.peli.tilanneruutu.auki = true;
        t.kanavat.vastaukset = {"Kyllä"};
        JääEläkkeelle(t.peli);
        t.peli.tilanneruutu.Pisteet = pisteet;
        t.kanavat.vastaukset = vastaukset;
        SuljeTarina(t.peli);
    }
};

TEST_F(Ura, AResultOf55TakesRow6AndIsWrittenWhenTheListCloses) {
    // The list shows the name as typed; the file keeps a tab out. The rows below move down one.
    const std::string ennen = LueTiedosto(Lista("Topten.dat")).value();
    Eläkkeelle(55, {"Liisa\tMäki"});
    const ToptenRuutuTila& l = t.peli.tilanneruutu.Topten;
    EXPECT_EQ(std::tuple(l.p0Tag, l.n[6], l.p[6], l.p[7]), std::tuple(" 6", "Liisa\tMäki", " 55", "50"));
    // Nothing is written until the list closes; then the program ends.
    EXPECT_EQ(LueTiedosto(Lista("Topten.dat")).value(), ennen);
    SuljeTopten(t.peli);
    EXPECT_EQ(t.Tapahtumat().back(), "LOPPU");
    const auto rivit = ListanRivit(LueTiedosto(Lista("Topten.dat")).value());
    ASSERT_EQ(rivit.size(), 20u);
    EXPECT_EQ(rivit[5], "Liisa Mäki");
    EXPECT_EQ(rivit[15], " 55");
}

TEST_F(Ura, ResultsAtRow10AtNoPlaceAndInMiljoona) {
    Eläkkeelle(15, {"Kymppi"});
    const ToptenRuutuTila& l = t.peli.tilanneruutu.Topten;
    EXPECT_EQ(l.n[9], "Testi");
    EXPECT_EQ(l.p[9], "20");
    EXPECT_EQ(l.n[10], "Kymppi");
    EXPECT_EQ(l.p[10], " 15");

    t.peli.tilanneruutu = {};
    Eläkkeelle(-5, {});
    EXPECT_EQ(t.Tapahtumat().back(), "VIESTI|0|Harmi, et päässyt Topten listalle|vastattu");
    EXPECT_EQ(t.peli.tilanneruutu.Topten.p[10], "10");

    t.peli.tilanneruutu = {};
    t.m.PeliMoodi = "Miljoona";
    t.m.Vuosi = 1983;
    t.m.Kuukausi = 6;
    t.m.Päivä = 15;
    Eläkkeelle(0, {});
    EXPECT_EQ(t.peli.tilanneruutu.Topten.otsikko, "Nopeiten miljoonan keränneiden top 10");
    EXPECT_EQ(t.peli.tilanneruutu.Topten.p[0], "2880");  // 1980 - (-3 * 365 + 6 * 30 + 15)
    EXPECT_EQ(t.Tapahtumat().back(), "VIESTI|0|Harmi, et päässyt Topten listalle|vastattu");
}

TEST_F(Ura, InMidCareerTheListClosesBackToTheScoreAndNoFileChanges) {
    const std::string ennen = LueTiedosto(Lista("Topten.dat")).value();
    t.peli.tilanneruutu.auki = true;
    EnnätysListat(t.peli);
    EXPECT_FALSE(t.peli.tilanneruutu.auki);
    EXPECT_EQ(t.peli.tilanneruutu.Topten.n[1], "Testi");
    SuljeTopten(t.peli);
    EXPECT_TRUE(t.peli.tilanneruutu.auki);
    EXPECT_EQ(t.Tapahtumat().front(), "ALUE|Tilanne");
    EXPECT_EQ(LueTiedosto(Lista("Topten.dat")).value(), ennen);
    // Emptying the lists on "Ei" leaves them too.
    t.kanavat.vastaukset = {"Ei"};
    fs::remove(Lista("Top10v.dat"));
    TyhjennäListat(t.peli);
    EXPECT_FALSE(fs::exists(Lista("Top10v.dat")));
}

TEST_F(Ura, AListThatDoesNotReadShowsItsBoxOnce) {
    // Letters in two result lines: one box, and the result finds no place.
    std::vector<std::string> rivit(10, "Testi");
    for (const char* p : {"a", "90", "b", "70", "60", "50", "40", "30", "20", "10"}) rivit.push_back(p);
    t.KirjoitaData("Topten.dat", ListaTiedostoksi(rivit));
    Eläkkeelle(500, {});
    int laatikoita = 0;
    for (const std::string& e : t.Tapahtumat()) laatikoita += e.find("Tanhua suoritti virhetilan.") != std::string::npos;
    EXPECT_EQ(laatikoita, 1);
    EXPECT_EQ(t.m.VikaPaikka, "Top ten listaan pääsy");
    EXPECT_EQ(t.peli.tilanneruutu.Topten.n[1], "Testi");
}

TEST_F(Ura, RetiringAnsweredNoTellsNoStory) {
    t.peli.tilanneruutu.auki = true;
    t.kanavat.vastaukset = {"Ei"};
    JääEläkkeelle(t.peli);
    EXPECT_FALSE(t.peli.tilanneruutu.Tarina);
}

TEST_F(Ura, AnOpenedFarmHasNoCallRequestsWaiting) {
    // The requests, the ringing phone and the contract picked for cancelling belong to the farm
    // left behind: none of them is saved, and an old pick would cancel a slot of the opened farm.
    TallennaTilanne(t.peli, "Eka");
    t.peli.näkymä.Sopimuksia = {"Maito", "Villat"};
    t.peli.näkymä.Puhelin = true;
    t.peli.sopimusruutu.Peruttava = "Kananmunat";
    t.peli.sopimusruutu.peruttavaPaikka = 1;
    t.peli.sopimusruutu.peruttavaSakko = 5000;
    ASSERT_TRUE(AvaaTilanne(t.peli, "Eka"));
    EXPECT_TRUE(t.peli.näkymä.Sopimuksia.empty());
    EXPECT_FALSE(t.peli.näkymä.Puhelin);
    EXPECT_EQ(t.peli.sopimusruutu.Peruttava, "");
    EXPECT_EQ(t.peli.sopimusruutu.peruttavaPaikka, -1);
    EXPECT_EQ(t.peli.sopimusruutu.peruttavaSakko, 0);
}

TEST_F(Ura, DeletingASaveAsksAndLeavesItsSeal) {
    TallennaTilanne(t.peli, "Vanha");
    TallennaTilanne(t.peli, "Toinen");
    TilanneRuutuTila& r = t.peli.tilanneruutu;
    AvaaPaneeli(t.peli);
    EXPECT_EQ(r.Tiedostot, (std::vector<std::string>{"Toinen.sav", "Vanha.sav"}));
    ValitseTiedosto(t.peli, "Vanha.sav");
    EXPECT_EQ(r.Kohde, "Vanha");
    t.kanavat.vastaukset = {"Ei"};
    PoistaTilanne(t.peli);
    EXPECT_TRUE(fs::exists(t.peli.kansiot.data / "Vanha.sav"));
    t.kanavat.vastaukset = {"Kyllä"};
    t.Tapahtumat();
    PoistaTilanne(t.peli);
    EXPECT_EQ(t.Tapahtumat().front(), "VIESTI|1|Olet poistamassa tilanteen Vanha\\n\\nJatketaanko?|Kyllä");
    EXPECT_FALSE(fs::exists(t.peli.kansiot.data / "Vanha.sav"));
    EXPECT_TRUE(fs::exists(t.peli.kansiot.data / "Vanha.fxf"));
    EXPECT_EQ(r.Tiedostot, std::vector<std::string>{"Toinen.sav"});
    // A name not on the list takes the file clicked, at once; once it is gone, the box says so.
    ValitseTiedosto(t.peli, "Toinen.sav");
    r.Kohde = "muu";
    PoistaTilanne(t.peli);
    EXPECT_FALSE(fs::exists(t.peli.kansiot.data / "Toinen.sav"));
    r.Valittu = "Toinen.sav";
    PoistaTilanne(t.peli);
    EXPECT_EQ(t.Tapahtumat().back().rfind("LAATIKKO|Tilannetta ei löydetty Data/ kansiosta", 0), 0u);
}

}  // namespace
}  // namespace tanhua
