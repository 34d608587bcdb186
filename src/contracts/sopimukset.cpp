// Supply contracts: the phone offers of the day.
// These steps keep their place in the day; their rules come with the subsystem.
#include "sopimukset.h"

#include "../core/peli.h"

namespace tanhua {

void Sopimustarjous(Peli& /*peli*/) {}
void SopimusKuukausi(Peli& /*peli*/) {}

void TarjousSiivous(Peli& peli) {
    // The draw is taken whether or not offers are waiting, so the month's draws keep their order.
    if (peli.arvonta.U(0, 2) == 0) peli.näkymä.Sopimuksia.clear();
}

}  // namespace tanhua
