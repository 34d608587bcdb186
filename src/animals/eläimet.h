// The herd: hygiene, output, feeding, ageing, breeding and automatic slaughter.
#pragma once

namespace tanhua {

struct Peli;

void EläintenKunto(Peli& peli);
void EläintenTuotanto(Peli& peli);
void Ruokinta(Peli& peli);
void Vanhentuminen(Peli& peli);
void Lisääntyminen(Peli& peli);
// Moves this month's feed eaten to last month's cost and clears it.
void TyhjennäSyönnit(Peli& peli);

}  // namespace tanhua
