// The buildings' day: work orders, the packing plant, the daily bills, the stable.
#pragma once

#include "../core/taulut/rakennukset.h"

namespace tanhua {

struct Peli;

void TyömaaPäivä(Peli& peli);
void PakkaamoPäivä(Peli& peli);
void PäiväKulut(Peli& peli);
void RatsastusPäivä(Peli& peli);
// One building's day of processing (the feed plant, the sawmill, the dairy, ...).
void Jalostus(Peli& peli, Rakennus rakennus);

}  // namespace tanhua
