// The star rating of the farm.
#pragma once

namespace tanhua {

struct Peli;

void TähtiTarkastus(Peli& peli);

}  // namespace tanhua
