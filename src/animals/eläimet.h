// The herd's life cycle: hygiene, the day's output, feeding and starvation, ageing, breeding
// and the month's feed bills.
#pragma once

#include "../core/laskenta.h"

namespace tanhua {

struct Peli;
struct Muuttujat;

// Recomputes Hygienia from the heads and the cleaners, and runs up the cleaner's overtime.
void EläintenKunto(Peli& peli);
// The day's milk, wool, eggs and manure.
void EläintenTuotanto(Peli& peli);
// The day's feed from the silo, then starvation on an empty silo and the low-feed warning.
void Ruokinta(Peli& peli);
// One starvation test for each adult kind, then the animal welfare fine.
void Nälkäkuolemat(Peli& peli);
// The young of the species whose month it is grow up, and the cubs become young.
void Vanhentuminen(Peli& peli);
// The month's births.
void Lisääntyminen(Peli& peli);
// The month's feed counters become last month's feed bills and start again from 0.
void TyhjennäSyönnit(Peli& peli);

// All 24 head counts, each class once.
double EläimiäKaikkiaan(const Muuttujat& m);
// How much of their feed the grazers take from the silo: 1 without pasture or in winter,
// else 0.3 to 1.0 by the load of the pasture and the season.
double LaidunKerroin(const Muuttujat& m);
// A day's feed for the whole herd with its young, rounded to a whole number.
Long RehuTarve(const Muuttujat& m);

}  // namespace tanhua
