// The race-betting screen's texts, bet kinds and the table of the prize pools.
#pragma once

#include <array>
#include <string_view>

namespace tanhua {

namespace ravitekstit {
inline constexpr std::string_view Huom =
    "HUOM! Tämä tanhuan versio on ainoastaan väliversio, koska sitä haluttiin jakoon. Ravi ei ole toiminnassa ja "
    "saattaa olla, ettei edes tule olemaan lopullisessa pelissä, koska veikkaus tuottaa yllättävän paljon ongelmia.";
inline constexpr std::string_view Tiedosto = "RaviHevoset.txt";
inline constexpr std::string_view EiTiedostoa =
    "Tanhua ei löytänyt /Data kansiosta tiedostoa nimeltä RaviHevoset. Jos et löydä itsekkään sitä, tee kyseinen "
    "tiedosto ja lisää sinne hevosten nimiä riveittäin minimissään 8 kpl.";
inline constexpr std::string_view LiikaaNimiä =
    "Sinulla on ravihevos listalla yli 100 nimeä, niitä voi olla enintään 100 kpl.";
inline constexpr std::string_view V75Puuttuu =
    "V75 veikkauksessa sinulla pitää olla seitsemästä lähdöstä valittuna voittajahevonen.";
inline constexpr std::string_view TrioPuuttuu =
    "Sinulta puuttuu Trio:sta kohteita. Triossa pitää olla 3 hevosen järjestys.";
inline constexpr std::string_view RiviOtsikko = " Rivi : ";
inline constexpr std::string_view Tulos = "Ravit.Tulos";  // the printed area's name
}  // namespace ravitekstit

namespace vetolaji {
inline constexpr std::string_view V75 = "V75";
inline constexpr std::string_view Trio = "Trio";
inline constexpr std::string_view Voittajaveto = "Voittajaveto";
}  // namespace vetolaji

// The pools shared again by the first row whose condition holds: each level's share of the
// turnover per winner (0 for a level left out), and the word of its box.
struct PottiRivi {
    double p7, p6, p5;
    std::string_view sana;
};
inline constexpr std::array POTTITAULU{
    PottiRivi{0.24, 0.12, 0.24, "eka"},    // 0 c7 above 0, p6 above 1, p5 above 1
    PottiRivi{0.3, 0.2, 0, "toka"},        // 1 c7 above 0, p6 above 1, p5 below 1
    PottiRivi{0, 0.3, 0.2, "kolmas"},      // 2 c7 = 0, p6 above 1, p5 below 1
    PottiRivi{0.3, 0, 0.2, "neljäs"},      // 3 c7 above 0, c6 = 0, p5 above 1
};

}  // namespace tanhua
