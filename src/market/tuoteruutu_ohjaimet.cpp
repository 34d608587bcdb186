// The controls of the product screen as the player sees them.
#include "core/ohjaimet.h"

#include "core/peli.h"

namespace tanhua {

void TuoteruudunOhjaimet(Ohjainluettelo& l) { (void)l; }

}  // namespace tanhua
