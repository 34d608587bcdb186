// The four land kinds with their base prices and pictures.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tanhua {

enum Maa : std::size_t { MaaMetsä, MaaPelto, MaaJoutomaa, MaaLaidun, MAITA };

struct MaaRivi {
    std::string_view avain;  // the hectares are <avain>; PerusMaa_<avain>, MaaKurssi_<avain>
    long hinta0;             // PerusMaa at difficulty 0
    long hintaPerTaso;       // added for each step of difficulty
    std::string_view kuva;   // under Kuvat/maat/
};

inline constexpr std::array MAATAULU{
    MaaRivi{"Metsä", 10000, 2000, "metsä.jpg"},    // 0
    MaaRivi{"Pelto", 10000, 2000, "pelto.jpg"},    // 1
    MaaRivi{"Joutomaa", 5000, 1000, "jouto.jpg"},  // 2
    MaaRivi{"Laidun", 8000, 1500, "laidun.jpg"},   // 3
};
static_assert(MAATAULU.size() == MAITA);

// The seed price factors that base prices set: mansikka, peruna, rypsi.
enum Kasvi : std::size_t { Mansikka, Peruna, Rypsi, KASVEJA };
inline constexpr std::array<double, KASVEJA> SIEMENKERTOIMET{0.5, 0.2, 0.35};
inline constexpr std::array<std::string_view, KASVEJA> KASVIAVAIMET{"Mansikka", "Peruna", "Rypsi"};

}  // namespace tanhua
