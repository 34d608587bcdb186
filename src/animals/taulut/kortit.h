// The twelve cards of the animal screen: prices, meat, info texts; the slaughter boxes and the hints.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "../../core/taulut/eläimet.h"

namespace tanhua {

// What a slaughter by hand gives of a kind.
enum class Teurastus { Liha, Turkki, Kielletty };

struct KorttiRivi {
    std::string_view otsikko;   // the card's title, shown
    std::string_view avain;     // the key of the head counter: El_<avain>
    Laji laji;
    Luokka luokka;              // Naaras or Uros: the adult counter of the card
    int ostohinta;
    int myyntihinta;
    Teurastus teurastus;
    int näytettyLiha;           // meat shown on a horse card; meat kinds show their Lihaa_ value, foxes 0
    std::string_view infoAlku;  // the info text up to the meat figure (the whole text where there is none)
    std::string_view infoLoppu; // the rest after the meat figure; empty when the text quotes none
    std::string_view aihe;      // the label over the kind's picture
    std::string_view aiheLaskuri;  // the label over its counter
};

inline constexpr std::array KORTIT{
    KorttiRivi{"Lehmä", "Lehmä", Nauta, Naaras, 5000, 4000, Teurastus::Liha, 0,
               "Tuottaa maitoa noin 10 litraa/päivä, sivutuotteena lantaa. Teurastaessa lihaa ",
               " kg. Rehunkulutus noin 5 kg/päivä. Jatkojalostaessa meijerissä tuottaa juustoa. Lisääntyy harvoin.",
               "Eläimet : Lehmä", "Eläimet : Lehmä"},
    KorttiRivi{"Sonni", "Sonni", Nauta, Uros, 5000, 4000, Teurastus::Liha, 0,
               "Tuottaa teurastaessa lihaa ",
               " kg, sivutuotteena lantaa. Rehunkulutus noin 5 kg/päivä. Mahdollistaa lisääntymisen lehmien kanssa.",
               "Eläimet : Sonni", "Eläimet : Sonni"},
    KorttiRivi{"Lammas", "Lammas", Lammas, Naaras, 3000, 2000, Teurastus::Liha, 0,
               "Lammas tuottaa villaa noin 3 kg/päivä, sivutuotteena vähän lantaa. Teurastaessa lihaa ",
               " kg. Rehunkulutus noin 3 kg/päivä. Jatkojalostaessa ompelimossa tuottaa vaatteita.",
               "Eläimet : Lammas", "Eläimet : Lammas"},
    KorttiRivi{"Pässi", "Pässi", Lammas, Uros, 3000, 2000, Teurastus::Liha, 0,
               "Tuottaa villaa noin 1 kg/päivä, sivutuotteena vähän lantaa. Tuottaa teurastaessa lihaa ",
               ". Rehunkulutus noin 3 kg/päivä. Mahdollistaa lisääntymisen lampaan kanssa.",
               "Eläimet : Pässi", "Eläimet : Pässi"},
    KorttiRivi{"Emakko", "Sika", Sika, Naaras, 3000, 1000, Teurastus::Liha, 0,
               "Emakko tuottaa lannoitetta muutaman kilon päivässä ja teurastaessa lihaa ",
               ". Rehunkulutus noin 3 kg/päivä. Lisäntyminen todennäköistä suurissa pesueissa. Jatkojalostaessa "
               "teurastamossa tuottaa makkaraa.",
               "Eläimet : Emakko", "Eläimet : Emakko"},
    KorttiRivi{"Karju", "Karju", Sika, Uros, 3000, 1000, Teurastus::Liha, 0,
               "Karju tuottaa lannoitetta muutaman kilon päivässä. Teurastaessa tuottaa lihaa ",
               ". Rehunkulutus noin 3 kg/päivä. Mahdollistaa lisääntymisen sikojen kanssa.",
               "Eläimet : Karju", "Eläimet : Karju"},
    KorttiRivi{"Kana", "Kana", Kana, Naaras, 500, 300, Teurastus::Liha, 0,
               "Tuottaa munia noin 3 kpl/päivä, sivutuotteena vähän lantaa. Teurastaessa lihaa ",
               " kg. Rehunkulutus vain puoli kiloa päivässä. Lisäntyminen todennäköistä. Jatkojalostaessa "
               "leipomossa voi tuottaa leivoksia.",
               "Eläimet : Kana", "Eläimet : Kana"},
    KorttiRivi{"Kukko", "Kukko", Kana, Uros, 500, 300, Teurastus::Liha, 0,
               "Kukko tuottaa teurastaessa lihaa ",
               " kg. Sivutuotteena tuottaa lantaa. Kukko kuluttaa rehua vain puoli kiloa päivässä. Mahdollistaa "
               "lisääntymisen kanojen kanssa.",
               "Eläimet : Kukko", "Eläimet : Kukko"},
    KorttiRivi{"Kettu", "Kettu", Kettu, Naaras, 3000, 1000, Teurastus::Turkki, 0,
               "Tuottaa turkiksia teurastaessa. Turkisten tuloon vaikuttaa nahkuri. Rehunkulutus noin 2 kg/päivä. "
               "Lisääntyminen todennäköistä suurissa pesueissa.",
               "", "Eläimet : Naaraskettu", "Eläimet : Kettu"},
    KorttiRivi{"Uros Kettu", "KettuUros", Kettu, Uros, 3000, 1000, Teurastus::Turkki, 0,
               "Urospuolinen kettu tuottaa turkiksia teurastaessa. Turkisten tuloon vaikuttaa nahkuri. Kettu "
               "kuluttaa rehua noin 2 kg/päivä. Mahdollistaa lisääntymisen naaraskettujen kanssa.",
               "", "Eläimet : Uroskettu", "Eläimet : Uros kettu"},
    KorttiRivi{"Tamma", "Tamma", Hevonen, Naaras, 7000, 6000, Teurastus::Kielletty, 0,
               "Tammalla voit pitää ratsastustunteja, jos omistat hevostallin, sekä olet palkannut tallimestarin. "
               "Tamma kuluttaa rehua noin 5 kg/päivä. Lisääntyy vain harvoin. Tammaa ei ole mahdollista teurastaa!",
               "", "Eläimet : Tamma", "Eläimet : Tamma"},
    // The stallion's card shows 80 kg of meat although a horse is never slaughtered; the figure still
    // counts in the store test of a slaughter.
    KorttiRivi{"Ori", "Ori", Hevonen, Uros, 7000, 6000, Teurastus::Kielletty, 80,
               "Orilla voit pitää ratsastustunteja, jos omistat hevostallin ja olet palkannut tallimestarin. Ori "
               "kuluttaa rehua noin 5 kg/päivä. Mahdollistaa lisääntymisen tamman kanssa. Oria ei ole mahdollista "
               "teurastaa!",
               "", "Eläimet : Ori", "Eläimet : Ori"},
};
static_assert(KORTIT.size() == 12);

// The tanner's note that replaces a fox card's info text after a slaughter.
inline constexpr std::string_view NAHKURIN_VELOITUS = "Nahkuri veloitti sinua nylkemisestä 500 / kettu";

// The five slaughter orders, in the order of the record's boxes: the species, the panel
// (false: the butcher's Teuras, true: the tanner's Nylky) and the caption of the box.
struct TeurasLaatikkoRivi {
    Laji laji;
    bool nylky;
    std::string_view kuvateksti;
};

inline constexpr std::array TEURASLAATIKOT{
    TeurasLaatikkoRivi{Nauta, false, "Teurasta lehmä aina, kun lehmiä on enemmän, kuin"},
    TeurasLaatikkoRivi{Lammas, false, "Teurasta lammas aina, kun lampaita on enemmän, kuin"},
    TeurasLaatikkoRivi{Sika, false, "Teurasta sika aina, kun sikoja on enemmän, kuin"},
    TeurasLaatikkoRivi{Kana, false, "Teurasta kana aina, kun kanoja on enemmän, kuin"},
    TeurasLaatikkoRivi{Kettu, true, "Nylje kettu aina, kun kettuja on enemmän, kuin"},
};
static_assert(TEURASLAATIKOT.size() == 5);

// The names of the ten limit fields, two a box, female first: Teuras<nimi>Raja.
inline constexpr std::array<std::string_view, 10> TEURASRAJAT{
    "Lehmä", "Sonni", "Lammas", "Pässi", "Sika", "Karju", "Kana", "Kukko", "Kettu", "KettuUros"};

// What the pointer can be over on the animal screen, for the hint line and the label aihe.
enum class EläinKohde {
    Ruutu,         // the bare screen
    Kuva,          // a kind's picture (the card given)
    Laskuri,       // a kind's counter (the card given)
    Urokset,       // the males' heading
    Nuoret,        // the young's heading
    Takaisin,
    Teuraskuva,
    NahkuriKuva,
};

inline constexpr std::string_view OHJE_TERVETULOA = "Tervetuloa ostamaan eläimiä.";
inline constexpr std::string_view AIHE_RUUTU = "Eläimet :";

// The hint of a kind's picture, by species.
inline constexpr std::array<std::string_view, LAJEJA> LAJIOHJEET{
    // Nauta: the cow's; the bull has his own below
    "Lehmä on kallis ostos ja sen tuottavuus on alussa epävarmaa kurssi muutosten takia. Lehmän osto kannattaa "
    "jättää vasta siihen vaiheeseen kun muu tilasi tuotanto pyörii ja tuottaa sinulle rahaa.",
    // Sika
    "Sika on keskihintainen ostos, joka ei tuota kuin lantaa ja teurastettaessa lihaa. Saatava lihan määrä on "
    "paljon ja lihan hinta on hyvä, mutta sikalan pitämisessä on omat riskinsä. Jos siat ei lisäänny moneen "
    "kuukauteen alkavat ne tuottaa tappiota ja tilasi talous saattaa olla vaakalaudalla.",
    // Lammas
    "Lammas on melko kallis ostos alussa, mutta sen tuotanto on vakaata ja villan hinta on kohtalainen "
    "varsinkin jos kurssit sattuvat nouseen. Suosittelen harkitsemaan lampaan ostoa.",
    // Kana
    "Kana on peliä aloitettaessa hyvä valinta. Kana on halpa ja se tuottaa kohtalaisesti sen syöntiin nähden.",
    // Kettu
    "Ketut ovat keskihintaisia ostoksia. Ketut tuottavat kalliita turkkeja teurastettaessa. Kettutarhan "
    "pitämisessä on omat riskinsä, jos ketut eivät lisäänny muutamaan kuukauteen alkavat ne tuottaa tappiota.",
    // Hevonen
    "Hevonen on kallis ostos, johon tarvitset lisäksi hevostallin ja tallimestarin. Hevosten tuotanto on "
    "kohtalainen, mutta suurten investointejen takia hevosen hankkiminen kannattaa ajoittaa myöhempään "
    "vaiheeseen.",
};
inline constexpr std::string_view OHJE_SONNI =
    "Sonni on kallis ostos ja sen tuottavuus on alussa epävarmaa kurssi muutosten takia. Sonnin osto kannattaa "
    "jättää vasta siihen vaiheeseen kun muu tilasi tuotanto pyörii ja tuottaa sinulle rahaa.";
inline constexpr std::string_view OHJE_UROKSET =
    "Urokset eivät yleensä tuota tuotteita, vaan hoitavat eläinten lisääntymisen. Alussa kannattaa ostaa aina "
    "yhden naaraan lisäksi myös yksi uros, niin voit saada poikasia ja tilasi eläinmäärä kasvaa ilmaiseksi.";
inline constexpr std::string_view OHJE_NUORET =
    "Nuoret ja poikaset ovat eläimiä jotka eivät ole täyskasvuisia. Ne syövät rehua, mutta ne eivät voi "
    "tuottaa tuotteita, eikä lisääntyä. Eläinten kasvaminen poikasesta aikuiseksi vaihtelee eläinkohtaisesti.";
inline constexpr std::string_view OHJE_TAKAISIN = "Sulje eläimet valikko ja palaa takaisin tanhuan pää valikkoon.";

}  // namespace tanhua
