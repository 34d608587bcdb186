// The building catalogue: what each of the sixteen work-order targets costs, how long its order
// takes, how many stars it needs while stars lock the farm, and the texts of the building screen.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "../../core/laskenta.h"
#include "../../core/taulut/rakennukset.h"

namespace tanhua {

// A row of the catalogue. The capacity stores have three steps of size; a processing building
// has one step of one level. The price is that of a building at level 0 (raised by the level
// factor from level 1 on).
struct KatalogiRivi {
    std::string_view avain;          // the target's key: Saha ... Pakkaamo, Navetta, Siilo, Varasto
    int askelia;                     // steps of the size: 3 for a store, 1 for a building
    std::array<Integer, 3> määrät;   // what one order adds: places, kilos or units; 1 level
    std::array<Long, 3> hinnat;      // the price of each step
    std::array<Integer, 3> päivät;   // the days of each step's order
    Byte tähdet;                     // stars needed while the farm climbs its stars
    std::string_view valinta;        // the info box of a chosen target that is not built
    std::string_view vihjeOtsikko;   // the heading of the pointer's tip ("Rakennus : Saha")
    std::string_view vihje;          // the pointer's tip; empty where the picture has none
};

// Indexed like the work orders: the thirteen buildings of Rakennus, then Navetta, Siilo, Varasto.
inline constexpr std::array RAKENNUSKATALOGI{
    KatalogiRivi{"Saha", 1, {1, 0, 0}, {12000, 0, 0}, {120, 0, 0}, 2,
                 "Sahan rakennus mahdollistaa raakapuun jalostuksen laudoiksi. Sahan tarpeisiin tarvitset metsää, metsurin, sekä kirvesmiehen.",
                 "Rakennus : Saha",
                 "Saha mahdollistaa lautojen tuotannon. Tarvitset ensinnäkin raaka-aineena puuta, jota metsurisi kaataa sinulle metsistäsi. Lisäksi tarvitset sahalle myös työvoimasta kirvesmiehen."},  // 0
    KatalogiRivi{"Kasvihuone", 1, {1, 0, 0}, {7000, 0, 0}, {50, 0, 0}, 1,
                 "Kasvihuoneen rakennus mahdollistaa vihannesten tuoton. Tarvitset myös puutarhurin. Kasvihuone ei tuota talvella ja tuotannon määrä vaihtelee vuodenajan mukaan.",
                 "Rakennus : Kasvihuone",
                 "Kasvihuone tuottaa sinulle vihanneksia kevällä, kesällä ja syksyllä. Tuotannon määrä vaihtelee kuukauden mukaan. Tarvitset kasvihuoneeseen työvoimasta puutarhurin, jotta alat saamaan vihanneksia. Talven ajaksi puutarhuri menee lomalle, eikä vie sinulta palkkaa."},  // 1
    KatalogiRivi{"Meijeri", 1, {1, 0, 0}, {11000, 0, 0}, {100, 0, 0}, 2,
                 "Meijerin rakennus Mahdollistaa juuston tuoton maidosta. Tarvitset myös meijerityöntekijän, sekä lehmiä.",
                 "Rakennus : Meijeri",
                 "Meijeri jalostaa sinulle maidosta juustoa. Tarvitsen tilallasi ylimääräistä maitoa sekä työvoimasta meijerityöntekijän. Jos juuston tuotanto alkaa takkuilemaan tarkasta, ettei maidon tuotanto ole tyrehtynyt."},  // 2
    KatalogiRivi{"Mylly", 1, {1, 0, 0}, {9000, 0, 0}, {90, 0, 0}, 1,
                 "Myllyn rakennus mahdollistaa jauhon tuoton viljasta. Tarvitset myös paljon peltoa, sekä myllärin.",
                 "Rakennus : Mylly",
                 "Mylly tuottaa sinulle viljasta jauhoja. Tarvitset myös työvoimasta myllärin, ennenkuin tuotantosi voi alkaa. Ole tarkkana viljan määrän suhteen, jotta myllärillä on tarpeeksi raaka-aineita viljan tuottamiseen."},  // 3
    KatalogiRivi{"Ompelimo", 1, {1, 0, 0}, {15000, 0, 0}, {160, 0, 0}, 2,
                 "Ompelimon rakennus mahdollistaa villan jalostuksen vaatteiksi. Tarvitset myös paljon lampaita, sekä ompelijan.",
                 "Rakennus : Ompelimo",
                 "Ompelimo jalostaa villastasi vaatteita. Tarvitset ompelimon lisäksi myös työvoimasta ompelijan."},  // 4
    KatalogiRivi{"Leipomo", 1, {1, 0, 0}, {17000, 0, 0}, {180, 0, 0}, 2,
                 "Leipomon rakennus mahdollistaa jauhojen tuoton leiväksi tai leivoksiksi. Tarvitset täten myös peltoa, myllärin, myllyn ja leipurin. Leivosten tekemiseen vaaditaan myös munia.",
                 "Rakennus : Leipomo",
                 "Leipomo tuottaa sinulle leivoksia sekä leipiä. Leivoksiin tarvitset kahta raaka-ainetta jauhoja sekä kananmunia. Leivosten hinta on korkeampi kuin leivän. Leivän tuotantoon tarvitset ainoastaan jauhoja. Lisäksi sinun tulee palkata työvoimasta leipuri. Muista olla tarkkana viljan, jauhon sekä kananmunien tuotannon suhteen, koska jos esim viljan tuotanto tyrehtyy koko jalostustuotanto kaatuu."},  // 5
    KatalogiRivi{"Teurastamo", 1, {1, 0, 0}, {14000, 0, 0}, {150, 0, 0}, 1,
                 "Teurastamon rakennus mahdollistaa raakalihan jalostuksen lihatuotteiksi, jos olet palkannut teurastajan. Tarvitset teurastamon pitämiseen mielellään suuren määrän sikoja.",
                 "Rakennus : Teurastamo",
                 "Teurastamo mahdollistaa parempituottoisen teurastuksen, sekä raaka-lihan jatkojalostuksen. Tarvitset teurastamon lisäksi myös työvoimasta teurastajan."},  // 6
    KatalogiRivi{"Rehuntuotanto", 1, {1, 0, 0}, {11000, 0, 0}, {90, 0, 0}, 2,
                 "Rehuntuotantolaitoksen rakennus mahdollistaa viljan jalostuksen rehuksi. Tarvitset myös paljon peltoa. Pieni ala peltoa ei riitä rehun tuotantoon.",
                 "Rakennus : Rehuntuotanto",
                 "Rehuntuotanto laitos tuottaa sinulle ylijäämä viljasta rehua. Tarvitset tähän minimissään 10 hehtaaria peltoa, jotta tuotanto on mahdollista."},  // 7
    KatalogiRivi{"Hevostalli", 1, {1, 0, 0}, {15000, 0, 0}, {80, 0, 0}, 2,
                 "Hevostallilla pääset pitämään ratsastustunteja. Tarvitset myös tallimestarin.",
                 "Rakennus : Hevostalli",
                 "Hevostalli mahdollistaa ratsastustuntejen pitämisen. Tarvitset myös työvoimasta tallimestarin, joka hoitaa ratsastustunteja."},  // 8
    KatalogiRivi{"Marjatarha", 1, {1, 0, 0}, {6000, 0, 0}, {30, 0, 0}, 1,
                 "Marjaviljelmä tuottaa sinulle marjoja, jos olet palkannut puutarhurin. Viljelmällä on myös positiivinen vaikutus mehiläisten tuotantoon. Marjaviljelmä ei tuota talvella. Tuotanto vaihtelee vuodenajan mukaan.",
                 "Rakennus : Marjatarha",
                 "Marjatarha tuottaa sinulle erilaisia marjoja. Tarvitset marjatarhan lisäksi myös puutarhurin, joka poimii sinulle marjat."},  // 9
    KatalogiRivi{"Viinitehdas", 1, {1, 0, 0}, {14000, 0, 0}, {100, 0, 0}, 2,
                 "Viininvalmistamo tuottaa marjoista viiniä. Tarvitset myös marjaviljelmän ja viinimestarin. Huomioi, että viinimestari työskentelee läpi vuoden, vaikka marjoja ei talvella tulekkaan.",
                 "Rakennus : Viinin valmistamo",
                 "Viinin valmistamo jatkojalostaa marjasi viiniksi. Tarvitset viinin tuottamiseen myös viinimestarin. Viinin tuotannossa on tarpeellista kerätä koko kesän marjoja, jotta tuotanto voi jatkua yli koko talven. Jos marjat loppuvat liian aikaisin kesken alkaa viinitila tuottamaan talvella miinusta."},  // 10
    KatalogiRivi{"Mehiläistarha", 1, {1, 0, 0}, {9000, 0, 0}, {40, 0, 0}, 1,
                 "Mehiläistarha mahdollistaa hunajan tuotannon, jos mehiläishoitaja on palkattuna. Tarhalla on positiivinen vaikutus muuhun tuotantoon, mehiläisten pölytyksen ansiosta. Tarha ei tuota talvella ja se määräytyy vuodenajan mukaan.",
                 "",
                 ""},  // 11
    KatalogiRivi{"Pakkaamo", 1, {1, 0, 0}, {20000, 0, 0}, {170, 0, 0}, 3,
                 "Pakkaamossa pakataan ja merkitään logollasi tuotteet, ennen niiden lähettämistä tukkuun. Pakkaamo parantaa kaikkien tukkuun lähtevien tuotteiden hintaa.",
                 "",
                 ""},  // 12
    KatalogiRivi{"Navetta", 3, {1, 10, 100}, {2000, 20000, 200000}, {7, 50, 300}, 0,
                 "Navatta on tila missä kaikki eläimet asustavat. Liian ahtaat tilat estävät eläinten lisääntymisen, joten navetassa on hyvä olla ylimääräistä tilaa.",
                 "Rakennus : Navetta",
                 "Navetta on kaikkien eläinten koti. Navettasi tila määrää, kuinka monta eläintä tilallasi voi olla. Sinun tulee ottaa huomioon myös, että eläimet eivät lisäänny jos tilat ovat ahtaalla, joten on syytä pitää aina ylimääräistä tilaa poikasille."},  // 13
    KatalogiRivi{"Siilo", 3, {50, 500, 1000}, {1000, 10000, 20000}, {30, 150, 200}, 0,
                 "Siilo on rakennus, johon varastoit kaiken rehun. Siilon on hyvä olla suurempi, kuin eläinten viikottainen kulutus. Jos rahasi loppuvat yllättäen, etkä voi ostaa rehua on siilossa olevalla rehulla tärkeä merkitys.",
                 "Rakennus : Siilo",
                 "Siilo on sinun rehuvarastosi. Siilon koko määrää kuinka paljon rehua voit ostaa tai säilöä tilallesi."},  // 14
    KatalogiRivi{"Varasto", 3, {50, 500, 1000}, {1000, 10000, 20000}, {30, 150, 200}, 0,
                 "Varasto on rakennus mihin kaikki tuotteesi säilötään. Varastossa tulee olla ylimääräistä tilaa, koska tuotteet, jotka eivät mahdu varastoon hävitetään, etkä saa niistä voittoa.",
                 "Rakennus : Varasto",
                 "Varasto on paikka johon säilöt kaikki tuotteesi ennen niiden myymistä. Jos varastosi täytyy heität automaattisesti ylimääräiset tuotteet hukkaan, joten ole tarkkana varaston täyttymisen suhteen ja rakenna tarpeiden tullen varastoa."},  // 15
};
static_assert(RAKENNUSKATALOGI.size() == TYÖMAITA);

// The index of a store in the work-order family.
constexpr std::size_t Työmaa(Tila tila) { return std::size_t{RAKENNUKSIA} + tila; }
constexpr bool OnVarastotila(std::size_t kohde) { return kohde >= RAKENNUKSIA; }

// The order in which the day counts the work orders down: the three stores first.
inline constexpr std::array<std::size_t, TYÖMAITA> TYÖMAIDEN_JÄRJESTYS{
    Työmaa(Navetta), Työmaa(Siilo), Työmaa(Varasto), Saha, Kasvihuone, Meijeri, Mylly, Ompelimo,
    Leipomo, Teurastamo, Rehuntuotanto, Hevostalli, Marjatarha, Viinitehdas, Mehiläistarha, Pakkaamo,
};

inline constexpr Byte SUURIN_TASO = 5;

// The info box of a target with a running order, and after an order is given.
inline constexpr std::string_view TEKSTI_RAKENTEILLA =
    "Rakennusmääräys kyseisestä rakennuksesta annettu. Voit nopeuttaa rakennuksen valmistumista "
    "hankkimalla lautatavaraa rakennukselle.";
// The info box when a second order is tried on a building already under work.
inline constexpr std::string_view TEKSTI_PARHAILLAAN =
    "Rakennus on parhaimmillaan rakenteilla. Voit nopeuttaa rakennuksen valmistumista hankkimalla "
    "lautatavaraa rakennukselle.";
// The hint line when the screen opens for a first-time player.
inline constexpr std::string_view OHJE_RAKENNUKSET =
    "Rakennus valikossa voit ostaa jalostamoja sekä muita rakennuksia, jotka parantavat tuotantoa tai "
    "tekevät tietyn tuotteen tuotannon mahdolliseksi.";
inline constexpr std::string_view TEKSTI_LUKITTU = "Lukittu";
inline constexpr std::string_view TEKSTI_PÄIVÄÄ = " päivää";

}  // namespace tanhua
