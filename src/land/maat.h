// The land's day and month: the forester's felling, the grain of the fields, the season value and
// the monthly replanting of waste land.
#pragma once

#include "../core/laskenta.h"

namespace tanhua {

struct Peli;
struct Muuttujat;

// Metsuri: one pass a forester on a working day, then the new hectare and the event list's lines.
void Metsänhakkuu(Peli& peli);
// Metsitys: up to one more hectare than there are foresters, 1000 a hectare while cash lasts.
// Returns what the planting cost, for the month's report.
Long Metsitys(Peli& peli);

// The season value S from the season, irrigation, the temperature and the season's sun and rain;
// 0 in winter, when nothing of the season block runs.
double Kausiarvo(const Muuttujat& m);
// The day's S: the running value of the day's season block while a day runs (the honey and berry
// chains leave their additions in it), else worked out afresh.
double PäivänKausiarvo(const Peli& peli);
// Viljankasvu: every hectare of field grows grain outside winter, helped by manure.
void Viljankasvu(Peli& peli);

}  // namespace tanhua
