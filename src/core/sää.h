// The weather of the day.
#pragma once

namespace tanhua {

struct Peli;

void Keli(Peli& peli);

}  // namespace tanhua
