// Theft, fire, animal activists and a broken supply: their texts and the fire's places.
#pragma once

#include <array>
#include <string_view>

#include "../../core/taulut/eläimet.h"

namespace tanhua {

// Theft, number 19.
inline constexpr std::string_view VARKAUS_RIVI = "Sinulla oli käynyt yöllä varkaita!!";
inline constexpr std::string_view VARKAUS_TEKSTI = "Sinulla oli käynyt yönaikana varkaita.";
inline constexpr std::string_view VARKAUS_KORVAUS = "vakuutus korvasi sinulle ";

// Fire, number 20, by the place D(3).
enum Palopaikka { PaloNavetta, PaloSiilo, PaloVarasto };
struct PaloRivi {
    std::string_view rivi;
    std::string_view teksti;
};
inline constexpr std::array PALOPAIKAT{
    PaloRivi{"Sinulla oli syttynyt tulipalo navetassasi!",
             "Navetassasi oli ollut tulipalo, jonka palomiehet kuitenkin saivat sammutettua."},  // 0 navetta
    PaloRivi{"Siilossasi oli tulipalo!", "Siilosi syttyi tuleen, mutta ei vaurioitunut kokonaan."},  // 1 siilo
    PaloRivi{"Varastosi oli syttynyt tuleen!", "Varastossasi oli tulipalo. Osa varastosta vaurioitui pahasti."},  // 2
};
static_assert(PALOPAIKAT.size() == 3);
inline constexpr std::string_view PALO_KORVAUS = "vakuutus korvasi sinulle ";

// Animal activists, number 23: the kinds in the order they are let loose, with the claim for each.
struct AktivistiRivi {
    Laji laji;      // its adult counter
    int arvonta;    // Korvaus grows by D(arvonta) x the animals gone
    int lisä;       // and this
};
inline constexpr std::array AKTIVISTIT{
    AktivistiRivi{Kettu, 3000, 500},   // 0: sets the claim
    AktivistiRivi{Kana, 550, 100},     // 1
    AktivistiRivi{Sika, 3500, 100},    // 2
    AktivistiRivi{Nauta, 6000, 100},   // 3
};
inline constexpr std::string_view AKTIVISTI_RIVI = "Aktivistit iskivät tilallesi!";
inline constexpr std::string_view AKTIVISTI_TEKSTI =
    "Eläinaktivistit iskivät tilallesi ja vapauttivat osan eläimistäsi luontoon! ";
inline constexpr std::string_view AKTIVISTI_KORVAUS = "vakuutus korvasi eläimistä ";

// A broken supply, number 54: the window text by D(5), the item's name between `ennen` and `jälkeen`.
struct RikkoRivi {
    std::string_view ennen;
    std::string_view jälkeen;
};
inline constexpr std::array RIKKOUTUMISET{
    RikkoRivi{"", " oli tullut tiensä päähän ja hajosi korjauskelvottomaksi."},       // 0
    RikkoRivi{"Tarvikkeistasi ", " hajosi niin, ettei sitä saa korjattua."},          // 1
    RikkoRivi{"", " hajosi täysin korjauskelvottomaksi."},                            // 2
    RikkoRivi{"Syystä tai toisesta ", " meni rikki, eikä sitä saa enään kuntoon."},  // 3
    RikkoRivi{"Sinun ", " hajosi täysin korjauskelvottomaksi."},                      // 4
};
static_assert(RIKKOUTUMISET.size() == 5);
inline constexpr std::string_view RIKKO_RIVI = "Tarvikkeesi hajosi!";
inline constexpr std::string_view RIKKO_KORVAUS = "Vakuutus korvasi sinulle ";

}  // namespace tanhua
