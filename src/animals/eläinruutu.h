// What the animal screen holds while it is open: the chosen card and the lot (not saved).
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "../core/laskenta.h"

namespace tanhua {

struct EläinRuutuTila {
    // The open card: an index of KORTIT, -1 before the player has chosen one.
    int kortti = -1;
    std::string otsikko;     // the card's title
    std::string info;        // the card's info text
    Integer liha = 0;        // meat per head shown on the card
    Integer ostohinta = 0, myyntihinta = 0;

    // The lot: 1, 10 or 100 heads, and the two totals of the card.
    Integer määrä = 1;
    Long yhtosto = 0;        // buying price x lot
    Long yhtmyynti = 0;      // selling price x lot

    // The butcher's panel Teuras and the tanner's panel Nylky, and the colours of the five order
    // boxes (0 is the box's own colour; a purchase past a limit marks the box).
    bool teurasAuki = false;
    bool nylkyAuki = false;
    std::array<std::uint32_t, 5> laatikonVäri{};
    bool teuraskuva = false;   // the butcher's picture: a slaughterhouse and a butcher
    bool nahkurikuva = false;  // the tanner's picture

    // The two sums under the counters.
    Long aikuisia = 0;       // Aikuisia_Eläimiä: the twelve adult counters
    Long pienet = 0;         // Pienet_Eläimet: the young and the cubs

    // The label that names what the pointer is over, and the hint line.
    std::string aihe = "Eläimet :";
    std::string ohje;
    int kohdistin = -1;      // the card whose picture the marker is on; -1 out of sight
};

}  // namespace tanhua
