// A farm saved by name and opened back: the shifted lines, the seal beside them, the refusals.
#include <gtest/gtest.h>

#include <climits>
#include <random>

#include "core/alku.h"
#include "storage/crc.h"
#include "storage/sinetti.h"
#include "storage/tallennus.h"
#include "storage/tiedostot.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

namespace fs = std::filesystem;

std::string Lue(const fs::path& polku) { return LueTiedosto(polku).value_or("<puuttuu>"); }

TEST(Seal, ChecksumsAndTheirTextAgainstKnownValues) {
    clsCRC crc;
    EXPECT_EQ(std::tuple(crc.Algorithm(), crc.CalculateString("123456789"), crc.CalculateBytes("")),
              std::tuple(clsCRC::CRC32, static_cast<std::int32_t>(0xCBF43926u), 0));
    // Adding in pieces is the same as adding at once.
    crc.Clear();
    crc.AddString("1234");
    EXPECT_EQ(crc.AddBytes("56789"), static_cast<std::int32_t>(0xCBF43926u));
    crc.Algorithm(clsCRC::CRC16);
    EXPECT_EQ(crc.CalculateString("123456789"), 0x31C3);

    struct Tapaus { std::int32_t arvo; const char* heksa; };
    for (const Tapaus& c : {Tapaus{0, "0"}, {0x0ABCDEF1, "ABCDEF1"}, {0xF, "F"}, {-1, "FFFFFFFF"},
                            {INT_MIN, "80000000"}, {-0x0FFFFFFF, "F0000001"}})
        EXPECT_EQ(HeksaTeksti(c.arvo), c.heksa) << c.arvo;
}

TEST(Seal, EachCharacterMeetsTheNextKeyCharacter) {
    struct Tapaus { const char* teksti; std::string sinetti; };
    using namespace std::string_literals;
    for (const Tapaus& c : {
             // the first character meets 'Q', the key's first 'K' comes up at the sixth
             Tapaus{"ABCDEF1", "\x10\x16\x15vr\x0D`"s},
             // an '8' meeting '2' is a line feed, a '2' meeting '2' a NUL
             {"12380000", "`fe\x0A\x07{ad"s},
             {"1232", "`fe\0"s},
             {"", ""s},
         })
        EXPECT_EQ(Sinetti(c.teksti, SINETTI_AVAIN), c.sinetti) << c.teksti;
}

// A farm whose every line is known from the file's rules.
Muuttujat KultainenTila() {
    Muuttujat m;
    m.Versio = 1.5f;
    m.PelaajanNimi = "Äijä";
    m.Raha = 12345.67f;
    m.Laina = 1e8f;
    m.Tili = 0.5f;
    m.Päivä = 31;
    m.Kuukausi = 12;
    m.Vuosi = 1995;
    m.Vaikeustaso = 2;
    m.El[Nauta][Naaras] = 7;
    m.El[Hevonen][Uros] = 1;
    m.Var[Maito] = 2.25f;
    m.Kurssi[Hunaja] = -12;
    m.MaaKurssi[MaaPelto] = -100;
    m.MaaKurssi[MaaMetsä] = 200;
    m.Koko_Navetta = 20;
    m.Rak[Saha] = 1;
    m.Rak[Pakkaamo] = 5;
    m.MetsääJäljellä = 100;
    m.Työ[Varastotyöntekijä] = 2;
    m.Käyrät.LV = {" 100", "-5"};
    m.Tuotteet.Myy[Muna] = 1;
    m.Tuotteet.MyyTyyli[Maito] = "Puolet";
    m.PeliMoodi = "Miljoona";
    m.Ylityö[Nahkuri] = true;
    m.Tarv[Palohälytin] = true;
    m.Sop[0] = {"Maito", 100, 5, 50, 12};
    m.SopimuksiaLäpi = 3;
    m.RakAika[RAKENNUKSIA + std::size_t{Navetta}] = 4;
    m.RakTilaus[RAKENNUKSIA + std::size_t{Navetta}] = 10;
    m.Tähdet = 3;
    m.TähtiLukitus = true;
    m.Sateisuus = -1.5f;
    m.Lämpötila = -20;
    m.Tuotanto[Saha] = 100;
    m.Tuotanto[Leipomo] = 50;
    return m;
}

// Its lines before the shift, in Windows-1252, written out from the table of fields.
std::vector<std::string> KultaisetRivit() {
    std::vector<std::string> r;
    auto lisää = [&](std::initializer_list<const char*> rivit) { r.insert(r.end(), rivit.begin(), rivit.end()); };
    auto toista = [&](const char* rivi, int kertaa) { r.insert(r.end(), kertaa, rivi); };
    lisää({" 1.5 ", "\xC4ij\xE4", " 12345.67 ", " 1E+08 ", " .5 ", " 0 ", " 31 ", " 12 ", " 1995 ", " 2 "});
    lisää({" 7 "}), toista(" 0 ", 22), lisää({" 1 "});               // animals
    lisää({" 2.25 "}), toista(" 0 ", 19);                             // stocks
    toista(" 0 ", 19), lisää({"-12 "});                               // market indices
    lisää({"-100 ", " 200 ", " 0 ", " 0 "});                          // Pelto before Metsä
    lisää({" 20 ", " 0 ", " 1 ", " 0 ", " 0 ", " 0 ", " 0 "});        // barn, silo, Saha..Mylly, store
    toista(" 0 ", 8), lisää({" 5 "});                                 // Ompelimo..Pakkaamo
    lisää({" 0 ", " 0 ", " 0 ", " 100 ", " 0 "});                    // land
    toista(" 0 ", 16), lisää({" 2 "});                                // staff
    toista(" 0 ", 4);                                                 // riding, turnover, price, slider
    lisää({" 2 ", " 100", "-5"}), toista(" 0 ", 5);                   // the six chart lists
    lisää({" 1 "}), toista(" 0 ", 19);                                // Muna's switch comes first
    lisää({"Kaikki", "Puolet"}), toista("Kaikki", 18);
    lisää({" 1 ", "Miljoona", "True"}), toista("False", 15);          // slider, goal, overtime
    toista(" 0 ", 17 + 5), toista("0", 10), toista(" 0 ", 5);         // wages, slaughter, insurance
    lisää({"True"}), toista("False", 29);                             // supplies
    lisää({"Maito", " 100 ", " 5 ", " 50 ", " 12 ", "", " 0 ", " 0 ", " 0 ", " 0 ", "", " 0 ", " 0 ", " 0 ", " 0 "});
    lisää({" 3 ", " 0 ", " 0 ", "False", " 4 ", " 10 "}), toista(" 0 ", 30);
    lisää({"False", " 3 ", "True", " 0 ", "-1.5 ", "-20 ", " 100 "}), toista(" 0 ", 6), lisää({" 50 "});
    return r;
}

TEST(SaveFile, AKnownFarmIsWrittenByteForByteWithItsSeal) {
    testi::Testipeli t;
    t.m = KultainenTila();
    TallennaTilanne(t.peli, "Kulta");

    std::string odotettu;
    for (const std::string& rivi : KultaisetRivit()) {
        for (char c : rivi) odotettu += static_cast<char>(static_cast<unsigned char>(c) + 1);
        odotettu += "\r\n";
    }
    const fs::path data = t.peli.kansiot.data;
    const std::string sav = Lue(data / "Kulta.sav");
    EXPECT_EQ(std::tuple(sav.substr(0, 13), sav), std::tuple("!2/6!\r\n\xC5jk\xE5\r\n", odotettu));
    clsCRC crc;
    EXPECT_EQ(Lue(data / "Kulta.fxf"), Sinetti(HeksaTeksti(crc.CalculateBytes(odotettu)), "KQTV27") + "\r\n");
    EXPECT_EQ(Lue(data / "Savetus.dat"), "Kulta\r\n");
    EXPECT_FALSE(fs::exists(data / "temp.dat"));

    // The autosave leaves the last name of the continue button as it was.
    TallennaTilanne(t.peli, "Autosave");
    EXPECT_EQ(std::tuple(Lue(data / "Autosave.sav"), Lue(data / "Savetus.dat")), std::tuple(odotettu, "Kulta\r\n"));
}

// A random farm whose values each pass their text form unchanged.
Muuttujat SatunnainenTila(std::mt19937& g) {
    auto luku = [&](long a, long b) { return std::uniform_int_distribution<long>(a, b)(g); };
    auto single = [&] { return static_cast<Single>(luku(-4000000, 4000000)) / 4.0f; };
    Muuttujat m = KultainenTila();
    const char* nimet[] = {"Matti", "Äijä Öhö", "", "Åke-Pär", "x"};
    m.PelaajanNimi = nimet[luku(0, 4)];
    m.Raha = single();
    m.Laina = luku(0, 1) ? single() : 1.5e9f;
    m.Tili = single();
    m.Päivä = static_cast<Byte>(luku(1, 31));
    m.Kuukausi = static_cast<Byte>(luku(1, 12));
    m.Vuosi = static_cast<Integer>(luku(1990, 2100));
    for (auto& laji : m.El)
        for (Long& l : laji) l = static_cast<Long>(luku(0, 2000000000));
    for (Single& v : m.Var) v = single();
    for (Integer& v : m.Kurssi) v = static_cast<Integer>(luku(-32768, 32767));
    for (Long& v : m.MaaKurssi) v = static_cast<Long>(luku(-100000, 100000));
    for (Byte& v : m.Rak) v = static_cast<Byte>(luku(0, 255));
    for (Long& v : m.Työ) v = static_cast<Long>(luku(0, 50));
    for (Integer& v : m.Palkka) v = static_cast<Integer>(luku(0, 30000));
    for (Boolean& v : m.Ylityö) v = luku(0, 1);
    m.Ylityö[Varastotyöntekijä] = false;  // not in the file
    for (Boolean& v : m.Tarv) v = luku(0, 1);
    for (std::size_t k = 0; k < TUOTTEITA; ++k) {
        m.Tuotteet.Myy[k] = static_cast<Integer>(luku(0, 1));
        m.Tuotteet.MyyTyyli[k] = luku(0, 1) ? "Kaikki" : "Puolet";
    }
    for (auto* lista : {&m.Käyrät.LV, &m.Käyrät.Netto, &m.Käyrät.Rahatila, &m.Käyrät.YHTPalkat,
                        &m.Käyrät.Eläimiä, &m.Käyrät.Rakennuksia}) {
        lista->clear();
        for (long i = luku(0, 30); i > 0; --i) lista->push_back(Str(single()));
    }
    for (Sopimus& s : m.Sop)
        s = luku(0, 1) ? Sopimus{"Juusto", static_cast<Long>(luku(1, 999)), 7, 8, 9} : Sopimus{};
    for (Integer& v : m.RakAika) v = static_cast<Integer>(luku(0, 60));
    for (Byte& v : m.Tuotanto) v = static_cast<Byte>(luku(0, 100));
    m.Tähdet = static_cast<Byte>(luku(0, 5));
    m.TähtiLukitus = luku(0, 1);
    m.Aurinkoisuus = single();
    m.Lämpötila = static_cast<Integer>(luku(-40, 35));
    return m;
}

// Among the farms are seals that hold a line feed or a NUL, and checksums that are negative or whose
// hexadecimal has a leading zero: each shape is counted, so each is known to open.
TEST(SaveFile, ManyRandomFarmsSaveOpenAndSaveAgainIdentically) {
    std::mt19937 g(20261125);
    int rivinvaihto = 0, nolla = 0, negatiivinen = 0, etunolla = 0;
    for (int kierros = 0; kierros < 300; ++kierros) {
        testi::Testipeli tallentaja;
        tallentaja.m = SatunnainenTila(g);
        TallennaTilanne(tallentaja.peli, "Tila");
        const fs::path data = tallentaja.peli.kansiot.data;
        const std::string sav = Lue(data / "Tila.sav"), fxf = Lue(data / "Tila.fxf");
        const std::string sinetti = fxf.substr(0, fxf.size() - 2);
        const std::int32_t crc = clsCRC().CalculateBytes(sav);
        rivinvaihto += sinetti.find('\n') != std::string::npos;
        nolla += sinetti.find('\0') != std::string::npos;
        negatiivinen += crc < 0;
        etunolla += crc > 0 && crc < 0x10000000;

        testi::Testipeli avaaja;
        avaaja.m.Versio = VERSIO;  // the running program's own
        avaaja.peli.näkymä.Lista = {"vanha rivi"};
        fs::copy_file(data / "Tila.sav", avaaja.peli.kansiot.data / "Tila.sav");
        fs::copy_file(data / "Tila.fxf", avaaja.peli.kansiot.data / "Tila.fxf");
        ASSERT_TRUE(AvaaTilanne(avaaja.peli, "Tila")) << kierros;
        ASSERT_TRUE(avaaja.Tapahtumat().empty()) << kierros;
        TallennaTilanne(avaaja.peli, "Tila");
        ASSERT_EQ(Lue(avaaja.peli.kansiot.data / "Tila.sav"), sav) << kierros;
        ASSERT_EQ(Lue(avaaja.peli.kansiot.data / "Tila.fxf"), fxf) << kierros;

        // The owned supplies and the shop lists come back from the flags; the screen is tidied.
        const Muuttujat& m = tallentaja.m;
        EXPECT_EQ(avaaja.peli.tarvikeruutu.Tavarat.size(),
                  static_cast<std::size_t>(std::count(m.Tarv.begin(), m.Tarv.end(), true)));
        EXPECT_EQ(avaaja.m.TilanteenVersio, 1.5f);
        EXPECT_TRUE(avaaja.peli.näkymä.Lista.empty());
        EXPECT_EQ(avaaja.peli.näkymä.lukemat.tähdetNäkyvät, m.TähtiLukitus);
        EXPECT_FALSE(avaaja.peli.Ladataan);
    }
    EXPECT_TRUE(rivinvaihto && nolla && negatiivinen && etunolla)
        << rivinvaihto << " " << nolla << " " << negatiivinen << " " << etunolla;
}

TEST(SaveFile, OneChangedByteAnywhereIsRefusedAndTheProgramEnds) {
    testi::Testipeli t;
    t.m = KultainenTila();
    TallennaTilanne(t.peli, "Kulta");
    const fs::path data = t.peli.kansiot.data;
    for (const char* tiedosto : {"Kulta.sav", "Kulta.fxf"}) {
        const std::string alku = Lue(data / tiedosto);
        for (std::size_t i = 0; i < alku.size(); ++i) {
            std::string muutettu = alku;
            muutettu[i] = static_cast<char>(static_cast<unsigned char>(muutettu[i]) + 1);
            t.KirjoitaData(tiedosto, muutettu);
            t.m.Raha = -1;
            ASSERT_FALSE(AvaaTilanne(t.peli, "Kulta")) << tiedosto << " " << i;
            ASSERT_EQ(t.Tapahtumat(),
                      (std::vector<std::string>{"LAATIKKO|" + YhdelleRiville(AvausKiellettyTeksti()), "LOPPU"}))
                << tiedosto << " " << i;
            ASSERT_EQ(t.m.Raha, -1);
        }
        t.KirjoitaData(tiedosto, alku);
    }
    // A pair renamed together opens: the seal hangs on the content only. Without its seal it is refused.
    fs::rename(data / "Kulta.sav", data / "Muu.sav");
    fs::rename(data / "Kulta.fxf", data / "Muu.fxf");
    EXPECT_TRUE(AvaaTilanne(t.peli, "Muu"));
    EXPECT_EQ(t.m.Raha, 12345.67f);
    EXPECT_TRUE(t.Tapahtumat().empty());
    fs::remove(data / "Muu.fxf");
    EXPECT_FALSE(AvaaTilanne(t.peli, "Muu"));
}

// A seal whose last character is a CR, found by trying cash values, still opens: the line's own CR
// is not taken for it.
TEST(SaveFile, ASealEndingInCarriageReturnStillOpens) {
    testi::Testipeli t;
    t.m = KultainenTila();
    std::string sinetti;
    for (t.m.Raha = 0; t.m.Raha < 200000 && (sinetti.empty() || sinetti.back() != '\r'); ++t.m.Raha)
        sinetti = Sinetti(HeksaTeksti(clsCRC().CalculateBytes(SiirretytRivit(TilanteenRivit(t.peli)))), SINETTI_AVAIN);
    ASSERT_EQ(sinetti.back(), '\r');
    const Single raha = --t.m.Raha;
    TallennaTilanne(t.peli, "Sinetti");
    t.m.Raha = -1;
    EXPECT_TRUE(AvaaTilanne(t.peli, "Sinetti"));
    EXPECT_EQ(t.m.Raha, raha);
    EXPECT_TRUE(t.Tapahtumat().empty());
}

// A .sav with a valid seal whose lines don't read: the failure's number, and going on or not.
TEST(SaveFile, ALineThatDoesNotReadIsReportedAndGoingOnReadsTheNext) {
    struct Tapaus {
        const char* mikä;
        std::size_t rivi;        // the line changed (from 0), or the count kept for a short file
        const char* teksti;      // nullptr: the file is cut to `rivi` lines
        const char* vastaus;
        int numero;              // 0: no failure
        Single raha, laina;      // after the open, from 7 and 8 before it
    };
    for (const Tapaus& c : {
             Tapaus{"comma read as the separator", 2, " 12,5 ", "Ei", 0, 12.5f, 1e8f},
             {"letters in a number, given up", 2, " 12a ", "Ei", 13, 7, 8},
             {"letters in a number, gone on", 2, "kaksi", "Kyllä", 13, 7, 1e8f},
             {"past a byte's width", 6, " 300 ", "Ei", 6, 12345.67f, 1e8f},
             {"past an integer's width", 8, " 40000 ", "Ei", 6, 12345.67f, 1e8f},
             {"a short file", 3, nullptr, "Ei", 62, 12345.67f, 8},
         }) {
        testi::Testipeli t;
        t.m = KultainenTila();
        std::vector<std::string> rivit = TilanteenRivit(t.peli);
        if (c.teksti) rivit[c.rivi] = c.teksti;
        else rivit.resize(c.rivi);
        t.KirjoitaData("Vika.sav", SiirretytRivit(rivit));
        t.KirjoitaData("Vika.fxf", TiedostonSinetti(t.peli.kansiot.data / "Vika.sav") + "\r\n");
        t.m.Raha = 7;
        t.m.Laina = 8;
        t.kanavat.vastaukset = {c.vastaus};
        EXPECT_TRUE(AvaaTilanne(t.peli, "Vika")) << c.mikä;
        const auto tapahtumat = t.Tapahtumat();
        if (c.numero == 0) {
            EXPECT_TRUE(tapahtumat.empty()) << c.mikä;
        } else {
            ASSERT_FALSE(tapahtumat.empty()) << c.mikä;
            EXPECT_EQ(tapahtumat[0], "VIKA|Moduulissa. Avattaessa tilannetta.|" + std::to_string(c.numero) + "|" +
                                         c.vastaus)
                << c.mikä;
        }
        // A short save of the program's own version is told as a file of the wrong size.
        EXPECT_EQ(t.kanavat.viimeisinVikateksti.find("Tiedosto jota avattiin on väärän kokoinen") != std::string::npos,
                  c.numero == 62)
            << c.mikä;
        EXPECT_EQ(std::tuple(t.m.Raha, t.m.Laina), std::tuple(c.raha, c.laina)) << c.mikä;
        EXPECT_FALSE(t.peli.Ladataan) << c.mikä;
    }
    // A save of another version that fails explains the versions in the failure box.
    testi::Testipeli t;
    t.m = KultainenTila();
    std::vector<std::string> rivit = TilanteenRivit(t.peli);
    rivit[0] = " 1.4 ";
    rivit[2] = "x";
    t.KirjoitaData("Vanha.sav", SiirretytRivit(rivit));
    t.KirjoitaData("Vanha.fxf", TiedostonSinetti(t.peli.kansiot.data / "Vanha.sav") + "\r\n");
    t.kanavat.vastaukset = {"Ei"};
    AvaaTilanne(t.peli, "Vanha");
    EXPECT_NE(t.kanavat.viimeisinVikateksti.find("Tämän tanhuan versio on  1.5 ja ladattavan tilanteen data:n mukaan "
                                                  "tilanteen versio on  1.4. Joudut"),
              std::string::npos)
        << t.kanavat.viimeisinVikateksti;
    EXPECT_EQ(t.m.Versio, 1.5f);
}

// A write that fails halfway leaves the old save opening as it was, whether the player goes on or not.
TEST(SaveFile, AFailedWriteIsReportedAndTheOldSaveStillOpens) {
    for (const char* este : {"Vanha.sav.uusi", "Vanha.fxf.uusi"}) {
        for (const char* vastaus : {"Kyllä", "Ei"}) {
            testi::Testipeli t;
            t.m = KultainenTila();
            TallennaTilanne(t.peli, "Vanha");
            // A folder where the new file would be written makes the write fail.
            const fs::path data = t.peli.kansiot.data;
            fs::create_directories(data / este / "sisältö");
            t.m.Raha = 1;
            t.kanavat.vastaukset = {vastaus};
            TallennaTilanne(t.peli, "Vanha");
            const auto tapahtumat = t.Tapahtumat();
            ASSERT_FALSE(tapahtumat.empty()) << este << vastaus;
            EXPECT_EQ(tapahtumat[0], std::string("VIKA|Moduulissa. Tallennettaessa tilannetta.|75|") + vastaus);
            t.m.Raha = -1;
            EXPECT_TRUE(AvaaTilanne(t.peli, "Vanha")) << este << vastaus;
            EXPECT_EQ(t.m.Raha, 12345.67f) << este << vastaus;
        }
    }
}

// "Jatka tilannetta" opens the last save by its name; the shop lists come back without "Aura".
TEST(SaveFile, TheStartScreensContinueOpensTheLastSave) {
    testi::Aloitettu t;
    ASSERT_EQ(t.peli.tarvikeruutu.kauppa[Työkoneet].back(), AURA);
    t.m.Tarv = {};
    t.m.Tarv[Kaivo] = true;
    t.m.Raha = 4321;
    t.m.Kuukausi = 10;
    TallennaTilanne(t.peli, "Eilen");
    t.m.Raha = 0;
    t.peli.alku.Viime = "Eilen";
    t.Tapahtumat();
    EXPECT_TRUE(JatkaTilannetta(t.peli));
    EXPECT_EQ(std::tuple(t.m.Raha, t.m.Vuodenaika), std::tuple(4321, "Syksy"));
    const auto& kauppa = t.peli.tarvikeruutu.kauppa;
    EXPECT_EQ(std::tuple(kauppa[Tarvikkeita].size(), kauppa[Lisälaitteet].size(), kauppa[Työkoneet].size()),
              std::tuple(std::size_t{5}, std::size_t{18}, std::size_t{6}));
    EXPECT_EQ(t.peli.tarvikeruutu.Tavarat, std::vector<TarvikeRivinro>{static_cast<TarvikeRivinro>(Kaivo)});

    // A save without its seal is refused and the program ends; nothing is opened.
    fs::remove(t.peli.kansiot.data / "Eilen.fxf");
    t.Tapahtumat();
    EXPECT_FALSE(JatkaTilannetta(t.peli));
    EXPECT_EQ(t.Tapahtumat().back(), "LOPPU");
}

// An old save is written over only on "Kyllä"; "Ei" leaves both files as they were. The name's
// checks are in the runner's transcript.
TEST(SavePanel, AnOldSaveIsWrittenOverOnlyOnYes) {
    testi::Testipeli t;
    t.m = KultainenTila();
    const fs::path data = t.peli.kansiot.data;
    TallennaTilanne(t.peli, "Äänekoski11");
    const std::string sav = Lue(data / "Äänekoski11.sav"), fxf = Lue(data / "Äänekoski11.fxf");
    t.m.Raha = 1;
    t.peli.tilanneruutu.Kohde = "äänekoski11";  // the list is searched without regard to case
    t.kanavat.vastaukset = {"Ei"};
    EXPECT_FALSE(TallennaNappi(t.peli));
    EXPECT_EQ(std::tuple(Lue(data / "Äänekoski11.sav"), Lue(data / "Äänekoski11.fxf")), std::tuple(sav, fxf));
    t.kanavat.vastaukset = {"Kyllä"};
    EXPECT_TRUE(TallennaNappi(t.peli));
    EXPECT_NE(Lue(data / "Äänekoski11.sav"), sav);
    EXPECT_EQ(t.peli.tilanneruutu.Tiedostot, std::vector<std::string>{"Äänekoski11.sav"});
}

}  // namespace
}  // namespace tanhua
