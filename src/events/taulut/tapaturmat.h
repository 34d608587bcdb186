// Work accidents, numbers 44 to 50: the injury texts and the staff rows a victim is drawn from.
#pragma once

#include <array>
#include <string_view>

#include "../../core/taulut/työvoima.h"

namespace tanhua {

// By D(9) + 1, from 1.
inline constexpr std::array<std::string_view, 9> VAMMAT{
    "oli loukannut työpaikalla itsensä",         // 1
    "loukkasi itsensä pahasti työpaikalla",      // 2
    "teloi itsensä töissä vakavasti",            // 3
    "satutti itsensä vakavasti töissä",          // 4
    "kärsi tuskallisen loukkaantumisen töissä",  // 5
    "koki vakavan onnettomuuden työpaikalla",    // 6
    "sai henkisiä traumoja työpaikalla",         // 7
    "murtui työpaikalla henkisesti",             // 8
    "romahti henkisesti työtehtävissä",          // 9
};

// The victim's number, by D(15) + 1; number 15 has two rows, tested in this order.
struct UhriRivi {
    int numero;
    Työläinen työ;             // its counter and its motivation
    bool talvellaPoissa;       // skipped in winter
    std::string_view sana;     // begins the window text
};

inline constexpr std::array UHRIT{
    UhriRivi{1, Nahkuri, false, "Nahkuri "},                       // 1
    UhriRivi{2, Puutarhuri, true, "Puutarhuri "},                  // 2
    UhriRivi{3, Leipuri, false, "Leipuri "},                       // 3
    UhriRivi{4, Teurastaja, false, "Teurastaja "},                 // 4
    UhriRivi{5, Metsuri, false, "Metsuri "},                       // 5
    UhriRivi{6, Kirvesmies, false, "Kirvesmies "},                 // 6
    UhriRivi{7, Ompelija, false, "Ompelija "},                     // 7
    UhriRivi{8, Meijerityöntekijä, false, "Meijerityöntekijä "},   // 8
    UhriRivi{9, Vahtikoira, false, "Koira "},                      // 9
    UhriRivi{10, Siivooja, false, "Siivooja "},                    // 10
    UhriRivi{11, Mylläri, false, "Mylläri "},                      // 11
    UhriRivi{12, Kirjanpitäjä, false, "Kirjanpitäjä "},            // 12
    UhriRivi{13, Tallimestari, false, "Tallimestari "},            // 13
    UhriRivi{14, Siementäjä, false, "Siementäjä "},                // 14
    UhriRivi{15, Viinimestari, false, "Viinimestari "},            // 15a
    UhriRivi{15, Mehiläishoitaja, true, "Mehiläishoitaja "},       // 15b
};
static_assert(UHRIT.size() == 16);

inline constexpr std::string_view TAPATURMA_VAKUUTETTU = ", vakuutus korvasi tapaturman.";
inline constexpr std::string_view TAPATURMA_MAKSETTU = ", jouduit korvaamaan sairaalamaksuja ";
inline constexpr std::string_view TAPATURMA_RIVI_MAKSETTU = "Työtapaturma, jouduit korvaamaan ";
inline constexpr std::string_view TAPATURMA_RIVI_VAKUUTETTU = "Työtapaturma, vakuutus korvasi sairaalakulut.";

}  // namespace tanhua
