// Spoilage in a dirty store: the nine products one of which spoils, with their texts.
#pragma once

#include <array>
#include <string_view>

#include "../../core/taulut/tuotteet.h"

namespace tanhua {

struct PilaantumisRivi {
    Tuote tuote;               // its stock goes to 0
    std::string_view rivi;     // the event list's line
    std::string_view teksti;   // the news window's text
};

inline constexpr std::array PILAANTUMINEN{
    PilaantumisRivi{Muna, "Kananmunasi pilaantuivat!",
                    "Varastosi on niin likainen, että kananmunasi pilaantuivat. Kannattaisi palkata enemmän siivoojia."},  // 0
    PilaantumisRivi{Maito, "Maitosi pilaantui säiliössä!",
                    "Varastosi on niin likainen että maitosi pilaantuivat. Kannattaisi palkata enemmän siivoojia."},  // 1
    PilaantumisRivi{Juusto, "Juustosi pilaantui varastossa!",
                    "Varastosi on niin likainen että juustosi pilaantuivat. Kannattaisi palkata enemmän siivoojia."},  // 2
    PilaantumisRivi{Leipä, "Leipäsi homehtuivat varastossa!",
                    "Varastosi on niin likainen että leipäsi pilaantuivat. Kannattaisi palkata enemmän siivoojia."},  // 3
    PilaantumisRivi{Vihannes, "Vihanneksesi pilaantuivat varastossa!",
                    "Varastosi on niin likainen että vihanneksesi pilaantuivat. Kannattaisi palkata enemmän siivoojia."},  // 4
    PilaantumisRivi{Liha, "Lihasi pilaantui varastossa!",
                    "Varastosi on niin likainen että lihasi pilaantuivat. Kannattaisi palkata enemmän siivoojia."},  // 5
    PilaantumisRivi{Makkara, "Makkarasi pilaantuivat varastossa!",
                    "Varastosi on niin likainen että makkarasi pilaantuivat. Kannattaisi palkata enemmän siivoojia."},  // 6
    PilaantumisRivi{Leivos, "Leivoksesi pilaantuivat varastossa!",
                    "Varastosi on niin likainen että leivoksesi pilaantuivat. Kannattaisi palkata enemmän siivoojia."},  // 7
    PilaantumisRivi{Marja, "Marjasi pilaantuivat varastossa!",
                    "Varastosi on niin likainen että marjasi pilaantuivat. Kannattaisi palkata enemmän siivoojia."},  // 8
};
static_assert(PILAANTUMINEN.size() == 9);

}  // namespace tanhua
