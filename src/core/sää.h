// The weather of the day, and the temperature as the main screen shows it.
#pragma once

#include <string>

namespace tanhua {

struct Peli;

void Keli(Peli& peli);

// The temperature display: "+ 20 °c" for warm days, "-5 °c" for frost, with its colour.
struct LämpötilaNäyttö {
    std::string teksti;
    int r = 0, g = 0, b = 0;
};
LämpötilaNäyttö AsteLuku(int t);

}  // namespace tanhua
