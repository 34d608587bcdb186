// The market: the monthly walk of the prices, the first walk of a new farm and the market report.
#pragma once

namespace tanhua {

struct Peli;

// The monthly step on day 2: the walk, the crashes with their news, and the lower bounds.
void Markkinat(Peli& peli);
// The first walk of a new farm from 0, with no crash and no bounds; pasture land stays at 0.
void EnsimmäinenKurssi(Peli& peli);
// The bank's market report: the indices, their average and the general outlook.
void PörssiRaportti(Peli& peli);

}  // namespace tanhua
