// The families of events, one operation each; PelaaSattuma chooses among them by the number.
#pragma once

#include <algorithm>
#include <optional>
#include <string>

#include "../core/peli.h"
#include "sattumat.h"

namespace tanhua::sattumat {

using Tulos = std::optional<SattumanTulos>;

Tulos Pilaantuminen(Peli& peli);                                     // 1..8
Tulos Lahja(Peli& peli, int numero, const Laskurit& laskurit);       // 9..18
Tulos Varkaus(Peli& peli);                                           // 19
Tulos Tulipalo(Peli& peli);                                          // 20
Tulos Aktivistit(Peli& peli, const Laskurit& laskurit);              // 23
Tulos Oikeusjuttu(Peli& peli, int numero);                           // 24..28
Tulos Kirjanpito(Peli& peli, int numero);                            // 29..37
Tulos Tauti(Peli& peli, int numero);                                 // 38..42
Tulos Hygieniapalkinto(Peli& peli);                                  // 43
Tulos Työtapaturma(Peli& peli);                                      // 44..50
Tulos Suojeluraha(Peli& peli);                                      // 51
Tulos Metsästäjä(Peli& peli);                                        // 52
Tulos Myrsky(Peli& peli);                                            // 53
Tulos Rikkoutuminen(Peli& peli);                                     // 54
Tulos Karkaaminen(Peli& peli);                                       // 55

// A row of a table of n rows drawn by D(n). A given draw a hair below 1 can round up to n; it
// still picks the last row rather than reach past the table.
inline std::size_t Rivi(Peli& peli, std::size_t n) {
    const long long i = peli.arvonta.D(static_cast<double>(n));
    return i < 0 ? 0 : std::min(static_cast<std::size_t>(i), n - 1);
}

// Whether a policy is in force: its switch holds 1.
inline bool Vakuutettu(const Muuttujat& m, Vakuutus v) { return m.Pankki.Vakuutus[v] == 1; }
// A stock rounded to whole and halved by \ 2.
inline void Puolita(Single& varasto) { Aseta(varasto, JakoKok(varasto, 2)); }
// The result of an event, its picture and sound by name.
inline SattumanTulos Kertomus(std::string_view rivi, std::string_view kuva, std::string teksti,
                            std::string_view ääni = "") {
    return SattumanTulos{std::string(rivi), std::string(kuva), std::move(teksti), std::string(ääni)};
}

}  // namespace tanhua::sattumat
