// Disease, numbers 38 to 42: the kind struck, its claim and its texts.
#pragma once

#include <array>
#include <string_view>

#include "../../core/taulut/eläimet.h"

namespace tanhua {

// Korvaus = D(K) x the dead + B.
struct TautiRivi {
    Laji laji;                 // its adult counter
    int K;
    int B;
    std::string_view rivi;
    std::string_view teksti;
};

inline constexpr int ENSIMMÄINEN_TAUTI = 38;
inline constexpr std::array TAUDIT{
    TautiRivi{Kana, 1000, 100, "Tilallasi on esiintynyt kanoilla tautia! Kanoja menehtyi tautiin.",
              "Kanoillasi havaittiin siipikarjalla esiintynyttä vaikeasti lausuttavaa tautia ja osa niistä jouduttiin "
              "lopettamaan."},  // 38
    TautiRivi{Lammas, 4000, 500, "Tilallasi on esiintynyt lampailla tautia! Lampaita menehtyi tautiin.",
              "Lampaillasi epäiltiin olevan hermostosairaus ja osa niistä päätyi laboratorioon tutkimuksiin."},  // 39
    TautiRivi{Sika, 4000, 500, "Tilallasi on esiintynyt sioilla tautia! Sikoja menehtyi tautiin.",
              "Sikalassasi esiintyi sorkkatautia ja osa eläimistä jouduttiin lopettamaan."},  // 40
    TautiRivi{Kettu, 4000, 500, "Tilallasi on esiintynyt ketuilla tautia! Kettuja menehtyi tautiin.",
              "Kettujasi kuoli botuliini myrkytykseen!"},  // 41
    TautiRivi{Nauta, 6000, 1000, "Tilallasi on esiintynyt Lehmillä tautia! Lehmiä menehtyi tautiin.",
              "Lehmilläsi epäiltiin olevan BSE tartunta ja osa niistä päätyi teurastamolle."},  // 42
};
static_assert(TAUDIT.size() == 5);

inline constexpr std::string_view TAUTI_KORVAUS = "Vakuutuksesi korvasi ";

}  // namespace tanhua
