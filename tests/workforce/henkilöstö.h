// Shared set-up of the staff tests: a farm with sound effects on and the staff screen open.
#pragma once

#include <string>
#include <vector>

#include "tuki/testipeli.h"
#include "workforce/työvoima.h"

namespace tanhua::testi {

// Every job listed, and cash for a claim when someone is fired.
struct Tila : Testipeli {
    Tila() {
        Aloita();
        peli.asetukset.Äänitehosteet = true;
        m.TähtiLukitus = false;
        m.Raha = 10000;
        AvaaTyövoima(peli);
        Tapahtumat();
    }
    void Valitse(Työläinen k) {
        ValitseTyöläinen(peli, k);
        Tapahtumat();
    }
};

}  // namespace tanhua::testi
