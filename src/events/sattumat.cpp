// Random events of the day.
// These steps keep their place in the day; their rules come with the subsystem.
#include "sattumat.h"

namespace tanhua {

void Sattumat(Peli& /*peli*/) {}

}  // namespace tanhua
