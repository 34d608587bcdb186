// The score of the Tilanne screen and the life story's lines, each table at both sides of its edges.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "career/tilanne.h"
#include "core/peli.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

TEST(Score, AmountTextsAtTheirEdges) {
    struct Tapaus {
        double x;
        const char* teksti;
    };
    for (const Tapaus& c : {Tapaus{999999, "999999"}, {1000000, "1 Miljoonaa"}, {1234567, "1.23 Miljoonaa"},
                            {-2500000, "-2500000"}, {999999999, "1000 Miljoonaa"}, {1e9, "1 Miljardia"},
                            // a tie goes to the even digit
                            {1.25e9, "1.2 Miljardia"}, {-0.5, "-.5"}})
        EXPECT_EQ(MääräTeksti(c.x), c.teksti) << c.x;
}

TEST(Score, SumsWeighedByDifficultyAndFlooredDownward) {
    struct Tapaus {
        const char* mikä;
        int taso;
        std::function<void(Muuttujat&)> aseta;
        int tarvikkeita;
        Single pisteet;
    };
    const Tapaus tapaukset[] = {
        {"-0.6 is floored to -1", 1, [](Muuttujat& m) { m.Raha = 9940; }, 0, -1},
        {"a whole -1 stays", 1, [](Muuttujat& m) { m.Raha = 9900; }, 0, -1},
        {"net of cash, deposit and loan", 1, [](Muuttujat& m) { m.Raha = 5000; m.Tili = 8000; m.Laina = 2000; }, 0, 10},
        {"easy takes 15000 and divides by 120", 0, [](Muuttujat& m) { m.Raha = 15000; m.El[Nauta][Naaras] = 1; }, 0, 41},
        {"hard takes 8000 and divides by 80, land floored", 2,
         [](Muuttujat& m) { m.Raha = 8000; m.Pelto = 1.9f; m.Metsä = 0.2f; }, 0, 200},
        {"contracts at 100 each", 1, [](Muuttujat& m) { m.Raha = 10000; m.SopimuksiaLäpi = 1; m.SopimuksiaEpä = 3; }, 0, -2},
        {"supplies at 1000 each", 1, [](Muuttujat& m) { m.Raha = 10000; }, 2, 20},
        {"the butcher, the dog and the inseminator don't count", 1,
         [](Muuttujat& m) {
             m.Raha = 10000;
             m.Työ[Teurastaja] = 5;
             m.Työ[Vahtikoira] = 5;
             m.Työ[Siementäjä] = 5;
             m.Työ[Varastotyöntekijä] = 1;
         },
         0, 10},
        {"young animals don't count; hens 500, pigs 3000, horses 7000", 1,
         [](Muuttujat& m) {
             m.Raha = 10000;
             m.El[Kana][Nuori] = 50;
             m.El[Kana][Uros] = 2;
             m.El[Kettu][Uros] = 1;
             m.El[Hevonen][Naaras] = 1;
         },
         0, 110},
        {"every building, the packing plant too", 1,
         [](Muuttujat& m) { m.Raha = 10000; m.Rak[Pakkaamo] = 1; m.Rak[Mehiläistarha] = 2; }, 0, 300},
    };
    for (const Tapaus& c : tapaukset) {
        Muuttujat m;
        m.Vaikeustaso = static_cast<Byte>(c.taso);
        c.aseta(m);
        EXPECT_EQ(Pisteet(m, c.tarvikkeita), c.pisteet) << c.mikä;
    }
}

TEST(Score, TheReportsFourteenLinesAsPrinted) {
    testi::Testipeli t;
    t.Aloita("Testi", 2);
    Muuttujat& m = t.m;
    m.Raha = 1000000;
    m.Laidun = 3.5f;
    m.El[Lammas][Naaras] = 4;
    m.Rak[Saha] = 2;
    m.Työ[Metsuri] = 3;
    m.SopimuksiaEpä = 2;
    t.peli.tarvikeruutu.Tavarat = {0, AURA};
    LaskePisteet(t.peli);
    // 1000000 + 3 * 8000 + 2 * 10000 + 3 * 1000 + 2 * 1000 + 4 * 3000 - 200 - 8000, by 80
    EXPECT_EQ(t.peli.tilanneruutu.Pisteet, 13160);
    const std::vector<std::string> odotettu{
        "      Tämänhetkinen tilanteesi", "", "      Vaikeustaso : Vaikea", "      Nettokäteinen : 1 Miljoonaa",
        "      Maaomistukset : 3", "      Eläimet : 4", "      Rakennuksia : 2", "      Työntekijöitä : 3",
        "      Tarvikkeita : 2", "      Työkoneita : 0", "      Sopimusten saldo : -2", "",
        "      Tämänhetkiset pisteesi : 13160", ""};
    EXPECT_EQ(t.peli.tilanneruutu.Alue, odotettu);
}

// The story for a farm set up by `aseta`, the mode and the score given.
std::vector<std::string> Tarina(const std::string& moodi, Single pisteet, const std::function<void(Muuttujat&)>& aseta) {
    Muuttujat m;
    m.PeliMoodi = moodi;
    m.Vuosi = 1984;
    aseta(m);
    return TarinanRivit(m, pisteet);
}

TEST(Story, EachTableAtBothSidesOfItsEdges) {
    struct Tapaus {
        std::string moodi;
        Single pisteet;
        std::function<void(Muuttujat&)> aseta;
        std::string rivi;   // a line the story must have (or, with `ei`, must not)
        bool ei = false;
    };
    auto eläimiä = [](int a) { return [a](Muuttujat& m) { m.El[Nauta][Naaras] = a; m.El[Nauta][Nuori] = 7; }; };
    auto rakennuksia = [](int b) { return [b](Muuttujat& m) { m.Rak[Saha] = static_cast<Byte>(b); m.Rak[Pakkaamo] = 3; }; };
    auto maata = [](float l) { return [l](Muuttujat& m) { m.Pelto = l; m.Laidun = 40; }; };
    auto väkeä = [](int s) { return [s](Muuttujat& m) { m.Työ[Teurastaja] = s; m.Työ[Nahkuri] = 4; }; };
    auto rahaa = [](float r) { return [r](Muuttujat& m) { m.Raha = r; }; };
    auto vuonna = [](int v) { return [v](Muuttujat& m) { m.Raha = 1000000; m.Vuosi = static_cast<Integer>(v); }; };
    auto mitään = [](Muuttujat&) {};
    const Tapaus tapaukset[] = {
        {"Vapaa", 0, eläimiä(0), "Et omista yhtään eläintä, joka on surkeasti!"},
        {"Vapaa", 0, eläimiä(1), "Omistat vaivaiset 1 eläintä."},
        {"Vapaa", 0, eläimiä(9), "Omistat vaivaiset 9 eläintä."},
        {"Vapaa", 0, eläimiä(10), "Omistat ainoastaan 10 eläintä."},
        {"Vapaa", 0, eläimiä(49), "Omistat ainoastaan 49 eläintä."},
        {"Vapaa", 0, eläimiä(50), "Omistat kohtalaiset 50 eläintä."},
        {"Vapaa", 0, eläimiä(99), "Omistat kohtalaiset 99 eläintä."},
        {"Vapaa", 0, eläimiä(100), "Omistat mukavat 100 eläintä"},
        {"Vapaa", 0, eläimiä(199), "Omistat valtavat 199 eläintä, joka on suurtilallisen merkki.", true},
        {"Vapaa", 0, eläimiä(200), "Omistat mukavat 200 eläintä"},
        {"Vapaa", 0, eläimiä(200), "Omistat valtavat 200 eläintä, joka on suurtilallisen merkki."},
        {"Vapaa", 0, rakennuksia(0), "Et rakentanut tilallesi yhtään rakennusta!"},
        {"Vapaa", 0, rakennuksia(1), "Rakensit tilallesi vaivaiset 1 rakennusta."},
        {"Vapaa", 0, rakennuksia(4), "Rakensit tilallesi vaivaiset 4 rakennusta."},
        {"Vapaa", 0, rakennuksia(5), "Rakennutit tilallesi mukavat5 rakennusta."},
        {"Vapaa", 0, rakennuksia(8), "Rakennutit tilallesi mukavat8 rakennusta."},
        {"Vapaa", 0, rakennuksia(9), "Rakennutit tilallesi valtavat 9 rakennusta!"},
        {"Vapaa", 0, maata(0), "Et omistanut yhtään hehtaaria maata, joka on todella huonosti!"},
        {"Vapaa", 0, maata(0.5f), "Et omistanut yhtään hehtaaria maata, joka on todella huonosti!"},
        {"Vapaa", 0, maata(0.5f), "Maata omistit vain vaivaiset .5 hehtaaria."},
        {"Vapaa", 0, maata(1), "Maata omistit vain vaivaiset 1 hehtaaria."},
        {"Vapaa", 0, maata(10), "Maata omistit vain vaivaiset 10 hehtaaria.", true},
        {"Vapaa", 0, maata(10), "Omistit maata kohtalaiset 10 hehtaaria.", true},
        {"Vapaa", 0, maata(10.5f), "Omistit maata kohtalaiset 10.5 hehtaaria."},
        {"Vapaa", 0, maata(50), "Omistit maata kohtalaiset 50 hehtaaria.", true},
        {"Vapaa", 0, maata(100), "Omistit maata valtavat 100 hehtaaria, joka on hyvin!", true},
        {"Vapaa", 0, maata(101), "Omistit maata valtavat 101 hehtaaria, joka on hyvin!"},
        {"Vapaa", 0, väkeä(0), "Sinulla ei ole yhtään työntekijää."},
        {"Vapaa", 0, väkeä(1), "Sinulla on 1 alaista palkkalistoilla."},
        {"Vapaa", 0, väkeä(9), "Sinulla on 9 alaista palkkalistoilla."},
        {"Vapaa", 0, väkeä(10), "Sinulla on 10 alaista palkkalistoilla, joka on hyvin."},
        {"Vapaa", 9999, mitään, "  aikana et ehtinyt saavuttaa mitään tavoitteita. tulet elämään köyhyydessä."},
        {"Vapaa", 10000, mitään, "  aikana  saavutit itsellesi surkean eläkkeen, jolla ei tee mitään."},
        {"Vapaa", 50000, mitään, "  aikana  saavutit itsellesi pienehkön maatilan ja eläkkeen."},
        {"Vapaa", 199999, mitään, "  aikana  saavutit itsellesi kohtalaisen maatilan ja sopivan eläkkeen."},
        {"Vapaa", 200000, mitään, "  aikana saavutit itsellesi valtavan omaisuuden sekä mukavan eläkerahaston."},
        {"10 vuotta", 39999, mitään, "  aikana Et saavuttanut 10 vuodessa aikaan paljoa mitään!"},
        {"10 vuotta", 40000, mitään, "  aikana Ehdit 10 vuoden aikana saavuttaa itsellesi hyvän eläkkeen."},
        {"10 vuotta", 100000, mitään, "  aikana Ehdit 10 vuoden aikana kerätä itsellesi valtavan omaisuuden!"},
        {"Miljoona", 0, rahaa(999999), "  aikana Et edes saanut kerättyä koko miljoonaa kasaan."},
        {"Miljoona", 0, vuonna(1984), "  aikana Ehdit kerätä miljoonan todella nopeasti kasaan!"},
        {"Miljoona", 0, vuonna(1985), "  aikana Ehdit kerätä miljoonan keskiverto nopeudella."},
        {"Miljoona", 0, vuonna(1989), "  aikana Ehdit kerätä miljoonan keskiverto nopeudella."},
        {"Miljoona", 0, vuonna(1990), "  aikana Ehdit kerätä miljoonasi liian hitaasti."},
        {"Miljoona", 0, vuonna(1990), "  Rahaa sinulle jäi kouraan älyttömät 1000000 yhteensä.", true},
        {"Vapaa", 0, rahaa(0), "  Rahaa sinulle jäi kouraan  0 yhteensä."},
        {"Vapaa", 0, rahaa(10000), "  Rahaa sinulle jäi kouraan vaivaiset 10000 yhteensä."},
        {"Vapaa", 0, rahaa(10001), "  Rahaa sinulle jäi kouraan sopivat 10001 yhteensä."},
        {"Vapaa", 0, rahaa(100000), "  Rahaa sinulle jäi kouraan mukavat 100000 yhteensä."},
        {"Vapaa", 0, rahaa(500000), "  Rahaa sinulle jäi kouraan valtavat 500000 yhteensä."},
        {"Vapaa", 0, rahaa(500001), "  Rahaa sinulle jäi kouraan älyttömät 500001 yhteensä."},
        {"Vapaa", 10000, mitään, "Loppujen lopuksi olit vain surkea maanviljelijä, jolla ei ole tulevaisuutta."},
        {"Vapaa", 10001, mitään, "Sinusta ei vain ole kunnon maanviljelijäksi."},
        {"Vapaa", 50001, mitään, "Osaat maatilan hoidon, mutta et menesty taloudellisesti."},
        {"Vapaa", 100000, mitään, "Osaat maatilan hoidon, mutta et menesty taloudellisesti."},
        {"Vapaa", 100000, mitään, "Olet ihan hyvä maanviljelijä, joka osaa myös menestyä taloudellisesti."},
        {"Vapaa", 200000, mitään, "Olet todella taitava maanviljelijä ja osaat ottaa taloudellisen hyödyn irti."},
        {"Vapaa", 400000, mitään, "Olet todella taitava maanviljelijä ja osaat ottaa taloudellisen hyödyn irti.", true},
        {"Vapaa", 400000, mitään, "Olet todella hyvä maanviljelijä joka osaa sijoituksilla tienata omaisuuden!", true},
        {"Vapaa", 400001, mitään, "Olet todella hyvä maanviljelijä joka osaa sijoituksilla tienata omaisuuden!"},
    };
    for (const Tapaus& c : tapaukset) {
        const auto rivit = Tarina(c.moodi, c.pisteet, c.aseta);
        const bool on = std::find(rivit.begin(), rivit.end(), c.rivi) != rivit.end();
        EXPECT_EQ(on, !c.ei) << c.moodi << " " << c.pisteet << ": " << c.rivi;
    }
}

TEST(Story, OpensWithTheYearsAndEndsWithLoppu) {
    const auto rivit = Tarina("10 vuotta", 5, [](Muuttujat& m) { m.Vuosi = 1990; });
    ASSERT_GE(rivit.size(), 9u);
    EXPECT_EQ(rivit[1], "          Sinun tarinasi:");
    EXPECT_EQ(rivit[4], "   eläkkeelle vuonna  1990. Tavoitteenasi oli ");
    EXPECT_EQ(rivit[5], "        Kerätä mahdollisimman paljon omaisuutta 10:ssä vuodessa.");
    EXPECT_EQ(rivit[6], "          ja näiden  10 vuoden");
    EXPECT_EQ(rivit.back(), "       Loppu.......");
    EXPECT_EQ(rivit[rivit.size() - 2], "");
}

}  // namespace
}  // namespace tanhua
