// The weather of the day, and the temperature as the main screen shows it.
#pragma once

#include <array>
#include <string>

namespace tanhua {

struct Peli;

void Keli(Peli& peli);

// The ten weather pictures under Kuvat/sää/ with their hints.
struct SääRivi {
    const char* tiedosto;
    const char* vihje;
};
inline constexpr std::array<SääRivi, 10> SÄÄKUVAT{
    SääRivi{"aurinkoinen.gif", "Aurinko paistaa, taivas on kirkas"},                 // 0 Pilvisyys 1
    SääRivi{"aurinkopuolipilvinen.gif", "Aurinko paistaa, mutta pilviä taivaalla"},  // 1 Pilvisyys 2
    SääRivi{"aurinkopilvinen.gif", "Puolipilvistä"},                                 // 2 Pilvisyys 3
    SääRivi{"pilvinen.gif", "Pilvistä"},                                             // 3 Pilvisyys 4
    SääRivi{"sadekuuro.gif", "Pilvistä ja paikoittain sateita"},                     // 4 Pilvisyys 5, warm
    SääRivi{"sateinen.gif", "Sateista"},                                             // 5 Pilvisyys 6, warm
    SääRivi{"lumisateinen.gif", "Pilvistä ja paikoittain lumisadetta"},              // 6 Pilvisyys 5, frost
    SääRivi{"lumipyry.gif", "Lumisadetta"},                                          // 7 Pilvisyys 6, frost
    SääRivi{"ukkonen.gif", "Ukkosmyrsky"},                                           // 8 thunder
    SääRivi{"raekuuro.gif", "Raekuuro"},                                             // 9 hail
};
// The picture of a cloud code: 1 to 4 by the code, 5 and 6 by the sign of the temperature;
// -1 before the first weather of a farm.
int SääKuvaPilvisyydestä(int pilvisyys, int lämpötila);

// The temperature display: "+ 20 °c" for warm days, "-5 °c" for frost, with its colour.
struct LämpötilaNäyttö {
    std::string teksti;
    int r = 0, g = 0, b = 0;
};
LämpötilaNäyttö AsteLuku(int t);

}  // namespace tanhua
