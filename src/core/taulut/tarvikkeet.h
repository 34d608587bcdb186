// The thirty supply items that can be owned, with their catalogue lists and prices.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tanhua {

enum Tarvike : std::size_t {
    Palohälytin, Paimenpoika, Varashälytin, Energiansäästövalot, Lämminvesivaraaja, Kaivo,
    UVValot, Hautomo, Kerimäkone, Kutomakone, Teollisuusrukki, Lypsykone, Separointikone,
    Pastörointikammio, Kirnu, Lantasäiliö, Teollisuusuuni, Kastelujärjestelmä, Syöttölinjasto,
    Kylmiö, Käymissäiliö, Turkiskuivaamo, Kaavintakone, Liukuhihna, Traktori, Puimuri,
    Metsäkone, LannoitusKärry, Ojittaja, MyrkkyKärry,
    TARVIKKEITA
};

enum TarvikeLista { Tarvikkeita, Lisälaitteet, Työkoneet };

struct TarvikeRivi {
    std::string_view avain;  // Tarv_<avain>
    std::string_view nimi;   // shown in the catalogue
    TarvikeLista lista;
    long hinta;
};

inline constexpr std::array TARVIKETAULU{
    TarvikeRivi{"Palohälytin", "Palohälyttimet", Tarvikkeita, 5000},                 // 0
    TarvikeRivi{"Paimenpoika", "Sähkö paimenpoika", Tarvikkeita, 3000},              // 1
    TarvikeRivi{"Varashälytin", "Varashälyttimet", Tarvikkeita, 4000},               // 2
    TarvikeRivi{"Energiansäästövalot", "Energiansäästövalot", Tarvikkeita, 2000},    // 3
    TarvikeRivi{"Lämminvesivaraaja", "Suuri lämminvesivaraaja", Tarvikkeita, 6000},  // 4
    TarvikeRivi{"Kaivo", "Kaivo", Tarvikkeita, 8000},                                // 5
    TarvikeRivi{"UVValot", "UV-Valot", Lisälaitteet, 2000},                          // 6
    TarvikeRivi{"Hautomo", "Hautomo", Lisälaitteet, 3000},                           // 7
    TarvikeRivi{"Kerimäkone", "Kerimäkone", Lisälaitteet, 8000},                     // 8
    TarvikeRivi{"Kutomakone", "Kutomakone", Lisälaitteet, 10000},                    // 9
    TarvikeRivi{"Teollisuusrukki", "Teollisuusrukki", Lisälaitteet, 8000},           // 10
    TarvikeRivi{"Lypsykone", "Lypsykone", Lisälaitteet, 10000},                      // 11
    TarvikeRivi{"Separointikone", "Separointikone", Lisälaitteet, 8000},             // 12
    TarvikeRivi{"Pastörointikammio", "Pastörointikammio", Lisälaitteet, 8000},       // 13
    TarvikeRivi{"Kirnu", "Kirnu", Lisälaitteet, 15000},                              // 14
    TarvikeRivi{"Lantasäiliö", "Lantasäiliö", Lisälaitteet, 3000},                   // 15
    TarvikeRivi{"Teollisuusuuni", "Teollisuusuuni", Lisälaitteet, 10000},            // 16
    TarvikeRivi{"Kastelujärjestelmä", "Kastelujärjestelmä", Lisälaitteet, 4000},     // 17
    TarvikeRivi{"Syöttölinjasto", "Automaattinen syöttölinjasto", Lisälaitteet, 20000},  // 18
    TarvikeRivi{"Kylmiö", "Kylmiö", Lisälaitteet, 8000},                             // 19
    TarvikeRivi{"Käymissäiliö", "Käymissäiliö", Lisälaitteet, 10000},                // 20
    TarvikeRivi{"Turkiskuivaamo", "Turkiskuivaamo", Lisälaitteet, 8000},             // 21
    TarvikeRivi{"Kaavintakone", "Kaavintakone", Lisälaitteet, 5000},                 // 22
    TarvikeRivi{"Liukuhihna", "Pakkaamon liukuhihna", Lisälaitteet, 20000},          // 23
    TarvikeRivi{"Traktori", "Traktori", Työkoneet, 100000},                          // 24
    TarvikeRivi{"Puimuri", "Puimuri", Työkoneet, 1000000},                           // 25
    TarvikeRivi{"Metsäkone", "Metsäkone", Työkoneet, 2000000},                       // 26
    TarvikeRivi{"LannoitusKärry", "Lannoitus kärry", Työkoneet, 3000},               // 27
    TarvikeRivi{"Ojittaja", "Ojittaja", Työkoneet, 9000},                            // 28
    TarvikeRivi{"MyrkkyKärry", "Myrkky kärry", Työkoneet, 5000},                     // 29
};
static_assert(TARVIKETAULU.size() == TARVIKKEITA);

// The catalogue row that has no flag and no price.
inline constexpr std::string_view AURA_RIVI = "Aura";

}  // namespace tanhua
