// The buildings' day: work orders, the processing chains, the packing plant, the daily bills, the stable.
#pragma once

#include "../core/taulut/rakennukset.h"
#include "jalostus.h"
#include "kulut.h"

namespace tanhua {

struct Peli;

void TyömaaPäivä(Peli& peli);
void RatsastusPäivä(Peli& peli);

}  // namespace tanhua
