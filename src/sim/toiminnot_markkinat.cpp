// The runner's operations of the market, the product screen and the market report.
#include "market/markkinat.h"
#include "market/myynti.h"
#include "skripti.h"

namespace tanhua {

void MarkkinoidenToiminnot(Toimintoluettelo& t) {
    t["Markkinat"] = Pelkkä(Markkinat);
    t["AutoMyynti"] = Pelkkä(AutoMyynti);
}

}  // namespace tanhua
