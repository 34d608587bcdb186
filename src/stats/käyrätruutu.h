// What the statistics screen shows while it is open: the time labels, the heading, the scale
// labels, the drawn curve or printed table on the plot Taulu, and the month's picture (not saved).
#pragma once

#include <string>
#include <vector>

#include "../core/kanavat.h"

namespace tanhua {

// The plot's size in the screen's own units: the curve's unit and step are worked out from it,
// and the window scales the drawing to whatever size the plot has on screen.
inline constexpr int TAULU_LEVEYS = 600;
inline constexpr int TAULU_KORKEUS = 400;

// One line of the curve from (x1, y1) to (x2, y2), y pointing down from the plot's top.
struct Jana {
    double x1, y1, x2, y2;
};

struct KäyrätRuutuTila {
    bool auki = false;
    std::string aika1, aika2, aika3;  // the time axis: the start, the middle year, today
    bool Command5 = false;            // the net curve: only with a bookkeeper when the screen opened
    std::string otsikko;              // the heading of what Taulu shows
    std::string Maximi, Puoli, Minimi;

    // Taulu: a curve (its lines in the plot's units, drawn red) or a table of lines; cleared by each.
    std::vector<Jana> janat;
    double T = 0, U = 0, S = 0;       // the scale top, the vertical unit and the step of the last curve
    std::vector<RaporttiRivi> taulu;

    bool kuva = false;                // the month's picture KuukaudenvaihdeKuva lies over the screen
    bool Ilmoitusteksti = false;      // the notice that there is no picture yet
};

}  // namespace tanhua
