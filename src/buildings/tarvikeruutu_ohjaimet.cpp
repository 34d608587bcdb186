// The controls of the supplies shop as the player sees them.
#include "core/ohjaimet.h"

#include "core/peli.h"

namespace tanhua {

void TarvikeruudunOhjaimet(Ohjainluettelo& l) { (void)l; }

}  // namespace tanhua
