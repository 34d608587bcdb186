// The market: the monthly walk of the prices and the first walk of a new farm.
// These steps keep their place in the day; their rules come with the subsystem.
#include "markkinat.h"

namespace tanhua {

void Markkinat(Peli& /*peli*/) {}
void EnsimmäinenKurssi(Peli& /*peli*/) {}

}  // namespace tanhua
