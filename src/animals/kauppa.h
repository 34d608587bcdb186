// Animal trade and slaughter: the cards, buying, selling, slaughter and the automatic slaughter orders.
#pragma once

namespace tanhua {

struct Peli;

// The butcher's and the tanner's daily slaughter by the orders of the animal screen.
void AutoTeurastus(Peli& peli);

}  // namespace tanhua
