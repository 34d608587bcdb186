// Shared set-up of the herd tests: a started farm with an empty barn, and given draws.
#pragma once

#include <vector>

#include "tuki/testipeli.h"

namespace tanhua::testi {

// A started farm with no animals, staff, supplies or stock, a roomy barn and no pasture.
inline void TyhjäLauma(Testipeli& t) {
    t.Aloita();
    t.m.El = {};
    t.m.Työ = {};
    t.m.Ylityö = {};
    t.m.Moti = {};
    t.m.Tarv = {};
    t.m.Var = {};
    t.m.Syönti = {};
    t.m.Laidun = 0;
    t.m.Vuodenaika = "Kesä";
    t.m.Raha = 100000;
    t.m.Koko_Navetta = 100000;
    t.m.Käyrät.Eläimiä.clear();
    t.peli.arvonta.TyhjennäJono();
}

inline void Jonoon(Testipeli& t, const std::vector<double>& arvot) {
    for (double r : arvot) t.peli.arvonta.Jonoon(r);
}

}  // namespace tanhua::testi
