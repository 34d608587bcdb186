// Animal trade and slaughter.
#include "kauppa.h"

namespace tanhua {

void AutoTeurastus(Peli& /*peli*/) {}

}  // namespace tanhua
