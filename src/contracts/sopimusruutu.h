// What the contracts screen holds while the game runs: the call under way, its terms, the two
// sheets and the contract chosen for cancelling (not saved).
#pragma once

#include <string>

#include "../core/laskenta.h"

namespace tanhua {

struct SopimusRuutuTila {
    bool auki = false;  // the screen is showing

    // The call: True between the drawing of terms and the answer. `indeksi` is the offer under
    // discussion, its place in the list of waiting offers; -1 when no call is open.
    bool Puhelussa = false;
    int indeksi = -1;
    std::string tuote;       // the offer text of the call
    Long A = 0, H = 0, P = 0, K = 0;  // amount a month, pay a month, penalty, months
    std::string infoa;       // the two labels of the offer sheet

    // The two sheets: the waiting offers ("Uudet sopimukset") and the three slots ("Sopimukset").
    bool Tarjouslappu = false;
    bool Sopimuslappu = false;

    // The contract chosen on the slots' sheet: its product in the label, its slot (0..2, -1 none)
    // and its penalty.
    std::string Peruttava;
    int peruttavaPaikka = -1;
    Long peruttavaSakko = 0;
};

}  // namespace tanhua
