// Shared set-up of the herd tests: a started farm with an empty barn, and given draws.
#pragma once

#include <vector>

#include "tuki/testipeli.h"

namespace tanhua::testi {

// A started farm with no animals, staff, supplies or stock, a roomy barn and no pasture.
struct Lauma : Testipeli {
    Lauma() {
        Aloita();
        m.El = {};
        m.Työ = {};
        m.Tarv = {};
        m.Var = {};
        m.Laidun = 0;
        m.Vuodenaika = "Kesä";
        m.Raha = 100000;
        m.Koko_Navetta = 100000;
        m.Käyrät.Eläimiä.clear();
        peli.arvonta.TyhjennäJono();
    }
    // Queues given draws.
    void Jonoon(const std::vector<double>& arvot) {
        for (double r : arvot) peli.arvonta.Jonoon(r);
    }
};

}  // namespace tanhua::testi
