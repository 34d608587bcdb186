// Base prices of products and land from the difficulty and the owned supplies.
#pragma once

namespace tanhua {

struct Peli;

// Recomputes the base prices, the land prices and the seed factors, then adds the supply bonuses.
void PerusHinnat(Peli& peli);

}  // namespace tanhua
