// The runner's operations of the animal screen and slaughter.
#include "animals/kauppa.h"
#include "skripti.h"

namespace tanhua {

void EläinkaupanToiminnot(Toimintoluettelo& t) { t["AutoTeurastus"] = Pelkkä(AutoTeurastus); }

}  // namespace tanhua
