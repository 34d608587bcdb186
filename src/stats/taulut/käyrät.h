// The six monthly curves of the statistics screen: their buttons, titles, scale rungs and labels,
// and the captions of the two product tables.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "../../core/state.h"
#include "../../core/taulut/tuotteet.h"

namespace tanhua {

enum Käyrä : std::size_t { KäyräPalkat, KäyräEläimet, KäyräLV, KäyräNetto, KäyräRaha, KäyräRakennukset, KÄYRIÄ };

// How the three scale labels are written for a scale top T.
enum class Asteikko {
    Rahaa,      // Str(T) and ";-"
    Miljoonia,  // from a million up " milj", below that as Rahaa
    Eläintä,    // " eläintä"
    Neliöitä,   // " m/4"
};

inline constexpr std::array<double, 10> PORRAS_PALKAT{100,    500,    1000,    5000,    10000,
                                                     50000,  100000, 500000, 1000000, 5000000};
inline constexpr std::array<double, 13> PORRAS_LV{100,    500,    1000,    5000,    10000,   50000,   100000,
                                                 200000, 500000, 1000000, 2000000, 5000000, 10000000};
inline constexpr std::array<double, 13> PORRAS_RAHA{100,    1000,   5000,    10000,   50000,   100000, 250000,
                                                   500000, 750000, 1000000, 2500000, 5000000, 7500000};
inline constexpr std::array<double, 13> PORRAS_ELÄIMET{10,   20,   50,    100,   200,    500,    1000,
                                                      2000, 5000, 10000, 50000, 100000, 1000000};
inline constexpr std::array<double, 10> PORRAS_RAKENNUKSET{10,    100,    1000,   5000,    10000,
                                                          50000, 100000, 500000, 1000000, 5000000};

struct KäyräRivi {
    std::string_view nimi;        // the monthly list
    std::string_view nappi;       // the button that draws it
    std::string_view teksti;      // the button's caption
    std::string_view otsikko;     // the heading over the curve
    std::vector<std::string> KäyrätRuutu::*lista;
    std::span<const double> portaat;  // the rungs the top is rounded up to
    double katto;                 // the top past the last rung
    Asteikko asteikko;
};

inline constexpr std::array KÄYRÄTAULU{
    KäyräRivi{.nimi = "YHTPalkat", .nappi = "Command1", .teksti = "Palkka maksut", .otsikko = "Kokonais palkat",
              .lista = &KäyrätRuutu::YHTPalkat, .portaat = PORRAS_PALKAT, .katto = 10000000,
              .asteikko = Asteikko::Rahaa},  // 0 YHTPalkat
    KäyräRivi{.nimi = "Eläimiä", .nappi = "Command3", .teksti = "Kaikki eläimet", .otsikko = "Kaikki eläimet",
              .lista = &KäyrätRuutu::Eläimiä, .portaat = PORRAS_ELÄIMET, .katto = 10000000,
              .asteikko = Asteikko::Eläintä},  // 1 Eläimiä
    KäyräRivi{.nimi = "LV", .nappi = "Command4", .teksti = "Brutto Liikevaihto", .otsikko = "Brutto liikevaihto",
              .lista = &KäyrätRuutu::LV, .portaat = PORRAS_LV, .katto = 100000000,
              .asteikko = Asteikko::Miljoonia},  // 2 LV
    KäyräRivi{.nimi = "Netto", .nappi = "Command5", .teksti = "Netto Liikevaihto", .otsikko = "Netto liikevaihto",
              .lista = &KäyrätRuutu::Netto, .portaat = PORRAS_PALKAT, .katto = 10000000,
              .asteikko = Asteikko::Miljoonia},  // 3 Netto
    KäyräRivi{.nimi = "Rahatila", .nappi = "Command6", .teksti = "Rahatilanne", .otsikko = "Rahatilanteesi",
              .lista = &KäyrätRuutu::Rahatila, .portaat = PORRAS_RAHA, .katto = 10000000,
              .asteikko = Asteikko::Miljoonia},  // 4 Rahatila
    KäyräRivi{.nimi = "Rakennuksia", .nappi = "Command7", .teksti = "Rakennusten neliöt", .otsikko = "Rakennusten yhteis neliöt",
              .lista = &KäyrätRuutu::Rakennuksia, .portaat = PORRAS_RAKENNUKSET, .katto = 10000000,
              .asteikko = Asteikko::Neliöitä},  // 5 Rakennuksia
};
static_assert(KÄYRÄTAULU.size() == KÄYRIÄ);

// The products' captions in the two tables, in the products' order.
inline constexpr std::array TUOTETAULUN_NIMET{
    std::string_view{"Maito : "}, std::string_view{"Liha : "},     std::string_view{"Villa : "},
    std::string_view{"Muna : "},  std::string_view{"Turkki : "},   std::string_view{"Rehu : "},
    std::string_view{"Raakapuu : "}, std::string_view{"Lauta : "}, std::string_view{"Vihannes : "},
    std::string_view{"Juusto : "}, std::string_view{"Jauho : "},   std::string_view{"Vilja : "},
    std::string_view{"Lanta : "}, std::string_view{"Leipä : "},    std::string_view{"Vaate : "},
    std::string_view{"Makkara : "}, std::string_view{"Leivos : "}, std::string_view{"Marja : "},
    std::string_view{"Viini : "}, std::string_view{"Hunaja : "},
};
static_assert(TUOTETAULUN_NIMET.size() == TUOTTEITA);

namespace käyrätteksti {
inline constexpr std::string_view Aika1 = "1.6.1980";
inline constexpr std::string_view Brutto = "Viime kk:n tuotteiden brutto myynti";
inline constexpr std::string_view Netto = "Viime kk:n tuotteiden netto tulot";
inline constexpr std::string_view EiKuvaa = "Kuukausiraportti ei saatavilla, ennen kuukaudenvaihdetta";
inline constexpr std::string_view PaikkaAlku = "Käyrät formi. ";
inline constexpr std::string_view PaikkaLoppu = " click";
inline constexpr std::string_view Taulu = "Käyrät.Taulu";  // the printed area's name
}  // namespace käyrätteksti

}  // namespace tanhua
