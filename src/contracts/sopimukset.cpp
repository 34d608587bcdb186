// Supply contracts: the phone offers of the day.
// These steps keep their place in the day; their rules come with the subsystem.
#include "sopimukset.h"

namespace tanhua {

void Sopimustarjous(Peli& /*peli*/) {}

}  // namespace tanhua
