// The seventeen staff kinds: base wages, stars needed and whether overtime is saved.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tanhua {

enum Työläinen : std::size_t {
    Nahkuri, Puutarhuri, Leipuri, Teurastaja, Metsuri, Kirvesmies, Ompelija, Meijerityöntekijä,
    Vahtikoira, Siivooja, Mylläri, Kirjanpitäjä, Tallimestari, Siementäjä, Viinimestari,
    Mehiläishoitaja, Varastotyöntekijä,
    TYÖLÄISIÄ
};

struct TyöläinenRivi {
    std::string_view avain;  // the key is also the name shown
    int perusPalkka;         // PerusPalkka_<avain>, a month
    int tähtiä;              // stars needed while the star lock is on
    bool ylityöTallennetaan; // Ylityö_<avain> is in the save file
};

inline constexpr std::array TYÖLÄISTAULU{
    //            key                   base wage  stars  overtime saved
    TyöläinenRivi{"Nahkuri",            100,  0, true},   // 0
    TyöläinenRivi{"Puutarhuri",         4000, 1, true},   // 1
    TyöläinenRivi{"Leipuri",            5000, 2, true},   // 2
    TyöläinenRivi{"Teurastaja",         5000, 1, true},   // 3
    TyöläinenRivi{"Metsuri",            7000, 1, true},   // 4
    TyöläinenRivi{"Kirvesmies",         5000, 2, true},   // 5
    TyöläinenRivi{"Ompelija",           5000, 2, true},   // 6
    TyöläinenRivi{"Meijerityöntekijä",  5000, 2, true},   // 7
    TyöläinenRivi{"Vahtikoira",         100,  0, true},   // 8
    TyöläinenRivi{"Siivooja",           3000, 0, true},   // 9
    TyöläinenRivi{"Mylläri",            3000, 1, true},   // 10
    TyöläinenRivi{"Kirjanpitäjä",       3000, 0, true},   // 11
    TyöläinenRivi{"Tallimestari",       6000, 2, true},   // 12
    TyöläinenRivi{"Siementäjä",         3000, 2, true},   // 13
    TyöläinenRivi{"Viinimestari",       5000, 2, true},   // 14
    TyöläinenRivi{"Mehiläishoitaja",    3000, 1, true},   // 15
    TyöläinenRivi{"Varastotyöntekijä",  4000, 3, false},  // 16
};
static_assert(TYÖLÄISTAULU.size() == TYÖLÄISIÄ);

// The order in which the staff screen lists the kinds.
inline constexpr std::array<Työläinen, TYÖLÄISIÄ> TYÖLÄISTEN_NÄYTTÖJÄRJESTYS{
    Kirjanpitäjä, Siivooja, Vahtikoira, Nahkuri, Puutarhuri, Metsuri, Mehiläishoitaja, Teurastaja,
    Mylläri, Ompelija, Leipuri, Meijerityöntekijä, Kirvesmies, Tallimestari, Siementäjä, Viinimestari,
    Varastotyöntekijä,
};

}  // namespace tanhua
