// The market: the monthly walk of the prices and the first walk of a new farm.
#pragma once

namespace tanhua {

struct Peli;

void Markkinat(Peli& peli);
void EnsimmäinenKurssi(Peli& peli);

}  // namespace tanhua
