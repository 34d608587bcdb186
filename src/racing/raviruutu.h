// What the race-betting screen holds while it is open: the horse names, the drawn races, the
// coupon and the result sheet. Nothing of it is saved, and it starts fresh at each opening.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "../core/kanavat.h"
#include "../core/laskenta.h"

namespace tanhua {

inline constexpr int LÄHTÖJÄ = 8;        // races drawn; the eighth is never shown
inline constexpr int PAIKKOJA = 11;      // places a race; the eleventh is never shown
inline constexpr int RIVEJÄ = 10;        // rows on the coupon
inline constexpr int RIVINAPPEJA = 7;    // race buttons Rivi(0..6)
inline constexpr int NIMIÄ_ENINTÄÄN = 100;

using Lähdöt = std::array<std::array<std::string, PAIKKOJA>, LÄHTÖJÄ>;

struct RaviRuutuTila {
    bool auki = false;
    std::vector<std::string> RaviNimet;  // the names of the file, in its order
    Byte NimiMäärä = 0;                  // the index of the last name read
    Lähdöt LähtöNimet{}, LähtöKertoimet{}, LähtöMerkit{};
    std::string Vetolaji;                // "V75", "Trio", "Voittajaveto", or none yet
    Byte RiviNro = 0;                    // the race on view
    Long Panos = 0;                      // the stake
    std::string Panosz = "100";          // the stake's box: "100" until the stake first changes
    std::string otsikko;                 // " Rivi : " and the race's number

    // The coupon's ten rows as they stand on screen.
    std::array<std::string, RIVEJÄ> RaviNimi{}, Kerroin{}, Ruutu{};

    bool Picture1 = false;               // the coupon panel
    bool Tulos = false;                  // the result sheet
    std::vector<RaporttiRivi> tulos;     // what is printed on it
};

}  // namespace tanhua
