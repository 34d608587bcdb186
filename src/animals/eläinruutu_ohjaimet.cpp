// The controls of the animal screen as the player sees them.
#include "core/ohjaimet.h"

#include "core/peli.h"

namespace tanhua {

void EläinruudunOhjaimet(Ohjainluettelo& l) { (void)l; }

}  // namespace tanhua
