// Wage talks.
#include "neuvottelut.h"

namespace tanhua {

// The talks come with the staff's morale (stress and the demands of each kind); until then the
// step keeps its place after LaskePalkat and changes nothing.
void Palkkaneuvottelut(Peli& /*peli*/) {}

}  // namespace tanhua
