// The herd's life-cycle tables: feeding kinds, starvation odds, ageing months and breeding odds.
#pragma once

#include <array>
#include <string_view>

#include "../../core/taulut/eläimet.h"

namespace tanhua {

// One adult kind at the silo. Each pass eats perus + X, where X = Int(arvonta × r) + lisä is drawn
// anew in each pass; a grazer's X is cut by the pasture factor. A kind with arvonta 0 draws no X
// and eats perus alone in a pass.
struct RuokintaRivi {
    Laji laji;         // also the month's feed counter Syönti_<laji>
    Luokka luokka;     // Naaras or Uros
    double perus;
    bool laiduntaa;    // X is multiplied by the pasture factor
    int arvonta;
    int lisä;
};

inline constexpr std::array RUOKINTATAULU{
    RuokintaRivi{Nauta, Naaras, 3, true, 3, 2},     // 1 cow
    RuokintaRivi{Nauta, Uros, 3, true, 3, 2},       // 2 bull
    RuokintaRivi{Hevonen, Naaras, 2, true, 3, 2},   // 3 mare
    RuokintaRivi{Hevonen, Uros, 2, true, 3, 2},     // 4 stallion
    RuokintaRivi{Sika, Naaras, 2, false, 2, 2},     // 5 sow
    RuokintaRivi{Sika, Uros, 2, false, 2, 2},       // 6 boar
    RuokintaRivi{Lammas, Naaras, 1, true, 2, 2},    // 7 ewe
    RuokintaRivi{Lammas, Uros, 1, true, 2, 2},      // 8 ram
    RuokintaRivi{Kettu, Naaras, 0, false, 2, 1},    // 9 vixen
    RuokintaRivi{Kettu, Uros, 0, false, 2, 1},      // 10 dog fox
    RuokintaRivi{Kana, Naaras, 1, false, 0, 0},     // 11 hen
    RuokintaRivi{Kana, Uros, 1, false, 0, 0},       // 12 cock
};
static_assert(RUOKINTATAULU.size() == 2 * LAJEJA);

// One adult kind's starvation test: it loses a head when Int(r × n) − difficulty + hygiene / 50,
// rounded, is 1 or less.
struct NälkäRivi {
    Laji laji;
    Luokka luokka;
    int n;
    std::string_view rivi;  // the event list's line
};

inline constexpr std::array NÄLKÄTAULU{
    NälkäRivi{Kana, Naaras, 4, "Kanojasi kuoli nälkään!"},
    NälkäRivi{Kana, Uros, 4, "Kukkojasi kuoli nälkään!"},
    NälkäRivi{Lammas, Naaras, 5, "Lampaitasi kuoli nälkään!"},
    NälkäRivi{Lammas, Uros, 5, "Pässejäsi kuoli nälkään!"},
    NälkäRivi{Sika, Naaras, 5, "Emakoitasi kuoli nälkään!"},
    NälkäRivi{Sika, Uros, 5, "Karjujasi kuoli nälkään!"},
    NälkäRivi{Kettu, Naaras, 5, "Kettujasi kuoli nälkään!"},
    NälkäRivi{Kettu, Uros, 5, "Kettujasi kuoli nälkään!"},
    NälkäRivi{Nauta, Naaras, 6, "Lehmiäsi kuoli nälkään!"},
    NälkäRivi{Nauta, Uros, 6, "Sonnejasi kuoli nälkään!"},
    NälkäRivi{Hevonen, Naaras, 6, "Hevosiasi kuoli nälkään!"},
    NälkäRivi{Hevonen, Uros, 6, "Orejasi kuoli nälkään!"},
};
static_assert(NÄLKÄTAULU.size() == 2 * LAJEJA);

// A species grows up at the end of a month for which Kuukausi Mod jakso = 1:
// every odd month, every third from January, or January only.
struct IkäRivi {
    Laji laji;
    int jakso;
};

inline constexpr std::array IKÄTAULU{
    IkäRivi{Kana, 2},
    IkäRivi{Lammas, 3},
    IkäRivi{Sika, 3},
    IkäRivi{Kettu, 3},
    IkäRivi{Nauta, 12},
    IkäRivi{Hevonen, 12},
};
static_assert(IKÄTAULU.size() == LAJEJA);

// A species' breeding odds and litter. It breeds when Int(r × n) − the inseminator bonus −
// females \ d is 1 or less. The litter is Int(r × (females \ jako) + perus) + 1, or a single
// young where jako is 0; the hatchery gives hens their own pair of figures.
struct PesueRivi {
    Laji laji;
    int n;
    int d;
    int jako;
    int perus;
    int hautomoJako;
    int hautomoPerus;
};

inline constexpr std::array PESUETAULU{
    PesueRivi{Kana, 7, 50, 25, 6, 20, 7},
    PesueRivi{Lammas, 10, 100, 50, 1, 50, 1},
    PesueRivi{Sika, 7, 50, 30, 5, 30, 5},
    PesueRivi{Kettu, 8, 70, 40, 3, 40, 3},
    PesueRivi{Nauta, 11, 100, 0, 0, 0, 0},
    PesueRivi{Hevonen, 14, 100, 0, 0, 0, 0},
};
static_assert(PESUETAULU.size() == LAJEJA);

// The litters are drawn in this order, which is not the order of the odds.
inline constexpr std::array<Laji, 4> PESUEIDEN_ARVONTA{Kana, Sika, Kettu, Lammas};

}  // namespace tanhua
