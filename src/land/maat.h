// The land's day and month: the forester's felling, the grain of the fields and the monthly
// replanting of waste land.
#pragma once

#include "../core/laskenta.h"

namespace tanhua {

struct Peli;

// Metsuri: one pass a forester on a working day, then the new hectare and the event list's lines.
void Metsänhakkuu(Peli& peli);
// Metsitys: up to one more hectare than there are foresters, 1000 a hectare while cash lasts.
// Returns what the planting cost, for the month's report.
Long Metsitys(Peli& peli);

// Viljankasvu: every hectare of field grows grain outside winter, helped by manure. It reads the
// season value of the day's season block while a day runs, else works it out afresh.
void Viljankasvu(Peli& peli);

}  // namespace tanhua
