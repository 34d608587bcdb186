// The controls of the staff screen as the player sees them.
#include "core/ohjaimet.h"

#include "core/peli.h"

namespace tanhua {

void TyövoimaruudunOhjaimet(Ohjainluettelo& l) { (void)l; }

}  // namespace tanhua
