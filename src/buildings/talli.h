// The riding stable: the day's lessons with their ledger, and the stable screen's operations.
#pragma once

#include <cstdint>

#include "../core/laskenta.h"
#include "talliruutu.h"

namespace tanhua {

struct Peli;
struct Muuttujat;

// C: the horses on the pasture as a percentage of its room, four horses a hectare, held to 0..100.
// With no pasture the divisor is 1, so any horse makes it full.
double Tungos(const Muuttujat& m);
// b: the day's demand for lessons by the season, the sky, the price step and the crowding.
double Kysyntä(const Muuttujat& m);

// The stable's step of the day: each master holds two lesson blocks while the mares last, and
// the day's line goes to the ledger. Nothing happens without a stable, a mare and a master.
void RatsastusPäivä(Peli& peli);

// Hepotalli: the screen opens with a click; the race costs are out of sight.
void AvaaHevostalli(Peli& peli);
// Command1: the screen closes with a click.
void SuljeHevostalli(Peli& peli);
// rulla_Change: the price slider moved to a step 0..4 sets the hour price; no move, no change.
void AsetaRulla(Peli& peli, int rulla);
// Command3 "Määritä hinnasto": shows or hides the price sheet.
void VaihdaHinnasto(Peli& peli);
// Command2 "Osallistu raveihin": the notice that the races are a trial.
void OsallistuRaveihin(Peli& peli);
// The pointer on "Osallistu raveihin" (true) shows the race costs; on the screen itself hides them.
void OsoitinRaveihin(Peli& peli, bool napilla);

// What the screen's figures show: the crowding as a whole number and its colour.
int KapasiteettiLuku(const Muuttujat& m);
std::uint32_t KapasiteettiVäri(int kapasiteetti);

}  // namespace tanhua
