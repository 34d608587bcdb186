// What the land screen, the sowing screen and the harvest screen hold while they are open (not saved).
#pragma once

#include <array>
#include <string>
#include <vector>

#include "../core/laskenta.h"
#include "../core/taulut/maat.h"

namespace tanhua {

struct PeltoRuutuTila {
    bool auki = false;          // the screen is showing
    std::string otsikko;        // the label naming what the pointer is over

    // The card akkuna: its kind (-1 while hidden), the lot 1, 10 or 100 and the figures.
    int kortti = -1;
    Integer määrä = 1;
    Long hinta = 0;             // PerusMaa + MaaKurssi of the kind
    Long yhteensä = 0;          // hinta × määrä

    bool MetsuriValikko = false;  // the forester's panel
    // The sowing and harvest pictures: both start hidden, and only those two screens show them.
    bool Image4 = false, Image5 = false;
};

// The sowing plan Kylvö and its sheet.
struct KylvöRuutuTila {
    bool auki = false;
    std::array<Long, KASVEJA> ala{};  // the planned hectares of each crop
    Long kylvetään = 0;               // planned in all
    Long eikylvetä = 0;               // field left unplanned
    int kortti = -1;                  // the crop card, -1 while hidden
    Long määrä = 0;                   // hectares on the card
    Single hinta = 0;                 // seed price + its index
    Long kulu = 0;                    // seed a hectare
    Single yhteensä = 0;              // määrä × kulu × hinta, as the label holds it
    bool Lannoitetaan = false, Myrkytetään = false, Ojitetaan = false;
    std::vector<std::string> Kustannukset;  // the cost sheet, line by line
    Long T = 0;                       // the sheet's total
};

// One crop's line of the harvest estimate.
struct NostoRivi {
    Long ha = 0, kg = 0;
    Single hinta = 0;                 // 2 × seed price + index, per kg
    double summa = 0;                 // Int(kg × Int(hinta))
};

// The harvest screen Nosto and its sheet.
struct NostoRuutuTila {
    bool auki = false;
    std::array<NostoRivi, KASVEJA> rivit{};
    double yhteensä = 0;              // the three sums
    Long C = 0;                       // the harvest's costs
    double brutto = 0;                // Int(yhteensä) − (KylvöKulut + C)
    std::vector<std::string> Kustannukset;  // the sheet, worked out as the screen opens
    bool arkki = false;               // the sheet shows after "Kustannukset"
};

}  // namespace tanhua
