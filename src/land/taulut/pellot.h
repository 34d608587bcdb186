// The land screen's four cards, its pointer texts and the texts of its refusals and panel.
#pragma once

#include <array>
#include <string_view>

#include "../../core/taulut/maat.h"

namespace tanhua {

struct MaaKortti {
    std::string_view otsikko;   // otsikko2, the card's title
    std::string_view info;      // the card's info text
    double veroKerroin;         // the card's Maavero figure: Round(H² × this, 2)
    std::string_view osoitin;   // otsikko while the pointer is over the land's picture
};

// In the order of Maa: Metsä, Pelto, Joutomaa, Laidun.
inline constexpr std::array MAAKORTIT{
    MaaKortti{"Metsä",
              "Metsä tuottaa raakapuuta jos olet palkannut metsurin. Metsää voi istuttaa takaisin hakkuiden "
              "jälkeen. Hakattu metsä muuttuu joutomaaksi. Jatkojalostuksena lautaa, jos omistat sahan ja "
              "kirvesmiehen.",
              0.05, "Maa-alue : Metsä"},  // 0 Metsä
    MaaKortti{"Pelto",
              "Tuottaa viljaa. Tuotantoa voidaan parantaa lannoitteilla. Jatkojalostuksena jauhoja, jos olet "
              "rakentanut myllyn ja palkannut myllärin. Voidaan tuottaa myös rehua, jos omistat "
              "rehuntuotantolaitoksen.",
              0.05, "Maa-alue : Pelto"},  // 1 Pelto
    MaaKortti{"Joutomaa",
              "Joutomaa on maata jossa ei ole peltoa tai metsää. Hakatut metsät muuttuvat joutomaaksi. Joutomaan "
              "voi istuttaa takaisin metsäksi, jos olet palkannut metsurin. Joutomaa ei tuota mitään.",
              0.01, "Maa-alue : Joutomaa"},  // 2 Joutomaa
    MaaKortti{"Laidunmaa",
              "Laidunmaa on aluetta, jossa lehmät, lampaat ja hevoset voivat olla kesäisin. Laidunmaa mahdollistaa "
              "ratsastustunnit, sekä parantaa rehun suhteen omavaraisuutta.",
              0.07, "Maa-alue : Laidunmaa"},  // 3 Laidun
};
static_assert(MAAKORTIT.size() == MAITA);

namespace peltoteksti {
inline constexpr std::string_view Ruutu = "Maa-alueet";
inline constexpr std::string_view LantaVihje =
    "Peltosi kasvuun käytetään lantaan. Voit säätää lannan käyttöä tuotteet valikosta.";
inline constexpr std::string_view Talvi = "(Talvi!)";
inline constexpr std::string_view EiTuottoa = "-";
inline constexpr std::string_view EiVaraa = "Ei sinulla ole varaa";
inline constexpr std::string_view HehtaariaMaksaa = " hehtaaria maksaa ";
inline constexpr std::string_view RahaaOn = " Sinulla on rahaa ";
inline constexpr std::string_view Puuttuu = " Sinulta puuttuu ";
inline constexpr std::string_view EiMyytävää = "Ei sinulla ole tarpeeksi myytävää.";
inline constexpr std::string_view Hevostalli =
    "Olet rakentanut hevostallisi laitumelle, joten sinun on pakko jättää laidunmaata ainakin 1 hehtaari "
    "myymättä.";
inline constexpr std::string_view MetsuriOtsikko = "Metsurin tehtävät :";
inline constexpr std::string_view MetsuriInfo =
    "Kun metsurisi on hakannut metsästäsi puita, voi se istuttaa metsää takaisin. Istutus maksaa 1000 / "
    "hehtaari. Jokainen metsuri voi istuttaa 1 hehtaarin / kk metsää.";
inline constexpr std::string_view Metsitä = "Istuta automaattisesti";
inline constexpr std::string_view Kylvä = "Kylvää pellot";
inline constexpr std::string_view Korjaa = "Korjaa sato pelloilta";
inline constexpr std::string_view Metsurin = "Metsurin toimet";
}  // namespace peltoteksti

}  // namespace tanhua
