// The hunter, the storm and the animals' escape: their texts and the kinds they strike.
#pragma once

#include <array>
#include <string_view>

#include "../../core/taulut/eläimet.h"

namespace tanhua {

// The hunter, number 52: the description by D(5), then the target by D(2) + 1.
inline constexpr std::array<std::string_view, 5> METSÄSTÄJÄT{
    "Likinäköinen", "Häiriintynyt", "Epätarkka", "Liipasinherkkä", "Puolisokea",
};
struct KohdeRivi {
    Laji laji;                 // its adult counter must be above 0
    std::string_view teksti;   // behind the description
};
inline constexpr std::array METSÄSTÄJÄN_KOHTEET{
    KohdeRivi{Nauta, " metsästäjä ampui lehmiäsi luullen niitä hirviksi"},     // 1
    KohdeRivi{Hevonen, " metsästäjä ampui hevosiasi luullen niitä hirviksi"},  // 2
};
inline constexpr std::string_view METSÄSTÄJÄ_RIVI = "Metsästäjä ampui eläimiäsi";

// The storm, number 53: the window text by D(5).
inline constexpr std::array<std::string_view, 5> MYRSKYT{
    "Myrsky teki tilallasi suuria tuhoja.", "Raivoisa myrsky repi tilasi riekaleiksi.",
    "Tilaasi riepotteli kova myrsky.",      "Raju myrsky tuhosi tilaasi.",
    "Tilasi joutui myrskyn repimäksi.",
};
inline constexpr std::string_view MYRSKY_RIVI = "Myrsky teki tuhoja tilallasi!";
inline constexpr std::string_view MYRSKY_KORVAUS = "Vakuutus korvasi sinulle ";
// The weather pictures that bring a storm: thunder and hail.
inline constexpr int SÄÄ_UKKONEN = 8;
inline constexpr int SÄÄ_RAEKUURO = 9;

// The escape, number 55: the tail by D(4) (the first two cost P, which follows them), the text by D(3).
inline constexpr std::array<std::string_view, 4> PAON_LOPUT{
    "Jouduit maksamaan sakkoja huolimattomuudestasi ",           // 0
    "Eläinten palauttaminen takaisin tilalle tuli maksamaan ",   // 1
    "Eläimiäsi ei löydetty etsinnöistä huolimatta.",             // 2
    "Etsinnöistä huolimatta eläimet katosivat jäljettömiin.",    // 3
};
inline constexpr int PAKO_MAKSETAAN = 2;  // tails below this cost P; the others lose animals
inline constexpr std::array<std::string_view, 3> PAKOTEKSTIT{
    "Eläimiäsi oli karannut laitumelta.",
    "Osa eläimistäsi oli karannut laitumelta.",
    "Tilasi laitumella tapahtui pakooperaatio.",
};
inline constexpr std::string_view PAKO_RIVI = "Eläimiä karkasi laitumeltasi!";
// The adult counters that may run, in this order (no foxes): species and class.
struct Karkulainen {
    Laji laji;
    Luokka luokka;
};
inline constexpr std::array KARKULAISET{
    Karkulainen{Kana, Naaras},    Karkulainen{Kana, Uros},    Karkulainen{Lammas, Naaras},
    Karkulainen{Lammas, Uros},    Karkulainen{Nauta, Naaras}, Karkulainen{Nauta, Uros},
    Karkulainen{Sika, Naaras},    Karkulainen{Sika, Uros},    Karkulainen{Hevonen, Naaras},
    Karkulainen{Hevonen, Uros},
};
static_assert(KARKULAISET.size() == 10);

}  // namespace tanhua
