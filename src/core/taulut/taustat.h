// The backgrounds of the screens, loaded one by one while a new farm loads (under Kuvat/).
#pragma once

#include <array>

namespace tanhua {

// main screen, Eläimet, Rakennukset, Pellot, Tuotteet, Raportti, Pankki, Tilanne, Työvoima, Hevostalli,
// Käyrät, Kylvö and Tarvikkeet, the music player, Sopimukset
inline constexpr std::array TAUSTAKUVAT{
    "Kesä.jpg", "mökki.jpg", "varasto.jpg", "Metsä.jpg", "Tuotteet.jpg", "Kirja.jpg", "pankki.jpg",
    "iltapelto.jpg", "kirkonkylä.jpg", "PeltoTaloja.jpg", "Käyrät.jpg", "Kylväminen.jpg", "Valotausta1.jpg",
    "Sopimukset.jpg",
};

}  // namespace tanhua
