// The land's day: the forester's felling and the grain of the fields.
// These steps keep their place in the day; their rules come with the subsystem.
#include "maat.h"

namespace tanhua {

void Metsänhakkuu(Peli& /*peli*/) {}
void Viljankasvu(Peli& /*peli*/) {}

}  // namespace tanhua
