// Protection money, event 51: the caller's demands and the answers to paying and refusing.
#pragma once

#include <array>
#include <string_view>

namespace tanhua {

// By D(6).
inline constexpr std::array<std::string_view, 6> UHKAUKSET{
    "Sinun olisi syytä maksaa suojelurahoja jottei tilasi pala niin herkästi",
    "Ehkä sinun olisi parasta tehdä lahjoitus, jotta tilasi paloherkkyys ei kävisi liian korkeaksi",
    "Olisi parasta maksaa suojelurahaa, jotta eläimesi eivät koe tuskallisia hetkiä",
    "Jos maksat suojelurahaa, saat kaupanpäälle erittäin hyvän palovakuutuksen",
    "Maksa suojeluraha, niin navettasi ei syty niin herkästi tuleen",
    "Jos maksat suojelustasi, perumme hautapaikkasi varauksen sekä hautajaiset.",
};

// By D(5), after "Kyllä".
inline constexpr std::array<std::string_view, 5> MAKSETTU{
    "Erittäin hyvä, että pääsimme yhteisymmärrykseen.",
    "Loistavaa. Voit nukkua yösi jälleen turvallisesti.",
    "Tuon halusinkin kuulla. Navettasi paloturvallisuus on taas taattu.",
    "Näin arvelinkin. Jos tilallasi on muita ongelmia, niin soittele.",
    "Hienoa. Muista, että tämä keskustelu oli vain pahaa unta.",
};

// By D(5), after "Ei" when no fire follows.
inline constexpr std::array<std::string_view, 5> KIELLETTY{
    "Teit juuri elämäsi suurimman virheen!",
    "Toivottavasti menetät yö unesi!",
    "Tulet vielä katumaan tätä!",
    "Meidän kanssa ei kannata alkaa leikkimään!",
    "Selvä. Nahkurin orsilla tavataan!",
};

inline constexpr std::string_view SUOJELU_KYSYMYS = "Maksatko ";
inline constexpr std::string_view SUOJELU_KYSYMYS_LOPPU = " ?";
inline constexpr std::string_view SUOJELU_MAKSETTU_RIVI = "Maksoit suojelurahaa ";
inline constexpr std::string_view SUOJELU_KIELLETTY_RIVI = "Kieltäydyit suojelurahasta.";

}  // namespace tanhua
