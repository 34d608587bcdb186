// The controls of the building screen as the player sees them.
#include "core/ohjaimet.h"

#include "core/peli.h"

namespace tanhua {

void RakennusruudunOhjaimet(Ohjainluettelo& l) { (void)l; }

}  // namespace tanhua
