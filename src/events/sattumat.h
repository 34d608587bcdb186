// Random events of the day.
#pragma once

namespace tanhua {

struct Peli;

void Sattumat(Peli& peli);

}  // namespace tanhua
