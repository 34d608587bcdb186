// The figures of the main screen, worked out for any front end.
// These steps keep their place in the day; their rules come with the subsystem.
#include "pääruutu.h"

namespace tanhua {

void Päivitälukemat(Peli& /*peli*/) {}

}  // namespace tanhua
