// The wage talks: the jobs that come to the table, in the order they are met, with the news
// window's opening line of each; and the talks' texts.
#pragma once

#include <array>
#include <string_view>

#include "../../core/taulut/työvoima.h"

namespace tanhua {

struct NeuvotteluRivi {
    Työläinen työ;
    std::string_view avaus;  // the news window's text when the job's workers open a talk
};

// The tanner, the dog, the accountant and the warehouse worker never negotiate.
inline constexpr std::array NEUVOTTELIJAT{
    NeuvotteluRivi{Tallimestari, "Tallimestarisi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 0
    NeuvotteluRivi{Metsuri, "Metsurisi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 1
    NeuvotteluRivi{Puutarhuri, "Puutarhurisi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 2
    NeuvotteluRivi{Teurastaja, "Teurastajasi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 3
    NeuvotteluRivi{Meijerityöntekijä, "Meijerityöntekijäsi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 4
    NeuvotteluRivi{Ompelija, "Ompelijasi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 5
    NeuvotteluRivi{Leipuri, "Leipurisi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 6
    NeuvotteluRivi{Kirvesmies, "Kirvesmies on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 7
    NeuvotteluRivi{Mylläri, "Myllärisi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 8
    NeuvotteluRivi{Siementäjä, "Siementäjäsi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 9
    NeuvotteluRivi{Viinimestari, "Viinimestarisi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 10
    NeuvotteluRivi{Mehiläishoitaja, "Mehiläishoitajasi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 11
    NeuvotteluRivi{Siivooja, "siivoojasi on tyytymätön palkkaan ja haluaa palkankorotuksen. Palkkaneuvottelut ovat käynnissä."},  // 12
};
static_assert(NEUVOTTELIJAT.size() == 13);

namespace neuvotteluteksti {
inline constexpr std::string_view Kuva = "Kuvat/sattumat/lakimies.jpg";
inline constexpr std::string_view Otsikko = "Palkkaneuvottelu :";
inline constexpr std::string_view Tyytymätön = " on tyytymätön maksamaasi palkkaan ja haluaa uusia sopimuksensa.";
inline constexpr std::string_view Vaatimus = " ilmoitti palkkavaatimukseksi ";
inline constexpr std::string_view Kuukaudessa = " / kk.";
inline constexpr std::string_view Suostutko = "Suostutko uuteen sopimukseen?";
inline constexpr std::string_view Sovittu = "Sopimuksessa päästiin heti yhteisymmärrykseen. Uusi palkka on ";
// The stable master's agreement has no "heti".
inline constexpr std::string_view SovittuTallimestari = "Sopimuksessa päästiin yhteisymmärrykseen. Uusi palkka on ";
inline constexpr std::string_view UusiPalkkaLoppu = " / kk";
inline constexpr std::string_view Korotus = " sai palkankorotuksen";
inline constexpr std::string_view Miettii = " miettii uutta palkkavaatimusta.";
inline constexpr std::string_view EiVielä = "Neuvottelussa ei päästy vielä yhteisymmärrykseen";
inline constexpr std::string_view EiMiellyttänyt = "Sopimuksesi ei miellyttänyt. ";
inline constexpr std::string_view Lopputili = " otti lopputilin ja hänen lakimiehensä jätti ";
inline constexpr std::string_view Laskun = " laskun sinulle!";
inline constexpr std::string_view LopputiliJa = " otti lopputilin ja ";
inline constexpr std::string_view Korvausvaatimus = " korvausvaatimuksen";
inline constexpr std::string_view OttiLopputilin = " otti lopputilin";
}  // namespace neuvotteluteksti

}  // namespace tanhua
