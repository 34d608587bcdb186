// The controls of the bank screen as the player sees them.
#include "core/ohjaimet.h"

#include "core/peli.h"

namespace tanhua {

void PankkiruudunOhjaimet(Ohjainluettelo& l) { (void)l; }

}  // namespace tanhua
