// The buildings' running costs: electricity and water a level a day, the stores' and the herd's shares.
#pragma once

#include <array>
#include <cstddef>

#include "../../core/taulut/eläimet.h"
#include "../../core/taulut/rakennukset.h"

namespace tanhua {

// Each coefficient is per building level per day. The panel's estimate uses its own
// electricity coefficient where it differs from the one the bill runs on.
struct KulutusRivi {
    double sähkö;         // electricity, the real bill
    double paneelinSähkö; // electricity as the panel estimates it
    double vesi;          // water
};

inline constexpr std::array KULUTUSTAULU{
    //          electricity  panel's  water
    KulutusRivi{0.42,  0.42,  0.015},  // 0 Saha
    KulutusRivi{0.2,   0.2,   0.15},   // 1 Kasvihuone
    KulutusRivi{0.3,   0.3,   0.14},   // 2 Meijeri
    KulutusRivi{0.025, 0.025, 0},      // 3 Mylly
    KulutusRivi{0.35,  0.035, 0.01},   // 4 Ompelimo
    KulutusRivi{0.5,   0.5,   0.15},   // 5 Leipomo
    KulutusRivi{0.44,  0.44,  0.13},   // 6 Teurastamo
    KulutusRivi{0.3,   0.3,   0.12},   // 7 Rehuntuotanto
    KulutusRivi{0.033, 0.033, 0.12},   // 8 Hevostalli
    KulutusRivi{0,     0,     0.18},   // 9 Marjatarha
    KulutusRivi{0.45,  0.45,  0.13},   // 10 Viinitehdas
    KulutusRivi{0,     0,     0},      // 11 Mehiläistarha
    KulutusRivi{0.6,   0.06,  0},      // 12 Pakkaamo
};
static_assert(KULUTUSTAULU.size() == RAKENNUKSIA);

// The stores: electricity per unit of Koko_Varasto, electricity and water per place of Koko_Navetta.
inline constexpr double VARASTON_SÄHKÖ = 0.001;
inline constexpr double NAVETAN_SÄHKÖ = 0.005;
inline constexpr double NAVETAN_VESI = 0.0045;

// Water a day of each adult, female and male alike; the young drink nothing on the bill.
inline constexpr std::array ELÄINTEN_VESI{
    0.002,   // 0 Nauta: Lehmä, Sonni
    0.0015,  // 1 Sika: Sika, Karju
    0.001,   // 2 Lammas: Lammas, Pässi
    0.0005,  // 3 Kana: Kana, Kukko
    0.001,   // 4 Kettu: Kettu, KettuUros
    0.002,   // 5 Hevonen: Tamma, Ori
};
static_assert(ELÄINTEN_VESI.size() == LAJEJA);

// What the cheap lights leave of the electricity bill, and the well and the water heater each
// of the water bill, every day on the month's whole bill.
inline constexpr double SÄÄSTÖVALOT = 0.95;
inline constexpr double VESISÄÄSTÖ = 0.9;

}  // namespace tanhua
