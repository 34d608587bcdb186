// The end of a career: the life story told when a goal is reached or the farmer retires.
// These steps keep their place in the day; their rules come with the subsystem.
#include "tilanne.h"

namespace tanhua {

void LoppuJuttu(Peli& /*peli*/) {}

}  // namespace tanhua
