// The crops of the sowing and harvest screens, and the texts of their sheets.
#pragma once

#include <array>
#include <string_view>

#include "../../core/taulut/maat.h"

namespace tanhua {

struct KasviRivi {
    std::string_view otsikko;     // the card's title
    std::string_view siemen;      // the seed word
    long siemenPerHa;             // seed a hectare
    std::string_view yksikkö;     // of the seed
    std::string_view info;
    std::string_view kuva;        // under Kuvat/maat/
};

// In the order of Kasvi: Mansikka, Peruna, Rypsi.
inline constexpr std::array KASVITAULU{
    KasviRivi{"Mansikka", "Taimia", 50000, "kpl", "Mansikka on monivuotinen kasvi.", "mansikka.jpg"},  // 0
    KasviRivi{"Peruna", "Perunoita", 15000, "kg", "Peruna on yksivuotinen kasvi", "peruna.jpg"},        // 1
    KasviRivi{"Rypsi", "Jyviä", 500, "kg", "Rypsi on yksivuotinen kasvi", "rypsi.jpg"},                // 2
};
static_assert(KASVITAULU.size() == KASVEJA);

namespace kylvöteksti {
inline constexpr std::string_view Hyväksy = "Hyväksy";
inline constexpr std::string_view Lannoitetaan = "Pellot lannoitetaan";
inline constexpr std::string_view Myrkytetään = "Pellot myrkytetään";
inline constexpr std::string_view Ojitetaan = "Ojitetaan uudestaan";
inline constexpr std::string_view Aloita = "Aloita kylväminen";
inline constexpr std::string_view Peruuta = "Peruuta kylvö";
inline constexpr std::string_view Laske = "laske";
inline constexpr std::string_view Kustannukset = "Kustannukset";
inline constexpr std::string_view KorjaaSato = "Korjaa sato";
inline constexpr std::string_view PeruKorjuu = "Peru sadon korjuu";
inline constexpr std::string_view Arvio = "Arvio tulevasta sadosta :";
inline constexpr std::string_view Kokonaistuotanto = "Kokonaistuotannon summa :";
}  // namespace kylvöteksti

}  // namespace tanhua
