// The thirteen processing buildings and the three capacity buildings: names, completion lines, pictures.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tanhua {

enum Rakennus : std::size_t {
    Saha, Kasvihuone, Meijeri, Mylly, Ompelimo, Leipomo, Teurastamo, Rehuntuotanto,
    Hevostalli, Marjatarha, Viinitehdas, Mehiläistarha, Pakkaamo,
    RAKENNUKSIA
};

// The capacity buildings follow the processing ones in the work-order family.
enum Tila : std::size_t { Navetta, Siilo, Varasto, TILOJA };
inline constexpr std::size_t TYÖMAITA = std::size_t{RAKENNUKSIA} + std::size_t{TILOJA};

struct RakennusRivi {
    std::string_view avain;      // Rak_<avain>, RakAika_<avain>, RakTilaus_<avain>
    std::string_view nimi;       // shown as
    bool tuotanto;               // has a Tuotanto_<avain> percentage
    std::string_view valmis;     // the event list's line on completion
    std::string_view kuva;       // under Kuvat/Rakennukset/
};

inline constexpr std::array RAKENNUSTAULU{
    RakennusRivi{"Saha", "Saha", true, "Rakennuksesi saha on nyt valmis!", "Saha.jpg"},  // 0
    RakennusRivi{"Kasvihuone", "Kasvihuone", false, "Rakennuksesi kasvihuone on nyt valmis!", "Kasvihuone.jpg"},  // 1
    RakennusRivi{"Meijeri", "Meijeri", true, "Rakennuksesi meijeri on nyt valmis!", "Meijeri.jpg"},  // 2
    RakennusRivi{"Mylly", "Mylly", true, "Rakennuksesi mylly on nyt valmis!", "Mylly.jpg"},  // 3
    RakennusRivi{"Ompelimo", "Ompelimo", true, "Rakennuksesi ompelimo on nyt valmis!", "Ompelimo.jpg"},  // 4
    RakennusRivi{"Leipomo", "Leipomo", true, "Rakennuksesi leipomo on nyt valmis!", "Leipomo.jpg"},  // 5
    RakennusRivi{"Teurastamo", "Teurastamo", true, "Rakennuksesi teurastamo on nyt valmis!", "Teurastamo.jpg"},  // 6
    RakennusRivi{"Rehuntuotanto", "Rehuntuotanto", true, "Rakennuksesi rehuntuotantolaitos on nyt valmis!",
                 "Rehuntuotanto.jpg"},  // 7
    RakennusRivi{"Hevostalli", "Hevostalli", false, "Rakennuksesi hevostalli on nyt valmis!", "Hevostalli.jpg"},  // 8
    RakennusRivi{"Marjatarha", "Marjatarha", false, "Rakennuksesi marjatarha on nyt valmis!", "Marjat.jpg"},  // 9
    RakennusRivi{"Viinitehdas", "Viinitehdas", true, "Rakennuksesi viinitehdas on nyt valmis!", "Viinitehdas.jpg"},  // 10
    RakennusRivi{"Mehiläistarha", "Mehiläistarha", false, "Rakennuksesi mehiläistarha on nyt valmis!",
                 "Mehiläistarha.jpg"},  // 11
    RakennusRivi{"Pakkaamo", "Pakkaamo", false, "Rakennuksesi pakkaamo on nyt valmis!", "Pakkaamo.jpg"},  // 12
};
static_assert(RAKENNUSTAULU.size() == RAKENNUKSIA);

struct TilaRivi {
    std::string_view avain;   // Koko_<avain>
    std::string_view valmis;  // the event list's line when an extension is done
    std::string_view kuva;
};

inline constexpr std::array TILATAULU{
    TilaRivi{"Navetta", "Navettasi laajennustyö on nyt valmis!", "Navetta.jpg"},  // 0
    TilaRivi{"Siilo", "Siilosi laajennustyö on nyt valmis!", "Siilo.jpg"},        // 1
    TilaRivi{"Varasto", "Varastosi laajennustyö on nyt valmis!", "Varasto.jpg"},  // 2
};
static_assert(TILATAULU.size() == TILOJA);

}  // namespace tanhua
