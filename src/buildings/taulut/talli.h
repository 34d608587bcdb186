// The riding stable's tables: the hour price of each slider step, the demand of the seasons and
// the skies, and the stable screen's texts.
#pragma once

#include <array>
#include <string_view>

namespace tanhua {

// TuntiHinta by the price slider rulla, 0..4.
inline constexpr std::array TUNTIHINNAT{20, 40, 60, 80, 100};
inline constexpr int RULLA_MAX = static_cast<int>(TUNTIHINNAT.size()) - 1;

struct VuodenajanKysyntä {
    std::string_view vuodenaika;
    int kysyntä;
};
// A season not on the table ("Talvi") adds nothing.
inline constexpr std::array KAUDEN_KYSYNTÄ{
    VuodenajanKysyntä{"Kesä", 2},
    VuodenajanKysyntä{"Kevät", 1},
    VuodenajanKysyntä{"Syksy", 1},
};

// The sky's part of the demand by Pilvisyys 1..6: clear days bring riders, rain keeps them home.
inline constexpr std::array PILVISYYDEN_KYSYNTÄ{2, 1, 0, 0, -1, -2};

// A crowding percentage from which the figure turns yellow, and from which it turns red.
inline constexpr int TUNGOS_KELTAINEN = 75;
inline constexpr int TUNGOS_PUNAINEN = 100;

namespace tallit {
inline constexpr std::string_view Viikonloppu = " - Viikonloppu. Ei tuottoa";
inline constexpr std::string_view Tuntia = " tuntia. Summa:";
inline constexpr std::string_view TuntiaYlityö = " tuntia (ylityö).Summa:";

inline constexpr std::string_view Hinnasto = "Määritä hinnasto";
inline constexpr std::string_view Raveihin = "Osallistu raveihin";
inline constexpr std::string_view Takaisin = "Takaisin";
inline constexpr std::string_view TunninHinta = "Ratsastus tunnin hinta :";
inline constexpr std::string_view TuntiMaksaa = "Ratsastus tunti maksaa :";
inline constexpr std::string_view HinnastoVihje =
    "Säädä ratsastustuntien hinnat. Pieni hinta tarkoittaa kovaa kysyntää, kun suuri hinta pienempää kysyntää, "
    "mutta suurempia tuloja.";
inline constexpr std::string_view RaviIlmoitus =
    "HUOM! Tämä tanhuan versio on ainoastaan väliversio, koska sitä haluttiin jakoon. Ravi ei ole toiminnassa ja "
    "saattaa olla, ettei edes tule olemaan lopullisessa pelissä, koska veikkaus tuottaa yllättävän paljon "
    "ongelmia.";
// The costs of a race day as the sheet lists them; nothing charges them.
inline constexpr std::array<std::string_view, 5> Ravikustannus{
    "Trailerin vuokraus        : 100",
    "Bensakulut raviradalle   : 20",
    "Osallistumis kustannus  : 50",
    "______________________________________",
    "Yhteensä : 170",
};
}  // namespace tallit

}  // namespace tanhua
