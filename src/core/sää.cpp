// The weather of the day, and the temperature display.
// Keli keeps its place in the day; the day's weather walk comes with the weather rules.
#include "sää.h"

#include <algorithm>

#include "laskenta.h"

namespace tanhua {

void Keli(Peli& /*peli*/) {}

int SääKuvaPilvisyydestä(int pilvisyys, int lämpötila) {
    if (pilvisyys >= 1 && pilvisyys <= 4) return pilvisyys - 1;
    if (pilvisyys == 5 || pilvisyys == 6) return (lämpötila >= 0 ? 4 : 6) + (pilvisyys - 5);
    return -1;
}

LämpötilaNäyttö AsteLuku(int t) {
    auto osa = [](int x) { return std::clamp(x, 0, 255); };
    if (t >= 0) return {"+" + Str(t) + " °c", osa(125 + 5 * t), osa(120 - 2 * t), osa(2 * t)};
    return {Str(t) + " °c", osa(200 + 6 * t), osa(120 + 3 * t), osa(255 - 5 * t)};
}

}  // namespace tanhua
