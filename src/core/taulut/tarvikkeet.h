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
    double sähkö;            // flat electricity a day while owned
    double vesi;             // flat water a day while owned
};

inline constexpr std::array TARVIKETAULU{
    //          key, shown, list, price, electricity and water a day
    TarvikeRivi{"Palohälytin", "Palohälyttimet", Tarvikkeita, 5000, 0.04, 0},                 // 0
    TarvikeRivi{"Paimenpoika", "Sähkö paimenpoika", Tarvikkeita, 3000, 0.06, 0},              // 1
    TarvikeRivi{"Varashälytin", "Varashälyttimet", Tarvikkeita, 4000, 0.05, 0},               // 2
    TarvikeRivi{"Energiansäästövalot", "Energiansäästövalot", Tarvikkeita, 2000, 0, 0},    // 3
    TarvikeRivi{"Lämminvesivaraaja", "Suuri lämminvesivaraaja", Tarvikkeita, 6000, 0.02, 0},  // 4
    TarvikeRivi{"Kaivo", "Kaivo", Tarvikkeita, 8000, 0.02, 0},                                // 5
    TarvikeRivi{"UVValot", "UV-Valot", Lisälaitteet, 2000, 0.2, 0},                          // 6
    TarvikeRivi{"Hautomo", "Hautomo", Lisälaitteet, 3000, 0.1, 0},                           // 7
    TarvikeRivi{"Kerimäkone", "Kerimäkone", Lisälaitteet, 8000, 0.2, 0},                     // 8
    TarvikeRivi{"Kutomakone", "Kutomakone", Lisälaitteet, 10000, 0.2, 0},                    // 9
    TarvikeRivi{"Teollisuusrukki", "Teollisuusrukki", Lisälaitteet, 8000, 0.1, 0},           // 10
    TarvikeRivi{"Lypsykone", "Lypsykone", Lisälaitteet, 10000, 0.3, 0.02},                      // 11
    TarvikeRivi{"Separointikone", "Separointikone", Lisälaitteet, 8000, 0.3, 0.02},             // 12
    TarvikeRivi{"Pastörointikammio", "Pastörointikammio", Lisälaitteet, 8000, 0.3, 0.02},       // 13
    TarvikeRivi{"Kirnu", "Kirnu", Lisälaitteet, 15000, 0.4, 0.02},                              // 14
    TarvikeRivi{"Lantasäiliö", "Lantasäiliö", Lisälaitteet, 3000, 0, 0},                   // 15
    TarvikeRivi{"Teollisuusuuni", "Teollisuusuuni", Lisälaitteet, 10000, 0.5, 0},            // 16
    TarvikeRivi{"Kastelujärjestelmä", "Kastelujärjestelmä", Lisälaitteet, 4000, 0.2, 0.9},     // 17
    TarvikeRivi{"Syöttölinjasto", "Automaattinen syöttölinjasto", Lisälaitteet, 20000, 0.2, 0.5},  // 18
    TarvikeRivi{"Kylmiö", "Kylmiö", Lisälaitteet, 8000, 0.4, 0},                             // 19
    TarvikeRivi{"Käymissäiliö", "Käymissäiliö", Lisälaitteet, 10000, 0.1, 0.01},                // 20
    TarvikeRivi{"Turkiskuivaamo", "Turkiskuivaamo", Lisälaitteet, 8000, 0.4, 0},             // 21
    TarvikeRivi{"Kaavintakone", "Kaavintakone", Lisälaitteet, 5000, 0, 0},                 // 22
    TarvikeRivi{"Liukuhihna", "Pakkaamon liukuhihna", Lisälaitteet, 20000, 0.4, 0},          // 23
    TarvikeRivi{"Traktori", "Traktori", Työkoneet, 100000, 0, 0},                          // 24
    TarvikeRivi{"Puimuri", "Puimuri", Työkoneet, 1000000, 0, 0},                           // 25
    TarvikeRivi{"Metsäkone", "Metsäkone", Työkoneet, 2000000, 0, 0},                       // 26
    TarvikeRivi{"LannoitusKärry", "Lannoitus kärry", Työkoneet, 3000, 0, 0},               // 27
    TarvikeRivi{"Ojittaja", "Ojittaja", Työkoneet, 9000, 0, 0},                            // 28
    TarvikeRivi{"MyrkkyKärry", "Myrkky kärry", Työkoneet, 5000, 0, 0},                     // 29
};
static_assert(TARVIKETAULU.size() == TARVIKKEITA);

// The catalogue row that has no flag and no price.
inline constexpr std::string_view AURA_RIVI = "Aura";

}  // namespace tanhua
