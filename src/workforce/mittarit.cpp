// The motivation and stress gauges of the staff screen.
#include "../core/peli.h"
#include "työvoima.h"

namespace tanhua {

// The gauges come with the stress and motivation rules; until then they stay blank.
void Motilasku(Peli& peli) { peli.työvoimaruutu.Moti.clear(); }
void Stressilasku(Peli& peli) { peli.työvoimaruutu.Stres.clear(); }

}  // namespace tanhua
