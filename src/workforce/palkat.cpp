// Wages, the employment subsidy and motivation.
#include "palkat.h"

#include <array>

#include "../core/peli.h"

namespace tanhua {

void LaskePalkat(Peli& peli) {
    Muuttujat& m = peli.m;
    const bool talvi = m.Vuodenaika == "Talvi";
    double summa = 0;
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) {
        if (talvi && (k == Puutarhuri || k == Mehiläishoitaja)) continue;  // on leave, no wage
        summa += static_cast<double>(m.Työ[k]) * m.Palkka[k];
    }
    Aseta(m.PalkatYhteensä, summa);
}

namespace {
// The subsidy for each worker by the month's turnover less 1000 an accountant.
double TukiPerTyöntekijä(Long x) {
    if (x >= 30000) return 0;
    if (x >= 20000) return 500;
    if (x >= 10000) return 1000;
    if (x >= 7500) return 2000;
    if (x >= 5000) return 2500;
    if (x >= 2500) return 3000;
    return 3500;
}

inline constexpr std::array TUETUT{Leipuri, Metsuri, Meijerityöntekijä, Ompelija, Teurastaja, Mylläri, Siivooja,
                                   Kirvesmies, Kirjanpitäjä, Tallimestari, Siementäjä, Varastotyöntekijä};
}  // namespace

Long Työllistämistuki(Peli& peli) {
    Muuttujat& m = peli.m;
    const Long W = CLng(m.PalkatYhteensä);
    const Long x = CLng(static_cast<double>(m.Liikevaihto) - 1000.0 * m.Työ[Kirjanpitäjä]);
    double taksa = TukiPerTyöntekijä(x);
    if (m.Vaikeustaso == 2) taksa /= 2;
    double työntekijöitä = 0;
    for (Työläinen k : TUETUT) työntekijöitä += m.Työ[k];
    if (m.Vuodenaika != "Talvi") työntekijöitä += static_cast<double>(m.Työ[Mehiläishoitaja]) + m.Työ[Puutarhuri];
    const Long T = CLng(taksa * työntekijöitä);
    return T > W ? W : T;
}

void LaskeMotivaatio(Peli& peli) {
    Muuttujat& m = peli.m;
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) {
        if (k == Nahkuri) continue;
        Aseta(m.Moti[k], (static_cast<double>(m.Palkka[k]) - m.PerusPalkka[k]) * 0.001);
    }
}

}  // namespace tanhua
