// The herd: hygiene, output, feeding, ageing, breeding and automatic slaughter.
#pragma once

namespace tanhua {

struct Peli;

void EläintenKunto(Peli& peli);
void EläintenTuotanto(Peli& peli);
void Ruokinta(Peli& peli);
void Vanhentuminen(Peli& peli);
void Lisääntyminen(Peli& peli);

}  // namespace tanhua
