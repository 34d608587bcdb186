// The buildings' day: work orders, the packing plant, the daily bills, the stable.
// These steps keep their place in the day; their rules come with the subsystem.
#include "rakennukset.h"

namespace tanhua {

void TyömaaPäivä(Peli& /*peli*/) {}
void PakkaamoPäivä(Peli& /*peli*/) {}
void PäiväKulut(Peli& /*peli*/) {}
void RatsastusPäivä(Peli& /*peli*/) {}
void Jalostus(Peli& /*peli*/, Rakennus /*rakennus*/) {}

}  // namespace tanhua
