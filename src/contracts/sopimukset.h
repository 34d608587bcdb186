// Supply contracts: the phone offers of the day.
#pragma once

namespace tanhua {

struct Peli;

void Sopimustarjous(Peli& peli);

}  // namespace tanhua
